#pragma once

#include <functional>
#include <string_view>

class TCircuitParams;

namespace quorvawiz::cli
{

/// Tells a whole store as one JSON object, with a line per class, model and device. Maps are lists
/// in the order of the map, as their keys may be any bytes.
/// @param rStore the store
/// @param rWrite takes the text, piece by piece
void gDumpStore(const TCircuitParams& rStore,
                const std::function<void(std::string_view sText)>& rWrite);

} // namespace quorvawiz::cli
