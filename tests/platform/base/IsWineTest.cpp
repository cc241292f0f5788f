#include "platform/base/IsWine.h"

#include <gtest/gtest.h>

namespace
{

TEST(IsWineTest, StartsPlainAndCanBeSwitchedBothWays)
{
    EXPECT_FALSE(gIsWine());
    gSetIsWine(true);
    EXPECT_TRUE(gIsWine());
    gSetIsWine(false);
    EXPECT_FALSE(gIsWine());
}

} // namespace
