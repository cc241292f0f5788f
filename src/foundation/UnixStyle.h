#pragma once

#include <string_view>

/// As gIsUnixStylePath, on 16-bit text.
[[nodiscard]] bool gIsUnixStyleText(std::u16string_view sPath);
