#include "simulators/ngspice/catalogue/AskCatalogue.h"

#include "simulators/ngspice/catalogue/BareCircuits.h"
#include "simulators/ngspice/process/Commands.h"
#include "simulators/ngspice/process/ImportError.h"
#include "simulators/ngspice/process/PrivateFolder.h"
#include "simulators/ngspice/process/Simulator.h"

#include <string>
#include <string_view>
#include <vector>

namespace quorvawiz::ngspice
{
namespace
{

constexpr const char* kFile = "ask.cir";

std::string Ask(const CSimulator& rSimulator, const std::string& rsCommands, std::string_view sFile)
{
    const CPrivateFolder folder;
    folder.Write(kFile, rsCommands);
    const std::string sFailure = rSimulator.Run(folder, kFile, folder.GetPath());
    std::string sListing = folder.Read(sFile);
    if (sListing.empty()) {
        throw CImportError("the simulator doesn't tell its classes" +
                           (sFailure.empty() ? sFailure : ": " + sFailure));
    }
    return sListing;
}

} // namespace

TCatalogueListings gAskCatalogue(const CSimulator& rSimulator,
                                 const std::function<void(std::size_t, std::size_t)>& rOnStep)
{
    const auto circuits = gBareCircuits();
    const std::size_t nAll = circuits.size() + 2;
    std::size_t nDone = 0;
    rOnStep(nDone++, nAll);
    const auto types = gReadDeviceTypes(Ask(rSimulator, gTypeCommands(), files::kTypes));
    rOnStep(nDone++, nAll);
    TCatalogueListings listings{Ask(rSimulator, gTableCommands(types), files::kTables), {}};
    if (gReadParamTables(listings.sTables).empty()) {
        throw CImportError("what the simulator tells about its classes isn't understood");
    }
    for (const TBareCircuit& rCircuit : circuits) {
        rOnStep(nDone++, nAll);
        const CPrivateFolder folder;
        folder.Write(kFile, "* bare\n" + std::string(kBareSupply) + std::string(rCircuit.sCards) +
                                gListingCommands());
        if (rSimulator.Run(folder, kFile, folder.GetPath()).empty()) {
            listings.bares.push_back({std::string(rCircuit.sClass), folder.Read(files::kShow),
                                      folder.Read(files::kShowMod)});
        }
    }
    return listings;
}

} // namespace quorvawiz::ngspice
