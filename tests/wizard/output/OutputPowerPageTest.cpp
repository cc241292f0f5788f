#include "support/Look.h"
#include "support/PageTest.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"
#include "wizard/sources/SourcePageRun.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;

using PowerPage = PageTest;

constexpr const char* kPath = "Output/Power";
constexpr const char* kUntranslatedMissing = "Missing voltage source name.";

const std::vector<TSourceCase> kCases{
    {"a source", {"source= vdd "}, ".power vdd"},
    {"a resistor is as good", {"source=r1"}, ".power r1"},
    {"from a start", {"source=vdd", "start-time=1n"}, ".power vdd 1n"},
    {"up to an end, 0 fills the start's place", {"source=vdd", "end-time=5n"}, ".power vdd 0 5n"},
    {"from a start to an end", {"source=vdd", "start-time=1n", "end-time=5n"}, ".power vdd 1n 5n"},
    {"times aren't trimmed",
     {"source=vdd", "start-time= 1n ", "end-time= 5n "},
     ".power vdd  1n   5n "},
    {"a start of blanks is one",
     {"source=vdd", "start-time=  ", "end-time=5n"},
     ".power vdd    5n"},
    {"an end of blanks is one", {"source=vdd", "end-time= "}, ".power vdd 0  "},
    {"no source", {"start-time=1n"}, "", kUntranslatedMissing},
    {"blanks are no source", {"source= "}, "", kUntranslatedMissing},
};

TEST_F(PowerPage, BuildsThePowerCommandAndMissesItsSourceUntranslated)
{
    gExpectLines(kPath, {}, kCases);
}

TEST_F(PowerPage, ItsTextsAreThoseOfTheTemplate)
{
    EXPECT_EQ(gShownBy("COutputPowerPage"), R"(
source: &Voltage source or resistor through which to compute power dissipated:
start-time: &Start time (0): [sec]
end-time: &End time (simulation end): [sec]
)");
}

TEST_F(PowerPage, ASuccessIsRememberedWithItsSourceTrimmedAndItsTimesAsTyped)
{
    gRunWizard(CScript()
                   .Do({Open(kPath), Set("source", " vdd "), Set("start-time", " 1n "),
                        Set("end-time", "5n"), Insert()})
                   .Look({look::Text("source", " vdd ")}) // not written back
                   .Do({Set("source", ""), Set("end-time", "6n"), Insert()})
                   .Look({look::Command(".power vdd  1n  5n")}));
    gRunWizard(CScript()
                   .Do({Open(kPath)})
                   .Look({look::Text("source", "vdd"), look::Text("start-time", " 1n "),
                          look::Text("end-time", "5n")}));
}
} // namespace
