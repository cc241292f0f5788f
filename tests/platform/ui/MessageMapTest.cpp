#include "platform/ui/MessageMap.h"

#include "platform/ui/Button.h"
#include "platform/ui/DataExchange.h"
#include "platform/ui/Edit.h"
#include "platform/ui/SampleDialog.h"

#include <gtest/gtest.h>

namespace
{
constexpr UINT WM_TEST = WM_APP + 1;
constexpr UINT WM_OTHER = WM_APP + 2;

/// A dialog that answers by its map.
class CMapped : public CDialog
{
public:
    CMapped() : CDialog(kSampleTemplate) {}
    TLog mLog;

    LRESULT DefWindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override
    {
        mLog.push_back("default " + std::to_string(nMessage));
        return CDialog::DefWindowProc(nMessage, wParam, lParam);
    }

protected:
    TMessageMap GetMessageMap() const override
    {
        static constexpr TMessageMapEntry kHandlers[] = {
            On<&CMapped::OnPress>(ENotify::Clicked, kPress),
            On<&CMapped::OnLevel>(ENotify::Clicked, kLow),
            On<&CMapped::OnLevel>(ENotify::Clicked, kHigh),
            On<&CMapped::OnName>(ENotify::Change, kName),
            On<&CMapped::OnSecondHandler>(ENotify::Change, kName),
            OnMessage<&CMapped::OnTest>(WM_TEST),
            OnMessage<&CMapped::OnShow>(WM_SHOWWINDOW),
        };
        return kHandlers;
    }

private:
    void OnPress() { mLog.push_back("press"); }
    void OnLevel(int nId) { mLog.push_back("level " + std::to_string(nId)); }
    void OnName() { mLog.push_back("name"); }
    void OnSecondHandler() { mLog.push_back("never"); }
    LRESULT OnTest(WPARAM wParam, LPARAM lParam)
    {
        mLog.push_back("test " + std::to_string(wParam) + ' ' + std::to_string(lParam));
        return static_cast<LRESULT>(wParam) + lParam;
    }
    LRESULT OnShow(WPARAM wParam, LPARAM)
    {
        mLog.push_back("show " + std::to_string(wParam));
        return 0;
    }
};

TEST(MessageMapTest, HandlersWithAndWithoutTheId)
{
    CMapped dialog;
    gLookInto(dialog, [&] {
        dialog.mLog.clear();
        gAct(dialog, "click press");
        gAct(dialog, "choose level=0");
        gAct(dialog, "choose level=1"); // has no handler
        gAct(dialog, "choose level=2");
        gAct(dialog, "set name=x");
        EXPECT_EQ(dialog.mLog, (TLog{"press", "level " + std::to_string(kLow),
                                     "level " + std::to_string(kHigh), "name"}));
    });
}

TEST(MessageMapTest, MessagesCarryTheirParametersAndResult)
{
    CMapped dialog;
    gLookInto(dialog, [&] {
        dialog.mLog.clear();
        EXPECT_EQ(dialog.SendMessage(WM_TEST, 5, -7), -2);
        EXPECT_EQ(dialog.SendMessage(WM_TEST), 0);
        EXPECT_EQ(dialog.SendMessage(WM_OTHER, 1, 2), 0);
        EXPECT_EQ(dialog.mLog,
                  (TLog{"test 5 -7", "test 0 0", "default " + std::to_string(WM_OTHER)}));
    });
}

TEST(MessageMapTest, TheEmptyMessageIsNoNotification)
{
    CMapped dialog;
    gLookInto(dialog, [&] {
        dialog.mLog.clear();
        EXPECT_EQ(dialog.SendMessage(0, kPress), 0);
        EXPECT_EQ(dialog.mLog, TLog{"default 0"});
    });
}

TEST(MessageMapTest, ANotificationIsNoMessage)
{
    // A control with the number of a message as its id, and clicks, reach their own handlers only.
    CMapped dialog;
    gLookInto(dialog, [&] {
        dialog.mLog.clear();
        EXPECT_EQ(gAct(dialog, "click again"), "");
        EXPECT_EQ(dialog.mLog, TLog{});
    });
}

TEST(MessageMapTest, ShowWindowIsSentOnAChangeOfVisibilityOnly)
{
    CMapped dialog;
    gLookInto(dialog, [&] {
        EXPECT_EQ(dialog.mLog, TLog{"show 1"}) << "the modal run shows it";
        dialog.mLog.clear();
        EXPECT_TRUE(dialog.ShowWindow(SW_SHOW));
        EXPECT_TRUE(dialog.ShowWindow(SW_HIDE));
        EXPECT_FALSE(dialog.ShowWindow(SW_HIDE));
        EXPECT_FALSE(dialog.ShowWindow(SW_SHOW));
        EXPECT_EQ(dialog.mLog, (TLog{"show 0", "show 1"}));
    });
}

TEST(MessageMapTest, AClassWithoutAMapHasNoHandlers)
{
    struct TPlain : CDialog {
        TPlain() : CDialog(kSampleTemplate) {}
        using CDialog::GetMessageMap;
        using CDialog::OnCommand;
    } dialog;
    EXPECT_TRUE(dialog.GetMessageMap().empty());
    gLookInto(dialog, [&] {
        EXPECT_FALSE(dialog.OnCommand(ENotify::Clicked, kPress));
        EXPECT_EQ(dialog.SendMessage(WM_TEST, 1, 1), 0);
        EXPECT_EQ(gAct(dialog, "click press"), "");
    });
}

TEST(MessageMapTest, AReplacedMapIsTheWholeMap)
{
    struct TDerived : CMapped {
        void OnAgain() { mLog.push_back("again"); }
        TMessageMap GetMessageMap() const override
        {
            static constexpr TMessageMapEntry kHandlers[] = {
                On<&TDerived::OnAgain>(ENotify::Clicked, kAgain)};
            return kHandlers;
        }
    } dialog;
    gLookInto(dialog, [&] {
        dialog.mLog.clear();
        gAct(dialog, "click press");
        gAct(dialog, "click again");
        EXPECT_EQ(dialog.mLog, TLog{"again"});
    });
}

/// An edit with a handler of its own.
struct TReflecting : CEdit {
    TLog* mpLog = nullptr;
    bool mbTake = true;
    bool OnReflected(ENotify code) override
    {
        if (code == ENotify::SetFocus || code == ENotify::KillFocus)
            return false;
        mpLog->push_back("reflected " + gNotifyName(code));
        return mbTake;
    }
};

TEST(MessageMapTest, AControlsOwnHandlerComesFirst)
{
    CSampleDialog dialog;
    TReflecting edit;
    TLog log;
    edit.mpLog = &log;
    dialog.ShareLog(log);
    dialog.Exchange([&](CDataExchange* pDX) { DDX_Control(pDX, kName, edit); });
    gLookInto(dialog, [&] {
        log.clear();
        gAct(dialog, "set name=a");
        edit.SetWindowText("b");
        EXPECT_EQ(log, (TLog{"reflected change", "reflected change"}));
        log.clear();
        edit.mbTake = false;
        gAct(dialog, "set name=c");
        EXPECT_EQ(log, (TLog{"reflected change", "name:change"}));
    });
}
} // namespace
