#pragma once

#include <string_view>

/// Tells by the ends of a file whether it was written in a text mode that makes CR LF of each LF.
/// The first line end says so. It may be the CR LF of a text, though, in a file that was written
/// without that mode; such a file ends with a line end of the archive itself, a bare LF, and one
/// that was written in that mode has none. So the last line end must agree.
/// @param sFirst the bytes up to the first LF or beyond
/// @param sLast the bytes from the last LF, and at least one before it, or from farther in front
[[nodiscard]] inline bool gIsTextMode(std::string_view sFirst, std::string_view sLast) noexcept
{
    const auto isCrLf = [](std::string_view sBytes, std::size_t nAt) {
        return nAt != std::string_view::npos && nAt > 0 && sBytes[nAt - 1] == '\r';
    };
    return isCrLf(sFirst, sFirst.find('\n')) && isCrLf(sLast, sLast.rfind('\n'));
}
