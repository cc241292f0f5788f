#include "cli/Output.h"

#include <gtest/gtest.h>

namespace quorvawiz::cli
{
namespace
{
TEST(AlignColumns, WidthsAreCharacters)
{
    EXPECT_EQ(gAlignColumns({{"a", "b"}, {"\u00e9\u00e9\u00e9", "c"}}),
              "a    b\n\u00e9\u00e9\u00e9  c\n");
}

TEST(AlignColumns, NoBlanksStandAtTheEndOfALine)
{
    EXPECT_EQ(gAlignColumns({{"a", "", "b"}, {"c", ""}, {"", "long", ""}, {}}),
              "a        b\nc\n   long\n\n");
}

TEST(AlignColumns, NothingGivesNothing)
{
    EXPECT_EQ(gAlignColumns({}), "");
}
} // namespace
} // namespace quorvawiz::cli
