#pragma once

#include "simulators/ngspice/listings/ShownValues.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace quorvawiz::ngspice
{

/// `showmod` tells no more than so many bytes of a model's name.
inline constexpr std::size_t kShownModelName = 21;

/// A model, as the command `showmod` tells it.
struct TShownModel {
    std::string_view sType; ///< the type of device, as gReadDeviceTypes names it
    std::string_view sName; ///< its flat name, cut behind kShownModelName bytes
    TShownValues values;

    friend bool operator==(const TShownModel&, const TShownModel&) = default;
};

/// Reads the listing of `showmod all : all`, made with the variable `altshow` set. Lines of another
/// form are passed over.
/// @param sListing any bytes; the texts of the result lead into it
/// @return the models in the order of the listing
[[nodiscard]] std::vector<TShownModel> gReadShownModels(std::string_view sListing);

} // namespace quorvawiz::ngspice
