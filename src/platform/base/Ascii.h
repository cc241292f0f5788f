#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

/// Finds the first byte whose top bit is set.
/// @param sText 8-bit text of any length
/// @return its index in bytes, or sText.size() where all bytes are 7-bit
[[nodiscard]] inline std::size_t gFindNonAscii(std::string_view sText) noexcept
{
    constexpr std::uint64_t topBits = 0x8080808080808080U;
    std::size_t nAt = 0;
    for (; nAt + sizeof(std::uint64_t) <= sText.size(); nAt += sizeof(std::uint64_t)) {
        std::uint64_t nWord = 0;
        std::memcpy(&nWord, sText.data() + nAt, sizeof(nWord));
        if ((nWord & topBits) != 0) {
            break;
        }
    }
    while (nAt < sText.size() && (static_cast<unsigned char>(sText[nAt]) & 0x80U) == 0) {
        ++nAt;
    }
    return nAt;
}

/// Finds the first 16-bit unit that is no ASCII character.
/// @param sText 16-bit text of any length
/// @return its index in units, or sText.size() where all units are below 0x80
[[nodiscard]] inline std::size_t gFindNonAscii(std::u16string_view sText) noexcept
{
    constexpr std::uint64_t highBits = 0xFF80FF80FF80FF80U;
    constexpr std::size_t unitsPerWord = sizeof(std::uint64_t) / sizeof(char16_t);
    std::size_t nAt = 0;
    for (; nAt + unitsPerWord <= sText.size(); nAt += unitsPerWord) {
        std::uint64_t nWord = 0;
        std::memcpy(&nWord, sText.data() + nAt, sizeof(nWord));
        if ((nWord & highBits) != 0) {
            break;
        }
    }
    while (nAt < sText.size() && sText[nAt] < 0x80) {
        ++nAt;
    }
    return nAt;
}

// Both copies go by blocks of a fixed size, which a compiler turns into vector instructions.
inline constexpr std::size_t kAsciiBlock = 16;

/// Widens each byte to one 16-bit unit, high bytes as unsigned.
/// @param sText the bytes
/// @param pOut room for as many units as there are bytes
inline void gWidenBytes(std::string_view sText, char16_t* pOut) noexcept
{
    const auto widen = [](char ch) {
        return static_cast<char16_t>(static_cast<unsigned char>(ch));
    };
    std::size_t nAt = 0;
    for (; nAt + kAsciiBlock <= sText.size(); nAt += kAsciiBlock) {
        for (std::size_t i = 0; i < kAsciiBlock; ++i) {
            pOut[nAt + i] = widen(sText[nAt + i]);
        }
    }
    for (; nAt < sText.size(); ++nAt) {
        pOut[nAt] = widen(sText[nAt]);
    }
}

/// Narrows ASCII text from 16-bit units to bytes.
/// @param sText units below 0x80; of any other only the low byte is kept
/// @param pOut room for as many bytes as there are units
inline void gNarrowAscii(std::u16string_view sText, char* pOut) noexcept
{
    std::size_t nAt = 0;
    for (; nAt + kAsciiBlock <= sText.size(); nAt += kAsciiBlock) {
        for (std::size_t i = 0; i < kAsciiBlock; ++i) {
            pOut[nAt + i] = static_cast<char>(sText[nAt + i]);
        }
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
