#pragma once

#include "foundation/StringU.h"

#include <cstdint>

/// The full name of the host's program file; empty where the system can't tell, and for a name of
/// more than 2095 characters.
[[nodiscard]] CStringU gGetExecutablePath();

/// The full name of the file that this library was loaded from: the program's where it is linked
/// in; otherwise as gGetExecutablePath.
[[nodiscard]] CStringU gGetModulePath();

/// The folder of gGetExecutablePath.
[[nodiscard]] CStringU gGetExecutableFolder();

/// The folder of gGetModulePath.
[[nodiscard]] CStringU gGetModuleFolder();

/// The process's current folder.
/// @param bUnixForm true to have it in the form of the Unix side, by way of the DOS form
/// @return empty if it can't be told
[[nodiscard]] CStringU gGetCurrentDirectory(bool bUnixForm);

/// The user's documents folder, which is made where it is missing. It is worked out once and kept
/// for the life of the process; unguarded.
/// @return empty where the system can't tell; the next call asks again
[[nodiscard]] CStringU gGetDocumentsFolder();

/// Forgets the documents folder, so that the next call works it out anew. For tests.
void gResetDocumentsFolder();

/// When a file was last written.
/// @param rPath its path, which must fit in the system's code page
/// @return seconds since 1970 in UTC; -1 if it can't be told
[[nodiscard]] std::int64_t gGetFileTime(const CStringU& rPath);

/// The text of an error code.
/// @param nCode 126 and 193, which tell of libraries that can't be loaded, have texts of their own;
///              every other one is the system's
/// @return empty if the system has no text
[[nodiscard]] CStringU gGetSystemErrorText(int nCode);

/// A message with the text of the thread's last system error on a line of its own behind it.
/// @param rText the message
/// @param pnCode if not null: receives the code of the error
/// @return the two with a line feed between them unless one is empty
[[nodiscard]] CStringU gAppendLastError(const CStringU& rText, int* pnCode = nullptr);
