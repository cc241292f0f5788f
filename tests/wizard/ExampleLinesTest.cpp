// The examples for the command line hold for the pages themselves.

#include "support/examples/ExampleLines.h"

#include "support/WizardRun.h"
#include "wizard/frame/Remembered.h"

#include <gtest/gtest.h>

namespace
{
std::vector<std::string> OneOrNone(const std::string& rsText)
{
    CString sText(rsText);
    sText.Replace("\n", "\r\n");
    return rsText.empty() ? std::vector<std::string>()
                          : std::vector<std::string>{sText.GetString()};
}

TEST(ExampleLines, EveryPageBuildsTheLinesOfItsExamples)
{
    for (const TExampleLine& rExample : gAllExamples()) {
        SCOPED_TRACE(rExample.sPage + ": " + rExample.sLine + rExample.sMessage);
        CRememberedBase::ResetAll();
        const auto outcome = gCompose(rExample.sPage, rExample.arguments);
        EXPECT_EQ(outcome.inserted, OneOrNone(rExample.sLine));
        EXPECT_EQ(outcome.messages, OneOrNone(rExample.sMessage));
    }
}
} // namespace
