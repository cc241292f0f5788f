#pragma once

#include "platform/ui/UserKey.h"

#include <optional>

class CWnd;
class QKeyEvent;

/// The key as dialogs know it: Tab and Enter, also with Shift, Escape and the arrows without
/// modifiers, and Alt with a letter or digit. None for any other; a blank is always the widget's
/// own.
std::optional<TUserKey> gUserKeyOf(const QKeyEvent& rEvent);

/// True when the control's widget uses the key itself, to move a caret or a mark, or for a new
/// line. What comes of it enters the model as text or selection.
bool gKeepsKey(const CWnd& rControl, TUserKey::EKey key);
