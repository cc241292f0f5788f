#include "support/RunProgram.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{
void ExpectHelp(const std::vector<std::string>& rArguments, const std::string& rsHelp)
{
    EXPECT_EQ(gRunQuorvawiz(rArguments), (TProgramRun{rsHelp, "", 0}));
}

TEST(Help, Program)
{
    ExpectHelp({"--help"}, R"(Composes SPICE commands with the pages of the SPICE Command Wizard.
Usage: quorvawiz [OPTIONS] SUBCOMMAND

Options:
  --version                   Print the version and exit
  -h,--help                   Print this help and exit
  --code-page NUMBER=65001    Code page of the wizard's texts
  --rules NAME=unix           Path rules: plain or unix

Subcommands:
  pages                       List the pages of the wizard
  describe                    Tell every control of a page
  compose                     Fill in a page and print its command
  options                     List the options of the simulator
  session                     Drive the wizard and the browser by lines of JSON
  call                        Call functions of the foundation by lines of JSON
  params                      Look into a params file, or write it anew
  make-example                Write a params file of a plausible circuit
  import                      Write a params file of what a simulator knows about a netlist
)");
}

TEST(Help, Pages)
{
    ExpectHelp({"pages", "--help"}, R"(List the pages of the wizard
Usage: quorvawiz pages [OPTIONS]

Options:
  -h,--help                   Print this help and exit
  --json                      One line of JSON instead of text

--code-page and --rules may be given, too; quorvawiz --help tells them.
)");
}

TEST(Help, Describe)
{
    ExpectHelp({"describe", "--help"}, R"(Tell every control of a page
Usage: quorvawiz describe [OPTIONS] PAGE

Positionals:
  PAGE REQUIRED               Tree path in any letter case, or class name

Options:
  -h,--help                   Print this help and exit
  --json                      One line of JSON instead of text

--code-page and --rules may be given, too; quorvawiz --help tells them.
)");
}

TEST(Help, Compose)
{
    ExpectHelp({"compose", "--help"}, R"(Fill in a page and print its command
Usage: quorvawiz compose [OPTIONS] PAGE [ACTION...]

Positionals:
  PAGE REQUIRED               Tree path in any letter case, or class name
  ACTION ...                  What the user does, in this order

Options:
  -h,--help                   Print this help and exit
  --json                      One line of JSON instead of text

Each ACTION is what a user does, in this order:
  edit=TEXT             types; a line feed in TEXT starts a new line
  list=ENTRY            chooses an entry, a tab or a radio button by its text,
  list=#INDEX           or by its index from 0
  box=on  box=off       turns a check box on or off
  button                presses a button
  button.field=VALUE    acts in the dialog that a button opens; the dialog is
                        accepted when the next action lies outside it

Example:
  quorvawiz compose Settings/Temperature "temperature-list=0 27 85"

Exit code: 0 a command was inserted, 1 none was, 2 an argument is wrong.
--code-page and --rules may be given, too; quorvawiz --help tells them.
)");
}

TEST(Help, Options)
{
    ExpectHelp({"options", "--help"}, R"(List the options of the simulator
Usage: quorvawiz options [OPTIONS] [WORD]

Positionals:
  WORD                        Only those that have it in their name, key or explanation

Options:
  -h,--help                   Print this help and exit
  --json                      One line of JSON instead of text

--code-page and --rules may be given, too; quorvawiz --help tells them.
)");
}

TEST(Help, Session)
{
    ExpectHelp({"session", "--help"}, R"(Drive the wizard and the browser by lines of JSON
Usage: quorvawiz session [OPTIONS]

Options:
  -h,--help                   Print this help and exit

Each line of the standard input is a request, each gets one line in reply:
  {"op":"open","page":"Settings/Temperature"}
  {"op":"set","field":"temperature-list","text":"27"}
  {"op":"insert"}
The document session.md tells all requests.
--code-page and --rules may be given, too; quorvawiz --help tells them.
)");
}

TEST(Help, Call)
{
    ExpectHelp({"call", "--help"}, R"(Call functions of the foundation by lines of JSON
Usage: quorvawiz call [OPTIONS]

Options:
  -h,--help                   Print this help and exit
  --env NAME=VALUE            Set an environment variable; nothing is inherited
  --digits NUMBER=6           Default digits of formatted numbers
  --scale KEY=spice           Default scale of formatted numbers
  --keep-zeros                Keep trailing zeros by default
  --keep-exponents            Keep zero exponents by default
  --si                        Parse SI suffixes by default
  --log                       Tell the path logger's lines in each reply
  --list                      List the functions and exit

Each line of the standard input is a call, each gets one line in reply:
  {"fn":"gConcatenatePaths","args":["C:\\a","\\b"]}
  {"ok":true,"result":"C:\\b"}
The document call.md tells all functions; --list lists them.
--code-page and --rules may be given, too; quorvawiz --help tells them.
)");
}

TEST(Help, TheShortFormIsTheSame)
{
    ExpectHelp({"-h"}, gRunQuorvawiz({"--help"}).sOut);
    ExpectHelp({"compose", "-h"}, gRunQuorvawiz({"compose", "--help"}).sOut);
    ExpectHelp({"compose", "Settings", "x", "--help"}, gRunQuorvawiz({"compose", "-h"}).sOut);
}
TEST(Help, Params)
{
    ExpectHelp({"params", "--help"}, R"(Look into a params file, or write it anew
Usage: quorvawiz params [OPTIONS] FILE ACTION [ARGUMENT...]

Positionals:
  FILE REQUIRED               The params file
  ACTION REQUIRED             What to do, see below
  ARGUMENT ...                What the action takes

Options:
  -h,--help                   Print this help and exit
  --json                      One line of JSON instead of text
  --csv FILE                  Write a table as its export does; - is the standard output
  --header                    With --csv: a line of titles first
  --subckt NAME               For devices: those of a subcircuit
  --tab LABEL                 For device and class: one tab, such as Device
  --xml                       For save: as XML, which can't be read back
  --verbose                   Tell where a file is refused, and why

Each ACTION does one thing with the file:
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
name, 2 an argument is wrong or the file has no such name.
--code-page and --rules may be given, too; quorvawiz --help tells them.
)");
}

TEST(Help, MakeExample)
{
    ExpectHelp({"make-example", "--help"}, R"(Write a params file of a plausible circuit
Usage: quorvawiz make-example [OPTIONS] OUT

Positionals:
  OUT REQUIRED                The file to write

Options:
  -h,--help                   Print this help and exit
  --devices NUMBER=1000       How many devices
  --seed NUMBER=1             The same seed makes the same file

--code-page and --rules may be given, too; quorvawiz --help tells them.
)");
}

TEST(Help, Import)
{
    ExpectHelp({"import", "--help"},
               R"(Write a params file of what a simulator knows about a netlist
Usage: quorvawiz import [OPTIONS] NETLIST

Positionals:
  NETLIST REQUIRED            The netlist

Options:
  -h,--help                   Print this help and exit
  -o,--out FILE REQUIRED      The params file to write
  --simulator PROGRAM=ngspice Path or name of ngspice
  --timeout NUMBER=60         Seconds for all that the simulator does
  --progress                  Tell each stage on standard error

The simulator works on a copy of the netlist without the commands in it. A file
FILE that is there is replaced only when the new one is whole.

Exit code: 0 done, 1 the simulator is missing, fails at the netlist or takes too
long, or the file can't be written, 2 an argument is wrong.
--code-page and --rules may be given, too; quorvawiz --help tells them.
)");
}

} // namespace
