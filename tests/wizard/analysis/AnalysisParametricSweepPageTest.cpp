#include "support/Steps.h"
#include "support/WizardRun.h"
#include "wizard/analysis/SweepSteps.h"

#include <gtest/gtest.h>

// What it shares with the other page of three sweeps is tested in SweepRowsTest.

namespace
{
using namespace steps;

TEST(ParametricSweepPage, BuildsTheStepCommand)
{
    const auto outcome = gRunWizard(CScript()
                                        .Do({Open("Analysis/Parametric sweep")})
                                        .Do(Linear("sweep-1", "vdd", "1", "5", "1"))
                                        .Do(MonteCarlo("sweep-2", "10"))
                                        .Do({Insert()}));
    EXPECT_EQ(outcome.inserted,
              std::vector<std::string>{".step lin param vdd 1 5 1 sweep monte=10"});
}
} // namespace
