#include "cli/arguments/CommandArguments.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

namespace quorvawiz::cli
{
namespace
{
constexpr const char* kCommonFooter =
    "--code-page and --rules may be given, too; quorvawiz --help tells them.";
} // namespace

CCommandArguments::CCommandArguments(CLI::App& rProgram, const char* pName,
                                     const char* pDescription)
    : mrParser(*rProgram.add_subcommand(pName, pDescription))
{
    mrParser.fallthrough();
    mrParser.footer(kCommonFooter);
}

const std::string& CCommandArguments::Name() const
{
    return mrParser.get_name();
}

bool CCommandArguments::IsChosen() const
{
    return mrParser.parsed();
}

void CCommandArguments::AddJsonFlag(bool& rbJson)
{
    mrParser.add_flag("--json", rbJson, "One line of JSON instead of text");
}

void CCommandArguments::AddPage(std::string& rsPage)
{
    mrParser.add_option("PAGE", rsPage, "Tree path in any letter case, or class name")
        ->type_name("")
        ->required();
}

void CCommandArguments::AddFooter(const char* pText)
{
    mrParser.footer(std::string(pText) + "\n" + kCommonFooter);
}

} // namespace quorvawiz::cli
