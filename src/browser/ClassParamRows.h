#pragma once

#include "browser/ParamRow.h"
#include "foundation/StringU.h"
#include "params/CircuitParams.h"

#include <vector>

/// The parameters of a model class as tables show them, with their defaults.
struct TClassParamRows {
    std::vector<TParamRow> mDeviceRows; ///< parameters of a device instance
    std::vector<TParamRow> mModelRows;  ///< parameters of a model card
    std::vector<TParamRow> mStateRows;  ///< internal state parameters of a device
};

/// A class by its exact name: an electrical one or, where there is none, an optical one.
/// @return null if there is neither
[[nodiscard]] const TModelClassDef* gFindAnyClass(const TCircuitParams& rStore,
                                                  const CStringU& rsName);

/// The rows of a class's definitions, each list sorted as gMakeParamRows does.
/// @param rStore the store
/// @param rsName the class, as gFindAnyClass finds it
/// @return three empty lists if there is no such class
[[nodiscard]] TClassParamRows gMakeClassParamRows(const TCircuitParams& rStore,
                                                  const CStringU& rsName);
