#pragma once

#include <string>
#include <vector>

class CDialog;

/// What the window of a dialog shows otherwise than its model says, control by control; empty when
/// the two agree. Looks at text, state, check mark, entries, selection, open nodes, place, order
/// and focus, but not at the widths of a table's columns, which the user may change. To be asked
/// when the event loop has nothing left to do.
std::vector<std::string> gCompareWindowWithModel(CDialog& rDialog);

/// The same for every dialog that is open.
std::vector<std::string> gCompareWindowsWithModels();
