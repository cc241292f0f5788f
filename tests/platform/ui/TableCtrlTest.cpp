#include "platform/ui/TableCtrl.h"

#include "platform/ui/DataExchange.h"
#include "platform/ui/LogDialog.h"
#include "platform/ui/TemplateRows.h"
#include "support/VirtualSlot.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

// Tables that show borrowed rows, and the grid's operations.

namespace
{
enum EId { kGrid = 10 };
constexpr auto kRows =
    JoinRows(Row(kGrid, "grid", EControl::Table, "", {5, 5, 90, 50}),
             Row(IDCANCEL, "cancel", EControl::PushButton, "Cancel", {5, 60, 50, 14}));
constexpr DialogTemplate kTemplate{"Grid", {100, 80}, kRows};

/// Three rows whose cells say where they are.
TListRows Places()
{
    return {3,
            [](int nRow, int nColumn) {
                return CString(std::to_string(nRow) + '/' + std::to_string(nColumn));
            },
            [](int nRow) { return std::intptr_t{100} + nRow; }};
}

class CGrid : public CTableCtrl
{
public:
    int mnChanges = 0;
    void AfterSelectionChanged() override { ++mnChanges; }
};

class CGridDialog : public CLogDialog
{
public:
    CGridDialog() : CLogDialog(kTemplate)
    {
        Exchange([this](CDataExchange* pDX) { DDX_Control(pDX, kGrid, mGrid); });
        AtInit([this] {
            mGrid.InsertColumn(0, "A", 0, 100, -1);
            mGrid.InsertColumn(1, "B", 0, 100, -1);
            return true;
        });
    }
    CGrid mGrid;
};

class TableCtrlTest : public testing::Test
{
protected:
    void In(const std::function<void(CGrid&)>& rLook)
    {
        gLookInto(mDialog, [&] { rLook(mDialog.mGrid); });
    }
    CGridDialog mDialog;
};

TEST_F(TableCtrlTest, ShowsRowsThatItDoesntKeep)
{
    mDialog.mGrid.ShowRows(Places());
    EXPECT_EQ(mDialog.mGrid.GetItemCount(), 0) << "no window yet";
    In([](CGrid& rGrid) {
        rGrid.InsertItem(0, "own");
        rGrid.SelectRow(0);
        rGrid.ShowRows(Places());
        EXPECT_EQ(rGrid.GetItemCount(), 3) << "its own rows are gone";
        EXPECT_EQ(rGrid.GetSelectedRow(), -1);
        EXPECT_EQ(rGrid.GetItemText(2, 1), "2/1");
        EXPECT_EQ(rGrid.GetItemData(2), 102);
        for (const auto& [nRow, nColumn] :
             std::vector<std::pair<int, int>>{{3, 0}, {-1, 0}, {0, 2}, {0, -1}})
            EXPECT_EQ(rGrid.GetItemText(nRow, nColumn), "");
        EXPECT_EQ(rGrid.GetItemData(3), 0);
        EXPECT_EQ(rGrid.GetItemData(-1), 0);
    });
    EXPECT_EQ(mDialog.mGrid.GetItemCount(), 0) << "the window has ended";
}

TEST_F(TableCtrlTest, BorrowedRowsAreNotWritten)
{
    In([](CGrid& rGrid) {
        rGrid.ShowRows(Places());
        EXPECT_EQ(rGrid.InsertItem(0, "more"), -1);
        EXPECT_FALSE(rGrid.SetItemText(0, 0, "other"));
        EXPECT_FALSE(rGrid.SetItemData(0, 7));
        EXPECT_FALSE(rGrid.OnCommitCell(0, 0, "other"));
        EXPECT_EQ(rGrid.GetItemText(0, 0), "0/0");
        rGrid.DeleteAllItems();
        EXPECT_EQ(rGrid.GetItemCount(), 0);
        EXPECT_EQ(rGrid.InsertItem(0, "own"), 0);
        EXPECT_EQ(rGrid.GetItemText(0, 0), "own");
    });
}

TEST_F(TableCtrlTest, TheUserSelectsAmongThem)
{
    In([this](CGrid& rGrid) {
        rGrid.ShowRows(Places());
        EXPECT_EQ(gAct(mDialog, "select grid=2"), "");
        EXPECT_EQ(rGrid.GetSelectedRow(), 2);
        EXPECT_EQ(gAct(mDialog, "select grid=3"), "unknown entry");
        EXPECT_EQ(rGrid.mnChanges, 1);
        EXPECT_EQ(mDialog.TakeLog(), (TLog{"grid:sel-change"}));
    });
}

TEST_F(TableCtrlTest, TheUserDrawsAColumn)
{
    In([](CGrid& rGrid) {
        EXPECT_EQ(rGrid.UserSizeColumn(1, 77), EUserResult::Done);
        EXPECT_EQ(rGrid.GetColumns()[1].nWidth, 77);
        EXPECT_EQ(rGrid.UserSizeColumn(2, 77), EUserResult::Invalid);
        EXPECT_EQ(rGrid.UserSizeColumn(0, -1), EUserResult::Invalid);
        EXPECT_EQ(rGrid.GetColumns()[0].nWidth, 100);
    });
}

TEST_F(TableCtrlTest, TheBaseLetsEverythingBeSelectedAndEdited)
{
    In([](CGrid& rGrid) {
        rGrid.InsertItem(0, "a");
        EXPECT_FALSE(rGrid.SelectsWholeRows());
        EXPECT_TRUE(rGrid.IsCellEditable(0, 1));
        EXPECT_TRUE(rGrid.IsCellSelectable(0, 1));
        EXPECT_EQ(rGrid.GetCellColor(0, 0, false, false), CLR_DEFAULT);
        EXPECT_EQ(rGrid.DrawItem(0, 0, true, true).sText, "a");
        EXPECT_EQ(rGrid.DrawItem(0, 0, true, true).nColor, CLR_DEFAULT);
        EXPECT_TRUE(rGrid.OnCommitCell(0, 1, "b"));
        EXPECT_EQ(rGrid.GetItemText(0, 1), "b");
        EXPECT_FALSE(rGrid.OnCommitCell(1, 0, "b")) << "no such row";
    });
}

TEST_F(TableCtrlTest, ACellThatCanBeSelectedSelectsItsRow)
{
    In([](CGrid& rGrid) {
        EXPECT_FALSE(rGrid.SelectCell(0, 0)) << "no row yet";
        rGrid.InsertItem(0, "a");
        rGrid.InsertItem(1, "b");
        EXPECT_TRUE(rGrid.SelectCell(1, 1));
        EXPECT_EQ(rGrid.GetSelectedRow(), 1);
        EXPECT_TRUE(rGrid.SelectCell(1, 0));
        EXPECT_EQ(rGrid.mnChanges, 1) << "the same row";
        EXPECT_FALSE(rGrid.SelectCell(0, 2));
        EXPECT_FALSE(rGrid.SelectCell(-1, 0));
        EXPECT_EQ(rGrid.GetSelectedRow(), 1);
    });
}

TEST_F(TableCtrlTest, CancelGivesAnEditUp)
{
    In([this](CGrid& rGrid) {
        EXPECT_TRUE(rGrid.IsCancelControl(mDialog.GetDlgItem(IDCANCEL)));
        EXPECT_FALSE(rGrid.IsCancelControl(&rGrid));
        EXPECT_FALSE(rGrid.IsCancelControl(nullptr));
    });
}

TEST(TableCtrlSlots, FollowEachOtherBehindThoseOfTheList)
{
    const std::size_t nFirst = gVirtualSlot(&CTableCtrl::DrawItem);
    EXPECT_EQ(gVirtualSlot(&CTableCtrl::GetCellColor), nFirst + 1);
    EXPECT_EQ(gVirtualSlot(&CTableCtrl::IsCellEditable), nFirst + 2);
    EXPECT_EQ(gVirtualSlot(&CTableCtrl::IsCellSelectable), nFirst + 3);
    EXPECT_EQ(gVirtualSlot(&CTableCtrl::OnCommitCell), nFirst + 4);
    EXPECT_EQ(gVirtualSlot(&CTableCtrl::IsCancelControl), nFirst + 5);
    EXPECT_EQ(gVirtualSlot(&CTableCtrl::AfterSelectionChanged), nFirst + 6);
    struct TExposed : CListCtrl {
        using CListCtrl::OnSelectionChanged;
    };
    EXPECT_GT(nFirst, gVirtualSlot(&TExposed::OnSelectionChanged));
}
} // namespace
