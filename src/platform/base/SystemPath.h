#pragma once

#include "platform/base/StringA.h"

#include <string>
#include <string_view>

/// A path as the calls of a POSIX system take it: in UTF-8, "\" reads as "/", and the prefix `\\?\`
/// is left out. 8-bit text is decoded first, as a byte of it that looks like a separator may be
/// half of a character.
/// @param sPath 16-bit text; a unit that is no character becomes "?"
[[nodiscard]] std::string gToSystemPath(std::u16string_view sPath);

/// The name of a file in the system's code page as the calls of a POSIX system take it: as
/// gToSystemPath. Where the code page is UTF-8, bytes that are no characters stay as they are.
/// @param rsName 8-bit text in the system's code page
[[nodiscard]] std::string gToSystemFileName(const CString& rsName);

/// A path in UTF-8 as the calls of a POSIX system take it: as gToSystemPath, but bytes that are no
/// characters stay as they are, whatever the system's code page is.
/// @param sPath 8-bit text in UTF-8
[[nodiscard]] std::string gToSystemPathOfUtf8(std::string_view sPath);
