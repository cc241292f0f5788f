#pragma once

#include "cli/FieldJson.h"

#include <nlohmann/json.hpp>

#include <string_view>

namespace quorvawiz::cli
{

/// How many lists and objects may lie within each other, the line's own object among them. No
/// request needs more than a few, and each costs stack wherever a value is copied or compared.
inline constexpr int kMostJsonDepth = 100;

/// Reads a line that holds one JSON object.
/// @param sLine one line without its end, of any length and content
/// @throws CRequestError if it doesn't, if it is nested deeper than kMostJsonDepth, or if a member
///         stands there twice: what is wrong, and where
TJson gParseJsonLine(std::string_view sLine);

} // namespace quorvawiz::cli
