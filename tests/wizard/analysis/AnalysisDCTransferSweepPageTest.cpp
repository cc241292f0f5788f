#include "support/Steps.h"
#include "support/WizardRun.h"
#include "wizard/analysis/SweepSteps.h"

#include <gtest/gtest.h>

// What it shares with the other page of three sweeps is tested in SweepRowsTest.

namespace
{
using namespace steps;

TEST(DCTransferSweepPage, BuildsTheDcCommand)
{
    const auto outcome = gRunWizard(
        {Open("Analysis/DC transfer sweep"), Click("sweep-1"), Select("sweep-type", "Linear"),
         Select("parameter-type", "Source"), Set("parameter-name", "vdd"), Set("start", "0"),
         Set("stop", "5"), Set("increment", "0.1"), Click("accept"), Click("sweep-2"),
         Select("sweep-type", "Decade"), Select("parameter-type", "Parameter name"),
         Set("parameter-name", "r1"), Set("start", "1"), Set("stop", "100"),
         Set("number-of-points", "10"), Click("accept"), Insert()});
    EXPECT_EQ(outcome.inserted,
              std::vector<std::string>{".dc lin source vdd 0 5 0.1 sweep dec param r1 1 100 10"});
}

TEST(DCTransferSweepPage, ASweepOfTypeMonteCarloInTheFirstRowIsNotRefused)
{
    const auto outcome = gRunWizard(CScript()
                                        .Do({Open("Analysis/DC transfer sweep")})
                                        .Do(MonteCarlo("sweep-1", "10"))
                                        .Do({Insert()}));
    EXPECT_EQ(outcome.inserted, std::vector<std::string>{".dc monte=10"});
}
} // namespace
