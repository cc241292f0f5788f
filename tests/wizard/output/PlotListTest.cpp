// The list of plot items on the four pages that print results.

#include "support/Look.h"
#include "support/PageTest.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;

using PlotList = PageTest;

struct TPage {
    const char* pLabel;
    const char* pKeyword;
    const char* pVoltage; ///< how a voltage begins
};

constexpr TPage kPages[] = {{"AC results", ".print ac", "vm("},
                            {"DC results", ".print dc", "v("},
                            {"Transient results", ".print tran", "v("},
                            {"Noise results", ".print noise", "vm("}};

CScript OnPage(const TPage& rPage)
{
    return CScript().Do({Open(std::string("[Output]/[") + rPage.pLabel + "]")});
}

std::vector<TStep> AddVoltages(const std::vector<const char*>& rNodes)
{
    std::vector<TStep> steps;
    for (const char* const pNode : rNodes) {
        steps.push_back(Set("first-name", pNode));
        steps.push_back(Click("add"));
    }
    return steps;
}

TEST_F(PlotList, TheNewestItemStandsOnTopAndIsSelected)
{
    const CBracketTranslation translation;
    for (const TPage& rPage : kPages) {
        SCOPED_TRACE(rPage.pLabel);
        const std::string sVoltage = rPage.pVoltage;
        gRunWizard(
            OnPage(rPage)
                .Do(AddVoltages({"a", "b"}))
                .Look({look::Entries("list", {sVoltage + "b)", sVoltage + "a)"}),
                       look::Selected("list", 0), look::Enabled("add"), look::Enabled("delete"),
                       look::Enabled("clear"), look::Text("first-name", "b")}));
    }
}

TEST_F(PlotList, TheCommandHoldsTheListAloneOldestFirstWhateverTheFieldsHold)
{
    const CBracketTranslation translation;
    for (const TPage& rPage : kPages) {
        SCOPED_TRACE(rPage.pLabel);
        const std::string sVoltage = rPage.pVoltage;
        const std::string sCommand =
            rPage.pKeyword + (" " + sVoltage + "a) ") + sVoltage + "b) " + sVoltage + "c)";
        const auto outcome = gRunWizard(
            OnPage(rPage)
                .Do(AddVoltages({"a", "b", "c"}))
                .Do({Set("first-name", "other"), Insert(), Set("first-name", ""), Insert()}));
        EXPECT_EQ(outcome.inserted, (std::vector<std::string>{sCommand, sCommand}));
        EXPECT_TRUE(outcome.messages.empty()) << "the fields aren't tested";
    }
}

TEST_F(PlotList, TheSameItemIsRefusedInEitherCase)
{
    const CBracketTranslation translation;
    for (const TPage& rPage : kPages) {
        SCOPED_TRACE(rPage.pLabel);
        const std::string sVoltage = rPage.pVoltage;
        const auto outcome =
            gRunWizard(OnPage(rPage)
                           .Do(AddVoltages({"a", "b", "a", "A"}))
                           .Look({look::Entries("list", {sVoltage + "b)", sVoltage + "a)"}),
                                  look::Selected("list", 0), look::Text("first-name", "A")}));
        EXPECT_EQ(outcome.messages,
                  (std::vector<std::string>(2, "[This entry is already in the list.]")));
    }
}

TEST_F(PlotList, AnotherNameMakesAnotherItem)
{
    const auto outcome = gRunWizard(CScript()
                                        .Do({Open("Output/DC results")})
                                        .Do(AddVoltages({"a"}))
                                        .Do({Set("item-name", "x"), Click("add")})
                                        .Look({look::Entries("list", {"x=v(a)", "v(a)"})}));
    EXPECT_TRUE(outcome.messages.empty());
}

constexpr const char* kDeleteQuestion =
    "[Are you sure you want to delete the selected plot item from the list?]";
constexpr const char* kClearQuestion =
    "[Are you sure you want to delete all plot items in the list?]";

TEST_F(PlotList, AfterADeleteTheTopItemIsSelectedWhicheverWasDeleted)
{
    const CBracketTranslation translation;
    for (const TPage& rPage : kPages) {
        SCOPED_TRACE(rPage.pLabel);
        const std::string sVoltage = rPage.pVoltage;
        const auto outcome = gRunWizard(
            OnPage(rPage)
                .Do(AddVoltages({"a", "b", "c"}))
                .Answer({true, false, true, true})
                .Do({Select("list", 2), Click("delete")})
                .Look({look::Entries("list", {sVoltage + "c)", sVoltage + "b)"}),
                       look::Selected("list", 0)})
                .Do({Select("list", 1), Click("delete")})
                .Look({look::Entries("list", {sVoltage + "c)", sVoltage + "b)"}),
                       look::Selected("list", 1)})
                .Do({Click("delete")})
                .Look({look::Entries("list", {sVoltage + "c)"}), look::Selected("list", 0),
                       look::Enabled("delete"), look::Enabled("clear")})
                .Do({Click("delete")})
                .Look({look::Entries("list", {}), look::Enabled("delete", false),
                       look::Enabled("clear", false), look::Enabled("add")}));
        EXPECT_EQ(outcome.messages, (std::vector<std::string>(4, kDeleteQuestion)));
    }
}

TEST_F(PlotList, ClearAsksAndEmptiesTheList)
{
    const CBracketTranslation translation;
    for (const TPage& rPage : kPages) {
        SCOPED_TRACE(rPage.pLabel);
        const std::string sVoltage = rPage.pVoltage;
        const auto outcome =
            gRunWizard(OnPage(rPage)
                           .Do(AddVoltages({"a", "b"}))
                           .Answer({false, true})
                           .Do({Click("clear")})
                           .Look({look::Entries("list", {sVoltage + "b)", sVoltage + "a)"})})
                           .Do({Click("clear")})
                           .Look({look::Entries("list", {}), look::Enabled("delete", false),
                                  look::Enabled("clear", false)}));
        EXPECT_EQ(outcome.messages, (std::vector<std::string>(2, kClearQuestion)));
    }
}

TEST_F(PlotList, WithoutASelectionNeitherDeleteNorClearDoesAnything)
{
    for (const TPage& rPage : kPages) {
        SCOPED_TRACE(rPage.pLabel);
        const auto outcome =
            gRunWizard(CScript()
                           .Do({Open(std::string("Output/") + rPage.pLabel)})
                           .Do(AddVoltages({"a"}))
                           .Do({Select("list", -1), Click("delete"), Click("clear")})
                           .Look({look::Entries("list", {std::string(rPage.pVoltage) + "a)"}),
                                  look::Enabled("delete"), look::Enabled("clear")}));
        EXPECT_TRUE(outcome.messages.empty());
    }
}

TEST_F(PlotList, TheListIsEmptyInTheNextRunAndTheFieldsAreBack)
{
    for (const TPage& rPage : kPages) {
        SCOPED_TRACE(rPage.pLabel);
        const std::string sPath = std::string("Output/") + rPage.pLabel;
        gRunWizard(CScript()
                       .Do({Open(sPath)})
                       .Do(AddVoltages({"a"}))
                       .Do({Set("first-name", " b "), Set("second-name", " c "), Insert()}));
        gRunWizard(CScript()
                       .Do({Open(sPath)})
                       .Look({look::Entries("list", {}), look::Text("first-name", "b"),
                              look::Text("second-name", "c"), look::Enabled("delete", false),
                              look::Enabled("clear", false)}));
    }
}

TEST_F(PlotList, APressOfAddWritesNothingBackToTheFields)
{
    for (const TPage& rPage : kPages) {
        SCOPED_TRACE(rPage.pLabel);
        gRunWizard(
            CScript()
                .Do({Open(std::string("Output/") + rPage.pLabel), Set("first-name", " a "),
                     Set("item-name", " n "), Set("item-unit", " u "), Click("add"), Insert()})
                .Look({look::Text("first-name", " a "), look::Text("item-name", " n "),
                       look::Text("item-unit", " u ")}));
    }
}

// --- what is remembered

TEST_F(PlotList, ASuccessIsRememberedForTheNextRunOfThisPageAlone)
{
    for (const TPage& rPage : kPages) {
        SCOPED_TRACE(rPage.pLabel);
        CRememberedBase::ResetAll();
        gRunWizard(CScript().Do(
            {Open(std::string("Output/") + rPage.pLabel), Select("plot-type", "Expression"),
             Set("expression", " e "), Select("plot-type", 1), Select("terminal-selection", "Gate"),
             Set("first-name", "m1"), Set("item-name", "n"), Set("item-unit", " u "), Insert()}));
        for (const TPage& rOther : kPages) {
            const bool bSame = &rOther == &rPage;
            gRunWizard(CScript()
                           .Do({Open(std::string("Output/") + rOther.pLabel)})
                           .Look({look::Selected("plot-type", bSame ? 1 : 0),
                                  look::Selected("terminal-selection", bSame ? 5 : 0),
                                  look::Text("first-name", bSame ? "m1" : ""),
                                  look::Text("expression", bSame ? "e" : ""),
                                  look::Text("item-name", bSame ? "n" : ""),
                                  look::Text("item-unit", bSame ? " u " : "")}));
        }
    }
}

TEST_F(PlotList, AFailureIsNotRememberedAndLeavesTheRunsCommandAlone)
{
    for (const TPage& rPage : kPages) {
        SCOPED_TRACE(rPage.pLabel);
        const std::string sPath = std::string("Output/") + rPage.pLabel;
        const std::string sCommand = rPage.pKeyword + (" " + std::string(rPage.pVoltage)) + "a)";
        gRunWizard(CScript()
                       .Do({Open(sPath), Set("first-name", "a"), Insert(), Set("first-name", " "),
                            Set("item-name", "n"), Insert()})
                       .Look({look::Command(sCommand), look::Text("first-name", " ")}));
        gRunWizard(CScript()
                       .Do({Open(sPath)})
                       .Look({look::Text("first-name", "a"), look::Text("item-name", "")}));
    }
}
} // namespace
