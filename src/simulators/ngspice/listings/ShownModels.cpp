#include "simulators/ngspice/listings/ShownModels.h"

#include "simulators/ngspice/listings/Lines.h"

namespace quorvawiz::ngspice
{
namespace
{

/// " TYPE models (DESCRIPTION)": the type, or empty.
std::string_view TypeOf(std::string_view sLine) noexcept
{
    if (!sLine.starts_with(' ') || sLine.starts_with("    ")) {
        return {};
    }
    const std::string_view sType = gNextWord(sLine);
    return sLine.starts_with(" models (") ? sType : std::string_view();
}

/// "      model   NAME": the name, or empty.
std::string_view NameOf(std::string_view sLine) noexcept
{
    if (!sLine.starts_with("      ") || gNextWord(sLine) != "model") {
        return {};
    }
    const std::string_view sName = gTrimmed(sLine);
    return sName.starts_with('=') ? std::string_view() : sName;
}

} // namespace

std::vector<TShownModel> gReadShownModels(std::string_view sListing)
{
    std::vector<TShownModel> models;
    while (!sListing.empty()) {
        const std::string_view sLine = gNextLine(sListing);
        if (const std::string_view sType = TypeOf(sLine); !sType.empty()) {
            models.push_back({sType, {}, {}});
        } else if (models.empty()) {
            continue;
        } else if (const std::string_view sName = NameOf(sLine);
                   !sName.empty() && models.back().sName.empty()) {
            models.back().sName = sName;
        } else if (const auto value = gReadShownValue(sLine)) {
            models.back().values.push_back(*value);
        }
    }
    return models;
}

} // namespace quorvawiz::ngspice
