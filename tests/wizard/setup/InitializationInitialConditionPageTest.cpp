#include "platform/ui/Button.h"
#include "platform/ui/FieldView.h"
#include "support/Look.h"
#include "support/PageTest.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"
#include "wizard/setup/InitialConditionSteps.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;
using namespace initialConditionSteps;

using InitialConditionPage = PageTest;

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
    gRunWizard(OnPage(kTranslatedPath)
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
    gRunWizard(OnPage(kTranslatedPath)
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
            .Do(gVoltage("a", "b", "1"))
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
    {"current: name and current", gCurrent("L1", "2m"), true},
    {"current: a name alone", gCurrent("L1", ""), false},
    {"current: a current alone", gCurrent("", "2m"), false},
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

// --- what is remembered

TEST_F(InitialConditionPage, TheNextRunShowsTheLastSuccessAndAnEmptyList)
{
    gRunWizard(
        OnPage().Do(gVoltage("a", " b ", "1")).Do({Click("add"), Set("name", " z "), Insert()}));
    gRunWizard(OnPage().Look({look::Checked("mode", kVoltage), look::Text("name", " z "),
                              look::Text("second", " b "), look::Text("value", "1"),
                              look::Entries("list", {}), look::Enabled("add"),
                              look::Enabled("delete", false), look::Enabled("clear", false)}));
}

TEST_F(InitialConditionPage, WithoutAListTheFieldsAreRememberedTrimmed)
{
    gRunWizard(OnPage().Do(gVoltage(" a ", " b ", " 1 ")).Do({Insert()}));
    gRunWizard(OnPage().Look(
        {look::Text("name", "a"), look::Text("second", " b "), look::Text("value", "1")}));
}

TEST_F(InitialConditionPage, TheNextRunShowsTheModeWithItsLabels)
{
    gRunWizard(OnPage().Do(gCurrent("L1", "2m")).Do({Insert()}));
    gRunWizard(
        OnPage().Look({look::Checked("mode", kCurrent), look::Label("name", "Indu&ctor name:"),
                       look::Text("name", "L1"), look::Text("second", "2m"),
                       look::Shown("value", false), look::Enabled("add"), Unit("second", "amp")}));
}

TEST_F(InitialConditionPage, AFailedAttemptIsNotRemembered)
{
    gRunWizard(
        OnPage().Do(gVoltage("a", "", "1")).Do({Insert()}).Do(gCurrent("x", "1")).Do({Insert()}));
    gRunWizard(OnPage().Look({look::Checked("mode", kVoltage), look::Text("name", "a")}));
}
} // namespace
