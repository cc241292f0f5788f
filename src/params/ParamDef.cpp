#include "params/ParamDef.h"

std::vector<TParamDef> gMergeParams(const TParamDefs& rDefs, const TParamValues& rValues)
{
    std::vector<TParamDef> merged = rDefs;
    for (TParamDef& rParam : merged) {
        const auto found = rValues.find(rParam.msName);
        if (found != rValues.end()) {
            rParam.mIsSet = true;
            rParam.mValue = found->second;
        }
    }
    return merged;
}
