#pragma once

#include <string_view>
#include <vector>

namespace quorvawiz::ngspice
{

/// A word of a card.
struct TCardToken {
    std::string_view sText;
    bool bAssigned = false; ///< it has "=" behind it
    bool bValue = false;    ///< it has "=" in front of it

    friend bool operator==(const TCardToken&, const TCardToken&) = default;
};

/// Takes a card of the netlist apart. White space, commas and parentheses stand between words, and
/// so does "=". What stands in braces or in quotes is one word.
/// @param sCard any bytes
/// @param rTokens receives the words, which lead into sCard; its memory is used again
void gReadCardTokens(std::string_view sCard, std::vector<TCardToken>& rTokens);

} // namespace quorvawiz::ngspice
