#pragma once

#include "browser/ParamTable.h"
#include "foundation/StringU.h"
#include "params/CircuitParams.h"
#include "params/ListEntries.h"

#include <vector>

/// The devices that a list shows.
struct TDeviceList {
    std::vector<TDeviceListEntry> mEntries; ///< in the order of the store
    CStringU msFilter; ///< the subcircuit that the list is limited to, or empty
};

/// The devices of a subcircuit, or all of them.
/// @param rStore the store
/// @param rsFilter the subcircuit's name. An empty one, and one that the store doesn't know, limits
///                 nothing and doesn't stay in the result
[[nodiscard]] TDeviceList gMakeDeviceList(const TCircuitParams& rStore, const CStringU& rsFilter);

/// The table of devices: name, model and type.
/// @param rStore the store that has them
/// @param rDevices its rows, in this order
/// @param rsFilter the subcircuit that the list is limited to, or empty: it and a point stand in
///                 front of each name as gMakeDisplayName gives it
[[nodiscard]] TParamTableData gMakeDevicesTable(const TCircuitParams& rStore,
                                                const std::vector<TDeviceListEntry>& rDevices,
                                                const CStringU& rsFilter);

/// The table of library models: name, type, level and the simulator's name of the class.
/// @param rStore the store that has them
/// @param rModels its rows, in this order
[[nodiscard]] TParamTableData gMakeModelsTable(const TCircuitParams& rStore,
                                               const std::vector<TModelListEntry>& rModels);
