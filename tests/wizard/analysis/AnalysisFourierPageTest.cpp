#include "support/Look.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"
#include "wizard/frame/Remembered.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;

constexpr const char* kPath = "Analysis/Fourier";

class FourierPage : public testing::Test
{
protected:
    FourierPage() { CRememberedBase::ResetAll(); }
};

struct TCase {
    const char* pName;
    const char* pBase;
    const char* pFrequencies;
    const char* pPoints;
    const char* pSignals;
    bool bInterpolate;
    std::vector<std::string> inserted;
    std::vector<std::string> messages;
};

const TCase kCases[] = {
    {"frequencies", "1k", "5", "", "v(out)", true, {".four 1k v(out) nfreqs=5 interpolate=1"}, {}},
    {"points, not interpolated",
     "1k",
     "",
     "1000",
     "v(out)",
     false,
     {".four 1k v(out) npoints=1000 interpolate=0"},
     {}},
    {"both",
     "1k",
     "5",
     "1000",
     "v(a) v(b)",
     true,
     {".four 1k v(a) v(b) nfreqs=5 npoints=1000 interpolate=1"},
     {}},
    {"neither", "1k", "", "", "v(out)", true, {".four 1k v(out) interpolate=1"}, {}},
    {"blanks are neither",
     "1k",
     "  ",
     " \t",
     "v(out)",
     true,
     {".four 1k v(out) interpolate=1"},
     {}},
    {"trimmed on the left only",
     " 1k ",
     " 5 ",
     " 7 ",
     " v(out) ",
     true,
     {".four 1k  v(out)  nfreqs=5  npoints=7  interpolate=1"},
     {}},
    {"a base of blanks is missing",
     "  ",
     "5",
     "",
     "v(out)",
     true,
     {},
     {"[Missing base frequency.]"}},
    {"the base is missed before the signals",
     "",
     "",
     "",
     "",
     true,
     {},
     {"[Missing base frequency.]"}},
    {"no signals", "1k", "", "", " ", true, {}, {"[Missing plot list.]"}},
};

TEST_F(FourierPage, AFailureLeavesTheRunsCommandAsItWas)
{
    gRunWizard(CScript()
                   .Do({Open("Analysis/Fourier")})
                   .Fill({"base-frequency=1", "signals=v(1)"})
                   .Do({Insert(), Set("signals", ""), Insert()})
                   .Look({look::Command(".four 1 v(1) interpolate=1")}));
}

TEST_F(FourierPage, BuildsTheFourCommand)
{
    const CBracketTranslation translation;
    for (const TCase& rCase : kCases) {
        SCOPED_TRACE(rCase.pName);
        const auto outcome =
            gRunWizard({Open("[Analysis]/[Fourier]"), Set("base-frequency", rCase.pBase),
                        Set("number-of-frequencies", rCase.pFrequencies),
                        Set("number-of-points", rCase.pPoints), Set("signals", rCase.pSignals),
                        Check("interpolate", rCase.bInterpolate), Insert()});
        EXPECT_EQ(outcome.inserted, rCase.inserted);
        EXPECT_EQ(outcome.messages, rCase.messages);
    }
}

TEST_F(FourierPage, TheBoxComesUpCheckedInEveryRunWhateverItWas)
{
    for (int n = 0; n < 2; ++n) {
        const auto outcome = gRunWizard(CScript()
                                            .Do({Open(kPath)})
                                            .Look({look::Checked("interpolate", 1)})
                                            .Do({Set("base-frequency", "1k"), Set("signals", "v"),
                                                 Check("interpolate", false), Insert()})
                                            .Look({look::Checked("interpolate", 0)}));
        EXPECT_EQ(outcome.inserted, std::vector<std::string>{".four 1k v interpolate=0"});
    }
}

TEST_F(FourierPage, TheNextRunShowsTheLastSuccessAndNothingOfAFailure)
{
    gRunWizard({Open(kPath), Set("base-frequency", " 1k "), Set("number-of-frequencies", "5"),
                Set("number-of-points", "100"), Set("signals", "v(out)"), Insert(),
                Set("base-frequency", "2k"), Set("number-of-frequencies", "6"), Set("signals", ""),
                Insert()});
    gRunWizard(
        CScript()
            .Do({Open(kPath)})
            .Look({look::Text("base-frequency", "1k "), look::Text("number-of-frequencies", "5"),
                   look::Text("number-of-points", "100"), look::Text("signals", "v(out)")}));
}

TEST_F(FourierPage, ItsTextsAreThoseOfTheTemplate)
{
    const CBracketTranslation translation;
    gRunWizard(
        CScript()
            .Do({Open("[Analysis]/[Fourier]")})
            .Look({look::Label("base-frequency", "&Base frequency:"),
                   look::Label("number-of-frequencies", "&Number of frequencies (default is 9):"),
                   look::Label("number-of-points", "N&umber of points (default is 100):"),
                   look::Label("signals", "&Signals to be transformed:"),
                   look::Text("interpolate", "In&terpolate time domain data")}));
}
} // namespace
