#pragma once

#include "foundation/ExpandEnvironment.h"

#include <string>
#include <string_view>

// The canonical form and what is told by it, on 16-bit text and without a log line.

/// As gCanonicalizePath.
/// @param sPath the path
/// @param rNames the variables being expanded; an empty list for a path of a caller
[[nodiscard]] std::u16string gCanonicalForm(std::u16string sPath, TExpandedNames& rNames);

/// As gCanonicalizePath.
[[nodiscard]] std::u16string gCanonicalForm(std::u16string sPath);

/// As gIsAbsolutePath, with the variables being expanded.
[[nodiscard]] bool gIsAbsoluteText(std::u16string_view sPath, TExpandedNames& rNames);

/// As gIsAbsolutePath.
[[nodiscard]] bool gIsAbsoluteText(std::u16string_view sPath);
