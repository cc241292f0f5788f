#include "support/Look.h"
#include "support/PageTest.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"
#include "wizard/setup/InitialConditionSteps.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;
using namespace initialConditionSteps;

using InitialConditionCommand = PageTest;

// --- the command

struct TCase {
    const char* pName;
    CScript script;
    std::vector<std::string> inserted;
    std::vector<std::string> messages;
};

const TCase kCases[] = {
    {"a voltage", OnPage().Do(gVoltage("out", "", "3.3")), {".ic v(out)=3.3"}, {}},
    {"a voltage against a reference",
     OnPage().Do(gVoltage("out", "ref", "1")),
     {".ic v(out,ref)=1"},
     {}},
    {"name and value are trimmed at both ends, the reference isn't",
     OnPage().Do(gVoltage(" out ", " ref ", " 1 ")),
     {".ic v(out, ref )=1"},
     {}},
    {"the checks run before the trim: blanks pass",
     OnPage().Do(gVoltage(" ", " ", " ")),
     {".ic v(, )="},
     {}},
    {"a node's name is missing", OnPage().Do(gVoltage("", "", "1")), {}, {"Missing node name."}},
    {"nothing: the name is missed first",
     OnPage().Do(gVoltage("", "", "")),
     {},
     {"Missing node name."}},
    {"a voltage is missing", OnPage().Do(gVoltage("a", "b", "")), {}, {"Missing initial voltage."}},
    {"a current", OnPage().Do(gCurrent("L1", "2m")), {".ic i(L1)=2m"}, {}},
    {"a small letter", OnPage().Do(gCurrent("l1", "2m")), {".ic i(l1)=2m"}, {}},
    {"trimmed at both ends", OnPage().Do(gCurrent("L1 ", " 2m ")), {".ic i(L1)=2m"}, {}},
    {"the checks run before the trim: a blank isn't L",
     OnPage().Do(gCurrent(" L1", "2m")),
     {},
     {kIllegalName}},
    {"an inductor's name is missing",
     OnPage().Do(gCurrent("", "")),
     {},
     {"Missing inductor name."}},
    {"the letter is looked at before the current",
     OnPage().Do(gCurrent("x1", "")),
     {},
     {kIllegalName}},
    {"a current is missing",
     OnPage().Do(gCurrent("L1", "")),
     {},
     {"Missing initial inductor current."}},
    {"a current of blanks passes", OnPage().Do(gCurrent("L1", " ")), {".ic i(L1)="}, {}},
    {"the list, the oldest entry first", WithTwoEntries(), {".ic v(a)=1 i(L2)=0"}, {}},
    {"the list wins over an illegal name, and no check runs",
     WithTwoEntries().Do(gCurrent("x1", "")),
     {".ic v(a)=1 i(L2)=0"},
     {}},
    {"one entry wins over an illegal name, and no check runs",
     OnPage().Do(gVoltage("a", "", "1")).Do({Click("add")}).Do(gCurrent("x1", "")),
     {".ic v(a)=1"},
     {}},
    {"after the last entry is deleted the fields count again",
     WithTwoEntries()
         .Answer({true, true})
         .Do({Click("delete"), Click("delete")})
         .Do(gCurrent("L9", "1")),
     {".ic i(L9)=1"},
     {kDeleteQuestion, kDeleteQuestion}},
};

TEST_F(InitialConditionCommand, BuildsTheIcCommand)
{
    for (const TCase& rCase : kCases) {
        SCOPED_TRACE(rCase.pName);
        CRememberedBase::ResetAll();
        CScript script = rCase.script;
        const auto outcome = gRunWizard(script.Do({Insert()}));
        EXPECT_EQ(outcome.inserted, rCase.inserted);
        EXPECT_EQ(outcome.messages, rCase.messages);
    }
}

TEST_F(InitialConditionCommand, MessagesOfMissingFieldsAreTranslated)
{
    const CBracketTranslation translation;
    const auto messages = gRunWizard(OnPage(kTranslatedPath)
                                         .Do({Insert(), Set("name", "L"), Insert()})
                                         .Do({Choose("mode", kCurrent), Insert()})
                                         .Do({Set("name", ""), Insert()}))
                              .messages;
    EXPECT_EQ(messages, (std::vector<std::string>{
                            "[Missing node name.]", "[Missing initial voltage.]",
                            "[Missing initial inductor current.]", "[Missing inductor name.]"}));
}

TEST_F(InitialConditionCommand, AFailedAttemptLeavesTheRunsCommand)
{
    gRunWizard(OnPage()
                   .Do(gVoltage("a", "", "1"))
                   .Do({Insert(), Set("name", ""), Insert(), Choose("mode", kCurrent), Insert()})
                   .Look({look::Command(".ic v(a)=1")}));
}

} // namespace
