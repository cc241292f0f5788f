#pragma once

/// Tells whether a character is white space for TrimLeft and TrimRight: the blanks, tabs and line
/// ends of ASCII, the spaces of different widths, and the mark that begins a file. The blank at
/// U+00A0, at which no line breaks, is not one.
/// @param chChar a 16-bit unit
[[nodiscard]] constexpr bool gIsWhiteSpace(char16_t chChar) noexcept
{
    return chChar == 32 || (chChar >= 9 && chChar <= 13) || (chChar >= 8192 && chChar <= 8203) ||
           chChar == 8239 || chChar == 8287 || chChar == 12288 || chChar == 65279;
}

/// Tells whether a character is a quote for StripQuotes and AddQuotes: the double quotation mark,
/// its full width form, the left guillemet, and of the curved marks the left and the reversed one.
/// @param chChar a 16-bit unit
[[nodiscard]] constexpr bool gIsQuote(char16_t chChar) noexcept
{
    return chChar == 34 || chChar == 171 || chChar == 8220 || chChar == 8223 || chChar == 65282;
}
