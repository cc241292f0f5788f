#pragma once

#include "cli/BrowserRequest.h"
#include "cli/FieldJson.h"

class CDialog;
class CTableCtrl;

namespace quorvawiz::cli
{

/// The grid that a dialog, or its page on display, shows; null if it has none.
const CTableCtrl* gShownGrid(CDialog& rDialog);

/// How a grid stands: its columns and their widths, how many rows it has, and which is selected.
TJson gGridToJson(const CTableCtrl& rGrid);

/// Rows of a grid: each with its own number and its cells.
/// @param rRows which; of those that aren't there nothing is told
TJson gGridRowsToJson(const CTableCtrl& rGrid, const TRowsRequest& rRows);

/// The labels of a dialog's own tabs; null if it has none.
TJson gTabsToJson(CDialog& rDialog);

} // namespace quorvawiz::cli
