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
