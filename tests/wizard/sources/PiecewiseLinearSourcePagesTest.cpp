#include "platform/ui/FieldView.h"
#include "support/Look.h"
#include "support/Steps.h"
#include "wizard/sources/SourcePageRun.h"

namespace
{
using PiecewiseLinearSourcePages = PageTest;

const TFieldValues kCommon{"name=1", "positive-terminal=a", "corners=0 0 1n 5"};

TEST_F(PiecewiseLinearSourcePages, BuildTheLine)
{
    gExpectLinesOfBoth(
        "Piecewise linear", kCommon,
        {
            {"four corners alone pass", {}, "1 a GND PWL (0 0 1n 5)", ""},
            {"between two nodes", {"negative-terminal=b"}, "1 a b PWL (0 0 1n 5)", ""},
            {"the DC value stands before the waveform",
             {"dc-value=2"},
             "1 a GND dc 2 PWL (0 0 1n 5)",
             ""},
            {"rounding before the AC values",
             {"rounding=1p", "ac-magnitude=1", "ac-phase=90"},
             "1 a GND PWL (0 0 1n 5) ROUND=1p AC 1 90",
             ""},
            {"a magnitude alone", {"ac-magnitude=1"}, "1 a GND PWL (0 0 1n 5) AC 1", ""},
            {"a phase alone takes the place of the magnitude",
             {"ac-phase=90"},
             "1 a GND PWL (0 0 1n 5) AC 90",
             ""},
        });
}

TEST_F(PiecewiseLinearSourcePages, CountTheValuesOfTheCornersAndNothingElse)
{
    const char* const pOdd = "[Odd number of values in corner list.]";
    gExpectLinesOfBoth(
        "Piecewise linear", kCommon,
        {
            {"three values are odd", {"corners=0 0 1n"}, "", pOdd},
            {"one value", {"corners=0"}, "", pOdd},
            {"words are values, for only their number counts",
             {"corners=a b"},
             "1 a GND PWL (a b)",
             ""},
            {"times need no order", {"corners=2 0 1 5"}, "1 a GND PWL (2 0 1 5)", ""},
            {"several blanks", {"corners=0   0 1n  5"}, "1 a GND PWL (0   0 1n  5)", ""},
            {"on several lines", {"corners=0 0\n1n 5"}, "1 a GND PWL (0 0 1n 5)", ""},
            {"three on two lines", {"corners=0 0\n1n"}, "", pOdd},
            {"a line that ends in a blank counts each value once",
             {"corners=0 0 \n1n 5"},
             "1 a GND PWL (0 0  1n 5)",
             ""},
            {"a line that begins with a blank",
             {"corners=0 0\n 1n 5"},
             "1 a GND PWL (0 0  1n 5)",
             ""},
            {"an empty line between", {"corners=0 0\n\n1n 5"}, "1 a GND PWL (0 0  1n 5)", ""},
            {"one value to a line", {"corners=0\n0\n1n\n5"}, "1 a GND PWL (0 0 1n 5)", ""},
            {"a tab separates nothing", {"corners=0\t0"}, "", pOdd},
            {"a tab is part of a value", {"corners=0\t0 1"}, "1 a GND PWL (0\t0 1)", ""},
            {"blanks at the ends", {"corners=\n 0 0 1n 5 \n"}, "1 a GND PWL (0 0 1n 5)", ""},
        });
}

// A user's Enter makes CR LF; only a program can give an edit a lone one.
TEST_F(PiecewiseLinearSourcePages, TakeALoneLineFeedIntoTheValueAndALoneReturnBetweenValues)
{
    struct TCase {
        const char* pName;
        const char* pCorners;
        std::vector<std::string> inserted;
    };
    for (const TCase& rCase :
         {TCase{"a line feed ends no value", "0\n0 1", {"I1 a GND PWL (00 1)"}},
          TCase{"a line feed behind a blank is none", "0 \n0", {"I1 a GND PWL (0 0)"}},
          TCase{"a return ends a value", "0\r0", {"I1 a GND PWL (0\r0)"}},
          TCase{"three values between returns", "0\r0\r1", {}}}) {
        SCOPED_TRACE(rCase.pName);
        const auto outcome = gRunWizard(
            CScript()
                .Do({steps::Open("Current source/Piecewise linear")})
                .Fill({"name=1", "positive-terminal=a"})
                .Then([&rCase](CDialog& rDialog) {
                    gFindField(rDialog, "corners").pControl->SetWindowText(rCase.pCorners);
                })
                .Do({steps::Insert()}));
        EXPECT_EQ(outcome.inserted, rCase.inserted);
    }
}

TEST_F(PiecewiseLinearSourcePages, CheckTheFieldsInTheirOrder)
{
    gExpectLinesOfBoth(
        "Piecewise linear", {},
        {
            {"nothing", {}, "", "[Missing @ source name.]"},
            {"a name of blanks", {"name= ", "positive-terminal=a"}, "", "[Missing @ source name.]"},
            {"no positive terminal",
             {"name=1", "positive-terminal= "},
             "",
             "[Missing positive terminal name.]"},
        });
    gExpectLines("Current source/Piecewise linear", {"name=1", "positive-terminal=a"},
                 {
                     {"no corners", {"corners= \n "}, "", "[Missing waveform corner points.]"},
                 });
    gExpectLines("Voltage source/Piecewise linear", {"name=1", "positive-terminal=a"},
                 {
                     {"no corners, with an s more",
                      {"corners= \n "},
                      "",
                      "[Missing waveform corners points.]"},
                 });
}

TEST_F(PiecewiseLinearSourcePages, TrimNamePositiveTerminalAndCornersAtBothEndsAndNothingElse)
{
    gExpectLinesOfBoth(
        "Piecewise linear", kCommon,
        {
            {"trimmed", {"name= 1 ", "positive-terminal= a "}, "1 a GND PWL (0 0 1n 5)", ""},
            {"a negative terminal of blanks is not replaced",
             {"negative-terminal=  "},
             "1 a    PWL (0 0 1n 5)",
             ""},
            {"as typed",
             {"rounding= 3 ", "ac-magnitude= 4 ", "ac-phase= 6 "},
             "1 a GND PWL (0 0 1n 5) ROUND= 3  AC  4   6 ",
             ""},
        });
}

TEST_F(PiecewiseLinearSourcePages, OnlyThatOfACurrentSourceTrimsTheDCValueAndOnTheLeftAlone)
{
    gExpectLines("Current source/Piecewise linear", kCommon,
                 {
                     {"a blank is none", {"dc-value= "}, "I1 a GND PWL (0 0 1n 5)", ""},
                     {"trimmed on the left", {"dc-value= 2 "}, "I1 a GND dc 2  PWL (0 0 1n 5)", ""},
                 });
    gExpectLines("Voltage source/Piecewise linear", kCommon,
                 {
                     {"a blank is a value", {"dc-value= "}, "V1 a GND dc   PWL (0 0 1n 5)", ""},
                     {"as typed", {"dc-value= 2 "}, "V1 a GND dc  2  PWL (0 0 1n 5)", ""},
                 });
}

TEST_F(PiecewiseLinearSourcePages, PutTheirLetterInFrontUnlessTheNameBeginsWithIt)
{
    gExpectOneLetter("Piecewise linear", kCommon, " a GND PWL (0 0 1n 5)");
}

TEST_F(PiecewiseLinearSourcePages, KeepTheLineBeforeWhenTheyRefuse)
{
    gExpectKeptByBoth("Piecewise linear", {"positive-terminal=a", "corners=0 1"});
    gExpectKeptByBoth("Piecewise linear", {"name=1", "corners=0 1"});
    gExpectKeptByBoth("Piecewise linear", {"name=1", "positive-terminal=a"});
    gExpectKeptByBoth("Piecewise linear", {"name=1", "positive-terminal=a", "corners=1"});
}

TEST_F(PiecewiseLinearSourcePages, RememberWhatTheyBuiltWithTheLinesOfTheCorners)
{
    gExpectRemembered("Piecewise linear",
                      {"name=1", "positive-terminal=a", "corners= 0 0\n1n 5\n", "rounding=1p",
                       "ac-magnitude=1", "ac-phase=90", "dc-value=2"},
                      {"corners=0"},
                      {"name=1", "positive-terminal=a", "negative-terminal=GND",
                       "corners=0 0\n1n 5", "rounding=1p", "ac-magnitude=1", "ac-phase=90",
                       "dc-value=2"});
}

TEST_F(PiecewiseLinearSourcePages, ReturnStartsANewLineInTheCorners)
{
    gRunWizard(CScript()
                   .Do({steps::Open("Voltage source/Piecewise linear"), steps::Focus("corners"),
                        steps::Key("enter")})
                   .Look({look::Text("corners", "\r\n"), look::Focused("corners")}));
}

TEST_F(PiecewiseLinearSourcePages, ShowTheirFieldsWithTheirUnits)
{
    EXPECT_EQ(gShownBy("CCurrentSourcePiecewiseLinearPage"), R"(
'Piecewise linear waveform'
  'Name'
    name: &Current source name:
    positive-terminal: &Positive terminal:
    negative-terminal: &Negative terminal (GND):
  '&DC value'
    dc-value
    '(default is the time=0 value of the transient waveform)'
  'Waveform'
    corners: C&orners: (t0 i0 t1 i1 t2 i2 ...), t in seconds, i in amps (lines)
    rounding: Corner &rounding parameter (0): [sec]
  'AC values'
    ac-magnitude: &Magnitude (0): [A]
    ac-phase: P&hase (0): [deg]
)");
    EXPECT_EQ(gShownBy("CVoltageSourcePiecewiseLinearPage"), R"(
'Piecewise linear waveform'
  'Name'
    name: &Voltage source name:
    positive-terminal: &Positive terminal:
    negative-terminal: &Negative terminal (GND):
  '&DC value'
    dc-value
    '(default is the time=0 value of the transient waveform)'
  'Waveform'
    corners: &Corners: (t0 v0 t1 v1 t2 v2 ...), t in seconds, v in volts (lines)
    rounding: Corner &rounding parameter (0): [sec]
  'AC values'
    ac-magnitude: &Magnitude (0): [V]
    ac-phase: P&hase (0): [deg]
)");
}
} // namespace
