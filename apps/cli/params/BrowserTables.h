#pragma once

#include "browser/ParamTable.h"
#include "cli/params/ParamsCommand.h"

#include <string>
#include <vector>

class TCircuitParams;

namespace quorvawiz::cli
{

/// A table of a window.
struct TBrowserTable {
    CStringU msLabel; ///< of its tab; empty in a window without tabs
    TParamTableData mTable;
};

/// What a window of the parameter browser shows.
struct TBrowserWindow {
    CStringU msTitle;                   ///< of the window
    std::vector<TBrowserTable> mTables; ///< at least one; in the order of their tabs
    bool mbParams = false;              ///< they show parameters, of which some may be set
};

/// The windows as the dialogs compose them: the lists of devices, of library models and of the
/// simulator's classes, and the details of one of each. The names are those of the options: the
/// subcircuit's in `subckt`, and those in `arguments`, whose number has been checked. An empty name
/// of a subcircuit stands for the top level.
/// @throws CUsageError if the store has no such name; the text names the nearest
TBrowserWindow gComposeDevices(const TCircuitParams& rStore, const TParamsOptions& rOptions);
TBrowserWindow gComposeModels(const TCircuitParams& rStore, const TParamsOptions& rOptions);
TBrowserWindow gComposeClasses(const TCircuitParams& rStore, const TParamsOptions& rOptions);
TBrowserWindow gComposeDevice(const TCircuitParams& rStore, const TParamsOptions& rOptions);
TBrowserWindow gComposeModel(const TCircuitParams& rStore, const TParamsOptions& rOptions);
TBrowserWindow gComposeClass(const TCircuitParams& rStore, const TParamsOptions& rOptions);

/// Leaves only one table of a window.
/// @param sLabel that of its tab, in any letter case
/// @throws CUsageError if there is no such tab
void gKeepTab(TBrowserWindow& rWindow, const std::string& sLabel);

} // namespace quorvawiz::cli
