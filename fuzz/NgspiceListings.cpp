// Any bytes as what a simulator lists: each listing by its reader, and all of them as a store.

#include "params/CircuitParams.h"
#include "simulators/ngspice/FillStore.h"
#include "simulators/ngspice/catalogue/Catalogue.h"
#include "simulators/ngspice/catalogue/PackedCatalogue.h"
#include "simulators/ngspice/listings/DeviceTypes.h"
#include "simulators/ngspice/listings/OwnWords.h"
#include "simulators/ngspice/listings/Version.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <tuple>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize);

namespace
{

void Require(bool bHolds)
{
    if (!bHolds) {
        std::abort();
    }
}

/// The listings of an input: what stands between lines of this form.
constexpr std::string_view kBetween = "\n====\n";

std::array<std::string_view, 6> Split(std::string_view sAll)
{
    std::array<std::string_view, 6> parts;
    for (std::string_view& rsPart : parts) {
        const std::size_t nEnd = sAll.find(kBetween);
        rsPart = sAll.substr(0, nEnd);
        sAll.remove_prefix(nEnd == std::string_view::npos ? sAll.size() : nEnd + kBetween.size());
    }
    return parts;
}

void LookThrough(const TCircuitParams& rStore, std::size_t nDevices)
{
    std::size_t nListed = 0;
    for (const TDeviceListEntry& rEntry : rStore.GetDeviceList(-1)) {
        const TDeviceData* const pDevice = rStore.GetDeviceData(rEntry.mnSubckt, rEntry.msName);
        Require(pDevice != nullptr);
        std::ignore = pDevice->GetModelParams();
        for (const TParamDef& rParam : pDevice->GetDeviceParams()) {
            std::ignore = ParamValueToText(rParam.mValue);
        }
        for (const TParamDef& rParam : pDevice->GetStateParams()) {
            std::ignore = ParamValueToText(rParam.mValue);
        }
        ++nListed;
    }
    Require(nListed <= nDevices); // of devices with one name the last one stays
    for (const TModelListEntry& rEntry : rStore.GetModelList()) {
        Require(rStore.GetModelData(rEntry.mnSubckt, rEntry.msName) != nullptr);
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    using namespace quorvawiz::ngspice;
    const std::string_view sAll(reinterpret_cast<const char*>(pData), nSize);
    // Tables, a bare circuit's devices and models, the netlist's devices, models and cards.
    const auto [sTables, sBare, sBareModels, sShow, sShowMod, sExpand] = Split(sAll);
    std::ignore = gReadDeviceTypes(sAll);
    std::ignore = gOwnWords(sTables, sBare);
    const TVersion version = gReadVersion(sAll);
    std::ignore = gUnpackCatalogue(version, sAll);

    const TCatalogueListings listings{std::string(sTables),
                                      {{"BJT", std::string(sBare), std::string(sBareModels)}}};
    const auto packed = gUnpackCatalogue(version, gPackCatalogue(version, listings));
    Require(packed && *packed == listings);
    TCircuitParams store;
    const TFilled filled =
        gFillStore(CCatalogue(listings), {sShow, sShowMod, sExpand, {"x1", "xtop"}}, "fuzz", store);
    LookThrough(store, filled.nDevices);
    return 0;
}
