#include "foundation/DecimalText.h"
#include "foundation/NumberFormat.h"

#include <algorithm>
#include <optional>

namespace
{

/// Reads a whole number, perhaps behind white space and one sign. Above a thousand it stops to
/// grow: every limit is below.
std::optional<int> ReadInteger(std::string_view sText)
{
    constexpr int limit = 1000;
    while (!sText.empty() && gIsNumberSpace(sText.front())) {
        sText.remove_prefix(1);
    }
    const bool bNegative = sText.starts_with('-');
    if (bNegative || sText.starts_with('+')) {
        sText.remove_prefix(1);
    }
    if (sText.empty() || !std::ranges::all_of(sText, gIsDecimalDigit<char>)) {
        return std::nullopt;
    }
    int nNumber = 0;
    for (const char chDigit : sText) {
        nNumber = std::min(nNumber * 10 + (chDigit - '0'), limit);
    }
    return bNegative ? -nNumber : nNumber;
}

} // namespace

int gClampDigits(int nDigits) noexcept
{
    return std::clamp(nDigits, 1, 18);
}

int gClampDigitsText(std::string_view sText) noexcept
{
    constexpr int unreadable = 4;
    return gClampDigits(ReadInteger(sText).value_or(unreadable));
}

int gClampPlaces(int nPlaces) noexcept
{
    return std::clamp(nPlaces, 0, 17);
}

int gClampPlacesText(std::string_view sText) noexcept
{
    constexpr int unreadable = 6;
    return gClampPlaces(ReadInteger(sText).value_or(unreadable));
}
