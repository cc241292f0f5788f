#pragma once

#include "foundation/StringU.h"
#include "params/ParamValue.h"

#include <map>
#include <set>
#include <vector>

/// One parameter: its definition on a class or, after a merge, with the value that takes effect.
struct TParamDef {
    TParamValue mValue;          ///< the default; after a merge the value that takes effect
    CStringU msName;             ///< as the model language spells it
    bool mIsSet = false;         ///< after a merge: a model or device gave the value
    CStringU msUnits;            ///< shown as it stands
    CStringU msDescription;      ///< one line
    std::set<CStringU> mAliases; ///< other names of the parameter
};

/// The parameters of a class, in the order of the class.
class TParamDefs : public std::vector<TParamDef>
{
public:
    using std::vector<TParamDef>::vector;
};

/// Values by the exact names of their parameters.
using TParamValues = std::map<CStringU, TParamValue>;

/// Merges definitions with the values that a model or a device gave. A definition whose exact name
/// has a value takes it and is marked as set; the others stay as they are. A value without a
/// definition is left out, and aliases play no part.
/// @param rDefs the definitions, in the order of the class
/// @param rValues the given values
/// @return a copy of the definitions, merged
[[nodiscard]] std::vector<TParamDef> gMergeParams(const TParamDefs& rDefs,
                                                  const TParamValues& rValues);
