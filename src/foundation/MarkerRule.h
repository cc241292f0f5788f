#pragma once

#include <string>
#include <string_view>

/// Puts a text into the form in which a CStringU stores it: 7-bit text as it is, and a marker in
/// front of any other text that begins with a 7-bit byte.
/// @param sText the bytes of the text, without a marker
[[nodiscard]] std::string gStoreMarked(std::string_view sText);

/// Encodes a text into the form in which a CStringU stores it, into a buffer of the exact size.
/// @param sText the units; what stands behind a zero is left out
[[nodiscard]] std::string gStoreWide(std::u16string_view sText);
