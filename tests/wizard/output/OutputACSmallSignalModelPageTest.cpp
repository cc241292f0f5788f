#include "support/Look.h"
#include "support/PageTest.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"
#include "wizard/sources/SourcePageRun.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;

using ACSmallSignalModelPage = PageTest;

constexpr const char* kPath = "Output/AC small-signal model";
constexpr const char* kMissing =
    "[Missing device list.  List AC model devices or check the ALL check box.]";

const std::vector<TSourceCase> kCases{
    {"two lines", {"device-list=m1\nm2"}, ".acmodel {m1 m2}"},
    {"the list is trimmed", {"device-list= \n m1 m2\n "}, ".acmodel {m1 m2}"},
    {"all devices", {"all-devices=on"}, ".acmodel {*}"},
    {"all devices, and a list", {"device-list=m1", "all-devices=on"}, ".acmodel {*}"},
    {"neither", {}, "", kMissing},
    {"blanks are no list", {"device-list= \n "}, "", kMissing},
};

TEST_F(ACSmallSignalModelPage, BuildsTheAcmodelCommand)
{
    gExpectLines(kPath, {}, kCases);
}

TEST_F(ACSmallSignalModelPage, ItsTextsAreThoseOfTheTemplateAndAllStartsOff)
{
    const CBracketTranslation translation;
    gRunWizard(CScript()
                   .Do({Open("[Output]/[AC small-signal model]")})
                   .Look({look::Label("device-list",
                                      "&List the devices, separated by spaces, for which you want "
                                      "SPICE to output AC model parameters:"),
                          look::Text("device-list", ""),
                          look::Text("all-devices", "&AC model parameters for ALL devices"),
                          look::Checked("all-devices", 0)}));
}

TEST_F(ACSmallSignalModelPage, EnterStartsANewLine)
{
    const auto outcome =
        gRunWizard({Open(kPath), Set("device-list", "m1"), Key("enter"), Insert()});
    EXPECT_EQ(outcome.inserted, std::vector<std::string>{".acmodel {m1}"});
}

TEST_F(ACSmallSignalModelPage, AllDoesNotDisableTheList)
{
    gRunWizard(CScript()
                   .Do({Open(kPath), Check("all-devices", true)})
                   .Look({look::Enabled("device-list")}));
}

TEST_F(ACSmallSignalModelPage, ASuccessShowsTheListTrimmedAndAFailureLeavesItAsItIs)
{
    gRunWizard(CScript()
                   .Do({Open(kPath), Set("device-list", " m1\r\nm2 "), Insert()})
                   .Look({look::Text("device-list", "m1\r\nm2")})
                   .Do({Set("device-list", "  "), Insert()})
                   .Look({look::Text("device-list", "  "), look::Command(".acmodel {m1 m2}")}));
}

TEST_F(ACSmallSignalModelPage, TheListComesBackTrimmedWithItsLinesWithAllOnToo)
{
    for (const bool bAll : {false, true}) {
        CRememberedBase::ResetAll();
        gRunWizard(
            {Open(kPath), Set("device-list", " m1\r\nm2 "), Check("all-devices", bAll), Insert()});
        gRunWizard(CScript()
                       .Do({Open(kPath)})
                       .Look({look::Text("device-list", "m1\r\nm2"),
                              look::Checked("all-devices", bAll ? 1 : 0)}));
    }
}

TEST_F(ACSmallSignalModelPage, AFailureIsNotRemembered)
{
    gRunWizard(
        {Open(kPath), Set("device-list", "m1"), Insert(), Set("device-list", " "), Insert()});
    gRunWizard(CScript().Do({Open(kPath)}).Look({look::Text("device-list", "m1")}));
}
} // namespace
