#pragma once

#include "cli/call/CallValue.h"
#include "cli/params/ParamValueJson.h"
#include "params/ModelClass.h"

#include <boost/any.hpp>

#include <string_view>
#include <vector>

namespace quorvawiz::cli
{

/// A number that may be uninitialised, as an argument.
struct TStoreNumber {
    double mdNumber = 0;
};

/// A value of any type, as an argument.
struct TTypedValue {
    boost::any mValue; ///< empty for null
};

/// What is done to a table of subcircuits, one after the other, as an argument.
struct TTableOperations {
    std::vector<TJson> mOperations; ///< each a list: the name, then what it takes
};

template <> inline constexpr std::string_view kArgumentName<TParamValue> = "value";
template <> inline constexpr std::string_view kArgumentName<TStoreNumber> = "store number";
template <> inline constexpr std::string_view kArgumentName<TTypedValue> = "typed value";
template <> inline constexpr std::string_view kArgumentName<TModelClassHeader> = "class header";
template <> inline constexpr std::string_view kArgumentName<TTableOperations> = "operations";

template <> TParamValue gReadArgument<TParamValue>(const TJson& rValue);
template <> TStoreNumber gReadArgument<TStoreNumber>(const TJson& rValue);
template <> TTypedValue gReadArgument<TTypedValue>(const TJson& rValue);
template <> TModelClassHeader gReadArgument<TModelClassHeader>(const TJson& rValue);
template <> TTableOperations gReadArgument<TTableOperations>(const TJson& rValue);

} // namespace quorvawiz::cli
