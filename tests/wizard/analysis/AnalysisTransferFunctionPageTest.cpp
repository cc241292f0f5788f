#include "support/Look.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"
#include "wizard/frame/Remembered.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;

constexpr const char* kPath = "Analysis/Transfer function";
constexpr const char* kIllegalName =
    "[Input source name is not a legal voltage or current source name.\n"
    "Voltage source names must start with 'V' and current source names\n"
    "must start with 'I'.]";

class TransferFunctionPage : public testing::Test
{
protected:
    TransferFunctionPage() { CRememberedBase::ResetAll(); }
};

struct TCase {
    const char* pName;
    const char* pOutput;
    const char* pSource;
    std::vector<std::string> inserted;
    std::vector<std::string> messages;
};

const TCase kCases[] = {
    {"both", "v(out)", "vin", {".tf v(out) vin"}, {}},
    {"trimmed on the left only", " v(out) ", " i1 ", {".tf v(out)  i1 "}, {}},
    {"the first letter is looked at alone", "v(out)", "input", {".tf v(out) input"}, {}},
    {"V", "v(out)", "Vcc1", {".tf v(out) Vcc1"}, {}},
    {"v", "v(out)", "vcc1", {".tf v(out) vcc1"}, {}},
    {"I", "v(out)", "I2", {".tf v(out) I2"}, {}},
    {"another letter", "v(out)", "r1", {}, {kIllegalName}},
    {"nothing: the source is missed first",
     "",
     "",
     {},
     {"[Missing input voltage or current source name.]"}},
    {"blanks are no source",
     "v(out)",
     "  ",
     {},
     {"[Missing input voltage or current source name.]"}},
    {"a wrong source before a missing output", "", "r1", {}, {kIllegalName}},
    {"no output", " ", "vin", {}, {"[Missing circuit output specification.]"}},
};

TEST_F(TransferFunctionPage, AFailureLeavesTheRunsCommandAsItWas)
{
    gRunWizard(CScript()
                   .Do({Open("Analysis/Transfer function")})
                   .Fill({"output=v(1)", "input-source=v1"})
                   .Do({Insert(), Set("input-source", ""), Insert()})
                   .Look({look::Command(".tf v(1) v1")}));
}

TEST_F(TransferFunctionPage, BuildsTheTfCommand)
{
    const CBracketTranslation translation;
    for (const TCase& rCase : kCases) {
        SCOPED_TRACE(rCase.pName);
        const auto outcome =
            gRunWizard({Open("[Analysis]/[Transfer function]"), Set("output", rCase.pOutput),
                        Set("input-source", rCase.pSource), Insert()});
        EXPECT_EQ(outcome.inserted, rCase.inserted);
        EXPECT_EQ(outcome.messages, rCase.messages);
    }
}

TEST_F(TransferFunctionPage, TheNextRunShowsTheLastSuccessAndNothingOfAFailure)
{
    gRunWizard({Open(kPath), Set("output", " v(out)"), Set("input-source", "vin"), Insert(),
                Set("output", ""), Set("input-source", "i1"), Insert()});
    gRunWizard(CScript()
                   .Do({Open(kPath)})
                   .Look({look::Text("output", "v(out)"), look::Text("input-source", "vin")}));
}

TEST_F(TransferFunctionPage, ItsTextsAreThoseOfTheTemplate)
{
    const CBracketTranslation translation;
    gRunWizard(CScript()
                   .Do({Open("[Analysis]/[Transfer function]")})
                   .Look({look::Text("frame", "Small-signal DC transfer function"),
                          look::Text("output-group", "Circuit output"),
                          look::Label("output", "&Output voltage or current:"),
                          look::Text("hint", "e.g.:"), look::Text("hint-1", "v(node1,node2)"),
                          look::Text("hint-2", "i1(m1)"), look::Text("hint-3", "i(m1,node1)"),
                          look::Text("input-group", "Circuit input"),
                          look::Label("input-source", "&Voltage or current source:")}));
}
} // namespace
