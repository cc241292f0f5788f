#include "support/Look.h"
#include "support/Steps.h"
#include "wizard/sources/SourcePageRun.h"

namespace
{
using BusSourcePages = PageTest;

constexpr const char* kCurrent = "Current source/Bus";
constexpr const char* kVoltage = "Voltage source/Bus";

const TFieldValues kCommon{"name=1", "bus-name=data", "bit-stream=1010"};

TEST_F(BusSourcePages, BuildTheLine)
{
    gExpectLinesOfBoth(
        "Bus", kCommon,
        {
            {"without a parameter", {}, "1 data GND BUS ({1010})", ""},
            {"with a reference", {"reference-node=n0"}, "1 data n0 BUS ({1010})", ""},
            {"all parameters, in the line's order and not in that of the controls",
             {"on-value=1", "off-value=2", "pulse-width=3", "low-time=4", "high-time=5", "delay=6",
              "rise-time=7", "fall-time=8"},
             "1 data GND BUS ({1010} pw=3 lt=4 ht=5 on=1 off=2 rt=7 ft=8 delay=6)",
             ""},
            {"a rounding",
             {"rounding=1p", "high-time=5"},
             "1 data GND BUS ({1010} ht=5) ROUND=1p",
             ""},
            {"name, bus name and bit stream are trimmed at both ends",
             {"name= 1 ", "bus-name= data ", "bit-stream= 10 "},
             "1 data GND BUS ({10})",
             ""},
            {"nothing else is trimmed",
             {"reference-node= r ", "on-value= 2 ", "off-value= 3 ", "pulse-width= 4 ",
              "low-time= 5 ", "high-time= 6 ", "rise-time= 7 ", "fall-time= 8 ", "delay= 9 ",
              "rounding= 1 "},
             "1 data  r  BUS ({1010} pw= 4  lt= 5  ht= 6  on= 2  off= 3  rt= 7  ft= 8  delay= 9 ) "
             "ROUND= 1 ",
             ""},
            {"a reference of blanks stays", {"reference-node=  "}, "1 data    BUS ({1010})", ""},
            {"no bus has to be defined by that name",
             {"bus-name=no such bus"},
             "1 no such bus GND BUS ({1010})",
             ""},
        });
}

TEST_F(BusSourcePages, CheckTheFieldsInTheirOrder)
{
    gExpectLinesOfBoth("Bus", {},
                       {
                           {"nothing", {}, "", "[Missing @ source name.]"},
                           {"a name of blanks",
                            {"name= ", "bus-name=b", "bit-stream=1"},
                            "",
                            "[Missing @ source name.]"},
                           {"a name alone", {"name=1"}, "", "[Missing bus name.]"},
                           {"a bus name of blanks",
                            {"name=1", "bus-name= ", "bit-stream=1"},
                            "",
                            "[Missing bus name.]"},
                           {"no bit stream", {"name=1", "bus-name=b"}, "", "[Missing bit stream.]"},
                           {"a bit stream of blanks",
                            {"name=1", "bus-name=b", "bit-stream= "},
                            "",
                            "[Missing bit stream.]"},
                       });
}

TEST_F(BusSourcePages, PutTheirLetterInFrontUnlessTheNameBeginsWithIt)
{
    gExpectOneLetter("Bus", kCommon, " data GND BUS ({1010})");
}

TEST_F(BusSourcePages, RememberWhatTheyBuiltWithTheGroundFilledIn)
{
    TFieldValues shown{"rounding=3",  "on-value=5", "off-value=6",  "pulse-width=7", "low-time=8",
                       "high-time=9", "delay=10",   "rise-time=11", "fall-time=12"};
    TFieldValues typed = shown;
    typed.insert(typed.end(), {"name= n ", "bus-name= b ", "bit-stream= 01 "});
    shown.insert(shown.end(), {"name=n", "bus-name=b", "bit-stream=01", "reference-node=GND"});
    const TFieldValues refused{"name=m", "rounding=4", "bus-name="};
    gExpectRemembered("Bus", typed, refused, shown);
}

TEST_F(BusSourcePages, RememberNothingOfThePagesOfTheOtherKind)
{
    for (const std::string sCategory : {"Current source", "Voltage source"}) {
        gCompose(sCategory + "/Bus", kCommon);
        gRunWizard(CScript()
                       .Do({steps::Open(CString(sCategory + "/Bit"))})
                       .Look({look::Text("name", ""), look::Text("bit-stream", "")})
                       .Do({steps::Open(CString(sCategory + "/Bus"))})
                       .Look({look::Text("name", "1"), look::Text("bit-stream", "1010")}));
    }
}

TEST_F(BusSourcePages, KeepTheLineBeforeWhenTheyRefuse)
{
    gExpectKeptByBoth("Bus", {"bus-name=b", "bit-stream=1"});
    gExpectKeptByBoth("Bus", {"name=1", "bit-stream=1"});
    gExpectKeptByBoth("Bus", {"name=1", "bus-name=b"});
}

TEST_F(BusSourcePages, ShowTheirFieldsWithTheirUnits)
{
    EXPECT_EQ(gShownBy("CCurrentSourceBusPage"), R"(
'BUS source'
  name: &Current source name:
  bus-name: Bus &name:
  reference-node: R&eference node (GND):
'Corner smoothing'
  rounding: &Rounding (0): [sec]
'Waveform'
  bit-stream: &Bit stream:
  on-value: &ON value (1e-3): [A]
  off-value: O&FF value (0): [A]
'Pulse'
  pulse-width: P&ulse width (10n): [sec]
  low-time: &Low time (10n): [sec]
  high-time: &High time (10n): [sec]
  delay: &Delay (0): [sec]
  rise-time: Ri&se time (1n): [sec]
  fall-time: F&all time (1n): [sec]
)");
    EXPECT_EQ(gShownBy("CVoltageSourceBusPage"), R"(
'BUS source'
  name: &Voltage source name:
  bus-name: Bus &name:
  reference-node: R&eference node (GND):
'Corner smoothing'
  rounding: &Rounding (0): [sec]
'Waveform'
  bit-stream: &Bit stream:
  on-value: &ON value (5): [V]
  off-value: O&FF value (0): [V]
'Pulse'
  pulse-width: P&ulse width (10n): [sec]
  low-time: &Low time (10n): [sec]
  high-time: &High time (10n): [sec]
  delay: &Delay (0): [sec]
  rise-time: Ri&se time (1n): [sec]
  fall-time: F&all time (1n): [sec]
)");
}
} // namespace
