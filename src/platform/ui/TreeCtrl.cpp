#include "platform/ui/TreeCtrl.h"

#include <algorithm>

struct TTreeItem {
    CString sText;
    std::int32_t nData = 0;
    bool bExpanded = false;
    TTreeItem* pParent = nullptr; ///< for a root node: the tree's hidden root
    std::vector<std::unique_ptr<TTreeItem>> children;
};

namespace
{
/// The nodes that can be seen, from the top down.
void CollectVisible(const TTreeItem& rParent, std::vector<HTREEITEM>& rLines)
{
    for (const auto& pChild : rParent.children) {
        rLines.push_back(pChild.get());
        if (pChild->bExpanded)
            CollectVisible(*pChild, rLines);
    }
}

/// Whether the node stands below `rParent`; only its address is looked at, for it may be gone.
bool Holds(const TTreeItem& rParent, const TTreeItem* pItem)
{
    return std::ranges::any_of(rParent.children, [pItem](const auto& rChild) {
        return rChild.get() == pItem || Holds(*rChild, pItem);
    });
}

bool IsBelow(const TTreeItem* pItem, const TTreeItem* pAncestor)
{
    while (pItem && pItem != pAncestor)
        pItem = pItem->pParent;
    return pItem != nullptr;
}
} // namespace

CTreeCtrl::CTreeCtrl() : mpRoot(std::make_unique<TTreeItem>()) {}

CTreeCtrl::~CTreeCtrl() = default;

HTREEITEM CTreeCtrl::InsertItem(const CString& rsText, HTREEITEM hParent)
{
    if (!IsCreated())
        return nullptr;
    TTreeItem& rParent = hParent ? *hParent : *mpRoot;
    auto pItem = std::make_unique<TTreeItem>();
    pItem->sText = rsText;
    pItem->pParent = &rParent;
    rParent.children.push_back(std::move(pItem));
    Announce(EAspect::Items);
    return rParent.children.back().get();
}

void CTreeCtrl::DeleteAllItems()
{
    mpSelected = nullptr;
    mpRoot->children.clear();
    Announce(EAspect::Items);
}

HTREEITEM CTreeCtrl::GetRootItem() const
{
    return GetChildItem(mpRoot.get());
}

HTREEITEM CTreeCtrl::GetChildItem(HTREEITEM hItem) const
{
    return hItem && !hItem->children.empty() ? hItem->children.front().get() : nullptr;
}

HTREEITEM CTreeCtrl::GetNextSiblingItem(HTREEITEM hItem) const
{
    if (!hItem)
        return nullptr;
    const auto& rSiblings = hItem->pParent->children;
    auto place = std::ranges::find(rSiblings, hItem, &std::unique_ptr<TTreeItem>::get);
    return ++place == rSiblings.end() ? nullptr : place->get();
}

HTREEITEM CTreeCtrl::GetParentItem(HTREEITEM hItem) const
{
    return hItem && hItem->pParent != mpRoot.get() ? hItem->pParent : nullptr;
}

CString CTreeCtrl::GetItemText(HTREEITEM hItem) const
{
    return hItem ? hItem->sText : CString();
}

std::int32_t CTreeCtrl::GetItemData(HTREEITEM hItem) const
{
    return hItem ? hItem->nData : 0;
}

void CTreeCtrl::SetItemData(HTREEITEM hItem, std::int32_t nData)
{
    if (hItem)
        hItem->nData = nData;
}

void CTreeCtrl::SelectItem(HTREEITEM hItem)
{
    if (!IsCreated() || hItem == mpSelected)
        return;
    for (HTREEITEM hParent = GetParentItem(hItem); hParent; hParent = GetParentItem(hParent))
        Expand(hParent, true);
    mpSelected = hItem;
    Announce(EAspect::Selection);
    NotifyParent(ENotify::SelChange);
}

bool CTreeCtrl::IsExpanded(HTREEITEM hItem) const
{
    return hItem && hItem->bExpanded;
}

void CTreeCtrl::Expand(HTREEITEM hItem, bool bExpand)
{
    if (!hItem || hItem->children.empty() || hItem->bExpanded == bExpand)
        return;
    hItem->bExpanded = bExpand;
    Announce(EAspect::Expansion);
    if (!bExpand && mpSelected != hItem && IsBelow(mpSelected, hItem))
        SelectItem(hItem);
}

EUserResult CTreeCtrl::UserSelect(HTREEITEM hItem)
{
    const auto isValid = [this, hItem] { return Holds(*mpRoot, hItem); };
    if (const EUserResult result = AcceptUserIf(isValid); result != EUserResult::Done)
        return result;
    SelectItem(hItem);
    return EUserResult::Done;
}

EUserResult CTreeCtrl::UserExpand(HTREEITEM hItem, bool bExpand)
{
    const auto isValid = [this, hItem] { return Holds(*mpRoot, hItem); };
    if (const EUserResult result = AcceptUserIf(isValid); result != EUserResult::Done)
        return result;
    Expand(hItem, bExpand);
    return EUserResult::Done;
}

HTREEITEM CTreeCtrl::GetVisibleNeighbour(int nSteps) const
{
    std::vector<HTREEITEM> lines;
    CollectVisible(*mpRoot, lines);
    if (lines.empty())
        return nullptr;
    const auto selected = std::ranges::find(lines, mpSelected);
    if (selected == lines.end())
        return lines.front();
    const auto nAt = (selected - lines.begin()) + nSteps;
    return lines[static_cast<std::size_t>(
        std::clamp<std::ptrdiff_t>(nAt, 0, static_cast<std::ptrdiff_t>(lines.size()) - 1))];
}

bool CTreeCtrl::IsTabStop() const
{
    return true;
}

bool CTreeCtrl::AcceptsKind(EControl kind) const
{
    return kind == EControl::Tree;
}

void CTreeCtrl::OnDestroyed()
{
    mpSelected = nullptr;
    mpRoot->children.clear();
}
