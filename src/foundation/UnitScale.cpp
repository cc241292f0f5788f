#include "foundation/UnitScale.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace
{

struct TScaleNames {
    std::string_view msKey;
    std::string_view msDisplayText;
};

constexpr std::array<TScaleNames, 6> kNames{{
    {"si", "SI"},
    {"spice", "Spice"},
    {"hspice", "HSpice"},
    {"scientific", "Scientific"},
    {"engineering", "Engineering"},
    {"undefined", "Undefined"},
}};

const TScaleNames& NamesOf(TeUnitScale eScale)
{
    return kNames[static_cast<std::size_t>(gNormalizeUnitScale(static_cast<int>(eScale)))];
}

/// One row: the suffixes by scale, an empty one where the scale has none.
struct TSuffixRow {
    int mnExponent;
    std::array<std::string_view, 3> mSuffixes; ///< SI, SPICE, HSPICE
};

constexpr std::array<TSuffixRow, 17> kSuffixes{{
    {-24, {"y", "", ""}},
    {-21, {"z", "", ""}},
    {-18, {"a", "a", "a"}},
    {-15, {"f", "f", "f"}},
    {-12, {"p", "p", "p"}},
    {-9, {"n", "n", "n"}},
    {-6, {"u", "u", "u"}},
    {-3, {"m", "m", "m"}},
    {0, {" ", " ", " "}},
    {3, {"k", "k", "k"}},
    {6, {"M", "X", "MEG"}},
    {9, {"G", "G", "G"}},
    {12, {"T", "T", "T"}},
    {15, {"P", "", ""}},
    {18, {"E", "", ""}},
    {21, {"Z", "", ""}},
    {24, {"Y", "", ""}},
}};

} // namespace

TeUnitScale gNormalizeUnitScale(int nScale) noexcept
{
    const bool bKnown = nScale >= 0 && nScale <= static_cast<int>(TeUnitScale::Engineering);
    return bKnown ? static_cast<TeUnitScale>(nScale) : TeUnitScale::Undefined;
}

std::string_view gGetUnitScaleKey(TeUnitScale eScale) noexcept
{
    return NamesOf(eScale).msKey;
}

std::string_view gGetUnitScaleDisplayText(TeUnitScale eScale) noexcept
{
    return NamesOf(eScale).msDisplayText;
}

std::optional<TeUnitScale> gFindUnitScale(std::string_view sKey) noexcept
{
    const auto found = std::ranges::find(kNames, sKey, &TScaleNames::msKey);
    if (found == kNames.end()) {
        return std::nullopt;
    }
    return static_cast<TeUnitScale>(found - kNames.begin());
}

std::optional<std::string_view> gGetUnitSuffix(TeUnitScale eScale, int nExponent) noexcept
{
    const auto nScale = static_cast<std::size_t>(eScale);
    const bool bInTable =
        nExponent >= kSuffixes.front().mnExponent && nExponent <= kSuffixes.back().mnExponent;
    if (!bInTable || nScale >= kSuffixes.front().mSuffixes.size()) {
        return std::nullopt;
    }
    const int nRow = (nExponent - kSuffixes.front().mnExponent) / 3;
    const std::string_view sSuffix = kSuffixes[static_cast<std::size_t>(nRow)].mSuffixes[nScale];
    return sSuffix.empty() ? std::nullopt : std::optional(sSuffix);
}
