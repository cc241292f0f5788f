#pragma once

#include <string>
#include <string_view>

namespace quorvawiz::ngspice
{

/// The simulator's own words about a failure: the lines that tell of an error, with the line behind
/// each, which often has the card; without any the last lines. Steps on the way to an operating
/// point and repeated lines are left out. There are twelve at most, the first and the last ones.
/// @param sError its standard error
/// @param sOut its standard output, which is asked where the other one is empty
/// @return the lines, a line feed and two blanks in front of each; empty if there are none
[[nodiscard]] std::string gOwnWords(std::string_view sError, std::string_view sOut);

} // namespace quorvawiz::ngspice
