#pragma once

#include "platform/ui/Messages.h"

/// Posted by a category page to itself; the tree dialog takes it before any window does.
/// wParam: the category's place among the root nodes; lParam: the page's place below it.
inline constexpr UINT WM_TREE_SELECT_PAGE = WM_APP + 5;
