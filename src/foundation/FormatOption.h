#pragma once

#include "foundation/UnitScale.h"

/// Codes by which a caller sets the format of a number, one at a time. They are numbers, as callers
/// store them, and every number is allowed.
struct TFormatOption {
    static constexpr int CountPlaces = 0;         ///< the digits count after the point
    static constexpr int Padded = 1;              ///< the padded form
    static constexpr int RemoveTrailingZeros = 2; ///< zeros at the fraction's end go
    static constexpr int KeepTrailingZeros = 3;   ///< zeros at the fraction's end stay
    static constexpr int RemoveZeroExponents = 4; ///< "e000" is left out
    static constexpr int KeepZeroExponents = 5;   ///< "e000" is written
    static constexpr int FirstUnitScale = 6;      ///< 6 to 10 are the scales 0 to 4
    static constexpr int None = 11;               ///< this and every other number does nothing
};

/// The option code of a scale.
/// @param eScale any value
/// @return 6 to 10; TFormatOption::None for Undefined and for a value that is no scale
[[nodiscard]] constexpr int gUnitScaleToOption(TeUnitScale eScale) noexcept
{
    const int nScale = static_cast<int>(eScale);
    const bool bKnown = nScale >= 0 && nScale < static_cast<int>(TeUnitScale::Undefined);
    return bKnown ? TFormatOption::FirstUnitScale + nScale : TFormatOption::None;
}
