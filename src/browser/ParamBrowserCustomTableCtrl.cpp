#include "browser/ParamBrowserCustomTableCtrl.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>

namespace
{

constexpr int kLeastWidth = 15; // in characters
constexpr COLORREF kBlue = 0xFF0000;

void RaiseTo(const CStringU& rsText, int& rnWidth)
{
    if (rnWidth < kMostCellWidth) {
        rnWidth = std::max(rnWidth, gCellWidth(rsText));
    }
}

} // namespace

TParamBrowserCustomTableCtrl::TParamBrowserCustomTableCtrl(TParamTableData table)
    : mTableData(std::move(table))
{
    mbWholeRows = true;
}

void TParamBrowserCustomTableCtrl::FillTable()
{
    SetExtendedStyle(GetExtendedStyle() | LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES);
    mColumnWidths.resize(mTableData.mColumnTitles.size(), kLeastWidth);
    for (std::size_t nColumn = 0; nColumn < mColumnWidths.size(); ++nColumn) {
        AddColumn(static_cast<int>(nColumn));
    }
    RaiseWidths();
    ShowRows({static_cast<int>(mTableData.mRows.size()),
              [this](int nRow, int nColumn) { return CellAt(nRow, nColumn).msText.ToAnsi(); },
              [](int nRow) { return static_cast<std::intptr_t>(nRow); }});
    ResizeColumns();
    if (!mTableData.mRows.empty()) {
        SelectCell(0, 0);
    }
}

void TParamBrowserCustomTableCtrl::RaiseWidths()
{
    const std::vector<int>& rKept = mTableData.mRowWidths;
    if (rKept.size() == mColumnWidths.size()) {
        for (std::size_t nColumn = 0; nColumn < rKept.size(); ++nColumn) {
            mColumnWidths[nColumn] = std::max(mColumnWidths[nColumn], rKept[nColumn]);
        }
        return;
    }
    for (const TParamTableRow& rRow : mTableData.mRows) {
        for (std::size_t nColumn = 0; nColumn < mColumnWidths.size(); ++nColumn) {
            RaiseTo(rRow[nColumn].msText, mColumnWidths[nColumn]);
        }
    }
}

void TParamBrowserCustomTableCtrl::AddColumn(int nColumn)
{
    constexpr int leftAligned = 0;
    constexpr int anyWidth = 1000; // until ResizeColumns
    constexpr int noSubItem = -1;
    const auto nAt = static_cast<std::size_t>(nColumn);
    const CStringU& rsTitle = mTableData.mColumnTitles[nAt];
    InsertColumn(nColumn, rsTitle.ToAnsi(), leftAligned, anyWidth, noSubItem);
    RaiseTo(rsTitle, mColumnWidths[nAt]);
}

void TParamBrowserCustomTableCtrl::ResizeColumns()
{
    const int nAll = std::accumulate(mColumnWidths.begin(), mColumnWidths.end(), 0);
    const std::int64_t nPixels = GetClientPixels().cx;
    int nColumn = 0;
    for (const int nWidth : mColumnWidths) {
        // The list takes 16 bits of a width. With the 1 the columns never need a scroll bar.
        SetColumnWidth(nColumn++, static_cast<std::uint16_t>(nWidth * nPixels / (nAll + 1)));
    }
}

COLORREF TParamBrowserCustomTableCtrl::GetCellColor(int nRow, int nColumn, bool bSelected,
                                                    bool bFocused) const
{
    const bool bBlue =
        !bSelected && IsRow(nRow) && IsColumn(nColumn) && CellAt(nRow, nColumn).mbHighlight;
    return bBlue ? kBlue : CTableCtrl::GetCellColor(nRow, nColumn, bSelected, bFocused);
}

bool TParamBrowserCustomTableCtrl::IsCellEditable(int /*nRow*/, int /*nColumn*/) const
{
    return false;
}

bool TParamBrowserCustomTableCtrl::IsCellSelectable(int /*nRow*/, int nColumn) const
{
    return nColumn == 0;
}

const TParamTableCell& TParamBrowserCustomTableCtrl::CellAt(int nRow, int nColumn) const
{
    return mTableData.mRows[static_cast<std::size_t>(nRow)][static_cast<std::size_t>(nColumn)];
}
