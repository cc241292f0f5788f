#include "wizard/sources/SourcePageRun.h"

namespace
{
using ConstantSourcePages = PageTest;

const TFieldValues kCommon{"name=1", "positive-terminal=a", "dc-value=5m"};

TEST_F(ConstantSourcePages, BuildTheLine)
{
    gExpectLinesOfBoth(
        "Constant", kCommon,
        {
            {"the DC value alone", {}, "1 a GND 5m", ""},
            {"between two nodes", {"negative-terminal=b"}, "1 a b 5m", ""},
            {"magnitude and phase", {"ac-magnitude=1", "ac-phase=90"}, "1 a GND 5m AC 1 90", ""},
            {"a magnitude alone is followed by a blank",
             {"ac-magnitude=1"},
             "1 a GND 5m AC 1 ",
             ""},
            {"a phase alone takes the place of the magnitude",
             {"ac-phase=90"},
             "1 a GND 5m AC 90",
             ""},
            {"name, positive terminal and DC value are trimmed at both ends",
             {"name= 1 ", "positive-terminal= a ", "dc-value= 5m "},
             "1 a GND 5m",
             ""},
            {"nothing else is trimmed",
             {"negative-terminal= b ", "ac-magnitude= 1 ", "ac-phase= 2 "},
             "1 a  b  5m AC  1   2 ",
             ""},
            {"blanks are a negative terminal, a magnitude and a phase",
             {"negative-terminal=  ", "ac-magnitude= ", "ac-phase= "},
             "1 a    5m AC    ",
             ""},
        });
}

TEST_F(ConstantSourcePages, CheckTheFieldsInTheirOrder)
{
    gExpectLinesOfBoth("Constant", {},
                       {
                           {"nothing", {}, "", "[Missing @ source name]"},
                           {"a name of blanks",
                            {"name=  ", "positive-terminal=a", "dc-value=1"},
                            "",
                            "[Missing @ source name]"},
                           {"no positive terminal",
                            {"name=1", "positive-terminal= "},
                            "",
                            "[Missing positive terminal name.]"},
                           {"no DC value",
                            {"name=1", "positive-terminal=a", "dc-value= ", "ac-magnitude=1"},
                            "",
                            "[Missing DC value]"},
                       });
}

TEST_F(ConstantSourcePages, PutTheirLetterInFrontUnlessTheNameBeginsWithIt)
{
    gExpectOneLetter("Constant", kCommon, " a GND 5m");
}

TEST_F(ConstantSourcePages, RememberWhatTheyBuiltWithTheGroundFilledIn)
{
    gExpectRemembered(
        "Constant",
        {"name= 1", "positive-terminal=a", "dc-value=5m", "ac-magnitude=1", "ac-phase=90"},
        {"name=2", "dc-value="},
        {"name=1", "positive-terminal=a", "negative-terminal=GND", "dc-value=5m", "ac-magnitude=1",
         "ac-phase=90"});
}

TEST_F(ConstantSourcePages, KeepTheLineBeforeWhenTheyRefuse)
{
    gExpectKeptByBoth("Constant", {"positive-terminal=a", "dc-value=1"});
    gExpectKeptByBoth("Constant", {"name=1", "dc-value=1"});
    gExpectKeptByBoth("Constant", {"name=1", "positive-terminal=a"});
}

TEST_F(ConstantSourcePages, ShowTheirFieldsWithTheirUnits)
{
    EXPECT_EQ(gShownBy("CCurrentSourceConstantPage"), R"(
'Constant Source'
  'Name'
    name: &Current source name:
    positive-terminal: &Positive terminal:
    negative-terminal: &Negative terminal (GND):
  dc-value: &DC value: [A]
  'AC values'
    ac-magnitude: &Magnitude (0): [A]
    ac-phase: P&hase (0): [deg]
)");
    EXPECT_EQ(gShownBy("CVoltageSourceConstantPage"), R"(
'Constant Source'
  'Name'
    name: &Voltage source name:
    positive-terminal: &Positive terminal:
    negative-terminal: &Negative terminal (GND):
  dc-value: &DC value: [V]
  'AC values'
    ac-magnitude: &Magnitude (0): [V]
    ac-phase: P&hase (0): [deg]
)");
}
} // namespace
