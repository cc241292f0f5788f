#pragma once

#include "platform/base/StringA.h"
#include "platform/ui/FieldView.h"
#include "platform/ui/UserKey.h"

#include <string>
#include <string_view>

class CDialog;

/// What a user does with one control.
enum class EStep {
    Set,         ///< replace the text of an edit or typed combo
    Select,      ///< choose an entry, row or tab by its index; -1 takes a list's selection away
    SelectEntry, ///< choose an entry by its text
    Check,       ///< bring a check box to 1 or 0
    Choose,      ///< choose a button of a radio group by its index
    Click,       ///< press a push button, a check box, or the only button of a group
    DoubleClick, ///< double-click a list's or table's selected row
    Focus,       ///< click into a control
    SelectPath,  ///< select a tree node by its path
    Expand,      ///< open a tree node by its path
    Collapse,    ///< close a tree node by its path
    Key,         ///< press a key, the field is not looked at
};

/// One action of a user, as data: for tests, scripts and the command line.
struct TStep {
    EStep op = EStep::Click;
    std::string sKey{}; ///< the field's key
    CString sText{}; ///< Set, SelectEntry: the text; SelectPath...: the path, labels joined by '/'
    int nIndex = 0;  ///< Select, Choose: the index; Check: 1 or 0
    TUserKey key{};  ///< Key
    /// The field is the dialog's own, even if its pane has one of that key.
    bool bOnFrame = false;
};

/// What became of a step. Everything but `Done` means that nothing has changed.
enum class EStepEnd {
    Done,
    UnknownField, ///< no field has this key
    WrongKind,    ///< the field isn't one for this action
    UnknownEntry, ///< no such entry, index, node or button
    Refused,      ///< the control doesn't take the action now; `refusal` says why
};

struct TStepResult {
    EStepEnd end = EStepEnd::Done;
    EUserResult refusal = EUserResult::Done;
    bool IsDone() const { return end == EStepEnd::Done; }
};

/// The field that a step is for; one without a control when there is none.
TFieldView gFieldOf(CDialog& rDialog, const TStep& rStep);

/// Lets the user do one thing in the innermost dialog `rDialog`. Posted messages are left to the
/// caller (`gPumpPostedMessages`).
TStepResult gRunStep(CDialog& rDialog, const TStep& rStep);

/// Reads the name of a key: "enter", "escape", "tab", "shift+tab", "up", "down", "left", "right",
/// "space", "alt+X". False when it is none of these.
bool gParseKeyName(std::string_view sName, TUserKey& rKey);
