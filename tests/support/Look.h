#pragma once

#include "support/WizardRun.h"

#include <string>
#include <vector>

// What a test sees of a field, by its key, in the innermost dialog: looks that stand among the
// steps of a script. Each fails the test where the field isn't as it says.

namespace look
{
/// The field's text: what an edit holds, what a drop-down list has selected, what a button or a
/// static says.
CScript::TAction Text(std::string sKey, std::string sText);
/// The text of the label beside the field.
CScript::TAction Label(std::string sKey, std::string sText);
/// Whether the user sees the field.
CScript::TAction Shown(std::string sKey, bool bShown = true);
/// The user sees the field; whether it takes his actions.
CScript::TAction Enabled(std::string sKey, bool bEnabled = true);
/// Which button of a radio group is checked, or 1 for a checked box and 0 for another.
CScript::TAction Checked(std::string sKey, int nChecked);
/// The entries of a drop-down list or a list box, from top to bottom.
CScript::TAction Entries(std::string sKey, std::vector<std::string> entries);
/// The index of the selected entry, -1 for none.
CScript::TAction Selected(std::string sKey, int nIndex);
/// The focus is on the field.
CScript::TAction Focused(std::string sKey);
/// The innermost dialog has this title.
CScript::TAction Title(std::string sTitle);
/// What the wizard's one command string holds.
CScript::TAction Command(std::string sCommand);
} // namespace look
