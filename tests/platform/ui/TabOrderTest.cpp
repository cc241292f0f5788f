#include "platform/ui/TabOrder.h"

#include "platform/ui/Button.h"
#include "platform/ui/PropertyPage.h"
#include "platform/ui/SampleDialog.h"
#include "platform/ui/TemplateRows.h"

#include <gtest/gtest.h>

namespace
{
/// Where each of a row of keys leads to.
TLog Walk(CDialog& rDialog, const std::string& rsKey, std::size_t nTimes)
{
    TLog places;
    for (std::size_t n = 0; n < nTimes; ++n) {
        EXPECT_EQ(gAct(rDialog, "key " + rsKey), "");
        places.push_back(gFocusName());
    }
    return places;
}

TLog Reversed(TLog log)
{
    std::ranges::reverse(log);
    return log;
}

struct TRound {
    const char* pName;
    std::function<void(CSampleDialog&)> prepare;
    TLog round; ///< from the first focus on, round to it
};

void Hide(CSampleDialog& rDialog, std::initializer_list<int> ids)
{
    for (const int nId : ids)
        rDialog.GetDlgItem(nId)->ShowWindow(SW_HIDE);
}

const TRound kRounds[] = {
    {"all there is, a group without a mark at its first button",
     [](CSampleDialog&) {},
     {"notes", "memo", "fixed", "again", "level#0", "shape", "colour", "fruit", "places", "cells",
      "views", "press", "ok", "cancel", "name"}},
    {"a group at its checked button",
     [](CSampleDialog& r) {
         r.CheckRadioButton(kLow, kHigh, kHigh);
         Hide(r, {kShape, kColour, kFruit, kPlaces, kCells, kViews});
     },
     {"notes", "memo", "fixed", "again", "level#2", "press", "ok", "cancel", "name"}},
    {"hidden and disabled ones are passed by",
     [](CSampleDialog& r) {
         Hide(r, {kNotes, kShape, kColour, kFruit, kPlaces, kCells, kViews, IDCANCEL});
         r.GetDlgItem(kFixed)->EnableWindow(false);
         r.GetDlgItem(kLow)->EnableWindow(false);
     },
     {"memo", "again", "level#1", "press", "ok", "name"}},
    {"one tab stop is its own neighbour",
     [](CSampleDialog& r) {
         for (CWnd* pChild : r.GetChildren())
             pChild->EnableWindow(pChild->GetDlgCtrlID() == kName);
     },
     {"name"}},
};

TEST(TabOrderTest, TabGoesRoundInBothDirections)
{
    for (const TRound& rRound : kRounds) {
        SCOPED_TRACE(rRound.pName);
        CSampleDialog dialog;
        gLookInto(dialog, [&] {
            rRound.prepare(dialog);
            const std::size_t nCount = rRound.round.size();
            EXPECT_EQ(Walk(dialog, "tab", nCount), rRound.round);
            // Backwards the same places in reverse, to the same end.
            TLog back = Reversed(rRound.round);
            std::rotate(back.begin(), back.begin() + 1, back.end());
            EXPECT_EQ(Walk(dialog, "shift+tab", nCount), back);
        });
    }
}

TEST(TabOrderTest, LandingOnARadioButtonChecksNothing)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        gAct(dialog, "focus again");
        EXPECT_EQ(Walk(dialog, "tab", 1), TLog{"level#0"});
        EXPECT_EQ(dialog.GetCheckedRadioButton(kLow, kHigh), 0);
        EXPECT_EQ(dialog.TakeLog(), TLog{});
    });
}

TEST(TabOrderTest, WithoutAFocusTabStartsAtAnEnd)
{
    for (const auto& rCase : std::vector<std::pair<std::string, std::string>>{
             {"tab", "notes"}, {"shift+tab", "cancel"}}) {
        CSampleDialog dialog;
        gLookInto(dialog, [&] {
            dialog.GetDlgItem(kName)->DestroyWindow();
            EXPECT_EQ(gFocusName(), "(none)");
            EXPECT_EQ(Walk(dialog, rCase.first, 1), TLog{rCase.second});
        });
    }
}

TEST(TabOrderTest, NextDialogControlGoesRoundTheChildren)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        const auto send = [&](WPARAM wParam, LPARAM lParam) {
            dialog.SendMessage(WM_NEXTDLGCTL, wParam, lParam);
            return gFocusName();
        };
        EXPECT_EQ(send(0, 0), "notes");
        EXPECT_EQ(send(0, 0), "memo");
        EXPECT_EQ(send(1, 0), "notes");
        EXPECT_EQ(send(1, 0), "name");
        EXPECT_EQ(send(1, 0), "cancel");
        EXPECT_EQ(send(0, 0), "name");
        EXPECT_EQ(send(0, 1), "name") << "naming the control isn't served";
    });
}

TEST(TabOrderTest, OtherKeysDownMoveNothing)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        dialog.SendMessage(WM_KEYDOWN, 'A', 0);
        EXPECT_EQ(gFocusName(), "name");
    });
}

// --- panes

constexpr auto kOuterRows =
    JoinRows(Row(1, "before", EControl::Edit, "", {}), Row(2, "after", EControl::Edit, "", {}));
constexpr DialogTemplate kOuterTemplate{"Outer", {60, 60}, kOuterRows};
constexpr auto kPaneRows =
    JoinRows(Row(1, "p1", EControl::Edit, "", {}), Row(2, "p2", EControl::Edit, "", {}),
             Row(3, "p3", EControl::Edit, "", {}));
constexpr DialogTemplate kPaneTemplate{"Pane", {60, 60}, kPaneRows};
constexpr DialogTemplate kEmptyTemplate{"Empty", {60, 60}, {}};

/// A dialog with the controls "before" and "after" and, behind them, a pane.
struct TWithPane {
    CLogDialog mDialog{kOuterTemplate};
    CPropertyPage mPane{kPaneTemplate};

    void In(const std::function<void()>& rLook)
    {
        gLookInto(mDialog, [&] {
            ASSERT_TRUE(mPane.CreatePane(mDialog));
            mPane.ShowWindow(SW_SHOW);
            rLook();
        });
    }
};

TEST(TabThroughPaneTest, GoesThroughThePaneAndOn)
{
    TWithPane window;
    window.In([&] {
        EXPECT_EQ(gFocusName(), "before");
        EXPECT_EQ(Walk(window.mDialog, "tab", 5), (TLog{"after", "p1", "p2", "p3", "before"}));
    });
}

TEST(TabThroughPaneTest, GoesOutOfThePaneAtItsFirstControl)
{
    TWithPane window;
    window.In([&] {
        window.mPane.GetDlgItem(2)->SetFocus();
        EXPECT_EQ(Walk(window.mDialog, "shift+tab", 3), (TLog{"p1", "after", "before"}));
    });
}

TEST(TabThroughPaneTest, EntersThePaneWhereItWasLeft)
{
    TWithPane window;
    window.In([&] {
        window.mPane.GetDlgItem(2)->SetFocus();
        window.mDialog.GetDlgItem(2)->SetFocus();
        EXPECT_EQ(Walk(window.mDialog, "tab", 3), (TLog{"p2", "p3", "before"}));
    });
}

TEST(TabThroughPaneTest, APaneAloneIsGoneRound)
{
    CLogDialog dialog(kEmptyTemplate);
    CPropertyPage pane(kPaneTemplate);
    gLookInto(dialog, [&] {
        ASSERT_TRUE(pane.CreatePane(dialog));
        pane.ShowWindow(SW_SHOW);
        pane.SetFocus();
        EXPECT_EQ(gFocusName(), "p1");
        EXPECT_EQ(Walk(dialog, "tab", 4), (TLog{"p2", "p3", "p1", "p2"}));
        EXPECT_EQ(Walk(dialog, "shift+tab", 3), (TLog{"p1", "p3", "p2"}));
    });
}

TEST(TabThroughPaneTest, APaneInAPaneIsGoneThroughToo)
{
    CLogDialog dialog(kEmptyTemplate);
    CPropertyPage middle(kOuterTemplate);
    CPropertyPage inner(kPaneTemplate);
    gLookInto(dialog, [&] {
        ASSERT_TRUE(middle.CreatePane(dialog));
        ASSERT_TRUE(inner.CreatePane(middle));
        middle.ShowWindow(SW_SHOW);
        inner.ShowWindow(SW_SHOW);
        middle.SetFocus();
        EXPECT_EQ(gFocusName(), "before");
        EXPECT_EQ(Walk(dialog, "tab", 5), (TLog{"after", "p1", "p2", "p3", "before"}));
        for (const int nId : {1, 2})
            middle.GetDlgItem(nId)->EnableWindow(false);
        EXPECT_EQ(gFocusName(), "p3") << "where the inner pane was left";
        EXPECT_EQ(Walk(dialog, "tab", 3), (TLog{"p1", "p2", "p3"}));
        EXPECT_EQ(Walk(dialog, "shift+tab", 3), (TLog{"p2", "p1", "p3"}));
    });
}

TEST(TabThroughPaneTest, HiddenAndEmptyPanesArePassedBy)
{
    TWithPane window;
    CPropertyPage empty(kEmptyTemplate);
    window.In([&] {
        empty.CreatePane(window.mDialog);
        empty.ShowWindow(SW_SHOW);
        window.mPane.ShowWindow(SW_HIDE);
        EXPECT_EQ(Walk(window.mDialog, "tab", 3), (TLog{"after", "before", "after"}));
    });
}

TEST(TabThroughPaneTest, InsideThePaneNextDialogControlGoesRound)
{
    TWithPane window;
    window.In([&] {
        window.mPane.SetFocus();
        TLog places;
        for (const WPARAM nBack : {0U, 0U, 0U, 1U, 1U}) {
            window.mPane.SendMessage(WM_NEXTDLGCTL, nBack);
            places.push_back(gFocusName());
        }
        EXPECT_EQ(places, (TLog{"p2", "p3", "p1", "p3", "p2"}));
    });
}

TEST(TabThroughPaneTest, APaneBroughtToTopComesFirst)
{
    TWithPane window;
    window.In([&] {
        window.mPane.BringWindowToTop();
        EXPECT_EQ(window.mDialog.GetChildren().front(), &window.mPane);
        EXPECT_EQ(Walk(window.mDialog, "tab", 5), (TLog{"after", "p1", "p2", "p3", "before"}));
        EXPECT_EQ(gNextTabStop(window.mDialog, nullptr, ETabDirection::Forward), &window.mPane);
    });
}
} // namespace
