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
        {"the part behind the last '/'", "ac", {"a/acs", "b/ac"}, "b/ac"},
        {"the whole name first", "ac", {"b/ac", "AC"}, "AC"},
        {"a slip in that part", "tempature", {"stability", "x/temperature"}, "x/temperature"},
        {"one of the words", "dc", {"x/ac", "x/dc guess"}, "x/dc guess"},
        {"a word in a word is none", "dc", {"x/ac", "x/dcx-abc"}, "x/ac"},
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
} // namespace
} // namespace quorvawiz::cli
