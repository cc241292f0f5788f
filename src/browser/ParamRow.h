#pragma once

#include "browser/ParamTable.h"
#include "foundation/StringU.h"
#include "params/ParamDef.h"

#include <vector>

/// A parameter as a table shows it.
struct TParamRow {
    CStringU msName;        ///< as the model language spells it
    CStringU msValue;       ///< its value as a text (ParamValueToText)
    bool mbIsSet = false;   ///< a model or device gave the value; a default otherwise
    CStringU msUnits;       ///< as it stands
    CStringU msDescription; ///< one line
};

/// The rows of parameters, sorted by name without regard to case. Rows whose names are the same but
/// for the case have no fixed order.
/// @param rParams definitions, or definitions merged with values
[[nodiscard]] std::vector<TParamRow> gMakeParamRows(const std::vector<TParamDef>& rParams);

/// The table of parameters: name, value, units and description. The value of a parameter that is
/// set is highlighted.
/// @param rRows its rows, in this order
[[nodiscard]] TParamTableData gMakeParamTable(const std::vector<TParamRow>& rRows);
