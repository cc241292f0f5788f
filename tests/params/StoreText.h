#pragma once

#include "params/CircuitParams.h"

#include <string>
#include <string_view>

/// The bytes that our archive writes of a store.
std::string gOursOf(const TCircuitParams& rStore);

/// The bytes that the library's text archive writes of a store, with 17 for its version, as ours.
std::string gStockOf(const TCircuitParams& rStore);

/// Has our archive read bytes.
/// @throws CParamsArchiveError for those that it refuses
void gReadOurs(std::string_view sBytes, TCircuitParams& rStore);

/// Has the library's text archive read bytes.
void gReadStock(const std::string& rsBytes, TCircuitParams& rStore);

/// All that a store holds, line by line: numbers by their bits, texts by their stored bytes,
/// pointers by what they lead to.
std::string gDescribe(const TCircuitParams& rStore);
