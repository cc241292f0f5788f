#include "params/DeviceData.h"

std::vector<TParamDef> TDeviceData::GetModelParams() const
{
    return mpModelData != nullptr ? mpModelData->GetParams() : std::vector<TParamDef>();
}

std::vector<TParamDef> TDeviceData::GetDeviceParams() const
{
    return mpModelClassDef != nullptr
               ? gMergeParams(mpModelClassDef->mDeviceParamDefs, mDeviceParamValues)
               : std::vector<TParamDef>();
}

std::vector<TParamDef> TDeviceData::GetStateParams() const
{
    return mpModelClassDef != nullptr
               ? gMergeParams(mpModelClassDef->mStateParamDefs, mStateParamValues)
               : std::vector<TParamDef>();
}

TParamValue TDeviceData::GetParamValue(const CStringU& rsName) const
{
    return gFindParamValue(rsName, mDeviceParamValues, mParamNameIndex);
}
