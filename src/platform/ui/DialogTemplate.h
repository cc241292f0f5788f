#pragma once

#include "platform/ui/Geometry.h"

#include <span>
#include <string_view>

/// The kinds of control that a template can hold. Each desktop draws each of them.
enum class EControl {
    Label,         ///< text beside a field: its caption (`LabelOf`) or its unit (`UnitOf`)
    Static,        ///< a text of its own: a heading, a note, a summary
    Group,         ///< a titled frame; a sibling of what it surrounds, not a parent
    Frame,         ///< an empty rectangle that marks a place
    Edit,          ///< one line of text
    MultilineEdit, ///< several lines, joined by CR LF; scrolls vertically
    PushButton,
    DefaultButton, ///< the push button that Enter presses
    CheckBox,
    RadioButton,  ///< one of a group: rows of one key that stand together
    DropDownList, ///< a choice among entries
    DropDown,     ///< a choice among entries, or a text typed by the user
    ListBox,
    Tree, ///< with buttons, lines, lines at the root and a border; shows its selection without
          ///< focus
    Table,
    Tabs,
};

/// The name of a kind, lower case, as `describe` prints it: "edit", "drop-down-list", "radio"...
std::string_view gControlName(EControl kind);

/// True for what the user fills in or chooses from, and which a label beside it explains.
constexpr bool gIsInput(EControl kind)
{
    switch (kind) {
    case EControl::Edit:
    case EControl::MultilineEdit:
    case EControl::DropDownList:
    case EControl::DropDown:
    case EControl::ListBox:
    case EControl::Tree:
    case EControl::Table:
        return true;
    case EControl::Label:
    case EControl::Static:
    case EControl::Group:
    case EControl::Frame:
    case EControl::PushButton:
    case EControl::DefaultButton:
    case EControl::CheckBox:
    case EControl::RadioButton:
    case EControl::Tabs:
        return false;
    }
    return false;
}

/// Properties of a control at its creation, to be combined with |.
enum EControlFlag : unsigned {
    kNoFlags = 0,
    kHidden = 1U << 0,       ///< not shown at first
    kDisabled = 1U << 1,     ///< disabled at first
    kFirstOfGroup = 1U << 2, ///< the first button of a radio group
    kWantReturn = 1U << 3,   ///< multi-line edit: Enter starts a new line
    kSorted = 1U << 4,       ///< the entries are kept in alphabetical order
    kReadOnly = 1U << 5,     ///< the user can read and copy the text, not change it
    kUnlabelled = 1U << 6,   ///< a field that is meant to have no label
    kHeading = 1U << 7,      ///< static: the pane's heading, centred
    kSharesLabel = 1U << 8,  ///< a field that takes the place of the one before it on other layers;
                             ///< the label of that one is its own, too
};

/// One control of a template.
struct TControlRow {
    int nId; ///< unique in the template
    const char*
        pKey; ///< permanent name for scripts, tests and accessibility; a label has its field's
    EControl kind;
    const char* pLabel; ///< label, caption or text, with '&' before the mnemonic
    TRect rect;         ///< place in the dialog, in dialog units
    unsigned nFlags = kNoFlags;
    unsigned nLayers = 0; ///< bit mask of the layers that show the control; 0: all of them
    std::span<const char* const> entries = {}; ///< the entries of a list at its creation
};

/// One control of a template, in the order of the members above.
constexpr TControlRow Row(int nId, const char* pKey, EControl kind, const char* pLabel,
                          const TRect& rRect, unsigned nFlags = kNoFlags, unsigned nLayers = 0,
                          std::span<const char* const> entries = {})
{
    return {nId, pKey, kind, pLabel, rRect, nFlags, nLayers, entries};
}

/// A dialog or a pane as data. Every desktop gives a dialog a caption and a system menu, and a
/// fixed frame without minimise and maximise boxes unless the template says otherwise.
struct DialogTemplate {
    const char* pCaption;
    TSize size;
    std::span<const TControlRow> rows; ///< in tab order
    /// Letters, lower case, that several labels visible together share because their texts are
    /// given.
    const char* pSharedMnemonics = "";
    /// The user can make the window larger than `size`, minimise and maximise it.
    bool bSizable = false;
};

/// The id of the label that belongs to field `nId`.
constexpr int LabelOf(int nId)
{
    return nId + 10000;
}

/// The id of the unit that stands behind field `nId`.
constexpr int UnitOf(int nId)
{
    return nId + 20000;
}
