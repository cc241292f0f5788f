#pragma once

#include "simulators/ngspice/CardTokens.h"
#include "simulators/ngspice/ClassPlan.h"

#include <span>
#include <string_view>
#include <vector>

namespace quorvawiz::ngspice
{

/// A parameter that a card gives.
struct TGivenParam {
    const TParamPlan* pPlan = nullptr;
    std::string_view sText; ///< the card's text for the value, "1k" or "0.5,1"; or empty
};

/// The parameters that the card of a device gives: by "NAME=VALUE" under any of its names; by the
/// bare name of a flag or, on independent sources, of any parameter; by a number in the principal
/// parameter's place; as a number behind the model, which is the area.
/// @param tokens the card, the device's name first
/// @param sModel the flat name of its model, if it has a card
/// @param rPlans the device's parameters
/// @param rGiven receives them, perhaps some of them twice; its memory is used again
void gFindGivenOnDevice(std::span<const TCardToken> tokens, std::string_view sModel,
                        const CParamPlans& rPlans, std::vector<TGivenParam>& rGiven);

/// The parameters that a .model card gives: by "NAME=VALUE", by the bare name of a flag, and by the
/// type ("npn") where that is a flag, too.
/// @param tokens the card: ".model", the name, the type and the parameters
/// @param rPlans the model's parameters
/// @param rGiven receives them, perhaps some of them twice; its memory is used again
void gFindGivenOnModel(std::span<const TCardToken> tokens, const CParamPlans& rPlans,
                       std::vector<TGivenParam>& rGiven);

/// The value that a card's own text has. It isn't what the simulator made of it, and is for what
/// the simulator doesn't show.
/// @param rGiven what the card gives
/// @return the uninitialised value for a number that can't be read; true for a flag without a text
[[nodiscard]] TParamValue gValueOnCard(const TGivenParam& rGiven);

} // namespace quorvawiz::ngspice
