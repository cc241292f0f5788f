#include "browser/CsvLine.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace
{

bool IsQuoted(std::string_view sText)
{
    return sText.find(',') != std::string_view::npos && sText.front() != '"';
}

/// The bytes that AppendLine appends.
std::size_t LineSize(const TParamTableRow& rRow)
{
    std::size_t nSize = rRow.empty() ? 0 : rRow.size() - 1;
    for (const TParamTableCell& rCell : rRow) {
        const std::string_view sText = rCell.msText.Text();
        nSize += std::max<std::size_t>(sText.size(), 1) + (IsQuoted(sText) ? 2 : 0);
    }
    return nSize;
}

void AppendLine(const TParamTableRow& rRow, CStringU& rsText)
{
    bool bFirst = true;
    for (const TParamTableCell& rCell : rRow) {
        if (!bFirst) {
            rsText += u',';
        }
        bFirst = false;
        const std::string_view sText = rCell.msText.Text();
        if (sText.empty()) {
            rsText += u' ';
        } else if (IsQuoted(sText)) {
            rsText += u'"';
            rsText += rCell.msText;
            rsText += u'"';
        } else {
            rsText += rCell.msText;
        }
    }
}

constexpr std::size_t kMarker = 1; // may come to the front

} // namespace

CStringU gMakeCsvLine(const TParamTableRow& rRow)
{
    CStringU sLine;
    sLine.Reserve(LineSize(rRow) + kMarker);
    AppendLine(rRow, sLine);
    return sLine;
}

CStringU gMakeExportText(const TParamTableData& rTable)
{
    std::size_t nSize = kMarker;
    for (const TParamTableRow& rRow : rTable.mRows) {
        nSize += LineSize(rRow) + 1;
    }
    CStringU sText;
    sText.Reserve(nSize); // never more than it takes: a million rows are a big text
    for (const TParamTableRow& rRow : rTable.mRows) {
        AppendLine(rRow, sText);
        sText += u'\n';
    }
    return sText;
}
