#include "support/Look.h"
#include "support/Steps.h"
#include "wizard/sources/SourcePageRun.h"

namespace
{
using SinusoidalSourcePages = PageTest;

const TFieldValues kCommon{"name=1", "positive-terminal=a"};

/// The message of this page in brackets where it is translated.
void ExpectRefused(const TFieldValues& rCommon, const std::vector<TSourceCase>& rCases)
{
    gExpectLines("Voltage source/Sinusoidal", rCommon, rCases);
    std::vector<TSourceCase> translated = rCases;
    for (TSourceCase& rCase : translated) {
        if (const std::size_t nAt = rCase.sMessage.find("voltage"); nAt != std::string::npos)
            rCase.sMessage.replace(nAt, 7, "current");
        rCase.sMessage = '[' + rCase.sMessage + ']';
    }
    gExpectLines("Current source/Sinusoidal", rCommon, translated);
}

TEST_F(SinusoidalSourcePages, BuildTheLineOfASimpleWave)
{
    gExpectLinesOfBoth(
        "Sinusoidal", kCommon,
        {
            {"nothing but name and positive terminal", {}, "1 a GND SIN ()", ""},
            {"an offset alone", {"offset=2"}, "1 a GND SIN (2)", ""},
            {"an amplitude", {"peak-amplitude=1"}, "1 a GND SIN (0 1)", ""},
            {"an amplitude behind an offset",
             {"offset=2", "peak-amplitude=1"},
             "1 a GND SIN (2 1)",
             ""},
            {"amplitude and frequency",
             {"peak-amplitude=1", "frequency=1k"},
             "1 a GND SIN (0 1 1k)",
             ""},
            {"all three",
             {"offset=2", "peak-amplitude=1", "frequency=1k"},
             "1 a GND SIN (2 1 1k)",
             ""},
            {"between two nodes", {"negative-terminal=b"}, "1 a b SIN ()", ""},
            {"the DC value stands before the waveform", {"dc-value=2"}, "1 a GND dc 2 SIN ()", ""},
            {"AC values", {"ac-magnitude=1", "ac-phase=90"}, "1 a GND SIN () AC 1 90", ""},
            {"a magnitude alone", {"ac-magnitude=1"}, "1 a GND SIN () AC 1", ""},
            {"a phase alone takes the place of the magnitude",
             {"ac-phase=90"},
             "1 a GND SIN () AC 90",
             ""},
        });
}

TEST_F(SinusoidalSourcePages, FillThePlacesBeforeDelayDampingAndPhaseAdvance)
{
    gExpectLinesOfBoth(
        "Sinusoidal", {"name=1", "positive-terminal=a", "peak-amplitude=1", "frequency=1k"},
        {
            {"a delay alone", {"delay=2n"}, "1 a GND SIN (0 1 1k 2n)", ""},
            {"a damping alone", {"damping=3"}, "1 a GND SIN (0 1 1k 0 3)", ""},
            {"a phase advance", {"phase-advance=45"}, "1 a GND SIN (0 1 1k 0 0 45)", ""},
            {"delay and damping", {"delay=2n", "damping=3"}, "1 a GND SIN (0 1 1k 2n 3)", ""},
            {"delay and phase advance",
             {"delay=2n", "phase-advance=45"},
             "1 a GND SIN (0 1 1k 2n 0 45)",
             ""},
            {"damping and phase advance",
             {"damping=3", "phase-advance=45"},
             "1 a GND SIN (0 1 1k 0 3 45)",
             ""},
            {"all",
             {"offset=5", "delay=2n", "damping=3", "phase-advance=45"},
             "1 a GND SIN (5 1 1k 2n 3 45)",
             ""},
        });
}

TEST_F(SinusoidalSourcePages, CheckTheFieldsInTheirOrderThatOfAVoltageSourceInEnglishAlways)
{
    ExpectRefused({}, {
                          {"nothing", {}, "", "Missing voltage source name."},
                          {"a name of blanks",
                           {"name= ", "positive-terminal=a"},
                           "",
                           "Missing voltage source name."},
                          {"no positive terminal",
                           {"name=1", "positive-terminal= ", "frequency=1k"},
                           "",
                           "Missing positive terminal name."},
                      });
}

TEST_F(SinusoidalSourcePages, DemandAmplitudeAndFrequencyThatOfAVoltageSourceInEnglishAlways)
{
    const char* const pAmplitude = "Missing peak amplitude.";
    const char* const pFrequency = "Missing frequency value.";
    ExpectRefused(
        kCommon,
        {
            {"a frequency alone", {"frequency=1k"}, "", pAmplitude},
            {"a delay alone", {"delay=1"}, "", pAmplitude},
            {"a damping alone", {"damping=1"}, "", pAmplitude},
            {"a phase advance alone", {"phase-advance=1"}, "", pAmplitude},
            {"a delay and a frequency", {"delay=1", "frequency=1k"}, "", pAmplitude},
            {"a delay and an amplitude", {"delay=1", "peak-amplitude=1"}, "", pFrequency},
            {"a damping and an amplitude", {"damping=1", "peak-amplitude=1"}, "", pFrequency},
            {"a phase advance and an amplitude",
             {"phase-advance=1", "peak-amplitude=1"},
             "",
             pFrequency},
        });
}

TEST_F(SinusoidalSourcePages, ThatOfACurrentSourceTrimsNamePositiveTerminalAndDCValueOnTheLeft)
{
    gExpectLines("Current source/Sinusoidal", kCommon,
                 {
                     {"trimmed on the left",
                      {"name= 1 ", "positive-terminal= a ", "dc-value= 2 "},
                      "I1  a  GND dc 2  SIN ()",
                      ""},
                     {"a DC value of a blank is none", {"dc-value= "}, "I1 a GND SIN ()", ""},
                 });
}

TEST_F(SinusoidalSourcePages, ThatOfAVoltageSourceTrimsNameAndPositiveTerminalAtBothEnds)
{
    gExpectLines(
        "Voltage source/Sinusoidal", kCommon,
        {
            {"trimmed at both ends", {"name= 1 ", "positive-terminal= a "}, "V1 a GND SIN ()", ""},
            {"a DC value of a blank is a value", {"dc-value= "}, "V1 a GND dc   SIN ()", ""},
            {"the DC value stays as typed", {"dc-value= 2 "}, "V1 a GND dc  2  SIN ()", ""},
        });
}

TEST_F(SinusoidalSourcePages, TrimNothingElse)
{
    gExpectLinesOfBoth(
        "Sinusoidal", kCommon,
        {
            {"a negative terminal of blanks is not replaced",
             {"negative-terminal=  "},
             "1 a    SIN ()",
             ""},
            {"as typed",
             {"offset= 1 ", "peak-amplitude= 2 ", "frequency= 3 ", "delay= 4 ", "damping= 5 ",
              "phase-advance= 6 ", "ac-magnitude= 7 ", "ac-phase= 8 "},
             "1 a GND SIN ( 1   2   3   4   5   6 ) AC  7   8 ",
             ""},
            {"blanks are values",
             {"peak-amplitude= ", "frequency= ", "delay= "},
             "1 a GND SIN (0      )",
             ""},
        });
}

TEST_F(SinusoidalSourcePages, DoubleACapitalLetterOfTheNameUnlessItIsTheWholeName)
{
    gExpectLines("Current source/Sinusoidal", kCommon,
                 {
                     {"small", {"name=i1"}, "i1 a GND SIN ()", ""},
                     {"small and alone", {"name=i"}, "i a GND SIN ()", ""},
                     {"capital", {"name=I1"}, "II1 a GND SIN ()", ""},
                     {"capital and alone", {"name=I"}, "I a GND SIN ()", ""},
                     {"capital before a blank, which stays", {"name=I "}, "II  a GND SIN ()", ""},
                     {"the other source's", {"name=v1"}, "Iv1 a GND SIN ()", ""},
                 });
    gExpectLines("Voltage source/Sinusoidal", kCommon,
                 {
                     {"small", {"name=v1"}, "v1 a GND SIN ()", ""},
                     {"small and alone", {"name=v"}, "v a GND SIN ()", ""},
                     {"capital", {"name=V1"}, "VV1 a GND SIN ()", ""},
                     {"capital and alone", {"name=V"}, "V a GND SIN ()", ""},
                     {"capital before a blank, which goes", {"name=V "}, "V a GND SIN ()", ""},
                     {"the other source's", {"name=i1"}, "Vi1 a GND SIN ()", ""},
                 });
}

TEST_F(SinusoidalSourcePages, LeaveTheLineSoFarWhenAmplitudeOrFrequencyIsMissing)
{
    gExpectLeftByBoth("Sinusoidal", {"name=1", "positive-terminal=a", "frequency=1k"},
                      "1 a GND SIN (");
    // Meant: an offset is there, but none holds the place of an empty one.
    gExpectLeftByBoth("Sinusoidal",
                      {"name=1", "positive-terminal=a", "offset=2", "dc-value=3", "delay=1"},
                      "1 a GND dc 3 SIN (2");
    gExpectLeftByBoth("Sinusoidal",
                      {"name=1", "positive-terminal=a", "peak-amplitude=2", "delay=1"},
                      "1 a GND SIN (");
}

TEST_F(SinusoidalSourcePages, KeepTheLineBeforeWhenAFieldIsMissing)
{
    gExpectKeptByBoth("Sinusoidal", {"positive-terminal=a"});
    gExpectKeptByBoth("Sinusoidal", {"name=1"});
}

TEST_F(SinusoidalSourcePages, RememberWhatTheyBuiltWithThePlacesFilledIn)
{
    const TFieldValues inserted{"name=1",       "positive-terminal=a", "peak-amplitude=1",
                                "frequency=1k", "phase-advance=45",    "ac-magnitude=2",
                                "ac-phase=3",   "dc-value=4"};
    TFieldValues shown = inserted;
    // Meant: the offset's place is filled in the line alone.
    shown.insert(shown.end(), {"negative-terminal=GND", "offset=", "delay=0", "damping=0"});
    gExpectRemembered("Sinusoidal", inserted, {"peak-amplitude=", "offset=7", "damping=7"}, shown);
}

TEST_F(SinusoidalSourcePages, RememberTheDelayThatADampingNeeds)
{
    gExpectRemembered("Sinusoidal",
                      {"name=1", "positive-terminal=a", "offset=5", "peak-amplitude=1",
                       "frequency=1k", "damping=3"},
                      {"name="}, {"offset=5", "delay=0", "damping=3", "phase-advance="});
}

TEST_F(SinusoidalSourcePages, LeaveTheControlsAsTypedAndBuildTheSameAgain)
{
    const std::string sLine = "I1  a GND SIN (0 1 1k 0 0 45)";
    const auto outcome = gRunWizard(
        CScript()
            .Do({steps::Open("Current source/Sinusoidal")})
            .Fill({"name= 1 ", "positive-terminal=a", "peak-amplitude=1", "frequency=1k",
                   "phase-advance=45"})
            .Do({steps::Insert()})
            .Look({look::Text("name", " 1 "), look::Text("negative-terminal", ""),
                   look::Text("delay", ""), look::Text("damping", ""), look::Text("offset", "")})
            .Do({steps::Insert()}));
    EXPECT_EQ(outcome.inserted, (std::vector<std::string>{sLine, sLine}));
}

TEST_F(SinusoidalSourcePages, ShowTheirFieldsWithTheirUnits)
{
    EXPECT_EQ(gShownBy("CCurrentSourceSinusoidalPage"), R"(
'Sinusoidal waveform'
  'Name'
    name: &Current source name:
    positive-terminal: &Positive terminal:
    negative-terminal: &Negative terminal (GND):
  '&DC value'
    dc-value
    '(default is the time=0 value of the transient waveform)'
  'Waveform'
    offset: C&urrent offset (0): [A]
    peak-amplitude: P&eak amplitude: [A]
    frequency: &Frequency: [Hz]
    delay: Dela&y time (0): [sec]
    damping: D&amping factor (0): [1/sec]
    phase-advance: Pha&se advance (0): [deg]
  'AC values'
    ac-magnitude: &Magnitude: [A]
    ac-phase: P&hase: [deg]
)");
    EXPECT_EQ(gShownBy("CVoltageSourceSinusoidalPage"), R"(
'Sinusoidal waveform'
  'Name'
    name: &Voltage source name:
    positive-terminal: &Positive terminal:
    negative-terminal: &Negative terminal (GND):
  '&DC value'
    dc-value
    '(default is the time=0 value of the transient waveform)'
  'Waveform'
    offset: V&oltage offset (0): [V]
    peak-amplitude: P&eak amplitude: [V]
    frequency: &Frequency: [Hz]
    delay: Dela&y time (0): [sec]
    damping: D&amping factor (0): [1/sec]
    phase-advance: Pha&se advance (0): [deg]
  'AC values'
    ac-magnitude: &Magnitude: [V]
    ac-phase: P&hase: [deg]
)");
}
} // namespace
