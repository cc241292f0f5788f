#pragma once

#include "foundation/ExpandEnvironment.h"

#include <string>
#include <string_view>

// The rules behind the functions of Paths.h that others of them need, too, on 16-bit text and
// without a log line.

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

/// As gConcatenatePaths.
[[nodiscard]] std::u16string gJoinPaths(std::u16string_view sPath, std::u16string_view sRelative);

/// As gIsUnixStylePath.
[[nodiscard]] bool gIsUnixStyleText(std::u16string_view sPath);

/// As gGetFileNameWithoutPath.
[[nodiscard]] std::u16string_view gFileNameOf(std::u16string_view sPath);

/// As gGetPathWithoutFileName.
[[nodiscard]] std::u16string_view gFolderOf(std::u16string_view sPath);
