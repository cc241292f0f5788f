#include "cli/params/StoreInfo.h"

#include "cli/JsonLine.h"
#include "cli/Output.h"
#include "params/CircuitParams.h"

#include <charconv>
#include <cstdint>
#include <filesystem>
#include <system_error>
#include <vector>

namespace quorvawiz::cli
{
namespace
{
template <class TDatasets> std::size_t CountIn(const TDatasets& rDatasets)
{
    std::size_t nCount = 0;
    for (const auto& [nId, rDataset] : rDatasets)
        nCount += rDataset.size();
    return nCount;
}

std::uintmax_t SizeOf(const std::string& rsFile)
{
    std::error_code error;
    const auto nSize = std::filesystem::file_size(rsFile, error);
    return error ? 0 : nSize;
}

/// With one digit behind the point.
std::string ToText(double dMilliseconds)
{
    std::string sText(32, '\0');
    const auto end = std::to_chars(sText.data(), sText.data() + sText.size(), dMilliseconds,
                                   std::chars_format::fixed, 1);
    sText.resize(static_cast<std::size_t>(end.ptr - sText.data()));
    return sText;
}
} // namespace

std::string gTellInfo(const TCircuitParams& rStore, const TLoadInfo& rLoad, bool bJson)
{
    const std::size_t nSubckts = rStore.mSubcktTable.mIndex.size();
    const std::size_t nModels = CountIn(rStore.mCircuitModelDatasets);
    const std::size_t nDevices = CountIn(rStore.mCircuitDeviceDatasets);
    const std::uintmax_t nBytes = SizeOf(rLoad.sFile);
    if (bJson)
        return gToLine({{"classes", rStore.mModelClasses.size()},
                        {"optical_classes", rStore.mOpticalClasses.size()},
                        {"models", nModels},
                        {"devices", nDevices},
                        {"subcircuits", nSubckts},
                        {"bytes", nBytes},
                        {"archive_version", rLoad.nArchiveVersion},
                        {"load_ms", rLoad.dMilliseconds}}) +
               '\n';
    return gAlignColumns({{"classes", std::to_string(rStore.mModelClasses.size())},
                          {"optical classes", std::to_string(rStore.mOpticalClasses.size())},
                          {"models", std::to_string(nModels)},
                          {"devices", std::to_string(nDevices)},
                          {"subcircuits", std::to_string(nSubckts)},
                          {"bytes", std::to_string(nBytes)},
                          {"archive version", std::to_string(rLoad.nArchiveVersion)},
                          {"load time", ToText(rLoad.dMilliseconds) + " ms"}});
}

} // namespace quorvawiz::cli
