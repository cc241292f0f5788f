#include "support/Look.h"
#include "support/PageTest.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"
#include "wizard/sources/SourcePageRun.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;

using NoiseResultsPage = PageTest;

constexpr const char* kPath = "Output/Noise results";

const std::vector<std::string> kComplexFormats{"[Magnitude]", "[Phase]", "[Real part]",
                                               "[Imaginary part]", "[Decibels]"};
const std::vector<std::string> kUntranslatedFormats{"Magnitude", "Phase", "Real part",
                                                    "Imaginary part", "Decibels"};
const std::vector<std::string> kOutputFormats{"[Magnitude]", "[Decibels]", "[Total (integrated)]"};
const std::vector<std::string> kNoiseSources{"[All]",
                                             "[Total]",
                                             "[Drain resistor]",
                                             "[Source resistor]",
                                             "[Gate resistor]",
                                             "[Base resistor]",
                                             "[Collector resistor]",
                                             "[Emitter resistor]",
                                             "[Channel noise]",
                                             "[Flicker noise]",
                                             "[Base shot noise]",
                                             "[Collector shot noise]",
                                             "[Diode series resistor]",
                                             "[Diode shot noise]",
                                             "[Transfer function]"};

// --- the command. Entries of the format list are translated here.

const std::vector<TSourceCase> kCases{
    {"a voltage", {"first-name= out "}, ".print noise vm(out)"},
    {"a voltage against a reference",
     {"first-name=a", "second-name= b ", "format=[Phase]"},
     ".print noise vp(a,b)"},
    {"real part", {"first-name=a", "format=[Real part]"}, ".print noise vr(a)"},
    {"imaginary part", {"first-name=a", "format=[Imaginary part]"}, ".print noise vi(a)"},
    {"decibels", {"first-name=a", "format=[Decibels]"}, ".print noise vdb(a)"},
    {"a current at a terminal",
     {"plot-type=#1", "first-name=m1", "terminal-selection=Gate", "format=[Decibels]"},
     ".print noise idbg(m1)"},
    {"a current at a node",
     {"plot-type=#2", "first-name=r1", "second-name=a", "format=[Phase]"},
     ".print noise ip(r1,a)"},
    {"output noise needs no field", {"plot-type=Output noise"}, ".print noise onoise(m)"},
    {"output noise in decibels",
     {"plot-type=Output noise", "format=[Decibels]"},
     ".print noise onoise(db)"},
    {"output noise, integrated",
     {"plot-type=Output noise", "format=[Total (integrated)]"},
     ".print noise onoise(tot)"},
    {"input noise behind output noise, whose formats it keeps",
     {"plot-type=Output noise", "format=[Total (integrated)]", "plot-type=Input noise",
      "item-name=ni", "item-unit=V"},
     ".print noise ni<V>=inoise(tot)"},
    {"transfer function", {"plot-type=Transfer function"}, ".print noise transfer"},
    {"a device's flicker noise",
     {"plot-type=Device noise contribution", "first-name= m1 ", "format=[Flicker noise]"},
     ".print noise dn(m1,FN)"},
    {"all of a device's noise",
     {"plot-type=Device noise contribution", "first-name=q1"},
     ".print noise dn(q1)"},
    {"an expression", {"plot-type=Expression", "expression= onoise*2 "}, ".print noise 'onoise*2'"},
    {"name and unit go in as typed",
     {"first-name=a", "item-name= x ", "item-unit= V "},
     ".print noise  x < V >=vm(a)"},
    {"a unit without a name", {"first-name=a", "item-unit=V"}, ".print noise vm(a)"},
    {"a name without a unit", {"first-name=a", "item-name=x"}, ".print noise x=vm(a)"},

    {"meant: a device that isn't named is not missed",
     {"plot-type=Device noise contribution"},
     ".print noise dn()"},
    {"meant: nor is it with a noise source",
     {"plot-type=Device noise contribution", "format=[Total]"},
     ".print noise dn(,TOT)"},

    {"no node", {}, "", "[Missing node name.]"},
    {"no device at a terminal", {"plot-type=#1"}, "", "[Missing node name.]"},
    {"no device at a node", {"plot-type=#2"}, "", "[Missing node name.]"},
    {"meant: a node at a device is missed without a full stop",
     {"plot-type=#2", "first-name=r1"},
     "",
     "[Missing terminal node name]"},
    {"no expression", {"plot-type=Expression"}, "", "[Missing plot expression.]"},
};

TEST_F(NoiseResultsPage, BuildsASingleItem)
{
    gExpectLines(kPath, {}, kCases);
}

TEST_F(NoiseResultsPage, EachNoiseSourceHasItsSuffixAndSomeShareOne)
{
    constexpr const char* kSuffixes[] = {")",    ",TOT)", ",RD)", ",RS)", ",RG)",
                                         ",RB)", ",RC)",  ",RE)", ",ID)", ",FN)",
                                         ",IB)", ",IC)",  ",RS)", ",ID)", ",RX)"};
    std::vector<TSourceCase> cases;
    for (std::size_t n = 0; n < std::size(kSuffixes); ++n)
        cases.push_back({kSuffixes[n],
                         {"plot-type=#6", "first-name=d", "format=#" + std::to_string(n)},
                         std::string(".print noise dn(d") + kSuffixes[n]});
    gExpectLines(kPath, {}, cases);
}

TEST_F(NoiseResultsPage, TheItemsOfTheExampleStandInTheCommandInTheirOrder)
{
    const auto outcome = gRunWizard(
        CScript()
            .Do({Open(kPath)})
            .Fill({"plot-type=Output noise", "format=Decibels", "add", "plot-type=Input noise",
                   "format=Total (integrated)", "item-name=ni", "item-unit=V", "add",
                   "plot-type=Transfer function", "item-name=", "add"})
            .Do({Insert()}));
    EXPECT_EQ(outcome.inserted,
              std::vector<std::string>{".print noise onoise(db) ni<V>=inoise(tot) transfer"});
}

TEST_F(NoiseResultsPage, ATransferFunctionAddedTwiceIsRefused)
{
    const auto outcome = gRunWizard(
        {Open(kPath), Select("plot-type", "Transfer function"), Click("add"), Click("add")});
    EXPECT_EQ(outcome.messages, std::vector<std::string>{"This entry is already in the list."});
}

TEST_F(NoiseResultsPage, AddTrimsNeitherNameNorUnit)
{
    gRunWizard(CScript()
                   .Do({Open(kPath)})
                   .Fill({"first-name= a ", "item-name= x ", "item-unit= V ", "add"})
                   .Look({look::Entries("list", {" x < V >=vm(a)"})}));
}

// --- the format list

TEST_F(NoiseResultsPage, EachTypeFillsTheFormatsAnewAndTranslatedOrLeavesThem)
{
    const CBracketTranslation translation;
    struct TCase {
        int nType;
        std::vector<std::string> formats;
    };
    const TCase cases[] = {{0, kComplexFormats},
                           {1, kComplexFormats},
                           {2, kComplexFormats},
                           {3, kOutputFormats},
                           {6, kNoiseSources}};
    CScript script;
    script.Do({Open("[Output]/[Noise results]")});
    for (const TCase& rCase : cases) {
        const int nLast = static_cast<int>(rCase.formats.size()) - 1;
        script.Do({Select("plot-type", rCase.nType)})
            .Look({look::Entries("format", rCase.formats), look::Selected("format", 0)})
            .Do({Select("format", nLast), Select("plot-type", "Transfer function"),
                 Select("plot-type", "Expression"), Select("plot-type", "Input noise")})
            .Look({look::Entries("format", rCase.formats), look::Selected("format", nLast)});
    }
    gRunWizard(std::move(script));
}

TEST_F(NoiseResultsPage, FromInputNoiseBackToOutputNoiseTheFormatsStartAgain)
{
    gRunWizard(CScript()
                   .Do({Open(kPath), Select("plot-type", "Output noise"),
                        Select("format", "Decibels"), Select("plot-type", "Input noise")})
                   .Look({look::Selected("format", 1), look::Text("format", "Decibels")})
                   .Do({Select("plot-type", "Output noise")})
                   .Look({look::Selected("format", 0), look::Text("format", "Magnitude")}));
}

// --- the format text of input noise

TEST_F(NoiseResultsPage, InputNoiseReadsTheFormatsOfAVoltageByTheirPlace)
{
    std::vector<TSourceCase> cases;
    for (const auto& [nFormat, pText] : {std::pair{0, "m"}, {1, "db"}, {2, "tot"}})
        cases.push_back({pText,
                         {"plot-type=Input noise", "format=#" + std::to_string(nFormat)},
                         std::string(".print noise inoise(") + pText + ")"});
    gExpectLines(kPath, {}, cases);
}

TEST_F(NoiseResultsPage, WithoutAFormatTextAddWritesNoneAndASingleItemTheOneBefore)
{
    for (const int nFormat : {3, 4}) {
        SCOPED_TRACE(nFormat);
        CRememberedBase::ResetAll();
        const auto outcome =
            gRunWizard(CScript()
                           .Do({Open(kPath), Set("first-name", "a"), Select("format", "Phase"),
                                Insert(), Select("plot-type", "Input noise"),
                                Select("format", nFormat), Insert(), Click("add")})
                           .Look({look::Entries("list", {"inoise()"})})
                           .Answer({true})
                           .Do({Click("delete"), Insert()}));
        EXPECT_EQ(outcome.inserted,
                  (std::vector<std::string>{".print noise vp(a)", ".print noise inoise(p)",
                                            ".print noise inoise()"}));
    }
}

TEST_F(NoiseResultsPage, AFailureLeavesTheFormatTextAlone)
{
    const auto outcome =
        gRunWizard({Open(kPath), Set("first-name", "a"), Select("format", "Phase"), Insert(),
                    Set("first-name", ""), Select("format", "Decibels"), Insert(),
                    Select("plot-type", "Input noise"), Select("format", 4), Insert()});
    EXPECT_EQ(outcome.inserted,
              (std::vector<std::string>{".print noise vp(a)", ".print noise inoise(p)"}));
}

TEST_F(NoiseResultsPage, ACommandOfTheListAndItemsWithoutAFormatLeaveTheFormatTextAlone)
{
    const auto outcome =
        gRunWizard(CScript()
                       .Do({Open(kPath), Set("first-name", "a"), Select("format", "Phase"),
                            Click("add"), Select("format", "Decibels"), Insert()})
                       .Answer({true})
                       .Do({Click("clear"), Select("plot-type", "Transfer function"), Insert(),
                            Select("plot-type", "Expression"), Set("expression", "x"), Insert(),
                            Select("plot-type", "Voltage"), Select("format", 3),
                            Select("plot-type", "Input noise"), Insert()}));
    EXPECT_EQ(outcome.inserted,
              (std::vector<std::string>{".print noise vp(a)", ".print noise transfer",
                                        ".print noise 'x'", ".print noise inoise(p)"}));
}

TEST_F(NoiseResultsPage, AnAddedTransferFunctionEmptiesTheFormatText)
{
    const auto outcome =
        gRunWizard(CScript()
                       .Do({Open(kPath), Set("first-name", "a"), Insert(),
                            Select("plot-type", "Transfer function"), Click("add")})
                       .Answer({true})
                       .Do({Click("clear"), Select("plot-type", "Voltage"), Select("format", 3),
                            Select("plot-type", "Input noise"), Insert()}));
    EXPECT_EQ(outcome.inserted.back(), ".print noise inoise()");
}

// --- how the page opens

TEST_F(NoiseResultsPage, TheFormatOfATypeThatFillsTheListIsNotThereInTheNextRun)
{
    const CBracketTranslation translation;
    for (const int nType : {0, 1, 2, 3, 6}) {
        SCOPED_TRACE(nType);
        CRememberedBase::ResetAll();
        gRunWizard(CScript()
                       .Do({Open("[Output]/[Noise results]"), Select("plot-type", nType),
                            Select("format", 2)})
                       .Then([nType](CDialog& rDialog) {
                           if (nType <= 2 || nType == 6) {
                               gRunStep(rDialog, Set("first-name", "a"));
                           }
                           if (nType == 2) {
                               gRunStep(rDialog, Set("second-name", "b"));
                           }
                       })
                       .Do({Insert()}));
        gRunWizard(CScript()
                       .Do({Open("[Output]/[Noise results]")})
                       .Look({look::Selected("plot-type", nType), look::Selected("format", 0)}));
    }
}

TEST_F(NoiseResultsPage, TheFormatOfInputNoiseComesBackOnTheFormatsOfTheTemplate)
{
    gRunWizard({Open(kPath), Select("plot-type", "Input noise"), Select("format", 1), Insert()});
    const CBracketTranslation translation;
    const auto outcome =
        gRunWizard(CScript()
                       .Do({Open("[Output]/[Noise results]")})
                       .Look({look::Text("plot-type", "Input noise"), look::Selected("format", 1),
                              look::Entries("format", kUntranslatedFormats)})
                       .Do({Insert()}));
    EXPECT_EQ(outcome.inserted, std::vector<std::string>{".print noise inoise(db)"});
}

TEST_F(NoiseResultsPage, AFormatBeyondThoseOfTheTemplateComesBackAsNone)
{
    gRunWizard({Open(kPath), Select("plot-type", "Device noise contribution"),
                Select("format", "Flicker noise"), Select("plot-type", "Input noise"), Insert()});
    const auto outcome =
        gRunWizard(CScript().Do({Open(kPath)}).Look({look::Selected("format", -1)}).Do({Insert()}));
    EXPECT_EQ(outcome.inserted, std::vector<std::string>{".print noise inoise()"});
}
} // namespace
