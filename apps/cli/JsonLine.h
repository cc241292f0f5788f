#pragma once

#include "cli/FieldJson.h"

#include <nlohmann/json.hpp>

#include <string_view>

namespace quorvawiz::cli
{

/// Reads a line that holds one JSON object.
/// @param sLine one line without its end, of any length and content
/// @throws CRequestError if it doesn't, or if a member stands there twice: what is wrong, and where
TJson gParseJsonLine(std::string_view sLine);

} // namespace quorvawiz::cli
