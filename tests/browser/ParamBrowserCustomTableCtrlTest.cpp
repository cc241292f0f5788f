#include "browser/ParamBrowserCustomTableCtrl.h"

#include "platform/base/CodePageScope.h"
#include "platform/headless/HeadlessDesktop.h"
#include "platform/ui/DataExchange.h"
#include "platform/ui/Dialog.h"
#include "support/VirtualSlot.h"
#include "support/WizardRun.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace
{

using TTable = TParamBrowserCustomTableCtrl;

static_assert(std::is_base_of_v<CTableCtrl, TTable>);
static_assert(std::is_base_of_v<CListCtrl, CTableCtrl>);
static_assert(!std::is_copy_constructible_v<TTable>);
static_assert(!std::is_copy_assignable_v<TTable>);

enum EControlId { kTable = 1001 };
constexpr TControlRow kRows[] = {
    Row(kTable, "table", EControl::Table, "", {0, 0, 200, 100}, kUnlabelled)};
constexpr DialogTemplate kTemplate{"Table", {200, 100}, kRows};

/// Tells how often another row was selected.
class CCountingTable : public TTable
{
public:
    using TTable::TTable;
    int mnSelections = 0;
    void AfterSelectionChanged() override { ++mnSelections; }
};

class CTableDialog : public CDialog
{
public:
    explicit CTableDialog(TParamTableData table) : CDialog(kTemplate), mTable(std::move(table)) {}
    CCountingTable mTable;

protected:
    void DoDataExchange(CDataExchange* pDX) override { DDX_Control(pDX, kTable, mTable); }
};

TParamTableData TableOf(const std::vector<CStringU>& rTitles,
                        const std::vector<std::vector<CStringU>>& rRows)
{
    TParamTableData table;
    table.mColumnTitles = rTitles;
    for (const std::vector<CStringU>& rTexts : rRows) {
        TParamTableRow& rRow = table.mRows.emplace_back();
        for (const CStringU& rsText : rTexts) {
            rRow.push_back({rsText, false});
        }
    }
    return table;
}

/// Shows a table in a window that is open meanwhile.
void In(TParamTableData table, const std::function<void(CCountingTable&)>& rLook)
{
    HeadlessDesktop desktop;
    CTableDialog dialog(std::move(table));
    CScript().Then([&](CDialog&) { rLook(dialog.mTable); }).Run(desktop, [&dialog] {
        dialog.DoModal();
    });
}

/// The same, filled.
void InFilled(TParamTableData table, const std::function<void(CCountingTable&)>& rLook)
{
    In(std::move(table), [&](CCountingTable& rTable) {
        rTable.FillTable();
        rLook(rTable);
    });
}

std::vector<int> PixelWidths(const CListCtrl& rTable)
{
    std::vector<int> widths;
    for (const TListColumn& rColumn : rTable.GetColumns()) {
        widths.push_back(rColumn.nWidth);
    }
    return widths;
}

TEST(ParamBrowserTableTest, TheVirtualOperationsStandInTheirOrder)
{
    const std::size_t nFirst = gVirtualSlot(&TTable::DrawItem);
    EXPECT_EQ(gVirtualSlot(&TTable::GetCellColor), nFirst + 1);
    EXPECT_EQ(gVirtualSlot(&TTable::IsCellEditable), nFirst + 2);
    EXPECT_EQ(gVirtualSlot(&TTable::IsCellSelectable), nFirst + 3);
    EXPECT_EQ(gVirtualSlot(&TTable::OnCommitCell), nFirst + 4);
    EXPECT_EQ(gVirtualSlot(&TTable::IsCancelControl), nFirst + 5);
    EXPECT_EQ(gVirtualSlot(&TTable::AfterSelectionChanged), nFirst + 6);
}

/// Keeps the columns of a table as they are when the table first tells of them.
class CFirstColumns : public HeadlessDesktop
{
public:
    std::vector<TListColumn> mColumns;

    std::unique_ptr<IWindowPeer> MakePeer(CWnd& rWnd) override
    {
        auto* const pTable = dynamic_cast<CListCtrl*>(&rWnd);
        return pTable != nullptr ? std::make_unique<CPeer>(*pTable, mColumns)
                                 : HeadlessDesktop::MakePeer(rWnd);
    }

private:
    class CPeer : public IWindowPeer
    {
    public:
        CPeer(const CListCtrl& rTable, std::vector<TListColumn>& rColumns)
            : mrTable(rTable), mrColumns(rColumns)
        {
        }
        void OnChanged(EAspect aspect) override
        {
            if (aspect == EAspect::Items && mrTable.GetColumns().size() > mrColumns.size()) {
                mrColumns.push_back(mrTable.GetColumns().back());
            }
        }

    private:
        const CListCtrl& mrTable;
        std::vector<TListColumn>& mrColumns;
    };
};

TEST(ParamBrowserTableTest, ColumnsAreInsertedLeftAlignedAndAThousandWide)
{
    CFirstColumns desktop;
    CTableDialog dialog(TableOf({"Name", "Value"}, {{"a", "1"}}));
    CScript().Then([&](CDialog&) { dialog.mTable.FillTable(); }).Run(desktop, [&dialog] {
        dialog.DoModal();
    });
    ASSERT_EQ(desktop.mColumns.size(), 2U);
    for (const TListColumn& rColumn : desktop.mColumns) {
        EXPECT_EQ(rColumn.nFormat, 0);
        EXPECT_EQ(rColumn.nWidth, 1000);
        EXPECT_EQ(rColumn.nSubItem, -1);
    }
    EXPECT_EQ(desktop.mColumns[1].sHeading, "Value");
}

TEST(ParamBrowserTableTest, ShowsItsModel)
{
    InFilled(TableOf({"Name", "Value"}, {{"a", "1"}, {"b", ""}}), [](CCountingTable& rTable) {
        EXPECT_EQ(rTable.GetColumnCount(), 2);
        EXPECT_EQ(rTable.GetColumns()[1].sHeading, "Value");
        EXPECT_EQ(rTable.GetItemCount(), 2);
        EXPECT_EQ(rTable.GetItemText(0, 1), "1");
        EXPECT_EQ(rTable.GetItemText(1, 0), "b");
        EXPECT_EQ(rTable.GetItemText(1, 1), "");
        EXPECT_EQ(rTable.GetSelectedRow(), 0);
        EXPECT_TRUE(rTable.SelectsWholeRows());
    });
}

TEST(ParamBrowserTableTest, ARowsItemDataIsItsIndex)
{
    InFilled(TableOf({"Name"}, std::vector<std::vector<CStringU>>(300, {"x"})),
             [](CCountingTable& rTable) {
                 for (int nRow = 0; nRow < 300; ++nRow) {
                     EXPECT_EQ(rTable.GetItemData(nRow), nRow);
                 }
             });
}

TEST(ParamBrowserTableTest, AnEmptyTableShowsItsColumnsAndSelectsNothing)
{
    InFilled(TableOf({"Name", "Value"}, {}), [](CCountingTable& rTable) {
        EXPECT_EQ(rTable.GetColumnCount(), 2);
        EXPECT_EQ(rTable.GetItemCount(), 0);
        EXPECT_EQ(rTable.GetSelectedRow(), -1);
        EXPECT_EQ(rTable.mnSelections, 0);
    });
}

TEST(ParamBrowserTableTest, AddsFullRowSelectAndGridLinesToItsStyles)
{
    In(TableOf({"Name"}, {}), [](CCountingTable& rTable) {
        rTable.SetExtendedStyle(0x100);
        rTable.FillTable();
        EXPECT_EQ(rTable.GetExtendedStyle(), 0x121U);
    });
}

std::string Text(std::size_t nLength)
{
    return std::string(nLength, 'x');
}

struct TWidthCase {
    const char* mpName;
    std::size_t mnTitle;
    std::vector<std::size_t> mCells;
    int mnWidth;
};

TEST(ParamBrowserTableTest, WidthsInCharacters)
{
    const std::vector<TWidthCase> cases{
        {"a short title", 4, {}, 15},
        {"short texts", 4, {1, 15, 3}, 15},
        {"a longer title", 16, {}, 16},
        {"a title of 60 characters counts as 45", 60, {}, 45},
        {"a title of 45", 45, {}, 45},
        {"a title of 44", 44, {}, 44},
        {"the longest cell", 4, {20, 31, 7}, 31},
        {"a cell of 60 counts as 45", 4, {60, 3}, 45},
        {"a title longer than the cells", 30, {20, 29}, 30},
        {"no text at all", 0, {0}, 15},
    };
    for (const auto& row : cases) {
        std::vector<std::vector<CStringU>> cells;
        for (const std::size_t nCell : row.mCells) {
            cells.push_back({Text(nCell)});
        }
        InFilled(TableOf({Text(row.mnTitle)}, cells), [&row](CCountingTable& rTable) {
            EXPECT_EQ(rTable.mColumnWidths, std::vector<int>{row.mnWidth}) << row.mpName;
            const int nPixels = rTable.GetClientPixels().cx;
            EXPECT_EQ(PixelWidths(rTable),
                      std::vector<int>{row.mnWidth * nPixels / (row.mnWidth + 1)})
                << row.mpName;
        });
    }
}

TEST(ParamBrowserTableTest, EachColumnHasItsOwnWidth)
{
    InFilled(TableOf({"a", Text(20), "c"}, {{"", "", Text(50)}, {Text(17), "", ""}}),
             [](CCountingTable& rTable) {
                 EXPECT_EQ(rTable.mColumnWidths, (std::vector<int>{17, 20, 45}));
             });
}

TEST(ParamBrowserTableTest, WidthsGrowFromWhatIsThere)
{
    In(TableOf({"a", "b", "c"}, {}), [](CCountingTable& rTable) {
        rTable.mColumnWidths = {30, 3};
        rTable.FillTable();
        EXPECT_EQ(rTable.mColumnWidths, (std::vector<int>{30, 3, 15}));
    });
}

TEST(ParamBrowserTableTest, LengthsAreThoseOfTheSystemsCodePage)
{
    const std::u16string sText(20, u'\u00E9');
    InFilled(TableOf({sText}, {}),
             [](CCountingTable& rTable) { EXPECT_EQ(rTable.mColumnWidths, std::vector<int>{40}); });
    const CCodePageScope codePage(1252);
    InFilled(TableOf({sText}, {{u"\u00E9"}}), [](CCountingTable& rTable) {
        EXPECT_EQ(rTable.mColumnWidths, std::vector<int>{20});
        EXPECT_EQ(rTable.GetItemText(0, 0), "\xE9");
        EXPECT_EQ(rTable.GetColumns()[0].sHeading, CString(std::string(20, '\xE9')));
    });
}

TEST(ParamBrowserTableTest, ColumnsShareTheClientWidthLessOnePartOfTPlus1)
{
    InFilled(TableOf({"a", Text(30), "c"}, {}), [](CCountingTable& rTable) {
        const int nPixels = rTable.GetClientPixels().cx;
        ASSERT_GT(nPixels, 100);
        const std::vector<int> wanted{15 * nPixels / 61, 30 * nPixels / 61, 15 * nPixels / 61};
        EXPECT_EQ(PixelWidths(rTable), wanted);
        rTable.SetColumnWidth(1, 3); // what a user drags
        rTable.ResizeColumns();
        EXPECT_EQ(PixelWidths(rTable), wanted);
    });
}

TEST(ParamBrowserTableTest, AWidthIsKeptTo16Bits)
{
    InFilled(TableOf({"a"}, {}), [](CCountingTable& rTable) {
        rTable.MoveWindow({0, 0, 60'000, 100});
        const int nPixels = rTable.GetClientPixels().cx;
        ASSERT_GT(nPixels, 0x12000);
        rTable.ResizeColumns();
        EXPECT_EQ(PixelWidths(rTable), std::vector<int>{(15 * nPixels / 16) & 0xFFFF});
    });
}

TEST(ParamBrowserTableTest, WithoutColumnsNothingHappens)
{
    InFilled({}, [](CCountingTable& rTable) {
        rTable.ResizeColumns();
        EXPECT_EQ(rTable.GetColumnCount(), 0);
        EXPECT_EQ(rTable.GetItemCount(), 0);
        EXPECT_EQ(rTable.GetSelectedRow(), -1);
    });
}

struct TColorCase {
    const char* mpName;
    int mnRow;
    int mnColumn;
    bool mbSelected;
    bool mbFocused;
    COLORREF mnColor;
};

TEST(ParamBrowserTableTest, AHighlightedCellIsBlueUnlessItIsSelected)
{
    TParamTableData table = TableOf({"a", "b"}, {{"1", "2"}, {"3", "4"}});
    table.mRows[0][1].mbHighlight = true;
    static constexpr COLORREF blue = 0xFF0000;
    const std::vector<TColorCase> cases{
        {"highlighted", 0, 1, false, false, blue},
        {"highlighted in a table with the focus", 0, 1, false, true, blue},
        {"highlighted and selected", 0, 1, true, false, CLR_DEFAULT},
        {"highlighted, selected and focused", 0, 1, true, true, CLR_DEFAULT},
        {"the cell beside it", 0, 0, false, false, CLR_DEFAULT},
        {"the cell below it", 1, 1, false, false, CLR_DEFAULT},
        {"no such row", 2, 1, false, false, CLR_DEFAULT},
        {"no such column", 0, 2, false, false, CLR_DEFAULT},
    };
    InFilled(table, [&cases](CCountingTable& rTable) {
        for (const auto& row : cases) {
            EXPECT_EQ(rTable.GetCellColor(row.mnRow, row.mnColumn, row.mbSelected, row.mbFocused),
                      row.mnColor)
                << row.mpName;
        }
        EXPECT_EQ(rTable.DrawItem(0, 1, false, false).nColor, blue);
    });
}

TEST(ParamBrowserTableTest, NoCellCanBeEditedAndColumn0AloneSelected)
{
    InFilled(TableOf({"a", "b"}, {{"1", "2"}, {"3", "4"}}), [](CCountingTable& rTable) {
        for (int nRow = 0; nRow < 2; ++nRow) {
            for (int nColumn = 0; nColumn < 2; ++nColumn) {
                EXPECT_FALSE(rTable.IsCellEditable(nRow, nColumn));
                EXPECT_FALSE(rTable.OnCommitCell(nRow, nColumn, "x"));
                EXPECT_EQ(rTable.IsCellSelectable(nRow, nColumn), nColumn == 0);
            }
        }
        EXPECT_FALSE(rTable.SelectCell(1, 1));
        EXPECT_EQ(rTable.GetSelectedRow(), 0);
        EXPECT_TRUE(rTable.SelectCell(1, 0));
        EXPECT_EQ(rTable.GetSelectedRow(), 1);
        EXPECT_EQ(rTable.GetItemText(1, 1), "4");
    });
}

} // namespace
