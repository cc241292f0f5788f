#include "platform/ui/FieldView.h"
#include "support/Look.h"
#include "support/PageTest.h"
#include "support/TranslationScope.h"
#include "wizard/optimization/OptimizationRun.h"

#include <gtest/gtest.h>

// The lists of goals and of parameters: when Add is enabled, and what the three buttons do.

namespace
{
using namespace steps;
using namespace optimization;

using OptimizationLists = PageTest;

struct TAddCase {
    const char* pName;
    TArguments arguments;
    bool bEnabled;
};

const TAddCase kGoalCases[] = {
    {"nothing", {}, false},
    {"the target alone", {"target=1n"}, false},
    {"the target last", {"measurement=delay", "target=1n"}, true},
    {"the measurement last: it has no handler", {"target=1n", "measurement=delay"}, false},
    {"the measurement, then the weight", {"target=1n", "measurement=delay", "weight=1"}, true},
    {"the measurement, then the minimum value",
     {"target=1n", "measurement=delay", "minimum-value=1"},
     true},
    {"a measurement taken away isn't noticed",
     {"measurement=delay", "target=1n", "measurement="},
     true},
    {"but on the next change it is",
     {"measurement=delay", "target=1n", "measurement=", "target=2n"},
     false},
    {"the target taken away", {"measurement=delay", "target=1n", "target="}, false},
    {"emptying the weight disables it", {"measurement=delay", "target=1n", "weight="}, false},
    {"then any other field with a handler enables it",
     {"measurement=delay", "target=1n", "weight=", "target=1n"},
     true},
    {"an empty minimum value doesn't matter to itself",
     {"measurement=delay", "target=1n", "minimum-value="},
     true},
    {"but to the weight", {"measurement=delay", "target=1n", "minimum-value=", "weight=2"}, false},
    {"blanks are texts", {"measurement= ", "target= "}, true},
    {"entering the step asks anew, by its defaults",
     {"target=1n", "measurement=delay", "back", "continue"},
     true},
    {"also when the weight had been emptied",
     {"measurement=delay", "target=1n", "weight=", "back", "continue"},
     true},
    {"and disables it when there is no measurement",
     {"measurement=delay", "target=1n", "measurement=", "back", "continue"},
     false},
};

TEST_F(OptimizationLists, AddOfAGoalIsEnabledByTheRuleOfTheFieldThatChanges)
{
    for (const TAddCase& rCase : kGoalCases) {
        SCOPED_TRACE(rCase.pName);
        gRunWizard(
            gAtStep(1).Fill(rCase.arguments).Look({look::Enabled("goal-add", rCase.bEnabled)}));
    }
}

const TAddCase kParameterCases[] = {
    {"nothing", {}, false},
    {"the maximum last", {"parameter-name=w", "minimum=1", "maximum=2"}, true},
    {"the minimum last", {"parameter-name=w", "maximum=2", "minimum=1"}, true},
    {"the name last", {"minimum=1", "maximum=2", "parameter-name=w"}, true},
    {"no name", {"minimum=1", "maximum=2"}, false},
    {"no minimum", {"parameter-name=w", "maximum=2"}, false},
    {"no maximum", {"parameter-name=w", "minimum=1"}, false},
    {"the name taken away",
     {"parameter-name=w", "minimum=1", "maximum=2", "parameter-name="},
     false},
    {"delta and guess don't matter",
     {"parameter-name=w", "minimum=1", "maximum=2", "delta=1", "delta=", "guess=1", "guess="},
     true},
    {"blanks are texts", {"parameter-name= ", "minimum= ", "maximum= "}, true},
};

TEST_F(OptimizationLists, AddOfAParameterIsEnabledWhenItsThreeFieldsHaveTexts)
{
    for (const TAddCase& rCase : kParameterCases) {
        SCOPED_TRACE(rCase.pName);
        gRunWizard(gAtStep(2)
                       .Fill(rCase.arguments)
                       .Look({look::Enabled("parameter-add", rCase.bEnabled)}));
    }
}

TEST_F(OptimizationLists, AGuessHasAHandlerAndADeltaHasNone)
{
    // The button is switched by hand, to see who asks for its rule.
    for (const auto& [pKey, bAsks] : {std::pair{"delta", false}, {"guess", true}})
        gRunWizard(gAtStep(2)
                       .Then([](CDialog& rDialog) {
                           gFindField(rDialog, "parameter-add").pControl->EnableWindow(true);
                       })
                       .Do({Set(pKey, "1")})
                       .Look({look::Enabled("parameter-add", !bAsks)}));
}

TEST_F(OptimizationLists, AddDoesNothingOnceItsFieldsWereEmptiedUnseen)
{
    const auto outcome = gRunWizard(
        gAtStep(1)
            .Fill({"measurement=delay", "target=1n", "measurement=", "goal-add"})
            .Look({look::Entries("goal-list", {}), look::Enabled("goal-delete", false)}));
    EXPECT_EQ(outcome.messages, std::vector<std::string>{});
}

TEST_F(OptimizationLists, AddOfAParameterDoesNothingWithoutItsTexts)
{
    gRunWizard(gAtStep(2)
                   .Then([](CDialog& rDialog) {
                       gFindField(rDialog, "parameter-add").pControl->EnableWindow(true);
                   })
                   .Do({Click("parameter-add")})
                   .Look({look::Entries("parameter-list", {})}));
}

TEST_F(OptimizationLists, AddTakesTheTextsAsTypedAndTheFieldsKeepThem)
{
    gRunWizard(gAtStep(1)
                   .Fill({"measurement= delay ", "target= 1n ", "minimum-value= ", "goal-add"})
                   .Look({look::Entries("goal-list", {" delay = 1n  minval=  weight=1"}),
                          look::Selected("goal-list", 0), look::Enabled("goal-delete"),
                          look::Enabled("goal-clear"), look::Text("measurement", " delay "),
                          look::Text("target", " 1n "), look::Enabled("goal-add")}));
    gRunWizard(
        gAtStep(2)
            .Fill({"parameter-name= w ", "minimum= 1 ", "maximum= 2 ", "delta= 3 ",
                   "guess= ", "parameter-add"})
            .Look({look::Entries("parameter-list", {" w  minval= 1  maxval= 2  delta= 3  guess= "}),
                   look::Selected("parameter-list", 0), look::Enabled("parameter-delete"),
                   look::Enabled("parameter-clear"), look::Text("parameter-name", " w ")}));
}

/// One of the two lists, with what fills in an entry but for its first letter.
struct TList {
    const char* pName; ///< "goal" or "parameter"
    int nStep;
    const char* pNameKey;
    TArguments rest;
    const char* pRest; ///< the end of each entry
};

const TList kLists[] = {
    {"goal", 1, "measurement", {"target=1", "minimum-value="}, "=1 weight=1"},
    {"parameter", 2, "parameter-name", {"minimum=1", "maximum=2"}, " minval=1 maxval=2"},
};

std::string KeyOf(const TList& rList, const char* pEnd)
{
    return rList.pName + std::string(pEnd);
}

/// Adds an entry of this name.
TArguments Adding(const TList& rList, const std::string& rsName)
{
    return gJoin({{rList.pNameKey + ('=' + rsName)}, rList.rest, {KeyOf(rList, "-add")}});
}

/// The list holds the entries of these names, from top to bottom.
CScript::TAction Holds(const TList& rList, const std::vector<std::string>& rNames)
{
    std::vector<std::string> entries;
    for (const std::string& rsName : rNames)
        entries.push_back(rsName + rList.pRest);
    return look::Entries(KeyOf(rList, "-list"), entries);
}

TEST_F(OptimizationLists, NewEntriesStandOnTopAndAreSelected)
{
    for (const TList& rList : kLists)
        gRunWizard(
            gAtStep(rList.nStep)
                .Fill(gJoin({Adding(rList, "a"), Adding(rList, "b"), Adding(rList, "c")}))
                .Look({Holds(rList, {"c", "b", "a"}), look::Selected(KeyOf(rList, "-list"), 0)}));
}

TEST_F(OptimizationLists, AnEntryThatIsThereInAnyCaseIsRefusedWithATranslatedMessage)
{
    const CBracketTranslation translation;
    for (const TList& rList : kLists)
        for (const char* pAgain : {"delay", "DELAY"}) {
            const auto outcome =
                gRunWizard(CScript()
                               .Do({Open("[Optimization]/[Wizard]")})
                               .Fill(gWayTo(rList.nStep))
                               .Fill(gJoin({Adding(rList, "delay"), Adding(rList, "b")}))
                               .Do({Select(KeyOf(rList, "-list"), 1)})
                               .Fill(Adding(rList, pAgain))
                               .Look({Holds(rList, {"b", "delay"}),
                                      look::Selected(KeyOf(rList, "-list"), 1)}));
            EXPECT_EQ(outcome.messages,
                      std::vector<std::string>{"[This entry is already in the list.]"});
        }
}

TEST_F(OptimizationLists, BothListsAskAboutParameters)
{
    const CBracketTranslation translation;
    for (const TList& rList : kLists) {
        const auto outcome =
            gRunWizard(CScript()
                           .Do({Open("[Optimization]/[Wizard]")})
                           .Fill(gWayTo(rList.nStep))
                           .Fill(Adding(rList, "a"))
                           .Answer({false, false})
                           .Do({Click(KeyOf(rList, "-delete")), Click(KeyOf(rList, "-clear"))})
                           .Look({Holds(rList, {"a"}), look::Selected(KeyOf(rList, "-list"), 0),
                                  look::Enabled(KeyOf(rList, "-delete")),
                                  look::Enabled(KeyOf(rList, "-clear"))}));
        EXPECT_EQ(outcome.messages,
                  (std::vector<std::string>{
                      "[Are you sure you want to delete the selected parameter from the list?]",
                      "[Are you sure you want to delete all of the parameters in the list?]"}));
    }
}

TEST_F(OptimizationLists, DeleteTakesTheSelectedEntryAndSelectsTheTopOne)
{
    for (const TList& rList : kLists)
        gRunWizard(gAtStep(rList.nStep)
                       .Fill(gJoin({Adding(rList, "a"), Adding(rList, "b"), Adding(rList, "c")}))
                       .Answer({true, true, true})
                       .Do({Select(KeyOf(rList, "-list"), 1), Click(KeyOf(rList, "-delete"))})
                       .Look({Holds(rList, {"c", "a"}), look::Selected(KeyOf(rList, "-list"), 0)})
                       .Do({Click(KeyOf(rList, "-delete"))})
                       .Look({Holds(rList, {"a"}), look::Enabled(KeyOf(rList, "-delete"))})
                       .Do({Click(KeyOf(rList, "-delete"))})
                       .Look({Holds(rList, {}), look::Enabled(KeyOf(rList, "-delete"), false),
                              look::Enabled(KeyOf(rList, "-clear"), false)}));
}

TEST_F(OptimizationLists, ClearEmptiesTheList)
{
    for (const TList& rList : kLists)
        gRunWizard(gAtStep(rList.nStep)
                       .Fill(gJoin({Adding(rList, "a"), Adding(rList, "b")}))
                       .Answer({true})
                       .Do({Click(KeyOf(rList, "-clear"))})
                       .Look({Holds(rList, {}), look::Enabled(KeyOf(rList, "-delete"), false),
                              look::Enabled(KeyOf(rList, "-clear"), false)}));
}

TEST_F(OptimizationLists, WithoutASelectionDeleteAndClearDoNothing)
{
    for (const TList& rList : kLists) {
        const auto outcome =
            gRunWizard(gAtStep(rList.nStep)
                           .Fill(Adding(rList, "a"))
                           .Do({Select(KeyOf(rList, "-list"), -1), Click(KeyOf(rList, "-delete")),
                                Click(KeyOf(rList, "-clear"))})
                           .Look({Holds(rList, {"a"})}));
        EXPECT_EQ(outcome.messages, std::vector<std::string>{});
    }
}

TEST_F(OptimizationLists, AfterAClearTheFieldsCountAgain)
{
    const auto outcome = gRunWizard(gAtStep(1)
                                        .Fill({"measurement=delay", "target=1n", "goal-add"})
                                        .Answer({true})
                                        .Fill({"goal-clear", "measurement=", "continue"}));
    EXPECT_EQ(outcome.messages.back(), "Missing measurement name.");
}

TEST_F(OptimizationLists, TheTwoListsAreApart)
{
    gRunWizard(
        gAtStep(1)
            .Fill({"measurement=delay", "target=1n", "goal-add", "continue"})
            .Look({look::Entries("parameter-list", {}), look::Enabled("parameter-delete", false)}));
}
} // namespace
