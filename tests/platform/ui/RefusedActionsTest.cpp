#include "platform/ui/Button.h"
#include "platform/ui/ComboBox.h"
#include "platform/ui/Edit.h"
#include "platform/ui/FileDialog.h"
#include "platform/ui/ListBox.h"
#include "platform/ui/ListCtrl.h"
#include "platform/ui/PropertyPage.h"
#include "platform/ui/SampleDialog.h"
#include "platform/ui/TabCtrl.h"
#include "platform/ui/TreeCtrl.h"

#include <gtest/gtest.h>

// A user can't act on what is disabled, hidden or behind something. A refused action changes
// nothing, tells nobody and leaves the focus where it is.

namespace
{
/// One action on each kind of control.
struct TTarget {
    int nId;
    const char* pAction;
};
constexpr TTarget kTargets[] = {
    {kNotes, "set notes=x"},        {kNotes, "focus notes"},        {kColour, "set colour=x"},
    {kColour, "select colour=1"},   {kShape, "select shape=1"},     {kShape, "entry shape=star"},
    {kShape, "move shape=1"},       {kFruit, "select fruit=1"},     {kFruit, "select fruit=-1"},
    {kFruit, "double-click fruit"}, {kPlaces, "path places=C/C1"},  {kPlaces, "expand places=A"},
    {kCells, "select cells=1"},     {kCells, "double-click cells"}, {kViews, "select views=1"},
    {kPress, "click press"},        {kAgain, "click again"},        {kAgain, "check again=1"},
    {kAgain, "check again=0"},      {kLow, "choose level=0"},
};

/// All that an action could change.
std::string StateOf(const CSampleDialog& rDialog)
{
    std::string sState = "focus " + gFocusName();
    for (const CWnd* pChild : rDialog.GetChildren()) {
        sState += '|' + gControlPlace(*pChild) + ' ' + pChild->GetWindowText().GetString();
        if (const auto* p = dynamic_cast<const CButton*>(pChild))
            sState += std::to_string(p->GetCheck());
        if (const auto* p = dynamic_cast<const CComboBox*>(pChild))
            sState += std::to_string(p->GetCurSel());
        if (const auto* p = dynamic_cast<const CListBox*>(pChild))
            sState += std::to_string(p->GetCurSel());
        if (const auto* p = dynamic_cast<const CListCtrl*>(pChild))
            sState += std::to_string(p->GetSelectedRow());
        if (const auto* p = dynamic_cast<const CTabCtrl*>(pChild))
            sState += std::to_string(p->GetCurSel());
        if (const auto* p = dynamic_cast<const CTreeCtrl*>(pChild)) {
            sState += p->GetItemText(p->GetSelectedItem()).GetString();
            sState += p->IsExpanded(p->GetRootItem()) ? '+' : '-';
        }
    }
    return sState;
}

void ExpectRefused(CSampleDialog& rDialog, const TTarget& rTarget, const std::string& rsReason)
{
    SCOPED_TRACE(rTarget.pAction);
    rDialog.TakeLog();
    rDialog.LogFocus();
    const std::string sBefore = StateOf(rDialog);
    EXPECT_EQ(gAct(rDialog, rTarget.pAction), rsReason);
    EXPECT_EQ(StateOf(rDialog), sBefore);
    EXPECT_EQ(rDialog.TakeLog(), TLog{});
}

struct TObstacle {
    const char* pName;
    const char* pReason;
    std::function<void(CSampleDialog&, CWnd&)> place;
};

TEST(RefusedActionsTest, DisabledAndHidden)
{
    const TObstacle kObstacles[] = {
        {"disabled", "disabled", [](CSampleDialog&, CWnd& r) { r.EnableWindow(false); }},
        {"hidden", "hidden", [](CSampleDialog&, CWnd& r) { r.ShowWindow(SW_HIDE); }},
        {"both", "hidden",
         [](CSampleDialog&, CWnd& r) {
             r.ShowWindow(SW_HIDE);
             r.EnableWindow(false);
         }},
        {"disabled dialog", "disabled", [](CSampleDialog& r, CWnd&) { r.EnableWindow(false); }},
        {"hidden dialog", "hidden", [](CSampleDialog& r, CWnd&) { r.ShowWindow(SW_HIDE); }},
    };
    for (const TObstacle& rObstacle : kObstacles) {
        SCOPED_TRACE(rObstacle.pName);
        for (const TTarget& rTarget : kTargets) {
            CSampleDialog dialog;
            gLookInto(dialog, [&] {
                dialog.Get<CListBox>(kFruit).SetCurSel(0);
                dialog.Get<CListCtrl>(kCells).SelectRow(0);
                rObstacle.place(dialog, *dialog.GetDlgItem(rTarget.nId));
                ExpectRefused(dialog, rTarget, rObstacle.pReason);
            });
        }
    }
}

TEST(RefusedActionsTest, BehindAModalDialog)
{
    HeadlessDesktop desktop;
    CSampleDialog outer;
    CSampleDialog inner;
    outer.React("press:clicked", [&] { inner.DoModal(); });
    gRunTurns(desktop, outer,
              {[](CDialog& r) { gAct(r, "click press"); },
               [&](CDialog& rInnermost) {
                   EXPECT_EQ(&rInnermost, &inner);
                   for (const TTarget& rTarget : kTargets)
                       ExpectRefused(outer, rTarget, "blocked");
                   EXPECT_EQ(gAct(inner, "set name=x"), "");
               },
               [&](CDialog&) {}, [&](CDialog&) { inner.EndDialog(IDOK); },
               [&](CDialog& rInnermost) {
                   EXPECT_EQ(&rInnermost, &outer);
                   EXPECT_EQ(gAct(outer, "set name=x"), "");
               }});
}

/// A desktop that acts while a box or a file dialog is open.
class CBusyDesktop : public HeadlessDesktop
{
public:
    std::function<void()> mWhileOpen;
    int ShowMessageBox(const TMessageBox& rBox) override
    {
        mWhileOpen();
        return HeadlessDesktop::ShowMessageBox(rBox);
    }
    TFileChoice ChooseFile(const TFileDialog& rDialog) override
    {
        mWhileOpen();
        return HeadlessDesktop::ChooseFile(rDialog);
    }
};

TEST(RefusedActionsTest, WhileABoxIsOpen)
{
    const std::function<void(CWnd&)> kBoxes[] = {
        [](CWnd&) { AfxMessageBox("box"); },
        [](CWnd& r) { r.MessageBox("box", "caption", MB_OK); },
        [](CWnd&) { gChooseFile({}); },
    };
    for (const auto& rBox : kBoxes) {
        CBusyDesktop desktop;
        CSampleDialog dialog;
        int nOpened = 0;
        desktop.mWhileOpen = [&] {
            ++nOpened;
            for (const TTarget& rTarget : kTargets)
                ExpectRefused(dialog, rTarget, "blocked");
            for (const char* pKey : {"enter", "escape", "tab", "space", "down", "alt+p"})
                ExpectRefused(dialog, {0, (std::string("key ") + pKey).c_str()}, "blocked");
        };
        dialog.React("press:clicked", [&] { rBox(dialog); });
        gRunTurns(desktop, dialog,
                  {[](CDialog& r) { EXPECT_EQ(gAct(r, "click press"), ""); },
                   [](CDialog& r) { EXPECT_EQ(gAct(r, "set name=x"), ""); }});
        EXPECT_EQ(nOpened, 1);
    }
}

TEST(RefusedActionsTest, ABoxThatThrowsIsClosed)
{
    CBusyDesktop desktop;
    CSampleDialog dialog;
    desktop.mWhileOpen = [] { throw std::runtime_error("box"); };
    gRunTurns(desktop, dialog, {[](CDialog& r) {
                  EXPECT_THROW(AfxMessageBox("x"), std::runtime_error);
                  EXPECT_THROW(gChooseFile({}), std::runtime_error);
                  EXPECT_EQ(gAct(r, "set name=x"), "");
              }});
}

TEST(RefusedActionsTest, InAPaneThatIsHiddenOrDisabled)
{
    CSampleDialog dialog;
    CSampleDialog pane;
    gLookInto(dialog, [&] {
        ASSERT_TRUE(pane.CreatePane(dialog));
        auto& rEdit = pane.Get<CEdit>(kName);
        EXPECT_EQ(rEdit.UserType("x"), EUserResult::Hidden);
        pane.ShowWindow(SW_SHOW);
        EXPECT_EQ(rEdit.UserType("x"), EUserResult::Done);
        pane.EnableWindow(false);
        EXPECT_EQ(rEdit.UserType("y"), EUserResult::Disabled);
        EXPECT_EQ(rEdit.GetWindowText(), "x");
        EXPECT_EQ(gFocusName(), "name");
        EXPECT_EQ(CWnd::GetFocus()->GetParent(), &dialog);
    });
}

TEST(RefusedActionsTest, WhenTheFocusChangeClosesTheWay)
{
    // The handler of the loser disables where the user was going.
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        dialog.LogFocus();
        dialog.React("name:kill-focus", [&] { dialog.GetDlgItem(kPress)->EnableWindow(false); });
        EXPECT_EQ(gAct(dialog, "click press"), "disabled");
        const TLog log = dialog.TakeLog();
        EXPECT_EQ(std::ranges::count(log, "press:clicked"), 0);
    });
}

TEST(RefusedActionsTest, WhenTheFocusChangeTakesTheEntryAway)
{
    struct TCase {
        const char* pAction;
        std::function<void(CSampleDialog&)> empty;
    };
    const TCase kCases[] = {
        {"select shape=1", [](CSampleDialog& r) { r.Get<CComboBox>(kShape).ResetContent(); }},
        {"move shape=1", [](CSampleDialog& r) { r.Get<CComboBox>(kShape).ResetContent(); }},
        {"select fruit=1", [](CSampleDialog& r) { r.Get<CListBox>(kFruit).ResetContent(); }},
        {"double-click fruit", [](CSampleDialog& r) { r.Get<CListBox>(kFruit).SetCurSel(-1); }},
        {"select cells=1", [](CSampleDialog& r) { r.Get<CListCtrl>(kCells).DeleteAllItems(); }},
        {"double-click cells", [](CSampleDialog& r) { r.Get<CListCtrl>(kCells).DeleteAllItems(); }},
        {"path places=C/C1", [](CSampleDialog& r) { r.Get<CTreeCtrl>(kPlaces).DeleteAllItems(); }},
        {"expand places=C", [](CSampleDialog& r) { r.Get<CTreeCtrl>(kPlaces).DeleteAllItems(); }},
    };
    for (const TCase& rCase : kCases) {
        SCOPED_TRACE(rCase.pAction);
        CSampleDialog dialog;
        gLookInto(dialog, [&] {
            dialog.Get<CListBox>(kFruit).SetCurSel(0);
            dialog.Get<CListCtrl>(kCells).SelectRow(0);
            dialog.LogFocus();
            dialog.React("name:kill-focus", [&] {
                rCase.empty(dialog);
                dialog.TakeLog();
            });
            const std::string sReason = gAct(dialog, rCase.pAction);
            EXPECT_TRUE(sReason == "invalid" || sReason == "unknown entry") << sReason;
            EXPECT_EQ(dialog.TakeLog().size(), 1U) << "the focus only";
        });
    }
}

TEST(RefusedActionsTest, AnAcceptedActionBringsTheFocusFirst)
{
    for (const TTarget& rTarget : kTargets) {
        SCOPED_TRACE(rTarget.pAction);
        CSampleDialog dialog;
        gLookInto(dialog, [&] {
            dialog.Get<CListBox>(kFruit).SetCurSel(0);
            dialog.Get<CListCtrl>(kCells).SelectRow(0);
            dialog.TakeLog();
            dialog.LogFocus();
            EXPECT_EQ(gAct(dialog, rTarget.pAction), "");
            EXPECT_EQ(CWnd::GetFocus(), dialog.GetDlgItem(rTarget.nId));
            const TLog log = dialog.TakeLog();
            ASSERT_GE(log.size(), 2U);
            EXPECT_EQ(log[0], "name:kill-focus");
            EXPECT_EQ(log[1], gControlPlace(*dialog.GetDlgItem(rTarget.nId)) + ":set-focus");
        });
    }
}

TEST(RefusedActionsTest, EveryReasonHasAText)
{
    EXPECT_EQ(gUserResultText(EUserResult::Done), "");
    EXPECT_EQ(gUserResultText(EUserResult::Disabled), "is disabled");
    EXPECT_EQ(gUserResultText(EUserResult::Hidden), "is hidden");
    EXPECT_EQ(gUserResultText(EUserResult::Blocked), "is behind another dialog");
    EXPECT_EQ(gUserResultText(EUserResult::ReadOnly), "is read-only");
    EXPECT_EQ(gUserResultText(EUserResult::Invalid), "can't take that value");
    EXPECT_EQ(gUserResultText(EUserResult::Ignored), "doesn't react to that");
}
} // namespace
