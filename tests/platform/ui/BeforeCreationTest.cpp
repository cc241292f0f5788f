#include "platform/ui/Button.h"
#include "platform/ui/ComboBox.h"
#include "platform/ui/Edit.h"
#include "platform/ui/ListBox.h"
#include "platform/ui/ListCtrl.h"
#include "platform/ui/SampleDialog.h"
#include "platform/ui/Static.h"
#include "platform/ui/TabCtrl.h"
#include "platform/ui/TreeCtrl.h"

#include <gtest/gtest.h>

namespace
{
/// Calls every setter that all windows have, and looks at every getter.
void CheckPlainWindow(CWnd& rWnd)
{
    rWnd.SetWindowText("text");
    rWnd.EnableWindow(false);
    EXPECT_FALSE(rWnd.ShowWindow(SW_SHOW));
    rWnd.MoveWindow({1, 2, 3, 4});
    rWnd.BringWindowToTop();
    rWnd.CheckRadioButton(1, 2, 1);
    EXPECT_EQ(rWnd.SetFocus(), nullptr);
    EXPECT_FALSE(rWnd.PostMessage(WM_APP));
    EXPECT_FALSE(rWnd.UpdateData(true));
    EXPECT_FALSE(rWnd.UpdateData(false));
    rWnd.DestroyWindow();

    EXPECT_FALSE(rWnd.IsCreated());
    EXPECT_EQ(rWnd.GetWindowText(), "");
    EXPECT_FALSE(rWnd.IsWindowEnabled());
    EXPECT_FALSE(rWnd.IsShown());
    EXPECT_FALSE(rWnd.IsWindowVisible());
    EXPECT_FALSE(rWnd.IsUsable());
    EXPECT_FALSE(rWnd.CanTakeFocus());
    EXPECT_EQ(rWnd.GetRect(), TRect{});
    EXPECT_EQ(rWnd.GetWindowRect(), TRect{});
    EXPECT_EQ(rWnd.GetParent(), nullptr);
    EXPECT_EQ(&rWnd.GetTopLevel(), &rWnd);
    EXPECT_TRUE(rWnd.GetChildren().empty());
    EXPECT_EQ(rWnd.GetDlgItem(0), nullptr);
    EXPECT_EQ(rWnd.GetDlgCtrlID(), 0);
    EXPECT_STREQ(rWnd.GetKey(), "");
    EXPECT_EQ(rWnd.GetCheckedRadioButton(0, 9999), 0);
    EXPECT_EQ(rWnd.GetLastFocus(), nullptr);
    EXPECT_EQ(CWnd::GetFocus(), nullptr);
    EXPECT_EQ(rWnd.WouldAcceptUser(), EUserResult::Blocked);
    EXPECT_EQ(rWnd.AcceptUser(), EUserResult::Blocked);
}

class BeforeCreationTest : public testing::Test
{
    HeadlessDesktop mDesktop;
};

TEST_F(BeforeCreationTest, PlainWindowsAndStatics)
{
    CWnd wnd;
    CheckPlainWindow(wnd);
    CStatic label;
    CheckPlainWindow(label);
    CSampleDialog dialog;
    CheckPlainWindow(dialog);
    dialog.EndDialog(IDOK);
    EXPECT_TRUE(dialog.HasEnded());
}

TEST_F(BeforeCreationTest, Edit)
{
    CEdit edit;
    CheckPlainWindow(edit);
    EXPECT_EQ(edit.UserType("x"), EUserResult::Blocked);
    EXPECT_FALSE(edit.IsMultiline());
}

TEST_F(BeforeCreationTest, Button)
{
    CButton button;
    button.SetCheck(1);
    CheckPlainWindow(button);
    EXPECT_EQ(button.GetCheck(), 0);
    EXPECT_EQ(button.UserClick(), EUserResult::Blocked);
    EXPECT_TRUE(button.GetRadioGroup().empty());
}

TEST_F(BeforeCreationTest, ComboBox)
{
    CComboBox combo;
    EXPECT_EQ(combo.AddString("a"), -1);
    EXPECT_EQ(combo.InsertString(0, "a"), -1);
    EXPECT_EQ(combo.SetCurSel(0), -1);
    combo.SelectText("a");
    combo.ResetContent();
    CheckPlainWindow(combo);
    EXPECT_EQ(combo.GetCount(), 0);
    EXPECT_EQ(combo.GetCurSel(), -1);
    EXPECT_EQ(combo.UserSelect(0), EUserResult::Blocked);
    EXPECT_EQ(combo.UserType("a"), EUserResult::Blocked);
}

TEST_F(BeforeCreationTest, ListBox)
{
    CListBox list;
    EXPECT_EQ(list.AddString("a"), -1);
    EXPECT_EQ(list.InsertString(0, "a"), -1);
    EXPECT_EQ(list.DeleteString(0), -1);
    EXPECT_EQ(list.SetCurSel(0), -1);
    list.ResetContent();
    CheckPlainWindow(list);
    EXPECT_EQ(list.GetCount(), 0);
    EXPECT_EQ(list.FindStringExact(-1, "a"), -1);
    EXPECT_EQ(list.UserSelect(-1), EUserResult::Blocked);
    EXPECT_EQ(list.UserDoubleClick(), EUserResult::Blocked);
}

TEST_F(BeforeCreationTest, Tree)
{
    CTreeCtrl tree;
    EXPECT_EQ(tree.InsertItem("a"), nullptr);
    tree.SelectItem(nullptr);
    tree.Expand(nullptr, true);
    tree.SetItemData(nullptr, 3);
    tree.DeleteAllItems();
    CheckPlainWindow(tree);
    EXPECT_EQ(tree.GetRootItem(), nullptr);
    EXPECT_EQ(tree.GetVisibleNeighbour(1), nullptr);
    EXPECT_EQ(tree.GetSelectedItem(), nullptr);
}

TEST_F(BeforeCreationTest, Table)
{
    CListCtrl table;
    EXPECT_EQ(table.InsertColumn(0, "a", 0, 10, -1), -1);
    EXPECT_EQ(table.InsertItem(0, "a"), -1);
    EXPECT_FALSE(table.SetItemText(0, 0, "a"));
    EXPECT_FALSE(table.SetItemData(0, 1));
    EXPECT_FALSE(table.SelectRow(0));
    table.SetColumnWidth(0, 5);
    table.SetExtendedStyle(LVS_EX_GRIDLINES);
    table.DeleteAllItems();
    CheckPlainWindow(table);
    EXPECT_EQ(table.GetExtendedStyle(), 0U);
    EXPECT_EQ(table.GetColumnCount(), 0);
    EXPECT_EQ(table.GetItemCount(), 0);
    EXPECT_EQ(table.GetSelectedRow(), -1);
    EXPECT_EQ(table.UserSelect(-1), EUserResult::Blocked);
}

TEST_F(BeforeCreationTest, Tabs)
{
    CTabCtrl tabs;
    EXPECT_EQ(tabs.AddItem("a"), -1);
    EXPECT_EQ(tabs.SetCurSel(0), -1);
    CheckPlainWindow(tabs);
    EXPECT_EQ(tabs.GetItemCount(), 0);
    EXPECT_EQ(tabs.GetCurSel(), -1);
    EXPECT_EQ(tabs.UserSelect(0), EUserResult::Blocked);
}

TEST(WithoutDesktopTest, WindowsCanBeMadeAndLookedAtButNotCreated)
{
    ASSERT_EQ(gFindDesktop(), nullptr);
    CSampleDialog dialog;
    EXPECT_EQ(CWnd::GetFocus(), nullptr);
    EXPECT_EQ(dialog.SetFocus(), nullptr);
    dialog.SetWindowText("x");
    EXPECT_THROW(dialog.DoModal(), std::logic_error);
    EXPECT_FALSE(dialog.IsCreated());
    EXPECT_THROW(gDesktop(), std::logic_error);
}
} // namespace
