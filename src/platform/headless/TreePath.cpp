#include "platform/headless/TreePath.h"

HTREEITEM gFindTreePath(const CTreeCtrl& rTree, std::string_view sPath)
{
    HTREEITEM hFound = nullptr;
    HTREEITEM hSibling = rTree.GetRootItem();
    while (true) {
        const auto nSlash = sPath.find('/');
        const std::string_view sLabel = sPath.substr(0, nSlash);
        while (hSibling && rTree.GetItemText(hSibling).CompareNoCase(sLabel) != 0)
            hSibling = rTree.GetNextSiblingItem(hSibling);
        hFound = hSibling;
        if (!hFound || nSlash == std::string_view::npos)
            return hFound;
        sPath.remove_prefix(nSlash + 1);
        hSibling = rTree.GetChildItem(hFound);
    }
}

std::string gTreePathOf(const CTreeCtrl& rTree, HTREEITEM hItem)
{
    std::string sPath;
    for (; hItem; hItem = rTree.GetParentItem(hItem)) {
        const std::string sLabel = rTree.GetItemText(hItem).GetString();
        sPath = sPath.empty() ? sLabel : sLabel + '/' + sPath;
    }
    return sPath;
}
