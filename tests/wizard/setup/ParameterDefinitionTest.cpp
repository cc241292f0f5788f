// What the page of parameters writes, directly and through its list.

#include "support/Look.h"
#include "support/PageTest.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"
#include "wizard/setup/ParameterSteps.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;
using namespace parameterSteps;

using ParameterDefinition = PageTest;

const TStep kPress = Click("add");

// --- both writers

struct TCase {
    const char* pName;
    TSteps steps;
    const char* pDirect; ///< the definition as the command has it; null when it is refused
    const char* pEntry;  ///< as the list has it; null for the same
    const char* pMessage = nullptr;
};

const TCase kCases[] = {
    {"general", gGeneral("w", "2u"), "w=2u", nullptr},
    {"general, trimmed on the left only", gGeneral(" w ", " 2u "), "w =2u ", nullptr},
    {"uniform relative", gMonteCarlo(0, "r", "1k", "0.1", nullptr, nullptr), "r=unif(1k,0.1)",
     nullptr},
    {"uniform relative with a multiplier", gMonteCarlo(0, "r", "1k", "0.1", nullptr, "2"),
     "r=unif(1k,0.1,2)", nullptr},
    {"uniform absolute with a multiplier", gMonteCarlo(1, "r", "1k", "5", nullptr, "2"),
     "r=aunif(1k,5,2)", nullptr},
    {"uniform absolute", gMonteCarlo(1, "r", "1k", "5", nullptr, ""), "r=aunif(1k,5)", nullptr},
    {"gaussian relative with a multiplier", gMonteCarlo(2, "r", "1k", "0.1", "3", "2"),
     "r=gauss(1k,0.1,3,2)", nullptr},
    {"gaussian relative", gMonteCarlo(2, "r", "1k", "0.1", "3", ""), "r=gauss(1k,0.1,3)", nullptr},
    {"gaussian absolute: nothing parts the multiplier from the sigma",
     gMonteCarlo(3, "r", "1k", "5", "3", "2"), "r=agauss(1k,5,32)", nullptr},
    {"gaussian absolute", gMonteCarlo(3, "r", "1k", "5", "3", ""), "r=agauss(1k,5,3)", nullptr},
    {"limit", gMonteCarlo(4, "r", "1k", "5", nullptr, nullptr), "r=limit(1k,5)", nullptr},
    {"a hidden sigma is ignored",
     gJoin({gMonteCarlo(2, "r", "1k", "5", "3", ""), {Select("distribution", 0)}}), "r=unif(1k,5)",
     nullptr},
    {"a hidden multiplier is ignored by the limit",
     gJoin({gMonteCarlo(3, "r", "1k", "5", "3", "2"), {Select("distribution", 4)}}),
     "r=limit(1k,5)", nullptr},
    {"a multiplier of blanks is none", gMonteCarlo(0, "r", "1k", "0.1", nullptr, "  "),
     "r=unif(1k,0.1)", nullptr},
    {"all Monte Carlo fields are trimmed on the left only",
     gMonteCarlo(2, " r ", " 1k ", " 0.1 ", " 3 ", " 2 "), "r =gauss(1k ,0.1 ,3 ,2 )", nullptr},
    {"optimization", gOptimization("w", "r1", "1", "0", "2", "0.1"), "w=optr1(1,0,2,0.1)", nullptr},
    {"optimization without a delta: only the list's entry is closed",
     gOptimization("w", "r1", "1", "0", "2", ""), "w=optr1(1,0,2", "w=optr1(1,0,2)"},
    {"a delta of blanks is none", gOptimization("w", "r1", "1", "0", "2", "  "), "w=optr1(1,0,2",
     "w=optr1(1,0,2)"},
    {"nothing parts the keyword from the run name", gOptimization("w", "x", "1", "0", "2", "3"),
     "w=optx(1,0,2,3)", nullptr},
    {"optimization, trimmed on the left only",
     gOptimization(" w ", " x ", " 1 ", " 0 ", " 2 ", " 3 "), "w =optx (1 ,0 ,2 ,3 )", nullptr},

    // Blanks are texts for the button Add and none for its checks.
    {"no value", gGeneral("w", " "), nullptr, nullptr, "Missing parameter value."},
    {"no name", gGeneral(" ", "2u"), nullptr, nullptr, "Missing parameter name."},
    {"neither", gGeneral(" ", " "), nullptr, nullptr, "Missing parameter name and value."},
    {"Monte Carlo: no name", gMonteCarlo(0, " ", " ", " ", nullptr, nullptr), nullptr, nullptr,
     "Missing parameter name."},
    {"Monte Carlo: no nominal value", gMonteCarlo(0, "r", " ", " ", nullptr, nullptr), nullptr,
     nullptr, "Missing nominal value."},
    {"uniform relative: no variation", gMonteCarlo(0, "r", "1k", " ", nullptr, nullptr), nullptr,
     nullptr, "Missing relative variation."},
    {"uniform absolute: no variation", gMonteCarlo(1, "r", "1k", " ", nullptr, nullptr), nullptr,
     nullptr, "Missing absolute variation."},
    {"gaussian relative: no variation", gMonteCarlo(2, "r", "1k", " ", " ", nullptr), nullptr,
     nullptr, "Missing relative variation."},
    {"gaussian absolute: no variation", gMonteCarlo(3, "r", "1k", " ", " ", nullptr), nullptr,
     nullptr, "Missing absolute variation."},
    {"limit: no variation", gMonteCarlo(4, "r", "1k", " ", nullptr, nullptr), nullptr, nullptr,
     "Missing absolute variation."},
    {"gaussian relative: no sigma", gMonteCarlo(2, "r", "1k", "1", " ", nullptr), nullptr, nullptr,
     "Missing sigma value."},
    {"gaussian absolute: no sigma", gMonteCarlo(3, "r", "1k", "1", " ", nullptr), nullptr, nullptr,
     "Missing sigma value."},
    {"after a change of the distribution Add is pressed without a sigma",
     gJoin({gMonteCarlo(0, "r", "1k", "1", nullptr, nullptr), {Select("distribution", 2)}}),
     nullptr, nullptr, "Missing sigma value."},
    {"optimization: no name", gOptimization(" ", " ", " ", " ", " ", ""), nullptr, nullptr,
     "Missing parameter name."},
    {"optimization: no run name", gOptimization("w", " ", " ", " ", " ", ""), nullptr, nullptr,
     "Missing optimization run name."},
    {"optimization: no guess", gOptimization("w", "r1", " ", " ", " ", ""), nullptr, nullptr,
     "Missing guess value."},
    {"optimization: no minimum", gOptimization("w", "r1", "1", " ", " ", ""), nullptr, nullptr,
     "Missing minimum value."},
    {"optimization: no maximum", gOptimization("w", "r1", "1", "0", " ", ""), nullptr, nullptr,
     "Missing maximum value."},
};

TEST_F(ParameterDefinition, TheCommandIsWrittenFromTheFields)
{
    const CBracketTranslation translation;
    for (const TCase& rCase : kCases) {
        SCOPED_TRACE(rCase.pName);
        CRememberedBase::ResetAll();
        const auto outcome =
            gRunWizard(OnPage("[Settings]/[Parameters]").Do(rCase.steps).Do({Insert()}));
        if (rCase.pDirect) {
            EXPECT_EQ(outcome.inserted,
                      std::vector<std::string>{std::string(".param ") + rCase.pDirect});
            EXPECT_TRUE(outcome.messages.empty());
        } else {
            EXPECT_TRUE(outcome.inserted.empty());
            EXPECT_EQ(outcome.messages,
                      std::vector<std::string>{"[" + std::string(rCase.pMessage) + "]"});
        }
    }
}

TEST_F(ParameterDefinition, TheListsEntryIsWrittenFromTheFields)
{
    const CBracketTranslation translation;
    for (const TCase& rCase : kCases) {
        SCOPED_TRACE(rCase.pName);
        std::vector<std::string> entries;
        if (rCase.pDirect)
            entries.emplace_back(rCase.pEntry ? rCase.pEntry : rCase.pDirect);
        const auto outcome =
            gRunWizard(OnPage("[Settings]/[Parameters]")
                           .Do(rCase.steps)
                           .Do({kPress})
                           .Look({look::Entries("list", entries), look::Command("")}));
        if (rCase.pMessage) {
            EXPECT_EQ(outcome.messages,
                      std::vector<std::string>{"[" + std::string(rCase.pMessage) + "]"});
        } else {
            EXPECT_TRUE(outcome.messages.empty());
        }
    }
}

// --- what a failure leaves in the run's command

struct TLeftCase {
    const char* pName;
    TSteps steps;
    const char* pCommand;
};

const char* const kFirst = ".param first=1";

const TLeftCase kLeftCases[] = {
    {"general without a value", gGeneral("w", ""), kFirst},
    {"general without a name", gGeneral("", "2u"), kFirst},
    {"general with neither", gGeneral("", ""), kFirst},
    {"uniform relative: no name", gMonteCarlo(0, "", "1", "1", nullptr, nullptr), kFirst},
    {"uniform relative: no nominal value", gMonteCarlo(0, "r", "", "1", nullptr, nullptr),
     ".param r"},
    {"uniform relative: no variation", gMonteCarlo(0, "r", "1", "", nullptr, nullptr), ".param r"},
    {"uniform absolute: no name", gMonteCarlo(1, "", "1", "1", nullptr, nullptr), kFirst},
    {"uniform absolute: no nominal value", gMonteCarlo(1, "r", "", "1", nullptr, nullptr),
     ".param r"},
    {"uniform absolute: no variation", gMonteCarlo(1, "r", "1", "", nullptr, nullptr), ".param r"},
    {"gaussian relative: no name", gMonteCarlo(2, "", "1", "1", "3", nullptr), kFirst},
    {"gaussian relative: no nominal value", gMonteCarlo(2, "r", "", "1", "3", nullptr), ".param r"},
    {"gaussian relative: no variation", gMonteCarlo(2, "r", "1", "", "3", nullptr), ".param r"},
    {"gaussian relative: no sigma", gMonteCarlo(2, "r", "1", "1", "", nullptr), ".param r"},
    {"gaussian absolute: no name", gMonteCarlo(3, "", "1", "1", "3", nullptr), kFirst},
    {"gaussian absolute: no nominal value", gMonteCarlo(3, "r", "", "1", "3", nullptr), ".param r"},
    {"gaussian absolute: no variation", gMonteCarlo(3, "r", "1", "", "3", nullptr), ".param r"},
    {"gaussian absolute: no sigma", gMonteCarlo(3, "r", "1", "1", "", nullptr), ".param r"},
    {"limit: no name", gMonteCarlo(4, "", "1", "1", nullptr, nullptr), kFirst},
    {"limit: no nominal value", gMonteCarlo(4, "r", "", "1", nullptr, nullptr), ".param r"},
    {"limit: no variation", gMonteCarlo(4, "r", "1", "", nullptr, nullptr), ".param r"},
    {"a name trimmed on the left", gMonteCarlo(0, " r ", "", "1", nullptr, nullptr), ".param r "},
    {"optimization: no name", gOptimization("", "x", "1", "1", "1", ""), kFirst},
    {"optimization: no run name", gOptimization("w", "", "1", "1", "1", ""), kFirst},
    {"optimization: no guess", gOptimization("w", "x", "", "1", "1", ""), kFirst},
    {"optimization: no minimum", gOptimization("w", "x", "1", "", "1", ""), kFirst},
    {"optimization: no maximum", gOptimization("w", "x", "1", "1", "", ""), kFirst},
};

TEST_F(ParameterDefinition, AFailedMonteCarloCommandLeavesItsNameAndAnyOtherNothing)
{
    for (const TLeftCase& rCase : kLeftCases) {
        SCOPED_TRACE(rCase.pName);
        CRememberedBase::ResetAll();
        gRunWizard(OnPage()
                       .Do(gGeneral("first", "1"))
                       .Do({Insert()})
                       .Do(rCase.steps)
                       .Do({Insert()})
                       .Look({look::Command(rCase.pCommand)}));
    }
}
} // namespace
