#include "cli/arguments/ArgumentTable.h"
#include "cli/arguments/ReadNumber.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <string>

namespace quorvawiz::cli
{
namespace
{
constexpr int kMostSeconds = 1'000'000;

constexpr const char* kFooter =
    R"(The simulator works on a copy of the netlist without the commands in it. A file
FILE that is there is replaced only when the new one is whole.

Exit code: 0 done, 1 the simulator is missing, fails at the netlist or takes too
long, or the file can't be written, 2 an argument is wrong.)";

class CImportArguments final : public CCommandArguments
{
public:
    explicit CImportArguments(CLI::App& rProgram)
        : CCommandArguments(rProgram, "import",
                            "Write a params file of what a simulator knows about a netlist")
    {
        CLI::App& rParser = Parser();
        rParser.add_option("NETLIST", mOptions.sNetlist, "The netlist")->type_name("")->required();
        rParser.add_option("-o,--out", mOptions.sOut, "The params file to write")
            ->type_name("FILE")
            ->required();
        rParser.add_option("--simulator", mOptions.sSimulator, "Path or name of ngspice")
            ->type_name("PROGRAM")
            ->capture_default_str();
        rParser.add_option("--timeout", msTimeout, "Seconds for all that the simulator does")
            ->type_name("NUMBER")
            ->capture_default_str();
        rParser.add_flag("--progress", mOptions.bProgress, "Tell each stage on standard error");
        AddFooter(kFooter);
    }

    TCommand Read() override
    {
        mOptions.nTimeout = gReadWhole("--timeout", msTimeout, kMostSeconds, 1);
        return mOptions;
    }

private:
    TImportCommandOptions mOptions;
    std::string msTimeout = "60";
};
} // namespace

std::unique_ptr<CCommandArguments> gMakeImportArguments(CLI::App& rProgram)
{
    return std::make_unique<CImportArguments>(rProgram);
}

} // namespace quorvawiz::cli
