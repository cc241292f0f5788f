#include "platform/ui/Button.h"
#include "platform/ui/FieldView.h"
#include "platform/ui/Mnemonics.h"
#include "support/Look.h"
#include "support/PageTest.h"
#include "support/SharedMnemonics.h"
#include "support/TranslationScope.h"
#include "wizard/optimization/OptimizationRun.h"

#include <gtest/gtest.h>

#include <algorithm>

// The walk through the steps: what each shows, what it asks for, and when "&Insert Command" is on.

namespace
{
using namespace steps;
using namespace optimization;

using OptimizationSteps = PageTest;

/// A control of a step, and the text of its label, or its own if it has none.
struct TControl {
    const char* pKey;
    const char* pText;
};

struct TStepLook {
    const char* pCaption;
    std::vector<TControl> controls; ///< but for those of all steps
    const char* pBack;              ///< null where it is hidden
    const char* pContinue;
};

const std::vector<TStepLook> kSteps{
    {"Optimization setup",
     {{"optimization-name", "&Optimization name:"}, {"analysis-name", "&Analysis name:"}},
     nullptr,
     "&Continue >"},
    {"Set optimization goals",
     {{"measurement", "&Measurement:"},
      {"target", "&Target value:"},
      {"minimum-value", "Mi&nimum Value (1e-12):"},
      {"weight", "&Weight (1):"},
      {"goal-list", "&List of optimization goals:"},
      {"goal-add", nullptr},
      {"goal-delete", nullptr},
      {"goal-clear", nullptr}},
     "< &Back",
     "&Continue >"},
    {"Set parameter limits",
     {{"parameter-name", "&Parameter name:"},
      {"minimum", "&Minimum value:"},
      {"maximum", "Ma&ximum value:"},
      {"delta", "D&elta (Optional):"},
      {"guess", "&Guess value (Optional):"},
      {"parameter-list", "&List of parameters:"},
      {"parameter-add", nullptr},
      {"parameter-delete", nullptr},
      {"parameter-clear", nullptr}},
     "< &Back",
     "&Continue >"},
    {"Set optimization algorithm",
     {{"algorithm-type", "&Algorithm type:"},
      {"name", "&Name:"},
      {"cendif", "&Cendif:"},
      {"close", "C&lose:"},
      {"cut", "C&ut:"},
      {"difsiz", "&Difsiz:"},
      {"grad", "&Grad:"},
      {"itropt", "I&tropt:"},
      {"max", "&Max:"},
      {"parmin", "&Parmin:"},
      {"relin", "&Relin:"},
      {"relout", "Rel&out:"},
      {"description-group", "Description:"},
      {"description", nullptr}},
     "< &Back",
     // The blank in front is meant, on this step alone.
     " &Continue >"},
    {"Insert command", {{"note", nullptr}, {"preview", nullptr}}, "< &Back", nullptr},
};

/// The text that a control shows to the user: its label's, or its own.
std::string TextOf(const TFieldView& rField)
{
    const CWnd& rWith = rField.pLabel ? *rField.pLabel : *rField.pControl;
    return rWith.GetWindowText().GetString();
}

/// The step is on display, with its texts in brackets where they were translated.
CScript::TAction IsOnDisplay(int nStep, bool bTranslated)
{
    return [nStep, bTranslated](CDialog& rDialog) {
        const TStepLook& rStep = kSteps[static_cast<std::size_t>(nStep)];
        SCOPED_TRACE(rStep.pCaption);
        const auto shown = [bTranslated](const std::string& rsText) {
            return bTranslated ? '[' + rsText + ']' : rsText;
        };
        std::vector<std::string> wanted{"step-group"};
        for (const TControl& rControl : rStep.controls)
            wanted.emplace_back(rControl.pKey);
        if (rStep.pBack)
            wanted.emplace_back("back");
        if (rStep.pContinue)
            wanted.emplace_back("continue");

        std::vector<std::string> visible;
        for (const TFieldView& rField : gCollectFields(gCurrentPane(rDialog))) {
            if (rField.pControl->IsWindowVisible())
                visible.emplace_back(rField.sKey);
            if (rField.pLabel) {
                EXPECT_EQ(rField.pLabel->IsWindowVisible(), rField.pControl->IsWindowVisible())
                    << rField.sKey;
            }
        }
        EXPECT_EQ(visible, wanted);
        EXPECT_EQ(TextOf(gFindField(rDialog, "step-group")), shown(rStep.pCaption));
        for (const TControl& rControl : rStep.controls)
            if (rControl.pText) {
                EXPECT_EQ(TextOf(gFindField(rDialog, rControl.pKey)), shown(rControl.pText));
            }
        if (rStep.pBack) {
            EXPECT_EQ(TextOf(gFindField(rDialog, "back")), shown(rStep.pBack));
        }
        if (rStep.pContinue) {
            EXPECT_EQ(TextOf(gFindField(rDialog, "continue")), shown(rStep.pContinue));
        }
        EXPECT_EQ(rDialog.GetDefaultButton()->IsWindowEnabled(), nStep == 4);
    };
}

TEST_F(OptimizationSteps, EachShowsItsControlsWithTheirTexts)
{
    CScript script;
    script.Do({Open(kPage.c_str())}).Look({IsOnDisplay(0, false)});
    const TArguments forth[] = {kSetup, kGoal, kLimits, kAlgorithm};
    for (int nStep = 1; nStep <= 4; ++nStep)
        script.Fill(forth[nStep - 1]).Look({IsOnDisplay(nStep, false)});
    for (int nStep = 3; nStep >= 0; --nStep)
        script.Do({Click("back")}).Look({IsOnDisplay(nStep, false)});
    gRunWizard(std::move(script));
}

TEST_F(OptimizationSteps, TheTextsOfAStepAreTranslatedOnceItIsWalkedToAndTheTemplatesAreNot)
{
    const CBracketTranslation translation;
    CScript script;
    script.Do({Open("[Optimization]/[Wizard]")}).Look({IsOnDisplay(0, false)});
    const TArguments forth[] = {kSetup, kGoal, kLimits, kAlgorithm};
    for (int nStep = 1; nStep <= 4; ++nStep)
        script.Fill(forth[nStep - 1]).Look({IsOnDisplay(nStep, true)});
    for (int nStep = 3; nStep >= 0; --nStep)
        script.Do({Click("back")}).Look({IsOnDisplay(nStep, true)});
    gRunWizard(std::move(script));
}

TEST_F(OptimizationSteps, AStepBlanksTheTextsThatAreNotItsOwn)
{
    gRunWizard(gAtStep(4).Look({look::Label("measurement", ""), look::Label("cendif", ""),
                                look::Label("optimization-name", ""),
                                look::Text("description-group", ""), look::Text("continue", "")}));
}

TEST_F(OptimizationSteps, TheListButtonsAreThoseOfTheTemplateDisabled)
{
    gRunWizard(gAtStep(0).Then([](CDialog& rDialog) {
        for (const char* pList : {"goal", "parameter"}) {
            for (const auto& [pButton, pText] :
                 {std::pair{"-add", "&Add"}, {"-delete", "&Delete"}, {"-clear", "&Clear"}}) {
                const TFieldView button = gFindField(rDialog, std::string(pList) + pButton);
                EXPECT_EQ(button.pControl->GetWindowText(), pText);
                EXPECT_FALSE(button.pControl->IsWindowEnabled());
            }
        }
    }));
}

TEST_F(OptimizationSteps, TheFirstStepOffersTheAnalysesTranslatedAndTakesAnyText)
{
    const CBracketTranslation translation;
    gRunWizard(CScript()
                   .Do({Open("[Optimization]/[Wizard]")})
                   .Look({look::Entries("analysis-name",
                                        {"[First AC Analysis]", "[First DC Analysis]",
                                         "[First Transient Analysis]", "[First .step Analysis]"}),
                          look::Selected("analysis-name", -1), look::Text("analysis-name", "")})
                   .Do({Set("analysis-name", "x")})
                   .Look({look::Text("analysis-name", "x")}));
}

TEST_F(OptimizationSteps, TheOneAlgorithmIsSelectedAtStart)
{
    gRunWizard(gAtStep(0).Look({look::Entries("algorithm-type", {"Levenberg-Marquardt (Level 1)"}),
                                look::Selected("algorithm-type", 0)}));
}

TEST_F(OptimizationSteps, TheLastStepSaysWhatIsNext)
{
    gRunWizard(gAtStep(4).Look(
        {look::Text("note", "Optimization Wizard is now complete.  Press the Insert Command button "
                            "to add the following optimization commands.")}));
}

// --- the defaults

std::vector<CScript::TAction> Defaults()
{
    return {
        look::Text("cendif", "1e-9"),  look::Text("close", "0.001"), look::Text("cut", "2"),
        look::Text("difsiz", "1e-3"),  look::Text("grad", "1e-6"),   look::Text("itropt", "20"),
        look::Text("max", "600000"),   look::Text("parmin", "0.1"),  look::Text("relin", "0.001"),
        look::Text("relout", "0.001"), look::Text("name", "m1")};
}

TEST_F(OptimizationSteps, EachEntryToTheGoalsPutsTheirDefaultsOverWhatWasTyped)
{
    const std::vector<CScript::TAction> defaults{look::Text("minimum-value", "1e-12"),
                                                 look::Text("weight", "1")};
    gRunWizard(gAtStep(0)
                   .Look({look::Text("minimum-value", ""), look::Text("weight", "")})
                   .Fill(kSetup)
                   .Look(defaults)
                   .Fill({"minimum-value=2", "weight=3", "measurement=a", "target=b"})
                   .Fill({"back", "continue"})
                   .Look(defaults)
                   .Fill({"minimum-value=2", "weight=3", "continue", "back"})
                   .Look(defaults)
                   .Look({look::Text("measurement", "a"), look::Text("target", "b")}));
}

TEST_F(OptimizationSteps, EachEntryToTheAlgorithmPutsAllTenDefaultsBack)
{
    gRunWizard(gAtStep(2)
                   .Look({look::Text("cendif", "")})
                   .Fill(kLimits)
                   .Fill({"name=m1"})
                   .Look(Defaults())
                   .Fill(gBlankKeys())
                   .Fill({"back", "continue"})
                   .Look(Defaults())
                   .Fill(gBlankKeys())
                   .Fill({"continue"})
                   .Look({look::Text("cut", "")})
                   .Fill({"back"})
                   .Look(Defaults()));
}

// --- what a step asks for

struct TRefusal {
    const char* pName;
    int nStep;
    TArguments arguments;
    const char* pMessage;
};

const TRefusal kRefusals[] = {
    {"setup: nothing", 0, {}, "[Missing analysis name.]"},
    {"setup: a name alone", 0, {"optimization-name=o1"}, "[Missing analysis name.]"},
    {"setup: an analysis alone", 0, {"analysis-name=a"}, "[Missing optimization name.]"},
    {"goals: nothing", 1, {}, "[Missing measurement name.]"},
    {"goals: a target alone", 1, {"target=1n"}, "[Missing measurement name.]"},
    {"goals: a measurement alone", 1, {"measurement=delay"}, "[Missing target value.]"},
    {"limits: nothing", 2, {}, "[Missing parameter name.]"},
    {"limits: all but the name", 2, {"minimum=1", "maximum=2"}, "[Missing parameter name.]"},
    {"limits: all but the minimum",
     2,
     {"parameter-name=w", "maximum=2"},
     "[Missing minimum value.]"},
    {"limits: all but the maximum",
     2,
     {"parameter-name=w", "minimum=1"},
     "[Missing maximum value.]"},
    // This one isn't translated.
    {"algorithm: no name", 3, {}, "Missing algorithm name."},
};

TEST_F(OptimizationSteps, ContinueTellsWhatIsMissingAndTheStepStays)
{
    const CBracketTranslation translation;
    for (const TRefusal& rCase : kRefusals) {
        SCOPED_TRACE(rCase.pName);
        const auto outcome = gRunWizard(CScript()
                                            .Do({Open("[Optimization]/[Wizard]")})
                                            .Fill(gWayTo(rCase.nStep))
                                            .Fill(rCase.arguments)
                                            .Do({Click("continue")})
                                            .Look({IsOnDisplay(rCase.nStep, rCase.nStep > 0)}));
        EXPECT_EQ(outcome.messages, std::vector<std::string>{rCase.pMessage});
    }
}

TEST_F(OptimizationSteps, BlanksAreTextsForContinueOnEveryStep)
{
    const auto outcome =
        gRunWizard(gAtStep(0)
                       .Fill({"optimization-name= ", "analysis-name= ", "continue",
                              "measurement= ", "target= ", "continue",
                              "parameter-name= ", "minimum= ", "maximum= ", "continue"})
                       .Look({IsOnDisplay(3, false)}));
    EXPECT_EQ(outcome.messages, std::vector<std::string>{});
}

TEST_F(OptimizationSteps, BackAsksForNothingAndKeepsFieldsAndLists)
{
    const auto outcome =
        gRunWizard(gAtStep(1)
                       .Fill({"measurement=delay", "target=1n", "goal-add",
                              "measurement=", "continue", "back", "back"})
                       .Look({IsOnDisplay(0, false), look::Text("optimization-name", "o1"),
                              look::Text("target", "1n"),
                              look::Entries("goal-list", {"delay=1n minval=1e-12 weight=1"})}));
    EXPECT_EQ(outcome.messages, std::vector<std::string>{});
}

// --- "&Insert Command"

void ExpectInsert(CDialog& rDialog, bool bEnabled)
{
    EXPECT_EQ(rDialog.GetDefaultButton()->IsWindowEnabled(), bEnabled);
}

TEST_F(OptimizationSteps, InsertIsOffBeforeTheLastStepForEnterToo)
{
    for (int nStep = 0; nStep < 4; ++nStep)
        gRunWizard(gAtStep(nStep)
                       .Refused(Insert(), EStepEnd::Refused, EUserResult::Disabled)
                       .Do({Focus(kSteps[static_cast<std::size_t>(nStep)].controls[0].pKey)})
                       .Refused(Key("enter"), EStepEnd::Refused, EUserResult::Disabled));
}

TEST_F(OptimizationSteps, EnterInsertsOnTheLastStep)
{
    const auto outcome = gRunWizard(gAtStep(4).Do({Focus("preview"), Key("enter")}));
    EXPECT_EQ(outcome.inserted.size(), 1U);
}

TEST_F(OptimizationSteps, ComingBackToThePageSwitchesInsertOffOnTheLastStepToo)
{
    gRunWizard(gAtStep(4)
                   .Look({look::Enabled("insert")})
                   .Do({Open("Settings/Temperature")})
                   .Look({look::Enabled("insert")})
                   .Do({Open(kPage.c_str())})
                   .Look({look::Enabled("insert", false), look::Shown("preview")})
                   // Back and Continue bring it back.
                   .Do({Click("back"), Click("continue")})
                   .Look({look::Enabled("insert")}));
}

TEST_F(OptimizationSteps, SoDoesTheWayOverTheCategoryAndItsButton)
{
    gRunWizard(gAtStep(4)
                   .Do({Open("Optimization"), Click("button-1")})
                   .Look({look::Shown("preview"), look::Enabled("insert", false)}));
}

TEST_F(OptimizationSteps, TheNodeThatIsSelectedChangesNothingWhenItIsSelectedAgain)
{
    gRunWizard(gAtStep(4).Do({Open(kPage.c_str())}).Look({look::Enabled("insert")}));
}

TEST_F(OptimizationSteps, AChangeOfTheNameSwitchesInsertOffOnItsStepOnly)
{
    gRunWizard(gAtStep(3)
                   .Then([](CDialog& rDialog) { rDialog.GetDefaultButton()->EnableWindow(true); })
                   .Do({Set("close", "1")})
                   .Then([](CDialog& rDialog) { ExpectInsert(rDialog, true); })
                   .Do({Set("name", "m1")})
                   .Then([](CDialog& rDialog) { ExpectInsert(rDialog, false); })
                   .Do({Click("continue")})
                   .Then([](CDialog& rDialog) {
                       gFindField(rDialog, "name").pControl->SetWindowText("m2");
                       ExpectInsert(rDialog, true);
                   }));
}

// --- the keyboard

TEST_F(OptimizationSteps, LettersAreSharedWithContinueOnly)
{
    for (int nStep = 0; nStep <= 4; ++nStep)
        gRunWizard(gAtStep(nStep).Then([nStep](CDialog& rDialog) {
            EXPECT_EQ(gSharedMnemonics(rDialog), "");
            // With an empty list, "&Clear" is disabled and no rival.
            EXPECT_EQ(gMnemonicTargets(rDialog, 'c').size(), nStep == 4   ? 0U
                                                             : nStep == 3 ? 2U
                                                                          : 1U)
                << nStep;
        }));
}

TEST_F(OptimizationSteps, EveryFieldAndButtonIsReachedByTab)
{
    for (int nStep = 0; nStep <= 4; ++nStep)
        gRunWizard(gAtStep(nStep).Do({Focus("tree")}).Then([](CDialog& rDialog) {
            std::vector<const CWnd*> missed;
            for (const TFieldView& rField : gCollectFields(gCurrentPane(rDialog)))
                if (rField.pControl->CanTakeFocus() && rField.pControl->IsTabStop())
                    missed.push_back(rField.pControl);
            EXPECT_FALSE(missed.empty());
            for (int n = 0; n < 30; ++n) {
                gRunStep(rDialog, Key("tab"));
                std::erase(missed, CWnd::GetFocus());
            }
            EXPECT_TRUE(missed.empty());
        }));
}

TEST_F(OptimizationSteps, TheFocusStaysInThePaneWhenItsButtonGoes)
{
    gRunWizard(gAtStep(1).Do({Click("back")}).Look({look::Focused("continue")}));
    gRunWizard(gAtStep(4).Look({look::Focused("preview")}));
}
} // namespace
