#pragma once

#include <set>
#include <string>
#include <vector>

namespace quorvawiz::house
{

/// One file of the tree.
struct TSourceFile {
    std::string msPath; ///< Relative to the tree's root, with '/' between folders.
    std::string msText; ///< The whole file, bytes as they are.
};

/// Reads every file in the given folders of the tree and below them.
/// @param rFolders paths relative to the tree's root; a folder that isn't there yields nothing.
/// @return the files, sorted by path.
/// @throws std::runtime_error if a file cannot be read.
std::vector<TSourceFile> gReadFolders(const std::vector<std::string>& rFolders);

/// Reads the files that stand directly in the tree's root.
/// @return the files, sorted by path.
/// @throws std::runtime_error if a file cannot be read.
std::vector<TSourceFile> gReadRootFiles();

/// The paths of the given files.
std::set<std::string> gPathsOf(const std::vector<TSourceFile>& rFiles);

/// Splits a text at its line feeds, which the lines don't keep.
/// @return the lines; a text that ends in a line feed has no empty line after it.
std::vector<std::string> gSplitLines(const std::string& rText);

/// Tells whether the path ends as a C++ header or source does.
bool gIsCode(const std::string& rPath);

/// Tells whether the path ends as a C++ header does.
bool gIsHeader(const std::string& rPath);

} // namespace quorvawiz::house
