#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

/// A count or index of the string classes as a size.
/// @param nValue any number
/// @param nMost the highest result
/// @return nValue, at least 0 and at most nMost
[[nodiscard]] constexpr std::size_t gClampIndex(int nValue, std::size_t nMost) noexcept
{
    return nValue < 0 ? 0 : std::min(static_cast<std::size_t>(nValue), nMost);
}

/// The result of a search as the string classes give it.
/// @param nFound an index, or std::string_view::npos
/// @return the index, or -1
[[nodiscard]] constexpr int gIndexOrNone(std::size_t nFound) noexcept
{
    return nFound == std::string_view::npos ? -1 : static_cast<int>(nFound);
}
