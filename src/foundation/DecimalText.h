#pragma once

/// Whether a character is white space in front of a number: the set of the C locale.
template <class TChar> [[nodiscard]] constexpr bool gIsNumberSpace(TChar chChar) noexcept
{
    return chChar == ' ' || (chChar >= '\t' && chChar <= '\r');
}

/// Whether a character is one of the ten ASCII digits.
template <class TChar> [[nodiscard]] constexpr bool gIsDecimalDigit(TChar chChar) noexcept
{
    return chChar >= '0' && chChar <= '9';
}
