#include "browser/ClassParamRows.h"

const TModelClassDef* gFindAnyClass(const TCircuitParams& rStore, const CStringU& rsName)
{
    if (const TModelClassDef* const pClass = rStore.GetModelClass(rsName)) {
        return pClass;
    }
    const auto found = rStore.mOpticalClasses.find(rsName);
    return found != rStore.mOpticalClasses.end() ? &found->second : nullptr;
}

TClassParamRows gMakeClassParamRows(const TCircuitParams& rStore, const CStringU& rsName)
{
    const TModelClassDef* const pClass = gFindAnyClass(rStore, rsName);
    if (pClass == nullptr) {
        return {};
    }
    return {gMakeParamRows(pClass->mDeviceParamDefs), gMakeParamRows(pClass->mModelParamDefs),
            gMakeParamRows(pClass->mStateParamDefs)};
}
