#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

/// Sixteen bytes at once, by the vectors that g++ and clang have on every machine. Operators work
/// on each byte; a comparison gives all bits set for true.
using TByteBlock __attribute__((vector_size(16))) = signed char;

/// The bytes in a block.
inline constexpr std::size_t kByteBlock = sizeof(TByteBlock);

/// Loads a block.
/// @param pBytes kByteBlock bytes at any address
[[nodiscard]] inline TByteBlock gLoadBlock(const char* pBytes) noexcept
{
    TByteBlock block;
    std::memcpy(&block, pBytes, kByteBlock);
    return block;
}

/// Loads a text that may be shorter than a block.
/// @param sBytes any bytes
/// @return its first kByteBlock bytes; zeros in the place of those that aren't there
[[nodiscard]] inline TByteBlock gLoadSome(std::string_view sBytes) noexcept
{
    const std::size_t nCount = sBytes.size();
    if (nCount >= kByteBlock) {
        return gLoadBlock(sBytes.data());
    }
    // By two words that overlap: copying a number of bytes that varies costs more than the rest.
    const auto load = [&sBytes]<class TWord>(std::size_t nAt, TWord nWord) -> std::uint64_t {
        std::memcpy(&nWord, sBytes.data() + nAt, sizeof(nWord));
        return nWord;
    };
    std::array<std::uint64_t, 2> words{};
    if (nCount > 8) {
        words = {load(0, std::uint64_t()),
                 load(nCount - 8, std::uint64_t()) >> (8 * (16 - nCount))};
    } else if (nCount >= 4) {
        words[0] = load(0, std::uint32_t()) | load(nCount - 4, std::uint32_t())
                                                  << (8 * (nCount - 4));
    } else {
        for (std::size_t nAt = nCount; nAt-- > 0;) {
            words[0] = words[0] << 8U | static_cast<unsigned char>(sBytes[nAt]);
        }
    }
    static_assert(std::endian::native == std::endian::little);
    return std::bit_cast<TByteBlock>(words);
}

/// Eight 16-bit units at once.
using TUnitBlock __attribute__((vector_size(16))) = std::uint16_t;

/// The units in a block.
inline constexpr std::size_t kUnitBlock = sizeof(TUnitBlock) / sizeof(std::uint16_t);

/// Loads a block.
/// @param pUnits kUnitBlock units at any address
[[nodiscard]] inline TUnitBlock gLoadBlock(const char16_t* pUnits) noexcept
{
    TUnitBlock block;
    std::memcpy(&block, pUnits, sizeof(block));
    return block;
}

/// The results of a comparison as bits.
/// @param block all bits of each element set or clear
/// @return bit n for byte n
template <class TBlock> [[nodiscard]] inline unsigned gMaskOf(TBlock block) noexcept
{
#ifdef __SSE2__
    return static_cast<unsigned>(_mm_movemask_epi8(reinterpret_cast<__m128i>(block)));
#else
    const auto bytes = std::bit_cast<std::array<signed char, kByteBlock>>(block);
    unsigned nMask = 0;
    for (std::size_t i = 0; i < kByteBlock; ++i) {
        nMask |= bytes[i] < 0 ? 1U << i : 0U;
    }
    return nMask;
#endif
}

/// Finds the first element for which a comparison holds.
/// @return the index of its first byte; more than kByteBlock for none
template <class TBlock> [[nodiscard]] inline std::size_t gFindSet(TBlock block) noexcept
{
    return static_cast<std::size_t>(std::countr_zero(gMaskOf(block)));
}

/// Tells whether a comparison holds for any element.
template <class TBlock> [[nodiscard]] inline bool gAnySet(TBlock block) noexcept
{
    return gMaskOf(block) != 0;
}

/// Finds the first byte of a text for which something holds.
/// @param sText any bytes
/// @param rMayHold from a TByteBlock to a comparison, each byte by itself, that is set at least for
///                 the bytes for which it holds
/// @param rHolds tells of one such byte whether it does
/// @return its index, or sText.size()
template <class TMayHold, class THolds>
[[nodiscard]] inline std::size_t gFindByBlocks(std::string_view sText, const TMayHold& rMayHold,
                                               const THolds& rHolds) noexcept
{
    // A bit for each byte from nFirst on. Result: the index, or sText.size().
    const auto find = [&](std::size_t nFirst, std::uint64_t nMask) {
        for (; nMask != 0; nMask &= nMask - 1) {
            const std::size_t nAt = nFirst + static_cast<std::size_t>(std::countr_zero(nMask));
            if (rHolds(sText[nAt])) {
                return nAt;
            }
        }
        return sText.size();
    };
    const auto load = [&](std::size_t nAt) { return rMayHold(gLoadBlock(sText.data() + nAt)); };
    const auto mask = [](auto block) -> std::uint64_t { return gMaskOf(block); };
    std::size_t nAt = 0;
    // Four at a time, because a guess per block of where a line ends is often wrong.
    for (; nAt + 4 * kByteBlock <= sText.size(); nAt += 4 * kByteBlock) {
        const auto a = load(nAt), b = load(nAt + kByteBlock), c = load(nAt + 2 * kByteBlock),
                   d = load(nAt + 3 * kByteBlock);
        if (gAnySet(a | b | c | d)) {
            const std::size_t nFound =
                find(nAt, mask(a) | mask(b) << 16U | mask(c) << 32U | mask(d) << 48U);
            if (nFound < sText.size()) {
                return nFound;
            }
        }
    }
    for (; nAt + kByteBlock <= sText.size(); nAt += kByteBlock) {
        const std::size_t nFound = find(nAt, mask(load(nAt)));
        if (nFound < sText.size()) {
            return nFound;
        }
    }
    if (nAt == sText.size()) {
        return nAt;
    }
    if (sText.size() >= kByteBlock) { // the last block may begin inside the one before
        nAt = sText.size() - kByteBlock;
        return find(nAt, mask(load(nAt)));
    }
    return find(0, mask(rMayHold(gLoadSome(sText))) & ((1U << sText.size()) - 1));
}
