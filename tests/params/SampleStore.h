#pragma once

#include "params/CircuitParams.h"

/// A definition with a default.
inline TParamDef gDef(const CStringU& rsName, const TParamValue& rDefault)
{
    TParamDef def;
    def.msName = rsName;
    def.mValue = rDefault;
    return def;
}

/// A class with a name, a type, a level and definitions.
inline TModelClassDef gClass(const CStringU& rsName, const CStringU& rsType, int nLevel,
                             const TParamDefs& rModel, const TParamDefs& rDevice,
                             const TParamDefs& rState)
{
    return {{rsName, rsType, nLevel, 1.5, "a " + rsType}, rModel, rDevice, rState};
}

/// A model without values.
inline TModelData gModel(int nSubckt, const CStringU& rsName, const CStringU& rsClass,
                         const CStringU& rsType)
{
    TModelData model;
    model.mModelHeader = {nSubckt, rsName, rsClass, rsType};
    return model;
}

/// A device without values.
inline TDeviceData gDevice(int nSubckt, const CStringU& rsName, const TModelHeader& rModel)
{
    TDeviceData device;
    device.mDeviceHeader = {nSubckt, rsName};
    device.mModelHeader = rModel;
    return device;
}

/// Fills a store with one of each: two subcircuits, a class with two parameters of each sort, a
/// model in each subcircuit, three devices, one of which has neither model nor class.
inline void gFillSample(TCircuitParams& rStore)
{
    rStore.AddSubckt("top", 0);
    rStore.AddSubckt("x1", 1);
    rStore.AddModelClass(gClass("MOS1", "nmos", 1, {gDef("vto", 0.7), gDef("kp", 2e-5)},
                                {gDef("w", 1e-6), gDef("l", 1e-6)},
                                {gDef("vgs", kUninitializedParamValue), gDef("on", false)}));
    TModelData model = gModel(0, "n1", "MOS1", "nmos");
    model.mModelParamValues["vto"] = 0.65;
    rStore.AddModel(model);
    rStore.AddModel(gModel(1, "n2", "MOS1", "nmos"));
    TDeviceData device = gDevice(0, "m1", model.mModelHeader);
    device.mDeviceParamValues["w"] = 2e-6;
    device.mStateParamValues["on"] = true;
    rStore.AddDevice(device);
    rStore.AddDevice(gDevice(1, "M2", {1, "n2", "MOS1", "nmos"}));
    rStore.AddDevice(gDevice(1, "r10", {}));
}
