// The list of the page of parameters.

#include "support/Look.h"
#include "support/PageTest.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"
#include "wizard/setup/ListStories.h"
#include "wizard/setup/ParameterSteps.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;
using namespace parameterSteps;

using ParameterList = PageTest;

constexpr const char* kAlreadyThere = "This value is already in the list.";
constexpr const char* kDeleteQuestion =
    "Are you sure you want to delete the selected parameter from the list?";
constexpr const char* kClearQuestion =
    "Are you sure you want to delete all plot items in the list?";

const TStep kPress = Click("add");

/// Adds "a=1", then "b=unif(1,0.1)".
CScript WithTwoEntries()
{
    CScript script = OnPage();
    script.Do(gGeneral("a", "1"))
        .Do({kPress})
        .Do(gMonteCarlo(0, "b", "1", "0.1", nullptr, nullptr))
        .Do({kPress});
    return script;
}

const TListPage kPage{WithTwoEntries,  "a=1",          "b=unif(1,0.1)", kAlreadyThere,
                      kDeleteQuestion, kClearQuestion, "first"};

TEST_F(ParameterList, AddsDeletesAndClearsAsAllListsDoAndAsksAboutPlotItems)
{
    gExpectLists(gListStories(kPage));
}

const std::vector<std::string> kBoth{"b=unif(1,0.1)", "a=1"};

const TListCase kListCases[] = {
    {"the same in other letter case is refused",
     WithTwoEntries().Do({Set("first", "B"), kPress}),
     kBoth,
     0,
     true,
     {kAlreadyThere}},
    {"a failed check leaves a filled list and its selection",
     WithTwoEntries().Do({Select("list", 1), Set("third", " "), kPress}),
     kBoth,
     1,
     true,
     {"Missing relative variation."}},
    {"a change of type or distribution doesn't touch the list",
     WithTwoEntries().Do(
         {Select("list", 1), Select("distribution", 3), Select("parameter-type", "Optimization")}),
     kBoth,
     1,
     true,
     {}},
};

TEST_F(ParameterList, TakesWhatTheFieldsHold)
{
    gExpectLists({std::begin(kListCases), std::end(kListCases)});
}

TEST_F(ParameterList, AddKeepsTheFieldsAsTheyWereTyped)
{
    gRunWizard(
        OnPage()
            .Do(gGeneral(" a", " 1"))
            .Do({kPress})
            .Look({look::Text("second", " a"), look::Text("third", " 1"), look::Enabled("add")}));
}

TEST_F(ParameterList, ARefusalKeepsTheFieldsAsTheyWereTyped)
{
    const auto fields = [](const char* pVariation) {
        return std::vector<CScript::TAction>{look::Text("first", " b"), look::Text("second", " 1"),
                                             look::Text("third", pVariation), look::Enabled("add")};
    };
    gRunWizard(WithTwoEntries()
                   .Do({Set("first", " b"), Set("second", " 1"), Set("third", "  "), kPress})
                   .Look(fields("  "))
                   .Do({Set("third", " 0.1"), kPress})
                   .Look(fields(" 0.1")));
}

TEST_F(ParameterList, DeleteAndClearLeaveTheButtonAddAsItIs)
{
    gExpectAddIsLeftAlone(kPage);
}

TEST_F(ParameterList, TheRefusalIsTranslatedAndTheQuestionsAreNot)
{
    const CBracketTranslation translation;
    const auto outcome = gRunWizard(OnPage("[Settings]/[Parameters]")
                                        .Do(gGeneral("a", "1"))
                                        .Do({kPress, kPress, Click("delete"), Click("clear")}));
    EXPECT_EQ(outcome.messages, (std::vector<std::string>{"[" + std::string(kAlreadyThere) + "]",
                                                          kDeleteQuestion, kClearQuestion}));
}

TEST_F(ParameterList, IsInsertedOldestFirst)
{
    EXPECT_EQ(gRunWizard(WithTwoEntries().Do({Insert()})).inserted,
              std::vector<std::string>{".param a=1 b=unif(1,0.1)"});
}

TEST_F(ParameterList, WithOneEntryEmptyFieldsStillMakeACommandAndNoCheckRuns)
{
    const TSteps empty[] = {gGeneral("", ""), gMonteCarlo(3, "", "", "", "", ""),
                            gOptimization("", "", "", "", "", "")};
    for (const TSteps& rSteps : empty) {
        const auto outcome =
            gRunWizard(OnPage().Do(gGeneral("a", "1")).Do({kPress}).Do(rSteps).Do({Insert()}));
        EXPECT_EQ(outcome.inserted, std::vector<std::string>{".param a=1"});
        EXPECT_TRUE(outcome.messages.empty());
    }
}

TEST_F(ParameterList, AfterTheLastEntryIsDeletedOrAllAreClearedTheFieldsCountAgain)
{
    for (const TSteps& rSteps : {TSteps{Click("delete"), Click("delete")}, TSteps{Click("clear")}})
        EXPECT_EQ(gRunWizard(WithTwoEntries()
                                 .Answer({true, true})
                                 .Do(rSteps)
                                 .Do(gGeneral("c", "3"))
                                 .Do({Insert()}))
                      .inserted,
                  std::vector<std::string>{".param c=3"});
}
} // namespace
