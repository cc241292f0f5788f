#include "params/SubcktTable.h"

int TBidirectionalStringToIntMap::Add(const CStringU& rsName, int nId)
{
    const auto known = mIndex.find(rsName);
    if (known != mIndex.end()) {
        return known->second;
    }
    if (nId < 0) {
        mTable.clear();
    } else {
        const auto nPlace = static_cast<std::size_t>(nId);
        mTable.resize(nPlace + 1); // kept: a lower id cuts the table short
        mTable[nPlace] = rsName;
    }
    mIndex.emplace(rsName, nId);
    return nId;
}

int TBidirectionalStringToIntMap::Find(const CStringU& rsName) const
{
    const auto known = mIndex.find(rsName);
    return known != mIndex.end() ? known->second : -1;
}

CStringU TBidirectionalStringToIntMap::GetName(int nId) const
{
    const bool bInRange = nId >= 0 && static_cast<std::size_t>(nId) < mTable.size();
    return bInRange ? mTable[static_cast<std::size_t>(nId)] : CStringU();
}
