#include "support/RunProgram.h"
#include "support/examples/ExampleTest.h"

namespace
{
INSTANTIATE_TEST_SUITE_P(All, ExampleTest, testing::ValuesIn(gAllExamples()), gExampleName);

/// What the program writes and how it ends.
TProgramRun RunOf(const TExampleLine& rExample)
{
    if (!rExample.sLine.empty())
        return {rExample.sLine + '\n', "", 0};
    if (!rExample.sMessage.empty())
        return {"", rExample.sMessage + '\n', 1};
    return {"", "quorvawiz: the page inserted nothing\n", 1};
}

TEST_P(ExampleTest, IsWhatComposeWrites)
{
    std::vector<std::string> arguments{"compose", GetParam().sPage};
    arguments.insert(arguments.end(), GetParam().arguments.begin(), GetParam().arguments.end());
    EXPECT_EQ(gRunQuorvawiz(arguments), RunOf(GetParam()));
}

TEST(ExampleLines, APageThatInsertsTheLastTextAgainInsertsNoneInAFreshProcess)
{
    EXPECT_EQ(gRunQuorvawiz({"compose", "Analysis/Stability"}), (TProgramRun{"\n", "", 0}));
}

// The one page whose refusal counts as a success: its message is told, and the text of the run is
// inserted, which is empty in a fresh process.
TEST(ExampleLines, AMessageAndASuccessAreAnEmptyLineAndExitCode0)
{
    for (const auto& [sField, pMessage] :
         {std::pair{std::string("positive-terminal=a"),
                    "Missing voltage-controlled current source name.\n"},
          {"name=1", "Missing controlled positive terminal name.\n"}})
        EXPECT_EQ(gRunQuorvawiz({"compose", "Current source/Voltage-controlled",
                                 "mode=Non-linear expression", sField}),
                  (TProgramRun{"\n", pMessage, 0}));
}

TEST(ExampleLines, AMessageAndASuccessAreACommandAndAMessageInJson)
{
    EXPECT_EQ(gRunQuorvawiz({"compose", "--json", "Current source/Voltage-controlled", "mode=#2"}),
              (TProgramRun{R"({"ok":true,"command":"",)"
                           R"("messages":["Missing voltage-controlled current source name."],)"
                           R"("questions":[]})"
                           "\n",
                           "Missing voltage-controlled current source name.\n", 0}));
}

TEST(ExampleLines, TheTwinOfThatPageInsertsNothing)
{
    EXPECT_EQ(gRunQuorvawiz({"compose", "Voltage source/Voltage-controlled", "mode=#2"}),
              (TProgramRun{"", "Missing voltage-controlled voltage source name.\n", 1}));
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
