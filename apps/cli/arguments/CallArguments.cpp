#include "cli/Failure.h"
#include "cli/Quote.h"
#include "cli/arguments/ArgumentTable.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <charconv>
#include <string>
#include <system_error>
#include <vector>

namespace quorvawiz::cli
{
namespace
{
constexpr const char* kFooter =
    R"(Each line of the standard input is a call, each gets one line in reply:
  {"fn":"gConcatenatePaths","args":["C:\\a","\\b"]}
  {"ok":true,"result":"C:\\b"}
The document call.md tells all functions; --list lists them.)";

/// Reads "NAME=VALUE"; VALUE may hold more equals signs.
void ReadVariable(const std::string& rsVariable, CMapEnvironment::TVariables& rVariables)
{
    const auto nEquals = rsVariable.find('=');
    if (nEquals == std::string::npos || nEquals == 0)
        throw CUsageError("--env takes NAME=VALUE, not " + gQuoted(rsVariable));
    rVariables[rsVariable.substr(0, nEquals)] = rsVariable.substr(nEquals + 1);
}

class CCallArguments final : public CCommandArguments
{
public:
    explicit CCallArguments(CLI::App& rProgram);
    TCommand Read() override;

private:
    std::vector<std::string> mVariables;
    std::string msDigits = "6";
    std::string msScale = "spice";
    bool mbKeepZeros = false;
    bool mbKeepExponents = false;
    bool mbSi = false;
    bool mbLog = false;
    bool mbList = false;
    CLI::Option* mpVariables;
};

CCallArguments::CCallArguments(CLI::App& rProgram)
    : CCommandArguments(rProgram, "call", "Call functions of the foundation by lines of JSON")
{
    CLI::App& rParser = Parser();
    mpVariables =
        rParser
            .add_option("--env", mVariables, "Set an environment variable; nothing is inherited")
            ->type_name("NAME=VALUE")
            ->expected(1)
            ->take_all();
    rParser.add_option("--digits", msDigits, "Default digits of formatted numbers")
        ->type_name("NUMBER")
        ->capture_default_str();
    rParser.add_option("--scale", msScale, "Default scale of formatted numbers")
        ->type_name("KEY")
        ->capture_default_str();
    rParser.add_flag("--keep-zeros", mbKeepZeros, "Keep trailing zeros by default");
    rParser.add_flag("--keep-exponents", mbKeepExponents, "Keep zero exponents by default");
    rParser.add_flag("--si", mbSi, "Parse SI suffixes by default");
    rParser.add_flag("--log", mbLog, "Tell the path logger's lines in each reply");
    rParser.add_flag("--list", mbList, "List the functions and exit");
    AddFooter(kFooter);
}

TCommand CCallArguments::Read()
{
    TCallOptions options;
    for (const std::string& rsVariable : mpVariables->results())
        ReadVariable(rsVariable, options.environment);
    unsigned nDigits = 0;
    const char* const pEnd = msDigits.data() + msDigits.size();
    const auto read = std::from_chars(msDigits.data(), pEnd, nDigits);
    if (read.ec != std::errc() || read.ptr != pEnd || nDigits == 0)
        throw CUsageError("--digits takes a number from 1 on, not " + gQuoted(msDigits));
    options.format.SetDefaultEngineeringFormatDigits(nDigits);
    const auto scale = gFindUnitScale(msScale);
    if (!scale || *scale == TeUnitScale::Undefined)
        throw CUsageError("there is no scale " + gQuoted(msScale) +
                          "; they are si, spice, hspice, scientific and engineering");
    options.format.SetDefaultEngineeringFormatUnitScale(*scale);
    options.format.SetDefaultEngineeringFormatRemoveTrailingZeroes(!mbKeepZeros);
    options.format.SetDefaultEngineeringFormatRemoveZeroExponents(!mbKeepExponents);
    options.format.SetDefaultEngineeringFormatUseSiSuffixInsteadOfSpice(mbSi);
    options.bLog = mbLog;
    options.bList = mbList;
    return options;
}
} // namespace

std::unique_ptr<CCommandArguments> gMakeCallArguments(CLI::App& rProgram)
{
    return std::make_unique<CCallArguments>(rProgram);
}

} // namespace quorvawiz::cli
