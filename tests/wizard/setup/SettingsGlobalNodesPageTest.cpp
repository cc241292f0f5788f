#include "platform/ui/FieldView.h"
#include "support/Look.h"
#include "support/PageTest.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;

constexpr const char* kPath = "Settings/Global nodes";
constexpr const char* kList = "node-list";

using GlobalNodesPage = PageTest;

struct TCase {
    const char* pName;
    const char* pTyped;
    std::vector<std::string> inserted;
    std::vector<std::string> messages;
};

const TCase kCases[] = {
    {"nodes in a line", "vdd vss", {".global vdd vss"}, {}},
    {"three blanks are a list, unlike on the temperature page", "   ", {".global    "}, {}},
    {"nothing is trimmed", " vdd ", {".global  vdd "}, {}},
    {"a line end at the end gains nothing", "a b\n", {".global a b"}, {}},
    {"two line ends in a row give two blanks", "a\n\nb", {".global a  b"}, {}},
    {"a line end alone is a list, and vanishes", "\n", {".global "}, {}},
    {"not looked into", "b a, a", {".global b a, a"}, {}},
    {"nothing is missing", "", {}, {"[No global nodes specified.]"}},
};

TEST_F(GlobalNodesPage, BuildsTheGlobalCommand)
{
    const CBracketTranslation translation;
    for (const TCase& rCase : kCases) {
        SCOPED_TRACE(rCase.pName);
        const auto outcome = gCompose(kPath, {std::string(kList) + "=" + rCase.pTyped});
        EXPECT_EQ(outcome.inserted, rCase.inserted);
        EXPECT_EQ(outcome.messages, rCase.messages);
    }
}

TEST_F(GlobalNodesPage, ItsTemplateIsAListUntranslated)
{
    const CBracketTranslation translation;
    gRunWizard(CScript()
                   .Do({Open("[Settings]/[Global nodes]")})
                   .Look({look::Label(kList, "&List global nodes, separated by spaces:"),
                          look::Text(kList, "")})
                   .Then([](CDialog& rDialog) {
                       const auto fields = gCollectFields(gCurrentPane(rDialog));
                       ASSERT_EQ(fields.size(), 1U);
                       EXPECT_EQ(fields[0].kind, EControl::MultilineEdit);
                       EXPECT_TRUE(fields[0].pControl->GetControlFlags() & kWantReturn);
                   }));
}

TEST_F(GlobalNodesPage, ReturnStartsANewLine)
{
    const auto outcome = gRunWizard({Open(kPath), Set(kList, "vdd"), Key("enter"), Insert()});
    EXPECT_EQ(outcome.inserted, std::vector<std::string>{".global vdd"});
}

TEST_F(GlobalNodesPage, TheNextRunShowsTheListAsItWasTyped)
{
    gRunWizard({Open(kPath), Set(kList, " vdd\r\nvss \r\n"), Insert()});
    gRunWizard(CScript().Do({Open(kPath)}).Look({look::Text(kList, " vdd\r\nvss \r\n")}));
}

TEST_F(GlobalNodesPage, AFailedAttemptIsNotRememberedAndLeavesTheCommand)
{
    gRunWizard(CScript()
                   .Do({Open(kPath), Set(kList, "vdd"), Insert(), Set(kList, ""), Insert()})
                   .Look({look::Command(".global vdd")}));
    gRunWizard(CScript().Do({Open(kPath)}).Look({look::Text(kList, "vdd")}));
}
} // namespace
