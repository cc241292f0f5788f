#include "foundation/NumberFormat.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>

namespace
{

TEST(ClampDigits, EveryNumberAroundTheLimits)
{
    for (int nNumber = -100; nNumber <= 100; ++nNumber) {
        EXPECT_EQ(gClampDigits(nNumber), std::min(std::max(nNumber, 1), 18));
        EXPECT_EQ(gClampPlaces(nNumber), std::min(std::max(nNumber, 0), 17));
        EXPECT_EQ(gClampDigitsText(std::to_string(nNumber)), gClampDigits(nNumber));
        EXPECT_EQ(gClampPlacesText(std::to_string(nNumber)), gClampPlaces(nNumber));
    }
    EXPECT_EQ(gClampDigits(std::numeric_limits<int>::max()), 18);
    EXPECT_EQ(gClampDigits(std::numeric_limits<int>::min()), 1);
    EXPECT_EQ(gClampPlaces(std::numeric_limits<int>::max()), 17);
    EXPECT_EQ(gClampPlaces(std::numeric_limits<int>::min()), 0);
}

TEST(ClampDigits, Texts)
{
    struct Case {
        std::string sText;
        int nDigits;
        int nPlaces;
    };
    const Case cases[] = {
        {"", 4, 6},
        {" ", 4, 6},
        {"+", 4, 6},
        {"-", 4, 6},
        {"x", 4, 6},
        {"7x", 4, 6},
        {"7 ", 4, 6},
        {"7.0", 4, 6},
        {"+-7", 4, 6},
        {"- 7", 4, 6},
        {"0x7", 4, 6},
        {std::string("7\0", 2), 4, 6},
        {"\xC2\xA0"
         "7",
         4, 6},
        {" 7", 7, 7},
        {" \t\n\v\f\r+7", 7, 7},
        {"007", 7, 7},
        {"0", 1, 0},
        {"-0", 1, 0},
        {"-7", 1, 0},
        {"18", 18, 17},
        {"99999999999999999999999999", 18, 17},
        {"-99999999999999999999999999", 1, 0},
    };
    for (const Case& rCase : cases) {
        EXPECT_EQ(gClampDigitsText(rCase.sText), rCase.nDigits) << rCase.sText;
        EXPECT_EQ(gClampPlacesText(rCase.sText), rCase.nPlaces) << rCase.sText;
    }
}

} // namespace
