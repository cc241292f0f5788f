#include "platform/ui/FieldView.h"
#include "support/Look.h"
#include "support/SharedMnemonics.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"
#include "wizard/sources/SourcePageRun.h"

#include <array>

namespace
{
using namespace steps;
using VoltageControlledModes = PageTest;

/// What a mode shows: labels, translated ones in brackets; null where label and field are hidden.
struct TMode {
    const char* pFirst;
    const char* pSecond;
    const char* pGain;
    const char* pCoefficients;
    std::array<const char*, 4> further;
};

struct TTwin {
    const char* pPage;
    TMode modes[3];
    const char* pHiddenSecond; ///< the text of the second label where it is hidden
};

constexpr std::array<const char*, 4> kNone{};

const TTwin kTwins[] = {
    {"[Current source]/[Voltage-controlled]",
     {{"[&Controlling positive terminal:]", "[Con&trolling negative terminal (GND):]",
       "[T&ransconductance (in 1/Ohm):]", nullptr, kNone},
      {"[&Controlling positive terminal:]",
       "[Con&trolling negative terminal (GND):]",
       nullptr,
       "[Pol&ynomial coefficients:]",
       {"[Controllin&g positive terminal #2:]", "[Controlling negative ter&minal #2 (GND):]",
        "[Controlling po&sitive terminal #3:]", "[Controlling negative termin&al #3 (GND):]"}},
      {"[C&urrent expression:]", "[C&harge expression:]", nullptr, nullptr, kNone}},
     ""},
    {"[Voltage source]/[Voltage-controlled]",
     {{"[&Controlling positive terminal:]",
       "Con&trolling negative terminal (GND):", "[Volt&age gain:]", nullptr, kNone},
      {"[&Controlling positive terminal:]",
       "Con&trolling negative terminal (GND):",
       nullptr,
       "[Pol&ynomial coefficients:]",
       {"[Controllin&g positive terminal] #2:", "[Controlling negative ter&minal] #2 (GND):",
        "[Controlling po&sitive terminal] #3:", "[Controlling negative termin&al] #3 (GND):"}},
      {"[Volt&age expression:]", nullptr, nullptr, nullptr, kNone}},
     "Con&trolling negative terminal (GND):"},
};

constexpr std::array<const char*, 4> kFurther{"second-positive", "second-negative",
                                              "third-positive", "third-negative"};

/// The field and its label are shown, or both are hidden and the label says `pHidden`.
void LookAtField(CScript& rScript, const char* pKey, const char* pLabel, const char* pHidden = "")
{
    rScript.Look(
        {look::Shown(pKey, pLabel != nullptr), look::Label(pKey, pLabel ? pLabel : pHidden)});
}

/// The field alone, whose label may stand for another one.
CScript::TAction ShownAlone(const char* pKey, bool bShown)
{
    return [pKey, bShown](CDialog& rDialog) {
        EXPECT_EQ(gFindField(rDialog, pKey).pControl->IsWindowVisible(), bShown) << pKey;
    };
}

void LookAtMode(CScript& rScript, const TTwin& rTwin, int nMode)
{
    const TMode& rMode = rTwin.modes[nMode];
    rScript.Look({look::Checked("mode", nMode), look::Shown("name"),
                  look::Shown("positive-terminal"), look::Shown("negative-terminal")});
    LookAtField(rScript, "first-control-field", rMode.pFirst);
    LookAtField(rScript, "second-control-field", rMode.pSecond, rTwin.pHiddenSecond);
    for (std::size_t n = 0; n < kFurther.size(); ++n)
        LookAtField(rScript, kFurther[n], rMode.further[n]);
    // One label stands for the gain and the coefficients.
    const char* const pShared = rMode.pGain ? rMode.pGain : rMode.pCoefficients;
    rScript.Look({ShownAlone("gain", rMode.pGain), ShownAlone("coefficients", rMode.pCoefficients),
                  look::Label("gain", pShared ? pShared : ""),
                  look::Label("coefficients", pShared ? pShared : "")});
    rScript.Then([pShared](CDialog& rDialog) {
        EXPECT_EQ(gFindField(rDialog, "gain").pLabel->IsWindowVisible(), pShared != nullptr);
    });
}

TEST_F(VoltageControlledModes, EachShowsItsFieldsUnderTheirNames)
{
    const CBracketTranslation translation;
    for (const TTwin& rTwin : kTwins) {
        SCOPED_TRACE(rTwin.pPage);
        CScript script;
        script.Do({Open(rTwin.pPage)});
        LookAtMode(script, rTwin, 0);
        for (int nFrom = 0; nFrom < 3; ++nFrom) {
            for (int nTo = 0; nTo < 3; ++nTo) {
                script.Do({Choose("mode", nFrom), Choose("mode", nTo)});
                LookAtMode(script, rTwin, nTo);
            }
        }
        gRunWizard(std::move(script));
    }
}

TEST_F(VoltageControlledModes, TheRememberedOneIsShownInTheNextRun)
{
    const CBracketTranslation translation;
    const TFieldValues all{"name=1",  "positive-terminal=a", "first-control-field=c", "gain=1",
                           "mode=#1", "coefficients=1"};
    for (const TTwin& rTwin : kTwins) {
        SCOPED_TRACE(rTwin.pPage);
        const auto outcome = gRunWizard(
            CScript().Do({Open(rTwin.pPage)}).Fill(all).Do({Choose("mode", 2), Insert()}));
        EXPECT_EQ(outcome.inserted.size(), 1U);
        CScript next;
        next.Do({Open(rTwin.pPage)});
        LookAtMode(next, rTwin, 2);
        gRunWizard(std::move(next));
    }
}

TEST_F(VoltageControlledModes, SwitchingKeepsEveryText)
{
    const TFieldValues typed{"gain=7",
                             "mode=#1",
                             "coefficients=1",
                             "second-positive=e",
                             "second-negative=f",
                             "third-positive=g",
                             "third-negative=h"};
    for (const TTwin& rTwin : kTwins) {
        const CBracketTranslation translation;
        CScript script;
        script.Do({Open(rTwin.pPage)}).Fill(typed);
        for (const int nMode : {2, 0, 2, 1, 0})
            script.Do({Choose("mode", nMode)})
                .Look({look::Text("gain", "7"), look::Text("coefficients", "1"),
                       look::Text("second-positive", "e"), look::Text("second-negative", "f"),
                       look::Text("third-positive", "g"), look::Text("third-negative", "h")});
        gRunWizard(std::move(script));
    }
}

TEST_F(VoltageControlledModes, TheExpressionsStandInTheControllingTerminalsAfterASwitchToLinear)
{
    gRunWizard(
        CScript()
            .Do({Open("Current source/Voltage-controlled"), Choose("mode", 2),
                 Set("first-control-field", "v(c)"), Set("second-control-field", "1n"),
                 Choose("mode", 0)})
            .Look({look::Text("first-control-field", "v(c)"),
                   look::Text("second-control-field", "1n"),
                   look::Label("first-control-field", "&Controlling positive terminal:"),
                   look::Label("second-control-field", "Con&trolling negative terminal (GND):")}));
}

TEST_F(VoltageControlledModes, TheExpressionOfAVoltageStandsInTheControllingTerminalToo)
{
    gRunWizard(CScript()
                   .Do({Open("Voltage source/Voltage-controlled"), Choose("mode", 2),
                        Set("first-control-field", "v(c)"), Choose("mode", 0)})
                   .Look({look::Text("first-control-field", "v(c)"),
                          look::Text("second-control-field", ""),
                          look::Label("first-control-field", "&Controlling positive terminal:"),
                          look::Shown("second-control-field")}));
}

TEST_F(VoltageControlledModes, TheArrowsGoAroundTheirButtonsAndNoFurther)
{
    for (const char* const pPage :
         {"Current source/Voltage-controlled", "Voltage source/Voltage-controlled"}) {
        CScript script;
        script.Do({Open(pPage), Choose("mode", 0), Focus("mode")});
        for (const auto& [pKey, nMode] :
             {std::pair{"down", 1}, {"down", 2}, {"down", 0}, {"up", 2}, {"right", 0}, {"left", 2}})
            script.Do({Key(pKey)}).Look({look::Checked("mode", nMode)});
        gRunWizard(std::move(script.Do({Key("tab")}).Look({look::Focused("first-control-field")})));
    }
}

TEST_F(VoltageControlledModes, TheLetterOfTheLabelGoesToTheFieldThatItStandsFor)
{
    gRunWizard(CScript()
                   .Do({Open("Current source/Voltage-controlled"), Key("alt+r")})
                   .Look({look::Focused("gain")})
                   .Do({Key("alt+p"), Key("alt+y")})
                   .Look({look::Checked("mode", 1), look::Focused("coefficients")}));
}

TEST_F(VoltageControlledModes, ReturnStartsANewLineInTheCoefficients)
{
    const auto outcome =
        gRunWizard(CScript()
                       .Do({Open("Voltage source/Voltage-controlled"), Choose("mode", 1),
                            Set("coefficients", "0"), Key("enter")})
                       .Look({look::Text("coefficients", "0\r\n")}));
    EXPECT_TRUE(outcome.inserted.empty());
}

TEST_F(VoltageControlledModes, NoTwoControlsShareALetterInAnyOfThem)
{
    for (const char* const pPage :
         {"Current source/Voltage-controlled", "Voltage source/Voltage-controlled"})
        for (const int nMode : {0, 1, 2})
            gRunWizard(
                CScript().Do({Open(pPage), Choose("mode", nMode)}).Then([](CDialog& rDialog) {
                    EXPECT_EQ(gSharedMnemonics(rDialog), "");
                }));
}

TEST_F(VoltageControlledModes, TheTemplateHoldsTheFieldsOfAll)
{
    EXPECT_EQ(gShownBy("CCurrentSourceVoltageControlledPage"), R"(
'Voltage-controlled current source'
  name: &VCCS name:
  positive-terminal: P&ositive terminal:
  negative-terminal: N&egative terminal (GND):
  'Sources'
    mode, first: &Linear
    mode, next: &Polynomial
    mode, next: &Non-linear expression
  first-control-field: &Controlling positive terminal:
  second-control-field: Con&trolling negative terminal (GND):
  gain: T&ransconductance (in 1/Ohm):
  coefficients (lines)
  second-positive: Controllin&g positive terminal #2:
  second-negative: Controlling negative ter&minal #2 (GND):
  third-positive: Controlling po&sitive terminal #3:
  third-negative: Controlling negative termin&al #3 (GND):
)");
    EXPECT_EQ(gShownBy("CVoltageSourceVoltageControlledPage"), R"(
'Voltage-controlled voltage source'
  name: &VCVS name:
  positive-terminal: P&ositive terminal:
  negative-terminal: N&egative terminal (GND):
  'Sources'
    mode, first: &Linear
    mode, next: &Polynomial
    mode, next: &Non-linear expression
  first-control-field: &Controlling positive terminal:
  second-control-field: Con&trolling negative terminal (GND):
  gain: Volt&age gain:
  coefficients (lines)
  second-positive: Controllin&g positive terminal #2:
  second-negative: Controlling negative ter&minal #2 (GND):
  third-positive: Controlling po&sitive terminal #3:
  third-negative: Controlling negative termin&al #3 (GND):
)");
}
} // namespace
