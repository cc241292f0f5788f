#include "simulators/ngspice/listings/ParamTables.h"

#include "simulators/ngspice/listings/Lines.h"

#include <charconv>
#include <optional>
#include <system_error>

namespace quorvawiz::ngspice
{
namespace
{

std::string_view CutField(std::string_view& rsRest)
{
    const std::size_t nComma = rsRest.find(',');
    const std::string_view sField = gTrimmed(rsRest.substr(0, nComma));
    rsRest.remove_prefix(nComma == std::string_view::npos ? rsRest.size() : nComma + 1);
    return sField;
}

std::optional<EDirection> DirectionOf(std::string_view sWord)
{
    if (sWord == "in") {
        return EDirection::In;
    }
    if (sWord == "inout") {
        return EDirection::InOut;
    }
    if (sWord == "out") {
        return EDirection::Out;
    }
    return std::nullopt;
}

/// "id, name, direction, type, flags, description".
std::optional<TParamRow> ReadRow(std::string_view sLine)
{
    TParamRow row;
    const std::string_view sId = CutField(sLine);
    const auto id = std::from_chars(sId.data(), sId.data() + sId.size(), row.nId);
    if (id.ec != std::errc() || id.ptr != sId.data() + sId.size()) {
        return std::nullopt;
    }
    row.sName = CutField(sLine);
    const auto direction = DirectionOf(CutField(sLine));
    row.sType = CutField(sLine);
    row.sFlags = CutField(sLine);
    if (row.sName.empty() || !direction || row.sType.empty()) {
        return std::nullopt;
    }
    row.eDirection = *direction;
    if (row.sFlags == "-") {
        row.sFlags.clear();
    }
    row.sDescription = gTrimmed(sLine);
    if (row.sDescription == "n.a.") {
        row.sDescription.clear();
    }
    return row;
}

/// "NAME - DESCRIPTION", which begins a type.
std::optional<TParamTable> ReadHeading(std::string_view sLine)
{
    const std::string_view sName = gNextWord(sLine);
    const bool bIsHeading = !sName.empty() && sLine.starts_with(" - ");
    if (!bIsHeading) {
        return std::nullopt;
    }
    return TParamTable{std::string(sName), std::string(gTrimmed(sLine.substr(3))), {}, {}};
}

} // namespace

std::vector<TParamTable> gReadParamTables(std::string_view sListing)
{
    std::vector<TParamTable> tables;
    bool bInstance = false;
    while (!sListing.empty()) {
        const std::string_view sLine = gNextLine(sListing);
        if (sLine == "Model Parameters" || sLine == "Instance Parameters") {
            bInstance = sLine.starts_with('I');
        } else if (auto row = tables.empty() ? std::nullopt : ReadRow(sLine)) {
            TParamTable& rTable = tables.back();
            (bInstance ? rTable.instance : rTable.model).push_back(std::move(*row));
        } else if (auto table = ReadHeading(sLine)) {
            tables.push_back(std::move(*table));
            bInstance = false;
        }
    }
    return tables;
}

} // namespace quorvawiz::ngspice
