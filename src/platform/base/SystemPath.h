#pragma once

#include "platform/base/StringA.h"

#include <string>
#include <string_view>

/// A path as the calls of a POSIX system take it: "\" reads as "/", and the prefix `\\?\` is left
/// out.
/// @param sPath 8-bit text
[[nodiscard]] std::string gToSystemName(std::string_view sPath);

/// The name of a file in the system's code page as the calls of a POSIX system take it: as
/// gToSystemName, in UTF-8. Where that is the code page, the bytes stay as they are.
/// @param rsName 8-bit text in the system's code page
[[nodiscard]] std::string gToSystemFileName(const CString& rsName);

/// A path in 16-bit text as the calls of a POSIX system take it: as gToSystemName, in UTF-8.
/// @param sPath 16-bit text; a unit that is no character becomes "?"
[[nodiscard]] std::string gToSystemPath(std::u16string_view sPath);
