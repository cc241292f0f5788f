#include "platform/ui/Button.h"
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

constexpr const char* kPath = "Analysis/Transient";
constexpr int kStandard = 0;
constexpr int kRampup = 1;
constexpr int kPowerup = 2;
constexpr int kPreview = 3;

class TransientPage : public testing::Test
{
protected:
    TransientPage() { CRememberedBase::ResetAll(); }

    static std::vector<TStep> Times(const char* pStep, const char* pLength, const char* pStart = "")
    {
        return {Open(kPath), Set("maximum-time-step", pStep), Set("simulation-length", pLength),
                Set("output-start-time", pStart)};
    }
};

struct TCase {
    const char* pName;
    const char* pStep;
    const char* pLength;
    const char* pStart;
    int nMode;
    const char* pLine;
};

const TCase kCases[] = {
    {"the times alone", "1n", "100n", "", kStandard, ".tran 1n 100n"},
    {"rampup", "1n", "100n", "", kRampup, ".tran 1n 100n rampup"},
    {"powerup", "1n", "100n", "", kPowerup, ".tran 1n 100n powerup"},
    {"preview", "1n", "100n", "", kPreview, ".tran 1n 100n preview"},
    {"a start", "1n", "100n", "10n", kStandard, ".tran 1n 100n start=10n"},
    {"a mode and a start", "1n", "100n", "10n", kRampup, ".tran 1n 100n rampup start=10n"},
    {"a blank is a start", "1n", "100n", " ", kStandard, ".tran 1n 100n start= "},
    {"blanks are times, nothing is trimmed", " ", "  ", "", kStandard, ".tran     "},
    {"values with blanks around them", " 1n ", " 100n ", " 10n ", kStandard,
     ".tran  1n   100n  start= 10n "},
};

TEST_F(TransientPage, BuildsTheTranCommand)
{
    for (const TCase& rCase : kCases) {
        const auto outcome = gRunWizard(CScript()
                                            .Do(Times(rCase.pStep, rCase.pLength, rCase.pStart))
                                            .Do({Choose("mode", rCase.nMode), Insert()}));
        EXPECT_EQ(outcome.inserted, std::vector<std::string>{rCase.pLine}) << rCase.pName;
    }
}

TEST_F(TransientPage, BuildsTheTranCommandWithASweep)
{
    const auto outcome = gRunWizard(CScript()
                                        .Do(Times("1n", "100n", "10n"))
                                        .Do({Choose("mode", kPowerup)})
                                        .Do(Linear("sweep", "vdd", "1", "5", "1"))
                                        .Do({Insert()}));
    EXPECT_EQ(outcome.inserted, std::vector<std::string>{
                                    ".tran 1n 100n powerup start=10n sweep lin param vdd 1 5 1"});
}

TEST_F(TransientPage, ASweepThatWasAcceptedAndLeftByCancelStaysInUse)
{
    const auto outcome =
        gRunWizard(CScript()
                       .Do(Times("1n", "100n"))
                       .Do(Linear("sweep", "vdd", "1", "5", "1"))
                       .Do({Click("sweep"), Set("increment", "2"), Click("cancel"), Insert()}));
    EXPECT_EQ(outcome.inserted,
              std::vector<std::string>{".tran 1n 100n sweep lin param vdd 1 5 1"});
}

TEST_F(TransientPage, ABlankInTheOutputStartTimeIsNotEmpty)
{
    const auto outcome =
        gRunWizard({Open("Analysis/Transient"), Set("maximum-time-step", "1n"),
                    Set("simulation-length", "2n"), Set("output-start-time", " "), Insert()});
    EXPECT_EQ(outcome.inserted, std::vector<std::string>{".tran 1n 2n start= "});
}

TEST_F(TransientPage, ChecksTheTimeStepBeforeTheLength)
{
    const CBracketTranslation translation;
    const auto outcome =
        gRunWizard(CScript()
                       .Do({Open("[Analysis]/[Transient]"), Insert()})
                       .Do({Set("maximum-time-step", "1n"), Insert()})
                       .Do({Set("maximum-time-step", ""), Set("simulation-length", "1"), Insert()})
                       .Look({look::Command("")}));
    EXPECT_TRUE(outcome.inserted.empty());
    EXPECT_EQ(outcome.messages, (std::vector<std::string>{"[Missing maximum time step value.]",
                                                          "[Missing total simulation time value.]",
                                                          "[Missing maximum time step value.]"}));
}

TEST_F(TransientPage, ItsFieldsStandInTheOrderOfTheTemplate)
{
    gRunWizard(CScript().Do({Open("Analysis/Transient")}).Then([](CDialog& rDialog) {
        std::vector<std::string> keys;
        for (const TFieldView& rField : gCollectFields(gCurrentPane(rDialog)))
            keys.emplace_back(rField.sKey);
        EXPECT_EQ(keys,
                  (std::vector<std::string>{"mode-group", "mode", "maximum-time-step",
                                            "simulation-length", "output-start-time", "sweep-group",
                                            "sweep", "sweep-summary-1", "sweep-summary-2"}));
    }));
}

TEST_F(TransientPage, ItsTextsAreThoseOfTheTemplate)
{
    const CBracketTranslation translation;
    gRunWizard(
        CScript()
            .Do({Open("[Analysis]/[Transient]")})
            .Look({look::Text("mode-group", "Modes"),
                   look::Label("maximum-time-step", "&Maximum time step:"),
                   look::Label("simulation-length", "Sim&ulation length:"),
                   look::Label("output-start-time", "&Output start time (0):"),
                   look::Text("sweep-group", "Sweep"), look::Text("sweep", "&Sweep"),
                   look::Text("sweep-summary-1", "Not used"), look::Text("sweep-summary-2", "")})
            .Then([](CDialog& rDialog) {
                const char* const modes[] = {
                    "S&tandard (from DC op. point)",
                    "&Rampup simulation (pre-ramp DC sources to final values)",
                    "&Powerup simulation (ramp DC sources to final values)",
                    "P&review mode (view input signals)"};
                const TFieldView mode = gFindField(rDialog, "mode");
                ASSERT_EQ(mode.radios.size(), std::size(modes));
                for (std::size_t n = 0; n < std::size(modes); ++n)
                    EXPECT_EQ(mode.radios[n]->GetWindowText(), modes[n]);
                for (const char* pKey :
                     {"maximum-time-step", "simulation-length", "output-start-time"})
                    EXPECT_EQ(gFindField(rDialog, pKey).pUnit->GetWindowText(), "sec");
            }));
}

TEST_F(TransientPage, TheFirstRunShowsTheStandardModeAndNothingElse)
{
    gRunWizard(
        CScript()
            .Do({Open(kPath)})
            .Look({look::Checked("mode", kStandard), look::Text("maximum-time-step", ""),
                   look::Text("simulation-length", ""), look::Text("output-start-time", "")}));
}

TEST_F(TransientPage, TheNextRunShowsTheLastSuccess)
{
    gRunWizard(CScript().Do(Times(" 1n", "100n", "10n")).Do({Choose("mode", kPreview), Insert()}));
    gRunWizard(CScript()
                   .Do({Open(kPath)})
                   .Look({look::Checked("mode", kPreview), look::Text("maximum-time-step", " 1n"),
                          look::Text("simulation-length", "100n"),
                          look::Text("output-start-time", "10n")}));
}

TEST_F(TransientPage, AFailedAttemptChangesNoRememberedValueNotEvenTheMode)
{
    gRunWizard(CScript().Do(Times("1n", "100n")).Do({Choose("mode", kRampup), Insert()}));
    gRunWizard(CScript().Do(Times("2n", "", "5n")).Do({Choose("mode", kPreview), Insert()}));
    gRunWizard(
        CScript()
            .Do({Open(kPath)})
            .Look({look::Checked("mode", kRampup), look::Text("maximum-time-step", "1n"),
                   look::Text("simulation-length", "100n"), look::Text("output-start-time", "")}));
}

TEST_F(TransientPage, TwoModesShareALetterThatWalksBetweenThem)
{
    gRunWizard(CScript()
                   .Do({Open(kPath), Key("alt+r")})
                   .Then([](CDialog& rDialog) {
                       EXPECT_EQ(CWnd::GetFocus(), gFindField(rDialog, "mode").radios[kRampup]);
                   })
                   .Do({Key("alt+r")})
                   .Then([](CDialog& rDialog) {
                       EXPECT_EQ(CWnd::GetFocus(), gFindField(rDialog, "mode").radios[kPreview]);
                   }));
}

TEST_F(TransientPage, IsFilledInByTheKeyboard)
{
    const auto outcome =
        gRunWizard(CScript()
                       .Do(Times("1n", "100n"))
                       .Do({Key("alt+p"), Key("alt+s")})
                       .Look({look::Title("Sweep")})
                       .Do({Key("alt+m"), Set("parameter-name", "vdd"), Key("alt+r"),
                            Set("start", "1"), Key("tab")})
                       .Look({look::Focused("stop")})
                       .Do({Set("stop", "5"), Key("alt+c"), Set("increment", "1"), Key("alt+a")})
                       .Look({look::Focused("sweep")})
                       .Do({Key("alt+i")}));
    EXPECT_EQ(outcome.inserted,
              std::vector<std::string>{".tran 1n 100n powerup sweep lin param vdd 1 5 1"});
}
} // namespace
