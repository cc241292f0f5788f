#include "platform/ui/ComboBox.h"
#include "platform/ui/FieldView.h"
#include "support/Look.h"
#include "support/PageTest.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"
#include "support/options/OptionRows.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;
using optionRows::TOption;

using SimulationOptionsPage = PageTest;

constexpr const char* kPath = "Settings/Simulation options";
constexpr const char* kTranslatedPath = "[Settings]/[Simulation options]";
constexpr const char* kMissing = "Missing option value.";

CScript OnPage(const char* pPath = kPath)
{
    CScript script;
    script.Do({Open(pPath)});
    return script;
}

TStep Option(const char* pEntry)
{
    return Select("option-list", pEntry);
}

bool IsEdit(const TOption& rOption)
{
    return std::string(rOption.pControl) == "edit";
}

/// Just this one of the two that stand in the same place under one label is seen.
CScript::TAction ValueIn(const char* pKey)
{
    return [pKey](CDialog& rDialog) {
        for (const char* const pOne : {"value-text", "value-list"})
            EXPECT_EQ(gFindField(rDialog, pOne).pControl->IsWindowVisible(),
                      std::string_view(pOne) == pKey);
        EXPECT_TRUE(gFindField(rDialog, pKey).pLabel->IsWindowVisible());
    };
}

// --- what is shown

TEST_F(SimulationOptionsPage, ItsTemplateIsAListOfOptionsThatKeepsItsOrder)
{
    const CBracketTranslation translation;
    std::vector<std::string> entries;
    for (const TOption& rOption : optionRows::gOptions())
        entries.emplace_back(rOption.pEntry);
    gRunWizard(OnPage(kTranslatedPath)
                   .Look({look::Label("option-list", "&Option name:"),
                          look::Entries("option-list", entries),
                          look::Text("explanation-title", "Explanation:")})
                   .Then([](CDialog& rDialog) {
                       std::vector<std::string> keys;
                       for (const TFieldView& rField : gCollectFields(gCurrentPane(rDialog)))
                           keys.emplace_back(rField.sKey);
                       EXPECT_EQ(keys, (std::vector<std::string>{"option-list", "explanation-title",
                                                                 "explanation", "value-text",
                                                                 "value-list", "unit"}));
                       const TFieldView list = gFindField(rDialog, "option-list");
                       EXPECT_EQ(list.kind, EControl::DropDownList);
                       EXPECT_TRUE(list.pControl->GetControlFlags() & kSorted);
                       const TFieldView value = gFindField(rDialog, "value-text");
                       const TRect text = value.pControl->GetRect();
                       const TRect choice = gFindField(rDialog, "value-list").pControl->GetRect();
                       EXPECT_EQ(text.x, choice.x);
                       EXPECT_EQ(text.y, choice.y);
                       EXPECT_GE(gFindField(rDialog, "unit").pControl->GetRect().x, text.Right());
                   }));
}

TEST_F(SimulationOptionsPage, AFreshProcessShowsTheFirstOption)
{
    gRunWizard(OnPage().Look({look::Selected("option-list", 0), look::Text("option-list", "absdv"),
                              look::Text("value-text", ""),
                              look::Label("value-text", "&Value (default is 0.5):"),
                              look::Text("unit", "volts"), ValueIn("value-text")}));
}

std::vector<std::string> Bracketed(std::vector<std::string> entries)
{
    for (std::string& rsEntry : entries)
        rsEntry = "[" + rsEntry + "]";
    return entries;
}

/// What the page shows when the option is chosen; only the entries of its value are translated.
std::vector<CScript::TAction> Looks(const TOption& rOption)
{
    const bool bEdit = IsEdit(rOption);
    const char* const pValue = bEdit ? "value-text" : "value-list";
    const char* const pExplanation =
        optionRows::gExplanations()[static_cast<std::size_t>(rOption.nIndex)].pText;
    std::vector<CScript::TAction> looks{
        look::Selected("option-list", rOption.nIndex), look::Text("explanation", pExplanation),
        look::Label(pValue, rOption.pLabel), look::Text("unit", rOption.pUnit), ValueIn(pValue)};
    if (bEdit) {
        // The list that isn't shown starts anew, too.
        looks.push_back(look::Entries("value-list", Bracketed({"Off", "On"})));
        looks.push_back(look::Selected("value-list", -1));
        return looks;
    }
    looks.push_back(look::Entries("value-list", Bracketed(gChoicesOf(rOption).entries)));
    looks.push_back(look::Text("value-list", "[" + std::string(rOption.pChosen) + "]"));
    return looks;
}

TEST_F(SimulationOptionsPage, EachOptionHasItsTextsAndItsControl)
{
    const CBracketTranslation translation;
    CScript script = OnPage(kTranslatedPath);
    for (const TOption& rOption : optionRows::gOptions())
        script.Do({Option(rOption.pEntry)}).Look(Looks(rOption));
    gRunWizard(std::move(script));
}

TEST_F(SimulationOptionsPage, EachOptionHasThemAfterAnyKindOfOption)
{
    const CBracketTranslation translation;
    const auto all = optionRows::gOptions();
    const std::vector<TOption> kinds{all[0], all[4], all[11], all[16], all[50], all[72], all[92]};
    CScript script = OnPage(kTranslatedPath);
    for (const TOption& rFrom : kinds)
        for (const TOption& rTo : kinds)
            script.Do({Option(rFrom.pEntry), Option(rTo.pEntry)}).Look(Looks(rTo));
    gRunWizard(std::move(script));
}

TEST_F(SimulationOptionsPage, AMoveInTheOpenListIsNoChoiceYet)
{
    gRunWizard(OnPage()
                   .Then([](CDialog& rDialog) {
                       auto& rList =
                           dynamic_cast<CComboBox&>(*gFindField(rDialog, "option-list").pControl);
                       EXPECT_EQ(rList.UserMoveSelection(1), EUserResult::Done);
                   })
                   .Look({look::Label("value-text", "&Value (default is 0.5):"),
                          look::Text("unit", "volts")})
                   .Do({Select("option-list", 1)})
                   .Look({look::Label("value-text", "&Value (default is 1e-010):"),
                          look::Text("unit", "amps")}));
}

// --- the command

TEST_F(SimulationOptionsPage, EachOptionIsComposedInEachOfItsValues)
{
    const CBracketTranslation translation;
    CScript script = OnPage(kTranslatedPath);
    std::vector<std::string> expected;
    for (const TOption& rOption : optionRows::gOptions()) {
        const std::string sCommand = std::string(".options ") + rOption.pKey + "=";
        script.Do({Option(rOption.pEntry)});
        if (IsEdit(rOption)) {
            const std::string sValue = "v" + std::to_string(rOption.nIndex);
            script.Do({Set("value-text", " " + sValue + " "), Insert()});
            expected.push_back(sCommand + sValue);
            continue;
        }
        const optionRows::TList choices = gChoicesOf(rOption);
        for (std::size_t n = 0; n < choices.entries.size(); ++n) {
            script.Do({Select("value-list", "[" + choices.entries[n] + "]"), Insert()});
            expected.push_back(sCommand + choices.tokens[n]);
        }
    }
    const auto outcome = gRunWizard(std::move(script));
    EXPECT_EQ(outcome.inserted, expected);
    EXPECT_TRUE(outcome.messages.empty());
}

TEST_F(SimulationOptionsPage, EachOptionIsComposedWithItsDefaultRightAfterItsChoice)
{
    CScript script = OnPage();
    std::vector<std::string> expected;
    for (const TOption& rOption : optionRows::gOptions()) {
        if (IsEdit(rOption))
            continue;
        const optionRows::TList choices = gChoicesOf(rOption);
        const auto chosen = std::ranges::find(choices.entries, std::string(rOption.pChosen));
        const auto nToken = static_cast<std::size_t>(chosen - choices.entries.begin());
        script.Do({Option(rOption.pEntry), Insert()});
        expected.push_back(std::string(".options ") + rOption.pKey + "=" + choices.tokens[nToken]);
    }
    EXPECT_EQ(gRunWizard(std::move(script)).inserted, expected);
}

TEST_F(SimulationOptionsPage, AnEditOptionWithoutAValueIsRefusedAndLeavesItsBeginning)
{
    const CBracketTranslation translation;
    CScript script = OnPage(kTranslatedPath);
    std::vector<std::string> messages;
    for (const TOption& rOption : optionRows::gOptions()) {
        if (!IsEdit(rOption))
            continue;
        script.Do({Option(rOption.pEntry), Insert()})
            .Look({look::Command(std::string(".options ") + rOption.pKey + "=")});
        messages.push_back("[" + std::string(kMissing) + "]");
    }
    const auto outcome = gRunWizard(std::move(script));
    EXPECT_TRUE(outcome.inserted.empty());
    EXPECT_EQ(outcome.messages, messages);
}

struct TCase {
    const char* pName;
    std::vector<TStep> steps;
    std::vector<std::string> inserted;
    std::vector<std::string> messages;
};

const TCase kCases[] = {
    {"a value goes out as the value of whichever option is chosen",
     {Set("value-text", "0.7"), Option("gmin")},
     {".options gmin=0.7"},
     {}},
    {"a value of blanks is missing", {Set("value-text", " \t ")}, {}, {kMissing}},
    {"trimmed at both ends",
     {Option("numnt (itl4)"), Set("value-text", " 40 ")},
     {".options numnt=40"},
     {}},
    {"not looked into", {Set("value-text", "a=b c")}, {".options absdv=a=b c"}, {}},
    {"the default of dccap reads off, but its value is typed", {Option("dccap")}, {}, {kMissing}},
    {"dccap takes any text", {Option("dccap"), Set("value-text", "on")}, {".options dccap=on"}, {}},
    {"the default of deriv reads 0, but it is chosen by off",
     {Option("deriv"), Select("value-list", "Off")},
     {".options deriv=0"},
     {}},
    {"deriv, on", {Option("deriv"), Select("value-list", "On")}, {".options deriv=1"}, {}},
    {"a path isn't quoted",
     {Option("search"), Set("value-text", "my lib/models")},
     {".options search=my lib/models"},
     {}},
    {"the key of minresistance is another",
     {Option("minresistance"), Set("value-text", "1m")},
     {".options resmin=1m"},
     {}},
    {"an option that is chosen needs no text", {Option("acct")}, {".options acct=0"}, {}},
};

TEST_F(SimulationOptionsPage, BuildsTheOptionsCommand)
{
    for (const TCase& rCase : kCases) {
        SCOPED_TRACE(rCase.pName);
        CRememberedBase::ResetAll();
        const auto outcome = gRunWizard(OnPage().Do(rCase.steps).Do({Insert()}));
        EXPECT_EQ(outcome.inserted, rCase.inserted);
        EXPECT_EQ(outcome.messages, rCase.messages);
    }
}

// --- what stays

TEST_F(SimulationOptionsPage, AChangeOfTheOptionLeavesTheTextOfTheValue)
{
    gRunWizard(OnPage()
                   .Do({Set("value-text", " 0.7 "), Option("gmin")})
                   .Look({look::Text("value-text", " 0.7 ")})
                   .Do({Option("acct"), Select("value-list", "On"), Option("absdv")})
                   .Look({look::Text("value-text", " 0.7 ")}));
}

TEST_F(SimulationOptionsPage, EachChoiceOfAnOptionFallsBackToItsDefault)
{
    gRunWizard(OnPage()
                   .Do({Option("acct"), Select("value-list", "On"), Option("acct")})
                   .Look({look::Text("value-list", "Off")})
                   .Do({Select("value-list", "On"), Option("dchomotopy")})
                   .Look({look::Text("value-list", "All")})
                   .Do({Select("value-list", "None"), Option("acct")})
                   .Look({look::Text("value-list", "Off")}));
}

TEST_F(SimulationOptionsPage, TheNextRunShowsTheOptionAndTheTextOfTheValueTrimmed)
{
    gRunWizard(OnPage().Do({Option("gmin"), Set("value-text", " 1e-13 "), Insert()}));
    gRunWizard(OnPage().Look({look::Text("option-list", "gmin"), look::Selected("option-list", 34),
                              look::Text("value-text", "1e-13"),
                              look::Label("value-text", "&Value (default is 1.0e-12):"),
                              look::Text("unit", "Mhos")}));
}

TEST_F(SimulationOptionsPage, AChosenValueIsRememberedButNeverSeen)
{
    gRunWizard(OnPage().Do({Option("dchomotopy"), Select("value-list", "gminstepping"), Insert()}));
    gRunWizard(OnPage().Look({look::Text("option-list", "dchomotopy"), ValueIn("value-list"),
                              look::Text("value-list", "All")}));
    gRunWizard(OnPage().Do({Option("acct"), Select("value-list", "On"), Insert()}));
    EXPECT_EQ(gRunWizard(OnPage().Do({Insert()})).inserted,
              std::vector<std::string>{".options acct=0"});
}

TEST_F(SimulationOptionsPage, ATextLeftFromAnotherOptionIsRememberedWithOneThatIsChosen)
{
    gRunWizard(OnPage().Do({Set("value-text", " 0.7 "), Option("acct"), Insert()}));
    gRunWizard(OnPage()
                   .Look({look::Text("option-list", "acct")})
                   .Do({Option("absdv")})
                   .Look({look::Text("value-text", "0.7")}));
}

TEST_F(SimulationOptionsPage, AFailedAttemptIsNotRememberedAndLeavesTheFields)
{
    gRunWizard(OnPage()
                   .Do({Option("gmin"), Set("value-text", "1"), Insert(), Option("gramp"),
                        Set("value-text", "  "), Insert()})
                   .Look({look::Command(".options gramp="), look::Text("option-list", "gramp"),
                          look::Text("value-text", "  ")}));
    gRunWizard(OnPage().Look({look::Text("option-list", "gmin"), look::Text("value-text", "1")}));
}
} // namespace
