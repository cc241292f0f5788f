#include "wizard/sources/SourcePageRun.h"

namespace
{
using ExponentialSourcePages = PageTest;

const TFieldValues kCommon{"name=1", "positive-terminal=a", "initial=1", "peak=5"};

TEST_F(ExponentialSourcePages, BuildTheLine)
{
    gExpectLinesOfBoth(
        "Exponential", kCommon,
        {
            {"the levels alone", {}, "1 a GND EXP (1 5 0)", ""},
            {"between two nodes", {"negative-terminal=b"}, "1 a b EXP (1 5 0)", ""},
            {"the DC value stands before the waveform",
             {"dc-value=2"},
             "1 a GND dc 2 EXP (1 5 0)",
             ""},
            {"a rise delay", {"rise-delay=2n"}, "1 a GND EXP (1 5 2n)", ""},
            {"a rise time constant", {"rise-time-constant=1n"}, "1 a GND EXP (1 5 0 1n)", ""},
            {"and a fall delay",
             {"rise-time-constant=1n", "fall-delay=5n"},
             "1 a GND EXP (1 5 0 1n 5n)",
             ""},
            {"and a fall time constant",
             {"rise-delay=2n", "rise-time-constant=1n", "fall-delay=5n", "fall-time-constant=3n"},
             "1 a GND EXP (1 5 2n 1n 5n 3n)",
             ""},
            {"magnitude and phase",
             {"ac-magnitude=1", "ac-phase=90"},
             "1 a GND EXP (1 5 0) AC 1 90",
             ""},
            {"a magnitude alone is followed by a blank",
             {"ac-magnitude=1"},
             "1 a GND EXP (1 5 0) AC 1 ",
             ""},
            {"a phase alone takes the place of the magnitude",
             {"ac-phase=90"},
             "1 a GND EXP (1 5 0) AC 90",
             ""},
        });
}

TEST_F(ExponentialSourcePages, DemandWhatStandsBeforeAFall)
{
    const char* const pRise = "[Missing rise time constant specification.]";
    const char* const pFall = "[Missing fall time delay specification.]";
    gExpectLinesOfBoth("Exponential", kCommon,
                       {
                           {"a fall delay alone", {"fall-delay=1"}, "", pRise},
                           {"a fall time constant alone", {"fall-time-constant=1"}, "", pRise},
                           {"a fall time constant and a fall delay",
                            {"fall-time-constant=1", "fall-delay=1"},
                            "",
                            pRise},
                           {"a fall time constant and a rise time constant",
                            {"fall-time-constant=1", "rise-time-constant=1"},
                            "",
                            pFall},
                       });
}

TEST_F(ExponentialSourcePages, CheckTheFieldsInTheirOrder)
{
    gExpectLinesOfBoth(
        "Exponential", {},
        {
            {"nothing", {}, "", "[Missing @ source name.]"},
            {"a name of blanks", {"name= ", "positive-terminal=a"}, "", "[Missing @ source name.]"},
            {"no positive terminal",
             {"name=1", "positive-terminal= "},
             "",
             "[Missing positive terminal name.]"},
            {"no initial level",
             {"name=1", "positive-terminal=a", "initial= ", "peak=1"},
             "",
             "[Missing initial @.]"},
            {"no peak",
             {"name=1", "positive-terminal=a", "initial=1", "peak= ", "fall-delay=1"},
             "",
             "[Missing peak @.]"},
        });
}

TEST_F(ExponentialSourcePages, TrimNamePositiveTerminalAndLevelsAtBothEndsAndNothingElse)
{
    gExpectLinesOfBoth("Exponential", kCommon,
                       {
                           {"trimmed",
                            {"name= 1 ", "positive-terminal= a ", "initial= 1 ", "peak= 5 "},
                            "1 a GND EXP (1 5 0)",
                            ""},
                           {"a negative terminal of blanks is not replaced",
                            {"negative-terminal=  "},
                            "1 a    EXP (1 5 0)",
                            ""},
                           {"as typed",
                            {"rise-delay= 1 ", "rise-time-constant= 2 ", "fall-delay= 3 ",
                             "fall-time-constant= 4 ", "ac-magnitude= 5 ", "ac-phase= 6 "},
                            "1 a GND EXP (1 5  1   2   3   4 ) AC  5   6 ",
                            ""},
                           {"blanks are values",
                            {"rise-time-constant= ", "fall-delay= ", "dc-value= "},
                            "1 a GND dc   EXP (1 5 0    )",
                            ""},
                       });
}

TEST_F(ExponentialSourcePages, PutTheirLetterInFrontUnlessTheNameBeginsWithIt)
{
    gExpectOneLetter("Exponential", kCommon, " a GND EXP (1 5 0)");
}

TEST_F(ExponentialSourcePages, LeaveTheLineSoFarWhenTheFallIsRefused)
{
    const TFieldValues common{"name=1", "positive-terminal=a", "initial=1", "peak=5",
                              "rise-delay=2"};
    for (const TFieldValues& rMore :
         {TFieldValues{"fall-delay=1"}, TFieldValues{"fall-time-constant=1"},
          TFieldValues{"rise-time-constant=2", "fall-time-constant=1"}}) {
        TFieldValues fields = common;
        fields.insert(fields.end(), rMore.begin(), rMore.end());
        gExpectLeftByBoth("Exponential", fields, "1 a GND EXP (1 5 2");
    }
}

TEST_F(ExponentialSourcePages, KeepTheLineBeforeWhenAFieldIsMissing)
{
    gExpectKeptByBoth("Exponential", {"positive-terminal=a", "initial=1", "peak=5"});
    gExpectKeptByBoth("Exponential", {"name=1", "initial=1", "peak=5"});
    gExpectKeptByBoth("Exponential", {"name=1", "positive-terminal=a", "peak=5"});
    gExpectKeptByBoth("Exponential", {"name=1", "positive-terminal=a", "initial=1"});
}

TEST_F(ExponentialSourcePages,
       RememberWhatTheyBuiltWithTheDefaultsFilledInAndNothingOfALaterFailure)
{
    const TFieldValues inserted{"name=1",
                                "positive-terminal=a",
                                "initial=1",
                                "peak=5",
                                "rise-time-constant=2",
                                "fall-delay=3",
                                "fall-time-constant=4",
                                "ac-magnitude=6",
                                "ac-phase=7",
                                "dc-value=8"};
    TFieldValues shown = inserted;
    shown.insert(shown.end(), {"negative-terminal=GND", "rise-delay=0"});
    gExpectRemembered("Exponential", inserted, {"name=2", "rise-time-constant="}, shown);
}

TEST_F(ExponentialSourcePages, ShowTheirFieldsWithTheirUnits)
{
    EXPECT_EQ(gShownBy("CCurrentSourceExponentialPage"), R"(
'Name'
  name: &Current source name:
  positive-terminal: &Positive terminal:
  negative-terminal: &Negative terminal (GND):
'&DC value'
  dc-value
  '(default is the time=0 value of the transient waveform)'
'Current'
  initial: Ini&tial: [A]
  peak: P&eak: [A]
'AC values'
  ac-magnitude: &Magnitude (0): [A]
  ac-phase: P&hase (0): [deg]
'Rise'
  rise-delay: Dela&y before rise (0): [sec]
  rise-time-constant: Time c&onstant:
'Fall'
  fall-delay: De&lay before fall: [sec]
  fall-time-constant: Time con&stant:
)");
    EXPECT_EQ(gShownBy("CVoltageSourceExponentialPage"), R"(
'Name'
  name: &Voltage source name:
  positive-terminal: &Positive terminal:
  negative-terminal: &Negative terminal (GND):
'&DC value'
  dc-value
  '(default is the time=0 value of the transient waveform)'
'Voltage'
  initial: Ini&tial: [V]
  peak: P&eak: [V]
'AC values'
  ac-magnitude: &Magnitude (0): [V]
  ac-phase: P&hase (0): [deg]
'Rise'
  rise-delay: Dela&y before rise (0): [sec]
  rise-time-constant: Time c&onstant:
'Fall'
  fall-delay: De&lay before fall: [sec]
  fall-time-constant: Time con&stant:
)");
}
} // namespace
