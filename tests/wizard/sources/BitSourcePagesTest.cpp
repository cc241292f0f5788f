#include "support/Look.h"
#include "support/Steps.h"
#include "wizard/sources/SourcePageRun.h"

namespace
{
using BitSourcePages = PageTest;

constexpr const char* kCurrent = "Current source/Bit";
constexpr const char* kVoltage = "Voltage source/Bit";

const TFieldValues kCommon{"name=1", "positive-terminal=a", "bit-stream=0110"};

TEST_F(BitSourcePages, BuildTheLine)
{
    gExpectLinesOfBoth(
        "Bit", kCommon,
        {
            {"without a parameter the parenthesis closes right behind the brace",
             {},
             "1 a GND BIT ({0110})",
             ""},
            {"between two nodes", {"negative-terminal=b"}, "1 a b BIT ({0110})", ""},
            {"a DC value", {"dc-value=0"}, "1 a GND dc 0 BIT ({0110})", ""},
            {"all parameters, in the line's order and not in that of the controls",
             {"on-value=1", "off-value=2", "pulse-width=3", "low-time=4", "high-time=5", "delay=6",
              "rise-time=7", "fall-time=8"},
             "1 a GND BIT ({0110} pw=3 lt=4 ht=5 on=1 off=2 rt=7 ft=8 delay=6)",
             ""},
            {"an empty parameter goes with its keyword",
             {"off-value=2", "low-time=4", "fall-time=8"},
             "1 a GND BIT ({0110} lt=4 off=2 ft=8)",
             ""},
            {"magnitude and phase",
             {"ac-magnitude=1", "ac-phase=90"},
             "1 a GND BIT ({0110}) AC 1 90",
             ""},
            {"a magnitude alone", {"ac-magnitude=1"}, "1 a GND BIT ({0110}) AC 1", ""},
            {"nothing holds the place of the magnitude before a phase",
             {"ac-phase=90"},
             "1 a GND BIT ({0110}) AC 90",
             ""},
            {"a rounding", {"rounding=1p"}, "1 a GND BIT ({0110}) ROUND=1p", ""},
            {"the rounding stands behind the AC part",
             {"ac-magnitude=1", "ac-phase=90", "rounding=1p", "dc-value=2", "delay=6"},
             "1 a GND dc 2 BIT ({0110} delay=6) AC 1 90 ROUND=1p",
             ""},
            {"name, positive terminal and bit stream are trimmed at both ends",
             {"name= 1 ", "positive-terminal= a ", "bit-stream= 01 10 "},
             "1 a GND BIT ({01 10})",
             ""},
            {"nothing else is trimmed",
             {"negative-terminal= b ", "dc-value= 1 ", "on-value= 2 ", "off-value= 3 ",
              "pulse-width= 4 ", "low-time= 5 ", "high-time= 6 ", "rise-time= 7 ", "fall-time= 8 ",
              "delay= 9 ", "ac-magnitude= m ", "ac-phase= p ", "rounding= r "},
             "1 a  b  dc  1  BIT ({0110} pw= 4  lt= 5  ht= 6  on= 2  off= 3  rt= 7  ft= 8  "
             "delay= 9 ) AC  m   p  ROUND= r ",
             ""},
            {"blanks are a negative terminal, and other fields of blanks have a text",
             {"negative-terminal=  ", "ac-phase= ", "rounding= "},
             "1 a    BIT ({0110}) AC   ROUND= ",
             ""},
            {"the stream goes through as typed",
             {"bit-stream=x}2,{warm"},
             "1 a GND BIT ({x}2,{warm})",
             ""},
        });
}

TEST_F(BitSourcePages, CheckTheFieldsInTheirOrder)
{
    gExpectLinesOfBoth(
        "Bit", {},
        {
            {"nothing", {}, "", "[Missing @ source name.]"},
            {"a name of blanks",
             {"name=  ", "positive-terminal=a", "bit-stream=1"},
             "",
             "[Missing @ source name.]"},
            {"a name alone", {"name=1"}, "", "[Missing positive terminal name.]"},
            {"a positive terminal of blanks",
             {"name=1", "positive-terminal= ", "bit-stream=1"},
             "",
             "[Missing positive terminal name.]"},
            {"no bit stream", {"name=1", "positive-terminal=a"}, "", "[Missing bit stream.]"},
            {"a bit stream of blanks",
             {"name=1", "positive-terminal=a", "bit-stream=  ", "on-value=1"},
             "",
             "[Missing bit stream.]"},
        });
}

TEST_F(BitSourcePages, PutTheirLetterInFrontUnlessTheNameBeginsWithIt)
{
    gExpectOneLetter("Bit", kCommon, " a GND BIT ({0110})");
}

TEST_F(BitSourcePages, RememberWhatTheyBuiltWithTheGroundFilledIn)
{
    TFieldValues shown{"ac-magnitude=1", "ac-phase=2",    "rounding=3",   "on-value=5",
                       "off-value=6",    "pulse-width=7", "low-time=8",   "high-time=9",
                       "delay=10",       "rise-time=11",  "fall-time=12", "dc-value=13"};
    TFieldValues typed = shown;
    typed.insert(typed.end(), {"name= n ", "positive-terminal= a ", "bit-stream= 01 "});
    shown.insert(shown.end(),
                 {"name=n", "positive-terminal=a", "bit-stream=01", "negative-terminal=GND"});
    const TFieldValues refused{"name=m", "rounding=4", "bit-stream="};
    gExpectRemembered("Bit", typed, refused, shown);
}

TEST_F(BitSourcePages, KeepInTheControlsWhatWasTyped)
{
    CScript script;
    script.Do({steps::Open(kCurrent)}).Fill(kCommon).Fill({"name= 1 "}).Do({steps::Insert()});
    gRunWizard(
        std::move(script.Look({look::Text("name", " 1 "), look::Text("negative-terminal", "")})));
}

TEST_F(BitSourcePages, KeepTheLineBeforeWhenTheyRefuse)
{
    gExpectKeptByBoth("Bit", {"positive-terminal=a", "bit-stream=1"});
    gExpectKeptByBoth("Bit", {"name=1", "bit-stream=1"});
    gExpectKeptByBoth("Bit", {"name=1", "positive-terminal=a"});
}

TEST_F(BitSourcePages, ShowTheirFieldsWithTheirUnits)
{
    EXPECT_EQ(gShownBy("CCurrentSourceBitPage"), R"(
'BIT source'
  name: &Current source name:
  positive-terminal: &Positive terminal:
  negative-terminal: &Negative terminal:
'AC values'
  ac-magnitude: &Magnitude: [A]
  ac-phase: P&hase (0): [deg]
'Corner smoothing'
  rounding: &Rounding (0): [sec]
'Waveform:'
  bit-stream: &Bit stream:
  on-value: &ON value (1e-3): [A]
  off-value: O&FF value (0): [A]
'&DC value'
  dc-value
  '(default is the time=0 value of the transient waveform)'
'Pulse'
  pulse-width: P&ulse width (10n): [sec]
  low-time: &Low time (10n): [sec]
  high-time: Hi&gh time (10n): [sec]
  delay: D&elay (0): [sec]
  rise-time: Ri&se time (1n): [sec]
  fall-time: F&all time (1n): [sec]
)");
    EXPECT_EQ(gShownBy("CVoltageSourceBitPage"), R"(
'BIT source'
  name: &Voltage source name:
  positive-terminal: &Positive terminal:
  negative-terminal: &Negative terminal:
'AC values'
  ac-magnitude: &Magnitude: [V]
  ac-phase: P&hase (0): [deg]
'Corner smoothing'
  rounding: &Rounding (0): [sec]
'Waveform:'
  bit-stream: &Bit stream:
  on-value: &ON value (5): [V]
  off-value: O&FF value (0): [V]
'&DC value'
  dc-value
  '(default is the time=0 value of the transient waveform)'
'Pulse'
  pulse-width: P&ulse width (10n): [sec]
  low-time: &Low time (10n): [sec]
  high-time: Hi&gh time (10): [sec]
  delay: D&elay (0): [sec]
  rise-time: Ri&se time (1n): [sec]
  fall-time: F&all time (1n): [sec]
)");
}

TEST_F(BitSourcePages, ShowNothingOfTheDefaultsInTheirLabels)
{
    for (const char* const pPage : {kCurrent, kVoltage})
        gRunWizard(CScript()
                       .Do({steps::Open(pPage)})
                       .Look({look::Text("on-value", ""), look::Text("high-time", ""),
                              look::Text("negative-terminal", "")}));
}
} // namespace
