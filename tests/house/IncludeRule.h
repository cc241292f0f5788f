#pragma once

#include "house/SourceTree.h"

#include <set>
#include <string>
#include <vector>

namespace quorvawiz::house
{

/// Checks that the file's includes only point down the floors: each project header is found, stands
/// in a folder that this file's folder may see, and Qt is named only where Qt may stand.
/// @param rFile the file to check, under src or apps.
/// @param rKnown the paths of all files under src and apps, relative to the tree's root.
/// @return one message per breach, each with path and line; empty if there is none.
std::vector<std::string> gFindFloorBreaches(const TSourceFile& rFile,
                                            const std::set<std::string>& rKnown);

/// Checks that the file includes no header that stands for a whole module of Qt.
/// @param rFile the file to check, anywhere in the tree.
/// @return one message per breach, each with path and line; empty if there is none.
std::vector<std::string> gFindUmbrellas(const TSourceFile& rFile);

} // namespace quorvawiz::house
