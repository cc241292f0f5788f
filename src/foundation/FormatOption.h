#pragma once

#include "foundation/UnitScale.h"

/// Codes by which a caller sets the format of a number, one at a time.
enum EFormatOption : int {
    kCountPlaces = 0,         ///< the digits count after the point
    kPadded = 1,              ///< the padded form
    kRemoveTrailingZeros = 2, ///< zeros at the fraction's end go
    kKeepTrailingZeros = 3,   ///< zeros at the fraction's end stay
    kRemoveZeroExponents = 4, ///< "e000" is left out
    kKeepZeroExponents = 5,   ///< "e000" is written
    kFirstUnitScale = 6,      ///< 6 to 10 are the scales 0 to 4
    kNoFormatOption = 11,     ///< this and every other number does nothing
};

/// The option code of a scale.
/// @param eScale any value
/// @return 6 to 10; kNoFormatOption for Undefined and for a value that is no scale
[[nodiscard]] constexpr int gUnitScaleToOption(TeUnitScale eScale) noexcept
{
    const int nScale = static_cast<int>(eScale);
    const bool bKnown = nScale >= 0 && nScale < static_cast<int>(TeUnitScale::Undefined);
    return bKnown ? kFirstUnitScale + nScale : kNoFormatOption;
}
