#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

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
    std::size_t nAt = 0;
    if constexpr (sizeof(TUnit) == 1) {
        // Eight bytes at once: the top bit of each byte that is below 0x10 and has its own clear.
        constexpr std::uint64_t ones = 0x0101010101010101U;
        for (; nAt + sizeof(std::uint64_t) <= sText.size(); nAt += sizeof(std::uint64_t)) {
            std::uint64_t nWord = 0;
            std::memcpy(&nWord, sText.data() + nAt, sizeof(nWord));
            if (((nWord - 0x10 * ones) & ~nWord & (0x80 * ones)) != 0) {
                break;
            }
        }
    }
    while (nAt < sText.size() && !gIsLineEndUnit(sText[nAt])) {
        ++nAt;
    }
    return nAt;
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
