#include "cli/arguments/ArgumentTable.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

namespace quorvawiz::cli
{
namespace
{
constexpr const char* kFooter =
    R"(Each ACTION is what a user does, in this order:
  edit=TEXT             types; a line feed in TEXT starts a new line
  list=ENTRY            chooses an entry, a tab or a radio button by its text,
  list=#INDEX           or by its index from 0
  box=on  box=off       turns a check box on or off
  button                presses a button
  button.field=VALUE    acts in the dialog that a button opens; the dialog is
                        accepted when the next action lies outside it

Example:
  quorvawiz compose Settings/Temperature "temperature-list=0 27 85"

Exit code: 0 a command was inserted, 1 none was, 2 an argument is wrong.)";

class CComposeArguments final : public CCommandArguments
{
public:
    explicit CComposeArguments(CLI::App& rProgram)
        : CCommandArguments(rProgram, "compose", "Fill in a page and print its command")
    {
        AddPage(mOptions.sPage);
        mpActions =
            Parser()
                .add_option("ACTION", mOptions.arguments, "What the user does, in this order")
                ->type_name("");
        AddJsonFlag(mOptions.bJson);
        AddFooter(kFooter);
    }

    TCommand Read() override
    {
        // As they were written: the parser's own conversion gives some texts a meaning.
        mOptions.arguments = mpActions->results();
        return mOptions;
    }

private:
    TComposeOptions mOptions;
    CLI::Option* mpActions;
};
} // namespace

std::unique_ptr<CCommandArguments> gMakeComposeArguments(CLI::App& rProgram)
{
    return std::make_unique<CComposeArguments>(rProgram);
}

} // namespace quorvawiz::cli
