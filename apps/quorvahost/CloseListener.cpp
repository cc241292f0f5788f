#include "quorvahost/CloseListener.h"

#include "quorvahost/XServer.h"

#include <xcb/xcb.h>

#include <QApplication>
#include <QWidget>

namespace quorvawiz::host
{
namespace
{
constexpr std::uint8_t kWithoutSent = 0x7F; // the highest bit: another program has sent it
}

CCloseListener::CCloseListener(QWidget& rWindow) : mrWindow(rWindow)
{
    if (!gXConnection())
        return;
    mnProtocols = gXAtom("WM_PROTOCOLS");
    mnDeleteWindow = gXAtom("WM_DELETE_WINDOW");
    qApp->installNativeEventFilter(this);
}

CCloseListener::~CCloseListener()
{
    qApp->removeNativeEventFilter(this);
}

bool CCloseListener::nativeEventFilter(const QByteArray& rsType, void* pMessage, qintptr*)
{
    // Without a modal window Qt hands the message on itself.
    if (rsType != "xcb_generic_event_t" || !QApplication::activeModalWidget())
        return false;
    const auto& rEvent = *static_cast<const xcb_generic_event_t*>(pMessage);
    if ((rEvent.response_type & kWithoutSent) != XCB_CLIENT_MESSAGE)
        return false;
    const auto& rMessage = *static_cast<const xcb_client_message_event_t*>(pMessage);
    if (rMessage.window != mrWindow.internalWinId() || rMessage.type != mnProtocols ||
        rMessage.data.data32[0] != mnDeleteWindow)
        return false;
    QMetaObject::invokeMethod(&mrWindow, &QWidget::close, Qt::QueuedConnection);
    return true;
}

} // namespace quorvawiz::host
