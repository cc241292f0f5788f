#pragma once

#include "platform/ui/ResizeDialog.h"
#include "platform/ui/SheetTemplate.h"

#include <initializer_list>

// What the browser's two sheets of parameters share.

/// The size of a sheet, in dialog units.
inline constexpr TSize kParamSheetSize{340, 220};

/// What "Close" and "Reevaluate" end a sheet with.
inline constexpr int kParamSheetEnd = 1;

/// The template of a sheet. Its standard buttons have the keys "ok" (hidden), "reevaluate",
/// "export" and "close".
[[nodiscard]] const DialogTemplate& gParamSheetTemplate();

/// Names the tabs of a sheet, gives the standard buttons their labels and makes all follow the
/// sheet's size.
/// @param rSheet its window exists
/// @param labels the tabs', literals with the marker of translatable texts
/// @param bReevaluate whether there is a button "Reevaluate"
void gInitParamSheet(CXTPResizePropertySheet& rSheet, std::initializer_list<const char*> labels,
                     bool bReevaluate);

/// Exports the table of a sheet's page on display, which owns the file dialog.
void gExportActivePage(const CXTPResizePropertySheet& rSheet);
