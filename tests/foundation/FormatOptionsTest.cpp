#include "foundation/FormatScopes.h"
#include "foundation/NumberFormat.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <string>

namespace
{

/// What a list of codes stands for, worked out one code at a time.
std::string Expected(double dValue, unsigned nDigits, const std::array<int, 5>& rOptions)
{
    bool bSignificant = true;
    bool bPadded = false;
    boost::tribool bTrailing = boost::indeterminate;
    boost::tribool bExponents = boost::indeterminate;
    TeUnitScale eScale = TeUnitScale::Undefined;
    for (const int nOption : rOptions) {
        switch (nOption) {
        case 0:
            bSignificant = false;
            break;
        case 1:
            bPadded = true;
            break;
        case 2:
            bTrailing = true;
            break;
        case 3:
            bTrailing = false;
            break;
        case 4:
            bExponents = true;
            break;
        case 5:
            bExponents = false;
            break;
        case 6:
            eScale = TeUnitScale::Si;
            break;
        case 7:
            eScale = TeUnitScale::Spice;
            break;
        case 8:
            eScale = TeUnitScale::HSpice;
            break;
        case 9:
            eScale = TeUnitScale::Scientific;
            break;
        case 10:
            eScale = TeUnitScale::Engineering;
            break;
        default:
            break;
        }
    }
    return gFormatEngineering(dValue, nDigits, bSignificant, bPadded, bTrailing, eScale,
                              bExponents);
}

constexpr double kValues[] = {0, 1.5, -2.25e6, 3e-25};

TEST(FormatOptions, EachCodeAlone)
{
    struct Case {
        int nOption;
        const char* pText; // of 1500000 with 4 digits
    };
    constexpr Case cases[] = {
        {0, "1.5X"},     {1, "   1.5X      "}, {2, "1.5X"},  {3, "1.500X"},  {4, "1.5X"},
        {5, "1.5X"},     {6, "1.5M"},          {7, "1.5X"},  {8, "1.5MEG"},  {9, "1.5e006"},
        {10, "1.5e006"}, {11, "1.5X"},         {-1, "1.5X"}, {1000, "1.5X"},
    };
    const CFormatSettingsScope scope;
    for (const Case& rCase : cases) {
        EXPECT_EQ(gFormatEngineeringOptions(1.5e6, 4, rCase.nOption), rCase.pText) << rCase.nOption;
    }
}

TEST(FormatOptions, OthersDoNothing)
{
    for (const int nOption :
         {-1, 11, 12, 255, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        EXPECT_EQ(gFormatEngineeringOptions(-2.25e6, 5, nOption),
                  gFormatEngineeringOptions(-2.25e6, 5));
    }
}

TEST(FormatOptions, EveryListOfThree)
{
    for (int nFirst = -1; nFirst <= 11; ++nFirst) {
        for (int nSecond = -1; nSecond <= 11; ++nSecond) {
            for (int nThird = -1; nThird <= 11; ++nThird) {
                for (const double dValue : kValues) {
                    EXPECT_EQ(gFormatEngineeringOptions(dValue, 5, nFirst, nSecond, nThird),
                              Expected(dValue, 5, {nFirst, nSecond, nThird, 11, 11}));
                }
            }
        }
    }
}

TEST(FormatOptions, TheLastOfTwoThatContradictWins)
{
    const CFormatSettingsScope scope;
    EXPECT_EQ(gFormatEngineeringOptions(1.5, 4, 2, 3), "1.500");
    EXPECT_EQ(gFormatEngineeringOptions(1.5, 4, 3, 2), "1.5");
    EXPECT_EQ(gFormatEngineeringOptions(1.5, 4, 10, 4, 5), "1.5e000");
    EXPECT_EQ(gFormatEngineeringOptions(1.5e6, 4, 6, 7, 8, 9, 8), "1.5MEG");
    EXPECT_EQ(gFormatEngineeringOptions(1.5, 4, 10, 0, 3, 5, 1), "   1.5000e000   ");
}

TEST(FormatOptions, TheScaleComesFromTheSettings)
{
    const CFormatSettingsScope scope;
    gGetEngineeringFormatSettings().SetDefaultEngineeringFormatUnitScale(TeUnitScale::HSpice);
    EXPECT_EQ(gFormatEngineeringOptions(1.5e6, 4), "1.5MEG");
}

} // namespace
