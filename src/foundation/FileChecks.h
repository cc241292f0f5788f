#pragma once

#include "foundation/StringU.h"

/// Which way gDirectoryExists and gFileExists look at the disk; a process-wide setting, unguarded.
/// 0: the entry in its folder, with one closing slash of the path left out. 1: the attributes of
/// the path. 2: the standard library, which follows links and mount points, so that a link that
/// leads nowhere is there for 0 and 1, as a file, and isn't for 2. 3 to 5: as 0 to 2 on the path in
/// DOS form (gToDosPath). Any other number looks as 0 does.
/// @return 0 unless it was set
[[nodiscard]] int gGetFileCheckMode();

/// Sets the way of looking.
/// @param nMode any number
void gSetFileCheckMode(int nMode);

/// Tells whether a folder is there. In the modes 3 to 5 the mode is 6 less for the next call.
/// @param rPath its path, perhaps with one closing slash
[[nodiscard]] bool gDirectoryExists(const CStringU& rPath);

/// Tells whether a file is there: neither a folder nor a device.
/// @param rPath its path
[[nodiscard]] bool gFileExists(const CStringU& rPath);

/// Tells whether a folder has no entries but "." and "..". The first entry that the system names is
/// not looked at.
/// @param rPath the folder
/// @return false where the folder can't be read
[[nodiscard]] bool gIsDirectoryEmpty(const CStringU& rPath);

/// Makes a folder and those above it that are missing. A drive or a share is never made.
/// @param rPath the folder; one that can be accessed, folder or not, is left alone
/// @param rErrors receives what went wrong: a message about a file in the way is appended, while
///                the system's text about a folder that can't be made takes the place of all before
/// @return false if a file was in the way or a folder couldn't be made. True tells nothing about a
///         drive or share alone, which may be missing all the same
bool gCreateDirectories(const CStringU& rPath, CStringU& rErrors);
