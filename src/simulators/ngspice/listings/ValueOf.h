#pragma once

#include "params/ParamValue.h"

#include <optional>
#include <span>
#include <string_view>

namespace quorvawiz::ngspice
{

/// What a parameter's values are.
enum class EValueKind {
    Flag,    ///< a bool
    Integer, ///< an int
    Real,    ///< a double
    Numbers, ///< several numbers: a vector, or real and imaginary part; a text of them, by blanks
    Text,    ///< a text
    Texts,   ///< several texts, such as names of nodes; a text of them, by blanks
    Expression, ///< a text that only the card has: an expression
};

/// Tells whether values of a kind are texts that aren't made of numbers.
[[nodiscard]] constexpr bool gIsTextKind(EValueKind eKind) noexcept
{
    return eKind == EValueKind::Text || eKind == EValueKind::Texts ||
           eKind == EValueKind::Expression;
}

/// The kind that belongs to the name of a type in the simulator's tables: "real", "flag",
/// "realvec". An unknown type is a text.
[[nodiscard]] EValueKind gKindOfType(std::string_view sType) noexcept;

/// The greatest magnitude of an integer that is believed. Parameters are switches, levels, counts
/// and numbers of nodes, which stay far below; what the simulator leaves uninitialised is 32 bits
/// of whatever the memory held, and 99 of 100 such values lie beyond. The rest can't be told from
/// real ones.
inline constexpr int kMostInteger = 10'000'000;

/// A number as the simulator prints it, if it is one to believe.
/// @param sText "1.5e-06", without white space at its ends
/// @return nullopt for what isn't a finite number in full ("-", "---------", "<<NAN, error = 7>>",
///         "nan", "inf"); for numbers too small for normal doubles: they are memory that nobody
///         initialised, read as a double; and for the greatest double, as far as the simulator's
///         six digits tell it: with that it marks what has no value
[[nodiscard]] std::optional<double> gNumberOf(std::string_view sText) noexcept;

/// The value that a listing shows for a parameter, where it is one to believe.
/// @param eKind the parameter's kind
/// @param values all lines of the parameter, without white space at their ends
/// @return nullopt for junk: no number (see gNumberOf); a flag that is neither 0 nor 1; an integer
///         beyond kMostInteger; several numbers of which one is junk; an empty text, "-" and
///         "<<NAN"
[[nodiscard]] std::optional<TParamValue> gValueOf(EValueKind eKind,
                                                  std::span<const std::string_view> values);

/// The value of a parameter that has none: an empty text for a text, else the uninitialised value.
[[nodiscard]] TParamValue gNoValue(EValueKind eKind);

} // namespace quorvawiz::ngspice
