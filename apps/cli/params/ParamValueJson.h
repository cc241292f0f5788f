#pragma once

#include "cli/call/CallValue.h"
#include "params/ParamValue.h"

namespace quorvawiz::cli
{

/// A value as {"kind": "bool", "int", "double" or "text", "value": ...}. A number that isn't set is
/// the text "uninitialized", another that JSON can't write is "inf", "-inf" or "nan".
TJson gToResult(const TParamValue& rValue);

} // namespace quorvawiz::cli
