#include "simulators/ngspice/Import.h"

#include "params/CircuitParams.h"
#include "simulators/ngspice/FillStore.h"
#include "simulators/ngspice/cards/Cards.h"
#include "simulators/ngspice/catalogue/AskCatalogue.h"
#include "simulators/ngspice/catalogue/CatalogueCache.h"
#include "simulators/ngspice/listings/Listing.h"
#include "simulators/ngspice/listings/Version.h"
#include "simulators/ngspice/netlist/NetlistCopy.h"
#include "simulators/ngspice/process/Commands.h"
#include "simulators/ngspice/process/ImportError.h"
#include "simulators/ngspice/process/PrivateFolder.h"
#include "simulators/ngspice/process/Simulator.h"

#include <boost/smart_ptr/make_shared.hpp>

#include <optional>
#include <string_view>
#include <system_error>

namespace quorvawiz::ngspice
{
namespace
{

constexpr const char* kFile = "netlist.cir";

/// What the simulator told about a netlist.
struct TSimulated {
    TVersion version;
    std::string sShow;
    std::string sShowMod;
    std::string sExpand;
    TInstanceNames instances;
};

/// Tells whether the simulator lists a netlist, and no device in it.
bool HasNoDevice(const TSimulated& rSimulated)
{
    return !gReadListing(rSimulated.sExpand).empty() &&
           CCards(rSimulated.sExpand).GetDeviceNames().empty();
}

/// One import, stage by stage.
class CImport
{
public:
    CImport(const TImportOptions& rOptions, const std::stop_token& rStop,
            const std::function<void(const TImportProgress&)>& rOnProgress)
        : mrOptions(rOptions), mStop(rStop), mrOnProgress(rOnProgress),
          mSimulator(rOptions.sSimulator, rOptions.timeout, rStop), mCache(rOptions.cache)
    {
    }

    TImported Run();

private:
    void Tell(EImportStage eStage, std::size_t nDone = 0, std::size_t nAll = 0) const;
    TSimulated Simulate(std::vector<std::string>& rNotes) const;
    TCatalogueListings Ask(const TVersion& rVersion) const;
    TFilled Fill(const TCatalogueListings& rListings, const TSimulated& rSimulated,
                 TCircuitParams& rStore) const;

    const TImportOptions& mrOptions;
    std::stop_token mStop;
    const std::function<void(const TImportProgress&)>& mrOnProgress;
    CSimulator mSimulator;
    CCatalogueCache mCache;
};

void CImport::Tell(EImportStage eStage, std::size_t nDone, std::size_t nAll) const
{
    if (mStop.stop_requested()) {
        throw CImportCancelled();
    }
    if (mrOnProgress) {
        mrOnProgress({eStage, nDone, nAll});
    }
}

std::string TellStripped(std::size_t nStripped)
{
    return "left out " + std::to_string(nStripped) +
           (nStripped == 1 ? " block or line of commands" : " blocks or lines of commands") +
           ", which an import doesn't run";
}

TSimulated CImport::Simulate(std::vector<std::string>& rNotes) const
{
    Tell(EImportStage::Copying);
    const CPrivateFolder folder;
    CNetlistCopy copy(folder);
    folder.Write(kFile, copy.Copy(mrOptions.netlist) + gListingCommands());
    if (copy.GetStripped() > 0) {
        rNotes.push_back(TellStripped(copy.GetStripped()));
    }

    Tell(EImportStage::Simulating);
    std::error_code ignored;
    const auto inputFolder = std::filesystem::absolute(mrOptions.netlist, ignored).parent_path();
    const std::string sFailure = copy.TellUsersFiles(mSimulator.Run(folder, kFile, inputFolder));
    TSimulated simulated{gReadVersion(folder.Read(files::kVersion)), folder.Read(files::kShow),
                         folder.Read(files::kShowMod), folder.Read(files::kExpand),
                         copy.GetInstances()};
    const TVersion& rVersion = simulated.version;
    if (rVersion.nMajor > 0 && rVersion.nMajor < kLeastVersion) {
        throw CImportError("the simulator is " + rVersion.sName + "; ngspice-" +
                           std::to_string(kLeastVersion) + " or later is needed");
    }
    if (!sFailure.empty()) {
        throw CImportError("the simulator fails at the netlist: " + sFailure);
    }
    if (rVersion.nMajor == 0) {
        throw CImportError("the output of '" + mSimulator.GetProgram() +
                           "' isn't understood; is it ngspice?");
    }
    // A plot of it is there even if it wasn't found, and then an error says so.
    if (!folder.Read(files::kPlot).starts_with("op") || CSimulator::WasAborted(folder)) {
        throw CImportError("the simulator finds no operating point of the netlist" +
                           copy.TellUsersFiles(CSimulator::ReadWords(folder)));
    }
    if (HasNoDevice(simulated)) {
        throw CImportError("the netlist has no device");
    }
    return simulated;
}

TCatalogueListings CImport::Ask(const TVersion& rVersion) const
{
    TCatalogueListings listings =
        gAskCatalogue(mSimulator, [this](std::size_t nDone, std::size_t nAll) {
            Tell(EImportStage::Classes, nDone, nAll);
        });
    mCache.Store(rVersion, listings);
    return listings;
}

TFilled CImport::Fill(const TCatalogueListings& rListings, const TSimulated& rSimulated,
                      TCircuitParams& rStore) const
{
    Tell(EImportStage::Filling);
    return gFillStore(
        CCatalogue(rListings),
        {rSimulated.sShow, rSimulated.sShowMod, rSimulated.sExpand, rSimulated.instances},
        rSimulated.version.sName + ", " + mrOptions.netlist.filename().string(), rStore);
}

TImported CImport::Run()
{
    TImported imported;
    imported.pStore = boost::make_shared<TCircuitParams>();
    const TSimulated simulated = Simulate(imported.notes);
    imported.sSimulator = simulated.version.sName;
    auto cached = mCache.Load(simulated.version);
    TFilled filled = Fill(cached ? *cached : Ask(simulated.version), simulated, *imported.pStore);
    if (cached && filled.nWithoutClass > 0) {
        // The simulator may have got more code models since it was asked.
        imported.pStore = boost::make_shared<TCircuitParams>();
        filled = Fill(Ask(simulated.version), simulated, *imported.pStore);
    }
    if (filled.nWithoutClass > 0) {
        imported.notes.push_back("the class of " + std::to_string(filled.nWithoutClass) +
                                 " devices isn't known");
    }
    if (filled.nDevices == 0) {
        throw CImportError("the output of " + imported.sSimulator +
                           " isn't understood: it shows no device");
    }
    imported.nModels = filled.nModels;
    imported.nDevices = filled.nDevices;
    return imported;
}

} // namespace

TImported gImport(const TImportOptions& rOptions, const std::stop_token& stop,
                  const std::function<void(const TImportProgress&)>& rOnProgress)
{
    return CImport(rOptions, stop, rOnProgress).Run();
}

} // namespace quorvawiz::ngspice
