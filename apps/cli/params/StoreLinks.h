#pragma once

#include <string>
#include <vector>

class TCircuitParams;

namespace quorvawiz::cli
{

/// Looks for what a store names and doesn't have: the class of a model or a device, the model of a
/// device, the name of a subcircuit with models or devices, and an id in the table whose name is
/// another. An empty name names nothing.
/// @return a line for each, in the order of the store
std::vector<std::string> gFindDanglingLinks(const TCircuitParams& rStore);

} // namespace quorvawiz::cli
