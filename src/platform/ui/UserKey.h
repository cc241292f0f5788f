#pragma once

#include "platform/ui/UserResult.h"

/// A key that the user presses, as far as dialogs know keys.
struct TUserKey {
    enum class EKey { Enter, Escape, Tab, Up, Down, Left, Right, Space, Mnemonic };
    EKey key = EKey::Enter;
    bool bShift = false;
    char cMnemonic = 0; ///< for Mnemonic: the letter pressed together with Alt
};

/// The user presses a key in the innermost dialog. All that a key means in a dialog is decided here
/// and in the windows, so that every desktop behaves the same: focus, tab order, mnemonics, Enter
/// and Escape. A new line and a blank typed into an edit go to the end of its text: a desktop with
/// a caret keeps these two keys for its own edit. `Ignored` when the key means nothing there.
EUserResult gUserKey(const TUserKey& rKey);
