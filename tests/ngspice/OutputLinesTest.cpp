// A second opinion on the lines of the output pages: ngspice reads them beside a small circuit and
// the analysis that they belong to.

#include "ngspice/Ngspice.h"
#include "support/PageTest.h"
#include "support/WizardRun.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace
{
using OutputLines = PageTest;

struct TAnalysis {
    const char* pCommand;
    const char* pPrint; ///< a result that is printed beside a line that prints none
    const char* pHead;  ///< as ngspice heads its table
};

constexpr TAnalysis kAC{".ac dec 10 1 1meg", ".print ac v(a)", "AC Analysis"};
constexpr TAnalysis kDC{".dc V1 0 5 0.002", ".print dc v(a)", "DC transfer characteristic"};
constexpr TAnalysis kTransient{".tran 0.1n 40n", ".print tran v(a)", "Transient Analysis"};
constexpr TAnalysis kNoise{".noise v(b) V1 dec 10 1 1meg", ".print noise onoise_spectrum", "Noise"};

/// What a page composes from its fields, and how ngspice takes it.
struct TLine {
    const TAnalysis& rAnalysis;
    const char* pPage;
    std::vector<std::string> arguments;
    const char* pReason = nullptr;              ///< why it refuses the line; null: it doesn't
    std::optional<double> value = std::nullopt; ///< the result that it measures
};

constexpr const char* kNoQuotes = "it prints no expression in quotes";
constexpr const char* kNoNames = "it knows no names of plot items";
constexpr const char* kNoDevices = "it takes nodes and sources only";

const TLine kPrints[] = {
    {kAC, "Output/AC results", {"first-name=a"}},
    {kAC, "Output/AC results", {"first-name=a", "second-name=b"}},
    {kAC, "Output/AC results", {"first-name=a", "format=Phase"}},
    {kAC, "Output/AC results", {"first-name=a", "format=Real part"}},
    {kAC, "Output/AC results", {"first-name=a", "format=Decibels"}},
    {kAC, "Output/AC results", {"first-name=a", "add", "first-name=b", "format=Decibels", "add"}},
    {kAC, "Output/AC results", {"first-name=a", "item-name=x"}, kNoNames},
    {kAC, "Output/AC results", {"first-name=a", "item-name=x", "item-unit=V"}, kNoNames},
    {kAC,
     "Output/AC results",
     {"plot-type=#1", "first-name=M1", "terminal-selection=Drain"},
     kNoDevices},
    {kAC, "Output/AC results", {"plot-type=#2", "first-name=R1", "second-name=a"}, kNoDevices},
    {kAC, "Output/AC results", {"plot-type=Expression", "expression=v(a)/v(b)"}, kNoQuotes},

    {kDC, "Output/DC results", {"first-name=a"}},
    {kDC, "Output/DC results", {"first-name=a", "second-name=b"}},
    {kDC, "Output/DC results", {"first-name=a", "add", "first-name=b", "add"}},
    {kDC,
     "Output/DC results",
     {"plot-type=#1", "first-name=M1", "terminal-selection=Drain"},
     kNoDevices},
    {kDC, "Output/DC results", {"plot-type=#2", "first-name=R1", "second-name=a"}, kNoDevices},
    {kDC, "Output/DC results", {"plot-type=#3", "first-name=M1"}, "it prints no charges"},
    {kDC,
     "Output/DC results",
     {"plot-type=#4", "first-name=C1", "second-name=b"},
     "it prints no charges"},
    {kDC, "Output/DC results", {"plot-type=Power", "first-name=R1"}, "it prints no powers"},
    {kDC, "Output/DC results", {"plot-type=Expression", "expression=v(a)*2"}, kNoQuotes},

    {kTransient, "Output/Transient results", {"first-name=a"}},
    {kTransient, "Output/Transient results", {"first-name=a", "second-name=b"}},
    {kTransient, "Output/Transient results", {"first-name=a", "item-name=x"}, kNoNames},
    {kTransient,
     "Output/Transient results",
     {"plot-type=Power", "first-name=R1"},
     "it prints no powers"},
    {kTransient,
     "Output/Transient results",
     {"plot-type=Expression", "expression=v(a)*2"},
     kNoQuotes},

    {kNoise, "Output/Noise results", {"first-name=a"}, "it prints no voltages of a noise analysis"},
    {kNoise,
     "Output/Noise results",
     {"plot-type=Output noise"},
     "it calls the output noise onoise_spectrum"},
    {kNoise,
     "Output/Noise results",
     {"plot-type=Input noise"},
     "it calls the input noise inoise_spectrum"},
    {kNoise, "Output/Noise results", {"plot-type=Transfer function"}, "it prints no transfer"},
    {kNoise,
     "Output/Noise results",
     {"plot-type=Device noise contribution", "first-name=M1", "format=Total"},
     "it prints no noise of a device by its name"},
    {kNoise, "Output/Noise results", {"plot-type=Expression", "expression=onoise*2"}, kNoQuotes},

    {kAC, "Output/AC small-signal model", {"device-list=M1"}, "it has no such command"},
    {kAC, "Output/AC small-signal model", {"all-devices=on"}, "it has no such command"},
    {kTransient, "Output/Power", {"source=V1"}, "it has no such command"},
    {kTransient, "Output/Power", {"source=R1", "end-time=5n"}, "it has no such command"},
};

/// The fields of a measurement, its type in front.
std::vector<std::string> Measured(const char* pType, std::vector<std::string> fields)
{
    fields.insert(fields.begin(), {"result-name=r", std::string("measurement-type=") + pType});
    return fields;
}

/// The same in a transient analysis.
std::vector<std::string> InTime(const char* pType, std::vector<std::string> fields)
{
    fields.insert(fields.begin(), "analysis-type=Transient");
    return Measured(pType, std::move(fields));
}

std::vector<std::string> Statistic(const char* pKind, const char* pSignal)
{
    return InTime("Signal statistics",
                  {std::string("kind=") + pKind, std::string("output-signal=") + pSignal});
}

std::vector<std::string> Error(const char* pKind)
{
    return InTime("Error function", {std::string("kind=") + pKind, "first-signal=v(a)",
                                     "second-signal=v(b)", "from=0"});
}

constexpr const char* kNoSuchKind = "it knows no such statistic";
constexpr const char* kNoErrors = "it knows no error functions";

/// The page's own path goes with all of these. The pulse rises from 0 to 1 in the first
/// nanosecond and falls from the eleventh on; node b has half of it.
const TLine kMeasures[] = {
    {kTransient, "Output/Measure",
     InTime("Difference", {"trigger-mode=When", "trigger-signal=v(a)", "trigger-value=0.5",
                           "target-signal=v(b)", "target-value=0.25", "target-crossing-kind=fall"}),
     nullptr, 11e-9},
    {kTransient, "Output/Measure",
     InTime("Difference",
            {"trigger-mode=When", "trigger-signal=v(a)", "trigger-value=0.5", "trigger-delay=2n",
             "trigger-crossing-kind=fall", "target-signal=v(b)", "target-value=0.25",
             "target-crossing-kind=rise", "target-crossing-number=last"}),
     nullptr, 9e-9},
    {kTransient, "Output/Measure",
     InTime("Difference", {"at-value=1n", "target-signal=v(b)", "target-value=0.25",
                           "target-crossing-kind=fall"}),
     nullptr, 10.5e-9},
    {kTransient, "Output/Measure",
     InTime("Difference",
            {"at-value=1n", "target-signal=v(b)", "target-value=0.25", "goal=2", "weight=3"}),
     "it has no goals of an optimization"},
    {kTransient, "Output/Measure",
     InTime("Difference",
            {"at-value=1n", "target-signal=v(b)", "target-value=0.25", "suppress-printing=on"}),
     "it prints every measurement"},

    {kDC, "Output/Measure",
     Measured("Signal statistics", {"kind=Maximum", "output-signal=v(a)", "from=0", "to=4"}),
     nullptr, 4.0},
    {kDC, "Output/Measure",
     Measured("Signal statistics", {"kind=Minimum", "output-signal=v(a)", "from=1"}), nullptr, 1.0},
    {kDC, "Output/Measure",
     Measured("Signal statistics", {"kind=Maximum", "output-signal=v(a)", "reported-signal=v(b)"}),
     "it reports no other signal"},
    {kTransient, "Output/Measure", Statistic("Average", "v(c)"), nullptr, 0.25},
    {kTransient, "Output/Measure", Statistic("Peak-to-peak", "v(b)"), nullptr, 0.5},
    {kTransient, "Output/Measure", Statistic("RMS", "v(c)"), nullptr, 0.25},
    {kTransient, "Output/Measure", Statistic("Integral", "v(c)"), kNoSuchKind},
    {kTransient, "Output/Measure", Statistic("x at maximum", "v(b)"), kNoSuchKind},
    {kTransient, "Output/Measure", Statistic("x at minimum", "v(b)"), kNoSuchKind},

    {kTransient, "Output/Measure", InTime("Find-when", {"find-signal=v(a)", "when-x-value=5n"}),
     nullptr, 1.0},
    {kTransient, "Output/Measure",
     InTime("Find-when", {"when-row=#1", "find-choice=x-value", "when-signal=v(b)",
                          "when-value=0.25", "value-row-crossing-number=2"}),
     nullptr, 11.5e-9},
    {kTransient, "Output/Measure",
     InTime("Find-when", {"when-row=#1", "find-signal=v(a)", "when-signal=v(b)", "when-value=0.25",
                          "value-row-delay=2n", "value-row-crossing-kind=fall"}),
     nullptr, 0.5},
    {kTransient, "Output/Measure",
     InTime("Find-when", {"when-row=#2", "find-choice=x-value", "signal-row-first-signal=v(b)",
                          "signal-row-second-signal=v(c)", "signal-row-crossing-kind=fall"}),
     nullptr, 11.5e-9},
    {kTransient, "Output/Measure",
     InTime("Find-when", {"when-row=#2", "find-signal=v(a)", "signal-row-first-signal=v(b)",
                          "signal-row-second-signal=v(c)", "signal-row-crossing-kind=rise"}),
     nullptr, 0.5},

    {kAC, "Output/Measure",
     Measured("Find-when", {"analysis-type=AC", "find-signal=v(b)", "when-x-value=1k"}), nullptr,
     0.5},

    {kTransient, "Output/Measure", InTime("Expression evaluation", {"expression=1+2"}), nullptr,
     3.0},
    {kTransient, "Output/Measure",
     InTime("Expression evaluation", {"expression=1+2", "suppress-printing=on"}), nullptr, 3.0},

    {kTransient, "Output/Measure", Error("err"), kNoErrors},
    {kTransient, "Output/Measure", Error("err1"), kNoErrors},
    {kTransient, "Output/Measure", Error("err2"), kNoErrors},
    {kTransient, "Output/Measure", Error("err3"), kNoErrors},
};

std::string CircuitWith(const std::string& rsLine, const TAnalysis& rAnalysis)
{
    std::string sCircuit = "* a divider, and a level\n"
                           "V1 a 0 dc 1 ac 1 pulse(0 1 0 1n 1n 10n 20n)\n"
                           "R1 a b 1k\nR2 b 0 1k\nC1 a 0 1f\nV2 c 0 0.25\nR3 c 0 1k\n"
                           "M1 a b 0 0 nm\n.model nm nmos level=1 vto=10\n";
    sCircuit += rsLine + "\n" + rAnalysis.pCommand + "\n";
    if (!rsLine.starts_with(".print"))
        sCircuit += std::string(rAnalysis.pPrint) + "\n";
    return sCircuit + ".end\n";
}

std::string Compose(const TLine& rLine)
{
    CRememberedBase::ResetAll();
    const auto inserted = gCompose(rLine.pPage, rLine.arguments).inserted;
    EXPECT_EQ(inserted.size(), 1U) << rLine.pPage;
    return inserted.empty() ? std::string() : inserted.front();
}

/// The value of the measurement "r" in a run's output.
double MeasuredValue(const std::string& rsOut)
{
    const std::size_t nName = rsOut.find("\nr ");
    if (nName == std::string::npos) {
        ADD_FAILURE() << "nothing was measured: " << rsOut;
        return 0.0;
    }
    return std::stod(rsOut.substr(rsOut.find('=', nName) + 1));
}

TEST_F(OutputLines, NgspicePrintsWhatItKnowsAndRefusesTheOthers)
{
    for (const TLine& rLine : kPrints) {
        const std::string sLine = Compose(rLine);
        const TProgramRun run = gSimulate(CircuitWith(sLine, rLine.rAnalysis));
        EXPECT_EQ(gIsAccepted(run, rLine.rAnalysis.pHead), rLine.pReason == nullptr)
            << sLine << ": " << (rLine.pReason ? rLine.pReason : "known") << '\n'
            << testing::PrintToString(run);
    }
}

TEST_F(OutputLines, NgspiceMeasuresWhatItKnowsAndRefusesTheOthers)
{
    for (const TLine& rLine : kMeasures) {
        const std::string sLine = Compose(rLine);
        const TProgramRun run = gSimulate(CircuitWith(sLine, rLine.rAnalysis));
        const bool bAccepted = gIsAccepted(run, rLine.rAnalysis.pHead);
        EXPECT_EQ(bAccepted, rLine.pReason == nullptr)
            << sLine << ": " << (rLine.pReason ? rLine.pReason : "known") << '\n'
            << testing::PrintToString(run);
        if (bAccepted && rLine.value) {
            EXPECT_NEAR(MeasuredValue(run.sOut) / *rLine.value, 1.0, 0.01) << sLine;
        }
    }
}
} // namespace
