#pragma once

#include "params/CircuitParams.h"

#include <cstdint>

namespace quorvawiz::cli
{

/// Fills an empty store with a plausible circuit: a top level and subcircuits of about 200 devices,
/// models in each, devices of every class with about 12 values each, some of them without a model.
/// @param rStore receives it
/// @param nDevices how many devices
/// @param nSeed the same seed makes the same store, on every machine
void gFillExample(TCircuitParams& rStore, int nDevices, std::uint64_t nSeed);

} // namespace quorvawiz::cli
