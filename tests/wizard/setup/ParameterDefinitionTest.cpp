// What the page of parameters writes, directly and through its list.

#include "support/Look.h"
#include "support/PageTest.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"
#include "wizard/setup/ParameterSteps.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;
using namespace parameterSteps;

using ParameterDefinition = PageTest;

constexpr const char* kAlreadyThere = "This value is already in the list.";
constexpr const char* kDeleteQuestion =
    "Are you sure you want to delete the selected parameter from the list?";
constexpr const char* kClearQuestion =
    "Are you sure you want to delete all plot items in the list?";

const TStep kPress = Click("add");

// --- both writers

struct TCase {
    const char* pName;
    TSteps steps;
    const char* pDirect; ///< the definition as the command has it; null when it is refused
    const char* pEntry;  ///< as the list has it; null for the same
    const char* pMessage = nullptr;
};

const TCase kCases[] = {
    {"general", gGeneral("w", "2u"), "w=2u", nullptr},
    {"general, trimmed on the left only", gGeneral(" w ", " 2u "), "w =2u ", nullptr},
    {"uniform relative", gMonteCarlo(0, "r", "1k", "0.1", nullptr, nullptr), "r=unif(1k,0.1)",
     nullptr},
    {"uniform relative with a multiplier", gMonteCarlo(0, "r", "1k", "0.1", nullptr, "2"),
     "r=unif(1k,0.1,2)", nullptr},
    {"uniform absolute with a multiplier", gMonteCarlo(1, "r", "1k", "5", nullptr, "2"),
     "r=aunif(1k,5,2)", nullptr},
    {"uniform absolute", gMonteCarlo(1, "r", "1k", "5", nullptr, ""), "r=aunif(1k,5)", nullptr},
    {"gaussian relative with a multiplier", gMonteCarlo(2, "r", "1k", "0.1", "3", "2"),
     "r=gauss(1k,0.1,3,2)", nullptr},
    {"gaussian relative", gMonteCarlo(2, "r", "1k", "0.1", "3", ""), "r=gauss(1k,0.1,3)", nullptr},
    {"gaussian absolute: nothing parts the multiplier from the sigma",
     gMonteCarlo(3, "r", "1k", "5", "3", "2"), "r=agauss(1k,5,32)", nullptr},
    {"gaussian absolute", gMonteCarlo(3, "r", "1k", "5", "3", ""), "r=agauss(1k,5,3)", nullptr},
    {"limit", gMonteCarlo(4, "r", "1k", "5", nullptr, nullptr), "r=limit(1k,5)", nullptr},
    {"a hidden sigma is ignored",
     gJoin({gMonteCarlo(2, "r", "1k", "5", "3", ""), {Select("distribution", 0)}}), "r=unif(1k,5)",
     nullptr},
    {"a hidden multiplier is ignored by the limit",
     gJoin({gMonteCarlo(3, "r", "1k", "5", "3", "2"), {Select("distribution", 4)}}),
     "r=limit(1k,5)", nullptr},
    {"a multiplier of blanks is none", gMonteCarlo(0, "r", "1k", "0.1", nullptr, "  "),
     "r=unif(1k,0.1)", nullptr},
    {"all Monte Carlo fields are trimmed on the left only",
     gMonteCarlo(2, " r ", " 1k ", " 0.1 ", " 3 ", " 2 "), "r =gauss(1k ,0.1 ,3 ,2 )", nullptr},
    {"optimization", gOptimization("w", "r1", "1", "0", "2", "0.1"), "w=optr1(1,0,2,0.1)", nullptr},
    {"optimization without a delta: only the list's entry is closed",
     gOptimization("w", "r1", "1", "0", "2", ""), "w=optr1(1,0,2", "w=optr1(1,0,2)"},
    {"a delta of blanks is none", gOptimization("w", "r1", "1", "0", "2", "  "), "w=optr1(1,0,2",
     "w=optr1(1,0,2)"},
    {"nothing parts the keyword from the run name", gOptimization("w", "x", "1", "0", "2", "3"),
     "w=optx(1,0,2,3)", nullptr},
    {"optimization, trimmed on the left only",
     gOptimization(" w ", " x ", " 1 ", " 0 ", " 2 ", " 3 "), "w =optx (1 ,0 ,2 ,3 )", nullptr},

    // Blanks are texts for the button Add and none for its checks.
    {"no value", gGeneral("w", " "), nullptr, nullptr, "Missing parameter value."},
    {"no name", gGeneral(" ", "2u"), nullptr, nullptr, "Missing parameter name."},
    {"neither", gGeneral(" ", " "), nullptr, nullptr, "Missing parameter name and value."},
    {"Monte Carlo: no name", gMonteCarlo(0, " ", " ", " ", nullptr, nullptr), nullptr, nullptr,
     "Missing parameter name."},
    {"Monte Carlo: no nominal value", gMonteCarlo(0, "r", " ", " ", nullptr, nullptr), nullptr,
     nullptr, "Missing nominal value."},
    {"uniform relative: no variation", gMonteCarlo(0, "r", "1k", " ", nullptr, nullptr), nullptr,
     nullptr, "Missing relative variation."},
    {"uniform absolute: no variation", gMonteCarlo(1, "r", "1k", " ", nullptr, nullptr), nullptr,
     nullptr, "Missing absolute variation."},
    {"gaussian relative: no variation", gMonteCarlo(2, "r", "1k", " ", " ", nullptr), nullptr,
     nullptr, "Missing relative variation."},
    {"gaussian absolute: no variation", gMonteCarlo(3, "r", "1k", " ", " ", nullptr), nullptr,
     nullptr, "Missing absolute variation."},
    {"limit: no variation", gMonteCarlo(4, "r", "1k", " ", nullptr, nullptr), nullptr, nullptr,
     "Missing absolute variation."},
    {"gaussian relative: no sigma", gMonteCarlo(2, "r", "1k", "1", " ", nullptr), nullptr, nullptr,
     "Missing sigma value."},
    {"gaussian absolute: no sigma", gMonteCarlo(3, "r", "1k", "1", " ", nullptr), nullptr, nullptr,
     "Missing sigma value."},
    {"after a change of the distribution Add is pressed without a sigma",
     gJoin({gMonteCarlo(0, "r", "1k", "1", nullptr, nullptr), {Select("distribution", 2)}}),
     nullptr, nullptr, "Missing sigma value."},
    {"optimization: no name", gOptimization(" ", " ", " ", " ", " ", ""), nullptr, nullptr,
     "Missing parameter name."},
    {"optimization: no run name", gOptimization("w", " ", " ", " ", " ", ""), nullptr, nullptr,
     "Missing optimization run name."},
    {"optimization: no guess", gOptimization("w", "r1", " ", " ", " ", ""), nullptr, nullptr,
     "Missing guess value."},
    {"optimization: no minimum", gOptimization("w", "r1", "1", " ", " ", ""), nullptr, nullptr,
     "Missing minimum value."},
    {"optimization: no maximum", gOptimization("w", "r1", "1", "0", " ", ""), nullptr, nullptr,
     "Missing maximum value."},
};

TEST_F(ParameterDefinition, TheCommandIsWrittenFromTheFields)
{
    const CBracketTranslation translation;
    for (const TCase& rCase : kCases) {
        SCOPED_TRACE(rCase.pName);
        CRememberedBase::ResetAll();
        const auto outcome =
            gRunWizard(OnPage("[Settings]/[Parameters]").Do(rCase.steps).Do({Insert()}));
        if (rCase.pDirect) {
            EXPECT_EQ(outcome.inserted,
                      std::vector<std::string>{std::string(".param ") + rCase.pDirect});
            EXPECT_TRUE(outcome.messages.empty());
        } else {
            EXPECT_TRUE(outcome.inserted.empty());
            EXPECT_EQ(outcome.messages,
                      std::vector<std::string>{"[" + std::string(rCase.pMessage) + "]"});
        }
    }
}

TEST_F(ParameterDefinition, TheListsEntryIsWrittenFromTheFields)
{
    const CBracketTranslation translation;
    for (const TCase& rCase : kCases) {
        SCOPED_TRACE(rCase.pName);
        std::vector<std::string> entries;
        if (rCase.pDirect)
            entries.emplace_back(rCase.pEntry ? rCase.pEntry : rCase.pDirect);
        const auto outcome =
            gRunWizard(OnPage("[Settings]/[Parameters]")
                           .Do(rCase.steps)
                           .Do({kPress})
                           .Look({look::Entries("list", entries), look::Command("")}));
        if (rCase.pMessage) {
            EXPECT_EQ(outcome.messages,
                      std::vector<std::string>{"[" + std::string(rCase.pMessage) + "]"});
        } else {
            EXPECT_TRUE(outcome.messages.empty());
        }
    }
}

// --- what a failure leaves in the run's command

struct TLeftCase {
    const char* pName;
    TSteps steps;
    const char* pCommand;
};

const TLeftCase kLeftCases[] = {
    {"general", gGeneral("w", ""), ".param first=1"},
    {"Monte Carlo without a name", gMonteCarlo(0, "", "1", "1", nullptr, nullptr),
     ".param first=1"},
    {"Monte Carlo without a nominal value", gMonteCarlo(0, "r", "", "1", nullptr, nullptr),
     ".param r"},
    {"Monte Carlo without a variation", gMonteCarlo(0, "r", "1", "", nullptr, nullptr), ".param r"},
    {"Monte Carlo without a sigma", gMonteCarlo(2, "r", "1", "1", "", nullptr), ".param r"},
    {"optimization", gOptimization("w", "", "1", "1", "1", ""), ".param first=1"},
};

TEST_F(ParameterDefinition, AFailedMonteCarloCommandLeavesItsNameAndAnyOtherNothing)
{
    for (const TLeftCase& rCase : kLeftCases) {
        SCOPED_TRACE(rCase.pName);
        CRememberedBase::ResetAll();
        gRunWizard(OnPage()
                       .Do(gGeneral("first", "1"))
                       .Do({Insert()})
                       .Do(rCase.steps)
                       .Do({Insert()})
                       .Look({look::Command(rCase.pCommand)}));
    }
}

// --- the list

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

struct TListCase {
    const char* pName;
    CScript script;
    std::vector<std::string> entries; ///< the newest first
    int nSelected;
    bool bButtons; ///< Delete and Clear are enabled
    std::vector<std::string> messages;
};

const TListCase kListCases[] = {
    {"the newest entry stands on top, selected, beside those of other types",
     WithTwoEntries(),
     {"b=unif(1,0.1)", "a=1"},
     0,
     true,
     {}},
    {"the same in other letter case is refused",
     WithTwoEntries().Do({Set("first", "B"), kPress}),
     {"b=unif(1,0.1)", "a=1"},
     0,
     true,
     {kAlreadyThere}},
    {"deleting asks, and no keeps the entry",
     WithTwoEntries().Answer({false}).Do({Click("delete")}),
     {"b=unif(1,0.1)", "a=1"},
     0,
     true,
     {kDeleteQuestion}},
    {"deleting selects the entry on top",
     WithTwoEntries().Do({Select("list", 1)}).Answer({true}).Do({Click("delete")}),
     {"b=unif(1,0.1)"},
     0,
     true,
     {kDeleteQuestion}},
    {"deleting the last entry disables Delete and Clear",
     WithTwoEntries().Answer({true, true}).Do({Click("delete"), Click("delete")}),
     {},
     -1,
     false,
     {kDeleteQuestion, kDeleteQuestion}},
    {"deleting without a selection does nothing",
     WithTwoEntries().Do({Select("list", -1)}).Answer({true}).Do({Click("delete")}),
     {"b=unif(1,0.1)", "a=1"},
     -1,
     true,
     {}},
    {"clearing asks about plot items, and no keeps all",
     WithTwoEntries().Answer({false}).Do({Click("clear")}),
     {"b=unif(1,0.1)", "a=1"},
     0,
     true,
     {kClearQuestion}},
    {"clearing empties the list",
     WithTwoEntries().Answer({true}).Do({Click("clear")}),
     {},
     -1,
     false,
     {kClearQuestion}},
    {"clearing without a selection does nothing",
     WithTwoEntries().Do({Select("list", -1)}).Answer({true}).Do({Click("clear")}),
     {"b=unif(1,0.1)", "a=1"},
     -1,
     true,
     {}},
    {"a change of type or distribution doesn't touch the list",
     WithTwoEntries().Do({Select("distribution", 3), Select("parameter-type", "Optimization")}),
     {"b=unif(1,0.1)", "a=1"},
     0,
     true,
     {}},
};

TEST_F(ParameterDefinition, AddsDeletesAndClears)
{
    for (const TListCase& rCase : kListCases) {
        SCOPED_TRACE(rCase.pName);
        CScript script = rCase.script;
        const auto outcome = gRunWizard(script.Look(
            {look::Entries("list", rCase.entries), look::Selected("list", rCase.nSelected),
             look::Enabled("delete", rCase.bButtons), look::Enabled("clear", rCase.bButtons)}));
        EXPECT_EQ(outcome.messages, rCase.messages);
    }
}

TEST_F(ParameterDefinition, TheRefusalIsTranslatedAndTheQuestionsAreNot)
{
    const CBracketTranslation translation;
    const auto outcome = gRunWizard(OnPage("[Settings]/[Parameters]")
                                        .Do(gGeneral("a", "1"))
                                        .Do({kPress, kPress, Click("delete"), Click("clear")}));
    EXPECT_EQ(outcome.messages, (std::vector<std::string>{"[" + std::string(kAlreadyThere) + "]",
                                                          kDeleteQuestion, kClearQuestion}));
}

TEST_F(ParameterDefinition, AddKeepsTheFieldsAsTheyWereTyped)
{
    gRunWizard(
        OnPage()
            .Do(gGeneral(" a", " 1"))
            .Do({kPress})
            .Look({look::Text("second", " a"), look::Text("third", " 1"), look::Enabled("add")}));
}

TEST_F(ParameterDefinition, TheListIsInsertedOldestFirst)
{
    EXPECT_EQ(gRunWizard(WithTwoEntries().Do({Insert()})).inserted,
              std::vector<std::string>{".param a=1 b=unif(1,0.1)"});
}

TEST_F(ParameterDefinition, WithAListEmptyFieldsStillMakeACommand)
{
    EXPECT_EQ(
        gRunWizard(WithTwoEntries().Do(gMonteCarlo(0, "", "", "", nullptr, nullptr)).Do({Insert()}))
            .inserted,
        std::vector<std::string>{".param a=1 b=unif(1,0.1)"});
}

TEST_F(ParameterDefinition, AfterTheLastEntryIsDeletedTheFieldsCountAgain)
{
    EXPECT_EQ(gRunWizard(WithTwoEntries()
                             .Answer({true})
                             .Do({Click("clear")})
                             .Do(gGeneral("c", "3"))
                             .Do({Insert()}))
                  .inserted,
              std::vector<std::string>{".param c=3"});
}
} // namespace
