#include "browser/DisplayName.h"

CStringU gMakeDisplayName(const TCircuitParams& rStore, int nSubckt, const CStringU& rsName)
{
    return nSubckt < 1 ? rsName : rStore.GetSubcktName(nSubckt) + "." + rsName;
}

CStringU gMakeAskedName(const CStringU& rsSubckt, const CStringU& rsDevice)
{
    return rsSubckt.IsEmpty() ? rsDevice : rsSubckt + "." + rsDevice;
}

CStringU gMakeDeviceTitle(const CStringU& rsName, const TDeviceData& rDevice)
{
    return rDevice.mpModelData == nullptr
               ? rsName
               : rsName + " (" + rDevice.mpModelData->mModelHeader.msName + ")";
}
