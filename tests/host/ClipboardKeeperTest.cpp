#include "quorvahost/ClipboardKeeper.h"

#include "host/PrintQt.h"
#include "quorvahost/XServer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <xcb/xcb.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QTimer>
#include <cstdlib>
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
        xcb_connection_t* const pConnection = mpConnection.get();
        const xcb_screen_t& rScreen = *xcb_setup_roots_iterator(xcb_get_setup(pConnection)).data;
        const std::uint32_t nEvents = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_create_window(pConnection, XCB_COPY_FROM_PARENT, mWindow, rScreen.root, 0, 0, 1, 1, 0,
                          XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK,
                          &nEvents);
        // Who takes it in the millisecond in which another one did isn't the later of the two.
        const xcb_timestamp_t start = ServerTime();
        while (ServerTime() == start)
            continue;
        xcb_set_selection_owner(pConnection, mWindow, gXAtom(pSelection), XCB_CURRENT_TIME);
        ServerTime(); // it has been done
    }

private:
    /// The server says its time with each change of a property.
    xcb_timestamp_t ServerTime()
    {
        xcb_change_property(mpConnection.get(), XCB_PROP_MODE_APPEND, mWindow, XCB_ATOM_WM_NAME,
                            XCB_ATOM_STRING, 8, 0, nullptr);
        xcb_flush(mpConnection.get());
        const std::unique_ptr<xcb_generic_event_t, decltype(&std::free)> pEvent(
            xcb_wait_for_event(mpConnection.get()), &std::free);
        return reinterpret_cast<const xcb_property_notify_event_t&>(*pEvent).time;
    }

    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> mpConnection{
        xcb_connect(nullptr, nullptr), &xcb_disconnect};
    const xcb_window_t mWindow = xcb_generate_id(mpConnection.get());
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
