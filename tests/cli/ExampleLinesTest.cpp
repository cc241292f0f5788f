#include "support/examples/ExampleLines.h"

#include "support/RunProgram.h"

#include <gtest/gtest.h>

namespace
{
/// What the program writes and how it ends.
TProgramRun RunOf(const TExampleLine& rExample)
{
    if (!rExample.sLine.empty())
        return {rExample.sLine + '\n', "", 0};
    if (!rExample.sMessage.empty())
        return {"", rExample.sMessage + '\n', 1};
    return {"", "quorvawiz: the page inserted nothing\n", 1};
}

TEST(ExampleLines, ComposeWritesThem)
{
    for (const TExampleLine& rExample : gAllExamples()) {
        std::vector<std::string> arguments{"compose", rExample.sPage};
        arguments.insert(arguments.end(), rExample.arguments.begin(), rExample.arguments.end());
        EXPECT_EQ(gRunQuorvawiz(arguments), RunOf(rExample)) << testing::PrintToString(arguments);
    }
}

TEST(ExampleLines, APageThatInsertsTheLastTextAgainInsertsNoneInAFreshProcess)
{
    EXPECT_EQ(gRunQuorvawiz({"compose", "Analysis/Stability"}), (TProgramRun{"\n", "", 0}));
}

TEST(ExampleLines, ASweepThatIsRefusedLeavesItsDialogOpen)
{
    EXPECT_EQ(gRunQuorvawiz({"compose", "Analysis/Transient", "sweep.accept"}),
              (TProgramRun{"",
                           "Missing parameter name.\n"
                           "quorvawiz: the dialog of \"sweep\" stayed open\n",
                           1}));
}
} // namespace
