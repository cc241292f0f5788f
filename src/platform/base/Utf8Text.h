#pragma once

#include "platform/base/StringA.h"

#include <optional>
#include <string>
#include <string_view>

/// A text of the system's code page as UTF-8, to be shown or written to JSON. Always well-formed.
/// @param rsText the text
/// @return its characters; a byte that is not valid in the system's code page reads as its
///         Windows-1252 character, and one that Windows-1252 leaves undefined (0x81, 0x8D, 0x8F,
///         0x90, 0x9D) as the control character of the same number
[[nodiscard]] std::string gToUtf8(const CString& rsText);

/// A text in the system's code page from UTF-8.
/// @param sUtf8 the text in UTF-8
/// @return nullopt if a character has no place in the system's code page or the UTF-8 is ill-formed
[[nodiscard]] std::optional<CString> gFromUtf8(std::string_view sUtf8);
