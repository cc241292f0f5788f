#pragma once

#include <cmath>

/// The word for a number that has no digits, whatever the format.
/// @return "nan", "inf" or "-inf"; null for a finite number
[[nodiscard]] inline const char* gNonFiniteWord(double dValue) noexcept
{
    if (std::isfinite(dValue)) {
        return nullptr;
    }
    if (std::isnan(dValue)) {
        return "nan";
    }
    return dValue < 0 ? "-inf" : "inf";
}
