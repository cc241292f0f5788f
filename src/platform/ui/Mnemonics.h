#pragma once

#include "platform/ui/UserResult.h"

#include <vector>

class CDialog;
class CWnd;

/// The mnemonic of a text: the character behind its first single '&', in lower case; 0 if none.
/// A doubled '&' is a plain one and no mnemonic.
char gMnemonicOf(const char* pText);

/// The controls of a dialog and its visible panes that Alt and `cLetter` lead to, in tab order: a
/// button with that mnemonic, or the field behind a label or group with it. Only what is usable and
/// shown.
std::vector<CWnd*> gMnemonicTargets(const CDialog& rDialog, char cLetter);

/// The user presses Alt and a letter. One target: a button with that letter in its own text is
/// pressed, any other control takes the focus. Several: the focus goes to the next of them and
/// nothing is pressed. None: `Ignored`.
EUserResult gPressMnemonic(CDialog& rDialog, char cLetter);
