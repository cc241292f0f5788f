#pragma once

#include "platform/base/StringA.h"

/// Puts the letter of the device in front of its line, unless the name that the line begins with
/// begins with it, small or capital. `chCapital`: A to Z.
void gPutSourceLetter(CString& rsLine, const CString& rsName, char chCapital);
