#include "platform/ui/FieldView.h"
#include "platform/ui/Translate.h"
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

using ParametersPage = PageTest;

// --- what the types and the distributions show

/// The labels of the fields, first to sixth; empty where one is hidden.
using TLabels = std::array<const char*, 6>;

constexpr const char* kKeys[] = {"first", "second", "third", "fourth", "fifth", "sixth"};

std::vector<CScript::TAction> Looks(const TLabels& rLabels)
{
    std::vector<CScript::TAction> looks;
    for (std::size_t n = 0; n < rLabels.size(); ++n) {
        looks.push_back(look::Shown(kKeys[n], *rLabels[n] != 0));
        if (*rLabels[n])
            looks.push_back(look::Label(kKeys[n], rLabels[n]));
    }
    return looks;
}

const TLabels kGeneral{"", "[Pa&rameter name:]", "[Para&meter value:]", "", "", ""};
const TLabels kOptimization{"[Pa&rameter name:]",
                            "[I&nitial guess value:]",
                            "[&Minimum value:]",
                            "[Ma&ximum value:]",
                            "[D&elta value:]",
                            "[&Optimization run "
                            "name:]"};

TLabels MonteCarlo(const char* pVariation, bool bSigma, bool bMultiplier)
{
    return {"[Pa&rameter name:]",
            "[&Nominal value:]",
            pVariation,
            bSigma ? "[&Sigma level:]" : "",
            bMultiplier ? "[&Multiplier (default is 1):]" : "",
            ""};
}

constexpr const char* kRelative = "[R&elative variation:]";
constexpr const char* kAbsolute = "[A&bsolute variation:]";

const TLabels kDistributionLabels[] = {
    MonteCarlo(kRelative, false, true), MonteCarlo(kAbsolute, false, true),
    MonteCarlo(kRelative, true, true), MonteCarlo(kAbsolute, true, true),
    MonteCarlo(kAbsolute, false, false)};

TEST_F(ParametersPage, EachTypeHasItsFieldsWithTranslatedLabels)
{
    const CBracketTranslation translation;
    const auto shown = [](int nType) {
        return std::vector<CScript::TAction>{look::Shown("equals", nType == kTypeGeneral),
                                             look::Text("equals", "="),
                                             look::Shown("distribution", nType == kTypeMonteCarlo)};
    };
    const TLabels kTypes[] = {kGeneral, kDistributionLabels[0], kOptimization};
    CScript script = OnPage("[Settings]/[Parameters]");
    script.Look(Looks(kGeneral)).Look(shown(kTypeGeneral));
    for (int nFrom = 0; nFrom < 3; ++nFrom)
        for (int nTo = 0; nTo < 3; ++nTo)
            script.Do({Select("parameter-type", nFrom), Select("parameter-type", nTo)})
                .Look(Looks(kTypes[nTo]))
                .Look(shown(nTo));
    gRunWizard(std::move(script));
}

TEST_F(ParametersPage, EachDistributionHasItsFieldsWithTranslatedLabels)
{
    const CBracketTranslation translation;
    CScript script = OnPage("[Settings]/[Parameters]");
    script.Do({Select("parameter-type", "Monte Carlo")});
    for (int nFrom = 0; nFrom < 5; ++nFrom)
        for (int nTo = 0; nTo < 5; ++nTo)
            script.Do({Select("distribution", nFrom), Select("distribution", nTo)})
                .Look(Looks(kDistributionLabels[nTo]));
    gRunWizard(std::move(script));
}

TEST_F(ParametersPage, ItsOtherTextsAreThoseOfTheTemplate)
{
    const CBracketTranslation translation;
    gRunWizard(
        OnPage("[Settings]/[Parameters]")
            .Look({look::Label("parameter-type", "&Parameter type:"),
                   look::Entries("parameter-type", {"General", "Monte Carlo", "Optimization"}),
                   look::Selected("parameter-type", 0), look::Selected("distribution", 0),
                   look::Label("distribution", "Pr&obability distribution type:"),
                   look::Entries("distribution",
                                 {"Uniform (relative variation)", "Uniform (absolute variation)",
                                  "Gaussian (relative variation)", "Gaussian (absolute variation)",
                                  "Random limit (absolute variation)"}),
                   look::Label("list", "&List of parameters:"), look::Entries("list", {}),
                   look::Text("add", "&Add"), look::Text("delete", "&Delete"),
                   look::Text("clear", "&Clear"), look::Enabled("add", false),
                   look::Enabled("delete", false), look::Enabled("clear", false)})
            .Then([](CDialog& rDialog) {
                for (const char* pButton : {"add", "delete", "clear"})
                    EXPECT_TRUE(gFindField(rDialog, pButton).pControl->GetControlFlags() &
                                kDisabled);
            }));
}

TEST_F(ParametersPage, AChangeOfTypeMovesNoTextAndGoesBackToTheFirstDistribution)
{
    gRunWizard(
        OnPage()
            .Do(gMonteCarlo(3, "r", "1k", "5", "3", "2"))
            .Do({Select("parameter-type", "General")})
            .Look({look::Text("second", "1k"), look::Text("third", "5")})
            .Do({Select("parameter-type", "Monte Carlo")})
            .Look({look::Selected("distribution", 0), look::Shown("fourth", false),
                   look::Text("first", "r"), look::Text("fourth", "3"), look::Text("fifth", "2")}));
}

TEST_F(ParametersPage, TheTypeChosenAgainShowsTheFirstDistributionWhicheverWasChosen)
{
    const CBracketTranslation translation;
    for (int nDistribution = 0; nDistribution < 5; ++nDistribution)
        gRunWizard(OnPage("[Settings]/[Parameters]")
                       .Do({Select("parameter-type", kTypeMonteCarlo),
                            Select("distribution", nDistribution),
                            Select("parameter-type", kTypeMonteCarlo)})
                       .Look({look::Selected("distribution", 0)})
                       .Look(Looks(kDistributionLabels[0]))
                       .Do({Select("distribution", nDistribution)})
                       .Look(Looks(kDistributionLabels[nDistribution])));
}

// --- the button Add

struct TAddCase {
    const char* pName;
    std::vector<TStep> steps;
    bool bEnabled;
};

const TAddCase kAddCases[] = {
    {"nothing", {}, false},
    {"general: a name alone", gGeneral("w", ""), false},
    {"general: a value alone", gGeneral("", "2u"), false},
    {"general: both", gGeneral("w", "2u"), true},
    {"general: the value taken away", gJoin({gGeneral("w", "2u"), {Set("third", "")}}), false},
    {"general: the name after the value", {Set("third", "2u"), Set("second", "w")}, true},
    {"general: the name taken away", gJoin({gGeneral("w", "2u"), {Set("second", "")}}), false},
    {"blanks are texts", gGeneral(" ", " "), true},
    {"a change of type disables it",
     gJoin({gGeneral("w", "2u"), {Select("parameter-type", "Optimization")}}), false},
    {"the same type chosen again disables it",
     gJoin({gGeneral("w", "2u"), {Select("parameter-type", "General")}}), false},
    {"a change of type doesn't look at the fields that are filled in",
     gJoin(
         {gMonteCarlo(0, "r", "1k", "1", nullptr, nullptr), {Select("parameter-type", "General")}}),
     false},
    {"but the next change of a field does",
     gJoin({gMonteCarlo(0, "r", "1k", "1", nullptr, nullptr),
            {Select("parameter-type", "General"), Set("third", "2")}}),
     true},
    {"uniform relative: three fields", gMonteCarlo(0, "r", "1k", "1", nullptr, nullptr), true},
    {"uniform absolute: three fields", gMonteCarlo(1, "r", "1k", "1", nullptr, nullptr), true},
    {"limit: three fields", gMonteCarlo(4, "r", "1k", "1", nullptr, nullptr), true},
    {"uniform: no name", gMonteCarlo(0, "", "1k", "1", nullptr, nullptr), false},
    {"uniform: no nominal value", gMonteCarlo(1, "r", "", "1", nullptr, nullptr), false},
    {"limit: no variation", gMonteCarlo(4, "r", "1k", "", nullptr, nullptr), false},
    {"gaussian relative: no sigma", gMonteCarlo(2, "r", "1k", "1", "", nullptr), false},
    {"gaussian absolute: no sigma", gMonteCarlo(3, "r", "1k", "1", "", nullptr), false},
    {"gaussian relative: four fields", gMonteCarlo(2, "r", "1k", "1", "3", nullptr), true},
    {"gaussian absolute: four fields", gMonteCarlo(3, "r", "1k", "1", "3", nullptr), true},
    {"a change of the distribution doesn't look at the sigma",
     gJoin({gMonteCarlo(0, "r", "1k", "1", nullptr, nullptr), {Select("distribution", 2)}}), true},
    {"but the next change of a field does",
     gJoin({gMonteCarlo(0, "r", "1k", "1", nullptr, nullptr),
            {Select("distribution", 2), Set("first", "r2")}}),
     false},
    {"from a gaussian without sigma to a uniform it stays disabled",
     gJoin({gMonteCarlo(2, "r", "1k", "1", "", nullptr), {Select("distribution", 0)}}), false},
    {"a multiplier changes nothing",
     gJoin({gMonteCarlo(2, "r", "1k", "1", "", nullptr),
            {Select("distribution", 0), Set("fifth", "2")}}),
     false},
    {"optimization: five fields", gOptimization("w", "r1", "1", "0", "2", ""), true},
    {"optimization: no name", gOptimization("", "r1", "1", "0", "2", ""), false},
    {"optimization: no run name", gOptimization("w", "", "1", "0", "2", ""), false},
    {"optimization: no guess", gOptimization("w", "r1", "", "0", "2", ""), false},
    {"optimization: no minimum", gOptimization("w", "r1", "1", "", "2", ""), false},
    {"optimization: no maximum", gOptimization("w", "r1", "1", "0", "", "1"), false},
    {"optimization: the run name comes last",
     gJoin({gOptimization("w", "", "1", "0", "2", ""), {Set("sixth", "r1")}}), true},
};

TEST_F(ParametersPage, AddIsEnabledWhenTheTypesFieldsHaveTexts)
{
    for (const TAddCase& rCase : kAddCases) {
        SCOPED_TRACE(rCase.pName);
        gRunWizard(OnPage().Do(rCase.steps).Look({look::Enabled("add", rCase.bEnabled)}));
    }
}

// --- what is remembered

TEST_F(ParametersPage, TheNextRunShowsTheFieldsTrimmedOnTheLeftAndAnEmptyList)
{
    gRunWizard(OnPage().Do(gGeneral(" w ", " 2u ")).Do({Click("add"), Insert()}));
    gRunWizard(OnPage().Look({look::Text("second", "w "), look::Text("third", "2u "),
                              look::Entries("list", {}), look::Enabled("add"),
                              look::Enabled("delete", false), look::Enabled("clear", false)}));
}

TEST_F(ParametersPage, ADistributionIsRememberedButNeverSeen)
{
    const CBracketTranslation translation;
    gRunWizard(OnPage("[Settings]/[Parameters]")
                   .Do(gMonteCarlo(3, "r", "1k", "5", "3", "2"))
                   .Do({Insert()}));
    gRunWizard(OnPage("[Settings]/[Parameters]")
                   .Look({look::Selected("parameter-type", kTypeMonteCarlo),
                          look::Selected("distribution", 0), look::Enabled("add"),
                          look::Text("fourth", "3"), look::Text("fifth", "2")})
                   .Look(Looks(kDistributionLabels[0])));
}

TEST_F(ParametersPage, InTheNextRunTheDistributionCanBeChosenAgain)
{
    struct TCase {
        int nDistribution;
        const char* pSigma;
        const char* pMultiplier;
        const char* pCommand;
    };
    static constexpr TCase kCases[] = {{1, nullptr, "2", ".param r=aunif(1k,5,2)"},
                                       {2, "3", "2", ".param r=gauss(1k,5,3,2)"},
                                       {3, "3", "2", ".param r=agauss(1k,5,32)"},
                                       {4, nullptr, nullptr, ".param r=limit(1k,5)"}};
    const CBracketTranslation translation;
    for (const TCase& rCase : kCases) {
        SCOPED_TRACE(rCase.pCommand);
        CRememberedBase::ResetAll();
        gRunWizard(OnPage("[Settings]/[Parameters]")
                       .Do(gMonteCarlo(rCase.nDistribution, "r", "1k", "5", rCase.pSigma,
                                       rCase.pMultiplier))
                       .Do({Insert()}));
        const auto outcome = gRunWizard(OnPage("[Settings]/[Parameters]")
                                            .Look(Looks(kDistributionLabels[0]))
                                            .Do({Select("distribution", rCase.nDistribution)})
                                            .Look(Looks(kDistributionLabels[rCase.nDistribution]))
                                            .Look({look::Enabled("add")})
                                            .Do({Insert()}));
        EXPECT_EQ(outcome.inserted, std::vector<std::string>{rCase.pCommand});
    }
}

TEST_F(ParametersPage, TheNextRunShowsTheGeneralTypeWhicheverDistributionIsRemembered)
{
    const CBracketTranslation translation;
    gRunWizard(
        OnPage("[Settings]/[Parameters]")
            .Do(gGeneral("w", "2u"))
            .Do({Select("parameter-type", "Monte Carlo"), Select("distribution", 3),
                 Set("first", "w"), Set("second", "1"), Set("third", "2"), Set("fourth", "3"),
                 Insert(), Select("parameter-type", "General"), Insert()}));
    gRunWizard(OnPage("[Settings]/[Parameters]").Look(Looks(kGeneral)));
}

TEST_F(ParametersPage, AtTheStartTheRememberedDistributionIsShownFirstThenTheType)
{
    gRunWizard(OnPage().Do(gMonteCarlo(3, "r", "1k", "5", "3", "2")).Do({Insert()}));
    std::vector<std::string> translated;
    xlang::gSetCatalogue([&translated](std::string_view sEnglish) {
        if (sEnglish.ends_with(':'))
            translated.emplace_back(sEnglish);
        return CString(sEnglish);
    });
    gRunWizard(OnPage());
    xlang::gSetCatalogue({});
    EXPECT_EQ(translated,
              (std::vector<std::string>{"A&bsolute variation:", "Pa&rameter name:",
                                        "&Nominal value:", "R&elative variation:", "&Sigma level:",
                                        "&Multiplier (default is 1):", "R&elative variation:"}));
}

TEST_F(ParametersPage, TheNextRunShowsTheOptimizationWithItsLabels)
{
    const CBracketTranslation translation;
    gRunWizard(OnPage("[Settings]/[Parameters]")
                   .Do(gOptimization("w", "r1", "1", "0", "2", ""))
                   .Do({Insert()}));
    gRunWizard(OnPage("[Settings]/[Parameters]")
                   .Look({look::Selected("parameter-type", kTypeOptimization),
                          look::Text("sixth", "r1"), look::Enabled("add")})
                   .Look(Looks(kOptimization)));
}

TEST_F(ParametersPage, TextLeftInTheFirstFieldIsIgnoredByGeneralAndRemembered)
{
    const auto outcome = gRunWizard(OnPage()
                                        .Do(gMonteCarlo(0, "left", "w", "2u", nullptr, nullptr))
                                        .Do({Select("parameter-type", "General"), Insert()}));
    EXPECT_EQ(outcome.inserted, std::vector<std::string>{".param w=2u"});
    gRunWizard(OnPage().Look({look::Text("first", "left"), look::Shown("first", false)}));
}

TEST_F(ParametersPage, AFailedAttemptIsNotRemembered)
{
    gRunWizard(OnPage().Do(gGeneral("w", "2u")).Do({Insert(), Set("second", ""), Insert()}));
    gRunWizard(OnPage().Look({look::Text("second", "w")}));
}
} // namespace
