#pragma once

#include "foundation/StringU.h"
#include "params/ModelClass.h"
#include "params/ParamLookup.h"

#include <vector>

class TCircuitParams;

/// What identifies a model.
struct TModelHeader {
    int mnSubckt = 0; ///< the subcircuit in which it is declared; below 1 the top level
    CStringU msName;  ///< unique within the subcircuit
    CStringU msClass; ///< the name of its class
    CStringU msType;  ///< its type, as the netlist has it
};

/// One declared model: the values that were given on it, and the way to its class.
class TModelData
{
public:
    TModelHeader mModelHeader; ///< its identity
    /// The class; null where the store has none of that name.
    mutable const TModelClassDef* mpModelClassDef = nullptr;
    TParamValues mModelParamValues; ///< the values given on the model

    /// From any spelling to a key of mModelParamValues; filled by GetParamValue.
    mutable TNameIndex mParamNameIndex;
    /// The merged parameters; filled by GetParams, and never emptied again.
    mutable std::vector<TParamDef> mMergedParams;

    /// Sets mpModelClassDef by the class's name.
    /// @param rStore the store that has this model; it keeps the class
    void LinkClass(const TCircuitParams& rStore) const;

    /// The parameters of the class merged with the values, worked out once.
    /// @return empty where there is no class
    [[nodiscard]] const std::vector<TParamDef>& GetParams() const;

    /// A value given on the model, as gFindParamValue.
    [[nodiscard]] TParamValue GetParamValue(const CStringU& rsName) const;
};
