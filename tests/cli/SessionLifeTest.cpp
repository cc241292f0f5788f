#include "cli/Session.h"
#include "cli/SessionTranscript.h"
#include "cli/TestWizard.h"
#include "platform/ui/Desktop.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

// How a session and its runs of the wizard begin and end.

namespace quorvawiz::cli
{
namespace
{
TEST(SessionLife, NoInputGivesNoReply)
{
    EXPECT_EQ(gServe(gTestWizard(), ""), "");
    EXPECT_EQ(gFindDesktop(), nullptr);
}

TEST(SessionLife, TheLastLineNeedsNoEnd)
{
    EXPECT_EQ(gServe(gTestWizard(), kState), gServe(gTestWizard(), kState + '\n'));
}

TEST(SessionLife, TheInputMayEndInsideADialog)
{
    const std::string sClick = R"({"op":"click","field":"sweep"})";
    const std::string sMore = R"({"op":"click","field":"more"})";
    const std::string sOut = gServe(gTestWizard(), kOpen + '\n' + sClick + '\n' + sMore);
    EXPECT_EQ(std::count(sOut.begin(), sOut.end(), '\n'), 3);
    EXPECT_EQ(gFindDesktop(), nullptr);
}

TEST(SessionLife, ReopenAndFreshEndWhatIsOpen)
{
    gExpectTranscript({
        {kOpen, R"({"ok":true})"},
        {R"({"op":"set","field":"name","text":"x"})", R"({"ok":true})"},
        {R"({"op":"insert"})", R"({"inserted":[".all x"],"command":".all x"})"},
        {R"({"op":"click","field":"sweep"})", R"({"ok":true,"inserted":[]})"},
        {R"({"op":"click","field":"more"})", R"({"ok":true})"},
        {R"({"op":"reopen"})", R"({"ok":true,"dialog":null,"page":"Tests","command":""})"},
        {kOpen, R"({"ok":true,"fields":{"name":{"text":"x"}}})"},
        {R"({"op":"click","field":"sweep"})", R"({"ok":true})"},
        {R"({"op":"fresh"})", R"({"ok":true,"dialog":null,"page":"Tests","command":""})"},
        {kOpen, R"({"ok":true,"fields":{"name":{"text":""}}})"},
    });
}

TEST(SessionLife, AClosedWizardTakesFewRequests)
{
    const std::string sClosed =
        R"({"command":null,"insert_enabled":false,"page":null,"dialog":null,"focus":null,
            "tree":null,"fields":{},)";
    const std::string sRefused = sClosed + R"("error":"the wizard is closed"})";
    const std::string sTaken = sClosed + R"("ok":true})";
    gExpectTranscript({
        {R"({"op":"close"})", sTaken},
        {kState, sTaken},
        {R"({"op":"close"})", sRefused},
        {R"({"op":"insert"})", sRefused},
        {kOpen, sRefused},
        {R"({"op":"set","field":"name","text":"x"})", sRefused},
        {R"({"op":"key","key":"enter"})", sRefused},
        {R"({"op":"expand","path":"Tests"})", sRefused},
        {R"({"op":"answers","answers":["yes"]})", sTaken},
        {R"({"op":"file","cancel":true})", sTaken},
        {"x", sClosed + R"("error":"the line isn't JSON from byte 1 on"})"},
        {R"({"op":"reopen"})", R"({"ok":true,"page":"Tests"})"},
        {kOpen, R"({"ok":true})"},
        {R"({"op":"click","field":"ask"})", R"({"ok":true,"fields":{"note":{"text":"yes"}}})"},
        {R"({"op":"key","key":"escape"})", sTaken},
        {R"({"op":"fresh"})", R"({"ok":true,"page":"Tests"})"},
    });
}

TEST(SessionLife, APageWithoutANodeHasADialogOfItsOwn)
{
    gExpectTranscript({
        {R"({"op":"open","page":"CTestLonePage"})",
         R"({"ok":true,"page":"CTestLonePage","dialog":null,"insert_enabled":true,
             "tree":{"selected":"Lone","expanded":[]},"fields":{"name":{"text":""}}})"},
        {R"({"op":"set","field":"name","text":"x"})", R"({"ok":true})"},
        {R"({"op":"insert"})", R"({"ok":true,"inserted":[".lone x"]})"},
        {R"({"op":"open","page":"CTestLonePage"})",
         R"({"ok":true,"command":"","fields":{"name":{"text":""}}})"},
        {kOpen, R"({"ok":true,"page":"Tests/All kinds","tree":{"selected":"Tests/All kinds"}})"},
        {R"({"op":"open","page":"CTestLonePage"})", R"({"ok":true,"page":"CTestLonePage"})"},
        {R"({"op":"reopen"})", R"({"ok":true,"page":"Tests"})"},
    });
}

TEST(SessionLife, AnExceptionEndsTheRunOfTheWizard)
{
    gExpectTranscript({
        {kOpen, R"({"ok":true})"},
        {R"({"op":"click","field":"fail"})",
         R"({"ok":false,"error":"the wizard ended by an exception: the page failed","page":null,
             "fields":{}})"},
        {kState, R"({"ok":true,"page":null})"},
        {R"({"op":"reopen"})", R"({"ok":true,"page":"Tests"})"},
    });
}

TEST(SessionLife, AnExceptionBeforeTheFirstRequestPassesThrough)
{
    TWizard wizard = gTestWizard();
    wizard.run = [](QuorvaCommandWizardTarget&) { throw std::runtime_error("no wizard"); };
    EXPECT_THROW(gServe(wizard, kState), std::runtime_error);
}

TEST(SessionLife, FreshRestoresTheCurrentFolder)
{
    const auto start = std::filesystem::current_path();
    TWizard wizard = gTestWizard();
    const auto run = wizard.run;
    wizard.run = [run](QuorvaCommandWizardTarget& rTarget) {
        std::filesystem::current_path("/");
        run(rTarget);
    };
    EXPECT_NE(start, "/");
    gServe(wizard, R"({"op":"close"})");
    EXPECT_EQ(std::filesystem::current_path(), "/");
    std::filesystem::current_path(start);

    std::vector<std::filesystem::path> folders;
    wizard.run = [&folders, run](QuorvaCommandWizardTarget& rTarget) {
        folders.push_back(std::filesystem::current_path());
        std::filesystem::current_path("/");
        run(rTarget);
    };
    gServe(wizard, "{\"op\":\"reopen\"}\n{\"op\":\"fresh\"}\n");
    EXPECT_EQ(folders, (std::vector<std::filesystem::path>{start, "/", start}));
    std::filesystem::current_path(start);
}

TEST(SessionLife, ALostOutputIsTold)
{
    std::istringstream in(kState + '\n' + kState + '\n');
    std::ostringstream out;
    out.setstate(std::ios::badbit);
    EXPECT_THROW(CSession(gTestWizard(), in, out).Run(), std::runtime_error);
}
} // namespace
} // namespace quorvawiz::cli
