#include "params/ModelData.h"

#include "params/CircuitParams.h"

void TModelData::LinkClass(const TCircuitParams& rStore) const
{
    mpModelClassDef = rStore.GetModelClass(mModelHeader.msClass);
}

const std::vector<TParamDef>& TModelData::GetParams() const
{
    if (mMergedParams.empty() && mpModelClassDef != nullptr) {
        mMergedParams = gMergeParams(mpModelClassDef->mModelParamDefs, mModelParamValues);
    }
    return mMergedParams;
}

TParamValue TModelData::GetParamValue(const CStringU& rsName) const
{
    return gFindParamValue(rsName, mModelParamValues, mParamNameIndex);
}
