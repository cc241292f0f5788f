#include "platform/ui/FieldView.h"
#include "support/Look.h"
#include "support/PageTest.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;

constexpr const char* kPath = "Initialization/DC guess";
constexpr int kSets = 6;

using DCGuessPage = PageTest;

std::string Cell(const char* pColumn, int nSet)
{
    return std::string(pColumn) + "-" + std::to_string(nSet);
}

/// All cells in the order of their unlocking: node 1, reference 1, value 1, node 2, and so on.
std::vector<std::string> Chain()
{
    std::vector<std::string> cells;
    for (int nSet = 1; nSet <= kSets; ++nSet)
        for (const char* pColumn : {"node", "reference", "value"})
            cells.push_back(Cell(pColumn, nSet));
    return cells;
}

/// Just these cells are enabled, by a letter for each column and an 'x' for a disabled cell:
/// "nrv nxx ..." or shorter, when the rest is disabled.
CScript::TAction Open(const std::string& rsCells)
{
    return [rsCells](CDialog& rDialog) {
        std::string sFound;
        for (const std::string& rsCell : Chain()) {
            const bool bUsable = gFindField(rDialog, rsCell).pControl->IsUsable();
            sFound += bUsable ? rsCell.front() : 'x';
        }
        std::string sExpected;
        for (const char ch : rsCells)
            if (ch != ' ')
                sExpected += ch;
        sExpected.resize(3 * kSets, 'x');
        EXPECT_EQ(sFound, sExpected);
    };
}

TStep OpenPage()
{
    return steps::Open(kPath);
}

/// The texts of these cells, from node 1 on: each set is node, reference, value.
std::vector<TStep> Fill(const std::vector<std::vector<const char*>>& rSets)
{
    std::vector<TStep> steps{OpenPage()};
    for (std::size_t n = 0; n < rSets.size(); ++n) {
        const int nSet = static_cast<int>(n) + 1;
        steps.push_back(Set(Cell("node", nSet), rSets[n][0]));
        steps.push_back(Set(Cell("reference", nSet), rSets[n][1]));
        steps.push_back(Set(Cell("value", nSet), rSets[n][2]));
    }
    return steps;
}

const std::vector<std::vector<const char*>> kSixSets = {
    {"a", "", "1"}, {"b", "", "2"}, {"c", "", "3"}, {"d", "", "4"}, {"e", "", "5"}, {"f", "", "6"}};

// --- the template

TEST_F(DCGuessPage, ItsTemplateIsAGridOfWhichOnlyTheFirstNodeIsEnabled)
{
    gRunWizard(CScript()
                   .Do({OpenPage()})
                   .Look({look::Text("guesses-group", "DC node voltage guesses"),
                          look::Text("node-title", "Node"),
                          look::Text("reference-title", "Reference node (GND)"),
                          look::Text("value-title", "DC voltage guess (V)"), Open("nxx")})
                   .Then([](CDialog& rDialog) {
                       for (const std::string& rsCell : Chain()) {
                           const TFieldView cell = gFindField(rDialog, rsCell);
                           EXPECT_EQ(cell.kind, EControl::Edit) << rsCell;
                           EXPECT_EQ(cell.pControl->GetWindowText(), "") << rsCell;
                           EXPECT_EQ((cell.pControl->GetControlFlags() & kDisabled) == 0,
                                     rsCell == "node-1")
                               << rsCell;
                       }
                   }));
}

// --- the chain

/// The cells up to and with a gate of a set are enabled: its node, or its value.
std::string OpenUpTo(const std::string& rsColumn, int nSet)
{
    std::string sCells;
    for (int n = 1; n < nSet; ++n)
        sCells += "nrv";
    return sCells + (rsColumn == "node" ? "n" : "nrv");
}

TEST_F(DCGuessPage, EachGateLocksAllBehindItAndOpensItAgain)
{
    const std::string sAll = OpenUpTo("value", kSets);
    for (const char* const pColumn : {"node", "value"}) {
        for (int nSet = 1; nSet <= kSets; ++nSet) {
            const std::string sGate = Cell(pColumn, nSet);
            SCOPED_TRACE(sGate);
            std::vector<TStep> filled = Fill(kSixSets);
            gRunWizard(CScript()
                           .Do(filled)
                           .Look({Open(sAll)})
                           .Do({Set(sGate, "")})
                           .Look({Open(OpenUpTo(pColumn, nSet))})
                           .Do({Set(sGate, "z")})
                           .Look({Open(sAll)}));
        }
    }
}

struct TChainCase {
    const char* pName;
    std::vector<TStep> steps;
    const char* pOpen;
};

std::vector<TStep> SixSetsThen(std::vector<TStep> more)
{
    std::vector<TStep> steps = Fill(kSixSets);
    steps.insert(steps.end(), more.begin(), more.end());
    return steps;
}

const TChainCase kChainCases[] = {
    {"a node unlocks its reference and its value", {OpenPage(), Set("node-1", "a")}, "nrv xxx"},
    {"a value unlocks the next node",
     {OpenPage(), Set("node-1", "a"), Set("value-1", "1")},
     "nrv nxx"},
    {"a reference unlocks nothing",
     {OpenPage(), Set("node-1", "a"), Set("reference-1", "r")},
     "nrv xxx"},
    {"all six sets", Fill(kSixSets), "nrv nrv nrv nrv nrv nrv"},
    {"an emptied node locks all behind it", SixSetsThen({Set("node-1", "")}), "nxx"},
    {"an emptied value locks all behind it, not its reference", SixSetsThen({Set("value-2", "")}),
     "nrv nrv"},
    {"an emptied node in the middle", SixSetsThen({Set("node-4", "")}), "nrv nrv nrv nxx"},
    {"the last node locks its own set", SixSetsThen({Set("node-6", "")}),
     "nrv nrv nrv nrv nrv nxx"},
    {"the last value locks and unlocks nothing", SixSetsThen({Set("value-6", "")}),
     "nrv nrv nrv nrv nrv nrv"},
    {"what was locked keeps its text and is unlocked by a walk down the chain",
     SixSetsThen({Set("node-1", ""), Set("node-1", "z")}), "nrv nrv nrv nrv nrv nrv"},
    {"the walk stops at an empty node",
     SixSetsThen({Set("node-3", ""), Set("node-1", ""), Set("node-1", "z")}), "nrv nrv nxx"},
    {"the walk stops at an empty value",
     SixSetsThen({Set("value-3", ""), Set("value-1", ""), Set("value-1", "9")}), "nrv nrv nrv"},
    // --- blanks
    {"a blank opens behind node 1", {OpenPage(), Set("node-1", " ")}, "nrv"},
    {"a blank opens behind value 1",
     {OpenPage(), Set("node-1", "a"), Set("value-1", " ")},
     "nrv nxx"},
    {"a blank opens behind node 2", SixSetsThen({Set("node-2", " ")}), "nrv nrv nrv nrv nrv nrv"},
    {"a blank opens behind value 2", SixSetsThen({Set("value-2", " ")}), "nrv nrv nrv nrv nrv nrv"},
    {"a blank opens behind node 3", SixSetsThen({Set("node-3", " ")}), "nrv nrv nrv nrv nrv nrv"},
    {"a blank closes behind value 3", SixSetsThen({Set("value-3", " ")}), "nrv nrv nrv"},
    {"a blank closes behind node 4", SixSetsThen({Set("node-4", "\t ")}), "nrv nrv nrv nxx"},
    {"a blank closes behind value 4", SixSetsThen({Set("value-4", " ")}), "nrv nrv nrv nrv"},
    {"a blank closes behind node 5", SixSetsThen({Set("node-5", " ")}), "nrv nrv nrv nrv nxx"},
    {"a blank closes behind value 5", SixSetsThen({Set("value-5", " ")}), "nrv nrv nrv nrv nrv"},
    {"a blank closes behind node 6", SixSetsThen({Set("node-6", " ")}), "nrv nrv nrv nrv nrv nxx"},
    {"a walk sees a blank gate behind it as a text",
     SixSetsThen({Set("value-4", " "), Set("value-3", "9")}), "nrv nrv nrv nrv nrv nrv"},
};

TEST_F(DCGuessPage, GatesUnlockAndLockTheChainBehindThem)
{
    for (const TChainCase& rCase : kChainCases) {
        SCOPED_TRACE(rCase.pName);
        gRunWizard(CScript().Do(rCase.steps).Look({Open(rCase.pOpen)}));
    }
}

TEST_F(DCGuessPage, LockingClearsNoCellAndTheHandlersTrimNoneOnTheScreen)
{
    gRunWizard(CScript()
                   .Do(SixSetsThen({Set("node-4", " d "), Set("node-1", "")}))
                   .Look({look::Text("node-4", " d "), look::Text("value-6", "6")}));
}

TEST_F(DCGuessPage, ALockedCellTakesNoText)
{
    gRunWizard(CScript()
                   .Do({OpenPage()})
                   .Refused(Set("value-1", "1"), EStepEnd::Refused, EUserResult::Disabled));
}

// --- the command

struct TCase {
    const char* pName;
    std::vector<TStep> steps;
    std::vector<std::string> inserted;
    std::vector<std::string> messages;
};

const TCase kCases[] = {
    {"nothing is filled in", {OpenPage()}, {}, {"No initial guesses specified."}},
    {"one set", Fill({{"a", "", "1"}}), {".nodeset v(a)=1"}, {}},
    {"three sets in ascending order",
     Fill({{"a", "b", "1.5"}, {"c", "", "0"}, {"d", "gnd2", "2"}}),
     {".nodeset v(a,b)=1.5 v(c)=0 v(d,gnd2)=2"},
     {}},
    {"six sets", Fill(kSixSets), {".nodeset v(a)=1 v(b)=2 v(c)=3 v(d)=4 v(e)=5 v(f)=6"}, {}},
    {"trimmed on the left only", Fill({{" a ", " b ", " 1 "}}), {".nodeset v(a ,b )=1 "}, {}},
    {"a reference of blanks is none", Fill({{"a", "  ", "1"}}), {".nodeset v(a)=1"}, {}},
    {"a value of blanks is missing",
     Fill({{"a", "", " "}}),
     {},
     {"Missing initial guess value for DC guess set 1."}},
    {"sets 1 and 2 filled in, then the value of set 1 emptied",
     {OpenPage(), Set("node-1", "a"), Set("value-1", "1"), Set("node-2", "b"), Set("value-2", "2"),
      Set("value-1", "")},
     {},
     {"Missing initial guess value for DC guess set 1."}},
    {"of several missing values the highest set's is reported",
     SixSetsThen({Set("value-6", ""), Set("value-5", " "), Set("value-2", "")}),
     {},
     {"Missing initial guess value for DC guess set 6."}},
    {"the node edited last says how many sets are taken, not the highest in use",
     SixSetsThen({Set("node-1", "z")}),
     {".nodeset v(z)=1"},
     {}},
    {"the count rises again when a later node is edited",
     SixSetsThen({Set("node-1", "z"), Set("node-3", "y")}),
     {".nodeset v(z)=1 v(b)=2 v(y)=3"},
     {}},
    {"a value doesn't change the count",
     SixSetsThen({Set("node-1", "z"), Set("value-3", "9")}),
     {".nodeset v(z)=1"},
     {}},
    {"an emptied node doesn't lower the count and is never missed",
     {OpenPage(), Set("node-1", "a"), Set("value-1", "1"), Set("node-2", "b"), Set("value-2", "2"),
      Set("node-2", "")},
     {".nodeset v(a)=1 v()=2"},
     {}},
    {"a node of blanks counts in the first sets",
     {OpenPage(), Set("node-1", " "), Set("value-1", "1")},
     {".nodeset v()=1"},
     {}},
    {"a node of blanks doesn't count from set 4 on",
     SixSetsThen({Set("node-1", "z"), Set("node-4", " ")}),
     {".nodeset v(z)=1"},
     {}},
};

TEST_F(DCGuessPage, BuildsTheNodesetCommand)
{
    for (const TCase& rCase : kCases) {
        SCOPED_TRACE(rCase.pName);
        CRememberedBase::ResetAll();
        const auto outcome = gRunWizard(CScript().Do(rCase.steps).Do({Insert()}));
        EXPECT_EQ(outcome.inserted, rCase.inserted);
        EXPECT_EQ(outcome.messages, rCase.messages);
    }
}

TEST_F(DCGuessPage, EachSetHasItsOwnTranslatedMessage)
{
    const CBracketTranslation translation;
    const auto page = steps::Open("[Initialization]/[DC guess]");
    EXPECT_EQ(gRunWizard({page, Insert()}).messages,
              std::vector<std::string>{"[No initial guesses specified.]"});
    for (int nSet = 1; nSet <= kSets; ++nSet) {
        std::vector<TStep> steps = Fill(kSixSets);
        steps.front() = page;
        steps.push_back(Set(Cell("value", nSet), ""));
        steps.push_back(Insert());
        EXPECT_EQ(gRunWizard(steps).messages,
                  std::vector<std::string>{"[Missing initial guess value for DC guess set " +
                                           std::to_string(nSet) + ".]"});
    }
}

TEST_F(DCGuessPage, AFailedAttemptLeavesNodesetInTheRunsCommand)
{
    gRunWizard(CScript().Do({OpenPage(), Insert()}).Look({look::Command(".nodeset")}));
    gRunWizard(
        CScript().Do({OpenPage(), Set("node-1", "a"), Insert()}).Look({look::Command(".nodeset")}));
}

TEST_F(DCGuessPage, AnAttemptLeavesTheCellsAsTheyWereTypedAndOpen)
{
    const std::vector<CScript::TAction> looks{
        Open("nrv nrv nxx"), look::Text("node-1", " a "), look::Text("reference-1", " r"),
        look::Text("node-2", "b"), look::Text("value-2", " 2")};
    const auto typed = Fill({{" a ", " r", "1"}, {"b", "", " 2"}});
    gRunWizard(CScript().Do(typed).Do({Insert()}).Look(looks));
    gRunWizard(CScript().Do(typed).Do({Set("value-1", " "), Insert()}).Look(looks));
}

// --- what is remembered

TEST_F(DCGuessPage, TheNextRunShowsTheCellsTrimmedOnTheLeftAndUnlocksThem)
{
    gRunWizard(CScript().Do(Fill({{" a ", " r", " 1 "}, {"b", "", "2"}})).Do({Insert()}));
    gRunWizard(CScript()
                   .Do({OpenPage()})
                   .Look({look::Text("node-1", "a "), look::Text("reference-1", "r"),
                          look::Text("value-1", "1 "), look::Text("node-2", "b"),
                          look::Text("value-2", "2"), Open("nrv nrv nxx")}));
}

TEST_F(DCGuessPage, TheNextRunTakesAllSetsWhoseNodeHasAText)
{
    gRunWizard(CScript().Do(SixSetsThen({Set("node-1", "z"), Insert()})));
    EXPECT_EQ(gRunWizard({OpenPage(), Insert()}).inserted,
              std::vector<std::string>{".nodeset v(z)=1 v(b)=2 v(c)=3 v(d)=4 v(e)=5 v(f)=6"});
}

TEST_F(DCGuessPage, TheCountSurvivesWhenAllNodesAreEmpty)
{
    gRunWizard({OpenPage(), Set("node-1", "a"), Set("value-1", "1"), Set("node-1", ""), Insert()});
    gRunWizard(CScript().Do({OpenPage()}).Look({Open("nxx"), look::Text("value-1", "1")}));
    EXPECT_EQ(gRunWizard({OpenPage(), Insert()}).inserted,
              std::vector<std::string>{".nodeset v()=1"});
}

TEST_F(DCGuessPage, AtTheStartALaterNodeUnlocksItsSetThoughAnEarlierOneIsEmpty)
{
    gRunWizard(CScript()
                   .Do(Fill({{"a", "", "1"}, {"b", "", "2"}, {"c", "", "3"}}))
                   .Do({Set("node-1", ""), Insert()}));
    gRunWizard(CScript().Do({OpenPage()}).Look({Open("nxx xrv nrv nxx")}));
}

TEST_F(DCGuessPage, AFailedAttemptIsNotRemembered)
{
    gRunWizard({OpenPage(), Set("node-1", "a"), Set("value-1", "1"), Insert(), Set("node-1", "b"),
                Set("value-1", ""), Insert()});
    gRunWizard(
        CScript().Do({OpenPage()}).Look({look::Text("node-1", "a"), look::Text("value-1", "1")}));
}
} // namespace
