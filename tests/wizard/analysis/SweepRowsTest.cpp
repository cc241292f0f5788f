#include "wizard/analysis/SweepRows.h"

#include "support/Look.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"
#include "wizard/analysis/SweepSteps.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;

/// A page with three nested sweeps.
struct TPage {
    const char* pLabel;
    const char* pCommand;
};

std::string PathOf(const TPage& rPage)
{
    return std::string("Analysis/") + rPage.pLabel;
}

class SweepRowsTest : public testing::TestWithParam<TPage>
{
protected:
    static CScript OnPage()
    {
        CScript script;
        script.Do({Open(PathOf(GetParam()))});
        return script;
    }
    static std::vector<std::string> Line(const char* pClauses)
    {
        return {GetParam().pCommand + std::string(pClauses)};
    }
    /// Which of the three buttons are enabled.
    static std::vector<CScript::TAction> Buttons(bool bFirst, bool bSecond, bool bThird)
    {
        return {look::Enabled("sweep-1", bFirst), look::Enabled("sweep-2", bSecond),
                look::Enabled("sweep-3", bThird)};
    }
};

INSTANTIATE_TEST_SUITE_P(Pages, SweepRowsTest,
                         testing::Values(TPage{"DC transfer sweep", ".dc "},
                                         TPage{"Parametric sweep", ".step "}),
                         [](const auto& rInfo) {
                             return std::string(rInfo.index == 0 ? "DCTransferSweep"
                                                                 : "ParametricSweep");
                         });

TEST_P(SweepRowsTest, StartsWithoutSweepsAndWithTheFirstButtonAlone)
{
    const CBracketTranslation translation;
    CScript script;
    script.Do({Open("[Analysis]/[" + CString(GetParam().pLabel) + "]")})
        .Look(Buttons(true, false, false))
        .Look({look::Text("sweep-1", "&Sweep 1"), look::Text("sweep-2", "S&weep 2"),
               look::Text("sweep-3", "Sw&eep 3")});
    for (const std::string sKey : {"sweep-1", "sweep-2", "sweep-3"})
        script.Look(
            {look::Text(sKey + "-summary-1", "Not used"), look::Text(sKey + "-summary-2", "")});
    gRunWizard(std::move(script));
}

TEST_P(SweepRowsTest, WithoutTheFirstSweepItInsertsNothingAndSaysNothing)
{
    const auto outcome = gRunWizard(OnPage().Do({Insert()}).Look({look::Command("")}));
    EXPECT_TRUE(outcome.inserted.empty());
    EXPECT_TRUE(outcome.messages.empty());
}

TEST_P(SweepRowsTest, NestsUpToThreeSweepsOfWhichTheFirstHasThePrefix)
{
    const auto outcome = gRunWizard(OnPage()
                                        .Do(Linear("sweep-1", "vdd", "1", "5", "1"))
                                        .Do({Insert()})
                                        .Do(MonteCarlo("sweep-2", "10"))
                                        .Do({Insert()})
                                        .Do(Linear("sweep-3", "r1", "2", "4", "0.5"))
                                        .Do({Insert()}));
    const std::string sCommand = GetParam().pCommand;
    EXPECT_EQ(outcome.inserted,
              (std::vector<std::string>{sCommand + "lin param vdd 1 5 1",
                                        sCommand + "lin param vdd 1 5 1 sweep monte=10",
                                        sCommand + "lin param vdd 1 5 1 sweep monte=10 sweep lin "
                                                   "param r1 2 4 0.5"}));
}

TEST_P(SweepRowsTest, EachRowShowsItsOwnSummary)
{
    gRunWizard(
        OnPage()
            .Do(Linear("sweep-1", "vdd", "1", "5", "1"))
            .Do(MonteCarlo("sweep-2", "10"))
            .Look({look::Text("sweep-1-summary-1", "Linear"),
                   look::Text("sweep-1-summary-2", "Parameter name"),
                   look::Text("sweep-2-summary-1", "Monte"), look::Text("sweep-2-summary-2", ""),
                   look::Text("sweep-3-summary-1", "Not used"),
                   look::Text("sweep-3-summary-2", "")})
            .Do({Click("sweep-3")})
            .Look({look::Text("parameter-name", "")})
            .Do({Click("cancel"), Click("sweep-1")})
            .Look({look::Text("parameter-name", "vdd")})
            .Do({Click("cancel")}));
}

TEST_P(SweepRowsTest, AButtonIsEnabledWhileTheSweepsBeforeItAreUsed)
{
    gRunWizard(OnPage()
                   .Do({Click("sweep-1"), Click("cancel")})
                   .Look(Buttons(true, false, false))
                   .Do(MonteCarlo("sweep-1", "1"))
                   .Look(Buttons(true, true, false))
                   .Do({Click("sweep-2"), Click("cancel")})
                   .Look(Buttons(true, true, false))
                   .Do(MonteCarlo("sweep-2", "2"))
                   .Look(Buttons(true, true, true))
                   .Do(MonteCarlo("sweep-3", "3"))
                   .Look(Buttons(true, true, true))
                   .Do(Unuse("sweep-3"))
                   .Look(Buttons(true, true, true))
                   .Do(Unuse("sweep-2"))
                   .Look(Buttons(true, true, false))
                   .Do(MonteCarlo("sweep-2", "2"))
                   .Do(Unuse("sweep-1"))
                   .Look(Buttons(true, false, false))
                   .Do(MonteCarlo("sweep-1", "1"))
                   .Look(Buttons(true, true, true))
                   .Do(Unuse("sweep-1"))
                   .Refused(Click("sweep-2"), EStepEnd::Refused, EUserResult::Disabled));
}

TEST_P(SweepRowsTest, TheFirstSweepNotUsedWithTheSecondAcceptedInsertsNothingAndSaysNothing)
{
    const auto outcome = gRunWizard(OnPage()
                                        .Do(MonteCarlo("sweep-1", "1"))
                                        .Do(MonteCarlo("sweep-2", "2"))
                                        .Do({Insert()})
                                        .Do(Unuse("sweep-1"))
                                        .Do({Insert()})
                                        .Look({look::Command(Line("monte=1 sweep monte=2")[0])}));
    EXPECT_EQ(outcome.inserted, Line("monte=1 sweep monte=2")) << "once, before";
    EXPECT_EQ(outcome.messages, std::vector<std::string>{"Missing parameter name."})
        << "the sweep dialog alone has spoken";
}

TEST_P(SweepRowsTest, TheSecondSweepNotUsedLeavesTheThirdOut)
{
    const auto outcome = gRunWizard(OnPage()
                                        .Do(MonteCarlo("sweep-1", "1"))
                                        .Do(MonteCarlo("sweep-2", "2"))
                                        .Do(MonteCarlo("sweep-3", "3"))
                                        .Do(Unuse("sweep-2"))
                                        .Look({look::Text("sweep-3-summary-1", "Monte")})
                                        .Do({Insert()}));
    EXPECT_EQ(outcome.inserted, Line("monte=1"));
}

TEST_P(SweepRowsTest, ATypeWithoutAParameterIsNotRefusedInTheFirstRow)
{
    const auto data = gRunWizard(OnPage().Do({Click("sweep-1"), Select("sweep-type", "Data"),
                                              Set("start", "d1"), Click("accept"), Insert()}));
    EXPECT_EQ(data.inserted, Line("data=d1"));

    const auto monte = gRunWizard(OnPage().Do(MonteCarlo("sweep-1", "10")).Do({Insert()}));
    EXPECT_EQ(monte.inserted, Line("monte=10"));

    const auto optimization = gRunWizard(
        OnPage().Do({Click("sweep-1"), Select("sweep-type", "Optimization"), Set("start", "run1"),
                     Set("stop", "m1"), Set("increment", "om"), Click("accept"), Insert()}));
    EXPECT_EQ(optimization.inserted, Line("optimize=optrun1 results=m1 model=om"));
}

TEST_P(SweepRowsTest, NothingIsRemembered)
{
    gRunWizard(OnPage().Do(MonteCarlo("sweep-1", "1")).Do({Insert()}));
    const auto outcome = gRunWizard(OnPage()
                                        .Look(Buttons(true, false, false))
                                        .Look({look::Text("sweep-1-summary-1", "Not used")})
                                        .Do({Insert()}));
    EXPECT_TRUE(outcome.inserted.empty());
}

TEST_P(SweepRowsTest, APlainParameterOfPoiHasTwoBlanksBehindThePrefix)
{
    const auto outcome = gRunWizard(OnPage().Do(
        {Click("sweep-1"), Select("sweep-type", "Poi"), Select("parameter-type", "Parameter"),
         Set("parameter-name", "r1"), Set("stop", "2"), Set("list-of-values", "1\r\n2"),
         Click("accept"), Insert()}));
    EXPECT_EQ(outcome.inserted, Line(" r1 poi 2 1 2"));
}
} // namespace
