#include "wizard/sources/SourcePageRun.h"

namespace
{
using FMSourcePages = PageTest;

const TFieldValues kCommon{"name=1", "positive-terminal=a", "peak-amplitude=5"};

TEST_F(FMSourcePages, BuildTheLine)
{
    gExpectLinesOfBoth("FM", kCommon,
                       {
                           {"the amplitude alone", {}, "1 a GND SFFM (0 5)", ""},
                           {"an offset", {"offset=1"}, "1 a GND SFFM (1 5)", ""},
                           {"between two nodes", {"negative-terminal=b"}, "1 a b SFFM (0 5)", ""},
                           {"the DC value stands before the waveform",
                            {"dc-value=2"},
                            "1 a GND dc 2 SFFM (0 5)",
                            ""},
                           {"a carrier", {"carrier-frequency=1meg"}, "1 a GND SFFM (0 5 1meg)", ""},
                           {"an index",
                            {"carrier-frequency=1meg", "modulation-index=3"},
                            "1 a GND SFFM (0 5 1meg 3)",
                            ""},
                           {"all",
                            {"carrier-frequency=1meg", "modulation-index=3", "signal-frequency=1k"},
                            "1 a GND SFFM (0 5 1meg 3 1k)",
                            ""},
                           {"a signal without an index takes its place",
                            {"carrier-frequency=1meg", "signal-frequency=1k"},
                            "1 a GND SFFM (0 5 1meg 1k)",
                            ""},
                           {"magnitude and phase",
                            {"ac-magnitude=1", "ac-phase=90"},
                            "1 a GND SFFM (0 5) AC 1 90",
                            ""},
                           {"a magnitude alone is followed by a blank",
                            {"ac-magnitude=1"},
                            "1 a GND SFFM (0 5) AC 1 ",
                            ""},
                           {"a phase alone takes the place of the magnitude",
                            {"ac-phase=90"},
                            "1 a GND SFFM (0 5) AC 90",
                            ""},
                       });
}

TEST_F(FMSourcePages, CheckTheFieldsInTheirOrderWithTheMessagesAsTheyAreSpelled)
{
    gExpectLinesOfBoth(
        "FM", {},
        {
            {"nothing", {}, "", "[Missing @ source name.]"},
            {"a name of blanks", {"name= ", "positive-terminal=a"}, "", "[Missing @ source name.]"},
            {"no positive terminal",
             {"name=1", "positive-terminal= ", "peak-amplitude=1"},
             "",
             "[Missing postive terminal name.]"},
            {"no amplitude",
             {"name=1", "positive-terminal=a", "peak-amplitude= ", "modulation-index=1"},
             "",
             "[Missing peak amplitude.]"},
            {"an index without a carrier",
             {"name=1", "positive-terminal=a", "peak-amplitude=1", "modulation-index=1"},
             "",
             "[Missing carrier frequency]"},
            {"a signal without a carrier",
             {"name=1", "positive-terminal=a", "peak-amplitude=1", "signal-frequency=1"},
             "",
             "[Missing carrier frequency]"},
        });
}

TEST_F(FMSourcePages, TrimNamePositiveTerminalAndAmplitudeAtBothEndsAndNothingElse)
{
    gExpectLinesOfBoth("FM", kCommon,
                       {
                           {"trimmed",
                            {"name= 1 ", "positive-terminal= a ", "peak-amplitude= 5 "},
                            "1 a GND SFFM (0 5)",
                            ""},
                           {"a negative terminal of blanks is not replaced",
                            {"negative-terminal=  "},
                            "1 a    SFFM (0 5)",
                            ""},
                           {"as typed",
                            {"offset= 1 ", "carrier-frequency= 2 ", "modulation-index= 3 ",
                             "signal-frequency= 4 ", "ac-magnitude= 5 ", "ac-phase= 6 "},
                            "1 a GND SFFM ( 1  5  2   3   4 ) AC  5   6 ",
                            ""},
                           {"blanks are values",
                            {"carrier-frequency= ", "dc-value= "},
                            "1 a GND dc   SFFM (0 5  )",
                            ""},
                       });
}

TEST_F(FMSourcePages, PutTheirLetterInFrontUnlessTheNameBeginsWithIt)
{
    gExpectOneLetter("FM", kCommon, " a GND SFFM (0 5)");
}

TEST_F(FMSourcePages, LeaveTheLineSoFarWhenTheCarrierIsMissing)
{
    for (const char* const pMore : {"modulation-index=1", "signal-frequency=1"})
        gExpectLeftByBoth("FM", {"name=1", "positive-terminal=a", "peak-amplitude=5", pMore},
                          "1 a GND SFFM (0 5");
}

TEST_F(FMSourcePages, KeepTheLineBeforeWhenAFieldIsMissing)
{
    gExpectKeptByBoth("FM", {"positive-terminal=a", "peak-amplitude=5"});
    gExpectKeptByBoth("FM", {"name=1", "peak-amplitude=5"});
    gExpectKeptByBoth("FM", {"name=1", "positive-terminal=a"});
}

TEST_F(FMSourcePages, RememberWhatTheyBuiltWithTheDefaultsFilledInAndNothingOfALaterFailure)
{
    const TFieldValues inserted{"name=1",
                                "positive-terminal=a",
                                "peak-amplitude=5",
                                "carrier-frequency=1",
                                "modulation-index=2",
                                "signal-frequency=3",
                                "ac-magnitude=4",
                                "ac-phase=6",
                                "dc-value=7"};
    TFieldValues shown = inserted;
    shown.insert(shown.end(), {"negative-terminal=GND", "offset=0"});
    gExpectRemembered("FM", inserted, {"name=2", "carrier-frequency="}, shown);
}

TEST_F(FMSourcePages, ShowTheirFieldsWithTheirUnits)
{
    EXPECT_EQ(gShownBy("CCurrentSourceFMPage"), R"(
'Single frequency FM source'
  'Name'
    name: &Current source name:
    positive-terminal: &Positive terminal:
    negative-terminal: &Negative terminal (GND):
  '&DC value'
    dc-value
    '(default is the time=0 value of the transient waveform)'
  'Signal'
    offset: C&urrent offset (0): [A]
    peak-amplitude: P&eak amplitude: [A]
    carrier-frequency: C&arrier frequency (1/tstop): [Hz]
    modulation-index: M&odulation index (0):
    signal-frequency: &Signal frequency (1/tstop): [Hz]
  'AC values'
    ac-magnitude: &Magnitude: [A]
    ac-phase: P&hase: [deg]
)");
    EXPECT_EQ(gShownBy("CVoltageSourceFMPage"), R"(
'Single frequency FM source'
  'Name'
    name: &Voltage source name:
    positive-terminal: &Positive terminal:
    negative-terminal: &Negative terminal (GND):
  '&DC value'
    dc-value
    '(default is the time=0 value of the transient waveform)'
  'Signal'
    offset: Vo&ltage offset (0): [V]
    peak-amplitude: P&eak amplitude: [V]
    carrier-frequency: C&arrier frequency (1/tstop): [Hz]
    modulation-index: M&odulation index (0):
    signal-frequency: &Signal frequency (1/tstop): [Hz]
  'AC values'
    ac-magnitude: &Magnitude: [V]
    ac-phase: P&hase: [deg]
)");
}
} // namespace
