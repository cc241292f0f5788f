#include "platform/ui/ListCtrl.h"

#include "platform/ui/SampleDialog.h"

#include <gtest/gtest.h>

// The sample's table: columns Letter and Number, rows x, y, z.

namespace
{
TEST(ListCtrlTest, UserActions)
{
    const TStory kStories[] = {
        {"select", {"select cells=1"}, {"cells:sel-change"}},
        {"a selected row notifies nothing",
         {"select cells=1", "select cells=1"},
         {"cells:sel-change"}},
        {"take the selection away",
         {"select cells=1", "select cells=-1"},
         {"cells:sel-change", "cells:sel-change"}},
        {"beyond the last", {"select cells=3"}, {"! unknown entry"}},
        {"double-click",
         {"select cells=0", "double-click cells"},
         {"cells:sel-change", "cells:double-clicked"}},
        {"there is nothing to double-click", {"double-click cells"}, {"! invalid"}},
        {"rows have no single text", {"entry cells=x"}, {"! wrong kind"}},
    };
    for (const TStory& rStory : kStories)
        gCheckStory(rStory);
}

class ListCtrlOperationsTest : public testing::Test
{
protected:
    void In(const std::function<void(CListCtrl&)>& rLook)
    {
        gLookInto(mDialog, [&] { rLook(mDialog.Get<CListCtrl>(kCells)); });
    }
    CSampleDialog mDialog;
};

TEST_F(ListCtrlOperationsTest, CellsAreReadAndWritten)
{
    In([](CListCtrl& rTable) {
        EXPECT_EQ(rTable.GetItemCount(), 3);
        EXPECT_EQ(rTable.GetColumnCount(), 2);
        EXPECT_EQ(rTable.GetItemText(1, 0), "y");
        EXPECT_EQ(rTable.GetItemText(1, 1), "");
        EXPECT_TRUE(rTable.SetItemText(1, 1, "25"));
        EXPECT_EQ(rTable.GetItemText(1, 1), "25");
        EXPECT_EQ(rTable.GetItemText(0, 1), "");
        for (const auto& [nRow, nColumn] :
             std::vector<std::pair<int, int>>{{3, 0}, {-1, 0}, {0, 2}, {0, -1}}) {
            EXPECT_FALSE(rTable.SetItemText(nRow, nColumn, "no"));
            EXPECT_EQ(rTable.GetItemText(nRow, nColumn), "");
        }
    });
}

TEST_F(ListCtrlOperationsTest, RowsHaveANumberOfTheirOwn)
{
    In([](CListCtrl& rTable) {
        EXPECT_EQ(rTable.GetItemData(0), 0);
        EXPECT_TRUE(rTable.SetItemData(0, -7));
        EXPECT_EQ(rTable.GetItemData(0), -7);
        EXPECT_EQ(rTable.InsertItem(0, "w"), 0);
        EXPECT_EQ(rTable.GetItemData(0), 0);
        EXPECT_EQ(rTable.GetItemData(1), -7);
        EXPECT_FALSE(rTable.SetItemData(9, 1));
        EXPECT_EQ(rTable.GetItemData(9), 0);
        EXPECT_EQ(rTable.GetItemData(-1), 0);
    });
}

TEST_F(ListCtrlOperationsTest, AnInsertedRowKeepsTheSelectedOne)
{
    struct TCase {
        int nRow, nResult, nSelected;
    };
    for (const TCase& rCase :
         {TCase{0, 0, 2}, TCase{1, 1, 2}, TCase{2, 2, 1}, TCase{99, 3, 1}, TCase{-5, 0, 2}}) {
        SCOPED_TRACE(rCase.nRow);
        In([&](CListCtrl& rTable) {
            rTable.SelectRow(1);
            mDialog.TakeLog();
            EXPECT_EQ(rTable.InsertItem(rCase.nRow, "new"), rCase.nResult);
            EXPECT_EQ(rTable.GetItemText(rCase.nResult, 0), "new");
            EXPECT_EQ(rTable.GetSelectedRow(), rCase.nSelected);
            EXPECT_EQ(rTable.GetItemText(rTable.GetSelectedRow(), 0), "y");
            EXPECT_EQ(mDialog.TakeLog(), TLog{});
        });
    }
}

TEST_F(ListCtrlOperationsTest, AnInsertedColumnIsEmptyAndMovesTheOthers)
{
    struct TCase {
        int nColumn, nResult;
        std::vector<CString> cells;
    };
    const TCase kCases[] = {
        {0, 0, {"", "x", "1"}}, {1, 1, {"x", "", "1"}},  {2, 2, {"x", "1", ""}},
        {9, 2, {"x", "1", ""}}, {-3, 0, {"", "x", "1"}},
    };
    for (const TCase& rCase : kCases) {
        SCOPED_TRACE(rCase.nColumn);
        In([&](CListCtrl& rTable) {
            rTable.SetItemText(0, 1, "1");
            EXPECT_EQ(rTable.InsertColumn(rCase.nColumn, "New", 0, 30, -1), rCase.nResult);
            for (int n = 0; n < 3; ++n) {
                EXPECT_EQ(rTable.GetItemText(0, n), rCase.cells[static_cast<std::size_t>(n)]);
            }
            const TListColumn& rColumn =
                rTable.GetColumns()[static_cast<std::size_t>(rCase.nResult)];
            EXPECT_EQ(rColumn.sHeading, "New");
            EXPECT_EQ(rColumn.nWidth, 30);
        });
    }
}

TEST_F(ListCtrlOperationsTest, WidthsAndStyle)
{
    In([](CListCtrl& rTable) {
        rTable.SetColumnWidth(1, 99);
        rTable.SetColumnWidth(2, 5);
        rTable.SetColumnWidth(-1, 5);
        EXPECT_EQ(rTable.GetColumns()[0].nWidth, 60);
        EXPECT_EQ(rTable.GetColumns()[1].nWidth, 99);
        EXPECT_EQ(rTable.GetExtendedStyle(), 0U);
        rTable.SetExtendedStyle(LVS_EX_GRIDLINES | LVS_EX_FULLROWSELECT);
        EXPECT_EQ(rTable.GetExtendedStyle(), 0x21U);
    });
}

TEST_F(ListCtrlOperationsTest, SelectRowNotifiesOnAChange)
{
    In([this](CListCtrl& rTable) {
        EXPECT_TRUE(rTable.SelectRow(2));
        EXPECT_TRUE(rTable.SelectRow(2));
        EXPECT_FALSE(rTable.SelectRow(3));
        EXPECT_FALSE(rTable.SelectRow(-2));
        EXPECT_EQ(rTable.GetSelectedRow(), 2);
        EXPECT_TRUE(rTable.SelectRow(-1));
        EXPECT_EQ(mDialog.TakeLog(), (TLog{"cells:sel-change", "cells:sel-change"}));
        rTable.SelectRow(0);
        rTable.DeleteAllItems();
        EXPECT_EQ(rTable.GetSelectedRow(), -1);
        EXPECT_EQ(rTable.GetItemCount(), 0);
        EXPECT_EQ(rTable.GetColumnCount(), 2) << "columns stay";
    });
}
} // namespace
