#pragma once

#include "platform/base/ByteBlock.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

/// Finds the first byte whose top bit is set.
/// @param sText 8-bit text of any length
/// @return its index in bytes, or sText.size() where all bytes are 7-bit
[[nodiscard]] inline std::size_t gFindNonAscii(std::string_view sText) noexcept
{
    return gFindByBlocks(
        sText, [](TByteBlock block) { return block < 0; }, [](char /*chByte*/) { return true; });
}

/// Finds the first 16-bit unit that is no ASCII character.
/// @param sText 16-bit text of any length
/// @return its index in units, or sText.size() where all units are below 0x80
[[nodiscard]] inline std::size_t gFindNonAscii(std::u16string_view sText) noexcept
{
    std::size_t nAt = 0;
    while (nAt + kUnitBlock <= sText.size() && !gAnySet(gLoadBlock(sText.data() + nAt) >= 0x80)) {
        nAt += kUnitBlock;
    }
    while (nAt < sText.size() && sText[nAt] < 0x80) {
        ++nAt;
    }
    return nAt;
}

/// Stores each byte of a block as one 16-bit unit, high bytes as unsigned.
/// @param pOut room for kByteBlock units
inline void gStoreWidened(TByteBlock block, char16_t* pOut) noexcept
{
    char16_t units[kByteBlock];
    for (std::size_t i = 0; i < kByteBlock; ++i) {
        units[i] = static_cast<unsigned char>(block[i]);
    }
    std::memcpy(pOut, units, sizeof(units));
}

/// Appends each byte as one 16-bit unit, high bytes as unsigned.
/// @param sText the bytes
/// @param rsOut the text to append to
inline void gAppendWidened(std::string_view sText, std::u16string& rsOut)
{
    // By way of room of its own, which spares the text the filling of new room with zeros.
    constexpr std::size_t room = 16 * kByteBlock;
    char16_t units[room];
    for (std::size_t nDone = 0; nDone < sText.size(); nDone += room) {
        const std::string_view sPart = sText.substr(nDone, room);
        for (std::size_t nAt = 0; nAt < sPart.size(); nAt += kByteBlock) {
            gStoreWidened(gLoadSome(sPart.substr(nAt)), units + nAt);
        }
        rsOut.append(units, sPart.size());
    }
}

/// Narrows a block of 16-bit units to bytes, of each unit the low byte.
/// @param pUnits kByteBlock units at any address
/// @param pOut room for kByteBlock bytes
inline void gNarrowBlock(const char16_t* pUnits, char* pOut) noexcept
{
    char16_t units[kByteBlock];
    unsigned char bytes[kByteBlock];
    std::memcpy(units, pUnits, sizeof(units));
    for (std::size_t i = 0; i < kByteBlock; ++i) {
        bytes[i] = static_cast<unsigned char>(units[i]);
    }
    std::memcpy(pOut, bytes, sizeof(bytes));
}

/// Narrows ASCII text from 16-bit units to bytes.
/// @param sText units below 0x80; of any other only the low byte is kept
/// @param pOut room for as many bytes as there are units
inline void gNarrowAscii(std::u16string_view sText, char* pOut) noexcept
{
    std::size_t nAt = 0;
    for (; nAt + kByteBlock <= sText.size(); nAt += kByteBlock) {
        gNarrowBlock(sText.data() + nAt, pOut + nAt);
    }
    for (; nAt < sText.size(); ++nAt) {
        pOut[nAt] = static_cast<char>(sText[nAt]);
    }
}

/// Tells whether every byte of the text is 7-bit.
/// @param sText 8-bit text of any length; the empty text is ASCII
[[nodiscard]] inline bool gIsAscii(std::string_view sText) noexcept
{
    return gFindNonAscii(sText) == sText.size();
}

/// Tells whether a byte or a 16-bit unit is an ASCII character.
template <class TUnit> [[nodiscard]] constexpr bool gIsAsciiUnit(TUnit unit) noexcept
{
    return std::char_traits<TUnit>::to_int_type(unit) < 0x80;
}

/// Lowers A to Z, whatever the locale.
/// @param chChar any byte
/// @return the lower case letter, or chChar itself where it is no ASCII capital
[[nodiscard]] constexpr char gToLowerAscii(char chChar) noexcept
{
    return chChar >= 'A' && chChar <= 'Z' ? static_cast<char>(chChar + ('a' - 'A')) : chChar;
}

/// Raises a to z, whatever the locale.
/// @param chChar any byte
/// @return the capital, or chChar itself where it is no ASCII small letter
[[nodiscard]] constexpr char gToUpperAscii(char chChar) noexcept
{
    return chChar >= 'a' && chChar <= 'z' ? static_cast<char>(chChar - ('a' - 'A')) : chChar;
}
