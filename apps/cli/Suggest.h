#pragma once

#include <span>
#include <string>
#include <string_view>

namespace quorvawiz::cli
{

/// A text in quotation marks for a message, cut where it is long.
/// @param sText UTF-8
std::string gQuoted(std::string_view sText);

/// The candidate that looks most like a text: one that contains it, else the one that takes the
/// fewest changes of letters. Letter case of ASCII doesn't count; of equals the first wins.
/// @param sWanted the text, in UTF-8
/// @param candidates what there is
/// @return one of the candidates; empty if there is none, and for a text too long to be a slip
std::string_view gNearest(std::string_view sWanted, std::span<const std::string> candidates);

/// The end of a message about an unknown name: "; did you mean "x"?", or nothing where gNearest
/// knows none.
std::string gDidYouMean(std::string_view sWanted, std::span<const std::string> candidates);

} // namespace quorvawiz::cli
