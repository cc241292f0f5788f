#include "browser/ModelClassRow.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <map>
#include <string>
#include <string_view>

namespace
{

/// As printf's %g does, in any locale.
CStringU VersionText(double dVersion)
{
    constexpr int digits = 6;
    std::array<char, 32> buffer{};
    char* const pEnd = std::to_chars(buffer.data(), buffer.data() + buffer.size(), dVersion,
                                     std::chars_format::general, digits)
                           .ptr;
    return std::string_view(buffer.data(), static_cast<std::size_t>(pEnd - buffer.data()));
}

void AppendRows(const std::map<CStringU, TModelClassDef>& rClasses,
                std::vector<TModelClassRow>& rRows)
{
    for (const auto& [rsName, rClass] : rClasses) {
        const TModelClassHeader& rHeader = rClass.mHeader;
        rRows.push_back({rHeader.msName, rHeader.msType, std::to_string(rHeader.mnLevel),
                         VersionText(rHeader.mdVersion), rHeader.msDescription});
    }
}

} // namespace

bool gIsClassRowLess(const TModelClassRow& rLeft, const TModelClassRow& rRight) noexcept
{
    for (const auto pText : {&TModelClassRow::msName, &TModelClassRow::msType,
                             &TModelClassRow::msLevel, &TModelClassRow::msVersion}) {
        const CStringU& rsLeft = rLeft.*pText;
        const CStringU& rsRight = rRight.*pText;
        if (rsLeft != rsRight) {
            // The next text decides only between texts that are exactly the same. Without an order
            // of those that differ in their case, the rows between two such could stand anywhere.
            const int nCompared = CompareNoCase(rsLeft, rsRight);
            return nCompared != 0 ? nCompared < 0 : rsLeft < rsRight;
        }
    }
    return false;
}

std::vector<TModelClassRow> gMakeModelClassRows(const TCircuitParams& rStore)
{
    std::vector<TModelClassRow> rows;
    rows.reserve(rStore.mModelClasses.size() + rStore.mOpticalClasses.size());
    AppendRows(rStore.mModelClasses, rows);
    AppendRows(rStore.mOpticalClasses, rows);
    std::sort(rows.begin(), rows.end(), gIsClassRowLess);
    return rows;
}

TParamTableData gMakeClassesTable(const std::vector<TModelClassRow>& rRows)
{
    TParamTableData table = gMakeEmptyTable(
        {"__$$Translatable$$_Name", "__$$Translatable$$_Type", "__$$Translatable$$_Level",
         "__$$Translatable$$_Version", "__$$Translatable$$_Description"});
    table.mRows.reserve(rRows.size());
    for (const TModelClassRow& rRow : rRows) {
        table.mRows.push_back(gMakeTableRow(rRow.msName, rRow.msType, rRow.msLevel, rRow.msVersion,
                                            rRow.msDescription));
    }
    return table;
}

int gFindClassRow(const std::vector<TModelClassRow>& rRows, const CStringU& rsName)
{
    const auto found = std::find_if(rRows.rbegin(), rRows.rend(), [&](const TModelClassRow& rRow) {
        return rRow.msName == rsName;
    });
    return static_cast<int>(rRows.rend() - found) - 1;
}
