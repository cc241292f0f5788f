#pragma once

#include <string>

/// A finite number rounded to some decimal digits.
struct TRoundedDigits {
    std::string msDigits;    ///< as many digits as asked for, the first not 0 unless all are
    int mnPosition = 0;      ///< the point stands behind this many digits; 1 for zero
    bool mbNegative = false; ///< the sign bit, so true for minus zero
};

/// Rounds a number to significant decimal digits, correctly: by its exact value, a tie to the even
/// digit.
/// @param dValue a finite number
/// @param nCount how many digits, from 1 to kMostFormatDigits + 3
[[nodiscard]] TRoundedDigits gRoundToDigits(double dValue, unsigned nCount);
