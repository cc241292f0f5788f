#include "cli/Suggest.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quorvawiz::cli
{
namespace
{
TEST(Suggest, TheNearestIsTheOneWithTheFewestChanges)
{
    struct Case {
        const char* pName;
        const char* pWanted;
        std::vector<std::string> candidates;
        const char* pNearest;
    };
    const std::vector<Case> cases{
        {"one letter wrong", "lust", {"add", "list", "clear"}, "list"},
        {"one letter missing", "cler", {"add", "list", "clear"}, "clear"},
        {"one letter too many", "addd", {"add", "list", "clear"}, "add"},
        {"two letters swapped", "ilst", {"al-st", "list"}, "list"},
        {"letter case", "LIST", {"mist", "list"}, "list"},
        {"a part of the name", "temp", {"step", "temperature-list"}, "temperature-list"},
        {"a short part tells nothing", "te", {"temperature-list", "tea"}, "tea"},
        {"of equals the first", "b", {"a", "c"}, "a"},
        {"nothing alike", "xyz", {"add", "clear"}, "add"},
        {"empty", "", {"clear", "add"}, "add"},
        {"no candidates", "x", {}, ""},
    };
    for (const Case& rCase : cases)
        EXPECT_EQ(gNearest(rCase.pWanted, rCase.candidates), rCase.pNearest) << rCase.pName;
}

TEST(Suggest, ALongTextIsNoSlip)
{
    const std::vector<std::string> candidates{"list"};
    EXPECT_EQ(gNearest(std::string(101, 'x'), candidates), "");
    EXPECT_EQ(gDidYouMean(std::string(101, 'x'), candidates), "");
}

TEST(Suggest, TheQuestionNamesTheNearest)
{
    const std::vector<std::string> candidates{"list", "add"};
    EXPECT_EQ(gDidYouMean("lst", candidates), "; did you mean \"list\"?");
    EXPECT_EQ(gDidYouMean("lst", {}), "");
}

TEST(Suggest, AQuoteIsCutBetweenCharacters)
{
    EXPECT_EQ(gQuoted("a\"b"), "\"a\"b\"");
    std::string sLong(79, 'x');
    EXPECT_EQ(gQuoted(sLong + "\u00e9!"), "\"" + sLong + "...\"");
    sLong += 'x';
    EXPECT_EQ(gQuoted(sLong), "\"" + sLong + "\"");
    EXPECT_EQ(gQuoted(sLong + 'x'), "\"" + sLong + "...\"");
}
} // namespace
} // namespace quorvawiz::cli
