#pragma once

#include "browser/ParamBrowserCustomTableCtrl.h"
#include "browser/ParamTable.h"
#include "foundation/StringU.h"
#include "platform/ui/Messages.h"

/// What every window of the browser does with its table.

/// Composes the CSV text of a table and fills the control with the table.
/// @param rControl its window exists
/// @param table what to show
/// @return the text (gMakeExportText)
[[nodiscard]] CStringU gShowTable(TParamBrowserCustomTableCtrl& rControl, TParamTableData table);

/// Handles WM_SIZE: the window's controls follow its size, and the table's columns follow the
/// table unless the window is minimised.
/// @param rWindow the window with the table
/// @param rControl its table
/// @param wParam, lParam those of the message
/// @return the message's result
LRESULT gFollowSize(CWnd& rWindow, TParamBrowserCustomTableCtrl& rControl, WPARAM wParam,
                    LPARAM lParam);

/// The index in the model of the table's selected row; -1 without a selection.
[[nodiscard]] int gSelectedIndex(const TParamBrowserCustomTableCtrl& rControl);
