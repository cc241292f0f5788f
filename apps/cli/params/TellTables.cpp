#include "cli/params/TellTables.h"

#include "cli/FieldJson.h"
#include "cli/Output.h"
#include "cli/Quote.h"
#include "platform/base/Utf8Text.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <utility>

namespace quorvawiz::cli
{
namespace
{
bool IsSet(const TParamTableRow& rRow)
{
    return std::ranges::any_of(rRow, &TParamTableCell::mbHighlight);
}

/// A text as the window shows it: in the system's code page.
std::string Shown(const CStringU& rsText)
{
    return gToUtf8(rsText.ToAnsi());
}

std::string TableToText(const TParamTableData& rTable, bool bParams)
{
    std::vector<std::vector<std::string>> rows;
    rows.reserve(rTable.mRows.size() + 1);
    const auto startRow = [&](bool bSet) -> std::vector<std::string>& {
        auto& rRow = rows.emplace_back();
        rRow.reserve(rTable.mColumnTitles.size() + 1);
        if (bParams)
            rRow.emplace_back(bSet ? "*" : "");
        return rRow;
    };
    auto& rTitles = startRow(false);
    for (const CStringU& rsTitle : rTable.mColumnTitles)
        rTitles.push_back(gPrintable(Shown(rsTitle)));
    for (const TParamTableRow& rRow : rTable.mRows) {
        auto& rCells = startRow(IsSet(rRow));
        for (const TParamTableCell& rCell : rRow)
            rCells.push_back(gPrintable(Shown(rCell.msText)));
    }
    return gAlignColumns(rows);
}

/// Whether a text stands in JSON as it is, but for the quotation marks.
bool IsSimple(std::string_view sText)
{
    return std::ranges::all_of(
        sText, [](char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; });
}

/// The way from a window to JSON, without a JSON value of its million rows.
class CJsonOut
{
public:
    explicit CJsonOut(const std::function<void(std::string_view)>& rWrite) : mrWrite(rWrite) {}

    void Put(const TBrowserWindow& rWindow)
    {
        msText = "{\"title\":";
        Put(rWindow.msTitle);
        msText += ",\"tables\":[";
        const char* pBefore = "";
        for (const TBrowserTable& rTable : rWindow.mTables) {
            msText += std::exchange(pBefore, ",");
            msText += "{\"label\":";
            if (rTable.msLabel.IsEmpty())
                msText += "null";
            else
                Put(rTable.msLabel);
            Put(rTable.mTable);
            msText += '}';
        }
        msText += "]}\n";
        mrWrite(msText);
    }

private:
    void Put(const TParamTableData& rTable)
    {
        msText += ",\"columns\":[";
        const char* pBefore = "";
        for (const CStringU& rsTitle : rTable.mColumnTitles) {
            msText += std::exchange(pBefore, ",");
            Put(rsTitle);
        }
        msText += "],\"rows\":[";
        pBefore = "";
        for (const TParamTableRow& rRow : rTable.mRows) {
            msText += std::exchange(pBefore, ",");
            Put(rRow);
        }
        msText += ']';
    }

    void Put(const TParamTableRow& rRow)
    {
        msText += "{\"cells\":[";
        const char* pBefore = "";
        for (const TParamTableCell& rCell : rRow) {
            msText += std::exchange(pBefore, ",");
            Put(rCell.msText);
        }
        msText += IsSet(rRow) ? "],\"set\":true}" : "],\"set\":false}";
        constexpr std::size_t enough = 1U << 16U;
        if (msText.size() > enough) {
            mrWrite(msText);
            msText.clear();
        }
    }

    void Put(const CStringU& rsText)
    {
        if (IsSimple(rsText.Text()))
            msText.append(1, '"').append(rsText.Text()).append(1, '"');
        else
            msText += gToLine(Shown(rsText));
    }

    const std::function<void(std::string_view)>& mrWrite;
    std::string msText;
};
} // namespace

std::string gTellAsText(const TBrowserWindow& rWindow)
{
    std::string sText;
    if (rWindow.mbParams)
        sText = gPrintable(Shown(rWindow.msTitle)) + '\n';
    for (const TBrowserTable& rTable : rWindow.mTables) {
        if (rWindow.mbParams)
            sText += '\n';
        if (!rTable.msLabel.IsEmpty())
            sText += gPrintable(Shown(rTable.msLabel)) + '\n';
        sText += TableToText(rTable.mTable, rWindow.mbParams);
    }
    return sText;
}

void gTellAsJson(const TBrowserWindow& rWindow,
                 const std::function<void(std::string_view sText)>& rWrite)
{
    CJsonOut(rWrite).Put(rWindow);
}

} // namespace quorvawiz::cli
