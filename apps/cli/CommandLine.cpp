#include "cli/CommandLine.h"

#include "cli/Failure.h"
#include "cli/Suggest.h"
#include "platform/base/Ascii.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <quorvawiz/version.h>

#include <string>
#include <utility>
#include <vector>

namespace quorvawiz::cli
{
namespace
{
#ifdef _WIN32
constexpr const char* kRulesHere = "plain";
#else
constexpr const char* kRulesHere = "unix";
#endif

constexpr const char* kPageHelp = "Tree path in any letter case, or class name";

constexpr const char* kComposeFooter =
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

constexpr const char* kSessionFooter =
    R"(Each line of the standard input is a request, each gets one line in reply:
  {"op":"open","page":"Settings/Temperature"}
  {"op":"set","field":"temperature-list","text":"27"}
  {"op":"insert"}
docs/session.md tells all requests.)";

void AddJsonFlag(CLI::App& rCommand, bool& rbJson)
{
    rCommand.add_flag("--json", rbJson, "One line of JSON instead of text");
}

/// The parser's own messages in the form of ours.
CUsageError AsUsageError(const CLI::Error& rError)
{
    std::string sText = rError.what();
    while (sText.ends_with('\n') || sText.ends_with('.'))
        sText.pop_back();
    if (!sText.empty() && !sText.starts_with("PAGE"))
        sText.front() = gToLowerAscii(sText.front());
    return CUsageError(sText + "; --help tells what is possible");
}

/// The parser of the program's arguments with the options that they are read into.
class CParser
{
public:
    CParser();
    std::variant<TCommandLine, TInformation> Read(int nArguments, const char* const* ppArguments);

private:
    CLI::App* AddCommand(const char* pName, const char* pDescription);
    void ThrowIfUnknownCommand() const;
    TCommandLine Collect();

    CLI::App mApp{"Composes SPICE commands with the pages of the SPICE Command Wizard.",
                  "quorvawiz"};
    unsigned mnCodePage = kCodePageUtf8;
    std::string msRules = kRulesHere;
    TPagesOptions mPages;
    TDescribeOptions mDescribe;
    TComposeOptions mCompose;
    CLI::App* mpPages;
    CLI::App* mpDescribe;
    CLI::App* mpCompose;
    CLI::App* mpSession;
    CLI::Option* mpActions;
};

CParser::CParser()
{
    mApp.require_subcommand(1);
    mApp.set_version_flag("--version", std::string(kVersion), "Print the version and exit");
    mApp.set_help_flag("-h,--help", "Print this help and exit");
    mApp.add_option("--code-page", mnCodePage, "Code page of the wizard's texts")
        ->type_name("NUMBER")
        ->capture_default_str();
    mApp.add_option("--rules", msRules, "Path rules: plain or unix")
        ->type_name("NAME")
        ->capture_default_str();

    mpPages = AddCommand("pages", "List the pages of the wizard");
    AddJsonFlag(*mpPages, mPages.bJson);

    mpDescribe = AddCommand("describe", "Tell every control of a page");
    mpDescribe->add_option("PAGE", mDescribe.sPage, kPageHelp)->type_name("")->required();
    AddJsonFlag(*mpDescribe, mDescribe.bJson);

    mpCompose = AddCommand("compose", "Fill in a page and print its command");
    mpCompose->add_option("PAGE", mCompose.sPage, kPageHelp)->type_name("")->required();
    mpActions =
        mpCompose->add_option("ACTION", mCompose.arguments, "What the user does, in this order")
            ->type_name("");
    AddJsonFlag(*mpCompose, mCompose.bJson);
    mpCompose->footer(kComposeFooter);

    mpSession = AddCommand("session", "Drive the wizard by lines of JSON");
    mpSession->footer(kSessionFooter);
}

CLI::App* CParser::AddCommand(const char* pName, const char* pDescription)
{
    CLI::App* const pCommand = mApp.add_subcommand(pName, pDescription);
    pCommand->fallthrough();
    return pCommand;
}

std::variant<TCommandLine, TInformation> CParser::Read(int nArguments,
                                                       const char* const* ppArguments)
{
    try {
        mApp.parse(nArguments, ppArguments);
        return Collect();
    } catch (const CLI::CallForHelp&) {
        std::string sHelp = mApp.help(); // of the command, once one is chosen
        while (sHelp.ends_with("\n\n"))
            sHelp.pop_back();
        return TInformation{std::move(sHelp)};
    } catch (const CLI::CallForVersion&) {
        return TInformation{"quorvawiz " + std::string(kVersion) + '\n'};
    } catch (const CLI::RequiredError& rError) {
        ThrowIfUnknownCommand();
        throw AsUsageError(rError);
    } catch (const CLI::Error& rError) {
        throw AsUsageError(rError);
    }
}

/// The parser only says that a command is missing.
void CParser::ThrowIfUnknownCommand() const
{
    static const std::vector<std::string> sCommands{"pages", "describe", "compose", "session"};
    const std::vector<std::string> rest = mApp.remaining();
    if (!mApp.get_subcommands().empty() || rest.empty() || rest.front().starts_with('-'))
        return;
    throw CUsageError("there is no command " + gQuoted(rest.front()) +
                      gDidYouMean(rest.front(), sCommands));
}

TCommandLine CParser::Collect()
{
    if (!gIsCodePageKnown(mnCodePage))
        throw CUsageError("there is no code page " + std::to_string(mnCodePage));
    if (msRules != "plain" && msRules != "unix")
        throw CUsageError("there are no path rules " + gQuoted(msRules) +
                          "; they are plain or unix");
    TCommandLine line{mnCodePage, msRules == "unix", {}};
    if (mpPages->parsed()) {
        line.command = mPages;
    } else if (mpDescribe->parsed()) {
        line.command = mDescribe;
    } else if (mpCompose->parsed()) {
        // As they were written: the parser's own conversion gives some texts a meaning.
        mCompose.arguments = mpActions->results();
        line.command = mCompose;
    } else {
        line.command = TSessionOptions();
    }
    return line;
}
} // namespace

std::variant<TCommandLine, TInformation> gReadCommandLine(int nArguments,
                                                          const char* const* ppArguments)
{
    return CParser().Read(nArguments, ppArguments);
}

} // namespace quorvawiz::cli
