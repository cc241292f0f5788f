#pragma once

#include "browser/ParamTable.h"

#include <string>
#include <vector>

/// A row's texts with a bar between each two, and a star behind those that are highlighted.
inline std::string gShown(const TParamTableRow& rRow)
{
    std::string sShown;
    for (const TParamTableCell& rCell : rRow) {
        sShown += &rCell == rRow.data() ? "" : "|";
        sShown += std::string(rCell.msText.Text()) + (rCell.mbHighlight ? "*" : "");
    }
    return sShown;
}

/// The rows of a table, each as gShown of it.
inline std::vector<std::string> gShownRows(const TParamTableData& rTable)
{
    std::vector<std::string> shown;
    for (const TParamTableRow& rRow : rTable.mRows) {
        shown.push_back(gShown(rRow));
    }
    return shown;
}

/// The titles of a table's columns with a bar between each two.
inline std::string gShownTitles(const TParamTableData& rTable)
{
    TParamTableRow row;
    for (const CStringU& rsTitle : rTable.mColumnTitles) {
        row.push_back({rsTitle, false});
    }
    return gShown(row);
}
