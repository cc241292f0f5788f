#include "platform/ui/FieldView.h"
#include "support/Look.h"
#include "support/PageTest.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;

constexpr const char* kPath = "Settings/Temperature";
constexpr const char* kList = "temperature-list";

using TemperaturePage = PageTest;

struct TCase {
    const char* pName;
    const char* pTyped;
    std::vector<std::string> inserted;
    std::vector<std::string> messages;
};

const TCase kCases[] = {
    {"values in a line", "0 27 85", {".temp 0 27 85"}, {}},
    {"trimmed, its lines joined by blanks", " 0 27\n85 ", {".temp 0 27 85"}, {}},
    {"three blanks are missing", "   ", {}, {"[Missing temperature value.]"}},
    {"nothing is missing", "", {}, {"[Missing temperature value.]"}},
    {"line ends alone are missing", "\n\n", {}, {"[Missing temperature value.]"}},
    {"not looked into", "warm, {t0+5} 27 27", {".temp warm, {t0+5} 27 27"}, {}},
    {"a lone CR is kept", "1\r2", {".temp 1\r2"}, {}},
};

TEST_F(TemperaturePage, BuildsTheTempCommand)
{
    const CBracketTranslation translation;
    for (const TCase& rCase : kCases) {
        SCOPED_TRACE(rCase.pName);
        const auto outcome = gCompose(kPath, {std::string(kList) + "=" + rCase.pTyped});
        EXPECT_EQ(outcome.inserted, rCase.inserted);
        EXPECT_EQ(outcome.messages, rCase.messages);
    }
}

TEST_F(TemperaturePage, ItsTemplateIsAListAndANoteUntranslated)
{
    const CBracketTranslation translation;
    gRunWizard(CScript().Do({Open("[Settings]/[Temperature]")}).Then([](CDialog& rDialog) {
        const auto fields = gCollectFields(gCurrentPane(rDialog));
        ASSERT_EQ(fields.size(), 2U);
        EXPECT_EQ(fields[0].sKey, kList);
        EXPECT_EQ(fields[0].kind, EControl::MultilineEdit);
        EXPECT_TRUE(fields[0].pControl->GetControlFlags() & kWantReturn);
        EXPECT_EQ(fields[0].pControl->GetWindowText(), "");
        EXPECT_EQ(fields[0].pLabel->GetWindowText(),
                  "&List circuit temperatures, separated by spaces (in degrees Celsius):");
        EXPECT_EQ(fields[1].pControl->GetWindowText(), "(default is 27)");
    }));
}

TEST_F(TemperaturePage, ReturnStartsANewLineInTheListAndInsertsNothing)
{
    const auto outcome = gRunWizard({Open(kPath), Set(kList, "0"), Key("enter"), Insert()});
    EXPECT_EQ(outcome.inserted, std::vector<std::string>{".temp 0"});
}

TEST_F(TemperaturePage, TwoPressesInARowInsertTheSameTextTwice)
{
    const auto outcome = gRunWizard({Open(kPath), Set(kList, "27"), Insert(), Insert()});
    EXPECT_EQ(outcome.inserted, (std::vector<std::string>{".temp 27", ".temp 27"}));
}

TEST_F(TemperaturePage, TheNextRunShowsTheLastSuccessTrimmedWithItsLines)
{
    gRunWizard({Open(kPath), Set(kList, " 0 27\r\n85 "), Insert()});
    gRunWizard(CScript().Do({Open(kPath)}).Look({look::Text(kList, "0 27\r\n85")}));
}

TEST_F(TemperaturePage, TheControlKeepsWhatWasTypedAfterAnInsertion)
{
    gRunWizard(CScript()
                   .Do({Open(kPath), Set(kList, " 27 "), Insert()})
                   .Look({look::Text(kList, " 27 ")}));
}

TEST_F(TemperaturePage, AFailedAttemptIsNotRemembered)
{
    gRunWizard({Open(kPath), Set(kList, "27"), Insert(), Set(kList, "  "), Insert()});
    gRunWizard(CScript().Do({Open(kPath)}).Look({look::Text(kList, "27")}));
}

TEST_F(TemperaturePage, WhatWasTypedButNotInsertedLivesForOneRun)
{
    gRunWizard(CScript()
                   .Do({Open(kPath), Set(kList, "99"), Open("Analysis"), Open(kPath)})
                   .Look({look::Text(kList, "99")}));
    gRunWizard(CScript().Do({Open(kPath)}).Look({look::Text(kList, "")}));
}

TEST_F(TemperaturePage, ATextThatIsNotAsciiIsRefusedByTheFrameButRememberedByThen)
{
    const auto outcome = gRunWizard({Open(kPath), Set(kList, "27\xC2\xB0"), Insert()});
    EXPECT_TRUE(outcome.inserted.empty());
    EXPECT_EQ(outcome.messages, std::vector<std::string>{"Only ASCII characters are allowed"});
    gRunWizard(CScript().Do({Open(kPath)}).Look({look::Text(kList, "27\xC2\xB0")}));
}

TEST_F(TemperaturePage, AFailureLeavesTheRunsCommandAsItWas)
{
    gRunWizard(CScript()
                   .Do({Open(kPath), Set(kList, "27"), Insert(), Set(kList, ""), Insert()})
                   .Then([](CDialog&) { EXPECT_EQ(gOpenWizard().GetCommand(), ".temp 27"); }));
}

TEST_F(TemperaturePage, ANewRunOpensOnTheAnalysisCategoryAgain)
{
    gRunWizard({Open(kPath), Set(kList, "27"), Insert()});
    gRunWizard(CScript().Then([](CDialog& rDialog) {
        EXPECT_EQ(gClassName(gCurrentPane(rDialog)), "CAnalysisPage");
        EXPECT_FALSE(rDialog.GetDlgItem(IDOK)->IsWindowEnabled());
    }));
}

TEST_F(TemperaturePage, TheFocusStaysWhereItWasAfterAMessage)
{
    const auto outcome =
        gRunWizard(CScript().Do({Open(kPath), Focus("tree"), Key("enter")}).Then([](CDialog&) {
            EXPECT_EQ(CWnd::GetFocus(), &gOpenWizard().GetTree());
        }));
    EXPECT_EQ(outcome.messages.size(), 1U);
}
} // namespace
