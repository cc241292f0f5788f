// The commands of the page of measurements, and what it says when a field is missing.

#include "support/Look.h"
#include "support/PageTest.h"
#include "support/Steps.h"
#include "wizard/sources/SourcePageRun.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;

using MeasureLines = PageTest;

constexpr const char* kPath = "Output/Measure";

// --- Difference

const std::vector<TSourceCase> kDifferences{
    {"from a crossing to a rise",
     {"analysis-type=Transient", "result-name=rt", "trigger-mode=When", "trigger-signal=v(a)",
      "trigger-value=0.5", "trigger-delay=1n", "trigger-crossing-kind=crossing",
      "trigger-crossing-number=1", "target-signal=v(b)", "target-value=0.5",
      "target-crossing-kind=rise", "target-crossing-number=last"},
     ".measure tran rt trig v(a) val=0.5 td=1n cross=1 targ v(b) val=0.5 rise=last"},
    {"from an x-value",
     {"analysis-type=AC", "result-name=r", "at-value=1k", "target-signal=v(b)", "target-value=1",
      "target-crossing-kind=fall", "target-crossing-number=10", "goal=2", "weight=3"},
     ".measure ac r trig at=1k targ v(b) val=1 fall=10 goal=2 weight=3"},
    {"with a delay of the target",
     {"result-name=r", "at-value=0", "target-signal=v(b)", "target-value=1", "target-delay=2n"},
     ".measure dc r trig at=0 targ v(b) val=1 td=2n cross=1"},
    {"meant: nothing but names and the optimization is trimmed",
     {"result-name=r", "at-value= 1 ", "target-signal= v(b) ", "target-value= 2 ",
      "target-delay= 3 "},
     ".measure dc r trig at= 1  targ  v(b)  val= 2  td= 3  cross=1"},
    {"blanks are values",
     {"result-name=r", "at-value= ", "target-signal= ", "target-value= "},
     ".measure dc r trig at=  targ   val=  cross=1"},

    {"no at-value", {"result-name=r"}, "", "[Missing at-value.]"},
    {"no trigger signal",
     {"result-name=r", "trigger-mode=When"},
     "",
     "[Missing trigger output signal.]"},
    {"no trigger value",
     {"result-name=r", "trigger-mode=When", "trigger-signal=v(a)"},
     "",
     "[Missing trigger value.]"},
    {"no target signal", {"result-name=r", "at-value=1"}, "", "[Missing target output signal.]"},
    {"no target value",
     {"result-name=r", "at-value=1", "target-signal=v(b)"},
     "",
     "[Missing target value.]"},
    {"no target signal behind a whole trigger",
     {"result-name=r", "trigger-mode=When", "trigger-signal=v(a)", "trigger-value=1"},
     "",
     "[Missing target output signal.]"},
};

TEST_F(MeasureLines, ADifferenceRunsFromItsTriggerToItsTarget)
{
    gExpectLines(kPath, {}, kDifferences);
}

TEST_F(MeasureLines, WithTriggerAndTargetIncompleteTheTriggerAloneIsMissed)
{
    gExpectLines(kPath, {"result-name=r", "trigger-mode=When"},
                 {{"both signals", {}, "", "[Missing trigger output signal.]"},
                  {"trigger value and target signal",
                   {"trigger-signal=v(a)"},
                   "",
                   "[Missing trigger value.]"}});
}

TEST_F(MeasureLines, EveryCrossingHasItsKeywordAndEveryNumberItself)
{
    std::vector<TSourceCase> cases;
    for (const char* const pNumber : {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "last"})
        for (const auto& [pKind, pKeyword] :
             {std::pair{"crossing", " cross="}, {"rise", " rise="}, {"fall", " fall="}})
            cases.push_back(
                {pNumber,
                 {std::string("target-crossing-kind=") + pKind,
                  std::string("target-crossing-number=") + pNumber},
                 std::string(".measure dc r trig at=1 targ s val=2") + pKeyword + pNumber});
    gExpectLines(kPath, {"result-name=r", "at-value=1", "target-signal=s", "target-value=2"},
                 cases);
}

// --- Signal statistics

const std::vector<TSourceCase> kStatistics{
    {"the largest, between two points, of another signal",
     {"kind=#4", "output-signal=v(a)", "from=0", "to=5", "reported-signal=v(b)"},
     ".measure dc m max v(a) from=0 to=5 output=v(b)"},
    {"the smallest, of another signal",
     {"kind=#5", "output-signal=v(a)", "reported-signal=v(b)"},
     ".measure dc m min v(a) output=v(b)"},
    {"the largest alone", {"kind=#4", "output-signal=v(a)"}, ".measure dc m max v(a)"},
    {"from alone", {"output-signal=v(a)", "from=1"}, ".measure dc m amax v(a) from=1"},
    {"to alone", {"output-signal=v(a)", "to=1"}, ".measure dc m amax v(a) to=1"},
    {"where it is the largest", {"kind=#0", "output-signal=v(a)"}, ".measure dc m amax v(a)"},
    {"where it is the smallest", {"kind=#1", "output-signal=v(a)"}, ".measure dc m amin v(a)"},
    {"average", {"kind=#2", "output-signal=v(a)"}, ".measure dc m avg v(a)"},
    {"integral", {"kind=#3", "output-signal=v(a)"}, ".measure dc m integral v(a)"},
    {"peak to peak", {"kind=#6", "output-signal=v(a)"}, ".measure dc m pp v(a)"},
    {"root of the mean square", {"kind=#7", "output-signal=v(a)"}, ".measure dc m rms v(a)"},
    {"fields aren't trimmed",
     {"output-signal= v(a) ", "from= 1 ", "to= 2 "},
     ".measure dc m amax  v(a)  from= 1  to= 2 "},
    {"no signal", {}, "", "[Missing output signal.]"},
    {"a reported signal is none",
     {"kind=#4", "reported-signal=v(b)"},
     "",
     "[Missing output signal.]"},
};

TEST_F(MeasureLines, AStatisticHasItsKeyword)
{
    gExpectLines(kPath, {"result-name=m", "measurement-type=Signal statistics"}, kStatistics);
}

// --- Find-when

const std::vector<TSourceCase> kFindWhens{
    {"a value at a point",
     {"find-signal=v(a)", "when-x-value=1u"},
     ".measure tran f find v(a) at=1u"},
    {"the point where a signal has a value",
     {"when-row=#1", "find-choice=x-value", "when-signal=v(b)", "when-value=1",
      "value-row-crossing-kind=crossing", "value-row-crossing-number=2"},
     ".measure tran f when v(b)=1 cross=2"},
    {"a value where a signal has a value",
     {"when-row=#1", "find-signal=v(a)", "when-signal=v(b)", "when-value=1", "value-row-delay=1n",
      "value-row-crossing-kind=fall", "value-row-crossing-number=last"},
     ".measure tran f find v(a) when v(b)=1 td=1n fall=last"},
    {"a value where two signals meet",
     {"when-row=#2", "find-signal=v(a)", "signal-row-first-signal=v(b)",
      "signal-row-second-signal=v(c)", "signal-row-crossing-kind=rise",
      "signal-row-crossing-number=1"},
     ".measure tran f find v(a) when v(b)=v(c) rise=1"},
    {"the point where two signals meet begins with when",
     {"when-row=#2", "find-choice=x-value", "signal-row-first-signal=v(b)",
      "signal-row-second-signal=v(c)", "signal-row-delay=2n"},
     ".measure tran f when v(b)=v(c) td=2n cross=1"},
    {"fields aren't trimmed",
     {"find-signal= v(a) ", "when-x-value= 1 "},
     ".measure tran f find  v(a)  at= 1 "},

    {"nothing to be found at a point", {"when-x-value=1"}, "", "[Missing output signal #1.]"},
    {"no point", {"find-signal=v(a)"}, "", "[Missing at-value.]"},
    {"meant: nothing to be found with a value is missed without a full stop",
     {"when-row=#1", "when-signal=v(b)", "when-value=1"},
     "",
     "[Missing output signal #1]"},
    {"meant: nor has it one where two signals meet",
     {"when-row=#2"},
     "",
     "[Missing output signal #1]"},
    {"no signal with a value",
     {"when-row=#1", "find-choice=x-value"},
     "",
     "[Missing output signal #2.]"},
    {"no value",
     {"when-row=#1", "find-signal=v(a)", "when-signal=v(b)"},
     "",
     "[Missing value of output signal.]"},
    {"no first signal", {"when-row=#2", "find-signal=v(a)"}, "", "[Missing output signal #2.]"},
    {"no second signal",
     {"when-row=#2", "find-choice=x-value", "signal-row-first-signal=v(b)"},
     "",
     "[Missing output signal #3.]"},
};

TEST_F(MeasureLines, AFindWhenFindsAValueOrAPoint)
{
    gExpectLines(kPath, {"analysis-type=Transient", "result-name=f", "measurement-type=Find-when"},
                 kFindWhens);
}

// --- Expression evaluation and Error function

TEST_F(MeasureLines, AnExpressionIsTrimmedAtBothEnds)
{
    gExpectLines(kPath, {"result-name=e", "measurement-type=Expression evaluation"},
                 {{"printing suppressed",
                   {"analysis-type=AC", "expression=a+b", "suppress-printing=on"},
                   ".measure ac e param='a+b' off"},
                  {"blanks", {"expression= a + b "}, ".measure dc e param='a + b'"},
                  {"nothing", {}, "", "[Missing expression.]"},
                  {"nothing but blanks", {"expression=  "}, "", "[Missing expression.]"}});
}

TEST_F(MeasureLines, AnErrorLiesBetweenTwoSignals)
{
    gExpectLines(
        kPath, {"analysis-type=Transient", "result-name=x", "measurement-type=Error function"},
        {{"from a point",
          {"kind=#1", "first-signal=v(a)", "second-signal=v(b)", "from=0"},
          ".measure tran x err1 v(a) v(b) from=0"},
         {"the plain one", {"first-signal=a", "second-signal=b"}, ".measure tran x err a b"},
         {"the second",
          {"kind=#2", "first-signal=a", "second-signal=b", "from=1", "to=2"},
          ".measure tran x err2 a b from=1 to=2"},
         {"the third",
          {"kind=#3", "first-signal=a", "second-signal=b", "to=2"},
          ".measure tran x err3 a b to=2"},
         {"no first signal", {"second-signal=b"}, "", "[Missing output signal #1.]"},
         {"no second signal", {"first-signal=a"}, "", "[Missing output signal #2.]"}});
}

// --- name and options

TEST_F(MeasureLines, NameAndOptimizationAreTrimmedOnTheLeftOnly)
{
    gExpectLines(kPath, {"measurement-type=Expression evaluation", "expression=a"},
                 {{"the blanks behind stay",
                   {"result-name=  e  ", "goal= 1 ", "minimum-value= 2 ", "weight= 3 "},
                   ".measure dc e   param='a' goal=1  minval=2  weight=3 "},
                  {"blanks alone are nothing",
                   {"result-name=e", "goal= ", "minimum-value= ", "weight= "},
                   ".measure dc e param='a'"}});
}

TEST_F(MeasureLines, TheOptionsStandInOneOrderAndOnlyThoseThatAreGiven)
{
    gExpectLines(kPath, {"result-name=e", "measurement-type=Expression evaluation", "expression=a"},
                 {{"all",
                   {"weight=3", "minimum-value=2", "goal=1", "suppress-printing=on"},
                   ".measure dc e param='a' goal=1 minval=2 weight=3 off"},
                  {"a minimum value", {"minimum-value=2"}, ".measure dc e param='a' minval=2"},
                  {"none writes no goal of 0", {}, ".measure dc e param='a'"}});
}

TEST_F(MeasureLines, AResultNeedsANameBeforeAllElse)
{
    std::vector<TSourceCase> cases;
    for (int nType = 0; nType < 5; ++nType)
        for (const char* const pName : {"", "  "})
            cases.push_back({pName,
                             {"measurement-type=#" + std::to_string(nType),
                              std::string("result-name=") + pName},
                             "",
                             "[Missing result name.]"});
    gExpectLines(kPath, {}, cases);
}

// --- what stays in the run's command string

TEST_F(MeasureLines, AFailureBehindTheNameLeavesTheBeginningInTheRunsCommand)
{
    for (int nType = 0; nType < 5; ++nType) {
        SCOPED_TRACE(nType);
        const auto outcome = gRunWizard(
            CScript()
                .Do({Open(kPath), Select("analysis-type", "AC"), Select("measurement-type", nType),
                     Set("result-name", " r "), Insert()})
                .Look({look::Command(".measure ac r ")})
                .Do({Open("Analysis/Stability"), Insert()}));
        EXPECT_EQ(outcome.inserted, std::vector<std::string>{".measure ac r "});
    }
}

TEST_F(MeasureLines, AMissingNameLeavesTheRunsCommandAsItWas)
{
    gRunWizard(CScript()
                   .Do({Open("Output/Power"), Set("source", "v1"), Insert(), Open(kPath), Insert()})
                   .Look({look::Command(".power v1")}));
}
} // namespace
