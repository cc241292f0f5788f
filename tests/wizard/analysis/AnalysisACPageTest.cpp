#include "platform/ui/Button.h"
#include "platform/ui/FieldView.h"
#include "support/Look.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;

constexpr const char* kClass = "CAnalysisACPage";

struct TCase {
    const char* pName;
    int nType;
    const char* pSamples;
    const char* pFrom;
    const char* pTo;
    std::vector<std::string> inserted;
    std::vector<std::string> messages;
};

const TCase kCases[] = {
    {"decades", 0, "10", "1", "1meg", {".ac DEC 10 1 1meg"}, {}},
    {"octaves", 1, "10", "1", "1meg", {".ac OCT 10 1 1meg"}, {}},
    {"linear", 2, "10", "1", "1meg", {".ac LIN 10 1 1meg"}, {}},
    {"trimmed on both sides", 0, " 10 ", " 1 ", " 1meg ", {".ac DEC 10 1 1meg"}, {}},
    {"nothing: the samples are missed first",
     0,
     "",
     "",
     "",
     {},
     {"[Missing number of frequency samples.]"}},
    {"blanks are no samples", 0, " ", "1", "2", {}, {"[Missing number of frequency samples.]"}},
    {"no start", 0, "10", "", "", {}, {"[Missing starting frequency.]"}},
    {"no final frequency", 0, "10", "1", " ", {}, {"[Missing final frequency.]"}},
};

TEST(OlderACPage, BuildsTheAcCommandInCapitals)
{
    const CBracketTranslation translation;
    for (const TCase& rCase : kCases) {
        SCOPED_TRACE(rCase.pName);
        const auto outcome =
            gRunSinglePage(kClass, CScript().Do({Choose("sampling-type", rCase.nType),
                                                 Set("number-of-samples", rCase.pSamples),
                                                 Set("start-frequency", rCase.pFrom),
                                                 Set("final-frequency", rCase.pTo), Insert()}));
        EXPECT_EQ(outcome.inserted, rCase.inserted);
        EXPECT_EQ(outcome.messages, rCase.messages);
    }
}

TEST(OlderACPage, APressOnATypeSetsTheTranslatedLabelOfTheSamples)
{
    const CBracketTranslation translation;
    gRunSinglePage(kClass, CScript()
                               .Look({look::Checked("sampling-type", 0),
                                      look::Text("samples-group", "Frequencies per decade")})
                               .Do({Choose("sampling-type", 1)})
                               .Look({look::Text("samples-group", "[Frequencies per octave]")})
                               .Do({Choose("sampling-type", 2)})
                               .Look({look::Text("samples-group", "[Number of frequencies]")})
                               .Do({Choose("sampling-type", 0)})
                               .Look({look::Text("samples-group", "[Frequencies per decade]")}));
}

TEST(OlderACPage, ItsTypesAreDecadesOctavesAndLinearOfWhichTheFirstIsChecked)
{
    gRunSinglePage(kClass, CScript().Then([](CDialog& rDialog) {
        const TFieldView types = gFindField(rDialog, "sampling-type");
        ASSERT_EQ(types.radios.size(), 3U);
        EXPECT_EQ(types.radios[0]->GetWindowText(), "&DEC  (by decades)");
        EXPECT_EQ(types.radios[1]->GetWindowText(), "&OCT  (by octaves)");
        EXPECT_EQ(types.radios[2]->GetWindowText(), "&LIN  (linear sweep)");
    }));
    const auto outcome = gRunSinglePage(
        kClass, CScript().Do({Set("number-of-samples", "10"), Set("start-frequency", "1"),
                              Set("final-frequency", "2"), Insert()}));
    EXPECT_EQ(outcome.inserted, std::vector<std::string>{".ac DEC 10 1 2"});
}

TEST(OlderACPage, NothingIsRemembered)
{
    gRunSinglePage(
        kClass, CScript().Do({Choose("sampling-type", 2), Set("number-of-samples", "10"),
                              Set("start-frequency", "1"), Set("final-frequency", "2"), Insert()}));
    gRunSinglePage(
        kClass,
        CScript().Look({look::Checked("sampling-type", 0), look::Text("number-of-samples", ""),
                        look::Text("start-frequency", ""), look::Text("final-frequency", "")}));
}

TEST(OlderACPage, AFailureLeavesTheCommandAsItWas)
{
    gRunSinglePage(kClass, CScript()
                               .Do({Set("number-of-samples", "10"), Set("start-frequency", "1"),
                                    Set("final-frequency", "2"), Insert(),
                                    Set("number-of-samples", ""), Insert()})
                               .Look({look::Command(".ac DEC 10 1 2")}));
}

TEST(OlderACPage, IsRegisteredAndNoNodeLeadsToIt)
{
    EXPECT_NE(CRuntimeClass::FromName(kClass), nullptr);
    gRunWizard(CScript().Refused(Open("Analysis/AC analysis"), EStepEnd::UnknownEntry));
}
} // namespace
