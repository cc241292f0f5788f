#pragma once

#include "foundation/StringU.h"

#include <initializer_list>
#include <string_view>

/// One argument of a call that is logged.
struct TLoggedArgument {
    std::string_view msName;
    const CStringU& mrValue;
};

/// Passes the line of a call to the logger, if there is one.
/// @param sFunction the function's name
/// @param arguments its arguments in order
/// @param rResult its result
void gLogPathCall(std::string_view sFunction, std::initializer_list<TLoggedArgument> arguments,
                  const CStringU& rResult);
