#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

/// A column of a table.
template <class TRow, std::size_t N>
constexpr std::array<const char*, N> ColumnOf(const TRow (&rTable)[N], const char* TRow::*pColumn)
{
    std::array<const char*, N> column{};
    std::ranges::transform(rTable, column.begin(), pColumn);
    return column;
}

/// The entries that a table's rows have in a list.
template <class TRow, std::size_t N>
constexpr std::array<const char*, N> EntriesOf(const TRow (&rTable)[N])
{
    return ColumnOf(rTable, &TRow::pEntry);
}
