#pragma once

#include <string>
#include <string_view>

/// Lowers a text of the system's code page, character by character: A to Z, and each non-ASCII
/// character by the simple mapping of Unicode.
/// @param sText the bytes
/// @return the lowered text. What isn't valid, and a character whose small letter has no place in
///         the code page, keeps its bytes. In a code page with several bytes per character the
///         length may change
[[nodiscard]] std::string gToLowerInCodePage(std::string_view sText);

/// Raises a text of the system's code page: the mirror of gToLowerInCodePage.
/// @param sText the bytes
/// @return the raised text
[[nodiscard]] std::string gToUpperInCodePage(std::string_view sText);
