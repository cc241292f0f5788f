#include "cli/CommandLine.h"

#include "cli/Failure.h"
#include "cli/Quote.h"
#include "cli/Suggest.h"
#include "platform/base/Ascii.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <quorvawiz/version.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>
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

constexpr const char* kPageHelp = "Tree path in any letter case, or class name";

constexpr const char* kWordHelp = "Only those that have it in their name, key or explanation";

constexpr const char* kCommonFooter =
    "--code-page and --rules may be given, too; quorvawiz --help tells them.";

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
The document session.md tells all requests.)";

constexpr const char* kCallFooter =
    R"(Each line of the standard input is a call, each gets one line in reply:
  {"fn":"gConcatenatePaths","args":["C:\\a","\\b"]}
  {"ok":true,"result":"C:\\b"}
The document call.md tells all functions; --list lists them.)";

constexpr const char* kParamsFooter =
    R"(Each ACTION does one thing with the file:
  info      counts what is in it
  check     looks for names that lead nowhere
  dump      tells everything as JSON
  save OUT  writes it anew

Exit code: 0 done, 1 the file can't be read or written, or check found such a
name, 2 an argument is wrong.)";

void AddJsonFlag(CLI::App& rCommand, bool& rbJson)
{
    rCommand.add_flag("--json", rbJson, "One line of JSON instead of text");
}

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

/// Reads "NAME=VALUE"; VALUE may hold more equals signs.
void ReadVariable(const std::string& rsVariable, CMapEnvironment::TVariables& rVariables)
{
    const auto nEquals = rsVariable.find('=');
    if (nEquals == std::string::npos || nEquals == 0)
        throw CUsageError("--env takes NAME=VALUE, not " + gQuoted(rsVariable));
    rVariables[rsVariable.substr(0, nEquals)] = rsVariable.substr(nEquals + 1);
}

/// The options of `call` as they were written.
struct TCallArguments {
    std::vector<std::string> variables;
    std::string sDigits = "6";
    std::string sScale = "spice";
    bool bKeepZeros = false;
    bool bKeepExponents = false;
    bool bSi = false;
    bool bLog = false;
    bool bList = false;
};

/// The options of `make-example` as they were written.
struct TExampleArguments {
    std::string sOut;
    std::string sDevices = "1000";
    std::string sSeed = "1";
};

template <class TNumber>
TNumber ReadWhole(const char* pOption, const std::string& rsNumber, TNumber nMost)
{
    TNumber nNumber = 0;
    const char* const pEnd = rsNumber.data() + rsNumber.size();
    const auto read = std::from_chars(rsNumber.data(), pEnd, nNumber);
    if (read.ec != std::errc() || read.ptr != pEnd || nNumber > nMost || rsNumber[0] == '-')
        throw CUsageError(std::string(pOption) + " takes a number from 0 to " +
                          std::to_string(nMost) + ", not " + gQuoted(rsNumber));
    return nNumber;
}

TMakeExampleOptions ReadExampleOptions(const TExampleArguments& rArguments)
{
    constexpr int mostDevices = 10'000'000;
    return {rArguments.sOut, ReadWhole("--devices", rArguments.sDevices, mostDevices),
            ReadWhole("--seed", rArguments.sSeed, std::numeric_limits<std::uint64_t>::max())};
}

TCallOptions ReadCallOptions(const TCallArguments& rArguments)
{
    TCallOptions options;
    for (const std::string& rsVariable : rArguments.variables)
        ReadVariable(rsVariable, options.environment);
    unsigned nDigits = 0;
    const char* const pEnd = rArguments.sDigits.data() + rArguments.sDigits.size();
    const auto read = std::from_chars(rArguments.sDigits.data(), pEnd, nDigits);
    if (read.ec != std::errc() || read.ptr != pEnd || nDigits == 0)
        throw CUsageError("--digits takes a number from 1 on, not " + gQuoted(rArguments.sDigits));
    options.format.SetDefaultEngineeringFormatDigits(nDigits);
    const auto scale = gFindUnitScale(rArguments.sScale);
    if (!scale || *scale == TeUnitScale::Undefined)
        throw CUsageError("there is no scale " + gQuoted(rArguments.sScale) +
                          "; they are si, spice, hspice, scientific and engineering");
    options.format.SetDefaultEngineeringFormatUnitScale(*scale);
    options.format.SetDefaultEngineeringFormatRemoveTrailingZeroes(!rArguments.bKeepZeros);
    options.format.SetDefaultEngineeringFormatRemoveZeroExponents(!rArguments.bKeepExponents);
    options.format.SetDefaultEngineeringFormatUseSiSuffixInsteadOfSpice(rArguments.bSi);
    options.bLog = rArguments.bLog;
    options.bList = rArguments.bList;
    return options;
}

/// The parser of the program's arguments with the options that they are read into.
class CParser
{
public:
    CParser();
    std::variant<TCommandLine, TInformation> Read(int nArguments, const char* const* ppArguments);

private:
    CLI::App* AddCommand(const char* pName, const char* pDescription);
    void AddCall();
    void AddParams();
    void ThrowLeftOver() const;
    TCommandLine Collect();

    CLI::App mApp{"Composes SPICE commands with the pages of the SPICE Command Wizard.",
                  "quorvawiz"};
    std::string msCodePage = std::to_string(kCodePageUtf8);
    std::string msRules = kRulesHere;
    TPagesOptions mPages;
    TDescribeOptions mDescribe;
    TComposeOptions mCompose;
    TOptionsOptions mOptions;
    TCallArguments mCall;
    TParamsOptions mParams;
    TExampleArguments mExample;
    CLI::App* mpPages;
    CLI::App* mpDescribe;
    CLI::App* mpCompose;
    CLI::App* mpOptions;
    CLI::App* mpSession;
    CLI::App* mpCall = nullptr;
    CLI::App* mpParams = nullptr;
    CLI::App* mpExample = nullptr;
    CLI::Option* mpVariables = nullptr;
    CLI::Option* mpActions;
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
    mpCompose->footer(std::string(kComposeFooter) + "\n" + kCommonFooter);

    mpOptions = AddCommand("options", "List the options of the simulator");
    mpOptions->add_option("WORD", mOptions.sWord, kWordHelp)->type_name("");
    AddJsonFlag(*mpOptions, mOptions.bJson);

    mpSession = AddCommand("session", "Drive the wizard by lines of JSON");
    mpSession->footer(std::string(kSessionFooter) + "\n" + kCommonFooter);

    AddCall();
    AddParams();
}

void CParser::AddCall()
{
    mpCall = AddCommand("call", "Call functions of the foundation by lines of JSON");
    mpVariables = mpCall
                      ->add_option("--env", mCall.variables,
                                   "Set an environment variable; nothing is inherited")
                      ->type_name("NAME=VALUE")
                      ->expected(1)
                      ->take_all();
    mpCall->add_option("--digits", mCall.sDigits, "Default digits of formatted numbers")
        ->type_name("NUMBER")
        ->capture_default_str();
    mpCall->add_option("--scale", mCall.sScale, "Default scale of formatted numbers")
        ->type_name("KEY")
        ->capture_default_str();
    mpCall->add_flag("--keep-zeros", mCall.bKeepZeros, "Keep trailing zeros by default");
    mpCall->add_flag("--keep-exponents", mCall.bKeepExponents, "Keep zero exponents by default");
    mpCall->add_flag("--si", mCall.bSi, "Parse SI suffixes by default");
    mpCall->add_flag("--log", mCall.bLog, "Tell the path logger's lines in each reply");
    mpCall->add_flag("--list", mCall.bList, "List the functions and exit");
    mpCall->footer(std::string(kCallFooter) + "\n" + kCommonFooter);
}

void CParser::AddParams()
{
    mpParams = AddCommand("params", "Look into a params file, or write it anew");
    mpParams->add_option("FILE", mParams.sFile, "The params file")->type_name("")->required();
    mpParams->add_option("ACTION", mParams.sAction, "What to do: info, check, dump or save")
        ->type_name("")
        ->required();
    mpParams->add_option("OUT", mParams.sOut, "For save: the file to write")->type_name("");
    AddJsonFlag(*mpParams, mParams.bJson);
    mpParams->add_flag("--xml", mParams.bXml, "For save: as XML, which can't be read back");
    mpParams->add_flag("--verbose", mParams.bVerbose, "Tell where a file is refused, and why");
    mpParams->footer(std::string(kParamsFooter) + "\n" + kCommonFooter);

    mpExample = AddCommand("make-example", "Write a params file of a plausible circuit");
    mpExample->add_option("OUT", mExample.sOut, "The file to write")->type_name("")->required();
    mpExample->add_option("--devices", mExample.sDevices, "How many devices")
        ->type_name("NUMBER")
        ->capture_default_str();
    mpExample->add_option("--seed", mExample.sSeed, "The same seed makes the same file")
        ->type_name("NUMBER")
        ->capture_default_str();
}

CLI::App* CParser::AddCommand(const char* pName, const char* pDescription)
{
    CLI::App* const pCommand = mApp.add_subcommand(pName, pDescription);
    pCommand->fallthrough();
    pCommand->footer(kCommonFooter);
    return pCommand;
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
    static const std::vector<std::string> sCommands{
        "pages", "describe", "compose", "options", "session", "call", "params", "make-example"};
    const std::vector<std::string> rest = mApp.remaining();
    if (!mApp.get_subcommands().empty() || rest.empty())
        return;
    if (rest.front().starts_with('-'))
        throw Unexpected(rest);
    throw CUsageError("there is no command " + gQuoted(rest.front()) +
                      gDidYouMean(rest.front(), sCommands));
}

TCommandLine CParser::Collect()
{
    const unsigned nCodePage = ReadCodePage(msCodePage);
    if (msRules != "plain" && msRules != "unix")
        throw CUsageError("there are no path rules " + gQuoted(msRules) +
                          "; they are plain or unix");
    TCommandLine line{nCodePage, msRules == "unix", {}};
    if (mpPages->parsed()) {
        line.command = mPages;
    } else if (mpDescribe->parsed()) {
        line.command = mDescribe;
    } else if (mpCompose->parsed()) {
        // As they were written: the parser's own conversion gives some texts a meaning.
        mCompose.arguments = mpActions->results();
        line.command = mCompose;
    } else if (mpOptions->parsed()) {
        line.command = mOptions;
    } else if (mpCall->parsed()) {
        mCall.variables = mpVariables->results();
        line.command = ReadCallOptions(mCall);
    } else if (mpParams->parsed()) {
        line.command = mParams;
    } else if (mpExample->parsed()) {
        line.command = ReadExampleOptions(mExample);
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
