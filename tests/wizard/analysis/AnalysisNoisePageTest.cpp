#include "support/Look.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"
#include "wizard/frame/Remembered.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;

constexpr const char* kPath = "Analysis/Noise";
constexpr const char* kIllegalName =
    "[Input source name is not a legal voltage or current source name.\n"
    "Voltage source names must start with 'V' and current source names\n"
    "must start with 'I'.]";

class NoisePage : public testing::Test
{
protected:
    NoisePage() { CRememberedBase::ResetAll(); }
};

struct TCase {
    const char* pName;
    const char* pOutput;
    const char* pReference;
    const char* pSource;
    std::vector<std::string> inserted;
    std::vector<std::string> messages;
};

const TCase kCases[] = {
    {"with a reference", "out", "in2", "vin", {".noise v(out,in2) vin"}, {}},
    {"without a reference", "out", "", "i1", {".noise v(out) i1"}, {}},
    {"blanks are no reference", "out", "  ", "i1", {".noise v(out) i1"}, {}},
    {"trimmed on the left only", " out ", " in2 ", " vin ", {".noise v(out ,in2 ) vin "}, {}},
    {"the first letter is looked at alone", "out", "", "input", {".noise v(out) input"}, {}},
    {"V", "out", "", "Vcc1", {".noise v(out) Vcc1"}, {}},
    {"v", "out", "", "vcc1", {".noise v(out) vcc1"}, {}},
    {"I", "out", "", "I2", {".noise v(out) I2"}, {}},
    {"another letter", "out", "", "r1", {}, {kIllegalName}},
    {"nothing: the source is missed first",
     "",
     "",
     "",
     {},
     {"[Missing input voltage or current source name.]"}},
    {"blanks are no source",
     "out",
     "",
     " ",
     {},
     {"[Missing input voltage or current source name.]"}},
    {"a wrong source before a missing output", "", "", "r1", {}, {kIllegalName}},
    {"no output", " ", "in2", "vin", {}, {"[Missing output node.]"}},
};

TEST_F(NoisePage, AFailureLeavesTheRunsCommandAsItWas)
{
    gRunWizard(CScript()
                   .Do({Open("Analysis/Noise")})
                   .Fill({"output-node=1", "input-source=v1"})
                   .Do({Insert(), Set("input-source", ""), Insert()})
                   .Look({look::Command(".noise v(1) v1")}));
}

TEST_F(NoisePage, ReportsAMissingSourceBeforeAWrongOneAndThatBeforeAMissingOutput)
{
    const CBracketTranslation translation;
    const auto outcome = gRunWizard(
        {Open("[Analysis]/[Noise]"), Set("output-node", "out"), Insert(), Set("output-node", ""),
         Insert(), Set("input-source", "r1"), Insert(), Set("input-source", "v1"), Insert()});
    EXPECT_TRUE(outcome.inserted.empty());
    EXPECT_EQ(outcome.messages,
              (std::vector<std::string>{"[Missing input voltage or current source name.]",
                                        "[Missing input voltage or current source name.]",
                                        kIllegalName, "[Missing output node.]"}));
}

TEST_F(NoisePage, BuildsTheNoiseCommand)
{
    const CBracketTranslation translation;
    for (const TCase& rCase : kCases) {
        SCOPED_TRACE(rCase.pName);
        const auto outcome =
            gRunWizard({Open("[Analysis]/[Noise]"), Set("output-node", rCase.pOutput),
                        Set("reference-node", rCase.pReference), Set("input-source", rCase.pSource),
                        Insert()});
        EXPECT_EQ(outcome.inserted, rCase.inserted);
        EXPECT_EQ(outcome.messages, rCase.messages);
    }
}

TEST_F(NoisePage, TheNextRunShowsTheLastSuccessAndNothingOfAFailure)
{
    gRunWizard({Open(kPath), Set("output-node", " out"), Set("reference-node", "in2"),
                Set("input-source", "vin"), Insert(), Set("output-node", "b"),
                Set("reference-node", "c"), Set("input-source", "r1"), Insert()});
    gRunWizard(CScript()
                   .Do({Open(kPath)})
                   .Look({look::Text("output-node", "out"), look::Text("reference-node", "in2"),
                          look::Text("input-source", "vin")}));
}

TEST_F(NoisePage, ItsTextsAreThoseOfTheTemplate)
{
    const CBracketTranslation translation;
    gRunWizard(CScript()
                   .Do({Open("[Analysis]/[Noise]")})
                   .Look({look::Text("frame", "Noise analysis"),
                          look::Text("output-group", "Circuit output terminals"),
                          look::Label("output-node", "&Output node:"),
                          look::Label("reference-node", "&Reference node (GND):"),
                          look::Text("input-group", "Circuit input"),
                          look::Label("input-source", "&Voltage or current source name:")}));
}
} // namespace
