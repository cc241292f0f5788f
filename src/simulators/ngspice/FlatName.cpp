#include "simulators/ngspice/FlatName.h"

#include "platform/base/Ascii.h"

#include <optional>

namespace quorvawiz::ngspice
{
namespace
{

bool IsInstance(std::string_view sPart) noexcept
{
    return sPart.size() > 1 && gToLowerAscii(sPart.front()) == 'x';
}

void AppendPart(std::string& rsPath, std::string_view sPart)
{
    rsPath += rsPath.empty() ? "" : ".";
    rsPath += sPart;
}

/// The name behind the prefixes of all levels.
std::optional<TFlatName> SplitPrefixed(std::string_view sFlat)
{
    TFlatName name;
    const std::string_view sLetter = sFlat.substr(0, 2); // with its point
    std::string_view sRest = sFlat;
    if (sFlat.size() < 2 || sFlat[1] != '.') {
        return std::nullopt;
    }
    while (true) {
        if (sRest.starts_with(sLetter)) {
            sRest.remove_prefix(sLetter.size());
        }
        const std::size_t nPoint = sRest.find('.');
        const std::string_view sPart = sRest.substr(0, nPoint);
        if (nPoint == std::string_view::npos || !IsInstance(sPart)) {
            break;
        }
        AppendPart(name.sSubckt, sPart);
        sRest.remove_prefix(nPoint + 1);
    }
    // Names may have points of their own.
    if (name.sSubckt.empty() || sRest.empty()) {
        return std::nullopt;
    }
    name.sName = sRest;
    return name;
}

} // namespace

TFlatName gSplitDeviceName(std::string_view sFlat)
{
    return SplitPrefixed(sFlat).value_or(TFlatName{{}, std::string(sFlat)});
}

TFlatName gSplitModelName(std::string_view sFlat)
{
    TFlatName name;
    std::string_view sRest = sFlat;
    for (std::size_t nColon = 0; (nColon = sRest.find(':')) != std::string_view::npos;) {
        const std::string_view sPart = sRest.substr(0, nColon);
        if (!IsInstance(sPart)) {
            break;
        }
        AppendPart(name.sSubckt, sPart);
        sRest.remove_prefix(nColon + 1);
    }
    if (sRest.empty()) {
        return {{}, std::string(sFlat)};
    }
    name.sName = sRest;
    return name;
}

} // namespace quorvawiz::ngspice
