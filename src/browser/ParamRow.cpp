#include "browser/ParamRow.h"

#include <algorithm>
#include <cstddef>

std::vector<TParamRow> gMakeParamRows(const std::vector<TParamDef>& rParams)
{
    // Sorting pointers, as a row is five texts.
    std::vector<const TParamDef*> sorted;
    sorted.reserve(rParams.size());
    for (const TParamDef& rParam : rParams) {
        sorted.push_back(&rParam);
    }
    std::sort(sorted.begin(), sorted.end(), [](const TParamDef* pLeft, const TParamDef* pRight) {
        return CompareNoCase(pLeft->msName, pRight->msName) < 0;
    });
    std::vector<TParamRow> rows;
    rows.reserve(sorted.size());
    for (const TParamDef* const pParam : sorted) {
        rows.push_back({pParam->msName, ParamValueToText(pParam->mValue), pParam->mIsSet,
                        pParam->msUnits, pParam->msDescription});
    }
    return rows;
}

TParamTableData gMakeParamTable(const std::vector<TParamRow>& rRows)
{
    TParamTableData table =
        gMakeEmptyTable({"__$$Translatable$$_Name", "__$$Translatable$$_Value",
                         "__$$Translatable$$_Units", "__$$Translatable$$_Description"});
    constexpr std::size_t valueColumn = 1;
    table.mRows.reserve(rRows.size());
    for (const TParamRow& rRow : rRows) {
        table.mRows.push_back(
            gMakeTableRow(rRow.msName, rRow.msValue, rRow.msUnits, rRow.msDescription));
        table.mRows.back()[valueColumn].mbHighlight = rRow.mbIsSet;
    }
    return table;
}
