#include "wizard/sources/SourcePageRun.h"

namespace
{
using PulseSourcePages = PageTest;

const TFieldValues kCommon{"name=1", "positive-terminal=a", "peak=5"};

TEST_F(PulseSourcePages, BuildTheLine)
{
    gExpectLinesOfBoth(
        "Pulse", kCommon,
        {
            {"the peak alone, from 0", {}, "1 a GND PULSE (0 5)", ""},
            {"levels", {"initial=1"}, "1 a GND PULSE (1 5)", ""},
            {"between two nodes", {"negative-terminal=b"}, "1 a b PULSE (0 5)", ""},
            {"the DC value stands before the waveform",
             {"dc-value=2"},
             "1 a GND dc 2 PULSE (0 5)",
             ""},
            {"rounding before the AC values",
             {"rounding=1p", "ac-magnitude=1", "ac-phase=90"},
             "1 a GND PULSE (0 5) ROUND=1p AC 1 90",
             ""},
            {"a magnitude alone", {"ac-magnitude=1"}, "1 a GND PULSE (0 5) AC 1", ""},
            {"a phase alone takes the place of the magnitude",
             {"ac-phase=90"},
             "1 a GND PULSE (0 5) AC 90",
             ""},
        });
}

TEST_F(PulseSourcePages, WriteAsManyTimesAsAreGiven)
{
    gExpectLinesOfBoth(
        "Pulse", kCommon,
        {
            {"a delay", {"delay=2n"}, "1 a GND PULSE (0 5 2n)", ""},
            {"a rise time alone is left out", {"rise-time=1n"}, "1 a GND PULSE (0 5)", ""},
            {"a rise time behind a delay is left out, too",
             {"delay=2n", "rise-time=1n"},
             "1 a GND PULSE (0 5 2n)",
             ""},
            {"rise and fall, and the slot of the empty width",
             {"rise-time=1n", "fall-time=2n"},
             "1 a GND PULSE (0 5 0 1n 2n )",
             ""},
            {"the same behind a delay",
             {"delay=3n", "rise-time=1n", "fall-time=2n"},
             "1 a GND PULSE (0 5 3n 1n 2n )",
             ""},
            {"a width without a period: three values behind the slot of the delay",
             {"rise-time=1n", "fall-time=2n", "width=10n"},
             "1 a GND PULSE (0 5 0 1n 2n 10n)",
             ""},
            {"a width behind a delay",
             {"delay=3n", "rise-time=1n", "fall-time=2n", "width=10n"},
             "1 a GND PULSE (0 5 3n 1n 2n 10n)",
             ""},
            {"a period",
             {"rise-time=1n", "fall-time=2n", "width=10n", "period=20n"},
             "1 a GND PULSE (0 5 0 1n 2n 10n 20n)",
             ""},
            {"a period behind a delay",
             {"delay=3n", "rise-time=1n", "fall-time=2n", "width=10n", "period=20n"},
             "1 a GND PULSE (0 5 3n 1n 2n 10n 20n)",
             ""},
            {"a time of a blank is a time",
             {"rise-time= ", "fall-time=2n"},
             "1 a GND PULSE (0 5 0   2n )",
             ""},
        });
}

TEST_F(PulseSourcePages, DemandTheTimesBeforeTheLastOneGiven)
{
    const char* const pRise = "[Missing rise time specification.]";
    const char* const pFall = "[Missing fall time specification.]";
    const char* const pWidth = "[Missing pulse width specification.]";
    gExpectLinesOfBoth(
        "Pulse", kCommon,
        {
            {"a period alone", {"period=20n"}, "", pRise},
            {"a period and a rise time", {"period=20n", "rise-time=1n"}, "", pFall},
            {"a period and a fall time", {"period=20n", "fall-time=1n", "width=1n"}, "", pRise},
            {"a period without a width",
             {"period=20n", "rise-time=1n", "fall-time=1n"},
             "",
             pWidth},
            {"a width alone", {"width=10n"}, "", pRise},
            {"a width and a rise time", {"width=10n", "rise-time=1n"}, "", pFall},
            {"a width and a fall time", {"width=10n", "fall-time=1n"}, "", pRise},
            {"a fall time alone", {"fall-time=1n"}, "", pRise},
            {"a fall time behind a delay", {"fall-time=1n", "delay=1n"}, "", pRise},
        });
}

TEST_F(PulseSourcePages, CheckTheFieldsInTheirOrder)
{
    gExpectLinesOfBoth("Pulse", {},
                       {
                           {"nothing", {}, "", "[Missing @ source name.]"},
                           {"a name of blanks",
                            {"name= ", "positive-terminal=a", "peak=5"},
                            "",
                            "[Missing @ source name.]"},
                           {"no positive terminal",
                            {"name=1", "positive-terminal= "},
                            "",
                            "[Missing positive terminal name.]"},
                           {"no peak, before the times are looked at",
                            {"name=1", "positive-terminal=a", "peak= ", "period=1"},
                            "",
                            "[Missing peak @.]"},
                       });
}

TEST_F(PulseSourcePages, TrimNamePositiveTerminalAndPeakAtBothEndsAndNothingElse)
{
    gExpectLinesOfBoth(
        "Pulse", kCommon,
        {
            {"trimmed",
             {"name= 1 ", "positive-terminal= a ", "peak= 5 "},
             "1 a GND PULSE (0 5)",
             ""},
            {"a negative terminal of blanks is not replaced",
             {"negative-terminal=  "},
             "1 a    PULSE (0 5)",
             ""},
            {"as typed",
             {"negative-terminal= b ", "initial= 1 ", "delay= 2 ", "rounding= 3 ",
              "ac-magnitude= 4 ", "ac-phase= 6 "},
             "1 a  b  PULSE ( 1  5  2 ) ROUND= 3  AC  4   6 ",
             ""},
            {"an initial level of a blank is one", {"initial= "}, "1 a GND PULSE (  5)", ""},
        });
}

TEST_F(PulseSourcePages, OnlyThatOfACurrentSourceTrimsTheDCValueAndOnTheLeftAlone)
{
    gExpectLines("Current source/Pulse", kCommon,
                 {
                     {"a blank is none", {"dc-value= "}, "I1 a GND PULSE (0 5)", ""},
                     {"trimmed on the left", {"dc-value= 2 "}, "I1 a GND dc 2  PULSE (0 5)", ""},
                 });
    gExpectLines("Voltage source/Pulse", kCommon,
                 {
                     {"a blank is a value", {"dc-value= "}, "V1 a GND dc   PULSE (0 5)", ""},
                     {"as typed", {"dc-value= 2 "}, "V1 a GND dc  2  PULSE (0 5)", ""},
                 });
}

TEST_F(PulseSourcePages, PutTheirLetterInFrontUnlessTheNameBeginsWithIt)
{
    gExpectOneLetter("Pulse", kCommon, " a GND PULSE (0 5)");
}

TEST_F(PulseSourcePages, LeaveTheLineSoFarWhenTheTimesAreRefused)
{
    gExpectLeftByBoth("Pulse",
                      {"name=1", "positive-terminal=a", "peak=5", "dc-value=1", "period=1"},
                      "1 a GND dc 1 PULSE (0 5");
    // Meant: a delay is there, but none holds the place of an empty one.
    gExpectLeftByBoth("Pulse", {"name=1", "positive-terminal=a", "peak=5", "delay=2n", "width=1"},
                      "1 a GND PULSE (0 5 2n");
    gExpectLeftByBoth("Pulse", {"name=1", "positive-terminal=a", "peak=5", "fall-time=1"},
                      "1 a GND PULSE (0 5");
}

TEST_F(PulseSourcePages, KeepTheLineBeforeWhenAFieldIsMissing)
{
    gExpectKeptByBoth("Pulse", {"positive-terminal=a", "peak=5"});
    gExpectKeptByBoth("Pulse", {"name=1", "peak=5"});
    gExpectKeptByBoth("Pulse", {"name=1", "positive-terminal=a"});
}

TEST_F(PulseSourcePages, RememberWhatTheyBuiltWithTheDefaultsFilledInAndNothingOfALaterFailure)
{
    const TFieldValues inserted{
        "name= 1 ",   "positive-terminal=a", "peak=5",   "rise-time=1n", "fall-time=2n",
        "width=3n",   "period=4n",           "delay=5n", "rounding=6p",  "ac-magnitude=7",
        "ac-phase=8", "dc-value=9"};
    TFieldValues shown = inserted;
    shown[0] = "name=1";
    shown.insert(shown.end(), {"negative-terminal=GND", "initial=0"});
    gExpectRemembered("Pulse", inserted, {"name=2", "dc-value=3", "rise-time="}, shown);
    gExpectRemembered("Pulse", inserted, {"name=2", "peak="}, shown);
}

TEST_F(PulseSourcePages, ShowTheirFieldsWithTheirUnits)
{
    EXPECT_EQ(gShownBy("CCurrentSourcePulsePage"), R"(
'Pulse source'
  'Name'
    name: &Current source name:
    positive-terminal: &Positive terminal:
    negative-terminal: &Negative terminal (GND):
  '&DC value'
    dc-value
    '(default is the time=0 value of the transient waveform)'
  'Current'
    initial: Ini&tial (0): [A]
    peak: P&eak: [A]
  'AC values'
    ac-magnitude: &Magnitude (0): [A]
    ac-phase: P&hase (0): [deg]
  'Pulse waveform'
    rise-time: &Rise time: [sec]
    fall-time: &Fall time: [sec]
    width: P&ulse width: [sec]
    period: Pu&lse period: [sec]
    delay: Initi&al delay (0): [sec]
    rounding: C&orner rounding (0): [sec]
)");
    EXPECT_EQ(gShownBy("CVoltageSourcePulsePage"), R"(
'Pulse source'
  'Name'
    name: &Voltage source name:
    positive-terminal: &Positive terminal:
    negative-terminal: &Negative terminal (GND):
  '&DC value'
    dc-value
    '(default is the time=0 value of the transient waveform)'
  'Voltage'
    initial: Ini&tial (0): [V]
    peak: P&eak: [V]
  'AC values'
    ac-magnitude: &Magnitude (0): [V]
    ac-phase: P&hase (0): [deg]
  'Pulse waveform'
    rise-time: &Rise time: [sec]
    fall-time: &Fall time: [sec]
    width: P&ulse width: [sec]
    period: Pu&lse period: [sec]
    delay: Initi&al delay (0): [sec]
    rounding: C&orner rounding (0): [sec]
)");
}
} // namespace
