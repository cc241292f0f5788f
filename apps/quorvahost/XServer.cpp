#include "quorvahost/XServer.h"

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace quorvawiz::host
{

xcb_connection_t* gXConnection()
{
    const auto* const pX11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return pX11 ? pX11->connection() : nullptr;
}

std::uint32_t gXAtom(const char* pName)
{
    xcb_connection_t* const pConnection = gXConnection();
    const auto request =
        xcb_intern_atom(pConnection, 0, static_cast<std::uint16_t>(std::strlen(pName)), pName);
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> pReply(
        xcb_intern_atom_reply(pConnection, request, nullptr), &std::free);
    return pReply ? pReply->atom : 0;
}

} // namespace quorvawiz::host
