#include "platform/ui/ComboBox.h"
#include "platform/ui/FieldView.h"
#include "support/Look.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"
#include "wizard/analysis/SweepSteps.h"
#include "wizard/frame/Remembered.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;

constexpr const char* kPath = "Analysis/AC";

class ACPage : public testing::Test
{
protected:
    ACPage() { CRememberedBase::ResetAll(); }

    static std::vector<TStep> Range(const char* pSamples, const char* pFrom, const char* pTo)
    {
        return {Set("number-of-samples", pSamples), Set("start-frequency", pFrom),
                Set("final-frequency", pTo)};
    }
    /// No user can take the selection away.
    static void SelectNothing(CDialog& rDialog)
    {
        dynamic_cast<CComboBox&>(*gFindField(rDialog, "sampling-type").pControl).SetCurSel(-1);
    }
};

// --- what a type shows

struct TTypeCase {
    const char* pType;
    const char* pSamples; ///< the labels; null where the field is hidden
    bool bRange;
    bool bList;
    bool bCount;
};

const TTypeCase kTypes[] = {
    {"linear", "[Fr&equencies per linear]", true, false, false},
    {"decade", "[Fr&equencies per decade]", true, false, false},
    {"octave", "[Fr&equencies per octave]", true, false, false},
    {"list", nullptr, false, true, false},
    {"poi", nullptr, false, true, true},
};

/// The field is hidden, or shown with this label.
void LookAtField(CScript& rScript, const char* pKey, bool bShown, const char* pLabel)
{
    rScript.Look({look::Shown(pKey, bShown), look::Label(pKey, bShown ? pLabel : "")});
}

void LookAtType(CScript& rScript, const TTypeCase& rCase)
{
    rScript.Look({look::Shown("samples-group", rCase.bRange),
                  look::Text("samples-group", rCase.pSamples ? rCase.pSamples : ""),
                  look::Shown("number-of-samples", rCase.bRange),
                  look::Shown("range-group", rCase.bRange),
                  look::Text("range-group", "Frequency range"), look::Shown("sampling-type"),
                  look::Shown("sweep-group"), look::Shown("sweep")});
    LookAtField(rScript, "start-frequency", rCase.bRange, "[F&rom:]");
    LookAtField(rScript, "final-frequency", rCase.bRange, "[&To:]");
    LookAtField(rScript, "list-of-values", rCase.bList,
                "[&List frequency values, separated by spaces:]");
    LookAtField(rScript, "count-of-listed-values", rCase.bCount,
                "[&Number of frequency values listed:]");
}

TEST_F(ACPage, EachSamplingTypeShowsItsFieldsWithTranslatedLabels)
{
    const CBracketTranslation translation;
    CScript script;
    script.Do({Open("[Analysis]/[AC]")});
    LookAtType(script, kTypes[0]);
    for (const TTypeCase& rFrom : kTypes) {
        for (const TTypeCase& rTo : kTypes) {
            script.Do({Select("sampling-type", rFrom.pType), Select("sampling-type", rTo.pType)});
            LookAtType(script, rTo);
        }
    }
    gRunWizard(std::move(script));
}

TEST_F(ACPage, ItsOtherTextsAreThoseOfTheTemplate)
{
    const CBracketTranslation translation;
    gRunWizard(
        CScript()
            .Do({Open("[Analysis]/[AC]")})
            .Look({look::Label("sampling-type", "&Frequency sampling type:"),
                   look::Entries("sampling-type", {"linear", "decade", "octave", "list", "poi"}),
                   look::Text("sweep-group", "Sweep"), look::Text("sweep", "&Sweep"),
                   look::Text("sweep-summary-1", "Not used"), look::Text("sweep-summary-2", "")}));
}

TEST_F(ACPage, SwitchingTheTypeKeepsWhatWasTypedInTheHiddenControls)
{
    gRunWizard(CScript()
                   .Do({Open(kPath)})
                   .Do(Range("10", "1", "1meg"))
                   .Do({Select("sampling-type", "poi"), Set("list-of-values", "1k\r\n2k"),
                        Set("count-of-listed-values", "2"), Select("sampling-type", "octave")})
                   .Look({look::Text("number-of-samples", "10"), look::Text("start-frequency", "1"),
                          look::Text("final-frequency", "1meg")})
                   .Do({Select("sampling-type", "poi")})
                   .Look({look::Text("list-of-values", "1k\r\n2k"),
                          look::Text("count-of-listed-values", "2")}));
}

TEST_F(ACPage, NoTypeAtAllShowsNoneOfTheDependentControls)
{
    gRunWizard(CScript().Do({Open(kPath)}).Then(SelectNothing).Do({Insert()}));
    const CBracketTranslation translation;
    CScript script;
    script.Do({Open("[Analysis]/[AC]")});
    LookAtType(script, {"", nullptr, false, false, false});
    gRunWizard(std::move(script));
}

// --- the command

struct TCase {
    const char* pName;
    const char* pType;
    std::vector<TStep> steps;
    std::vector<std::string> inserted;
    std::vector<std::string> messages;
};

const TCase kCases[] = {
    {"decade",
     "decade",
     {Set("number-of-samples", "10"), Set("start-frequency", "1"), Set("final-frequency", "1meg")},
     {".ac dec 10 1 1meg"},
     {}},
    {"octave",
     "octave",
     {Set("number-of-samples", "10"), Set("start-frequency", "1"), Set("final-frequency", "1meg")},
     {".ac oct 10 1 1meg"},
     {}},
    {"linear",
     "linear",
     {Set("number-of-samples", "100"), Set("start-frequency", "1"), Set("final-frequency", "100")},
     {".ac lin 100 1 100"},
     {}},
    {"list", "list", {Set("list-of-values", "1k\r\n2k")}, {".ac list 1k 2k"}, {}},
    {"poi",
     "poi",
     {Set("list-of-values", "1k\r\n2k"), Set("count-of-listed-values", "2")},
     {".ac poi 2 1k 2k"},
     {}},
    {"a range is trimmed on the left only",
     "linear",
     {Set("number-of-samples", " 9 "), Set("start-frequency", " 1 "),
      Set("final-frequency", " 2 ")},
     {".ac lin 9  1  2 "},
     {}},
    {"a list is trimmed on the left, and its last line end vanishes",
     "list",
     {Set("list-of-values", " \r\n1k\r\n2k\r\n")},
     {".ac list 1k 2k"},
     {}},
    {"a list keeps its last blank", "list", {Set("list-of-values", "1k ")}, {".ac list 1k "}, {}},
    {"a count is trimmed on the left only",
     "poi",
     {Set("list-of-values", " 1k"), Set("count-of-listed-values", " 1 ")},
     {".ac poi 1  1k"},
     {}},
    {"nothing in a range: the samples are missed first",
     "linear",
     {},
     {},
     {"[Missing number of frequency samples.]"}},
    {"blanks are no samples",
     "octave",
     {Set("number-of-samples", "  "), Set("start-frequency", "1"), Set("final-frequency", "2")},
     {},
     {"[Missing number of frequency samples.]"}},
    {"no start", "decade", {Set("number-of-samples", "10")}, {}, {"[Missing starting frequency.]"}},
    {"no final frequency",
     "decade",
     {Set("number-of-samples", "10"), Set("start-frequency", "1")},
     {},
     {"[Missing final frequency.]"}},
    {"no list", "list", {}, {}, {"[Missing list of frequency values.]"}},
    {"line ends are no list",
     "list",
     {Set("list-of-values", "\r\n \r\n")},
     {},
     {"[Missing list of frequency values.]"}},
    {"poi misses the list before the count",
     "poi",
     {},
     {},
     {"[Missing list of frequency values.]"}},
    {"poi without a count",
     "poi",
     {Set("list-of-values", "1k")},
     {},
     {"[Missing the number of frequency values listed.]"}},
};

TEST_F(ACPage, BuildsTheAcCommand)
{
    const CBracketTranslation translation;
    for (const TCase& rCase : kCases) {
        SCOPED_TRACE(rCase.pName);
        CRememberedBase::ResetAll();
        const auto outcome =
            gRunWizard(CScript()
                           .Do({Open("[Analysis]/[AC]"), Select("sampling-type", rCase.pType)})
                           .Do(rCase.steps)
                           .Do({Insert()}));
        EXPECT_EQ(outcome.inserted, rCase.inserted);
        EXPECT_EQ(outcome.messages, rCase.messages);
    }
}

TEST_F(ACPage, WithAllFieldsEmptyARangeReportsTheSamplesAndPoiTheList)
{
    for (const auto& [pType, pMessage] :
         {std::pair{"linear", "Missing number of frequency samples."},
          {"decade", "Missing number of frequency samples."},
          {"octave", "Missing number of frequency samples."},
          {"list", "Missing list of frequency values."},
          {"poi", "Missing list of frequency values."}}) {
        const auto outcome =
            gRunWizard({Open("Analysis/AC"), Select("sampling-type", pType), Insert()});
        EXPECT_TRUE(outcome.inserted.empty()) << pType;
        EXPECT_EQ(outcome.messages, std::vector<std::string>{pMessage}) << pType;
    }
}

TEST_F(ACPage, ASweepIsAppendedWhicheverSamplingTypeIsChosen)
{
    const auto outcome = gRunWizard(
        CScript()
            .Do({Open(kPath)})
            .Do(Range("100", "1", "100"))
            .Do({Click("sweep"), Select("sweep-type", "List"),
                 Select("parameter-type", "Temperature"), Set("list-of-values", "25\r\n75"),
                 Click("accept")})
            .Do({Insert(), Select("sampling-type", "decade"), Insert(),
                 Select("sampling-type", "octave"), Insert(), Select("sampling-type", "list"),
                 Set("list-of-values", "1k"), Insert(), Select("sampling-type", "poi"),
                 Set("count-of-listed-values", "1"), Insert()})
            .Then(SelectNothing)
            .Do({Insert()}));
    EXPECT_EQ(outcome.inserted, (std::vector<std::string>{".ac lin 100 1 100 sweep list temp 25 75",
                                                          ".ac dec 100 1 100 sweep list temp 25 75",
                                                          ".ac oct 100 1 100 sweep list temp 25 75",
                                                          ".ac list 1k sweep list temp 25 75",
                                                          ".ac poi 1 1k sweep list temp 25 75",
                                                          ".ac  sweep list temp 25 75"}));
}

TEST_F(ACPage, WithoutATypeTheTextStaysAcAndABlank)
{
    const auto outcome = gRunWizard(CScript().Do({Open(kPath)}).Then(SelectNothing).Do({Insert()}));
    EXPECT_EQ(outcome.inserted, std::vector<std::string>{".ac "});
    EXPECT_TRUE(outcome.messages.empty());
}

TEST_F(ACPage, AFailedAttemptLeavesAcAndABlankInTheRunsCommand)
{
    for (const char* pType : {"linear", "decade", "octave", "list", "poi"}) {
        SCOPED_TRACE(pType);
        const auto outcome = gRunWizard(CScript()
                                            .Do({Open(kPath), Select("sampling-type", pType)})
                                            .Do({Insert()})
                                            .Look({look::Command(".ac ")})
                                            .Do({Open("Analysis/Stability"), Insert()}));
        EXPECT_EQ(outcome.inserted, std::vector<std::string>{".ac "});
    }
}

TEST_F(ACPage, EnterStartsANewLineInTheListOfValues)
{
    const auto outcome = gRunWizard({Open(kPath), Select("sampling-type", "list"),
                                     Set("list-of-values", "1k"), Key("enter"), Insert()});
    EXPECT_EQ(outcome.inserted, std::vector<std::string>{".ac list 1k"});
}

// --- what is remembered

TEST_F(ACPage, TheFirstRunShowsTheLinearType)
{
    gRunWizard(CScript().Do({Open(kPath)}).Look({look::Text("sampling-type", "linear")}));
}

TEST_F(ACPage, TheNextRunShowsTheLastSuccessWithItsTypeAndAllFields)
{
    gRunWizard(CScript()
                   .Do({Open(kPath)})
                   .Do(Range(" 10", "1 ", "1meg"))
                   .Do({Select("sampling-type", "poi"), Set("list-of-values", " 1k\r\n2k\r\n"),
                        Set("count-of-listed-values", "2"), Insert()}));
    const CBracketTranslation translation;
    CScript script;
    script.Do({Open("[Analysis]/[AC]")})
        .Look({look::Text("sampling-type", "poi"), look::Text("number-of-samples", "10"),
               look::Text("start-frequency", "1 "), look::Text("final-frequency", "1meg"),
               look::Text("list-of-values", "1k\r\n2k\r\n"),
               look::Text("count-of-listed-values", "2")});
    LookAtType(script, kTypes[4]);
    gRunWizard(std::move(script));
}

TEST_F(ACPage, AFailedAttemptIsNotRemembered)
{
    gRunWizard(CScript()
                   .Do({Open(kPath)})
                   .Do(Range("10", "1", "1meg"))
                   .Do({Insert(), Select("sampling-type", "list"), Insert()}));
    gRunWizard(
        CScript()
            .Do({Open(kPath)})
            .Look({look::Text("sampling-type", "linear"), look::Text("number-of-samples", "10")}));
}

TEST_F(ACPage, TheGroupsLetterLeadsToTheEditInside)
{
    gRunWizard(CScript()
                   .Do({Open(kPath), Key("alt+e")})
                   .Look({look::Focused("number-of-samples")})
                   .Do({Key("alt+r")})
                   .Look({look::Focused("start-frequency")}));
}
} // namespace
