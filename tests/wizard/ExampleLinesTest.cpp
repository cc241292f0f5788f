// The examples for the command line hold for the pages themselves.

#include "support/WizardRun.h"
#include "support/examples/ExampleTest.h"
#include "wizard/frame/Remembered.h"

namespace
{
INSTANTIATE_TEST_SUITE_P(All, ExampleTest, testing::ValuesIn(gAllExamples()), gExampleName);

std::vector<std::string> OneOrNone(const std::string& rsText)
{
    CString sText(rsText);
    sText.Replace("\n", "\r\n");
    return rsText.empty() ? std::vector<std::string>()
                          : std::vector<std::string>{sText.GetString()};
}

TEST_P(ExampleTest, IsWhatThePageBuilds)
{
    CRememberedBase::ResetAll();
    const auto outcome = gCompose(GetParam().sPage, GetParam().arguments);
    EXPECT_EQ(outcome.inserted, OneOrNone(GetParam().sLine));
    EXPECT_EQ(outcome.messages, OneOrNone(GetParam().sMessage));
}
} // namespace
