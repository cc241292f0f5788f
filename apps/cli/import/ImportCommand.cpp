#include "cli/import/ImportCommand.h"

#include "cli/Failure.h"
#include "cli/Output.h"
#include "cli/import/StopOnSignal.h"
#include "params/CircuitParams.h"
#include "params/ParamsFileError.h"
#include "simulators/ngspice/Import.h"
#include "simulators/ngspice/catalogue/CatalogueCache.h"
#include "simulators/ngspice/process/ImportError.h"

#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <stop_token>
#include <string>
#include <system_error>

namespace quorvawiz::cli
{
namespace
{
const char* KeyOf(ngspice::EImportStage eStage)
{
    switch (eStage) {
    case ngspice::EImportStage::Copying:
        return "netlist";
    case ngspice::EImportStage::Simulating:
        return "simulation";
    case ngspice::EImportStage::Classes:
        return "classes";
    case ngspice::EImportStage::Filling:
        break;
    }
    return "store";
}

/// "progress: classes 3/57".
void TellProgress(const ngspice::TImportProgress& rProgress)
{
    std::string sLine = std::string("progress: ") + KeyOf(rProgress.eStage);
    if (rProgress.nAll > 0)
        sLine += " " + std::to_string(rProgress.nDone) + "/" + std::to_string(rProgress.nAll);
    gWriteError(sLine);
}

std::string Counted(std::size_t nCount, const char* pWhat, const char* pEnd)
{
    return std::to_string(nCount) + " " + pWhat + (nCount == 1 ? "" : pEnd);
}

std::string Summary(const ngspice::TImported& rImported)
{
    return rImported.sSimulator + ": " + Counted(rImported.nDevices, "device", "s") + ", " +
           Counted(rImported.nModels, "model", "s") + ", " +
           Counted(rImported.pStore->mModelClasses.size(), "class", "es") + "\n";
}

ngspice::TImported Import(const TImportCommandOptions& rOptions, const std::stop_token& rStop)
{
    ngspice::TImportOptions options;
    options.netlist = rOptions.sNetlist;
    options.sSimulator = rOptions.sSimulator;
    options.timeout = std::chrono::seconds(rOptions.nTimeout);
    options.cache = ngspice::CCatalogueCache::GetUserFolder();
    std::function<void(const ngspice::TImportProgress&)> onProgress;
    if (rOptions.bProgress)
        onProgress = TellProgress;
    return ngspice::gImport(options, rStop, onProgress);
}

std::string CantWrite(const std::string& rsOut, const std::string& rsWhy)
{
    return "can't write '" + rsOut + "': " + rsWhy;
}

/// Why no file can be written there, as far as that can be seen without writing; or empty.
std::error_code WhyNoFile(const std::filesystem::path& rOut)
{
    std::error_code ignored;
    if (std::filesystem::is_directory(rOut, ignored))
        return std::make_error_code(std::errc::is_a_directory);
    if (rOut.empty() || std::filesystem::exists(std::filesystem::symlink_status(rOut, ignored)))
        return rOut.empty() ? std::make_error_code(std::errc::no_such_file_or_directory)
                            : std::error_code();
    const auto folder = rOut.has_parent_path() ? rOut.parent_path() : std::filesystem::path(".");
    if (std::filesystem::exists(folder, ignored) && !std::filesystem::is_directory(folder, ignored))
        return std::make_error_code(std::errc::not_a_directory);
    return ::access(folder.c_str(), W_OK) == 0 ? std::error_code()
                                               : std::error_code(errno, std::generic_category());
}
} // namespace

int gRunImport(const TImportCommandOptions& rOptions)
{
    std::error_code ignored;
    if (std::filesystem::equivalent(rOptions.sNetlist, rOptions.sOut, ignored))
        throw CUsageError("the params file would replace the netlist");
    // A simulation may take long.
    if (const std::error_code why = WhyNoFile(rOptions.sOut)) {
        gComplain(CantWrite(rOptions.sOut, why.message()));
        return kNothingDone;
    }
    const CStopOnSignal stop;
    try {
        const ngspice::TImported imported = Import(rOptions, stop.GetToken());
        for (const std::string& rsNote : imported.notes)
            gComplain(rsNote);
        if (rOptions.bProgress)
            gWriteError("progress: file");
        if (stop.GetToken().stop_requested())
            throw ngspice::CImportCancelled();
        imported.pStore->WriteThis(CStringU(rOptions.sOut, TTextKind::Utf8IfNeeded), "");
        gWriteOut(Summary(imported));
        return kDone;
    } catch (const ngspice::CImportError& rError) {
        gComplain(rError.what());
    } catch (const CParamsFileError& rError) {
        gComplain(CantWrite(rOptions.sOut, rError.GetDetail()));
    }
    return kNothingDone;
}

} // namespace quorvawiz::cli
