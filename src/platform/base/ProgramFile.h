#pragma once

#include <string>

/// The full name of the program's file.
/// @return empty if the system can't tell
[[nodiscard]] std::u16string gGetProgramFile();

/// The full name of the file that a piece of the process was loaded from.
/// @param pAddress of a function or an object with static storage
/// @return the program's file or a shared library's; empty if the system can't tell
[[nodiscard]] std::u16string gGetModuleFile(const void* pAddress);
