#pragma once

#include "foundation/StringU.h"
#include "params/ModelData.h"

#include <vector>

/// What identifies a device.
struct TDeviceHeader {
    int mnSubckt = 0; ///< the subcircuit in which it stands; below 1 the top level
    CStringU msName;  ///< unique within the subcircuit
};

/// One device instance: the values that were given on it, and the way to its class and model.
class TDeviceData
{
public:
    TDeviceHeader mDeviceHeader; ///< its identity
    TModelHeader mModelHeader;   ///< that of its model; msClass names the device's class
    /// The class; null where the store has none of that name.
    mutable const TModelClassDef* mpModelClassDef = nullptr;
    /// The model; null for a device without a model card.
    mutable const TModelData* mpModelData = nullptr;
    TParamValues mDeviceParamValues; ///< the values given on the device
    TParamValues mStateParamValues;  ///< the values of its state

    /// From any spelling to a key of mDeviceParamValues; filled by GetParamValue.
    mutable TNameIndex mParamNameIndex;

    /// Sets mpModelClassDef and mpModelData by the names in mModelHeader.
    /// @param rStore the store that has this device; it keeps class and model
    void Link(const TCircuitParams& rStore) const;

    /// The merged parameters of the model; empty without one.
    [[nodiscard]] std::vector<TParamDef> GetModelParams() const;

    /// The device parameters of the class merged with the values; empty without a class.
    [[nodiscard]] std::vector<TParamDef> GetDeviceParams() const;

    /// The state parameters of the class merged with the values; empty without a class.
    [[nodiscard]] std::vector<TParamDef> GetStateParams() const;

    /// A value given on the device, as gFindParamValue; the state isn't asked.
    [[nodiscard]] TParamValue GetParamValue(const CStringU& rsName) const;
};
