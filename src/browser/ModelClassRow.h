#pragma once

#include "browser/ParamTable.h"
#include "foundation/StringU.h"
#include "params/CircuitParams.h"

#include <vector>

/// A model class as a table shows it.
struct TModelClassRow {
    CStringU msName;        ///< the class
    CStringU msType;        ///< the type of device
    CStringU msLevel;       ///< its level in decimal
    CStringU msVersion;     ///< its version with up to 6 significant digits, as in "2.5" or "1e+06"
    CStringU msDescription; ///< one line
};

/// The order of the rows: by name, type, level and version, each as a text and without regard to
/// case, so that level 10 comes before level 2.
/// @return whether the left one comes first. Of texts that differ in their case alone one is the
///         lesser, so that it is a strict order
[[nodiscard]] bool gIsClassRowLess(const TModelClassRow& rLeft,
                                   const TModelClassRow& rRight) noexcept;

/// The rows of all electrical and optical classes, in the order of gIsClassRowLess.
[[nodiscard]] std::vector<TModelClassRow> gMakeModelClassRows(const TCircuitParams& rStore);

/// The table of classes: name, type, level, version and description.
/// @param rRows its rows, in this order
[[nodiscard]] TParamTableData gMakeClassesTable(const std::vector<TModelClassRow>& rRows);

/// The row of a class.
/// @param rRows the rows
/// @param rsName the class's exact name
/// @return the index of the last such row, or -1
[[nodiscard]] int gFindClassRow(const std::vector<TModelClassRow>& rRows, const CStringU& rsName);
