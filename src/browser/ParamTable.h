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
};

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
