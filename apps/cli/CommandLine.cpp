#include "cli/CommandLine.h"

#include "cli/Failure.h"
#include "cli/Quote.h"
#include "cli/Suggest.h"
#include "cli/arguments/ArgumentTable.h"
#include "platform/base/Ascii.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <quorvawiz/version.h>

#include <algorithm>
#include <charconv>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
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

constexpr const char* kSeeHelp = "; --help tells what is possible";

/// The parser's own messages in the form of ours.
CUsageError AsUsageError(const CLI::Error& rError)
{
    std::string sText = gPrintable(rError.what());
    while (sText.ends_with('\n') || sText.ends_with('.'))
        sText.pop_back();
    // An argument's name, such as "PAGE", stays as the help shows it.
    const auto isCapital = [](char c) { return c >= 'A' && c <= 'Z'; };
    if (!sText.empty() && !(sText.size() > 1 && isCapital(sText[1])))
        sText.front() = gToLowerAscii(sText.front());
    return CUsageError(sText + kSeeHelp);
}

/// The parser takes "[a,b]" for a list and would read its parts as arguments of their own.
void RefuseLists(std::span<const char* const> arguments)
{
    for (const std::string_view sArgument : arguments)
        if (sArgument.size() > 1 && sArgument.starts_with('[') && sArgument.ends_with(']'))
            throw CUsageError("the argument " + gQuoted(sArgument) + " can't stand in brackets");
}

/// What the parser left over.
CUsageError Unexpected(const std::vector<std::string>& rArguments)
{
    std::string sText = rArguments.size() > 1 ? "the following arguments were not expected:"
                                              : "the following argument was not expected:";
    for (const std::string& rsArgument : rArguments)
        sText += ' ' + gQuoted(rsArgument);
    return CUsageError(sText + kSeeHelp);
}

unsigned ReadCodePage(const std::string& rsNumber)
{
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (rsNumber.empty() || !std::ranges::all_of(rsNumber, isDigit))
        throw CUsageError("--code-page takes a number, not " + gQuoted(rsNumber));
    unsigned nCodePage = 0;
    const auto [pEnd, error] =
        std::from_chars(rsNumber.data(), rsNumber.data() + rsNumber.size(), nCodePage);
    if (error != std::errc() || !gIsCodePageKnown(nCodePage))
        throw CUsageError("there is no code page " + rsNumber);
    return nCodePage;
}

/// The parser of the program's arguments with the options that they are read into.
class CParser
{
public:
    CParser();
    std::variant<TCommandLine, TInformation> Read(int nArguments, const char* const* ppArguments);

private:
    void ThrowLeftOver() const;
    TCommandLine Collect();

    CLI::App mApp{"Composes SPICE commands with the pages of the SPICE Command Wizard.",
                  "quorvawiz"};
    std::string msCodePage = std::to_string(kCodePageUtf8);
    std::string msRules = kRulesHere;
    std::vector<std::unique_ptr<CCommandArguments>> mCommands;
};

CParser::CParser()
{
    mApp.require_subcommand(1);
    mApp.set_version_flag("--version", std::string(kVersion), "Print the version and exit");
    mApp.set_help_flag("-h,--help", "Print this help and exit");
    mApp.add_option("--code-page", msCodePage, "Code page of the wizard's texts")
        ->type_name("NUMBER")
        ->capture_default_str();
    mApp.add_option("--rules", msRules, "Path rules: plain or unix")
        ->type_name("NAME")
        ->capture_default_str();
    mCommands = gAddCommands(mApp);
}

std::variant<TCommandLine, TInformation> CParser::Read(int nArguments,
                                                       const char* const* ppArguments)
{
    RefuseLists(std::span(ppArguments, static_cast<std::size_t>(nArguments)));
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
        ThrowLeftOver();
        throw AsUsageError(rError);
    } catch (const CLI::ExtrasError&) {
        throw Unexpected(mApp.remaining(true));
    } catch (const CLI::Error& rError) {
        throw AsUsageError(rError);
    }
}

/// Where a command is missing, the parser doesn't say what stands in its place.
void CParser::ThrowLeftOver() const
{
    const std::vector<std::string> rest = mApp.remaining();
    if (!mApp.get_subcommands().empty() || rest.empty())
        return;
    if (rest.front().starts_with('-'))
        throw Unexpected(rest);
    std::vector<std::string> names;
    for (const auto& rpCommand : mCommands)
        names.push_back(rpCommand->Name());
    throw CUsageError("there is no command " + gQuoted(rest.front()) +
                      gDidYouMean(rest.front(), names));
}

TCommandLine CParser::Collect()
{
    const unsigned nCodePage = ReadCodePage(msCodePage);
    if (msRules != "plain" && msRules != "unix")
        throw CUsageError("there are no path rules " + gQuoted(msRules) +
                          "; they are plain or unix");
    // The parser has made sure that there is one.
    const auto chosen = std::ranges::find_if(
        mCommands, [](const auto& rpCommand) { return rpCommand->IsChosen(); });
    return {nCodePage, msRules == "unix", (*chosen)->Read()};
}
} // namespace

std::variant<TCommandLine, TInformation> gReadCommandLine(int nArguments,
                                                          const char* const* ppArguments)
{
    return CParser().Read(nArguments, ppArguments);
}

} // namespace quorvawiz::cli
