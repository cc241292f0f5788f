#pragma once

#include "platform/ui/Dialog.h"

#include <string_view>
#include <vector>

class CButton;

/// A field as the user sees it: one key with all the windows that belong to it.
struct TFieldView {
    std::string_view sKey;          ///< lives as long as the control
    EControl kind = EControl::Edit; ///< RadioButton for a group
    CWnd* pControl = nullptr;       ///< the control; for a radio group its first button
    std::vector<CButton*> radios;   ///< the buttons of a radio group, in order
    CWnd* pLabel = nullptr;         ///< as `gLabelOf` finds it, or null
    CWnd* pUnit = nullptr;          ///< the unit behind it, or null
};

/// The label of a field: the one that belongs to it, else the one that it shares with the field
/// before it, else the title of the group box that begins right before it. Null when it has none.
CWnd* gLabelOf(const CWnd& rField);

/// The fields of one pane or dialog in template order, hidden ones too: all controls but labels,
/// units and place markers. The children of panes inside it are not among them.
std::vector<TFieldView> gCollectFields(const CWnd& rPane);

/// What a dialog shows for its user to fill in: its visible pane, or itself if it has none.
CDialog& gCurrentPane(CDialog& rDialog);

/// The field with this key in the dialog's current pane or else in the dialog itself; one without a
/// control when there is none.
TFieldView gFindField(CDialog& rDialog, std::string_view sKey);

/// The dialog's own field with this key, whatever its panes hold; one without a control when there
/// is none.
TFieldView gFindOwnField(CDialog& rDialog, std::string_view sKey);
