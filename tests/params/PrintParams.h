#pragma once

#include "params/ParamValue.h"
#include "support/PrintStringU.h"

#include <ostream>

/// Shows a value in a failed test as its kind and its text.
inline void PrintTo(const TParamValue& rValue, std::ostream* pStream)
{
    *pStream << rValue.which() << ':';
    PrintTo(ParamValueToText(rValue), pStream);
}
