#include "platform/ui/FieldView.h"
#include "support/Look.h"
#include "support/PageTest.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;

constexpr const char* kPath = "Settings/Bus definition";

using BusDefinitionPage = PageTest;

struct TCase {
    const char* pName;
    const char* pBusName;
    const char* pNodeList;
    std::vector<std::string> inserted;
    std::vector<std::string> messages;
};

const TCase kCases[] = {
    {"the name is trimmed, lines are joined by blanks",
     "  addr ",
     "a0 a1\na2",
     {".vector addr {a0 a1 a2}"},
     {}},
    {"a list of blanks is a list", "b", "   ", {".vector b {   }"}, {}},
    {"the list isn't trimmed", "b", " a ", {".vector b { a }"}, {}},
    {"a line end at the end gains nothing", "b", "a b\n", {".vector b {a b}"}, {}},
    {"two line ends in a row give two blanks", "b", "a\n\nb", {".vector b {a  b}"}, {}},
    {"a line end alone is a list, and vanishes", "b", "\n", {".vector b {}"}, {}},
    {"a lone CR is kept", "b", "a\rb", {".vector b {a\rb}"}, {}},
    {"inner blanks of the name pass", "my bus", "a", {".vector my bus {a}"}, {}},
    {"the list isn't looked into", "b", "a0, a0 {x}", {".vector b {a0, a0 {x}}"}, {}},
    {"both are missing: the name is reported", "", "", {}, {"[Missing bus name.]"}},
    {"a name of blanks is missing", " \t ", "a", {}, {"[Missing bus name.]"}},
    {"the list is missing", "b", "", {}, {"[Missing node list for bus.]"}},
};

TEST_F(BusDefinitionPage, BuildsTheVectorCommand)
{
    const CBracketTranslation translation;
    for (const TCase& rCase : kCases) {
        SCOPED_TRACE(rCase.pName);
        const auto outcome = gCompose(kPath, {std::string("bus-name=") + rCase.pBusName,
                                              std::string("node-list=") + rCase.pNodeList});
        EXPECT_EQ(outcome.inserted, rCase.inserted);
        EXPECT_EQ(outcome.messages, rCase.messages);
    }
}

TEST_F(BusDefinitionPage, ItsTemplateIsANameAListAndANoteUntranslated)
{
    const CBracketTranslation translation;
    gRunWizard(CScript()
                   .Do({Open("[Settings]/[Bus definition]")})
                   .Look({look::Label("bus-name", "&Bus name:"), look::Text("bus-name", ""),
                          look::Label("node-list", "&Nodes in bus:"), look::Text("node-list", ""),
                          look::Text("note", "Use this bus with the BUS waveform for voltage and "
                                             "current sources")})
                   .Then([](CDialog& rDialog) {
                       const auto fields = gCollectFields(gCurrentPane(rDialog));
                       ASSERT_EQ(fields.size(), 3U);
                       EXPECT_EQ(fields[0].kind, EControl::Edit);
                       EXPECT_EQ(fields[1].kind, EControl::MultilineEdit);
                       EXPECT_TRUE(fields[1].pControl->GetControlFlags() & kWantReturn);
                   }));
}

TEST_F(BusDefinitionPage, ReturnInTheListStartsANewLine)
{
    const auto outcome = gRunWizard(
        {Open(kPath), Set("bus-name", "b"), Set("node-list", "a"), Key("enter"), Insert()});
    EXPECT_EQ(outcome.inserted, std::vector<std::string>{".vector b {a}"});
}

TEST_F(BusDefinitionPage, TheNextRunShowsTheNameTrimmedAndTheListAsItWasTyped)
{
    gRunWizard(
        {Open(kPath), Set("bus-name", " addr "), Set("node-list", " a0\r\na1 \r\n"), Insert()});
    gRunWizard(
        CScript()
            .Do({Open(kPath)})
            .Look({look::Text("bus-name", "addr"), look::Text("node-list", " a0\r\na1 \r\n")}));
}

TEST_F(BusDefinitionPage, AFailedAttemptIsNotRememberedAndLeavesTheCommand)
{
    gRunWizard(CScript()
                   .Do({Open(kPath), Set("bus-name", "b"), Set("node-list", "a"), Insert(),
                        Set("bus-name", "c"), Set("node-list", ""), Insert()})
                   .Look({look::Command(".vector b {a}"), look::Text("bus-name", "c")}));
    gRunWizard(CScript()
                   .Do({Open(kPath)})
                   .Look({look::Text("bus-name", "b"), look::Text("node-list", "a")}));
}
} // namespace
