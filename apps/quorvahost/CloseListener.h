#pragma once

#include <QAbstractNativeEventFilter>
#include <QByteArray>
#include <cstdint>

class QWidget;

namespace quorvawiz::host
{

/// Closes a window, while this lives, when the window manager asks for it although a modal window
/// stands in front: Qt drops that. On X displays; others keep their windows from asking.
class CCloseListener : public QAbstractNativeEventFilter
{
public:
    /// The window outlives this, or ends with it in one and the same event.
    explicit CCloseListener(QWidget& rWindow);
    ~CCloseListener() override;
    CCloseListener(const CCloseListener&) = delete;
    CCloseListener& operator=(const CCloseListener&) = delete;

    bool nativeEventFilter(const QByteArray& rsType, void* pMessage, qintptr* pResult) override;

private:
    QWidget& mrWindow;
    std::uint32_t mnProtocols = 0;    ///< WM_PROTOCOLS; 0 without an X server
    std::uint32_t mnDeleteWindow = 0; ///< WM_DELETE_WINDOW
};

} // namespace quorvawiz::host
