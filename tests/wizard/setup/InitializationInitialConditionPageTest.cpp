#include "platform/ui/Button.h"
#include "platform/ui/FieldView.h"
#include "support/Look.h"
#include "support/PageTest.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;

constexpr const char* kPath = "Initialization/Initial condition";
constexpr int kVoltage = 0;
constexpr int kCurrent = 1;

using InitialConditionPage = PageTest;

/// Fills in name, second and value field in node voltage mode.
std::vector<TStep> Voltage(const char* pName, const char* pSecond, const char* pValue)
{
    return {Choose("mode", kVoltage), Set("name", pName), Set("second", pSecond),
            Set("value", pValue)};
}

/// Fills in name and current in inductor current mode.
std::vector<TStep> Current(const char* pName, const char* pSecond)
{
    return {Choose("mode", kCurrent), Set("name", pName), Set("second", pSecond)};
}

CScript OnPage(const char* pPath = kPath)
{
    CScript script;
    script.Do({Open(pPath)});
    return script;
}

// --- the modes

std::vector<CScript::TAction> VoltageLooks()
{
    return {look::Checked("mode", kVoltage), look::Label("name", "[N&ode name:]"),
            look::Label("second", "[&Reference node (GND):]"),
            look::Label("value", "[Ini&tial condition:]"), look::Shown("value")};
}

/// The unit behind a field, which the user sees.
CScript::TAction Unit(std::string sKey, std::string sUnit)
{
    return [sKey = std::move(sKey), sUnit = std::move(sUnit)](CDialog& rDialog) {
        const CWnd* const pUnit = gFindField(rDialog, sKey).pUnit;
        ASSERT_TRUE(pUnit);
        EXPECT_EQ(pUnit->GetWindowText(), sUnit);
    };
}

TEST_F(InitialConditionPage, EachModeHasItsLabelsAndItsUnits)
{
    const CBracketTranslation translation;
    gRunWizard(OnPage("[Initialization]/[Initial condition]")
                   .Look(VoltageLooks())
                   .Look({Unit("second", ""), Unit("value", "[V]")})
                   .Do({Choose("mode", kCurrent)})
                   .Look({look::Label("name", "[Indu&ctor name:]"),
                          look::Label("second", "[Ini&tial condition:]"),
                          look::Shown("value", false), Unit("second", "[amp]"), Unit("value", "")})
                   .Do({Choose("mode", kVoltage)})
                   .Look(VoltageLooks())
                   .Look({Unit("second", ""), Unit("value", "[V]")}));
}

TEST_F(InitialConditionPage, ItsOtherTextsAreThoseOfTheTemplate)
{
    const CBracketTranslation translation;
    gRunWizard(OnPage("[Initialization]/[Initial condition]")
                   .Look({look::Text("conditions-group", "Initial conditions"),
                          look::Text("mode", "&Node voltage"),
                          look::Label("list", "&List of nodes:"), look::Text("add", "&Add"),
                          look::Text("delete", "&Delete"), look::Text("clear", "&Clear"),
                          look::Enabled("add", false), look::Enabled("delete", false),
                          look::Enabled("clear", false), look::Entries("list", {})})
                   .Then([](CDialog& rDialog) {
                       const TFieldView mode = gFindField(rDialog, "mode");
                       ASSERT_EQ(mode.radios.size(), 2U);
                       EXPECT_EQ(mode.radios[1]->GetWindowText(), "&Ind&uctor current")
                           << "with two ampersands";
                       for (const char* pButton : {"add", "delete", "clear"})
                           EXPECT_TRUE(gFindField(rDialog, pButton).pControl->GetControlFlags() &
                                       kDisabled);
                   }));
}

TEST_F(InitialConditionPage, InductorCurrentEmptiesTheVoltageAndKeepsTheOtherFields)
{
    gRunWizard(
        OnPage()
            .Do(Voltage("a", "b", "1"))
            .Do({Choose("mode", kCurrent)})
            .Look({look::Text("name", "a"), look::Text("second", "b")})
            .Do({Choose("mode", kVoltage)})
            .Look({look::Text("name", "a"), look::Text("second", "b"), look::Text("value", "")}));
}

// --- the button Add

struct TAddCase {
    const char* pName;
    std::vector<TStep> steps;
    bool bEnabled;
};

const TAddCase kAddCases[] = {
    {"nothing", {}, false},
    {"voltage: a name alone", {Set("name", "a")}, false},
    {"voltage: a value alone", {Set("value", "1")}, false},
    {"voltage: name and value", {Set("name", "a"), Set("value", "1")}, true},
    {"voltage: value and name", {Set("value", "1"), Set("name", "a")}, true},
    {"voltage: a reference is no value", {Set("name", "a"), Set("second", "b")}, false},
    {"voltage: the value taken away",
     {Set("name", "a"), Set("value", "1"), Set("value", "")},
     false},
    {"voltage: the name taken away", {Set("name", "a"), Set("value", "1"), Set("name", "")}, false},
    {"voltage: the reference taken away changes nothing",
     {Set("name", "a"), Set("second", "b"), Set("value", "1"), Set("second", "")},
     true},
    {"blanks are texts", {Set("name", " "), Set("value", " ")}, true},
    {"current: name and current", Current("L1", "2m"), true},
    {"current: a name alone", Current("L1", ""), false},
    {"current: a current alone", Current("", "2m"), false},
    {"to current: the second field counts now",
     {Set("name", "a"), Set("second", "b"), Choose("mode", kCurrent)},
     true},
    {"to current: the value counts no more",
     {Set("name", "a"), Set("value", "1"), Choose("mode", kCurrent)},
     false},
    {"back to voltage: the value is gone",
     {Set("name", "a"), Set("value", "1"), Set("second", "b"), Choose("mode", kCurrent),
      Choose("mode", kVoltage)},
     false},
};

TEST_F(InitialConditionPage, AddIsEnabledWhenNameAndTheModesValueHaveTexts)
{
    for (const TAddCase& rCase : kAddCases) {
        SCOPED_TRACE(rCase.pName);
        gRunWizard(OnPage().Do(rCase.steps).Look({look::Enabled("add", rCase.bEnabled)}));
    }
}

// --- the list

const TStep kPress = Click("add");
constexpr const char* kAlreadyThere = "This entry is already in the list.";
constexpr const char* kIllegalName = "Illegal inductor name (Must begin with 'L').";
constexpr const char* kDeleteQuestion =
    "Are you sure you want to delete the selected initial condition from the list?";
constexpr const char* kClearQuestion =
    "Are you sure you want to delete all initial conditions in the list?";

/// Adds "v(a)=1", then "i(L2)=0".
CScript WithTwoEntries()
{
    CScript script = OnPage();
    script.Do(Voltage("a", "", "1")).Do({kPress}).Do(Current("L2", "0")).Do({kPress});
    return script;
}

struct TListCase {
    const char* pName;
    CScript script;
    std::vector<std::string> entries; ///< the newest first
    int nSelected;
    bool bButtons; ///< Delete and Clear are enabled
    std::vector<std::string> messages;
};

const TListCase kListCases[] = {
    {"the newest entry stands on top, selected",
     WithTwoEntries(),
     {"i(L2)=0", "v(a)=1"},
     0,
     true,
     {}},
    {"with a reference",
     OnPage().Do(Voltage("a", "b", "1")).Do({kPress}),
     {"v(a,b)=1"},
     0,
     true,
     {}},
    {"trimmed on the left only",
     OnPage().Do(Voltage(" a ", " b ", " 1 ")).Do({kPress}),
     {"v(a ,b )=1 "},
     0,
     true,
     {}},
    {"a reference of blanks is none",
     OnPage().Do(Voltage("a", "  ", "1")).Do({kPress}),
     {"v(a)=1"},
     0,
     true,
     {}},
    {"a name of blanks passes",
     OnPage().Do(Voltage(" ", "", "1")).Do({kPress}),
     {"v()=1"},
     0,
     true,
     {}},
    {"an inductor's name may be trimmed to its letter",
     OnPage().Do(Current(" l3 ", " 1m")).Do({kPress}),
     {"i(l3 )=1m"},
     0,
     true,
     {}},
    {"an inductor's name must begin with L",
     OnPage().Do(Current("x1", "1m")).Do({kPress}),
     {},
     -1,
     false,
     {kIllegalName}},
    {"an inductor's name of blanks doesn't",
     OnPage().Do(Current("  ", "1m")).Do({kPress}),
     {},
     -1,
     false,
     {kIllegalName}},
    {"a node's name may begin with any letter",
     OnPage().Do(Voltage("x1", "", "1")).Do({kPress}),
     {"v(x1)=1"},
     0,
     true,
     {}},
    {"the same again is refused",
     OnPage().Do(Voltage("a", "", "1")).Do({kPress, kPress}),
     {"v(a)=1"},
     0,
     true,
     {kAlreadyThere}},
    {"the same in other letter case is refused",
     OnPage().Do(Voltage("a", "", "1")).Do({kPress, Set("name", "A"), kPress}),
     {"v(a)=1"},
     0,
     true,
     {kAlreadyThere}},
    {"deleting asks, and no keeps the entry",
     WithTwoEntries().Answer({false}).Do({Click("delete")}),
     {"i(L2)=0", "v(a)=1"},
     0,
     true,
     {kDeleteQuestion}},
    {"deleting selects the entry on top",
     WithTwoEntries().Do({Select("list", 1)}).Answer({true}).Do({Click("delete")}),
     {"i(L2)=0"},
     0,
     true,
     {kDeleteQuestion}},
    {"deleting the last entry disables Delete and Clear",
     WithTwoEntries().Answer({true, true}).Do({Click("delete"), Click("delete")}),
     {},
     -1,
     false,
     {kDeleteQuestion, kDeleteQuestion}},
    {"deleting without a selection does nothing",
     WithTwoEntries().Do({Select("list", -1)}).Answer({true}).Do({Click("delete")}),
     {"i(L2)=0", "v(a)=1"},
     -1,
     true,
     {}},
    {"clearing asks, and no keeps all",
     WithTwoEntries().Answer({false}).Do({Click("clear")}),
     {"i(L2)=0", "v(a)=1"},
     0,
     true,
     {kClearQuestion}},
    {"clearing empties the list",
     WithTwoEntries().Answer({true}).Do({Click("clear")}),
     {},
     -1,
     false,
     {kClearQuestion}},
    {"clearing without a selection does nothing",
     WithTwoEntries().Do({Select("list", -1)}).Answer({true}).Do({Click("clear")}),
     {"i(L2)=0", "v(a)=1"},
     -1,
     true,
     {}},
    {"a switch of mode doesn't touch the list",
     WithTwoEntries().Do({Choose("mode", kVoltage)}),
     {"i(L2)=0", "v(a)=1"},
     0,
     true,
     {}},
};

TEST_F(InitialConditionPage, AddsDeletesAndClears)
{
    for (const TListCase& rCase : kListCases) {
        SCOPED_TRACE(rCase.pName);
        CScript script = rCase.script;
        const auto outcome = gRunWizard(script.Look(
            {look::Entries("list", rCase.entries), look::Selected("list", rCase.nSelected),
             look::Enabled("delete", rCase.bButtons), look::Enabled("clear", rCase.bButtons)}));
        EXPECT_EQ(outcome.messages, rCase.messages);
    }
}

TEST_F(InitialConditionPage, AddKeepsTheFieldsAsTheyWereTyped)
{
    gRunWizard(OnPage()
                   .Do(Voltage(" a", " b", " 1"))
                   .Do({kPress})
                   .Look({look::Text("name", " a"), look::Text("second", " b"),
                          look::Text("value", " 1"), look::Enabled("add")}));
}

TEST_F(InitialConditionPage, RefusalsAndQuestionsAreTranslated)
{
    const CBracketTranslation translation;
    const auto outcome = gRunWizard(OnPage("[Initialization]/[Initial condition]")
                                        .Do(Current("x1", "1"))
                                        .Do({kPress, Set("name", "L1"), kPress, kPress})
                                        .Do({Click("delete"), Click("clear")}));
    const auto bracketed = [](const char* pText) { return "[" + std::string(pText) + "]"; };
    EXPECT_EQ(outcome.messages,
              (std::vector<std::string>{bracketed(kIllegalName), bracketed(kAlreadyThere),
                                        bracketed(kDeleteQuestion), bracketed(kClearQuestion)}));
}

// --- the command

struct TCase {
    const char* pName;
    CScript script;
    std::vector<std::string> inserted;
    std::vector<std::string> messages;
};

const TCase kCases[] = {
    {"a voltage", OnPage().Do(Voltage("out", "", "3.3")), {".ic v(out)=3.3"}, {}},
    {"a voltage against a reference",
     OnPage().Do(Voltage("out", "ref", "1")),
     {".ic v(out,ref)=1"},
     {}},
    {"name and value are trimmed at both ends, the reference isn't",
     OnPage().Do(Voltage(" out ", " ref ", " 1 ")),
     {".ic v(out, ref )=1"},
     {}},
    {"the checks run before the trim: blanks pass",
     OnPage().Do(Voltage(" ", " ", " ")),
     {".ic v(, )="},
     {}},
    {"a node's name is missing", OnPage().Do(Voltage("", "", "1")), {}, {"Missing node name."}},
    {"nothing: the name is missed first",
     OnPage().Do(Voltage("", "", "")),
     {},
     {"Missing node name."}},
    {"a voltage is missing", OnPage().Do(Voltage("a", "b", "")), {}, {"Missing initial voltage."}},
    {"a current", OnPage().Do(Current("L1", "2m")), {".ic i(L1)=2m"}, {}},
    {"a small letter", OnPage().Do(Current("l1", "2m")), {".ic i(l1)=2m"}, {}},
    {"trimmed at both ends", OnPage().Do(Current("L1 ", " 2m ")), {".ic i(L1)=2m"}, {}},
    {"the checks run before the trim: a blank isn't L",
     OnPage().Do(Current(" L1", "2m")),
     {},
     {kIllegalName}},
    {"an inductor's name is missing", OnPage().Do(Current("", "")), {}, {"Missing inductor name."}},
    {"the letter is looked at before the current",
     OnPage().Do(Current("x1", "")),
     {},
     {kIllegalName}},
    {"a current is missing",
     OnPage().Do(Current("L1", "")),
     {},
     {"Missing initial inductor current."}},
    {"a current of blanks passes", OnPage().Do(Current("L1", " ")), {".ic i(L1)="}, {}},
    {"the list, the oldest entry first", WithTwoEntries(), {".ic v(a)=1 i(L2)=0"}, {}},
    {"the list wins over an illegal name, and no check runs",
     WithTwoEntries().Do(Current("x1", "")),
     {".ic v(a)=1 i(L2)=0"},
     {}},
    {"after the last entry is deleted the fields count again",
     WithTwoEntries()
         .Answer({true, true})
         .Do({Click("delete"), Click("delete")})
         .Do(Current("L9", "1")),
     {".ic i(L9)=1"},
     {kDeleteQuestion, kDeleteQuestion}},
};

TEST_F(InitialConditionPage, BuildsTheIcCommand)
{
    for (const TCase& rCase : kCases) {
        SCOPED_TRACE(rCase.pName);
        CRememberedBase::ResetAll();
        CScript script = rCase.script;
        const auto outcome = gRunWizard(script.Do({Insert()}));
        EXPECT_EQ(outcome.inserted, rCase.inserted);
        EXPECT_EQ(outcome.messages, rCase.messages);
    }
}

TEST_F(InitialConditionPage, MessagesOfMissingFieldsAreTranslated)
{
    const CBracketTranslation translation;
    const auto messages = gRunWizard(OnPage("[Initialization]/[Initial condition]")
                                         .Do({Insert(), Set("name", "L"), Insert()})
                                         .Do({Choose("mode", kCurrent), Insert()})
                                         .Do({Set("name", ""), Insert()}))
                              .messages;
    EXPECT_EQ(messages, (std::vector<std::string>{
                            "[Missing node name.]", "[Missing initial voltage.]",
                            "[Missing initial inductor current.]", "[Missing inductor name.]"}));
}

TEST_F(InitialConditionPage, AFailedAttemptLeavesTheRunsCommand)
{
    gRunWizard(OnPage()
                   .Do(Voltage("a", "", "1"))
                   .Do({Insert(), Set("name", ""), Insert(), Choose("mode", kCurrent), Insert()})
                   .Look({look::Command(".ic v(a)=1")}));
}

// --- what is remembered

TEST_F(InitialConditionPage, TheNextRunShowsTheLastSuccessAndAnEmptyList)
{
    gRunWizard(OnPage().Do(Voltage("a", " b ", "1")).Do({kPress, Set("name", " z "), Insert()}));
    gRunWizard(OnPage().Look({look::Checked("mode", kVoltage), look::Text("name", " z "),
                              look::Text("second", " b "), look::Text("value", "1"),
                              look::Entries("list", {}), look::Enabled("add"),
                              look::Enabled("delete", false), look::Enabled("clear", false)}));
}

TEST_F(InitialConditionPage, WithoutAListTheFieldsAreRememberedTrimmed)
{
    gRunWizard(OnPage().Do(Voltage(" a ", " b ", " 1 ")).Do({Insert()}));
    gRunWizard(OnPage().Look(
        {look::Text("name", "a"), look::Text("second", " b "), look::Text("value", "1")}));
}

TEST_F(InitialConditionPage, TheNextRunShowsTheModeWithItsLabels)
{
    gRunWizard(OnPage().Do(Current("L1", "2m")).Do({Insert()}));
    gRunWizard(
        OnPage().Look({look::Checked("mode", kCurrent), look::Label("name", "Indu&ctor name:"),
                       look::Text("name", "L1"), look::Text("second", "2m"),
                       look::Shown("value", false), look::Enabled("add"), Unit("second", "amp")}));
}

TEST_F(InitialConditionPage, AFailedAttemptIsNotRemembered)
{
    gRunWizard(
        OnPage().Do(Voltage("a", "", "1")).Do({Insert()}).Do(Current("x", "1")).Do({Insert()}));
    gRunWizard(OnPage().Look({look::Checked("mode", kVoltage), look::Text("name", "a")}));
}
} // namespace
