#include "quorvahost/ClipboardKeeper.h"

#include "host/PrintQt.h"
#include "quorvahost/XServer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <xcb/xcb.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QTimer>
#include <memory>

// On the virtual display there is no clipboard manager: whoever has the clipboard has to stay.
// Without a screen nobody else could take it.

namespace quorvawiz::host
{
namespace
{
/// Another program that takes a selection, as long as it lives.
class CTaker
{
public:
    explicit CTaker(const char* pSelection)
    {
        const xcb_screen_t& rScreen =
            *xcb_setup_roots_iterator(xcb_get_setup(mpConnection.get())).data;
        const xcb_window_t window = xcb_generate_id(mpConnection.get());
        xcb_create_window(mpConnection.get(), XCB_COPY_FROM_PARENT, window, rScreen.root, 0, 0, 1,
                          1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
        xcb_set_selection_owner(mpConnection.get(), window, gXAtom(pSelection), XCB_CURRENT_TIME);
        xcb_flush(mpConnection.get());
    }

private:
    std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> mpConnection{
        xcb_connect(nullptr, nullptr), &xcb_disconnect};
};

TEST(ClipboardKeeper, StaysUntilAnotherProgramTakesTheClipboard)
{
    QGuiApplication::clipboard()->setText(QStringLiteral(".op"));
    std::unique_ptr<CTaker> pTaker;
    testing::internal::CaptureStderr();
    if (gXConnection())
        QTimer::singleShot(0, qApp, [&pTaker] { pTaker = std::make_unique<CTaker>("CLIPBOARD"); });
    gKeepClipboard();
    const std::string sSaid = testing::internal::GetCapturedStderr();
    EXPECT_EQ(pTaker != nullptr, gXConnection() != nullptr);
    EXPECT_EQ(sSaid.find("keeping the clipboard") != std::string::npos, pTaker != nullptr) << sSaid;
}

TEST(ClipboardKeeper, LeavesTheClipboardToItsManager)
{
    std::unique_ptr<CTaker> pManager;
    if (gXConnection())
        pManager = std::make_unique<CTaker>("CLIPBOARD_MANAGER");
    QGuiApplication::clipboard()->setText(QStringLiteral(".op"));
    gKeepClipboard(); // returns
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral(".op"));
}
} // namespace
} // namespace quorvawiz::host
