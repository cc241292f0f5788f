#pragma once

#include "platform/ui/TreeCtrl.h"

#include <string>
#include <string_view>

/// The node with this path: the labels from the root on, joined by '/', letter case put aside.
/// Null when there is none.
HTREEITEM gFindTreePath(const CTreeCtrl& rTree, std::string_view sPath);

/// The path of a node, in the labels' own spelling; empty for null.
std::string gTreePathOf(const CTreeCtrl& rTree, HTREEITEM hItem);
