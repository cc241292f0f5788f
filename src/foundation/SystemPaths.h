#pragma once

#include "foundation/StringU.h"

#include <cstdint>

/// The full name of the host's program file; empty where the system can't tell, and for a name of
/// more than 2095 characters.
[[nodiscard]] CStringU gGetExecutablePath();

/// The full name of the file that holds this library: of the shared library, or of the program that
/// it is linked into. Empty in the same cases as gGetExecutablePath.
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
