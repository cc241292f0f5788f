#pragma once

#include "platform/base/ByteBlock.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

/// A zero, a line feed and a carriage return are below this, and of what stands in texts only the
/// tab.
inline constexpr signed char kLineEndLimit = 0x0E;

/// Tells whether a byte or unit means something to the line end rule.
template <class TUnit> [[nodiscard]] constexpr bool gIsLineEndUnit(TUnit unit) noexcept
{
    return unit == TUnit('\n') || unit == TUnit('\r') || unit == TUnit('\0');
}

/// Finds the first zero, line feed or carriage return.
/// @return its index, or sText.size()
template <class TUnit>
[[nodiscard]] std::size_t gFindLineEnd(std::basic_string_view<TUnit> sText) noexcept
{
    if constexpr (sizeof(TUnit) == 1) {
        return gFindByBlocks(
            sText, [](TByteBlock block) { return (block >= 0) & (block < kLineEndLimit); },
            gIsLineEndUnit<TUnit>);
    } else {
        return static_cast<std::size_t>(
            std::find_if(sText.begin(), sText.end(), gIsLineEndUnit<TUnit>) - sText.begin());
    }
}

/// Finds the first byte that a line of plain text doesn't have: a zero, a line feed, a carriage
/// return, or a high byte.
/// @return its index, or sText.size()
[[nodiscard]] inline std::size_t gFindNotPlain(std::string_view sText) noexcept
{
    return gFindByBlocks(
        sText, [](TByteBlock block) { return block < kLineEndLimit; },
        [](char chByte) { return (chByte & 0x80) != 0 || gIsLineEndUnit(chByte); });
}

/// The line end rule of a text file: a line feed goes out as carriage return and line feed and
/// counts a line, a carriage return is dropped, a zero ends the text.
/// @param sText bytes or 16-bit units
/// @param rnLine the number of the line; the first character, dropped or not, takes it from 0 to 1
/// @param rPut takes the pieces that go out, one after the other, and returns false to stop
/// @return false if rPut did
template <class TUnit, class TPut>
bool gPutWithLineEnds(std::basic_string_view<TUnit> sText, int& rnLine, const TPut& rPut)
{
    constexpr TUnit lineEnd[] = {TUnit('\r'), TUnit('\n')};
    while (!sText.empty() && sText.front() != TUnit('\0')) {
        rnLine = rnLine == 0 ? 1 : rnLine;
        const std::size_t nRun = gFindLineEnd(sText);
        if (nRun > 0 && !rPut(sText.substr(0, nRun))) {
            return false;
        }
        sText.remove_prefix(nRun);
        if (sText.empty() || sText.front() == TUnit('\0')) {
            break;
        }
        if (sText.front() == TUnit('\n')) {
            ++rnLine;
            if (!rPut(std::basic_string_view<TUnit>(lineEnd, 2))) {
                return false;
            }
        }
        sText.remove_prefix(1);
    }
    return true;
}
