#pragma once

#include <string>

/// A folder that the system keeps for the user.
enum class ESystemFolder {
    Documents,       ///< the user's own documents
    ApplicationData, ///< settings and data of programs
};

/// The place of a folder of the user, by the rules of the desktop: documents where the file
/// user-dirs.dirs says, else in "Documents" of the home folder; application data in
/// XDG_CONFIG_HOME, else in ".config" of the home folder. Reads the current environment
/// (gGetEnvironment).
/// @param eFolder which one
/// @param bCreate true to make it where it is missing
/// @return its full path without a closing separator; empty if there is no home folder, and if the
///         folder can't be made
[[nodiscard]] std::u16string gGetSystemFolder(ESystemFolder eFolder, bool bCreate);
