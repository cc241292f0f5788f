#pragma once

#include "foundation/StringU.h"

/// The way to the other side when the program runs there (gIsWine): paths in the form of either
/// side, and the Unix side's environment. It goes through exports that are looked up by name
/// (platform/base/NamedExports.h); where one isn't there, each function does as with the plain
/// rules.

/// The DOS form of a path.
/// @param rPath one that begins with "/" is translated on the Unix side, and copied otherwise; any
///              other absolute path gets backslashes; a relative one is copied
[[nodiscard]] CStringU gToDosPath(const CStringU& rPath);

/// The Unix form of a path.
/// @param rPath on the Unix side an absolute one is translated and a relative one gets slashes;
///              otherwise it is copied
[[nodiscard]] CStringU gToUnixPath(const CStringU& rPath);

/// The value of a variable of the Unix side's environment.
/// @return empty if it isn't set, and with the plain rules
[[nodiscard]] CStringU gGetUnixEnv(const CStringU& rName);

/// Sets a variable of the Unix side's environment.
/// @param rName its name
/// @param rValue its value
/// @param nOverwrite other than 0 to replace a value that is there
/// @return what the other side returns, 0 for success; -1 with the plain rules
int gSetUnixEnv(const CStringU& rName, const CStringU& rValue, int nOverwrite);

/// Removes a variable of the Unix side's environment.
/// @return what the other side returns, 0 for success; -1 with the plain rules
int gUnsetUnixEnv(const CStringU& rName);

/// Puts a line into the Unix side's environment.
/// @param rAssignment "NAME=VALUE"
/// @return what the other side returns, 0 for success; -1 with the plain rules
int gPutUnixEnv(const CStringU& rAssignment);
