#pragma once

#include "support/Look.h"

#include <string>
#include <vector>

class CListCtrl;

// What a test sees of the table and the tabs of the innermost dialog.

/// The table of a dialog or of its page on display.
CListCtrl& gTableOf(CDialog& rDialog);

namespace look
{
/// The titles of the columns with a bar between each two.
CScript::TAction Columns(std::string sTitles);
/// The rows, each with a bar between each two cells and a star behind blue ones.
CScript::TAction Rows(std::vector<std::string> rows);
/// The selected row, -1 for none.
CScript::TAction SelectedRow(int nRow);
/// The labels of the tabs with a bar between each two, the selected one in brackets.
CScript::TAction Tabs(std::string sLabels);
/// The dialog's place for a control by its key, in dialog units of its parent.
CScript::TAction Place(std::string sKey, const TRect& rRect);
/// The user gives the dialog another size in dialog units.
CScript::TAction Resize(const TSize& rSize);
/// The columns fill the table as ResizeColumns has it, for columns of these widths in characters.
CScript::TAction ColumnsFill(std::vector<int> widths);
} // namespace look
