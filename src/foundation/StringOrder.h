#pragma once

#include "foundation/MarkerRule.h"

#include <bit>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

/// Compares texts of one length by their last sizeof(TWord) bytes, as one little-endian number, and
/// then by the bytes in front of them.
template <class TWord>
[[nodiscard]] inline std::strong_ordering gCompareFromTail(std::string_view sLeft,
                                                           std::string_view sRight) noexcept
{
    static_assert(std::endian::native == std::endian::little);
    const std::size_t nHead = sLeft.size() - sizeof(TWord);
    TWord nLeft = 0;
    TWord nRight = 0;
    std::memcpy(&nLeft, sLeft.data() + nHead, sizeof(TWord));
    std::memcpy(&nRight, sRight.data() + nHead, sizeof(TWord));
    return nLeft != nRight ? nLeft <=> nRight
                           : std::memcmp(sLeft.data(), sRight.data(), nHead) <=> 0;
}

/// The fast total order of stored texts, which isn't alphabetical: the stored length decides,
/// marker included, then the length behind the marker, then the bytes from the end (names of one
/// kind differ in their last characters). Tables that list a map come out in this order.
/// @param sLeft, sRight the bytes as a CStringU stores them
/// @return equal exactly if the bytes are
[[nodiscard]] inline std::strong_ordering gCompareStored(std::string_view sLeft,
                                                         std::string_view sRight) noexcept
{
    if (sLeft.size() != sRight.size()) {
        return sLeft.size() <=> sRight.size();
    }
    const std::string_view sLeftText = gBehindMarker(sLeft);
    const std::string_view sRightText = gBehindMarker(sRight);
    const std::size_t nLength = sLeftText.size();
    if (nLength != sRightText.size()) {
        return nLength <=> sRightText.size();
    }
    if (nLength >= sizeof(std::uint64_t)) {
        return gCompareFromTail<std::uint64_t>(sLeftText, sRightText);
    }
    if (nLength >= sizeof(std::uint32_t)) {
        return gCompareFromTail<std::uint32_t>(sLeftText, sRightText);
    }
    return sLeftText <=> sRightText;
}
