#pragma once

#include "params/ModelData.h"
#include "simulators/ngspice/cards/Cards.h"
#include "simulators/ngspice/cards/FlatName.h"
#include "simulators/ngspice/catalogue/Catalogue.h"
#include "simulators/ngspice/listings/ShownModels.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quorvawiz::ngspice
{

/// A model that devices name, or the class of devices without a card.
struct TKnownModel {
    const TClass* pClass = nullptr;      ///< null where it isn't known
    const TShownModel* pShown = nullptr; ///< what `showmod` tells; null where it doesn't
    std::string_view sCard;              ///< empty without a card
    TModelHeader header;                 ///< its subcircuit's id is still 0
    std::vector<std::string> instances;  ///< of subcircuits, down to where it is declared
};

/// The models of a netlist, found by their flat names.
class CKnownModels
{
public:
    /// @param rCatalogue, rCards, rShown, rInstances stay where they are
    CKnownModels(const CCatalogue& rCatalogue, const CCards& rCards,
                 const std::vector<TShownModel>& rShown, const TInstanceNames& rInstances)
        : mrCatalogue(rCatalogue), mrCards(rCards), mrShown(rShown), mrInstances(rInstances)
    {
    }

    /// The model of a device. `showmod` cuts names, but tells models in the order in which `show`
    /// comes to them; so a cut name is that of the first such model that no other one took, and
    /// names must be asked for in the order of `show`.
    /// @param sName the flat name, as `show` has it; a capital letter where there is no card
    /// @param rbNew receives whether it was never asked for before
    const TKnownModel& Find(std::string_view sName, bool& rbNew);

private:
    TKnownModel Make(std::string_view sName);
    const TShownModel* Take(std::string_view sName);

    const CCatalogue& mrCatalogue;
    const CCards& mrCards;
    const std::vector<TShownModel>& mrShown;
    const TInstanceNames& mrInstances;
    std::size_t mnNext = 0; // of mrShown: the first one that isn't taken
    std::unordered_map<std::string_view, TKnownModel> mModels;
};

} // namespace quorvawiz::ngspice
