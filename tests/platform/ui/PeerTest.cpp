#include "platform/ui/Button.h"
#include "platform/ui/ComboBox.h"
#include "platform/ui/Edit.h"
#include "platform/ui/ListBox.h"
#include "platform/ui/ListCtrl.h"
#include "platform/ui/RecordingDesktop.h"
#include "platform/ui/SampleDialog.h"
#include "platform/ui/TabCtrl.h"
#include "platform/ui/TreeCtrl.h"

#include <gtest/gtest.h>

// A setter announces an aspect to the peer, never a value.

namespace
{
struct TCase {
    const char* pName;
    std::function<void(CSampleDialog&)> act;
    TLog expected;
};

void Check(const TCase& rCase)
{
    SCOPED_TRACE(rCase.pName);
    TLog log;
    CRecordingDesktop desktop(log);
    CSampleDialog dialog;
    gRunTurns(desktop, dialog, {[&](CDialog&) {
                  log.clear();
                  rCase.act(dialog);
                  EXPECT_EQ(log, rCase.expected);
              }});
}

TEST(PeerTest, CommonSettersAnnounceAChangeOnly)
{
    const TCase kCases[] = {
        {"enable",
         [](CSampleDialog& r) {
             CWnd& rPress = *r.GetDlgItem(kPress);
             for (const bool bOn : {true, false, false, true, true})
                 rPress.EnableWindow(bOn);
         },
         {"press enabled", "press enabled"}},
        {"show",
         [](CSampleDialog& r) {
             CWnd& rPress = *r.GetDlgItem(kPress);
             for (const int nShow : {SW_SHOW, SW_HIDE, SW_HIDE, SW_SHOW, SW_SHOW})
                 rPress.ShowWindow(nShow);
         },
         {"press visible", "press visible"}},
        {"move",
         [](CSampleDialog& r) {
             CWnd& rPress = *r.GetDlgItem(kPress);
             rPress.MoveWindow(rPress.GetRect());
             rPress.MoveWindow({1, 2, 3, 4});
             rPress.MoveWindow({1, 2, 3, 4});
         },
         {"press place"}},
        {"bring to top",
         [](CSampleDialog& r) {
             r.GetDlgItem(kPress)->BringWindowToTop();
             r.GetDlgItem(kPress)->BringWindowToTop();
         },
         {"press place"}},
        {"text",
         [](CSampleDialog& r) {
             for (const char* pText : {"x", "x", "y"})
                 r.GetDlgItem(kPress)->SetWindowText(pText);
         },
         {"press text", "press text"}},
        {"text of an edit",
         [](CSampleDialog& r) {
             for (const char* pText : {"", "x", "x"})
                 r.GetDlgItem(kName)->SetWindowText(pText);
         },
         {"name text"}},
        {"check",
         [](CSampleDialog& r) {
             for (const int nCheck : {0, 1, 1, 0})
                 r.Get<CButton>(kAgain).SetCheck(nCheck);
         },
         {"again check", "again check"}},
        {"radio group: only those that change",
         [](CSampleDialog& r) {
             r.CheckRadioButton(kLow, kHigh, kLow);
             r.CheckRadioButton(kLow, kHigh, kLow);
             r.CheckRadioButton(kLow, kHigh, kHigh);
         },
         {"level#0 check", "level#0 check", "level#2 check"}},
        {"focus",
         [](CSampleDialog& r) {
             r.GetDlgItem(kNotes)->SetFocus();
             r.GetDlgItem(kNotes)->SetFocus();
         },
         {"notes focus"}},
        {"focus that moves on",
         [](CSampleDialog& r) { r.GetDlgItem(kName)->EnableWindow(false); },
         {"name enabled", "notes focus"}},
    };
    for (const TCase& rCase : kCases)
        Check(rCase);
}

TEST(PeerTest, ListsAnnounceEntriesAndSelection)
{
    const TCase kCases[] = {
        {"combo entry",
         [](CSampleDialog& r) { r.Get<CComboBox>(kShape).AddString("x"); },
         {"shape items"}},
        {"combo selection",
         [](CSampleDialog& r) { r.Get<CComboBox>(kShape).SetCurSel(1); },
         {"shape text", "shape selection"}},
        {"combo reset",
         [](CSampleDialog& r) { r.Get<CComboBox>(kShape).ResetContent(); },
         {"shape items"}},
        {"list entry",
         [](CSampleDialog& r) { r.Get<CListBox>(kFruit).InsertString(0, "x"); },
         {"fruit items"}},
        {"no list entry", [](CSampleDialog& r) { r.Get<CListBox>(kFruit).DeleteString(9); }, {}},
        {"list selection",
         [](CSampleDialog& r) { r.Get<CListBox>(kFruit).SetCurSel(1); },
         {"fruit selection"}},
        {"tab", [](CSampleDialog& r) { r.Get<CTabCtrl>(kViews).AddItem("x"); }, {"views items"}},
        {"tab selection",
         [](CSampleDialog& r) { r.Get<CTabCtrl>(kViews).SetCurSel(1); },
         {"views selection"}},
        {"node",
         [](CSampleDialog& r) { r.Get<CTreeCtrl>(kPlaces).InsertItem("x"); },
         {"places items"}},
        {"node selection opens",
         [](CSampleDialog& r) {
             auto& rTree = r.Get<CTreeCtrl>(kPlaces);
             rTree.SelectItem(rTree.GetChildItem(rTree.GetRootItem()));
             rTree.Expand(rTree.GetRootItem(), true);
         },
         {"places expansion", "places selection"}},
        {"cells and rows",
         [](CSampleDialog& r) {
             auto& rTable = r.Get<CListCtrl>(kCells);
             rTable.SetItemText(0, 1, "1");
             rTable.InsertItem(0, "w");
             rTable.SelectRow(1);
             rTable.SelectRow(1);
             rTable.SetColumnWidth(0, 9);
         },
         {"cells items", "cells items", "cells selection", "cells place"}},
    };
    for (const TCase& rCase : kCases)
        Check(rCase);
}

TEST(PeerTest, TheUsersActionsAnnounceTheSame)
{
    const TCase kCases[] = {
        {"typing", [](CSampleDialog& r) { gAct(r, "set name=x"); }, {"name text"}},
        {"typing the same", [](CSampleDialog& r) { gAct(r, "set name="); }, {}},
        {"refused", [](CSampleDialog& r) { gAct(r, "set fixed=x"); }, {}},
        {"choosing",
         [](CSampleDialog& r) { gAct(r, "choose level=1"); },
         {"level#1 focus", "level#1 check"}},
        {"toggling",
         [](CSampleDialog& r) { gAct(r, "click again"); },
         {"again focus", "again check"}},
    };
    for (const TCase& rCase : kCases)
        Check(rCase);
}

TEST(PeerTest, APeerIsMadeParentFirstAndSeesItsWindowWhole)
{
    class CCheckingDesktop : public HeadlessDesktop
    {
    public:
        int mnMade = 0;
        std::unique_ptr<IWindowPeer> MakePeer(CWnd& rWnd) override
        {
            ++mnMade;
            EXPECT_TRUE(rWnd.IsCreated());
            if (rWnd.GetDlgCtrlID() == kShape) {
                EXPECT_EQ(dynamic_cast<CComboBox&>(rWnd).GetCount(), 3);
                EXPECT_TRUE(rWnd.IsShown());
                EXPECT_EQ(rWnd.GetRect(), (TRect{70, 50, 60, 13}));
                EXPECT_EQ(rWnd.GetKind(), EControl::DropDownList);
            }
            if (!rWnd.GetParent()) {
                EXPECT_EQ(rWnd.GetWindowText(), "Sample");
                EXPECT_TRUE(rWnd.GetChildren().empty());
            }
            return nullptr;
        }
    } desktop;
    CSampleDialog dialog;
    gRunTurns(desktop, dialog, {});
    EXPECT_EQ(desktop.mnMade, 1 + static_cast<int>(kSampleTemplate.rows.size()));
}

TEST(PeerTest, APlainWindowGetsOneToo)
{
    TLog log;
    CRecordingDesktop desktop(log);
    CSampleDialog dialog;
    CWnd plain;
    gRunTurns(desktop, dialog, {[&](CDialog&) {
                  log.clear();
                  plain.Create(nullptr, "title", WS_CHILD | WS_VISIBLE, {}, &dialog, 77);
                  plain.DestroyWindow();
                  plain.SetWindowText("x");
                  EXPECT_EQ(log, (TLog{"+(dialog)", "-(dialog)"}));
              }});
}
} // namespace
