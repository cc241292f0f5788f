#include "params/SubcktTable.h"

#include "support/PrintStringU.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(SubcktTableTest, NamesAndIdsBothWays)
{
    TBidirectionalStringToIntMap table;
    EXPECT_EQ(table.Add("top", 0), 0);
    EXPECT_EQ(table.Add("x1", 1), 1);
    EXPECT_EQ(table.Find("x1"), 1);
    EXPECT_EQ(table.Find("X1"), -1);
    EXPECT_EQ(table.Find(""), -1);
    EXPECT_EQ(table.GetName(1), "x1");
    EXPECT_EQ(table.GetCount(), 2U);
}

TEST(SubcktTableTest, AKnownNameKeepsItsId)
{
    TBidirectionalStringToIntMap table;
    table.Add("x1", 1);
    EXPECT_EQ(table.Add("x1", 7), 1);
    EXPECT_EQ(table.Find("x1"), 1);
    EXPECT_THAT(table.mTable, ElementsAre("", "x1"));
}

TEST(SubcktTableTest, AnIdAheadLeavesAGapAndALowerOneCutsTheTable)
{
    TBidirectionalStringToIntMap table;
    EXPECT_EQ(table.Add("a", 5), 5);
    EXPECT_THAT(table.mTable, ElementsAre("", "", "", "", "", "a"));
    EXPECT_EQ(table.Add("b", 2), 2);
    EXPECT_THAT(table.mTable, ElementsAre("", "", "b"));
    EXPECT_EQ(table.Find("a"), 5); // stays in the index
    EXPECT_EQ(table.GetName(5), "");
}

TEST(SubcktTableTest, TwoNamesOfOneId)
{
    TBidirectionalStringToIntMap table;
    table.Add("a", 1);
    EXPECT_EQ(table.Add("b", 1), 1);
    EXPECT_EQ(table.GetName(1), "b");
    EXPECT_EQ(table.Find("a"), 1);
}

TEST(SubcktTableTest, AnIdBelowZeroEmptiesTheTable)
{
    TBidirectionalStringToIntMap table;
    table.Add("a", 1);
    EXPECT_EQ(table.Add("b", -1), -1);
    EXPECT_THAT(table.mTable, IsEmpty());
    EXPECT_EQ(table.Add("c", -7), -7);
    EXPECT_EQ(table.Find("c"), -7);
    EXPECT_EQ(table.GetCount(), 0U);
}

TEST(SubcktTableTest, AnIdOutOfRangeHasNoName)
{
    TBidirectionalStringToIntMap table;
    EXPECT_EQ(table.GetName(0), "");
    table.Add("a", 0);
    EXPECT_EQ(table.GetName(-1), "");
    EXPECT_EQ(table.GetName(1), "");
}

} // namespace
