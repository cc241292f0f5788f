#include "host/CloseRequest.h"

#include "quorvahost/tour/User.h"

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <QWidget>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace quorvawiz::host
{
namespace
{
xcb_atom_t AtomOf(xcb_connection_t* pConnection, const char* pName)
{
    const auto request =
        xcb_intern_atom(pConnection, 0, static_cast<std::uint16_t>(std::strlen(pName)), pName);
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> pReply(
        xcb_intern_atom_reply(pConnection, request, nullptr), &std::free);
    return pReply->atom;
}

/// From a connection of its own, as a window manager is another program.
void SendDeleteWindow(xcb_window_t window)
{
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> pConnection(
        xcb_connect(nullptr, nullptr), &xcb_disconnect);
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = AtomOf(pConnection.get(), "WM_PROTOCOLS");
    event.data.data32[0] = AtomOf(pConnection.get(), "WM_DELETE_WINDOW");
    event.data.data32[1] = XCB_CURRENT_TIME;
    xcb_send_event(pConnection.get(), 0, window, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char*>(&event));
    // A question is answered after all that was sent before it.
    AtomOf(pConnection.get(), "WM_STATE");
}
} // namespace

void gRequestClose(QWidget& rWindow)
{
    if (QGuiApplication::platformName() == QStringLiteral("xcb"))
        SendDeleteWindow(static_cast<xcb_window_t>(rWindow.winId()));
    else
        rWindow.close();
    CUser::Settle();
}

} // namespace quorvawiz::host
