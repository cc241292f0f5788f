#include "simulators/ngspice/cards/FlatName.h"

#include <cstddef>

namespace quorvawiz::ngspice
{
namespace
{

/// The longest instance whose name a text begins with, a point and more behind it; or empty.
std::string_view InstanceAt(std::string_view sRest, const TInstanceNames& rInstances)
{
    std::string_view sLongest;
    std::size_t nPoint = sRest.find('.');
    while (nPoint != std::string_view::npos && nPoint + 1 < sRest.size()) {
        if (rInstances.contains(sRest.substr(0, nPoint))) {
            sLongest = sRest.substr(0, nPoint);
        }
        nPoint = sRest.find('.', nPoint + 1);
    }
    return sLongest;
}

} // namespace

TFlatName gSplitDeviceName(std::string_view sFlat, const TInstanceNames& rInstances)
{
    TFlatName name;
    const std::string_view sLetter = sFlat.substr(0, 2); // with its point
    std::string_view sRest = sFlat;
    while (sLetter.ends_with('.')) {
        // Only some levels may repeat the letter; the device's own name may begin like that, too.
        const bool bLetter = sRest.starts_with(sLetter);
        const std::string_view sBehind = sRest.substr(bLetter ? sLetter.size() : 0);
        const std::string_view sInstance = InstanceAt(sBehind, rInstances);
        if (sInstance.empty()) {
            break;
        }
        name.instances.emplace_back(sInstance);
        sRest = sBehind.substr(sInstance.size() + 1);
    }
    name.sName = sRest;
    return name;
}

TFlatName gSplitModelName(std::string_view sFlat, const TInstanceNames& rInstances)
{
    TFlatName name;
    std::string_view sRest = sFlat;
    std::size_t nColon = sRest.find(':');
    while (nColon != std::string_view::npos && nColon + 1 < sRest.size() &&
           rInstances.contains(sRest.substr(0, nColon))) {
        name.instances.emplace_back(sRest.substr(0, nColon));
        sRest.remove_prefix(nColon + 1);
        nColon = sRest.find(':');
    }
    name.sName = sRest;
    return name;
}

} // namespace quorvawiz::ngspice
