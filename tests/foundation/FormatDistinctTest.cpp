#include "foundation/FormatScopes.h"
#include "foundation/NumberFormat.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace
{

using enum TeUnitScale;

TEST(FormatDistinct, NoMoreDigitsThanItTakes)
{
    struct Case {
        const char* pName;
        double dShown;
        double dOther;
        TeUnitScale eScale;
        const char* pText;
    };
    const Case cases[] = {
        {"3 digits are enough", 1.23456, 2, Spice, "1.23"},
        {"7 digits", 1.000001, 1, Spice, "1.000001"},
        {"the other way round", 1, 1.000001, Spice, "1"},
        {"rounded alike until the fifth", 1.0001, 1.0002, Spice, "1.0001"},
        {"neighbours", 1, std::nextafter(1.0, 2), Spice, "1"},
        {"neighbours, the greater", std::nextafter(1.0, 2), 1, Spice, "1.0000000000000002"},
        {"the default scale", 1.5e6, 1, Undefined, "1.5X"},
        {"no scale at all", 1.5e6, 1, static_cast<TeUnitScale>(9), "1.5X"},
        {"another scale", 1.5e6, 1, HSpice, "1.5MEG"},
        {"a sign tells", 1, -1, Spice, "1"},
        {"equal", 1.5e6, 1.5e6, Si, "1.5M"},
        {"equal, 17 digits", 0.1, 0.1, Engineering, "100.00000000000001e-003"},
        {"equal, but the other is shown", 0.0, -0.0, Spice, "-0"},
        {"infinite", std::numeric_limits<double>::infinity(), 1, Spice, "inf"},
    };
    const CFormatSettingsScope scope;
    for (const Case& rCase : cases) {
        EXPECT_EQ(gFormatDistinct(rCase.dShown, rCase.dOther, rCase.eScale), rCase.pText)
            << rCase.pName;
    }
}

TEST(FormatDistinct, OfTwoThatAreNoNumbersTheOtherIsShown)
{
    const double dNan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(gFormatDistinct(dNan, -dNan, Spice), "nan");
}

TEST(FormatDistinct, TrailingZerosOfEqualNumbersAreTheSettingsMatter)
{
    const CFormatSettingsScope scope;
    gGetEngineeringFormatSettings().SetDefaultEngineeringFormatRemoveTrailingZeroes(false);
    EXPECT_EQ(gFormatDistinct(1.5, 1.5, Spice), "1.5000000000000000");
    EXPECT_EQ(gFormatDistinct(1.5, 2, Spice), "1.5");
}

TEST(FormatDistinct, ZeroExponentsAreTheSettingsMatter)
{
    const CFormatSettingsScope scope;
    gGetEngineeringFormatSettings().SetDefaultEngineeringFormatRemoveZeroExponents(false);
    EXPECT_EQ(gFormatDistinct(15, 2, Engineering), "15e000");
}

TEST(FormatPlain, EighteenDigitsWithoutAnExponent)
{
    struct Case {
        double dValue;
        const char* pText;
    };
    const Case cases[] = {
        {0, "0"},
        {-0.0, "-0"},
        {1, "1"},
        {-1.5, "-1.5"},
        {100, "100"},
        {0.1, "0.100000000000000006"},
        {123456789, "123456789"},
        {0.00025, "0.000250000000000000005"},
        {1e17, "100000000000000000"},
        {1e18, "1000000000000000000"},
        {1e23, "99999999999999991600000"},
        {-1e-10, "-0.000000000100000000000000004"},
        {std::numeric_limits<double>::infinity(), "inf"},
        {-std::numeric_limits<double>::infinity(), "-inf"},
        {std::numeric_limits<double>::quiet_NaN(), "nan"},
    };
    for (const Case& rCase : cases) {
        EXPECT_EQ(gFormatPlain(rCase.dValue), rCase.pText);
    }
    EXPECT_EQ(gFormatPlain(std::numeric_limits<double>::max()).size(), 309U);
    EXPECT_EQ(gFormatPlain(std::numeric_limits<double>::denorm_min()).size(), 343U);
}

TEST(FormatFull, AllDigitsInTheScaleOfSi)
{
    const CFormatSettingsScope scope;
    EXPECT_EQ(gFormatFull(1.5e6), "1.5M");
    EXPECT_EQ(gFormatFull(0.1), "100.000000000000006m");
    EXPECT_EQ(gFormatFull(1e24), "999.999999999999983Z");
    EXPECT_EQ(gFormatFull(1e30), "1.00000000000000002e030");
    EXPECT_EQ(gFormatFull(2), "2");
}

} // namespace
