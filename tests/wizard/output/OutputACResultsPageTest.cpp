#include "support/Look.h"
#include "support/PageTest.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"
#include "wizard/sources/SourcePageRun.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;

using ACResultsPage = PageTest;

constexpr const char* kPath = "Output/AC results";

const std::vector<TSourceCase> kCases{
    {"a voltage", {"first-name=a"}, ".print ac vm(a)"},
    {"a voltage against a reference", {"first-name=a", "second-name=b"}, ".print ac vm(a,b)"},
    {"phase", {"first-name=a", "format=Phase"}, ".print ac vp(a)"},
    {"real part", {"first-name=a", "format=Real part"}, ".print ac vr(a)"},
    {"imaginary part", {"first-name=a", "format=Imaginary part"}, ".print ac vi(a)"},
    {"decibels", {"first-name=a", "format=Decibels"}, ".print ac vdb(a)"},
    {"names are trimmed", {"first-name= a ", "second-name= b "}, ".print ac vm(a,b)"},
    {"a name with a unit",
     {"first-name=out", "second-name=in", "format=Decibels", "item-name=gain", "item-unit=dB"},
     ".print ac gain<dB>=vdb(out,in)"},
    {"a name without a unit", {"first-name=a", "item-name=x"}, ".print ac x=vm(a)"},
    {"a unit without a name", {"first-name=a", "item-unit=V"}, ".print ac vm(a)"},
    {"the name is trimmed, the unit isn't",
     {"first-name=a", "item-name= x ", "item-unit= V "},
     ".print ac x< V >=vm(a)"},
    {"a name of blanks is none", {"first-name=a", "item-name= "}, ".print ac vm(a)"},
    {"a current at a terminal",
     {"plot-type=Current (by terminal #)", "first-name=m1", "terminal-selection=Drain"},
     ".print ac imd(m1)"},
    {"a current at a node",
     {"plot-type=Current (by node name)", "first-name=r1", "second-name=a", "format=Phase"},
     ".print ac ip(r1,a)"},
    {"an expression",
     {"plot-type=Expression", "expression= v(a)/v(b) ", "item-name=ratio"},
     ".print ac ratio='v(a)/v(b)'"},

    {"nothing", {}, "", "[Missing node name.]"},
    {"blanks are no node", {"first-name= "}, "", "[Missing node name.]"},
    {"meant: a current at a terminal misses a node, too",
     {"plot-type=#1"},
     "",
     "[Missing node name.]"},
    {"a current at a node misses the device first", {"plot-type=#2"}, "", "[Missing device name.]"},
    {"a current at a node without its node",
     {"plot-type=#2", "first-name=r1", "second-name= "},
     "",
     "[Missing terminal node name.]"},
    {"a name is no expression", {"first-name=a", "plot-type=#3"}, "", "[Missing plot expression.]"},
    {"blanks are no expression",
     {"plot-type=#3", "expression= "},
     "",
     "[Missing plot expression.]"},
};

TEST_F(ACResultsPage, BuildsASingleItem)
{
    gExpectLines(kPath, {}, kCases);
}

TEST_F(ACResultsPage, EachTerminalHasItsLetterAndSomeShareOne)
{
    constexpr const char* kLetters[] = {"1", "2", "3", "4", "d", "g", "s",
                                        "b", "c", "b", "e", "s", "p", "n"};
    std::vector<TSourceCase> cases;
    for (std::size_t n = 0; n < std::size(kLetters); ++n)
        cases.push_back(
            {kLetters[n],
             {"plot-type=#1", "first-name=x", "terminal-selection=#" + std::to_string(n)},
             std::string(".print ac im") + kLetters[n] + "(x)"});
    gExpectLines(kPath, {}, cases);
}

TEST_F(ACResultsPage, TheItemsOfTheExampleStandInTheListAndInTheCommand)
{
    const auto outcome =
        gRunWizard(CScript()
                       .Do({Open(kPath)})
                       .Fill({"format=Decibels",
                              "first-name=out",
                              "second-name=in",
                              "item-name=gain",
                              "item-unit=dB",
                              "add",
                              "plot-type=Current (by terminal #)",
                              "format=Magnitude",
                              "first-name=m1",
                              "terminal-selection=Drain",
                              "item-name=",
                              "add",
                              "plot-type=Current (by node name)",
                              "format=Phase",
                              "first-name=r1",
                              "second-name=a",
                              "add",
                              "plot-type=Expression",
                              "expression=v(a)/v(b)",
                              "item-name=ratio",
                              "item-unit=",
                              "add"})
                       .Look({look::Entries("list", {"ratio='v(a)/v(b)'", "ip(r1,a)", "imd(m1)",
                                                     "gain<dB>=vdb(out,in)"})})
                       .Do({Insert()}));
    EXPECT_EQ(outcome.inserted,
              std::vector<std::string>{
                  ".print ac gain<dB>=vdb(out,in) imd(m1) ip(r1,a) ratio='v(a)/v(b)'"});
}

TEST_F(ACResultsPage, AFieldOfBlanksIsAddedAsAnEmptyName)
{
    gRunWizard(CScript()
                   .Do({Open(kPath), Set("first-name", " "), Click("add"),
                        Select("plot-type", "Expression"), Set("expression", "  "), Click("add"),
                        Select("plot-type", "Current (by node name)"), Set("second-name", " "),
                        Click("add")})
                   .Look({look::Entries("list", {"im(,)", "''", "vm()"})}));
}

TEST_F(ACResultsPage, AddTrimsTheNameAndNotTheUnit)
{
    gRunWizard(CScript()
                   .Do({Open(kPath)})
                   .Fill({"first-name= a ", "item-name= x ", "item-unit= V ", "add"})
                   .Look({look::Entries("list", {"x< V >=vm(a)"})}));
}

// --- how the page opens

TEST_F(ACResultsPage, ARememberedExpressionOpensInTheLookOfAVoltageAndIsBuiltAllTheSame)
{
    gRunWizard(
        {Open(kPath), Select("plot-type", "Expression"), Set("expression", "v(a)"), Insert()});
    const CBracketTranslation translation;
    const auto outcome = gRunWizard(
        CScript()
            .Do({Open("[Output]/[AC results]")})
            .Look({look::Text("plot-type", "Expression"), look::Shown("expression", false),
                   look::Text("expression", "v(a)"), look::Shown("note", false),
                   look::Label("first-name", "&Node name:"), look::Shown("first-name"),
                   look::Label("second-name", "&Reference node (GND):"), look::Shown("second-name"),
                   look::Shown("format"), look::Enabled("add", false)})
            .Do({Insert(), Set("first-name", "a"), Insert()})
            .Look({look::Enabled("add", false)})
            .Do({Select("plot-type", "Expression")})
            .Look(
                {look::Shown("expression"), look::Shown("first-name", false), look::Enabled("add")})
            .Do({Set("expression", ""), Insert()}));
    EXPECT_EQ(outcome.inserted, (std::vector<std::string>(2, ".print ac 'v(a)'")));
    EXPECT_EQ(outcome.messages, std::vector<std::string>{"[Missing plot expression.]"});
}

TEST_F(ACResultsPage, AddStaysDisabledAtOpeningWhateverTextCameBack)
{
    gRunWizard({Open(kPath), Set("first-name", "a"), Select("format", "Phase"), Insert()});
    gRunWizard(CScript()
                   .Do({Open(kPath)})
                   .Look({look::Text("first-name", "a"), look::Text("format", "Phase"),
                          look::Enabled("add", false)})
                   .Do({Set("first-name", "a")})
                   .Look({look::Enabled("add")}));
}
} // namespace
