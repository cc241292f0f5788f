#include "params/CircuitParams.h"

#include <cstddef>

namespace
{

/// The entry of a map, or null.
template <class TMap> const auto* FindIn(const TMap& rMap, const typename TMap::key_type& rKey)
{
    const auto found = rMap.find(rKey);
    return found != rMap.end() ? &found->second : nullptr;
}

void AppendDevices(const TCircuitParams::TDevices& rDevices, std::vector<TDeviceListEntry>& rList)
{
    for (const auto& [rsName, rDevice] : rDevices) {
        const TModelHeader& rModel = rDevice.mModelHeader;
        rList.push_back({rDevice.mDeviceHeader.mnSubckt, rDevice.mDeviceHeader.msName,
                         rModel.msType, rModel.mnSubckt, rModel.msName});
    }
}

} // namespace

bool TCircuitParams::TDeviceKeyLessNoCase::operator()(const TDeviceKey& rLeft,
                                                      const TDeviceKey& rRight) const noexcept
{
    const int nSubckts = CompareNoCase(rLeft.first, rRight.first);
    return nSubckts != 0 ? nSubckts < 0 : CompareNoCase(rLeft.second, rRight.second) < 0;
}

void TCircuitParams::AddSubckt(const CStringU& rsName, int nId)
{
    mSubcktTable.Add(rsName, nId);
    mCircuitModelDatasets.try_emplace(nId);
    mCircuitDeviceDatasets.try_emplace(nId);
}

void TCircuitParams::AddModelClass(const TModelClassDef& rClass)
{
    mModelClasses.insert_or_assign(rClass.mHeader.msName, rClass);
}

void TCircuitParams::AddOpticalClass(const TModelClassDef& rClass)
{
    mOpticalClasses.insert_or_assign(rClass.mHeader.msName, rClass);
}

void TCircuitParams::AddModel(const TModelData& rModel)
{
    TModels& rModels = mCircuitModelDatasets[rModel.mModelHeader.mnSubckt];
    rModels.insert_or_assign(rModel.mModelHeader.msName, rModel).first->second.LinkClass(*this);
}

void TCircuitParams::AddDevice(const TDeviceData& rDevice)
{
    TDevices& rDevices = mCircuitDeviceDatasets[rDevice.mDeviceHeader.mnSubckt];
    rDevices.insert_or_assign(rDevice.mDeviceHeader.msName, rDevice).first->second.Link(*this);
}

const TModelClassDef* TCircuitParams::GetModelClass(const CStringU& rsName) const
{
    return FindIn(mModelClasses, rsName);
}

const TModelData* TCircuitParams::GetModelData(int nSubckt, const CStringU& rsName) const
{
    const TModels* const pModels = FindIn(mCircuitModelDatasets, nSubckt);
    const TModelData* const pModel = pModels != nullptr ? FindIn(*pModels, rsName) : nullptr;
    if (pModel != nullptr) {
        pModel->LinkClass(*this);
    }
    return pModel;
}

const TModelData* TCircuitParams::GetModelData(const CStringU& rsSubckt,
                                               const CStringU& rsName) const
{
    return GetModelData(mSubcktTable.Find(rsSubckt), rsName);
}

const TDeviceData* TCircuitParams::GetDeviceData(int nSubckt, const CStringU& rsName) const
{
    if (nSubckt == -1) {
        return nullptr;
    }
    const TDevices* const pDevices = FindIn(mCircuitDeviceDatasets, nSubckt);
    const TDeviceData* const pDevice = pDevices != nullptr ? FindIn(*pDevices, rsName) : nullptr;
    if (pDevice != nullptr) {
        pDevice->Link(*this);
    }
    return pDevice;
}

const TDeviceData* TCircuitParams::GetDeviceData(const CStringU& rsSubckt,
                                                 const CStringU& rsName) const
{
    return GetDeviceData(mSubcktTable.Find(rsSubckt), rsName);
}

const TDeviceData* TCircuitParams::GetDeviceDataNoCase(const CStringU& rsSubckt,
                                                       const CStringU& rsName) const
{
    if (mDeviceNameIndex.empty()) {
        for (std::size_t nAt = 0; nAt < mSubcktTable.mTable.size(); ++nAt) {
            for (const TDeviceListEntry& rEntry : GetDeviceList(static_cast<int>(nAt))) {
                const TDeviceKey key(mSubcktTable.mTable[nAt], rEntry.msName);
                // Of keys that differ in their case alone the first one stays, in the order of this
                // walk: subcircuits by their ids, not by their names.
                mDeviceNameIndex.emplace(key, key);
            }
        }
    }
    const TDeviceKey* const pExact = FindIn(mDeviceNameIndex, TDeviceKey(rsSubckt, rsName));
    return pExact != nullptr ? GetDeviceData(pExact->first, pExact->second) : nullptr;
}

std::vector<TModelListEntry> TCircuitParams::GetModelList() const
{
    std::vector<TModelListEntry> list;
    for (const auto& [nSubckt, rModels] : mCircuitModelDatasets) {
        for (const auto& [rsName, rModel] : rModels) {
            rModel.LinkClass(*this); // by name: a file's link may lead elsewhere
            if (rModel.mpModelClassDef == nullptr) {
                continue; // level and class stand in the class
            }
            const TModelHeader& rHeader = rModel.mModelHeader;
            const TModelClassHeader& rClass = rModel.mpModelClassDef->mHeader;
            list.push_back(
                {rHeader.mnSubckt, rHeader.msName, rHeader.msType, rClass.mnLevel, rClass.msName});
        }
    }
    return list;
}

std::vector<TDeviceListEntry> TCircuitParams::GetDeviceList(int nSubckt) const
{
    std::vector<TDeviceListEntry> list;
    if (nSubckt == -1) {
        std::size_t nCount = 0;
        for (const auto& [nId, rDevices] : mCircuitDeviceDatasets) {
            nCount += rDevices.size();
        }
        list.reserve(nCount);
        for (const auto& [nId, rDevices] : mCircuitDeviceDatasets) {
            AppendDevices(rDevices, list);
        }
    } else if (const TDevices* const pDevices = FindIn(mCircuitDeviceDatasets, nSubckt)) {
        list.reserve(pDevices->size());
        AppendDevices(*pDevices, list);
    }
    return list;
}

// The two that look things up in the store stand with it, so that a model or a device by itself
// needn't know the store.

void TModelData::LinkClass(const TCircuitParams& rStore) const
{
    mpModelClassDef = rStore.GetModelClass(mModelHeader.msClass);
}

void TDeviceData::Link(const TCircuitParams& rStore) const
{
    mpModelClassDef = rStore.GetModelClass(mModelHeader.msClass);
    mpModelData = rStore.GetModelData(mModelHeader.mnSubckt, mModelHeader.msName);
}
