#pragma once

#include "params/ParamDef.h"
#include "params/ParamValue.h"

#include <boost/variant/get.hpp>

#include <string>

/// A value in words, with its kind: "bool true", "int 3", "double 0.5", "text a", "none".
inline std::string gTellValue(const TParamValue& rValue)
{
    if (const bool* const pFlag = boost::get<bool>(&rValue)) {
        return *pFlag ? "bool true" : "bool false";
    }
    if (const int* const pInt = boost::get<int>(&rValue)) {
        return "int " + std::to_string(*pInt);
    }
    if (const double* const pNumber = boost::get<double>(&rValue)) {
        const std::string sText(ParamValueToText(rValue).Text());
        return gIsUninitialized(*pNumber) ? "none" : "double " + sText;
    }
    return "text " + std::string(boost::get<CStringU>(rValue).Text());
}

/// Values in words, in the order of the map: "bf: double 150; npn: bool true".
inline std::string gTellValues(const TParamValues& rValues)
{
    std::string sAll;
    for (const auto& [rsName, rValue] : rValues) {
        sAll += sAll.empty() ? "" : "; ";
        sAll.append(rsName.Text()).append(": ").append(gTellValue(rValue));
    }
    return sAll;
}
