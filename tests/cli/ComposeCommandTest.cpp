#include "cli/ComposeCommand.h"

#include "cli/Failure.h"
#include "cli/TestWizard.h"
#include "wizard/frame/Remembered.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace quorvawiz::cli
{
namespace
{
struct TTold {
    int nExitCode;
    std::string sOut;
    std::string sError;
};

TTold Compose(const TWizard& rWizard, const TComposeOptions& rOptions)
{
    CRememberedBase::ResetAll();
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const int nExitCode = gRunCompose(rWizard, rOptions);
    return {nExitCode, testing::internal::GetCapturedStdout(),
            testing::internal::GetCapturedStderr()};
}

TEST(ComposeCommand, TellsHowItEnded)
{
    struct Case {
        const char* pName;
        TComposeOptions options;
        TTold told;
    };
    const std::string sFailed = R"({"ok":false,"command":null,)";
    const std::vector<Case> cases{
        {"a question",
         {"CTestAllKindsPage", {"ask", "name=x"}, false},
         {kDone, ".all x note=no\n", "Sure? (answered no)\n"}},
        {"a question, as JSON",
         {"CTestAllKindsPage", {"ask", "name=x"}, true},
         {kDone,
          R"({"ok":true,"command":".all x note=no","messages":[],"questions":["Sure?"]})"
          "\n",
          "Sure? (answered no)\n"}},
        {"a page that refuses without a word",
         {"CTestLonePage", {"name=nothing"}, false},
         {kNothingDone, "", "quorvawiz: the page inserted nothing\n"}},
        {"the same as JSON",
         {"CTestLonePage", {"name=nothing"}, true},
         {kNothingDone,
          sFailed + R"("messages":[],"questions":[],"error":"the page inserted nothing"})" + '\n',
          "quorvawiz: the page inserted nothing\n"}},
        {"an exception",
         {"CTestAllKindsPage", {"fail"}, false},
         {kProgramFailure, "", "quorvawiz: the page failed\n"}},
        {"an exception as JSON, with what was said before",
         {"CTestAllKindsPage", {"say", "fail"}, true},
         {kProgramFailure,
          sFailed + R"("messages":["Said."],"questions":[],"error":"the page failed"})" + '\n',
          "Said.\nquorvawiz: the page failed\n"}},
    };
    for (const Case& rCase : cases) {
        const TTold told = Compose(gTestWizard(), rCase.options);
        EXPECT_EQ(told.nExitCode, rCase.told.nExitCode) << rCase.pName;
        EXPECT_EQ(told.sOut, rCase.told.sOut) << rCase.pName;
        EXPECT_EQ(told.sError, rCase.told.sError) << rCase.pName;
    }
}

TEST(ComposeCommand, AnExceptionOfTheWizardIsToldInOneLine)
{
    TWizard wizard = gTestWizard();
    wizard.run = [](QuorvaCommandWizardTarget&) { throw std::runtime_error("no\nwizard"); };
    const TTold told = Compose(wizard, {"CTestAllKindsPage", {}, true});
    EXPECT_EQ(told.nExitCode, kProgramFailure);
    EXPECT_EQ(told.sOut, R"({"ok":false,"command":null,"messages":[],"questions":[],)"
                         R"("error":"no\\x0Awizard"})"
                         "\n");
    EXPECT_EQ(told.sError, "quorvawiz: no\\x0Awizard\n");
}
} // namespace
} // namespace quorvawiz::cli
