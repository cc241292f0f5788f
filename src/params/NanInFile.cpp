#include "params/Serialize.h"

#include <cmath>

void gHideNan(TParamValue& rValue)
{
    double* const pNumber = boost::get<double>(&rValue);
    if (pNumber != nullptr && std::isnan(*pNumber)) {
        *pNumber = kNanInFile;
    }
}

void gShowNan(TParamValue& rValue)
{
    double* const pNumber = boost::get<double>(&rValue);
    if (pNumber != nullptr && *pNumber == kNanInFile) {
        *pNumber = kUninitializedParamValue;
    }
}

void gHideNan(TParamValues& rValues)
{
    for (auto& [rsName, rValue] : rValues) {
        gHideNan(rValue);
    }
}

void gShowNan(TParamValues& rValues)
{
    for (auto& [rsName, rValue] : rValues) {
        gShowNan(rValue);
    }
}
