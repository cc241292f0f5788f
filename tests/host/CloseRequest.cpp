#include "host/CloseRequest.h"

#include "quorvahost/XServer.h"
#include "quorvahost/tour/User.h"

#include <xcb/xcb.h>

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QWidget>
#include <cstdint>
#include <memory>

namespace quorvawiz::host
{
namespace
{
/// Waits for a window's close request to come in.
class CArrival : public QAbstractNativeEventFilter
{
public:
    CArrival() { qApp->installNativeEventFilter(this); }
    ~CArrival() override { qApp->removeNativeEventFilter(this); }

    void Await() const
    {
        while (!mbSeen)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    bool nativeEventFilter(const QByteArray&, void* pMessage, qintptr*) override
    {
        constexpr std::uint8_t kWithoutSent = 0x7F;
        const auto& rEvent = *static_cast<const xcb_generic_event_t*>(pMessage);
        if ((rEvent.response_type & kWithoutSent) == XCB_CLIENT_MESSAGE) {
            const auto& rMessage = *static_cast<const xcb_client_message_event_t*>(pMessage);
            mbSeen = mbSeen || rMessage.data.data32[0] == mDeleteWindow;
        }
        return false;
    }

private:
    const xcb_atom_t mDeleteWindow = gXAtom("WM_DELETE_WINDOW");
    bool mbSeen = false;
};

/// From a connection of its own, as a window manager is another program.
void SendDeleteWindow(xcb_window_t window)
{
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> pConnection(
        xcb_connect(nullptr, nullptr), &xcb_disconnect);
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = gXAtom("WM_PROTOCOLS");
    event.data.data32[0] = gXAtom("WM_DELETE_WINDOW");
    event.data.data32[1] = XCB_CURRENT_TIME;
    const CArrival arrival;
    xcb_send_event(pConnection.get(), 0, window, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char*>(&event));
    xcb_flush(pConnection.get());
    arrival.Await();
}
} // namespace

void gRequestClose(QWidget& rWindow)
{
    if (gXConnection())
        SendDeleteWindow(static_cast<xcb_window_t>(rWindow.winId()));
    else
        rWindow.close();
    CUser::Settle();
}

} // namespace quorvawiz::host
