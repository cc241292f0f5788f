#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace quorvawiz::ngspice
{

/// A parameter that the cards of a letter give by a place, which the simulator's tables don't tell.
struct TPlacedParam {
    char cLetter = '\0';
    std::size_t nPlace = 0; ///< the word of the card; that of the name is 0
    std::string_view sName; ///< the parameter
    bool bNumber = false;   ///< it is there only if the word is a number
};

/// The parameters that cards give by a place, besides the principal ones: the gain and the source
/// of a controlled source, the inductors of a coupling, the nodes of a switch.
[[nodiscard]] std::span<const TPlacedParam> gPlacedParams() noexcept;

/// The parameter that a card's name stands for where the simulator's reader of cards has names that
/// its tables don't have: "l=" of an inductor, "len=" of a lossy line.
/// @param cLetter the device's letter, in lower case
/// @param sName the name on the card
/// @return the name in the table; sName itself where it isn't such a name
[[nodiscard]] std::string_view gTableName(char cLetter, std::string_view sName) noexcept;

} // namespace quorvawiz::ngspice
