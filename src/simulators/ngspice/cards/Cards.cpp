#include "simulators/ngspice/cards/Cards.h"

#include "simulators/ngspice/listings/Lines.h"
#include "simulators/ngspice/listings/Listing.h"

namespace quorvawiz::ngspice
{
namespace
{

std::string_view FindIn(const std::unordered_map<std::string_view, std::string_view>& rCards,
                        std::string_view sName)
{
    const auto found = rCards.find(sName);
    return found != rCards.end() ? found->second : std::string_view();
}

} // namespace

CCards::CCards(std::string_view sListing)
{
    for (const std::string_view sCard : gReadListing(sListing)) {
        std::string_view sRest = sCard;
        const std::string_view sFirst = gNextWord(sRest);
        if (sFirst == ".model") {
            mModels.try_emplace(gNextWord(sRest), sCard);
        } else if (!sFirst.starts_with('.')) {
            mDevices.try_emplace(sFirst, sCard);
            mDeviceNames.push_back(sFirst);
        }
    }
}

std::string_view CCards::FindDevice(std::string_view sName) const
{
    return FindIn(mDevices, sName);
}

std::string_view CCards::FindModel(std::string_view sName) const
{
    const std::string_view sExact = FindIn(mModels, sName);
    return sExact.empty() ? FindIn(mModels, sName.substr(0, sName.rfind('.'))) : sExact;
}

} // namespace quorvawiz::ngspice
