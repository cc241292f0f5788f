#include "support/Look.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"
#include "wizard/frame/Remembered.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;

constexpr const char* kPath = "Analysis/DC operating point";

class DCOpPage : public testing::Test
{
protected:
    DCOpPage() { CRememberedBase::ResetAll(); }
};

TEST_F(DCOpPage, BuildsTheOpCommandAndNeverFails)
{
    const auto outcome = gRunWizard({Open(kPath), Insert(), Check("suppress", true), Insert(),
                                     Check("suppress", false), Insert()});
    EXPECT_EQ(outcome.inserted, (std::vector<std::string>{".op", ".op noprint", ".op"}));
    EXPECT_TRUE(outcome.messages.empty());
}

TEST_F(DCOpPage, TheStateOfTheBoxComesBackAtTheNextRun)
{
    gRunWizard(CScript()
                   .Do({Open(kPath)})
                   .Look({look::Checked("suppress", 0)})
                   .Do({Check("suppress", true), Insert()}));
    gRunWizard(CScript()
                   .Do({Open(kPath)})
                   .Look({look::Checked("suppress", 1)})
                   .Do({Check("suppress", false)})); // not inserted
    gRunWizard(CScript()
                   .Do({Open(kPath)})
                   .Look({look::Checked("suppress", 1)})
                   .Do({Check("suppress", false), Insert()}));
    gRunWizard(CScript().Do({Open(kPath)}).Look({look::Checked("suppress", 0)}));
}

TEST_F(DCOpPage, ItsTextsAreThoseOfTheTemplate)
{
    const CBracketTranslation translation;
    gRunWizard(
        CScript()
            .Do({Open("[Analysis]/[DC operating point]")})
            .Look({look::Text("frame", ""), look::Text("note", "DC Operating Point Calculation."),
                   look::Text("suppress", "&Suppress automatic output of node voltages and source "
                                          "currents")}));
}
} // namespace
