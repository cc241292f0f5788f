#include "cli/Run.h"

#include "cli/CommandLine.h"
#include "cli/Failure.h"
#include "cli/Output.h"
#include "cli/SessionCommand.h"
#include "platform/base/IsWine.h"

#include <exception>

namespace quorvawiz::cli
{
namespace
{
struct TRunCommand {
    int operator()(const TPagesOptions& rOptions) const { return gRunPages(rOptions); }
    int operator()(const TDescribeOptions& rOptions) const { return gRunDescribe(rOptions); }
    int operator()(const TComposeOptions& rOptions) const
    {
        return gRunCompose(gSpiceWizard(), rOptions);
    }
    int operator()(const TOptionsOptions& rOptions) const { return gRunOptions(rOptions); }
    int operator()(const TSessionOptions&) const { return gRunSession(); }
    int operator()(const TCallOptions& rOptions) const { return gRunCall(rOptions); }
    int operator()(const TParamsOptions& rOptions) const { return gRunParams(rOptions); }
    int operator()(const TMakeExampleOptions& rOptions) const { return gRunMakeExample(rOptions); }
    int operator()(const TImportCommandOptions& rOptions) const { return gRunImport(rOptions); }
};

int Run(int nArguments, const char* const* ppArguments)
{
    const auto read = gReadCommandLine(nArguments, ppArguments);
    if (const auto* const pInformation = std::get_if<TInformation>(&read)) {
        gWriteOut(pInformation->sText);
        return kDone;
    }
    const auto& rLine = std::get<TCommandLine>(read);
    gSetIsWine(rLine.bUnixRules);
    gSetSystemCodePage(rLine.nCodePage);
    return std::visit(TRunCommand(), rLine.command);
}
} // namespace

int gRun(int nArguments, const char* const* ppArguments) noexcept
{
    try {
        return Run(nArguments, ppArguments);
    } catch (const CUsageError& rError) {
        gComplain(rError.what());
        return kWronglyAsked;
    } catch (const std::exception& rException) {
        gComplain(rException.what());
        return kProgramFailure;
    } catch (...) {
        gComplain("an exception of an unknown kind");
        return kProgramFailure;
    }
}

} // namespace quorvawiz::cli
