// A sweep of a page, told on the transient page: the button, the dialog, the two summaries.

#include "wizard/analysis/SweepSlot.h"

#include "support/Look.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"
#include "wizard/analysis/SweepSteps.h"
#include "wizard/frame/Remembered.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;

class SweepSlotTest : public testing::Test
{
protected:
    SweepSlotTest() { CRememberedBase::ResetAll(); }

    /// Opens the page with its two times filled in.
    static CScript OnPage()
    {
        CScript script;
        script.Do({Open("Analysis/Transient"), Set("maximum-time-step", "1n"),
                   Set("simulation-length", "100n")});
        return script;
    }
    static std::vector<CScript::TAction> Summary(const char* pFirst, const char* pSecond)
    {
        return {look::Text("sweep-summary-1", pFirst), look::Text("sweep-summary-2", pSecond)};
    }
};

TEST_F(SweepSlotTest, ShowsASummaryOfEveryTypeWithEveryParameterAndTranslatesNone)
{
    const char* const types[] = {"Linear", "Decade", "Octave", "List",
                                 "Poi",    "Data",   "Monte",  "Optimize"};
    const char* const parameters[] = {"Model parameter", "Parameter", "Parameter name",
                                      "Source name", "Temperature"};
    const CBracketTranslation translation;
    CScript script;
    script.Do({Open("[Analysis]/[Transient]")}).Look(Summary("Not used", ""));
    for (int nType = 0; nType < 8; ++nType) {
        for (int nParameter = 0; nParameter < 5; ++nParameter) {
            const bool bParameter = nType <= 4;
            script.Do({Click("sweep"), Select("sweep-type", 0),
                       Select("parameter-type", nParameter), Select("sweep-type", nType)});
            if (bParameter)
                script.Do({Select("parameter-type", nParameter)});
            script
                .Then([](CDialog& rDialog) {
                    for (const char* pKey : {"parameter-name", "model-name", "start", "stop",
                                             "list-of-values", "increment", "number-of-points"})
                        gRunStep(rDialog, Set(pKey, "1")); // those that are shown
                })
                .Do({Click("accept")})
                .Look(Summary(types[nType], bParameter ? parameters[nParameter] : ""));
        }
    }
    gRunWizard(std::move(script));
}

TEST_F(SweepSlotTest, CancelOnAFirstOpeningLeavesNotUsed)
{
    const auto outcome = gRunWizard(OnPage()
                                        .Do({Click("sweep"), Set("start", "1"), Click("cancel")})
                                        .Look(Summary("Not used", ""))
                                        .Do({Click("sweep")})
                                        .Look({look::Text("start", "")})
                                        .Do({Click("cancel"), Insert()}));
    EXPECT_EQ(outcome.inserted, std::vector<std::string>{".tran 1n 100n"});
}

TEST_F(SweepSlotTest, CancelAfterAnAcceptedSweepKeepsIt)
{
    const auto outcome =
        gRunWizard(OnPage()
                       .Do(MonteCarlo("sweep", "10"))
                       .Do({Click("sweep"), Select("sweep-type", "Linear"), Click("cancel")})
                       .Look(Summary("Monte", ""))
                       .Do({Insert()}));
    EXPECT_EQ(outcome.inserted, std::vector<std::string>{".tran 1n 100n sweep monte=10"});
}

TEST_F(SweepSlotTest, AFailedParameterCheckIsTheOnlyWayBackToNotUsed)
{
    const auto outcome =
        gRunWizard(OnPage()
                       .Do(Linear("sweep", "vdd", "1", "5", "1"))
                       .Look(Summary("Linear", "Parameter name"))
                       .Do({Click("sweep"), Set("start", ""), Click("accept"), Click("cancel")})
                       .Look(Summary("Linear", "Parameter name"))
                       .Do(Unuse("sweep"))
                       .Look(Summary("Not used", ""))
                       .Do({Insert()}));
    EXPECT_EQ(outcome.inserted, std::vector<std::string>{".tran 1n 100n"});
    EXPECT_EQ(outcome.messages,
              (std::vector<std::string>{"Missing start value.", "Missing parameter name."}));
}

TEST_F(SweepSlotTest, EnterAndEscapeInTheDialogLeaveTheOldResult)
{
    for (const char* pKey : {"enter", "escape"}) {
        const auto outcome = gRunWizard(
            OnPage()
                .Do(Linear("sweep", "vdd", "1", "5", "1"))
                .Do({Click("sweep"), Select("sweep-type", "Decade"), Set("start", "9"), Key(pKey)})
                .Look(Summary("Linear", "Parameter name"))
                .Do({Insert()}));
        EXPECT_EQ(outcome.inserted,
                  std::vector<std::string>{".tran 1n 100n sweep lin param vdd 1 5 1"})
            << pKey;
    }
}

TEST_F(SweepSlotTest, EnterOnAFirstOpeningLeavesNotUsed)
{
    gRunWizard(OnPage()
                   .Do({Click("sweep"), Set("start", "9"), Key("enter")})
                   .Look(Summary("Not used", "")));
}

TEST_F(SweepSlotTest, TheFocusComesBackToTheButton)
{
    gRunWizard(OnPage()
                   .Do({Click("sweep")})
                   .Look({look::Title("Sweep"), look::Focused("sweep-type")})
                   .Do({Click("cancel")})
                   .Look({look::Focused("sweep")}));
}

TEST_F(SweepSlotTest, TheDialogBelongsToItsPage)
{
    gRunWizard(OnPage()
                   .Do({Click("sweep")})
                   .Then([](CDialog& rDialog) {
                       ASSERT_TRUE(rDialog.GetOwner());
                       EXPECT_EQ(gClassName(*rDialog.GetOwner()), "CAnalysisTransientPage");
                   })
                   .Do({Click("cancel")}));
}

TEST_F(SweepSlotTest, WhileTheDialogIsOpenItsPageIsOutOfReach)
{
    gRunWizard(OnPage()
                   .Do({Click("sweep")})
                   .Refused(Insert(), EStepEnd::UnknownField)
                   .Refused(Set("simulation-length", "2n"), EStepEnd::UnknownField)
                   .Do({Click("cancel")}));
}

TEST_F(SweepSlotTest, EachRunOfTheWizardStartsWithoutASweep)
{
    gRunWizard(OnPage().Do(Linear("sweep", "vdd", "1", "5", "1")).Do({Insert()}));
    const auto outcome = gRunWizard(CScript()
                                        .Do({Open("Analysis/Transient")})
                                        .Look(Summary("Not used", ""))
                                        .Do({Insert(), Click("sweep")})
                                        .Look({look::Text("parameter-name", "")})
                                        .Do({Click("cancel")}));
    EXPECT_EQ(outcome.inserted, std::vector<std::string>{".tran 1n 100n"});
}

TEST_F(SweepSlotTest, TheSweepOfOnePageIsNotThatOfAnother)
{
    gRunWizard(OnPage()
                   .Do(Linear("sweep", "vdd", "1", "5", "1"))
                   .Do({Open("Analysis/AC")})
                   .Look(Summary("Not used", ""))
                   .Do({Open("Analysis/Transient")})
                   .Look(Summary("Linear", "Parameter name")));
}
} // namespace
