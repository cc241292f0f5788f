#pragma once

#include <string_view>

// A file's own name and its folder, on 16-bit text and without a log line. Both are parts of the
// path that is given.

/// As gGetFileNameWithoutPath.
[[nodiscard]] std::u16string_view gFileNameOf(std::u16string_view sPath);

/// As gGetPathWithoutFileName.
[[nodiscard]] std::u16string_view gFolderOf(std::u16string_view sPath);
