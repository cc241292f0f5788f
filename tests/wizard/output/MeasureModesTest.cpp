// What the types of the page of measurements show, and what its radio buttons enable.

#include "support/PageTest.h"
#include "support/TranslationScope.h"
#include "wizard/output/MeasureLooks.h"

#include <gtest/gtest.h>

#include <map>

namespace
{
using namespace steps;
using namespace measureLooks;

using MeasureModes = PageTest;

/// The labels of a type's fields by key; null for a field without one.
using TLabels = std::map<std::string, const char*>;

const TLabels kTypeLabels[] = {
    {{"trigger-mode", nullptr},
     {"at-value", "[&x=]"},
     {"trigger-signal", "[&signal]"},
     {"trigger-value", "[&crosses value]"},
     {"trigger-crossing-kind", "[&on]"},
     {"trigger-crossing-number", "[n&umber]"},
     {"trigger-delay", "[&Delay before crossing are counted:]"},
     {"target-signal", "[Wh&en signal]"},
     {"target-value", "[crosses va&lue]"},
     {"target-crossing-kind", "[o&n]"},
     {"target-crossing-number", "[num&ber]"},
     {"target-delay", "[Delay be&fore crossing are counted:]"}},
    {{"kind", "[Type of me&asurement:]"},
     {"output-signal", "[Output &signal:]"},
     {"from", "[&From (default is beginning of analysis):]"},
     {"to", "[T&o (default is end of analysis):]"}},
    {{"find-choice", nullptr},
     {"find-signal", "[o&f signal]"},
     {"when-row", nullptr},
     {"when-x-value", "[&equals]"},
     {"when-signal", nullptr},
     {"when-value", "[e&quals value]"},
     {"value-row-crossing-kind", "[&on]"},
     {"value-row-crossing-number", "[num&ber]"},
     {"value-row-delay", "[&Delay before crossing are counted:]"},
     {"signal-row-first-signal", nullptr},
     {"signal-row-second-signal", "[eq&uals signal]"},
     {"signal-row-crossing-kind", "[o&n]"},
     {"signal-row-crossing-number", "[numbe&r]"},
     {"signal-row-delay", "[Dela&y before crossing are counted:]"}},
    {{"expression", "[E&xpression involving measurement result names and global parameter "
                    "names:]"}},
    {{"kind", "[&Error type:]"},
     {"first-signal", "[Measure difference between &signal]"},
     {"second-signal", "[sig&nal]"},
     {"from", "[&From (default is beginning of analysis):]"},
     {"to", "[T&o (default is end of analysis):]"}},
};

/// All fields that some type doesn't show.
TKeys DependentKeys()
{
    TKeys keys{"reported-signal"};
    for (const TLabels& rLabels : kTypeLabels)
        for (const auto& [sKey, pLabel] : rLabels)
            keys.push_back(sKey);
    return keys;
}

/// The frames that each type shows.
const std::map<std::string, const char*> kFrames[] = {
    {{"trigger-group", "Trigger"}, {"target-group", "[Target]"}},
    {{"optional-group", "[Optional]"}},
    {{"find-group", "Find"}, {"when-group", "When"}},
    {},
    {{"optional-group", "[Optional]"}},
};

void LookAtType(CScript& rScript, int nType)
{
    const TLabels& rLabels = kTypeLabels[nType];
    for (const std::string& rsKey : DependentKeys()) {
        const auto field = rLabels.find(rsKey);
        rScript.Look({look::Shown(rsKey, field != rLabels.end())});
        if (field != rLabels.end() && field->second) {
            rScript.Look({look::Label(rsKey, field->second)});
        }
    }
    for (const char* const pFrame :
         {"trigger-group", "target-group", "optional-group", "find-group", "when-group"}) {
        const auto frame = kFrames[nType].find(pFrame);
        rScript.Look({look::Shown(pFrame, frame != kFrames[nType].end())});
        if (frame != kFrames[nType].end()) {
            rScript.Look({look::Text(pFrame, frame->second)});
        }
    }
    for (const char* const pAlways :
         {"analysis-type", "result-name", "measurement-type", "suppress-printing",
          "optimization-group", "goal", "minimum-value", "weight"})
        rScript.Look({look::Shown(pAlways), look::Enabled(pAlways)});
}

TEST_F(MeasureModes, EachTypeShowsItsFieldsWithTranslatedLabels)
{
    const CBracketTranslation translation;
    CScript script;
    script.Do({Open("[Output]/[Measure]")});
    LookAtType(script, kDifference);
    for (int nFrom = 0; nFrom < 5; ++nFrom) {
        for (int nTo = 0; nTo < 5; ++nTo) {
            script.Do({Select("measurement-type", nFrom), Select("measurement-type", nTo)});
            LookAtType(script, nTo);
        }
    }
    gRunWizard(std::move(script));
}

TEST_F(MeasureModes, TheOtherTextsAreThoseOfTheTemplate)
{
    const CBracketTranslation translation;
    gRunWizard(CScript()
                   .Do({Open("[Output]/[Measure]")})
                   .Look({look::Label("analysis-type", "Anal&ysis type:"),
                          look::Entries("analysis-type", {"DC", "AC", "Transient"}),
                          look::Label("result-name", "&Measurement result name:"),
                          look::Label("measurement-type", "Measurement &type:"),
                          look::Entries("measurement-type",
                                        {kTypes[0], kTypes[1], kTypes[2], kTypes[3], kTypes[4]}),
                          look::Text("suppress-printing", "Su&ppress printing"),
                          look::Checked("suppress-printing", 0),
                          look::Text("optimization-group", "Optimization"),
                          look::Label("goal", "&Goal (0):"),
                          look::Label("minimum-value", "Minimum &value (1.0e-12):"),
                          look::Label("weight", "&Weight (1):")})
                   .Then([](CDialog& rDialog) {
                       const std::map<std::string, TKeys> buttons{
                           {"trigger-mode", {"&At", "W&hen"}},
                           {"find-choice", {"&x-value", "V&alue"}},
                           {"when-row", {"x-val&ue", "&Signal", "Signa&l"}}};
                       for (const auto& [sKey, captions] : buttons) {
                           TKeys found;
                           for (const CButton* const pButton : gFindField(rDialog, sKey).radios)
                               found.emplace_back(pButton->GetWindowText().GetString());
                           EXPECT_EQ(found, captions) << sKey;
                       }
                       const CWnd* const pAnd = gFindField(rDialog, "first-signal").pUnit;
                       ASSERT_TRUE(pAnd);
                       EXPECT_EQ(pAnd->GetWindowText(), "and");
                   }));
}

TEST_F(MeasureModes, EveryCrossingListHasTheSameEntriesAndStartsOnTheFirst)
{
    CScript script;
    script.Do({Open(kPath)});
    for (const char* const pEvent : {"trigger", "target", "value-row", "signal-row"}) {
        const std::string sKey = std::string(pEvent) + "-crossing-";
        script.Look({look::Entries(sKey + "kind", {"crossing", "rise", "fall"}),
                     look::Selected(sKey + "kind", 0),
                     look::Entries(sKey + "number",
                                   {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "last"}),
                     look::Selected(sKey + "number", 0)});
    }
    gRunWizard(std::move(script));
}

// --- the kinds of signal statistics and error functions

TEST_F(MeasureModes, TheKindsAreFilledInAnewAndTranslatedWithTheirType)
{
    const CBracketTranslation translation;
    const TKeys statistics{"[x at maximum]", "[x at minimum]", "[Average]",      "[Integral]",
                           "[Maximum]",      "[Minimum]",      "[Peak-to-peak]", "[RMS]"};
    const TKeys errors{"[err]", "[err1]", "[err2]", "[err3]"};
    gRunWizard(CScript()
                   .Do({Open("[Output]/[Measure]"), Select("measurement-type", kStatistics)})
                   .Look({look::Entries("kind", statistics), look::Selected("kind", 0)})
                   .Do({Select("kind", 3), Select("measurement-type", kErrorFunction)})
                   .Look({look::Entries("kind", errors), look::Selected("kind", 0)})
                   .Do({Select("kind", 3), Select("measurement-type", kErrorFunction)})
                   .Look({look::Selected("kind", 0)})
                   .Do({Select("kind", 2), Select("measurement-type", kDifference),
                        Select("measurement-type", kStatistics)})
                   .Look({look::Entries("kind", statistics), look::Selected("kind", 0)}));
}

TEST_F(MeasureModes, MaximumAndMinimumReportAnotherSignalAndTheOthersDoNot)
{
    const CBracketTranslation translation;
    CScript script;
    script.Do({Open("[Output]/[Measure]"), Select("measurement-type", kStatistics)});
    for (int nFrom = 0; nFrom < 8; ++nFrom) {
        for (int nTo = 0; nTo < 8; ++nTo) {
            const bool bReports = nTo == 4 || nTo == 5;
            script.Do({Select("kind", nFrom), Select("kind", nTo)})
                .Look({look::Label("output-signal",
                                   bReports ? "[Mea&sured signal:]" : "[Output &signal:]"),
                       look::Shown("reported-signal", bReports),
                       look::Label("reported-signal", "[O&utput signal:]")});
        }
    }
    gRunWizard(std::move(script));
}

TEST_F(MeasureModes, AStatisticChosenAnewHidesTheReportedSignal)
{
    const CBracketTranslation translation;
    gRunWizard(CScript()
                   .Do({Open("[Output]/[Measure]"), Select("measurement-type", kStatistics),
                        Select("kind", 4), Select("measurement-type", kStatistics)})
                   .Look({look::Selected("kind", 0), look::Shown("reported-signal", false),
                          look::Label("output-signal", "[Output &signal:]")}));
}

TEST_F(MeasureModes, AChoiceAmongErrorFunctionsShowsNoReportedSignal)
{
    gRunWizard(
        CScript()
            .Do({Open(kPath), Select("measurement-type", kErrorFunction), Select("kind", 3)})
            .Look({look::Shown("reported-signal", false), look::Shown("output-signal", false)}));
}

TEST_F(MeasureModes, AReportedSignalIsIgnoredByAnAverageAndRememberedAllTheSame)
{
    const auto outcome = gRunWizard(
        CScript()
            .Do({Open(kPath), Set("result-name", "m"), Select("measurement-type", kStatistics),
                 Select("kind", "Maximum"), Set("output-signal", "v(a)"),
                 Set("reported-signal", "v(b)"), Select("kind", "Average")})
            .Look({look::Shown("reported-signal", false)})
            .Do({Insert()}));
    EXPECT_EQ(outcome.inserted, std::vector<std::string>{".measure dc m avg v(a)"});
    gRunWizard(
        CScript()
            .Do({Open(kPath)})
            .Look({look::Text("measurement-type", "Signal statistics"),
                   look::Text("kind", "x at maximum"), look::Text("reported-signal", "v(b)")}));
}

// --- what the radio buttons enable

TEST_F(MeasureModes, TheTriggerIsAtAValueOrWhenASignalCrossesOne)
{
    CScript script;
    script.Do({Open(kPath)}).Look({look::Checked("trigger-mode", 0)});
    for (const int nMode : {0, 1, 0, 1, 1, 0}) {
        script.Do({Choose("trigger-mode", nMode)})
            .Look({look::Enabled("at-value", nMode == 0)})
            .Look(Enabled(kTriggerFields, nMode == 1))
            .Look(Enabled(kTargetFields, true));
    }
    gRunWizard(std::move(script));
}

TEST_F(MeasureModes, ThePageOpensWithAValueFoundAtAPoint)
{
    gRunWizard(CScript()
                   .Do({Open(kPath)})
                   .Look({look::Enabled("at-value")})
                   .Look(Enabled(kTriggerFields, false))
                   .Do({Select("measurement-type", kFindWhen)})
                   .Look({look::Checked("find-choice", 1), look::Checked("when-row", 0),
                          look::Enabled("find-signal"), look::Enabled("when-x-value")})
                   .Look(Enabled(kValueFields, false))
                   .Look(Enabled(kSignalFields, false)));
}

TEST_F(MeasureModes, EachRowOfWhenEnablesItsFieldsAlone)
{
    CScript script;
    script.Do({Open(kPath), Select("measurement-type", kFindWhen)});
    for (const int nFrom : {0, 1, 2}) {
        for (const int nTo : {0, 1, 2}) {
            script.Do({Choose("when-row", nFrom), Choose("when-row", nTo)})
                .Look({look::Enabled("when-x-value", nTo == 0), FindXEnabled(nTo != 0),
                       look::Enabled("find-signal")})
                .Look(Enabled(kValueFields, nTo == 1))
                .Look(Enabled(kSignalFields, nTo == 2));
        }
    }
    gRunWizard(std::move(script));
}

TEST_F(MeasureModes, FindingAPointDisablesTheSignalToBeFoundAndNothingElse)
{
    gRunWizard(CScript()
                   .Do({Open(kPath), Select("measurement-type", kFindWhen), Choose("when-row", 1),
                        Choose("find-choice", 0)})
                   .Look({look::Enabled("find-signal", false)})
                   .Look(Enabled(kValueFields, true))
                   .Do({Choose("find-choice", 1)})
                   .Look({look::Enabled("find-signal")}));
}

TEST_F(MeasureModes, AChoiceOfARowOfSignalsKeepsWhatIsFound)
{
    gRunWizard(CScript()
                   .Do({Open(kPath), Select("measurement-type", kFindWhen), Choose("when-row", 1),
                        Choose("find-choice", 0), Choose("when-row", 2)})
                   .Look({look::Checked("find-choice", 0), look::Enabled("find-signal", false)}));
}

TEST_F(MeasureModes, AtAPointOnlyAValueCanBeFound)
{
    gRunWizard(CScript()
                   .Do({Open(kPath), Select("measurement-type", kFindWhen), Choose("when-row", 2),
                        Choose("find-choice", 0), Choose("when-row", 0)})
                   .Look({look::Checked("find-choice", 1), look::Enabled("find-signal"),
                          FindXEnabled(false)})
                   .Refused(Choose("find-choice", 0), EStepEnd::Refused, EUserResult::Disabled));
}

TEST_F(MeasureModes, TextsInHiddenAndDisabledFieldsHaveNoEffectAndAreRemembered)
{
    const auto outcome = gRunWizard(
        CScript()
            .Do({Open(kPath)})
            .Fill({"result-name=f", "at-value=1", "target-signal=s", "measurement-type=Find-when",
                   "when-row=#2", "signal-row-first-signal=v(b)", "when-row=#0", "find-signal=v(a)",
                   "when-x-value=2"})
            .Do({Insert()}));
    EXPECT_EQ(outcome.inserted, std::vector<std::string>{".measure dc f find v(a) at=2"});
    gRunWizard(CScript()
                   .Do({Open(kPath)})
                   .Look({look::Text("at-value", "1"), look::Text("target-signal", "s"),
                          look::Text("signal-row-first-signal", "v(b)")}));
}

// --- letters

TEST_F(MeasureModes, LettersLeadToTheFieldsThatTheTypeShows)
{
    gRunWizard(CScript()
                   .Do({Open(kPath), Key("alt+x")})
                   .Look({look::Focused("at-value")})
                   .Do({Key("alt+h")})
                   .Look({look::Checked("trigger-mode", 1)})
                   .Do({Key("alt+s")})
                   .Look({look::Focused("trigger-signal")})
                   .Do({Select("measurement-type", kErrorFunction), Key("alt+n")})
                   .Look({look::Focused("second-signal")}));
}

TEST_F(MeasureModes, AnArrowGoesFromRowToRowOfWhenAndTabThroughTheFieldsOfTheRow)
{
    gRunWizard(
        CScript()
            .Do({Open(kPath), Select("measurement-type", kFindWhen), Key("alt+u"), Key("down")})
            .Look({look::Checked("when-row", 1)})
            .Do({Key("tab")})
            .Look({look::Focused("when-signal")})
            .Do({Key("tab")})
            .Look({look::Focused("when-value")}));
}
} // namespace
