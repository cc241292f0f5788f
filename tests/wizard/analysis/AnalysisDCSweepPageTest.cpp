#include "platform/ui/FieldView.h"
#include "support/Look.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;

constexpr const char* kClass = "CAnalysisDCSweepPage";

/// Fills a direction, 1 to 3.
std::vector<TStep> Direction(int nDirection, const char* pSource, const char* pStart,
                             const char* pEnd, const char* pIncrement)
{
    const std::string sNumber = "-" + std::to_string(nDirection);
    return {Set("source-name" + sNumber, pSource), Set("start" + sNumber, pStart),
            Set("end" + sNumber, pEnd), Set("increment" + sNumber, pIncrement)};
}

std::vector<TStep> operator+(std::vector<TStep> left, const std::vector<TStep>& rRight)
{
    left.insert(left.end(), rRight.begin(), rRight.end());
    return left;
}

std::string IllegalName(int nDirection)
{
    return "Source name for sweep direction " + std::to_string(nDirection) +
           " is not a legal voltage \r\n"
           "or current source name.  Voltage source names must start \r\n"
           "with 'V' and current source names must start with 'I'.";
}

struct TCase {
    const char* pName;
    std::vector<TStep> steps;
    std::vector<std::string> inserted;
    std::vector<std::string> messages;
};

const TCase kCases[] = {
    {"one direction", Direction(1, "v1", "0", "5", "1"), {".dc v1 0 5 1"}, {}},
    {"all three",
     Direction(1, "v1", "0", "5", "1") + Direction(2, "I2", "1", "2", "0.1") +
         Direction(3, "Vdd", "3", "4", "0.5"),
     {".dc v1 0 5 1 I2 1 2 0.1 Vdd 3 4 0.5"},
     {}},
    {"the first is skipped", Direction(2, "i2", "1", "2", "0.1"), {".dc i2 1 2 0.1"}, {}},
    {"the second is skipped",
     Direction(1, "v1", "0", "5", "1") + Direction(3, "v3", "1", "2", "3"),
     {".dc v1 0 5 1 v3 1 2 3"},
     {}},
    {"the first letter is looked at alone",
     Direction(1, "input", "0", "5", "1"),
     {".dc input 0 5 1"},
     {}},
    {"trimmed on both sides", Direction(1, " v1 ", " 0 ", " 5 ", " 1 "), {".dc v1 0 5 1"}, {}},
    {"a direction of blanks is skipped",
     Direction(1, " ", " ", " ", " ") + Direction(2, "v2", "1", "2", "3"),
     {".dc v2 1 2 3"},
     {}},
    {"nothing", {}, {}, {"[At least one sweep must be specified before inserting the command]"}},
    {"no source in 1",
     Direction(1, "", "0", "5", "1"),
     {},
     {"[Incomplete specification for sweep direction 1.]"}},
    {"no start in 2",
     Direction(2, "v2", " ", "5", "1"),
     {},
     {"[Incomplete specification for sweep direction 2.]"}},
    {"no end in 3, whose message isn't translated",
     Direction(3, "v3", "0", "", "1"),
     {},
     {"Incomplete specification for sweep direction 3."}},
    {"no increment",
     Direction(1, "v1", "0", "5", ""),
     {},
     {"[Incomplete specification for sweep direction 1.]"}},
    {"an illegal name in 1, untranslated", Direction(1, "r1", "0", "5", "1"), {}, {IllegalName(1)}},
    {"an illegal name in 2, untranslated", Direction(2, "r1", "0", "5", "1"), {}, {IllegalName(2)}},
    {"an illegal name in 3, untranslated", Direction(3, "r1", "0", "5", "1"), {}, {IllegalName(3)}},
    {"completeness before the name",
     Direction(1, "r1", "0", "5", ""),
     {},
     {"[Incomplete specification for sweep direction 1.]"}},
    {"direction by direction: a name in 1 before completeness in 2",
     Direction(1, "r1", "0", "5", "1") + Direction(2, "v2", "", "", ""),
     {},
     {IllegalName(1)}},
    {"a good direction doesn't make up for a bad one",
     Direction(1, "v1", "0", "5", "1") + Direction(3, "v3", "", "", ""),
     {},
     {"Incomplete specification for sweep direction 3."}},
};

TEST(OlderDCSweepPage, BuildsTheDcCommand)
{
    const CBracketTranslation translation;
    for (const TCase& rCase : kCases) {
        SCOPED_TRACE(rCase.pName);
        const auto outcome = gRunSinglePage(kClass, CScript().Do(rCase.steps).Do({Insert()}));
        EXPECT_EQ(outcome.inserted, rCase.inserted);
        EXPECT_EQ(outcome.messages, rCase.messages);
    }
}

TEST(OlderDCSweepPage, AFailureLeavesTheCommandAsItWas)
{
    gRunSinglePage(kClass, CScript()
                               .Do(Direction(1, "v1", "0", "5", "1"))
                               .Do({Insert(), Set("source-name-2", "v2"), Insert()})
                               .Look({look::Command(".dc v1 0 5 1")}));
}

TEST(OlderDCSweepPage, AllTwelveAreTrimmedBeforeTheFirstCheck)
{
    // Seen once the members go back into the controls.
    const auto showMembers = [](CDialog& rDialog) { gCurrentPane(rDialog).UpdateData(false); };
    gRunSinglePage(kClass,
                   CScript()
                       .Do(Direction(1, "r1", "0", "5", "1"))
                       .Do(Direction(3, " v3 ", " 1 ", " 2 ", " 3 "))
                       .Do({Insert()})
                       .Then(showMembers)
                       .Look({look::Text("source-name-3", "v3"), look::Text("increment-3", "3")}));
}

TEST(OlderDCSweepPage, NothingIsRemembered)
{
    gRunSinglePage(kClass, CScript().Do(Direction(1, "v1", "0", "5", "1")).Do({Insert()}));
    gRunSinglePage(kClass,
                   CScript().Look({look::Text("source-name-1", ""), look::Text("start-1", ""),
                                   look::Text("end-1", ""), look::Text("increment-1", "")}));
}

TEST(OlderDCSweepPage, ItsGroupsAreTheDirections)
{
    const CBracketTranslation translation;
    gRunSinglePage(kClass, CScript().Look({look::Text("direction-1", "Sweep direction 1"),
                                           look::Text("direction-2", "Sweep direction 2"),
                                           look::Text("direction-3", "Sweep direction 3")}));
}

TEST(OlderDCSweepPage, IsRegisteredAndNoNodeLeadsToIt)
{
    EXPECT_NE(CRuntimeClass::FromName(kClass), nullptr);
    gRunWizard(CScript().Refused(Open("Analysis/DC sweep"), EStepEnd::UnknownEntry));
}
} // namespace
