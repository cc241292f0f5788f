#include "browser/ParamTable.h"

#include "platform/ui/Translate.h"

#include <algorithm>
#include <cstddef>

TParamTableData gMakeEmptyTable(std::initializer_list<const char*> titles)
{
    TParamTableData table;
    table.mColumnTitles.reserve(titles.size());
    for (const char* const pTitle : titles) {
        table.mColumnTitles.emplace_back(xlang::gTranslate(pTitle));
    }
    return table;
}

int gCellWidth(const CStringU& rsText)
{
    const int nLength = rsText.IsUtf8() ? rsText.ToAnsi().GetLength() : rsText.GetByteLength();
    return std::min(nLength, kMostCellWidth);
}

void gAddTableRow(TParamTableData& rTable, TParamTableRow row)
{
    rTable.mRowWidths.resize(rTable.mColumnTitles.size());
    for (std::size_t nColumn = 0; nColumn < row.size(); ++nColumn) {
        int& rnWidth = rTable.mRowWidths[nColumn];
        if (rnWidth < kMostCellWidth) {
            rnWidth = std::max(rnWidth, gCellWidth(row[nColumn].msText));
        }
    }
    rTable.mRows.push_back(std::move(row));
}
