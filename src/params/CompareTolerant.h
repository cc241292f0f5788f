#pragma once

/// Compares two numbers that were worked out on different ways. They are equal if they differ by no
/// more than 1e-28, or by no more than dTolerance times 2^e, where e is the binary exponent of the
/// one of larger magnitude (its fraction is in [0.5, 1)). So the tolerance is relative.
///
/// Where one of them is kUninitializedParamValue, no tolerance applies, and as NaN isn't equal to
/// anything, the result is 1, for two such values too. With any other NaN it is 0.
/// @param dLeft, dRight the numbers
/// @param dTolerance at least 0
/// @return -1, 0 or 1: the left one is the lesser, the same, the greater
[[nodiscard]] int CompareTolerant(double dLeft, double dRight, double dTolerance) noexcept;
