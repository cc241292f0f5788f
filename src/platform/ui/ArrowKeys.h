#pragma once

#include "platform/ui/UserResult.h"

class CWnd;

enum class EArrow { Up, Down, Left, Right };

/// The user presses an arrow key while `pFocus` has the focus: it checks the next button of a radio
/// group, selects the next entry, row or tab, or walks a tree. At an end nothing is chosen again.
/// `Ignored` where there is nothing to choose, in a typed combo's text (left and right) and for any
/// other control.
EUserResult gPressArrow(CWnd* pFocus, EArrow arrow);
