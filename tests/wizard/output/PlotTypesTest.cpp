// What the plot types of the four pages that print results show, and when Add is enabled.

#include "platform/ui/FieldView.h"
#include "support/Look.h"
#include "support/PageTest.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"
#include "wizard/sources/SourcePageRun.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace
{
using namespace steps;

using PlotTypes = PageTest;

/// What a plot type shows. Labels stand here without the brackets of their translation.
struct TType {
    const char* pEntry;
    const char* pFirst = ""; ///< labels; empty where the field is hidden
    const char* pSecond = "";
    const char* pTerminal = "";
    bool bFormat = false;
    bool bPowerNote = false;
    bool bExpression = false;
};

struct TPage {
    const char* pLabel;
    std::vector<TType> types;
    const char* pNote;
    const char* pName = "Na&me (user-defined):";
    const char* pUnit = "&Unit (user-defined):";
    bool bFormats = true;
};

constexpr const char* kNode = "&Node name:";
constexpr const char* kReference = "&Reference node (GND):";
constexpr const char* kDevice = "De&vice name:";
constexpr const char* kTerminalNumber = "&Terminal number:";
constexpr const char* kTerminalNode = "&Terminal node name:";

const std::vector<TType> kACTypes{
    {.pEntry = "Voltage", .pFirst = kNode, .pSecond = kReference, .bFormat = true},
    {.pEntry = "Current (by terminal #)",
     .pFirst = kDevice,
     .pTerminal = kTerminalNumber,
     .bFormat = true},
    {.pEntry = "Current (by node name)",
     .pFirst = kDevice,
     .pSecond = kTerminalNode,
     .bFormat = true},
    {.pEntry = "Expression", .bExpression = true}};

const std::vector<TType> kDCTypes{
    {.pEntry = "Voltage", .pFirst = kNode, .pSecond = kReference},
    {.pEntry = "Current (by terminal #)", .pFirst = kDevice, .pTerminal = kTerminalNumber},
    {.pEntry = "Current (by node name)", .pFirst = kDevice, .pSecond = kTerminalNode},
    {.pEntry = "Charge (by terminal #)", .pFirst = kDevice, .pTerminal = kTerminalNumber},
    {.pEntry = "Charge (by node name)", .pFirst = kDevice, .pSecond = kTerminalNode},
    {.pEntry = "Power", .pFirst = "&Voltage source or resistor name:", .bPowerNote = true},
    {.pEntry = "Expression", .bExpression = true}};

const std::vector<TType> kNoiseTypes{
    kACTypes[0],
    kACTypes[1],
    kACTypes[2],
    {.pEntry = "Output noise", .bFormat = true},
    {.pEntry = "Input noise", .bFormat = true},
    {.pEntry = "Transfer function"},
    {.pEntry = "Device noise contribution", .pFirst = kDevice, .bFormat = true},
    {.pEntry = "Expression", .bExpression = true}};

const TPage kAC{"AC results", kACTypes,
                "Expression may involve AC voltages, currents, charges, parameters, and "
                "frequency."};
const TPage kDC{"DC results",
                kDCTypes,
                "Expression may involve DC voltages, currents, charges, power, and parameters.",
                "Na&me (user- defined):",
                "&Unit (user- defined):",
                false};
const TPage kTransient{.pLabel = "Transient results",
                       .types = kDCTypes,
                       .pNote = "Expression may involve transient voltages, currents, charges, "
                                "power, parameters, and time.",
                       .bFormats = false};
const TPage kNoise{"Noise results", kNoiseTypes,
                   "Expression may involve AC voltages, currents, inoise, onoise, transfer "
                   "parameters, and frequency."};

const TPage* const kPages[] = {&kAC, &kDC, &kTransient, &kNoise};

CScript OnPage(const TPage& rPage)
{
    return CScript().Do({Open(std::string("[Output]/[") + rPage.pLabel + "]")});
}

std::string Translated(const char* pLabel)
{
    return *pLabel ? std::string("[") + pLabel + "]" : "";
}

/// Whether the user sees the field; its label is another look's.
CScript::TAction Visible(const char* pKey, bool bVisible)
{
    return [pKey, bVisible](CDialog& rDialog) {
        const TFieldView field = gFindField(rDialog, pKey);
        ASSERT_TRUE(field.pControl) << pKey;
        EXPECT_EQ(field.pControl->IsWindowVisible(), bVisible) << pKey;
    };
}

/// Looks at all that depends on the type. `bTranslated`: its labels come from a choice of the
/// user, not from the template.
void LookAt(CScript& rScript, const TPage& rPage, const TType& rType, bool bTranslated = true)
{
    const auto label = [bTranslated](const char* pText) {
        return bTranslated ? Translated(pText) : std::string(pText);
    };
    rScript.Look(
        {look::Label("first-name", label(rType.pFirst)),
         look::Shown("first-name", *rType.pFirst != 0),
         look::Label("second-name", label(*rType.pTerminal ? rType.pTerminal : rType.pSecond)),
         Visible("second-name", *rType.pSecond != 0),
         Visible("terminal-selection", *rType.pTerminal != 0),
         look::Shown("expression", rType.bExpression), look::Shown("note", rType.bExpression),
         look::Label("expression", "E&xpression:"), look::Text("note", rPage.pNote)});
    if (rPage.bFormats)
        rScript.Look({look::Shown("format", rType.bFormat), look::Label("format", "&Format:")});
    else
        rScript.Look({look::Shown("power-note", rType.bPowerNote),
                      look::Text("power-note", "Voltage source name must begin with 'V'.")});
}

TEST_F(PlotTypes, EachShowsItsFieldsWithTranslatedLabels)
{
    const CBracketTranslation translation;
    for (const TPage* const pPage : kPages) {
        SCOPED_TRACE(pPage->pLabel);
        CScript script = OnPage(*pPage);
        for (const TType& rFrom : pPage->types) {
            for (const TType& rTo : pPage->types) {
                script.Do({Select("plot-type", rFrom.pEntry), Select("plot-type", rTo.pEntry)});
                LookAt(script, *pPage, rTo);
            }
        }
        gRunWizard(std::move(script));
    }
}

TEST_F(PlotTypes, AFreshPageShowsAVoltageTranslatedOnAllButTheACPage)
{
    const CBracketTranslation translation;
    for (const TPage* const pPage : kPages) {
        SCOPED_TRACE(pPage->pLabel);
        CScript script = OnPage(*pPage);
        script.Look({look::Selected("plot-type", 0), look::Selected("terminal-selection", 0)});
        LookAt(script, *pPage, pPage->types[0], pPage != &kAC);
        gRunWizard(std::move(script));
    }
}

TEST_F(PlotTypes, TheOtherTextsAreThoseOfTheTemplates)
{
    const CBracketTranslation translation;
    for (const TPage* const pPage : kPages) {
        SCOPED_TRACE(pPage->pLabel);
        std::vector<std::string> entries;
        for (const TType& rType : pPage->types)
            entries.emplace_back(rType.pEntry);
        gRunWizard(OnPage(*pPage).Look(
            {look::Label("plot-type", "&Plot type:"), look::Entries("plot-type", entries),
             look::Entries("terminal-selection",
                           {"1", "2", "3", "4", "Drain", "Gate", "Source", "Bulk", "Collector",
                            "Base", "Emitter", "Substrate", "Anode", "Cathode"}),
             look::Text("optional-group", "Optional"), look::Label("item-name", pPage->pName),
             look::Label("item-unit", pPage->pUnit), look::Label("list", "&List of plot items:"),
             look::Entries("list", {}), look::Text("add", "&Add"), look::Enabled("add", false),
             look::Text("delete", "&Delete"), look::Enabled("delete", false),
             look::Text("clear", "&Clear"), look::Enabled("clear", false)}));
    }
    for (const auto& [pPage, pGroup] : {std::pair{&kAC, "Print AC analysis results"},
                                        {&kDC, "Print DC analysis results"},
                                        {&kTransient, "Print transient analysis results"},
                                        {&kNoise, "Print noise analysis results"}})
        gRunWizard(OnPage(*pPage).Look({look::Text("results-group", pGroup)}));
    gRunWizard(OnPage(kAC).Look({look::Entries(
        "format", {"Magnitude", "Phase", "Real part", "Imaginary part", "Decibels"})}));
}

TEST_F(PlotTypes, AllButtonsAreDisabledInTheTemplates)
{
    for (const char* pClass : {"COutputACResultsPage", "COutputDCResultsPage",
                               "COutputTransientResultsPage", "COutputNoiseResultsPage"})
        gRunSinglePage(pClass, CScript().Then([](CDialog& rDialog) {
            for (const char* pButton : {"add", "delete", "clear"}) {
                EXPECT_TRUE(gFindField(rDialog, pButton).pControl->GetControlFlags() & kDisabled);
            }
        }));
}

TEST_F(PlotTypes, AChangeOfTypeKeepsWhatWasTyped)
{
    gRunWizard(
        CScript()
            .Do({Open("Output/DC results"), Set("first-name", "a"), Set("second-name", "b"),
                 Select("plot-type", "Expression"), Set("expression", "x"),
                 Select("plot-type", "Charge (by terminal #)"),
                 Select("terminal-selection", "Gate"), Select("plot-type", "Voltage")})
            .Look({look::Text("first-name", "a"), look::Text("second-name", "b"),
                   look::Text("expression", "x"), look::Text("terminal-selection", "Gate")}));
}

// --- Add

/// Which fields a type needs for Add.
std::vector<std::string> NeedsOf(const TType& rType)
{
    if (rType.bExpression)
        return {"expression"};
    std::vector<std::string> needs;
    if (*rType.pFirst)
        needs.emplace_back("first-name");
    if (std::string(rType.pSecond) == kTerminalNode)
        needs.emplace_back("second-name");
    return needs;
}

TEST_F(PlotTypes, AddIsEnabledWhenAllThatTheTypeNeedsHasText)
{
    for (const TPage* const pPage : kPages) {
        for (const TType& rType : pPage->types) {
            SCOPED_TRACE(std::string(pPage->pLabel) + ", " + rType.pEntry);
            const auto needs = NeedsOf(rType);
            CScript script;
            script
                .Do({Open(std::string("Output/") + pPage->pLabel),
                     Select("plot-type", rType.pEntry)})
                .Look({look::Enabled("add", needs.empty())});
            for (const std::string& rsField : needs)
                script.Do({Set(rsField, " ")})
                    .Look({look::Enabled("add", rsField == needs.back())});
            for (const std::string& rsField : needs)
                script.Do({Set(rsField, "")})
                    .Look({look::Enabled("add", false)})
                    .Do({Set(rsField, "a")})
                    .Look({look::Enabled("add")});
            gRunWizard(std::move(script));
        }
    }
}

TEST_F(PlotTypes, AChangeOfAFieldThatTheTypeDoesNotNeedLeavesAddAsItIs)
{
    gRunWizard(CScript()
                   .Do({Open("Output/AC results"), Set("second-name", "b")})
                   .Look({look::Enabled("add", false)})
                   .Do({Set("first-name", "a"), Set("second-name", "")})
                   .Look({look::Enabled("add")}));
}

TEST_F(PlotTypes, AChangeOfTypeLooksAtWhatIsThere)
{
    gRunWizard(CScript()
                   .Do({Open("Output/Transient results"), Set("first-name", "a")})
                   .Look({look::Enabled("add")})
                   .Do({Select("plot-type", "Current (by node name)")})
                   .Look({look::Enabled("add", false)})
                   .Do({Select("plot-type", "Power")})
                   .Look({look::Enabled("add")})
                   .Do({Select("plot-type", "Expression")})
                   .Look({look::Enabled("add", false)}));
}
} // namespace
