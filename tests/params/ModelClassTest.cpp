#include "params/ModelClass.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace
{

struct TOrderCase {
    std::string msName;
    TModelClassHeader mLess;
    TModelClassHeader mGreater;
};

TEST(ModelClassTest, HeadersAreOrderedMemberByMember)
{
    const std::vector<TOrderCase> cases{
        {"type first", {"z", "a", 9, 9, "z"}, {"a", "b", 1, 1, "a"}},
        {"by length, not by the alphabet", {"", "zz", 0, 0, ""}, {"", "aaa", 0, 0, ""}},
        {"then the name", {"a", "t", 9, 9, "z"}, {"b", "t", 1, 1, "a"}},
        {"then the level", {"a", "t", 1, 9, "z"}, {"a", "t", 2, 1, "a"}},
        {"a level below 0",
         {"a", "t", std::numeric_limits<int>::min(), 0, ""},
         {"a", "t", std::numeric_limits<int>::max(), 0, ""}},
        {"then the version", {"a", "t", 1, 4.5, "z"}, {"a", "t", 1, 4.6, "a"}},
        {"versions within the tolerance", {"a", "t", 1, 4.5 + 1e-12, "a"}, {"a", "t", 1, 4.5, "b"}},
        {"then the description", {"a", "t", 1, 4.5, "a"}, {"a", "t", 1, 4.5, "b"}},
    };
    for (const auto& row : cases) {
        EXPECT_TRUE(CompareModelClassHeaders(row.mLess, row.mGreater)) << row.msName;
        EXPECT_FALSE(CompareModelClassHeaders(row.mGreater, row.mLess)) << row.msName;
    }
    const TModelClassHeader header{"a", "t", 1, 4.5, "d"};
    EXPECT_FALSE(CompareModelClassHeaders(header, header));
}

TEST(ModelClassTest, ADefaultHeaderIsEmpty)
{
    const TModelClassHeader header;
    EXPECT_TRUE(header.msName.IsEmpty());
    EXPECT_TRUE(header.msType.IsEmpty());
    EXPECT_EQ(header.mnLevel, 0);
    EXPECT_EQ(header.mdVersion, 0.0);
    EXPECT_TRUE(header.msDescription.IsEmpty());
}

} // namespace
