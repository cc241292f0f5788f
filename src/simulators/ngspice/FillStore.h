#pragma once

#include "simulators/ngspice/cards/FlatName.h"
#include "simulators/ngspice/catalogue/Catalogue.h"

#include <cstddef>
#include <string>
#include <string_view>

class TCircuitParams;

namespace quorvawiz::ngspice
{

/// What a simulator told about a netlist.
struct TNetlistListings {
    std::string_view sShow;    ///< listing of `show all : all`, see ShownDevices.h
    std::string_view sShowMod; ///< listing of `showmod all : all`, see ShownModels.h
    std::string_view sExpand;  ///< listing of `listing expand`, see Listing.h
    TInstanceNames instances;  ///< the subcircuits' instances of the netlist itself
};

/// The name of the top level in the store's table of subcircuits.
inline constexpr const char* kTopLevel = "top";

/// What came into a store.
struct TFilled {
    std::size_t nModels = 0;
    std::size_t nDevices = 0;
    std::size_t nWithoutClass = 0; ///< devices whose class isn't known, and so no value of theirs
};

/// Fills a store with a simulator's classes and with what a netlist has: subcircuits by the paths
/// of their instances, "xtop.x1"; models with a card; all devices. Values are what the simulator
/// shows. Of a model and a device there are those that a card gives, and of a device's state all
/// that are to be believed. A default that a model or a device contradicts, whose card doesn't give
/// the parameter, is left out: it would be shown as the value that it isn't.
/// @param rCatalogue the classes of the simulator
/// @param rListings any bytes
/// @param rsOrigin what stands behind the description of each class: "ngspice-39, amplifier.cir"
/// @param rStore an empty store
[[nodiscard]] TFilled gFillStore(const CCatalogue& rCatalogue, const TNetlistListings& rListings,
                                 const std::string& rsOrigin, TCircuitParams& rStore);

} // namespace quorvawiz::ngspice
