// Any bytes as a params file: read from a file, looked through, and written again where they were
// read.

#include "params/CircuitParams.h"
#include "params/ParamsFileError.h"
#include "params/TextStore.h"
#include "params/archive/MemorySource.h"
#include "params/archive/MemoryTarget.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace
{

void Require(bool bHolds)
{
    if (!bHolds) {
        std::abort();
    }
}

/// Bytes as a file that has no place on the disk.
class CMemoryFile
{
public:
    CMemoryFile(const std::uint8_t* pData, std::size_t nSize)
        : mnHandle(::memfd_create("params", MFD_CLOEXEC))
    {
        Require(mnHandle >= 0);
        Require(::write(mnHandle, pData, nSize) == static_cast<ssize_t>(nSize));
    }
    ~CMemoryFile() { ::close(mnHandle); }
    CMemoryFile(const CMemoryFile&) = delete;
    CMemoryFile& operator=(const CMemoryFile&) = delete;

    CStringU Path() const { return "/proc/self/fd/" + std::to_string(mnHandle); }

private:
    int mnHandle;
};

void LookThrough(const TCircuitParams& rStore)
{
    for (const TModelListEntry& rEntry : rStore.GetModelList()) {
        if (const TModelData* const pModel = rStore.GetModelData(rEntry.mnSubckt, rEntry.msName)) {
            for (const TParamDef& rParam : pModel->GetParams()) {
                static_cast<void>(ParamValueToText(rParam.mValue));
            }
        }
    }
    for (const TDeviceListEntry& rEntry : rStore.GetDeviceList(-1)) {
        const CStringU sSubckt = rStore.GetSubcktName(rEntry.mnSubckt);
        const TDeviceData* const pDevice = rStore.GetDeviceDataNoCase(sSubckt, rEntry.msName);
        if (pDevice != nullptr) {
            static_cast<void>(pDevice->GetModelParams());
            static_cast<void>(pDevice->GetDeviceParams());
            static_cast<void>(pDevice->GetStateParams());
            static_cast<void>(pDevice->GetParamValue(rEntry.msType));
        }
    }
}

} // namespace

/// The bytes are the file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    const CMemoryFile file(pData, nSize);
    TCircuitParams store;
    try {
        store.ReadThis(file.Path(), "");
    } catch (const CParamsFileError& rError) {
        Require(std::string(rError.what()) == "Params file ReadThis() operation failed!");
        Require(!rError.GetDetail().empty());
        LookThrough(store);
        return 0;
    }
    CMemoryTarget target;
    gSaveText(target, store); // in front of the lookups, which link pointers anew
    CMemorySource source(target.GetBytes());
    TCircuitParams again;
    gLoadText(source, again);
    LookThrough(store);
    return 0;
}
