#pragma once

#include "platform/ui/FieldView.h"

#include <string>
#include <string_view>
#include <vector>

class CTreeCtrl;

namespace quorvawiz::cli
{

/// The fields that a dialog gives its user to fill in, hidden ones too: those of the pane on
/// display and, except for the wizard's own frame, those of the dialog around it.
std::vector<TFieldView> gShownFields(CDialog& rDialog);

/// Whether the user can act on one of the field's controls now.
bool gIsUsable(const TFieldView& rField);

/// The keys of those fields that a user acts on, for suggestions: statics and frames are left out.
std::vector<std::string> gKeysToActOn(const std::vector<TFieldView>& rFields);

/// The entries of a list, combo or row of tabs, and the labels of a radio group's buttons, without
/// '&'; empty for any other field. In UTF-8.
std::vector<std::string> gEntriesOf(const TFieldView& rField);

/// How many entries, rows, tabs or radio buttons there are to be chosen by an index.
int gEntryCountOf(const TFieldView& rField);

/// The selected entry, row, tab or radio button, or -1.
int gSelectionOf(const TFieldView& rField);

/// A label without the '&' in front of its mnemonic.
std::string gWithoutMnemonic(std::string_view sLabel);

/// The paths of all nodes of a tree in UTF-8, from the top down.
std::vector<std::string> gNodePathsOf(const CTreeCtrl& rTree);

} // namespace quorvawiz::cli
