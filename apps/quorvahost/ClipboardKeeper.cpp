#include "quorvahost/ClipboardKeeper.h"

#include "quorvahost/XServer.h"

#include <xcb/xcb.h>

#include <QClipboard>
#include <QEventLoop>
#include <QGuiApplication>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace quorvawiz::host
{
namespace
{
bool HasClipboardManager()
{
    const auto request = xcb_get_selection_owner(gXConnection(), gXAtom("CLIPBOARD_MANAGER"));
    const std::unique_ptr<xcb_get_selection_owner_reply_t, decltype(&std::free)> pReply(
        xcb_get_selection_owner_reply(gXConnection(), request, nullptr), &std::free);
    return pReply && pReply->owner != XCB_NONE;
}
} // namespace

void gKeepClipboard()
{
    const QClipboard& rClipboard = *QGuiApplication::clipboard();
    if (!gXConnection() || !rClipboard.ownsClipboard() || HasClipboardManager())
        return;
    std::fputs("quorvahost: keeping the clipboard until another program takes it\n", stderr);
    QEventLoop loop;
    QObject::connect(&rClipboard, &QClipboard::dataChanged, &loop, [&] {
        if (!rClipboard.ownsClipboard())
            loop.quit();
    });
    loop.exec();
}

} // namespace quorvawiz::host
