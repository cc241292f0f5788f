#include "support/Look.h"
#include "support/PageTest.h"
#include "support/TranslationScope.h"
#include "wizard/optimization/OptimizationRun.h"

#include <gtest/gtest.h>

// What comes of the five steps: the block of commands, and what is left out of it.

namespace
{
using namespace steps;
using namespace optimization;

using OptimizationCommand = PageTest;

std::string WithLineFeeds(const std::string& rsCommand)
{
    CString sCommand(rsCommand);
    sCommand.Replace("\r\n", "\n");
    return sCommand.GetString();
}

/// The lines of the one command that was inserted, joined by LF.
std::string Block(const TArguments& rArguments)
{
    const TWizardOutcome outcome = gCompose(kPage, rArguments);
    EXPECT_EQ(outcome.messages, std::vector<std::string>{});
    if (outcome.inserted.size() != 1)
        return "inserted: " + std::to_string(outcome.inserted.size());
    return WithLineFeeds(outcome.inserted[0]);
}

constexpr const char* kDefaultModel =
    ".model m1 opt cendif=1e-9 close=0.001 cut=2 difsiz=1e-3 grad=1e-6\n"
    "+      itropt=20 max=600000 parmin=0.1 relin=0.001 relout=0.001";

/// The block of the least that the steps take, with another goal line.
std::string BlockWithGoals(const std::string& rsGoalLines)
{
    return ".optimize o1 model=m1 analysisname=tran\n"
           ".paramlimits o1 w minval=1u maxval=5u\n" +
           rsGoalLines + kDefaultModel;
}

TEST_F(OptimizationCommand, TheWholeBlockIsOneCommandOfLines)
{
    const TArguments goals{
        "measurement=delay", "target=1n",      "goal-add", "measurement=rise", "target=2n",
        "weight=",           "minimum-value=", "goal-add", "continue"};
    const TArguments limits{"parameter-name=w", "minimum=1u", "maximum=5u", "guess=2u", "continue"};
    const TWizardOutcome outcome = gCompose(kPage, gJoin({kSetup, goals, limits, kAlgorithm}));
    EXPECT_EQ(outcome.inserted,
              std::vector<std::string>{
                  ".optimize o1 model=m1 analysisname=tran\r\n"
                  ".paramlimits o1 w minval=1u maxval=5u guess=2u\r\n"
                  ".optgoal o1 delay=1n minval=1e-12 weight=1\r\n"
                  ".optgoal o1 rise=2n\r\n"
                  ".model m1 opt cendif=1e-9 close=0.001 cut=2 difsiz=1e-3 grad=1e-6\r\n"
                  "+      itropt=20 max=600000 parmin=0.1 relin=0.001 relout=0.001"});
    EXPECT_EQ(outcome.messages, std::vector<std::string>{});
}

TEST_F(OptimizationCommand, EachAnalysisOfTheListHasItsKeyword)
{
    const std::pair<const char*, const char*> cases[] = {{"First AC Analysis", "ac"},
                                                         {"First DC Analysis", "dc"},
                                                         {"First Transient Analysis", "tran"},
                                                         {"First .step Analysis", "step"}};
    for (const auto& [pName, pKeyword] : cases) {
        const TArguments setup{"optimization-name=o1", std::string("analysis-name=") + pName,
                               "continue"};
        const std::string sBlock = Block(gJoin({setup, kGoal, kLimits, kAlgorithm}));
        EXPECT_EQ(sBlock.substr(0, sBlock.find('\n')),
                  std::string(".optimize o1 model=m1 analysisname=") + pKeyword);
    }
}

TEST_F(OptimizationCommand, ATypedAnalysisNameGoesInAsItIsTypedAndStaysInItsField)
{
    for (const char* pName : {"mysweep", " first ac analysis ", "first AC Analysis"}) {
        const TArguments setup{"optimization-name=o1", std::string("analysis-name=") + pName,
                               "continue"};
        const auto outcome = gRunWizard(
            gAtStep(0)
                .Fill(gJoin({setup, kGoal, kLimits, kAlgorithm}))
                .Do({Insert()})
                .Look({look::Text("analysis-name", pName), look::Selected("analysis-name", -1)}));
        ASSERT_EQ(outcome.inserted.size(), 1U);
        EXPECT_TRUE(outcome.inserted[0].starts_with(
            std::string(".optimize o1 model=m1 analysisname=") + pName + "\r\n"));
    }
}

TEST_F(OptimizationCommand, AChosenAnalysisStaysAsItIsShown)
{
    gRunWizard(gAtStep(4)
                   .Do({Insert()})
                   .Look({look::Text("analysis-name", "First Transient Analysis"),
                          look::Selected("analysis-name", 2)}));
}

TEST_F(OptimizationCommand, ATranslatedAnalysisOfTheListGoesInTranslated)
{
    const CBracketTranslation translation;
    const TArguments setup{"optimization-name=o1", "analysis-name=[First AC Analysis]", "continue"};
    const std::string sBlock = Block(gJoin({setup, kGoal, kLimits, kAlgorithm}));
    EXPECT_EQ(sBlock.substr(0, sBlock.find('\n')),
              ".optimize o1 model=m1 analysisname=[First AC Analysis]");
}

TEST_F(OptimizationCommand, WithATranslationTheEnglishNameIsStillKnownWhenItIsTyped)
{
    const CBracketTranslation translation;
    const std::string sBlock = Block(gJoin({kSetup, kGoal, kLimits, kAlgorithm}));
    EXPECT_EQ(sBlock.substr(0, sBlock.find('\n')), ".optimize o1 model=m1 analysisname=tran");
}

// --- goals and limits: the list or the fields

TEST_F(OptimizationCommand, WithGoalsInTheListTheFieldsAreIgnoredHoweverTheyAreFilled)
{
    const TArguments add{"measurement=delay", "target=1n", "goal-add"};
    for (const TArguments& rLeft :
         {TArguments{}, TArguments{"measurement=other", "target=9", "weight=7"},
          TArguments{"measurement=", "target=", "weight=", "minimum-value="}})
        EXPECT_EQ(Block(gJoin({kSetup, add, rLeft, {"continue"}, kLimits, kAlgorithm})),
                  BlockWithGoals(".optgoal o1 delay=1n minval=1e-12 weight=1\n"));
}

TEST_F(OptimizationCommand, WithParametersInTheListTheFieldsAreIgnoredHoweverTheyAreFilled)
{
    const TArguments add{"parameter-name=w", "minimum=1u", "maximum=5u", "parameter-add"};
    for (const TArguments& rLeft :
         {TArguments{}, TArguments{"parameter-name=x", "minimum=9", "delta=7", "guess=7"},
          TArguments{"parameter-name=", "minimum=", "maximum="}})
        EXPECT_EQ(Block(gJoin({kSetup, kGoal, add, rLeft, {"continue"}, kAlgorithm})),
                  BlockWithGoals(".optgoal o1 delay=1n minval=1e-12 weight=1\n"));
}

TEST_F(OptimizationCommand, TheOnlyGoalCarriesTheDefaultsUnlessTheyAreBlanked)
{
    const std::pair<TArguments, const char*> cases[] = {
        {{}, ".optgoal o1 delay=1n minval=1e-12 weight=1\n"},
        {{"minimum-value=", "weight="}, ".optgoal o1 delay=1n\n"},
        {{"weight="}, ".optgoal o1 delay=1n minval=1e-12\n"},
        {{"minimum-value="}, ".optgoal o1 delay=1n weight=1\n"},
    };
    for (const auto& [rBlanks, pGoal] : cases)
        EXPECT_EQ(Block(gJoin({kSetup, rBlanks, kGoal, kLimits, kAlgorithm})),
                  BlockWithGoals(pGoal));
}

TEST_F(OptimizationCommand, TheOnlyParameterCarriesItsDeltaAndItsGuess)
{
    const std::string sBlock =
        Block(gJoin({kSetup, kGoal, {"delta=0.1u", "guess=2u"}, kLimits, kAlgorithm}));
    EXPECT_NE(sBlock.find("\n.paramlimits o1 w minval=1u maxval=5u delta=0.1u guess=2u\n"),
              std::string::npos)
        << sBlock;
}

TEST_F(OptimizationCommand, SeveralEntriesStandInTheOrderInWhichTheyWereAdded)
{
    const TArguments goals{"measurement=a", "target=1",      "weight=1",
                           "goal-add",      "measurement=b", "goal-add",
                           "measurement=c", "goal-add",      "continue"};
    const TArguments limits{"parameter-name=x", "minimum=1",     "maximum=2", "parameter-add",
                            "parameter-name=y", "parameter-add", "continue"};
    EXPECT_EQ(Block(gJoin({kSetup, goals, limits, kAlgorithm})),
              std::string(".optimize o1 model=m1 analysisname=tran\n"
                          ".paramlimits o1 x minval=1 maxval=2\n"
                          ".paramlimits o1 y minval=1 maxval=2\n"
                          ".optgoal o1 a=1 minval=1e-12 weight=1\n"
                          ".optgoal o1 b=1 minval=1e-12 weight=1\n"
                          ".optgoal o1 c=1 minval=1e-12 weight=1\n") +
                  kDefaultModel);
}

TEST_F(OptimizationCommand, AParameterNameTypedBeforeStandsDirectlyInFrontOfTheOnlyGoal)
{
    // From the limits back to the goals, and on.
    const TArguments back{"parameter-name=w", "back", "continue"};
    EXPECT_EQ(Block(gJoin({kSetup, kGoal, back, kLimits, kAlgorithm})),
              BlockWithGoals(".optgoal o1 wdelay=1n minval=1e-12 weight=1\n"));
}

TEST_F(OptimizationCommand, AParameterNameTypedBeforeIsNoPrefixOfAGoalOfTheList)
{
    const TArguments back{"parameter-name=w", "back", "goal-add", "continue"};
    EXPECT_EQ(Block(gJoin({kSetup, kGoal, back, kLimits, kAlgorithm})),
              BlockWithGoals(".optgoal o1 delay=1n minval=1e-12 weight=1\n"));
}

TEST_F(OptimizationCommand, TheLinesAreBuiltAnewOnEachContinue)
{
    const auto outcome = gRunWizard(
        gAtStep(3)
            .Fill({"back", "back", "measurement=rise", "minimum-value=", "goal-add", "continue"})
            .Fill({"parameter-name=v", "continue", "name=m1", "continue"})
            .Do({Insert()}));
    EXPECT_EQ(WithLineFeeds(outcome.inserted.at(0)),
              std::string(".optimize o1 model=m1 analysisname=tran\n"
                          ".paramlimits o1 v minval=1u maxval=5u\n"
                          ".optgoal o1 rise=1n weight=1\n") +
                  kDefaultModel);
}

// --- the model

TEST_F(OptimizationCommand, WithAllKeysBlankTheModelStandsAlone)
{
    EXPECT_EQ(Block(gJoin({kSetup, kGoal, kLimits, gBlankKeys(), kAlgorithm})),
              ".optimize o1 model=m1 analysisname=tran\n"
              ".paramlimits o1 w minval=1u maxval=5u\n"
              ".optgoal o1 delay=1n minval=1e-12 weight=1\n"
              ".model m1 opt");
}

TEST_F(OptimizationCommand, TheSixthKeyAndThoseBehindItStandOnAContinuationLine)
{
    const std::pair<TArguments, const char*> cases[] = {
        {{"cut=3"}, ".model m1 opt cut=3"},
        {{"cendif=1", "close=2", "cut=3", "grad=5", "relout=10"},
         ".model m1 opt cendif=1 close=2 cut=3 grad=5 relout=10"},
        {{"cendif=1", "close=2", "cut=3", "grad=5", "max=7", "relout=10"},
         ".model m1 opt cendif=1 close=2 cut=3 grad=5 max=7\n+      relout=10"},
        {{"cendif=1", "close=2", "cut=3", "difsiz=4", "grad=5", "itropt=6", "max=7"},
         ".model m1 opt cendif=1 close=2 cut=3 difsiz=4 grad=5\n+      itropt=6 max=7"},
    };
    for (const auto& [rKeys, pModel] : cases) {
        const std::string sBlock =
            Block(gJoin({kSetup, kGoal, kLimits, gBlankKeys(), rKeys, kAlgorithm}));
        EXPECT_EQ(sBlock.substr(sBlock.find(".model")), pModel);
    }
}

TEST_F(OptimizationCommand, NameAndKeysAreTrimmedOnTheLeftAloneAndTheRestNotAtAll)
{
    const TArguments setup{"optimization-name= o1 ", "analysis-name= a ", "continue"};
    const TArguments goal{"measurement= m ", "target= 1 ", "minimum-value= ", "weight= 2 ",
                          "continue"};
    const TArguments limits{"parameter-name= w ", "minimum= 1 ", "maximum= 2 ",
                            "guess= ", "continue"};
    const TArguments algorithm{"name=  m1 ", "cut=  3 ", "grad=  ", "continue"};
    const auto outcome =
        gRunWizard(gAtStep(0)
                       .Fill(gJoin({setup, goal, limits, gBlankKeys(), algorithm}))
                       // Written back to the fields.
                       .Look({look::Text("name", "m1 "), look::Text("cut", "3 "),
                              look::Text("grad", ""), look::Text("optimization-name", " o1 "),
                              look::Text("weight", " 2 "), look::Text("guess", " ")})
                       .Do({Insert()}));
    EXPECT_EQ(WithLineFeeds(outcome.inserted.at(0)),
              ".optimize  o1  model=m1  analysisname= a \n"
              ".paramlimits  o1   w  minval= 1  maxval= 2  guess= \n"
              ".optgoal  o1   m = 1  minval=  weight= 2 \n"
              ".model m1  opt cut=3 ");
}

TEST_F(OptimizationCommand, NoLevelIsWritten)
{
    EXPECT_EQ(Block(gJoin({kSetup, kGoal, kLimits, {"algorithm-type=#0"}, kAlgorithm})),
              BlockWithGoals(".optgoal o1 delay=1n minval=1e-12 weight=1\n"));
}

// --- a name of blanks

TEST_F(OptimizationCommand, ANameOfBlanksReachesTheLastStepWithAMessageAndAnEmptyPreview)
{
    const CBracketTranslation translation;
    const auto outcome = gRunWizard(CScript()
                                        .Do({Open("[Optimization]/[Wizard]")})
                                        .Fill(gWayTo(3))
                                        .Fill({"name=  ", "continue"})
                                        .Look({look::Shown("preview"), look::Text("preview", ""),
                                               look::Text("name", "  "), look::Enabled("insert")})
                                        .Do({Insert()}));
    EXPECT_EQ(outcome.messages,
              (std::vector<std::string>{"Missing model name.", "Missing model name."}));
    EXPECT_EQ(outcome.inserted, std::vector<std::string>{});
}

TEST_F(OptimizationCommand, AFailureLeavesTheCommandOfThePageBefore)
{
    gRunWizard(CScript()
                   .Do({Open("Settings/Temperature"), Set("temperature-list", "27"), Insert(),
                        Open(kPage.c_str())})
                   .Fill(gWayTo(3))
                   .Fill({"name= ", "continue"})
                   .Do({Insert()})
                   .Look({look::Command(".temp 27")}));
}

// --- preview and insertion

TEST_F(OptimizationCommand, ThePreviewIsTheCommandAndLeavesTheWizardsOwnAlone)
{
    const std::string sBlock = ".optimize o1 model=m1 analysisname=tran\r\n"
                               ".paramlimits o1 w minval=1u maxval=5u\r\n"
                               ".optgoal o1 delay=1n minval=1e-12 weight=1\r\n"
                               ".model m1 opt cut=2";
    TArguments keys = gBlankKeys();
    keys.emplace_back("cut=2");
    const auto outcome = gRunWizard(gAtStep(3)
                                        .Fill(gJoin({keys, kAlgorithm}))
                                        .Look({look::Text("preview", sBlock), look::Command("")})
                                        .Do({Insert()})
                                        .Look({look::Command(sBlock)})
                                        .Do({Insert()}));
    EXPECT_EQ(outcome.inserted, (std::vector<std::string>{sBlock, sBlock}));
}

TEST_F(OptimizationCommand, ThePreviewCantBeTypedInto)
{
    gRunWizard(gAtStep(4).Refused(Set("preview", "x"), EStepEnd::Refused, EUserResult::ReadOnly));
}

TEST_F(OptimizationCommand, NothingIsRememberedForTheNextRun)
{
    gRunWizard(gAtStep(4).Do({Insert()}));
    gRunWizard(gAtStep(0).Look(
        {look::Text("step-group", "Optimization setup"), look::Text("optimization-name", ""),
         look::Text("analysis-name", ""), look::Text("name", ""), look::Text("measurement", ""),
         look::Text("parameter-name", ""), look::Entries("goal-list", {})}));
}

TEST_F(OptimizationCommand, ListsAndFieldsLiveAsLongAsThePage)
{
    gRunWizard(gAtStep(1)
                   .Fill({"measurement=delay", "target=1n", "goal-add"})
                   .Do({Open("Settings/Temperature"), Open(kPage.c_str())})
                   .Look({look::Text("step-group", "Set optimization goals"),
                          look::Text("measurement", "delay"),
                          look::Entries("goal-list", {"delay=1n minval=1e-12 weight=1"})}));
}
} // namespace
