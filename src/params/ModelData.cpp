#include "params/ModelData.h"

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
