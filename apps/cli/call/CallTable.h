#pragma once

#include "cli/call/CallFunction.h"

#include <string_view>
#include <vector>

namespace quorvawiz::cli
{

// The functions by family.
std::vector<TCallFunction> gNumberCalls();
std::vector<TCallFunction> gPathCalls();
std::vector<TCallFunction> gDiskCalls();
std::vector<TCallFunction> gStringCalls();
std::vector<TCallFunction> gTextFileCalls();
std::vector<TCallFunction> gStoreCalls();

/// Every function that can be called, in the order of their names.
const std::vector<TCallFunction>& gCallTable();

/// Finds a function.
/// @param sName its exact name
/// @throws CRequestError if there is none, with the nearest name
const TCallFunction& gFindCall(std::string_view sName);

/// Calls a function.
/// @param rFunction of the table
/// @param arguments what it is given
/// @throws CRequestError for too few or too many, or one of a wrong type
TJson gCall(const TCallFunction& rFunction, std::span<const TJson> arguments);

} // namespace quorvawiz::cli
