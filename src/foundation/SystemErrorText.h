#pragma once

#include "foundation/StringU.h"

/// The text of an error code.
/// @param nCode 126 and 193, the codes of other systems for libraries that can't be loaded, have
///              texts of their own, also where they are codes of this system (126 is ENOKEY on
///              Linux); every other one is the system's
/// @return empty if the system has no text
[[nodiscard]] CStringU gGetSystemErrorText(int nCode);

/// A message with the text of the thread's last system error on a line of its own behind it.
/// @param rText the message
/// @param pnCode if not null: receives the code of the error
/// @return the two with a line feed between them unless one is empty
[[nodiscard]] CStringU gAppendLastError(const CStringU& rText, int* pnCode = nullptr);
