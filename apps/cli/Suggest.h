#pragma once

#include <span>
#include <string>
#include <string_view>

namespace quorvawiz::cli
{

/// The candidate that looks most like a text: one that equals it, or whose part behind the last '/'
/// does, else one that has it among its words, else one that contains it or takes the fewest
/// changes of letters, in whole or in that part. Letter case of ASCII doesn't count; of equals the
/// first wins.
/// @param sWanted the text, in UTF-8
/// @param candidates what there is
/// @return one of the candidates; empty if there is none, and for a text too long to be a slip
std::string_view gNearest(std::string_view sWanted, std::span<const std::string> candidates);

/// The end of a message about an unknown name: "; did you mean "x"?", or nothing where gNearest
/// knows none.
std::string gDidYouMean(std::string_view sWanted, std::span<const std::string> candidates);

} // namespace quorvawiz::cli
