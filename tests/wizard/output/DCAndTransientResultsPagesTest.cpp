#include "support/Look.h"
#include "support/PageTest.h"
#include "support/Steps.h"
#include "wizard/sources/SourcePageRun.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;

using DCResultsPage = PageTest;
using TransientResultsPage = PageTest;

constexpr const char* kDC = "Output/DC results";
constexpr const char* kTransient = "Output/Transient results";

/// An item, or the message without it, the same on both pages.
struct TCase {
    const char* pName;
    TFieldValues fields;
    const char* pItem;
    const char* pMessage = "";
};

const TCase kCases[] = {
    {"a voltage", {"first-name= a "}, "v(a)"},
    {"a voltage against a reference", {"first-name=a", "second-name= b "}, "v(a,b)"},
    {"a current at a terminal",
     {"plot-type=Current (by terminal #)", "first-name=m1", "terminal-selection=Source"},
     "is(m1)"},
    {"a current at a node",
     {"plot-type=Current (by node name)", "first-name=r1", "second-name=a"},
     "i(r1,a)"},
    {"a charge at a terminal",
     {"plot-type=Charge (by terminal #)", "first-name=q1", "terminal-selection=Base"},
     "qb(q1)"},
    {"a charge at a node",
     {"plot-type=Charge (by node name)", "first-name=c1", "second-name=a"},
     "q(c1,a)"},
    {"a power", {"plot-type=Power", "first-name=r1"}, "p(r1)"},
    {"an expression", {"plot-type=Expression", "expression= v(a)*2 "}, "'v(a)*2'"},
    {"a name with a unit", {"first-name=a", "item-name=x", "item-unit=V"}, "x<V>=v(a)"},
    {"a name without a unit", {"first-name=a", "item-name=x"}, "x=v(a)"},
    {"a unit without a name", {"first-name=a", "item-unit=V"}, "v(a)"},

    {"no node", {}, "", "[Missing node name.]"},
    {"no device at a terminal", {"plot-type=#1"}, "", "[Missing node name.]"},
    {"meant: a device at a node is missed as a node", {"plot-type=#2"}, "", "[Missing node name.]"},
    {"no node at a device", {"plot-type=#2", "first-name=r1"}, "", "[Missing terminal node name.]"},
    {"a charge at a terminal without a device", {"plot-type=#3"}, "", "[Missing node name.]"},
    {"a charge at a node without a device", {"plot-type=#4"}, "", "[Missing node name.]"},
    {"a charge without its node",
     {"plot-type=#4", "first-name=c1", "second-name= "},
     "",
     "[Missing terminal node name.]"},
    {"no power", {"plot-type=Power", "first-name= "}, "", "[Missing node name.]"},
    {"no expression", {"plot-type=#6"}, "", "[Missing plot expression.]"},
};

void ExpectItems(const char* pPage, const std::string& rsKeyword)
{
    std::vector<TSourceCase> cases;
    for (const TCase& rCase : kCases)
        cases.push_back({rCase.pName, rCase.fields,
                         *rCase.pItem ? rsKeyword + " " + rCase.pItem : "", rCase.pMessage});
    gExpectLines(pPage, {}, cases);
}

TEST_F(DCResultsPage, BuildsASingleItem)
{
    ExpectItems(kDC, ".print dc");
}

TEST_F(TransientResultsPage, BuildsASingleItem)
{
    ExpectItems(kTransient, ".print tran");
}

TEST_F(DCResultsPage, ANameThatDoesNotBeginWithVIsAPowerAllTheSame)
{
    gExpectLines(kDC, {}, {{"a source", {"plot-type=Power", "first-name=i1"}, ".print dc p(i1)"}});
}

// --- blanks around name and unit

const TFieldValues kBlanks{"first-name= a ", "item-name= x ", "item-unit= V "};

TEST_F(DCResultsPage, TheNameIsTrimmedAndTheUnitIsNotInTheListAndInASingleItem)
{
    TFieldValues added = kBlanks;
    added.emplace_back("add");
    gExpectLines(kDC, {},
                 {{"a single item", kBlanks, ".print dc x< V >=v(a)"},
                  {"the list", added, ".print dc x< V >=v(a)"}});
}

TEST_F(TransientResultsPage, AnItemOfTheListKeepsTheBlankBehindItsNameAndTheOneBeforeItsUnit)
{
    gRunWizard(CScript()
                   .Do({Open(kTransient)})
                   .Fill(kBlanks)
                   .Do({Click("add")})
                   .Look({look::Entries("list", {"x < V>=v(a)"})})
                   .Do({Set("item-unit", ""), Click("add")})
                   .Look({look::Entries("list", {"x =v(a)", "x < V>=v(a)"})}));
}

TEST_F(TransientResultsPage, ASingleItemHasNameAndUnitAsTheyWereTyped)
{
    gExpectLines(kTransient, {},
                 {{"a unit", kBlanks, ".print tran  x < V >=v(a)"},
                  {"no unit", {"first-name=a", "item-name= x "}, ".print tran  x =v(a)"},
                  {"a name of blanks", {"first-name=a", "item-name= "}, ".print tran  =v(a)"}});
}

TEST_F(TransientResultsPage, AddTakesANameOfBlanksAway)
{
    gRunWizard(CScript()
                   .Do({Open(kTransient)})
                   .Fill({"first-name=a", "item-name=  ", "item-unit=V", "add"})
                   .Look({look::Entries("list", {"v(a)"})}));
}

TEST_F(TransientResultsPage, NameAndUnitAreRememberedAsTheyWereTyped)
{
    gRunWizard(CScript().Do({Open(kTransient)}).Fill(kBlanks).Do({Click("add"), Insert()}));
    gRunWizard(CScript()
                   .Do({Open(kTransient)})
                   .Look({look::Text("first-name", "a"), look::Text("item-name", " x "),
                          look::Text("item-unit", " V ")}));
}

TEST_F(DCResultsPage, ABlankNameAndABlankExpressionAreAddedAsEmptyOnes)
{
    gRunWizard(CScript()
                   .Do({Open(kDC), Set("first-name", " "), Click("add"),
                        Select("plot-type", "Expression"), Set("expression", " "), Click("add")})
                   .Look({look::Entries("list", {"''", "v()"})}));
}

// --- how the pages open

TEST_F(DCResultsPage, ARememberedTypeIsShownAndLetsItsTextsBeAdded)
{
    for (const char* pPage : {kDC, kTransient}) {
        SCOPED_TRACE(pPage);
        CRememberedBase::ResetAll();
        gRunWizard(
            {Open(pPage), Select("plot-type", "Expression"), Set("expression", "v(a)"), Insert()});
        gRunWizard(CScript()
                       .Do({Open(pPage)})
                       .Look({look::Text("plot-type", "Expression"), look::Shown("expression"),
                              look::Text("expression", "v(a)"), look::Shown("first-name", false),
                              look::Enabled("add")}));
    }
}
} // namespace
