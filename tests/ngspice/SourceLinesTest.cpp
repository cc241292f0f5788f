// A second opinion on the lines of the source pages: another simulator reads them. Each line of the
// examples stands in a small circuit that ngspice simulates.

#include "ngspice/Ngspice.h"
#include "platform/base/Ascii.h"
#include "support/PageTest.h"
#include "support/WizardRun.h"
#include "support/examples/ExampleLines.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <sstream>

namespace
{
using SourceLines = PageTest;

/// A part of a line that ngspice takes for an error.
struct TUnknownForm {
    const char* pPart;
    const char* pReason;
};

const TUnknownForm kUnknownForms[] = {
    {" BIT (", "it has no such waveform"},
    {" BUS (", "it has no such waveform"},
    {" chg='", "it takes no expression for a charge"},
    {" ROUND=", "it rounds no corners"},
    {" SIN ()", "it wants an offset and an amplitude"},
    {" SIN (2)", "it wants an amplitude behind the offset"},
    {" PWL (a b)", "it wants numbers where the page counts words"},
};

const TUnknownForm* UnknownFormIn(const std::string& rsLine)
{
    const auto* const pForm =
        std::ranges::find_if(kUnknownForms, [&rsLine](const TUnknownForm& rForm) {
            return rsLine.find(rForm.pPart) != std::string::npos;
        });
    return pForm == std::end(kUnknownForms) ? nullptr : pForm;
}

struct TComposedLine {
    std::string sPage;
    std::string sLine;
};

/// What the pages of sources insert for their examples.
std::vector<TComposedLine> ComposedLines()
{
    std::vector<TComposedLine> lines;
    for (const TExampleLine& rExample : gAllExamples()) {
        if (rExample.sPage.find(" source/") == std::string::npos || rExample.sLine.empty())
            continue;
        CRememberedBase::ResetAll();
        for (const std::string& rsLine : gCompose(rExample.sPage, rExample.arguments).inserted)
            lines.push_back({rExample.sPage, rsLine});
    }
    return lines;
}

/// Of each page, how many of its examples are simulated; none where all lines are of an unknown
/// form. An example more or less changes a number here.
const std::map<std::string, int> kSimulated{
    // clang-format off
    {"Current source/Bit", 0}, {"Voltage source/Bit", 0},
    {"Current source/Bus", 0}, {"Voltage source/Bus", 0},
    {"Current source/Constant", 2}, {"Voltage source/Constant", 2},
    {"Current source/Current-controlled", 2}, {"Voltage source/Current-controlled", 2},
    {"Current source/Exponential", 2}, {"Voltage source/Exponential", 1},
    {"Current source/FM", 1}, {"Voltage source/FM", 2},
    {"Current source/Piecewise linear", 1}, {"Voltage source/Piecewise linear", 1},
    {"Current source/Pulse", 2}, {"Voltage source/Pulse", 2},
    {"Current source/Sinusoidal", 3}, {"Voltage source/Sinusoidal", 3},
    {"Current source/Voltage-controlled", 2}, {"Voltage source/Voltage-controlled", 3},
    // clang-format on
};

/// What controls the device of this line: voltage sources, or nodes; each with a load.
std::string ControlOf(char chDevice, std::istringstream& rWords)
{
    std::string sControl;
    for (std::string sWord; rWords >> sWord;) {
        if (const std::size_t nAt = sWord.find("='v("); nAt != std::string::npos)
            sWord = sWord.substr(nAt + 4, sWord.find(')') - nAt - 4);
        if (!std::isalpha(static_cast<unsigned char>(sWord.front())) || sWord.starts_with("POLY") ||
            sWord == "GND" || sWord.find('=') != std::string::npos)
            continue;
        if (chDevice == 'F' || chDevice == 'H')
            sControl += sWord + " of" + sWord + " 0 1\nR" + sWord + " of" + sWord + " 0 1k\n";
        else
            sControl += "R" + sWord + ' ' + sWord + " 0 1k\n";
    }
    return sControl;
}

/// The device of this line with a load at each of its nodes, and a short transient analysis.
std::string CircuitOf(const std::string& rsLine)
{
    std::istringstream words(rsLine);
    std::string sName;
    std::string sPositive;
    std::string sNegative;
    words >> sName >> sPositive >> sNegative;
    std::string sCircuit =
        "* a source and its load\n" + rsLine + "\nRpositive " + sPositive + " 0 1k\n";
    if (sNegative != "GND")
        sCircuit += "Rnegative " + sNegative + " 0 1k\n";
    const char chDevice = gToUpperAscii(sName.front());
    if (chDevice >= 'E' && chDevice <= 'H')
        sCircuit += ControlOf(chDevice, words);
    return sCircuit + ".tran 1n 30n\n.print tran v(" + sPositive + ")\n.end\n";
}

TEST_F(SourceLines, NgspiceSimulatesThoseOfTheFormsThatItKnows)
{
    std::map<std::string, int> simulated;
    for (const auto& [sPage, sLine] : ComposedLines()) {
        simulated[sPage]; // those of which it knows no form, too
        if (UnknownFormIn(sLine))
            continue;
        const TProgramRun run = gSimulate(CircuitOf(sLine));
        EXPECT_TRUE(gIsAccepted(run)) << sLine << '\n' << testing::PrintToString(run);
        ++simulated[sPage];
    }
    EXPECT_EQ(simulated, kSimulated);
}

/// What the examples have to show beside a line of each page.
TEST_F(SourceLines, AmongTheSimulatedIsEachKindOfLine)
{
    const std::vector<TComposedLine> lines = ComposedLines();
    for (const char* const pForm :
         {"I1 a GND 5m AC 1 90", "v2 a b 3 AC 1 ", " PULSE (", " PWL (", " SIN (", " EXP (",
          " SFFM (", " dc ", "F1 a GND vsense 2", "H1 a GND V1 50", "g1 a GND c GND 1m",
          "E1 a GND c d 10", " POLY(1) ", " POLY(2) ", " POLY(3) ", " vol='"})
        EXPECT_TRUE(std::ranges::any_of(lines, [pForm](const TComposedLine& rComposed) {
            return !UnknownFormIn(rComposed.sLine) &&
                   rComposed.sLine.find(pForm) != std::string::npos;
        })) << pForm;
}

TEST_F(SourceLines, NgspiceRefusesThoseOfTheFormsThatItDoesNotKnow)
{
    for (const TUnknownForm& rForm : kUnknownForms) {
        SCOPED_TRACE(rForm.pReason);
        std::vector<TComposedLine> lines = ComposedLines();
        std::erase_if(lines, [&rForm](const TComposedLine& rComposed) {
            return UnknownFormIn(rComposed.sLine) != &rForm;
        });
        EXPECT_FALSE(lines.empty()) << rForm.pPart;
        for (const TComposedLine& rComposed : lines)
            EXPECT_FALSE(gIsAccepted(gSimulate(CircuitOf(rComposed.sLine)))) << rComposed.sLine;
    }
}

TEST_F(SourceLines, NgspiceIsAStrictJudge)
{
    EXPECT_TRUE(gIsAccepted(gSimulate(CircuitOf("V1 a GND PULSE (0 5)"))));
    EXPECT_FALSE(gIsAccepted(gSimulate(CircuitOf("V1 a GND PLSE (0 5)"))));
    EXPECT_FALSE(gIsAccepted(gSimulate(CircuitOf("V1 a GND PULSE (0 5) AD 1"))));
    EXPECT_FALSE(gIsAccepted(gSimulate(CircuitOf("V1 a"))));
}
} // namespace
