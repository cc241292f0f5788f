#pragma once

#include "foundation/StringU.h"

#include <initializer_list>
#include <utility>
#include <vector>

/// One cell of a table.
struct TParamTableCell {
    CStringU msText;          ///< what it shows
    bool mbHighlight = false; ///< drawn in blue while its row isn't selected
};

/// The cells of a row, one for each column.
using TParamTableRow = std::vector<TParamTableCell>;

/// What a table of the browser shows: everything is sorted and composed before it gets here.
struct TParamTableData {
    std::vector<CStringU> mColumnTitles; ///< in the user's language
    std::vector<TParamTableRow> mRows;   ///< each as long as mColumnTitles; nothing checks that
    /// The width of each column's longest cell as gCellWidth has it, if whoever made the rows has
    /// kept it; empty if not. Of a million rows, reading them once more takes most of the time that
    /// a window needs to open.
    std::vector<int> mRowWidths = {};
};

/// The most characters that count for the width of a column.
inline constexpr int kMostCellWidth = 45;

/// What a text counts for the width of its column: its bytes in the narrow code page, up to
/// kMostCellWidth.
[[nodiscard]] int gCellWidth(const CStringU& rsText);

/// Adds a row at the end and keeps mRowWidths; all rows of the table are added so.
/// @param rTable the table
/// @param row as long as the table's titles
void gAddTableRow(TParamTableData& rTable, TParamTableRow row);

/// A row of cells of which none is highlighted.
/// @param rTexts a text for each column; those that are moved in are taken over
template <class... TTexts> TParamTableRow gMakeTableRow(TTexts&&... rTexts)
{
    TParamTableRow row;
    row.reserve(sizeof...(rTexts));
    (row.push_back({std::forward<TTexts>(rTexts), false}), ...);
    return row;
}

/// A table without rows.
/// @param titles the titles of its columns, literals with the marker of translatable texts
[[nodiscard]] TParamTableData gMakeEmptyTable(std::initializer_list<const char*> titles);
