#pragma once

#include <string_view>

/// Tells by the ends of a file whether it was written in a text mode that makes CR LF of each LF.
/// A text in the file may hold a CR LF of its own, so that both the first and the last line end are
/// asked.
/// @param sFirst the bytes up to the first LF or beyond
/// @param sLast the bytes from the last LF, and at least one before it, or from farther in front
[[nodiscard]] inline bool gIsTextMode(std::string_view sFirst, std::string_view sLast) noexcept
{
    const auto isCrLf = [](std::string_view sBytes, std::size_t nAt) {
        return nAt != std::string_view::npos && nAt > 0 && sBytes[nAt - 1] == '\r';
    };
    return isCrLf(sFirst, sFirst.find('\n')) && isCrLf(sLast, sLast.rfind('\n'));
}
