#include "cli/arguments/ArgumentTable.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

namespace quorvawiz::cli
{
namespace
{
constexpr const char* kFooter =
    R"(Each ACTION does one thing with the file:
  info      counts what is in it
  check     looks for names that lead nowhere
  dump      tells everything as JSON
  save OUT  writes it anew

Exit code: 0 done, 1 the file can't be read or written, or check found such a
name, 2 an argument is wrong.)";

class CParamsArguments final : public CCommandArguments
{
public:
    explicit CParamsArguments(CLI::App& rProgram)
        : CCommandArguments(rProgram, "params", "Look into a params file, or write it anew")
    {
        CLI::App& rParser = Parser();
        rParser.add_option("FILE", mOptions.sFile, "The params file")->type_name("")->required();
        rParser.add_option("ACTION", mOptions.sAction, "What to do: info, check, dump or save")
            ->type_name("")
            ->required();
        rParser.add_option("OUT", mOptions.sOut, "For save: the file to write")->type_name("");
        AddJsonFlag(mOptions.bJson);
        rParser.add_flag("--xml", mOptions.bXml, "For save: as XML, which can't be read back");
        rParser.add_flag("--verbose", mOptions.bVerbose, "Tell where a file is refused, and why");
        AddFooter(kFooter);
    }
    TCommand Read() override { return mOptions; }

private:
    TParamsOptions mOptions;
};
} // namespace

std::unique_ptr<CCommandArguments> gMakeParamsArguments(CLI::App& rProgram)
{
    return std::make_unique<CParamsArguments>(rProgram);
}

} // namespace quorvawiz::cli
