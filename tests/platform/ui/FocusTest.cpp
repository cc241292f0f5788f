#include "platform/ui/PropertyPage.h"
#include "platform/ui/SampleDialog.h"
#include "platform/ui/TemplateRows.h"

#include <gtest/gtest.h>

namespace
{
TEST(FocusTest, TheLoserHearsItFirst)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        dialog.LogFocus();
        EXPECT_EQ(gFocusName(), "name");
        EXPECT_EQ(dialog.GetDlgItem(kNotes)->SetFocus(), dialog.GetDlgItem(kName));
        EXPECT_EQ(dialog.TakeLog(), (TLog{"name:kill-focus", "notes:set-focus"}));
        EXPECT_EQ(dialog.GetDlgItem(kNotes)->SetFocus(), dialog.GetDlgItem(kNotes));
        EXPECT_EQ(dialog.TakeLog(), TLog{}) << "nothing has moved";
        gAct(dialog, "click press");
        EXPECT_EQ(dialog.TakeLog(), (TLog{"notes:kill-focus", "press:set-focus", "press:clicked"}));
    });
}

TEST(FocusTest, TheNewFocusIsInPlaceWhenTheLoserHearsIt)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        dialog.LogFocus();
        std::string sSeen;
        dialog.React("name:kill-focus", [&] { sSeen = gFocusName(); });
        gAct(dialog, "focus notes");
        EXPECT_EQ(sSeen, "notes");
    });
}

TEST(FocusTest, AHandlerOfTheLoserMayMoveItOn)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        dialog.LogFocus();
        dialog.React("name:kill-focus", [&] { dialog.GetDlgItem(kMemo)->SetFocus(); });
        gAct(dialog, "focus notes");
        EXPECT_EQ(gFocusName(), "memo");
        // Notes never learnt that it had the focus for a moment, only that it lost it.
        EXPECT_EQ(dialog.TakeLog(),
                  (TLog{"name:kill-focus", "notes:kill-focus", "memo:set-focus"}));
    });
}

TEST(FocusTest, WhatIsDisabledOrHiddenTakesNoFocus)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        CWnd& rNotes = *dialog.GetDlgItem(kNotes);
        rNotes.EnableWindow(false);
        EXPECT_EQ(rNotes.SetFocus(), nullptr);
        rNotes.EnableWindow(true);
        rNotes.ShowWindow(SW_HIDE);
        EXPECT_EQ(rNotes.SetFocus(), nullptr);
        EXPECT_EQ(gFocusName(), "name");
        rNotes.ShowWindow(SW_SHOW);
        EXPECT_EQ(rNotes.SetFocus(), dialog.GetDlgItem(kName));
    });
}

struct TMove {
    const char* pName;
    int nFocus;
    std::function<void(CSampleDialog&)> act;
    const char* pExpected;
};

void Disable(CSampleDialog& rDialog, std::initializer_list<int> ids)
{
    for (const int nId : ids)
        rDialog.GetDlgItem(nId)->EnableWindow(false);
}

TEST(FocusTest, MovesOnWhenItsControlIsDisabledOrHidden)
{
    const TMove kMoves[] = {
        {"disabled", kName, [](CSampleDialog& r) { Disable(r, {kName}); }, "notes"},
        {"hidden", kName, [](CSampleDialog& r) { r.GetDlgItem(kName)->ShowWindow(SW_HIDE); },
         "notes"},
        {"another is disabled", kName, [](CSampleDialog& r) { Disable(r, {kNotes}); }, "name"},
        {"the next is disabled already", kName,
         [](CSampleDialog& r) {
             Disable(r, {kNotes, kMemo, kName});
         },
         "fixed"},
        {"round the end", IDCANCEL, [](CSampleDialog& r) { Disable(r, {IDCANCEL}); }, "name"},
        {"into a radio group", kAgain,
         [](CSampleDialog& r) {
             r.CheckRadioButton(kLow, kHigh, kMiddle);
             Disable(r, {kAgain});
         },
         "level#1"},
        {"destroyed", kName, [](CSampleDialog& r) { r.GetDlgItem(kName)->DestroyWindow(); },
         "(none)"},
        {"the dialog is disabled", kName, [](CSampleDialog& r) { r.EnableWindow(false); },
         "(none)"},
    };
    for (const TMove& rMove : kMoves) {
        SCOPED_TRACE(rMove.pName);
        CSampleDialog dialog;
        gLookInto(dialog, [&] {
            dialog.GetDlgItem(rMove.nFocus)->SetFocus();
            rMove.act(dialog);
            EXPECT_EQ(gFocusName(), rMove.pExpected);
        });
    }
}

TEST(FocusTest, MovingOnNotifiesBoth)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        dialog.LogFocus();
        Disable(dialog, {kName});
        EXPECT_EQ(dialog.TakeLog(), (TLog{"name:kill-focus", "notes:set-focus"}));
    });
}

TEST(FocusTest, TheLastControlThatGoesLeavesNone)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        dialog.LogFocus();
        for (CWnd* pChild : dialog.GetChildren())
            if (pChild->GetDlgCtrlID() != kName)
                pChild->EnableWindow(false);
        Disable(dialog, {kName});
        EXPECT_EQ(gFocusName(), "(none)");
        EXPECT_EQ(dialog.TakeLog(), TLog{"name:kill-focus"});
    });
}

// --- panes

constexpr auto kPaneRows = JoinRows(Row(1, "p1", EControl::Edit, "", {0, 0, 50, 13}),
                                    Row(2, "p2", EControl::Edit, "", {0, 20, 50, 13}),
                                    Row(3, "p3", EControl::PushButton, "", {0, 40, 50, 14}));
constexpr DialogTemplate kPaneTemplate{"Pane", {60, 60}, kPaneRows};
constexpr auto kLabelRows = JoinRows(Row(1, "text", EControl::Static, "Text", {0, 0, 50, 9}));
constexpr DialogTemplate kLabelTemplate{"Labels", {60, 60}, kLabelRows};

class PaneFocusTest : public testing::Test
{
protected:
    void In(const std::function<void()>& rLook)
    {
        gLookInto(mDialog, [&] {
            for (CPropertyPage* pPane : {&mPane, &mOther, &mLabels})
                ASSERT_TRUE(pPane->CreatePane(mDialog));
            mPane.ShowWindow(SW_SHOW);
            mLabels.ShowWindow(SW_SHOW);
            rLook();
        });
    }
    CSampleDialog mDialog;
    CPropertyPage mPane{kPaneTemplate};
    CPropertyPage mOther{kPaneTemplate};
    CPropertyPage mLabels{kLabelTemplate};
};

TEST_F(PaneFocusTest, APaneGivesItToItsFirstTabStop)
{
    In([this] {
        EXPECT_EQ(mPane.SetFocus(), mDialog.GetDlgItem(kName));
        EXPECT_EQ(gFocusName(), "p1");
    });
}

TEST_F(PaneFocusTest, APaneGivesItToWhoHadItLast)
{
    In([this] {
        mPane.GetDlgItem(2)->SetFocus();
        mDialog.GetDlgItem(kName)->SetFocus();
        EXPECT_EQ(mPane.GetLastFocus(), mPane.GetDlgItem(2));
        mPane.SetFocus();
        EXPECT_EQ(gFocusName(), "p2");
    });
}

TEST_F(PaneFocusTest, WhoHadItLastMayHaveGone)
{
    const std::function<void(CWnd&)> kWays[] = {
        [](CWnd& r) { r.EnableWindow(false); },
        [](CWnd& r) { r.ShowWindow(SW_HIDE); },
        [](CWnd& r) { r.DestroyWindow(); },
    };
    for (const auto& rWay : kWays) {
        In([&] {
            mPane.GetDlgItem(2)->SetFocus();
            mDialog.GetDlgItem(kName)->SetFocus();
            rWay(*mPane.GetDlgItem(2));
            mPane.SetFocus();
            EXPECT_EQ(gFocusName(), "p1");
        });
    }
}

TEST_F(PaneFocusTest, APaneWithoutTabStopsKeepsIt)
{
    In([this] {
        mLabels.SetFocus();
        EXPECT_EQ(CWnd::GetFocus(), &mLabels);
    });
}

TEST_F(PaneFocusTest, AHiddenPaneTakesNone)
{
    In([this] {
        EXPECT_EQ(mOther.SetFocus(), nullptr);
        EXPECT_EQ(mOther.GetDlgItem(1)->SetFocus(), nullptr);
        EXPECT_EQ(gFocusName(), "name");
    });
}

TEST_F(PaneFocusTest, HidingOrDisablingThePaneMovesItOutOfIt)
{
    const std::function<void(CWnd&)> kWays[] = {
        [](CWnd& r) { r.EnableWindow(false); },
        [](CWnd& r) { r.ShowWindow(SW_HIDE); },
    };
    for (const auto& rWay : kWays) {
        In([&] {
            mPane.GetDlgItem(2)->SetFocus();
            rWay(mPane);
            EXPECT_EQ(gFocusName(), "name");
            EXPECT_EQ(mPane.GetLastFocus(), mPane.GetDlgItem(2)) << "kept for its next display";
        });
    }
}

TEST_F(PaneFocusTest, TheLastControlOfAPaneThatGoesMovesItToTheDialog)
{
    In([this] {
        mPane.GetDlgItem(1)->SetFocus();
        mPane.GetDlgItem(3)->EnableWindow(false);
        mPane.GetDlgItem(2)->EnableWindow(false);
        mPane.GetDlgItem(1)->EnableWindow(false);
        EXPECT_EQ(gFocusName(), "name");
    });
}

// --- the first focus of a dialog

struct TFirst {
    const char* pName;
    std::vector<TControlRow> rows;
    const char* pExpected;
};

TEST(FirstFocusTest, IsTheFirstFieldElseAPushButton)
{
    const TControlRow kOk = Row(IDOK, "ok", EControl::DefaultButton, "OK", {});
    const TControlRow kPush = Row(8, "push", EControl::PushButton, "Push", {});
    const TControlRow kEdit = Row(9, "edit", EControl::Edit, "", {});
    const TFirst kCases[] = {
        {"a field behind buttons", {kOk, kPush, kEdit}, "edit"},
        {"a field in front", {kEdit, kOk}, "edit"},
        {"buttons only", {kPush, kOk}, "push"},
        {"a hidden field", {kOk, Row(9, "edit", EControl::Edit, "", {}, kHidden)}, "ok"},
        {"a disabled field",
         {kOk, Row(9, "edit", EControl::Edit, "", {}, kDisabled),
          Row(10, "list", EControl::ListBox, "", {})},
         "list"},
        {"a check box is a field", {kOk, Row(9, "check", EControl::CheckBox, "", {})}, "check"},
        {"a radio group without a mark",
         {kOk, Row(9, "level", EControl::RadioButton, "", {}, kDisabled),
          Row(10, "level", EControl::RadioButton, "", {})},
         "level#1"},
        {"labels and frames are none",
         {Row(7, "text", EControl::Static, "", {}), Row(6, "group", EControl::Group, "", {}), kOk},
         "ok"},
        {"nothing at all", {Row(7, "text", EControl::Static, "", {})}, "(dialog)"},
    };
    for (const TFirst& rCase : kCases) {
        SCOPED_TRACE(rCase.pName);
        const DialogTemplate sTemplate{"First", {50, 50}, rCase.rows};
        CLogDialog dialog(sTemplate);
        gLookInto(dialog, [&] { EXPECT_EQ(gFocusName(), rCase.pExpected); });
        EXPECT_EQ(CWnd::GetFocus(), nullptr);
    }
}

TEST(FirstFocusTest, IsTheDialogsOwnChoiceWhenItSaysSo)
{
    for (const bool bPlatform : {true, false}) {
        CSampleDialog dialog;
        dialog.AtInit([&] {
            dialog.GetDlgItem(kMemo)->SetFocus();
            return bPlatform;
        });
        gLookInto(dialog, [&] { EXPECT_EQ(gFocusName(), bPlatform ? "name" : "memo"); });
    }
}

TEST(FirstFocusTest, ADialogWithoutTabStopsTakesTheKeyboardFromItsOwner)
{
    HeadlessDesktop desktop;
    CSampleDialog outer;
    CLogDialog inner(kLabelTemplate);
    outer.React("press:clicked", [&] { inner.DoModal(); });
    gRunTurns(desktop, outer,
              {[](CDialog& r) { gAct(r, "click press"); },
               [&](CDialog& rInnermost) {
                   EXPECT_EQ(&rInnermost, &inner);
                   EXPECT_EQ(CWnd::GetFocus(), &inner);
                   inner.EndDialog(IDOK);
               },
               [](CDialog&) { EXPECT_EQ(gFocusName(), "press"); }});
}
} // namespace
