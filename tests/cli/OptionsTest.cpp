#include "cli/OptionsCommand.h"
#include "support/RunProgram.h"
#include "support/options/OptionRows.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>
#include <vector>

// The catalogue of the simulator's options, to the letter.

namespace
{
using nlohmann::json;

/// The explanation in UTF-8; one byte of them all isn't ASCII.
std::string Explanation(int nIndex)
{
    std::string sText = optionRows::gExplanations()[static_cast<std::size_t>(nIndex)].pText;
    if (const auto n = sText.find('\x92'); n != std::string::npos)
        sText.replace(n, 1, "\u2019");
    return sText;
}

/// What the label says of the default; null where it says nothing.
json DefaultOf(const std::string& rsLabel)
{
    constexpr std::string_view kBefore = "(default is ";
    const auto nAt = rsLabel.find(kBefore);
    if (nAt == std::string::npos)
        return nullptr;
    const auto nBegin = nAt + kBefore.size();
    return rsLabel.substr(nBegin, rsLabel.rfind(')') - nBegin);
}

json Expected(const optionRows::TOption& rOption)
{
    const optionRows::TList list = gChoicesOf(rOption);
    json choices;
    json selected;
    for (std::size_t n = 0; n < list.entries.size(); ++n) {
        choices.push_back({{"entry", list.entries[n]}, {"token", list.tokens[n]}});
        if (list.entries[n] == rOption.pChosen)
            selected = n;
    }
    return {{"index", rOption.nIndex},
            {"entry", rOption.pEntry},
            {"key", rOption.pKey},
            {"kind", rOption.pControl},
            {"choices", choices},
            {"selected", selected},
            {"default", DefaultOf(rOption.pLabel)},
            {"label", rOption.pLabel},
            {"unit", rOption.pUnit},
            {"explanation", Explanation(rOption.nIndex)}};
}

TEST(Options, TheJsonHoldsAllOfThem)
{
    const TProgramRun run = gRunQuorvawiz({"options", "--json"});
    EXPECT_EQ(run.nExitCode, 0);
    EXPECT_EQ(run.sError, "");
    const json list = json::parse(run.sOut);
    ASSERT_EQ(list.size(), optionRows::gOptions().size());
    for (const optionRows::TOption& rOption : optionRows::gOptions())
        EXPECT_EQ(list[static_cast<std::size_t>(rOption.nIndex)], Expected(rOption));
}

TEST(Options, AnOptionIsALineAndWhatItsListHoldsStandsBelow)
{
    EXPECT_EQ(gRunQuorvawiz({"options", "dc operating"}), (TProgramRun{R"(
OPTION      KEY         KIND  DEFAULT                              UNIT  EXPLANATION
dchomotopy  dchomotopy  list  All                                  -     Selects the algorithm for resolving DC operating point non-convergence problems.
                        #0    None (none)
                        #1    gminstepping
                        #2    sourcestepping
                        #3    multiratesourcestepping (multirate)
                        #4    pseudotransient
                        #5    All (all)
dcmethod    dcmethod    list  Standard                             -     Selects the algorithm for DC operating point computation.
                        #0    Standard (standard)
                        #1    gminstepping
                        #2    sourcestepping
                        #3    multiratesourcestepping (multirate)
                        #4    pseudotransient
)" + 1,
                                                                       "", 0}));
    EXPECT_EQ(gRunQuorvawiz({"options", "library"}).sOut, R"(
OPTION         KEY            KIND    DEFAULT  UNIT  EXPLANATION
casesensitive  casesensitive  on/off  off      -     Controls case sensitivity for names of models, subcircuits, library sections, parameters, and nodes.
search         search         edit    -        -     Search path for library and include files.
)" + 1);
    EXPECT_EQ(gRunQuorvawiz({"options", "lvltim=2"}).sOut, R"(
OPTION  KEY    KIND  DEFAULT  UNIT  EXPLANATION
trtol   trtol  edit  10       -     Corrective factor for estimation of the local truncation error (LTE) when lvltim=2.
)" + 1);
}

TEST(Options, TheTextHoldsALineForEach)
{
    const std::string sText = quorvawiz::cli::gTellOptions({});
    std::size_t nLists = 0;
    for (const optionRows::TList& rList : optionRows::gLists())
        nLists += rList.entries.size();
    EXPECT_EQ(static_cast<std::size_t>(std::ranges::count(sText, '\n')), 1 + 102 + nLists);
}

struct TWordCase {
    const char* pName;
    const char* pWord;
    std::vector<std::string> keys;
};

const TWordCase kWordCases[] = {
    {"in the entry alone", "itl6", {"numns (itl6)"}},
    {"in the key alone", "resmin", {"minresistance", "resdelete"}},
    {"in the explanation alone", "fully qualified", {"pathnum"}},
    {"in other letter case", "KCLtest", {"kcltest"}},
    {"not in what can be chosen", "sparse", {}},
    {"with a blank", "cross-reference listings", {"xref"}},
    {"beyond ASCII", "system\u2019s", {"method"}},
    {"over the end of a line", "analysis:\n1", {"lvltim"}},
    {"nowhere", "no such word", {}},
};

TEST(Options, AWordIsSoughtInNameKeyAndExplanation)
{
    for (const TWordCase& rCase : kWordCases) {
        SCOPED_TRACE(rCase.pName);
        std::vector<std::string> found;
        for (const json& rOption : json::parse(quorvawiz::cli::gTellOptions({rCase.pWord, true})))
            found.push_back(rOption["entry"].get<std::string>());
        EXPECT_EQ(found, rCase.keys);
    }
}

TEST(Options, ExplanationsAreTheSameUnderAnyCodePage)
{
    for (const char* const pCodePage : {"1252", "932"}) {
        const TProgramRun run =
            gRunQuorvawiz({"options", "system\u2019s", "--json", "--code-page", pCodePage});
        EXPECT_EQ(run, gRunQuorvawiz({"options", "method of numerical", "--json"})) << pCodePage;
        EXPECT_EQ(json::parse(run.sOut).at(0)["explanation"], Explanation(50)) << pCodePage;
    }
}

TEST(Options, AWordThatNoOptionHasIsSaidAndEndsWithOne)
{
    const std::string sComplaint =
        "quorvawiz: no option has \"foo\" in its name, its key or its explanation\n";
    EXPECT_EQ(gRunQuorvawiz({"options", "foo"}), (TProgramRun{"", sComplaint, 1}));
    EXPECT_EQ(gRunQuorvawiz({"options", "foo", "--json"}), (TProgramRun{"[]\n", sComplaint, 1}));
}

TEST(Options, MoreThanOneWordIsWrong)
{
    EXPECT_EQ(gRunQuorvawiz({"options", "a", "b"}),
              (TProgramRun{"",
                           "quorvawiz: the following argument was not expected: \"b\"; --help "
                           "tells what is possible\n",
                           2}));
}
} // namespace
