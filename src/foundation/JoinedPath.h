#pragma once

#include <string>
#include <string_view>

/// As gConcatenatePaths, on 16-bit text and without a log line.
[[nodiscard]] std::u16string gJoinPaths(std::u16string_view sPath, std::u16string_view sRelative);
