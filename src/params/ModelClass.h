#pragma once

#include "foundation/StringU.h"
#include "params/ParamDef.h"

/// What identifies a model class of the simulator.
struct TModelClassHeader {
    CStringU msName;        ///< the class, the key in the store
    CStringU msType;        ///< the type of device
    int mnLevel = 0;        ///< the level in the model language
    double mdVersion = 0;   ///< the version of the model
    CStringU msDescription; ///< one line
};

/// What the simulator offers for one model class.
struct TModelClassDef {
    TModelClassHeader mHeader;   ///< its identity
    TParamDefs mModelParamDefs;  ///< parameters of a model card
    TParamDefs mDeviceParamDefs; ///< parameters of a device instance
    TParamDefs mStateParamDefs;  ///< internal state parameters of a device
};

/// The order of class headers: by type, name, level, version (CompareTolerant with 1e-12) and
/// description; texts in the order of operator<.
/// @return whether the left one comes first
[[nodiscard]] bool CompareModelClassHeaders(const TModelClassHeader& rLeft,
                                            const TModelClassHeader& rRight) noexcept;
