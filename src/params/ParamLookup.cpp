#include "params/ParamLookup.h"

TParamValue gFindParamValue(const CStringU& rsName, const TParamValues& rValues, TNameIndex& rIndex)
{
    auto value = rValues.find(rsName);
    if (value == rValues.end()) {
        if (rIndex.empty()) {
            for (const auto& [rsKey, rValue] : rValues) {
                rIndex.emplace(rsKey, rsKey);
            }
        }
        const auto spelling = rIndex.find(rsName);
        if (spelling != rIndex.end()) {
            value = rValues.find(spelling->second);
        }
    }
    return value != rValues.end() ? value->second : TParamValue();
}
