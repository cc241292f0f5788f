#include "simulators/ngspice/listings/DeviceTypes.h"

#include "simulators/ngspice/listings/Lines.h"

namespace quorvawiz::ngspice
{

std::vector<TDeviceType> gReadDeviceTypes(std::string_view sListing)
{
    std::vector<TDeviceType> types;
    while (!sListing.empty()) {
        std::string_view sRest = gNextLine(sListing);
        const std::string_view sName = gNextWord(sRest);
        sRest = gTrimmed(sRest);
        // The name is followed by blanks up to a column, then by the colon.
        if (sName.empty() || !sRest.starts_with(':')) {
            continue;
        }
        types.push_back({std::string(sName), std::string(gTrimmed(sRest.substr(1)))});
    }
    return types;
}

} // namespace quorvawiz::ngspice
