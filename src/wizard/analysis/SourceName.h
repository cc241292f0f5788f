#pragma once

#include "platform/base/StringA.h"

/// The message of a page with one source whose name `gIsSourceName` refuses.
inline constexpr const char* kIllegalSourceName =
    "__$$Translatable$$_Input source name is not a legal voltage or current source name.\n"
    "Voltage source names must start with 'V' and current source names\n"
    "must start with 'I'.";

/// True when a text starts as the name of a voltage or a current source does: with V, v, I or i.
/// Nothing but the first letter is looked at; false for an empty text.
bool gIsSourceName(const CString& rsText);
