#pragma once

#include "foundation/StringU.h"
#include "params/ParamDef.h"

#include <map>

/// From any spelling of a name to its exact spelling.
using TNameIndex = std::map<CStringU, CStringU, TStringLessNoCase>;

/// Finds a value by its parameter's name: exactly, else without regard to case.
/// @param rsName the name in any spelling
/// @param rValues the values
/// @param rIndex of the same values; filled here when it is needed and empty. Of names that differ
///               in their case alone it keeps the first in the order of the map
/// @return a copy of the value; the bool false where there is none
[[nodiscard]] TParamValue gFindParamValue(const CStringU& rsName, const TParamValues& rValues,
                                          TNameIndex& rIndex);
