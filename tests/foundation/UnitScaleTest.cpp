#include "foundation/UnitScale.h"

#include "foundation/FormatOption.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <string_view>

namespace
{

constexpr int kLeast = std::numeric_limits<int>::min();
constexpr int kMost = std::numeric_limits<int>::max();

TEST(UnitScale, KeyAndDisplayTextOfEveryValue)
{
    struct Case {
        int nScale;
        std::string_view sKey;
        std::string_view sDisplayText;
    };
    constexpr Case cases[] = {
        {0, "si", "SI"},
        {1, "spice", "Spice"},
        {2, "hspice", "HSpice"},
        {3, "scientific", "Scientific"},
        {4, "engineering", "Engineering"},
        {5, "undefined", "Undefined"},
        {6, "undefined", "Undefined"},
        {-1, "undefined", "Undefined"},
        {kMost, "undefined", "Undefined"},
        {kLeast, "undefined", "Undefined"},
    };
    for (const Case& rCase : cases) {
        EXPECT_EQ(gGetUnitScaleKey(static_cast<TeUnitScale>(rCase.nScale)), rCase.sKey);
        EXPECT_EQ(gGetUnitScaleDisplayText(static_cast<TeUnitScale>(rCase.nScale)),
                  rCase.sDisplayText);
    }
}

TEST(UnitScale, OnlyFiveNumbersAreScales)
{
    for (int nScale = -300; nScale < 300; ++nScale) {
        const bool bKnown = nScale >= 0 && nScale <= 4;
        EXPECT_EQ(static_cast<int>(gNormalizeUnitScale(nScale)), bKnown ? nScale : 5);
    }
    EXPECT_EQ(gNormalizeUnitScale(kMost), TeUnitScale::Undefined);
    EXPECT_EQ(gNormalizeUnitScale(kLeast), TeUnitScale::Undefined);
}

TEST(UnitScale, AScaleIsFoundByItsExactKey)
{
    for (int nScale = 0; nScale <= 5; ++nScale) {
        const auto eScale = static_cast<TeUnitScale>(nScale);
        EXPECT_EQ(gFindUnitScale(gGetUnitScaleKey(eScale)), eScale);
    }
    for (const std::string_view sOther : {"", "SI", "s", "si ", "spic"}) {
        EXPECT_EQ(gFindUnitScale(sOther), std::nullopt) << sOther;
    }
}

TEST(UnitScale, TheOptionCodeIsSixMoreAndElevenStandsForNone)
{
    constexpr int cases[][2] = {{0, 6},  {1, 7},  {2, 8},      {3, 9},       {4, 10},
                                {5, 11}, {6, 11}, {kMost, 11}, {kLeast, 11}, {-1, 11}};
    for (const auto& [nScale, nOption] : cases) {
        EXPECT_EQ(gUnitScaleToOption(static_cast<TeUnitScale>(nScale)), nOption) << nScale;
    }
}

TEST(UnitScale, EverySuffixOfTheTable)
{
    struct Row {
        int nExponent;
        std::string_view sSi;
        std::string_view sSpice;
        std::string_view sHSpice;
    };
    constexpr Row rows[] = {
        {-27, "", "", ""},    {-24, "y", "", ""},   {-21, "z", "", ""},  {-18, "a", "a", "a"},
        {-15, "f", "f", "f"}, {-12, "p", "p", "p"}, {-9, "n", "n", "n"}, {-6, "u", "u", "u"},
        {-3, "m", "m", "m"},  {0, " ", " ", " "},   {3, "k", "k", "k"},  {6, "M", "X", "MEG"},
        {9, "G", "G", "G"},   {12, "T", "T", "T"},  {15, "P", "", ""},   {18, "E", "", ""},
        {21, "Z", "", ""},    {24, "Y", "", ""},    {27, "", "", ""},    {-324, "", "", ""},
        {306, "", "", ""},    {kLeast, "", "", ""}, {kMost, "", "", ""},
    };
    const auto suffix = [](TeUnitScale eScale, int nExponent) {
        return gGetUnitSuffix(eScale, nExponent).value_or("");
    };
    for (const Row& rRow : rows) {
        EXPECT_EQ(suffix(TeUnitScale::Si, rRow.nExponent), rRow.sSi) << rRow.nExponent;
        EXPECT_EQ(suffix(TeUnitScale::Spice, rRow.nExponent), rRow.sSpice) << rRow.nExponent;
        EXPECT_EQ(suffix(TeUnitScale::HSpice, rRow.nExponent), rRow.sHSpice) << rRow.nExponent;
        for (const int nScale : {3, 4, 5, 6, -1}) {
            EXPECT_EQ(gGetUnitSuffix(static_cast<TeUnitScale>(nScale), rRow.nExponent),
                      std::nullopt);
        }
    }
}

} // namespace
