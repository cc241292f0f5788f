#include "support/Look.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"
#include "wizard/frame/Remembered.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;

constexpr const char* kPath = "Analysis/Stability";
constexpr const char* kName = "source-or-probe";

class StabilityPage : public testing::Test
{
protected:
    StabilityPage() { CRememberedBase::ResetAll(); }
};

TEST_F(StabilityPage, BuildsTheLstbCommandTrimmedOnTheLeft)
{
    const auto outcome =
        gRunWizard({Open(kPath), Set(kName, "vprobe"), Insert(), Set(kName, " \tx "), Insert()});
    EXPECT_EQ(outcome.inserted, (std::vector<std::string>{".lstb vprobe", ".lstb x "}));
}

TEST_F(StabilityPage, EmptiedAfterAnInsertionItInsertsTheSameTextAgain)
{
    const auto outcome =
        gRunWizard({Open(kPath), Set(kName, "vprobe"), Insert(), Set(kName, ""), Insert()});
    EXPECT_EQ(outcome.inserted, (std::vector<std::string>{".lstb vprobe", ".lstb vprobe"}));
    EXPECT_TRUE(outcome.messages.empty());
}

TEST_F(StabilityPage, EmptyItInsertsTheTextThatAnotherPageLeft)
{
    const auto outcome = gRunWizard(
        {Open("Analysis/DC operating point"), Insert(), Open(kPath), Set(kName, "  "), Insert()});
    EXPECT_EQ(outcome.inserted, (std::vector<std::string>{".op", ".op"}));
}

TEST_F(StabilityPage, EmptyItInsertsAnEmptyTextWhenNoPageLeftOne)
{
    const auto outcome = gRunWizard({Open(kPath), Insert()});
    EXPECT_EQ(outcome.inserted, std::vector<std::string>{""});
}

TEST_F(StabilityPage, TheNextRunShowsTheLastNameAndAnEmptyOneIsRememberedToo)
{
    gRunWizard({Open(kPath), Set(kName, " vprobe"), Insert()});
    gRunWizard(CScript()
                   .Do({Open(kPath)})
                   .Look({look::Text(kName, "vprobe")})
                   .Do({Set(kName, ""), Insert()}));
    gRunWizard(CScript().Do({Open(kPath)}).Look({look::Text(kName, "")}));
}

TEST_F(StabilityPage, ItsTextsAreThoseOfTheTemplate)
{
    const CBracketTranslation translation;
    gRunWizard(CScript()
                   .Do({Open("[Analysis]/[Stability]")})
                   .Look({look::Text("frame", "Loop stability analysis"),
                          look::Label(kName, "&Voltage source or Probe name:")}));
}
} // namespace
