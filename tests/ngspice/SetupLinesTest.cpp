// A second opinion on the lines of the pages of files, initial values and settings: ngspice reads
// them beside a small circuit.

#include "ngspice/Ngspice.h"
#include "support/PageTest.h"
#include "support/TempFolder.h"
#include "support/WizardRun.h"

#include <string>
#include <vector>

namespace
{
/// What a page composes from its fields. FOLDER in them stands for a folder that has the files
/// "part.cir" and "tech.lib" with the section TT.
struct TLine {
    const char* pPage;
    std::vector<std::string> arguments;
    const char* pReason = nullptr; ///< why ngspice takes the line for an error; null: it doesn't
};

const TLine kLines[] = {
    {"Files/Include file", {"file=FOLDER/part.cir"}},
    {"Files/Library file", {"file=FOLDER/tech.lib", "section=TT"}},
    {"Files/Library file", {"file=FOLDER/tech.lib"}, "it wants a section"},
    {"Files/Delete library file",
     {"file=FOLDER/tech.lib", "section=TT"},
     "it can't take a library away"},

    {"Initialization/DC guess", {"node-1=a", "value-1=1"}},
    {"Initialization/DC guess", {"node-1=a", "value-1=1", "node-2=b", "value-2=0.5"}},
    {"Initialization/DC guess",
     {"node-1=a", "reference-1=b", "value-1=1"},
     "it guesses voltages against ground only"},
    {"Initialization/Initial condition", {"name=a", "value=3.3"}},
    {"Initialization/Initial condition", {"name=a", "value=1", "add", "name=b", "value=0", "add"}},
    {"Initialization/Initial condition",
     {"name=a", "second=b", "value=1"},
     "it takes voltages against ground only"},
    {"Initialization/Initial condition",
     {"mode=#1", "name=L1", "second=2m"},
     "it takes currents on the inductor's own line"},

    {"Settings/Bus definition", {"bus-name=addr", "node-list=a b"}, "it knows no buses"},
    {"Settings/Global nodes", {"node-list=vdd vss"}},
    {"Settings/Parameters", {"second=w", "third=2u"}},
    {"Settings/Parameters", {"second=w", "third=2u", "add", "second=v", "third={w*2}", "add"}},
    {"Settings/Parameters", {"parameter-type=Monte Carlo", "first=w", "second=1k", "third=0.1"}},
    {"Settings/Parameters",
     {"parameter-type=Optimization", "first=w", "sixth=r1", "second=1", "third=0", "fourth=2",
      "fifth=0.1"},
     "it knows no parameters of an optimization"},
    {"Settings/Simulation options", {"option-list=gmin", "value-text=1e-11"}},
    {"Settings/Simulation options", {"option-list=method", "value-list=gear"}},
    {"Settings/Simulation options", {"option-list=acct", "value-list=On"}},
    {"Settings/Temperature", {"temperature-list=27"}},
};

class SetupLines : public PageTest
{
protected:
    SetupLines()
    {
        mFolder.Write("part.cir", "Rpart a 0 1k\n");
        mFolder.Write("tech.lib", ".lib TT\nRpart a 0 1k\n.endl TT\n");
    }

    std::string Compose(const TLine& rLine) const
    {
        std::vector<std::string> arguments = rLine.arguments;
        for (std::string& rsArgument : arguments)
            if (const auto n = rsArgument.find("FOLDER/"); n != std::string::npos)
                rsArgument.replace(n, 7, mFolder.Path(""));
        CRememberedBase::ResetAll();
        const auto inserted = gCompose(rLine.pPage, arguments).inserted;
        EXPECT_EQ(inserted.size(), 1U) << rLine.pPage;
        return inserted.empty() ? std::string() : inserted.front();
    }

    CTempFolder mFolder;
};

std::string CircuitWith(const std::string& rsLine, const std::string& rsMore = {})
{
    return "* a divider\n" + rsLine +
           "\nV1 in 0 1\nR1 in a 1k\nC1 a 0 1n\nR2 a b 1k\nC2 b 0 1n\nL1 b c 1u\nR3 c 0 1k\n" +
           rsMore + ".tran 1n 30n uic\n.print tran v(a)\n.end\n";
}

TEST_F(SetupLines, NgspiceSimulatesThoseThatItKnowsAndRefusesTheOthers)
{
    for (const TLine& rLine : kLines) {
        const std::string sLine = Compose(rLine);
        const TProgramRun run = gSimulate(CircuitWith(sLine));
        EXPECT_EQ(gIsAccepted(run), rLine.pReason == nullptr)
            << sLine << ": " << (rLine.pReason ? rLine.pReason : "known") << '\n'
            << testing::PrintToString(run);
    }
}

/// The voltage in the first row of a run's table of results, a moment after the beginning.
double FirstVoltage(const TProgramRun& rRun)
{
    const auto nRow = rRun.sOut.find("\n0\t");
    if (nRow == std::string::npos) {
        ADD_FAILURE() << "no results: " << testing::PrintToString(rRun);
        return 0.0;
    }
    return std::stod(rRun.sOut.substr(rRun.sOut.find('\t', nRow + 3)));
}

constexpr double kMoment = 1e-3; // what a voltage may lose in it

TEST_F(SetupLines, AnInitialConditionIsWhereTheSimulationBegins)
{
    const std::string sLine =
        Compose({"Initialization/Initial condition", {"name=a", "value=3.3"}});
    EXPECT_NEAR(FirstVoltage(gSimulate(CircuitWith(sLine))), 3.3, kMoment);
}

TEST_F(SetupLines, AParameterHasItsValue)
{
    const std::string sLine = Compose({"Settings/Parameters", {"second=w", "third=2.5"}});
    EXPECT_NEAR(FirstVoltage(gSimulate(CircuitWith(sLine, ".ic v(a)={w}\n"))), 2.5, kMoment);
    EXPECT_FALSE(gIsAccepted(gSimulate(CircuitWith("", ".ic v(a)={w}\n"))));
}
} // namespace
