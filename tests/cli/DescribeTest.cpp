#include "cli/DescribeCommand.h"
#include "cli/TestWizard.h"
#include "wizard/frame/Remembered.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>

namespace quorvawiz::cli
{
namespace
{
std::string Describe(const std::string& rsPage, bool bJson = false)
{
    CRememberedBase::ResetAll();
    return gDescribePage(gTestWizard(), {rsPage, bJson});
}

TEST(Describe, EveryKindOfControl)
{
    EXPECT_EQ(Describe("Tests/All kinds"), R"(Tests/All kinds  CTestAllKindsPage

KEY     KIND             START VALUE  FLAGS      LABEL
name    edit             ""           -          &Name: (V)
lines   multi-line-edit  ""           -          &Lines:
kind    drop-down-list   ""           -          &Kind:
                         #0                      linear
                         #1                      decade
                         #2                      octave
node    drop-down        ""           -          N&ode:
                         #0                      in
                         #1                      out
list    list-box         none         -          -
                         #0                      in
                         #1                      out
ac      check-box        off          -          &AC
type    radio            none         -          -
                         #0           -          &Voltage
                         #1           -          &Current
                         #2           disabled   &Power
off     check-box        off          disabled   O&ff
sweep   button           -            -          &Sweep...
ask     button           -            -          As&k
file    button           -            -          F&ile
say     button           -            -          Sa&y
fail    button           -            -          Fail
add     button           -            disabled   Add
secret  edit             ""           hidden     Secret:
fixed   edit             "as it is"   read-only  -
table   table            none         -          -
                         #0                      ["r1","5"]
                         #1                      ["r2",""]
tabs    tabs             #0           -          -
                         #0                      One
                         #1                      Two
group   group            "Group"      -          Group
note    static           "a note"     -          -
)");
}

TEST(Describe, APageWithoutANodeAndTextsThatFillNoCell)
{
    EXPECT_EQ(Describe("CTestLonePage"), R"(-  CTestLonePage

KEY        KIND       START VALUE                                   FLAGS  LABEL
name       edit       ""                                            -      &Name:
empty      list-box   none                                          -      -
two-lines  check-box  off                                           -      "Two\nlines"
note       static     "1234567890 234567890 234567890 2345çèé\nê…"  -      -
)");
}

TEST(Describe, TheJsonHoldsALongTextWhole)
{
    EXPECT_NE(
        Describe("CTestLonePage", true)
            .find("\"1234567890 234567890 234567890 2345\u00e7\u00e8\u00e9\\n\u00ea and no more\""),
        std::string::npos);
}

TEST(Describe, TheJsonHoldsTheSame)
{
    const auto description = nlohmann::json::parse(Describe("Tests/All kinds", true));
    EXPECT_EQ(description["page"], "Tests/All kinds");
    EXPECT_EQ(description["class"], "CTestAllKindsPage");
    const auto expected = nlohmann::json::parse(R"([
{"key":"name","kind":"edit","label":"&Name:","unit":"V",
 "entries":null,"start_value":"","enabled":true,"visible":true,"read_only":false},
{"key":"lines","kind":"multi-line-edit","label":"&Lines:",
 "entries":null,"start_value":"","enabled":true,"visible":true,"read_only":false},
{"key":"kind","kind":"drop-down-list","label":"&Kind:",
 "entries":["linear","decade","octave"],
 "start_value":"","enabled":true,"visible":true,"read_only":false},
{"key":"node","kind":"drop-down","label":"N&ode:",
 "entries":["in","out"],"start_value":"","enabled":true,"visible":true,"read_only":false},
{"key":"list","kind":"list-box","label":null,
 "entries":["in","out"],"start_value":-1,"enabled":true,"visible":true,"read_only":false},
{"key":"ac","kind":"check-box","label":"&AC",
 "entries":null,"start_value":false,"enabled":true,"visible":true,"read_only":false},
{"key":"type","kind":"radio","label":null,
 "entries":["&Voltage","&Current","&Power"],
 "buttons":[{"label":"&Voltage","enabled":true,"visible":true},
            {"label":"&Current","enabled":true,"visible":true},
            {"label":"&Power","enabled":false,"visible":true}],
 "start_value":-1,"enabled":true,"visible":true,"read_only":false},
{"key":"off","kind":"check-box","label":"O&ff",
 "entries":null,"start_value":false,"enabled":false,"visible":true,"read_only":false},
{"key":"sweep","kind":"button","label":"&Sweep...",
 "entries":null,"start_value":null,"enabled":true,"visible":true,"read_only":false},
{"key":"ask","kind":"button","label":"As&k",
 "entries":null,"start_value":null,"enabled":true,"visible":true,"read_only":false},
{"key":"file","kind":"button","label":"F&ile",
 "entries":null,"start_value":null,"enabled":true,"visible":true,"read_only":false},
{"key":"say","kind":"button","label":"Sa&y",
 "entries":null,"start_value":null,"enabled":true,"visible":true,"read_only":false},
{"key":"fail","kind":"button","label":"Fail",
 "entries":null,"start_value":null,"enabled":true,"visible":true,"read_only":false},
{"key":"add","kind":"button","label":"Add",
 "entries":null,"start_value":null,"enabled":false,"visible":true,"read_only":false},
{"key":"secret","kind":"edit","label":"Secret:",
 "entries":null,"start_value":"","enabled":true,"visible":false,"read_only":false},
{"key":"fixed","kind":"edit","label":null,
 "entries":null,"start_value":"as it is","enabled":true,"visible":true,"read_only":true},
{"key":"table","kind":"table","label":null,
 "entries":[["r1","5"],["r2",""]],
 "start_value":-1,"enabled":true,"visible":true,"read_only":false},
{"key":"tabs","kind":"tabs","label":null,
 "entries":["One","Two"],"start_value":0,"enabled":true,"visible":true,"read_only":false},
{"key":"group","kind":"group","label":"Group",
 "entries":null,"start_value":"Group","enabled":true,"visible":true,"read_only":false},
{"key":"note","kind":"static","label":null,
 "entries":null,"start_value":"a note","enabled":true,"visible":true,"read_only":false}
])");
    EXPECT_EQ(description["controls"], expected) << description["controls"].dump();
}
} // namespace
} // namespace quorvawiz::cli
