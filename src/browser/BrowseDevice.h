#pragma once

#include "foundation/StringU.h"
#include "params/CircuitParams.h"

class CWnd;

/// Shows the details of a device. Where there is no such device, it shows the list of devices: of
/// the subcircuit that the names together mean (the device in an empty subcircuit is the name of
/// one), else all of them.
/// @param pParent the window that owns the dialog, may be null
/// @param rParams the store
/// @param rsSubckt the exact name of the subcircuit, or empty
/// @param rsDevice the exact name of the device
/// @return whether the user has asked for another evaluation, or calculation
bool gBrowseDevice(CWnd* pParent, const TCircuitParams& rParams, const CStringU& rsSubckt,
                   const CStringU& rsDevice);
