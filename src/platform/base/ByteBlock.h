#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

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

/// Lowers A to Z in each byte.
[[nodiscard]] inline TByteBlock gLowerAsciiBlock(TByteBlock block) noexcept
{
    return block | ((block >= 'A') & (block <= 'Z') & ('a' - 'A'));
}
