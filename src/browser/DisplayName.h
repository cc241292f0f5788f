#pragma once

#include "foundation/StringU.h"
#include "params/CircuitParams.h"

/// The name of a device or model as lists and titles show it.
/// @param rStore the store that has it
/// @param nSubckt its subcircuit
/// @param rsName its name in there
/// @return the name of the subcircuit, a point and the name; the name alone for an id below 1
[[nodiscard]] CStringU gMakeDisplayName(const TCircuitParams& rStore, int nSubckt,
                                        const CStringU& rsName);

/// The name of a device as one asks for it by two names.
/// @param rsSubckt the subcircuit's name
/// @param rsDevice the device's name
/// @return both with a point between them; the device alone if the subcircuit is empty
[[nodiscard]] CStringU gMakeAskedName(const CStringU& rsSubckt, const CStringU& rsDevice);

/// What the title of a device's details says about it.
/// @param rsName the device, as one of the two above names it
/// @param rDevice the device, linked
/// @return the name and, if it has a model, the model's name in parentheses
[[nodiscard]] CStringU gMakeDeviceTitle(const CStringU& rsName, const TDeviceData& rDevice);
