// What the dialog "Sweep" shows for each choice.

#include "wizard/analysis/StepSweepPage.h"

#include "platform/ui/FieldView.h"
#include "support/SharedMnemonics.h"
#include "support/TranslationScope.h"
#include "wizard/analysis/SweepDialogRun.h"

namespace
{
using namespace steps;

class StepSweepPage : public CSweepDialogTest
{
};

/// The field is hidden, or shown with this label.
void LookAtField(CScript& rScript, const char* pKey, const char* pLabel)
{
    rScript.Look({look::Shown(pKey, pLabel != nullptr)});
    if (pLabel)
        rScript.Look({look::Label(pKey, pLabel)});
}

/// The same of an edit whose label a change of type empties first.
void LookAtEdit(CScript& rScript, const char* pKey, const char* pLabel)
{
    LookAtField(rScript, pKey, pLabel);
    rScript.Look({look::Label(pKey, pLabel ? pLabel : "")});
}

struct TTypeCase {
    const char* pType;
    const char* pStart; ///< the labels; null where the field is hidden
    const char* pStop;
    const char* pIncrement;
    const char* pNumberOfPoints;
    const char* pListOfValues;
    bool bParameter;
};

const TTypeCase kTypes[] = {
    {"Linear", "[Sta&rt:]", "[S&top:]", "[In&crement:]", "[T&otal number of points for sweep:]",
     nullptr, true},
    {"Decade", "[Sta&rt:]", "[S&top:]", nullptr, "[&Number of points per decade:]", nullptr, true},
    {"Octave", "Sta&rt:", "[S&top:]", nullptr, "[&Number of points per octave:]", nullptr, true},
    {"List", nullptr, nullptr, nullptr, nullptr, "[&List of values:]", true},
    {"Poi", nullptr, "[T&otal number of points for sweep:]", nullptr, nullptr, "[&List of values:]",
     true},
    {"Data", "[&Data name:]", nullptr, nullptr, nullptr, nullptr, false},
    {"Monte Carlo", "[&Number of Monte Carlo analysis runs:]", "[S&eed (optional):]", nullptr,
     nullptr, nullptr, false},
    {"Optimization", "[&Optimization run name for selecting parameters:]",
     "[&Circuit measurement results:]", "[O&ptimization algorithm model name:]", nullptr, nullptr,
     false},
};

void LookAtType(CScript& rScript, const TTypeCase& rCase)
{
    LookAtEdit(rScript, "start", rCase.pStart);
    LookAtEdit(rScript, "stop", rCase.pStop);
    LookAtEdit(rScript, "increment", rCase.pIncrement);
    LookAtEdit(rScript, "number-of-points", rCase.pNumberOfPoints);
    LookAtEdit(rScript, "list-of-values", rCase.pListOfValues);
    LookAtField(rScript, "parameter-type", rCase.bParameter ? "&Parameter type:" : nullptr);
    LookAtField(rScript, "parameter-name", rCase.bParameter ? "[Para&meter name:]" : nullptr);
    LookAtField(rScript, "model-name", nullptr);
}

TEST_F(StepSweepPage, EachTypeShowsItsFieldsWithItsLabelsOfWhichOneStartIsNotTranslated)
{
    const CBracketTranslation translation;
    for (const TTypeCase& rFrom : kTypes) {
        for (const TTypeCase& rTo : kTypes) {
            SCOPED_TRACE(std::string(rFrom.pType) + " to " + rTo.pType);
            CScript script;
            script.Do({Select("sweep-type", rFrom.pType), Select("sweep-type", rTo.pType)});
            LookAtType(script, rTo);
            script.Do({Click("cancel")});
            Open(std::move(script));
        }
    }
}

struct TParameterCase {
    const char* pParameter;
    const char* pLabel; ///< of the parameter's name; null where it is hidden
    bool bModelName;
};

const TParameterCase kParameters[] = {
    {"Model parameter", "[Para&meter name:]", true},
    {"Parameter", "[Para&meter:]", false},
    {"Parameter name", "[Para&meter name:]", false},
    {"Source", "[So&urce name:]", false},
    {"Temperature", nullptr, false},
};

TEST_F(StepSweepPage, EachParameterTypeShowsItsNames)
{
    const CBracketTranslation translation;
    for (const char* pType : {"Linear", "Decade", "Octave", "List", "Poi"}) {
        for (const TParameterCase& rCase : kParameters) {
            SCOPED_TRACE(std::string(pType) + ", " + rCase.pParameter);
            CScript script;
            script.Do({Select("sweep-type", pType), Select("parameter-type", rCase.pParameter)});
            LookAtField(script, "parameter-name", rCase.pLabel);
            script.Look({look::Shown("model-name", rCase.bModelName)});
            script.Do({Click("cancel")});
            Open(std::move(script));
        }
    }
}

TEST_F(StepSweepPage, TheBoxForTheModelNameStandsWithoutALabel)
{
    Open(CScript()
             .Look({look::Label("model-name", "")})
             .Do({Select("parameter-type", "Model parameter")})
             .Look({look::Shown("model-name"), look::Label("model-name", "")})
             .Do({Click("cancel")}));
}

TEST_F(StepSweepPage, EveryChangeOfTypeResetsTheParameterType)
{
    for (const TParameterCase& rCase : kParameters) {
        SCOPED_TRACE(rCase.pParameter);
        Open(CScript()
                 .Do({Select("parameter-type", rCase.pParameter), Select("sweep-type", "Poi")})
                 .Look({look::Text("parameter-type", "Parameter name"),
                        look::Label("parameter-name", "Para&meter name:"),
                        look::Shown("parameter-name"), look::Shown("model-name", false)})
                 .Do({Select("parameter-type", rCase.pParameter), Select("sweep-type", "Poi")})
                 .Look({look::Text("parameter-type", "Parameter name")})
                 .Do({Click("cancel")}));
    }
}

TEST_F(StepSweepPage, TheTypesWithoutAParameterLeaveItsTypeAsItIsHidden)
{
    for (const char* pType : {"Data", "Monte Carlo", "Optimization"})
        Open(CScript()
                 .Do({Select("parameter-type", "Temperature"), Select("sweep-type", pType)})
                 .Look({look::Shown("parameter-type", false),
                        look::Text("parameter-type", "Temperature")})
                 .Do({Click("cancel")}));
}

TEST_F(StepSweepPage, ItsListsAreInEnglishAndItHasTwoPlainButtons)
{
    const CBracketTranslation translation;
    Open(CScript()
             .Look({look::Title("Sweep"),
                    look::Entries("sweep-type", {"Linear", "Decade", "Octave", "List", "Poi",
                                                 "Data", "Monte Carlo", "Optimization"}),
                    look::Entries("parameter-type", {"Model parameter", "Parameter",
                                                     "Parameter name", "Source", "Temperature"}),
                    look::Label("sweep-type", "&Sweep type:"),
                    look::Label("parameter-type", "&Parameter type:"),
                    look::Text("accept", "&Accept"), look::Text("cancel", "Cancel")})
             .Then([](CDialog& rDialog) {
                 EXPECT_EQ(rDialog.GetDefaultButton(), nullptr);
                 EXPECT_EQ(gFindField(rDialog, "accept").kind, EControl::PushButton);
                 EXPECT_EQ(gFindField(rDialog, "cancel").kind, EControl::PushButton);
             })
             .Do({Click("cancel")}));
}

TEST_F(StepSweepPage, ItsFieldsStandInTheOrderOfTheTemplate)
{
    Open(CScript()
             .Then([](CDialog& rDialog) {
                 std::vector<std::string> keys;
                 for (const TFieldView& rField : gCollectFields(rDialog))
                     keys.emplace_back(rField.sKey);
                 EXPECT_EQ(keys, (std::vector<std::string>{
                                     "sweep-type", "parameter-type", "parameter-name", "model-name",
                                     "start", "stop", "list-of-values", "increment",
                                     "number-of-points", "accept", "cancel"}));
             })
             .Do({Click("cancel")}));
}

TEST_F(StepSweepPage, NoTwoControlsVisibleTogetherShareAMnemonic)
{
    CScript script;
    for (const TTypeCase& rType : kTypes) {
        script.Do({Select("sweep-type", rType.pType)});
        for (int n = 0; n < (rType.bParameter ? 5 : 1); ++n) {
            if (rType.bParameter)
                script.Do({Select("parameter-type", n)});
            script.Then([](CDialog& rDialog) { EXPECT_EQ(gSharedMnemonics(rDialog), ""); });
        }
    }
    Open(std::move(script.Do({Click("cancel")})));
}

TEST_F(StepSweepPage, AMarkMovedThroughTheOpenListIsAChangeOfType)
{
    Open(CScript()
             .Do({Focus("sweep-type"), Key("down"), Key("down")})
             .Look({look::Text("sweep-type", "Octave"),
                    look::Label("number-of-points", "&Number of points per octave:")})
             .Do({Click("cancel")}));
}
} // namespace
