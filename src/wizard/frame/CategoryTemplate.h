#pragma once

#include "platform/ui/DialogTemplate.h"
#include "platform/ui/MessageMap.h"

#include <array>
#include <cstddef>

// What the templates of all category pages share: the heading centred at the top, below it two
// columns of buttons of equal size, filled down the left column first, five to a column.

inline constexpr int kFirstCategoryButton = 1001;

constexpr TRect CategoryButtonRect(std::size_t nButton)
{
    constexpr int nPerColumn = 5;
    const int n = static_cast<int>(nButton);
    return {16 + n / nPerColumn * 113, 46 + n % nPerColumn * 28, 104, 18};
}

/// The rows of a category page. `rLabels`: the buttons' labels in order; none of them goes through
/// the translation.
template <std::size_t N>
constexpr std::array<TControlRow, N + 1> CategoryRows(const char* pHeading,
                                                      const std::array<const char*, N>& rLabels)
{
    constexpr const char* kKeys[] = {"button-1", "button-2", "button-3", "button-4", "button-5",
                                     "button-6", "button-7", "button-8", "button-9", "button-10"};
    std::array<TControlRow, N + 1> rows{};
    rows[0] = {1000, "heading", EControl::Static, pHeading, {16, 18, 217, 12}, kHeading};
    for (std::size_t n = 0; n < N; ++n)
        rows[n + 1] = {kFirstCategoryButton + static_cast<int>(n), kKeys[n], EControl::PushButton,
                       rLabels[n], CategoryButtonRect(n)};
    return rows;
}

inline constexpr std::size_t kMostCategoryButtons = 10;

template <auto Handler>
constexpr std::array<TMessageMapEntry, kMostCategoryButtons> CategoryHandlers()
{
    std::array<TMessageMapEntry, kMostCategoryButtons> handlers{};
    for (std::size_t n = 0; n < kMostCategoryButtons; ++n)
        handlers[n] = On<Handler>(ENotify::Clicked, kFirstCategoryButton + static_cast<int>(n));
    return handlers;
}

/// The handlers of a category page with all of its buttons, all of them one member function
/// `void (int nId)`.
template <auto Handler>
inline constexpr std::array<TMessageMapEntry, kMostCategoryButtons>
    kCategoryHandlers = CategoryHandlers<Handler>();
