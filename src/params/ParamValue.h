#pragma once

#include "foundation/StringU.h"

#include <boost/variant/variant.hpp>

#include <bit>
#include <cstdint>

/// The value of a parameter. A default-constructed one is the bool false.
using TParamValue = boost::variant<bool, int, double, CStringU>;

/// What TParamValue::which() gives for each alternative; the numbers are those of the params file.
struct TParamKind {
    static constexpr int Bool = 0;   ///< bool
    static constexpr int Int = 1;    ///< int
    static constexpr int Double = 2; ///< double
    static constexpr int Text = 3;   ///< CStringU
};

/// The number that says of a numeric parameter that it has no value yet: a quiet NaN. It is told
/// from others by its bits, see gIsUninitialized.
inline constexpr double kUninitializedParamValue =
    std::bit_cast<double>(std::uint64_t{0x7FFEEDFEEDEDAEDA});

/// Tells whether a number has exactly the bits of kUninitializedParamValue.
[[nodiscard]] constexpr bool gIsUninitialized(double dValue) noexcept
{
    return std::bit_cast<std::uint64_t>(dValue) ==
           std::bit_cast<std::uint64_t>(kUninitializedParamValue);
}

/// The text of a value as tables show it: "true" or "false"; a whole number in decimal; a number
/// with up to 8 digits after the point in the scale of the settings
/// (gGetEngineeringFormatSettings), or "<uninitialized>", or "NaN"; a text as it stands.
/// @param rValue any value
[[nodiscard]] CStringU ParamValueToText(const TParamValue& rValue);
