#include "cli/arguments/ArgumentTable.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <string>

namespace quorvawiz::cli
{
namespace
{
constexpr const char* kFooter =
    R"(Each ACTION does one thing with the file:
  info                counts what is in it
  check               looks for names that lead nowhere
  dump                tells everything as JSON
  save OUT            writes it anew
  devices             lists the devices
  models              lists the library models
  classes             lists the model classes of the simulator
  device SUBCKT NAME  shows the parameters of a device and its model
  model SUBCKT NAME   shows the parameters of a library model
  class NAME          shows the defaults of a model class

Exit code: 0 done, 1 a file can't be read or written, or check found such a
name, 2 an argument is wrong or the file has no such name.)";

class CParamsArguments final : public CCommandArguments
{
public:
    explicit CParamsArguments(CLI::App& rProgram);
    TCommand Read() override;

private:
    CLI::Option* AddText(const char* pOption, const char* pType, const char* pDescription);

    TParamsOptions mOptions;
    std::string msUnused;
    CLI::Option* mpArguments;
    CLI::Option* mpCsv;
    CLI::Option* mpSubckt;
    CLI::Option* mpTab;
};

CParamsArguments::CParamsArguments(CLI::App& rProgram)
    : CCommandArguments(rProgram, "params", "Look into a params file, or write it anew")
{
    CLI::App& rParser = Parser();
    rParser.add_option("FILE", mOptions.sFile, "The params file")->type_name("")->required();
    rParser.add_option("ACTION", mOptions.sAction, "What to do, see below")
        ->type_name("")
        ->required();
    mpArguments =
        rParser.add_option("ARGUMENT", mOptions.arguments, "What the action takes")->type_name("");
    AddJsonFlag(mOptions.bJson);
    mpCsv = AddText("--csv", "FILE", "Write a table as its export does; - is the standard output");
    rParser.add_flag("--header", mOptions.bHeader, "With --csv: a line of titles first");
    mpSubckt = AddText("--subckt", "NAME", "For devices: those of a subcircuit");
    mpTab = AddText("--tab", "LABEL", "For device and class: one tab, such as Device");
    rParser.add_flag("--xml", mOptions.bXml, "For save: as XML, which can't be read back");
    rParser.add_flag("--verbose", mOptions.bVerbose, "Tell where a file is refused, and why");
    AddFooter(kFooter);
}

CLI::Option* CParamsArguments::AddText(const char* pOption, const char* pType,
                                       const char* pDescription)
{
    return Parser().add_option(pOption, msUnused, pDescription)->type_name(pType);
}

TCommand CParamsArguments::Read()
{
    // As they were written: the parser's own conversion gives some texts a meaning.
    mOptions.arguments = mpArguments->results();
    const auto textOf = [](const CLI::Option* pOption) {
        return pOption->results().empty() ? std::optional<std::string>()
                                          : pOption->results().back();
    };
    mOptions.csv = textOf(mpCsv);
    mOptions.subckt = textOf(mpSubckt);
    mOptions.tab = textOf(mpTab);
    return mOptions;
}
} // namespace

std::unique_ptr<CCommandArguments> gMakeParamsArguments(CLI::App& rProgram)
{
    return std::make_unique<CParamsArguments>(rProgram);
}

} // namespace quorvawiz::cli
