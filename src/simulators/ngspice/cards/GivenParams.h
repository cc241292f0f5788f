#pragma once

#include "simulators/ngspice/cards/CardTokens.h"
#include "simulators/ngspice/listings/ClassPlan.h"

#include <optional>
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
/// parameter's place; by a place of its own (PlacedParams.h); as a number behind the model, which
/// is the area.
/// @param sCard the card
/// @param tokens its words, which lead into it, the device's name first
/// @param sModel the flat name of its model, if it has a card
/// @param rPlans the device's parameters
/// @param rGiven receives them, perhaps some of them twice; its memory is used again
void gFindGivenOnDevice(std::string_view sCard, std::span<const TCardToken> tokens,
                        std::string_view sModel, const CParamPlans& rPlans,
                        std::vector<TGivenParam>& rGiven);

/// The parameters that a .model card gives: by "NAME=VALUE", by the bare name of a flag, and by the
/// type ("npn") where that is a flag, too.
/// @param sCard the card
/// @param tokens its words, which lead into it: ".model", the name, the type and the parameters
/// @param rPlans the model's parameters
/// @param rGiven receives them, perhaps some of them twice; its memory is used again
void gFindGivenOnModel(std::string_view sCard, std::span<const TCardToken> tokens,
                       const CParamPlans& rPlans, std::vector<TGivenParam>& rGiven);

/// The value that a card's own text has. It isn't what the simulator made of it, and is for what
/// the simulator doesn't show.
/// @param rGiven what the card gives
/// @return the uninitialised value for a number that can't be read; true for a flag without a text
[[nodiscard]] TParamValue gValueOnCard(const TGivenParam& rGiven);

/// The value of a parameter that a card gives: the one that the simulator shows, as it has worked
/// out expressions and units. But no simulator converts integers: a whole number on the card is the
/// value even where another one is shown, which is memory that nobody filled.
/// @param rGiven what the card gives
/// @param shown the lines of the listing
/// @return nullopt where what is shown isn't to be believed, see gValueOf
[[nodiscard]] std::optional<TParamValue> gValueOfGiven(const TGivenParam& rGiven,
                                                       std::span<const std::string_view> shown);

} // namespace quorvawiz::ngspice
