// The list of the page of initial conditions.

#include "support/Look.h"
#include "support/PageTest.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"
#include "wizard/setup/InitialConditionSteps.h"
#include "wizard/setup/ListStories.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;
using namespace initialConditionSteps;

using InitialConditionList = PageTest;

const TStep kPress = Click("add");

const TListPage kPage{WithTwoEntries,  "v(a)=1",       "i(L2)=0", kAlreadyThere,
                      kDeleteQuestion, kClearQuestion, "name"};

TEST_F(InitialConditionList, AddsDeletesAndClearsAsAllListsDo)
{
    gExpectLists(gListStories(kPage));
}

const std::vector<std::string> kBoth{"i(L2)=0", "v(a)=1"};

const TListCase kListCases[] = {
    {"with a reference",
     OnPage().Do(gVoltage("a", "b", "1")).Do({kPress}),
     {"v(a,b)=1"},
     0,
     true,
     {}},
    {"trimmed on the left only",
     OnPage().Do(gVoltage(" a ", " b ", " 1 ")).Do({kPress}),
     {"v(a ,b )=1 "},
     0,
     true,
     {}},
    {"a reference of blanks is none",
     OnPage().Do(gVoltage("a", "  ", "1")).Do({kPress}),
     {"v(a)=1"},
     0,
     true,
     {}},
    {"a name of blanks passes",
     OnPage().Do(gVoltage(" ", "", "1")).Do({kPress}),
     {"v()=1"},
     0,
     true,
     {}},
    {"a current, trimmed on the left only",
     OnPage().Do(gCurrent(" l3 ", " 1m ")).Do({kPress}),
     {"i(l3 )=1m "},
     0,
     true,
     {}},
    {"an inductor's name must begin with L",
     OnPage().Do(gCurrent("x1", "1m")).Do({kPress}),
     {},
     -1,
     false,
     {kIllegalName}},
    {"an inductor's name of blanks doesn't",
     OnPage().Do(gCurrent("  ", "1m")).Do({kPress}),
     {},
     -1,
     false,
     {kIllegalName}},
    {"an illegal name leaves a filled list and its selection",
     WithTwoEntries().Do({Select("list", 1), Set("name", "x1"), kPress}),
     kBoth,
     1,
     true,
     {kIllegalName}},
    {"a node's name may begin with any letter",
     OnPage().Do(gVoltage("x1", "", "1")).Do({kPress}),
     {"v(x1)=1"},
     0,
     true,
     {}},
    {"two voltages alike: the second is refused",
     OnPage().Do(gVoltage("a", "", "1")).Do({kPress, kPress}),
     {"v(a)=1"},
     0,
     true,
     {kAlreadyThere}},
    {"the same in other letter case is refused",
     OnPage().Do(gVoltage("a", "", "1")).Do({kPress, Set("name", "A"), kPress}),
     {"v(a)=1"},
     0,
     true,
     {kAlreadyThere}},
    {"a switch of mode doesn't touch the list",
     WithTwoEntries().Do({Select("list", 1), Choose("mode", kVoltage)}),
     kBoth,
     1,
     true,
     {}},
};

TEST_F(InitialConditionList, TakesWhatTheFieldsHold)
{
    gExpectLists({std::begin(kListCases), std::end(kListCases)});
}

TEST_F(InitialConditionList, AddKeepsTheFieldsAsTheyWereTyped)
{
    gRunWizard(OnPage()
                   .Do(gVoltage(" a", " b", " 1"))
                   .Do({kPress})
                   .Look({look::Text("name", " a"), look::Text("second", " b"),
                          look::Text("value", " 1"), look::Enabled("add")}));
}

TEST_F(InitialConditionList, ARefusalKeepsTheFieldsAsTheyWereTyped)
{
    gRunWizard(
        WithTwoEntries()
            .Do(gCurrent(" x1 ", " 1m "))
            .Do({kPress})
            .Look({look::Text("name", " x1 "), look::Text("second", " 1m "), look::Enabled("add")})
            .Do(gCurrent(" L2", " 0"))
            .Do({kPress})
            .Look({look::Text("name", " L2"), look::Text("second", " 0"), look::Enabled("add")}));
}

TEST_F(InitialConditionList, DeleteAndClearLeaveTheButtonAddAsItIs)
{
    gExpectAddIsLeftAlone(kPage);
}

TEST_F(InitialConditionList, RefusalsAndQuestionsAreTranslated)
{
    const CBracketTranslation translation;
    const auto outcome = gRunWizard(OnPage(kTranslatedPath)
                                        .Do(gCurrent("x1", "1"))
                                        .Do({kPress, Set("name", "L1"), kPress, kPress})
                                        .Do({Click("delete"), Click("clear")}));
    const auto bracketed = [](const char* pText) { return "[" + std::string(pText) + "]"; };
    EXPECT_EQ(outcome.messages,
              (std::vector<std::string>{bracketed(kIllegalName), bracketed(kAlreadyThere),
                                        bracketed(kDeleteQuestion), bracketed(kClearQuestion)}));
}
} // namespace
