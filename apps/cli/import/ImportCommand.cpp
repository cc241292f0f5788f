#include "cli/import/ImportCommand.h"

#include "cli/Failure.h"
#include "cli/Output.h"
#include "cli/import/StopOnSignal.h"
#include "params/CircuitParams.h"
#include "params/ParamsFileError.h"
#include "simulators/ngspice/CatalogueCache.h"
#include "simulators/ngspice/Import.h"
#include "simulators/ngspice/ImportError.h"

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
} // namespace

int gRunImport(const TImportCommandOptions& rOptions)
{
    std::error_code ignored;
    if (std::filesystem::equivalent(rOptions.sNetlist, rOptions.sOut, ignored))
        throw CUsageError("the params file would replace the netlist");
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
        gWriteError(rError.what());
    }
    return kNothingDone;
}

} // namespace quorvawiz::cli
