#include "simulators/ngspice/listings/ShownValues.h"

#include "simulators/ngspice/listings/Lines.h"

namespace quorvawiz::ngspice
{

std::optional<TShownValue> gReadShownValue(std::string_view sLine) noexcept
{
    if (!sLine.starts_with("    ")) {
        return std::nullopt;
    }
    const std::size_t nEquals = sLine.find('=');
    if (nEquals == std::string_view::npos) {
        return std::nullopt;
    }
    const TShownValue value{gTrimmed(sLine.substr(0, nEquals)),
                            gTrimmed(sLine.substr(nEquals + 1))};
    return value.sName.empty() ? std::nullopt : std::optional(value);
}

} // namespace quorvawiz::ngspice
