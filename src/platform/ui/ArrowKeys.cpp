#include "platform/ui/ArrowKeys.h"

#include "platform/ui/Button.h"
#include "platform/ui/ComboBox.h"
#include "platform/ui/ListBox.h"
#include "platform/ui/ListCtrl.h"
#include "platform/ui/TabCtrl.h"
#include "platform/ui/TreeCtrl.h"

#include <algorithm>

namespace
{
/// 1 for the arrows that go on, -1 for those that go back.
int StepOf(EArrow arrow)
{
    return arrow == EArrow::Down || arrow == EArrow::Right ? 1 : -1;
}

/// The neighbour of an index among `nCount`, cut at the ends; an absent selection leads to the
/// first.
int NeighbourOf(int nIndex, int nCount, EArrow arrow)
{
    return nIndex < 0 ? 0 : std::clamp(nIndex + StepOf(arrow), 0, nCount - 1);
}

/// Selects the neighbour of the entry, row or tab `nSelected`.
template <class TControl>
EUserResult WalkEntries(TControl& rControl, int nSelected, int nCount, EArrow arrow)
{
    if (nCount == 0)
        return EUserResult::Ignored;
    const int nNext = NeighbourOf(nSelected, nCount, arrow);
    return nNext == nSelected ? EUserResult::Done : rControl.UserSelect(nNext);
}

EUserResult WalkRows(CListCtrl& rTable, EArrow arrow)
{
    // Whole rows are selected: there is no cell beside the selected one.
    if (arrow == EArrow::Left || arrow == EArrow::Right)
        return EUserResult::Ignored;
    return WalkEntries(rTable, rTable.GetSelectedRow(), rTable.GetItemCount(), arrow);
}

EUserResult WalkCombo(CComboBox& rCombo, EArrow arrow)
{
    // In a typed text the caret moves.
    if (rCombo.CanType() && (arrow == EArrow::Left || arrow == EArrow::Right))
        return EUserResult::Ignored;
    return WalkEntries(rCombo, rCombo.GetCurSel(), rCombo.GetCount(), arrow);
}

/// Checks the next button of the group that can be checked, round the ends.
EUserResult WalkRadioGroup(const CButton& rFocus, EArrow arrow)
{
    const auto group = rFocus.GetRadioGroup();
    const auto nCount = static_cast<int>(group.size());
    auto nAt = static_cast<int>(std::ranges::find(group, &rFocus) - group.begin());
    for (int nStep = 1; nStep < nCount; ++nStep) {
        nAt = (nAt + StepOf(arrow) + nCount) % nCount;
        CButton& rNext = *group[static_cast<std::size_t>(nAt)];
        if (rNext.CanTakeFocus())
            return rNext.UserClick();
    }
    return EUserResult::Ignored;
}

EUserResult SelectNode(CTreeCtrl& rTree, HTREEITEM hItem)
{
    return hItem ? rTree.UserSelect(hItem) : EUserResult::Ignored;
}

EUserResult WalkTree(CTreeCtrl& rTree, EArrow arrow)
{
    const HTREEITEM hSelected = rTree.GetSelectedItem();
    const bool bExpanded = rTree.IsExpanded(hSelected);
    switch (arrow) {
    case EArrow::Up:
        return SelectNode(rTree, rTree.GetVisibleNeighbour(-1));
    case EArrow::Down:
        return SelectNode(rTree, rTree.GetVisibleNeighbour(1));
    case EArrow::Left:
        return bExpanded ? rTree.UserExpand(hSelected, false)
                         : SelectNode(rTree, rTree.GetParentItem(hSelected));
    case EArrow::Right:
        if (!hSelected)
            return EUserResult::Ignored;
        return bExpanded ? SelectNode(rTree, rTree.GetChildItem(hSelected))
                         : rTree.UserExpand(hSelected, true);
    }
    return EUserResult::Ignored;
}
} // namespace

EUserResult gPressArrow(CWnd* pFocus, EArrow arrow)
{
    if (auto* const pButton = dynamic_cast<CButton*>(pFocus); pButton && pButton->IsRadio())
        return WalkRadioGroup(*pButton, arrow);
    if (auto* const pCombo = dynamic_cast<CComboBox*>(pFocus))
        return WalkCombo(*pCombo, arrow);
    if (auto* const pList = dynamic_cast<CListBox*>(pFocus))
        return WalkEntries(*pList, pList->GetCurSel(), pList->GetCount(), arrow);
    if (auto* const pTable = dynamic_cast<CListCtrl*>(pFocus))
        return WalkRows(*pTable, arrow);
    if (auto* const pTabs = dynamic_cast<CTabCtrl*>(pFocus))
        return WalkEntries(*pTabs, pTabs->GetCurSel(), pTabs->GetItemCount(), arrow);
    if (auto* const pTree = dynamic_cast<CTreeCtrl*>(pFocus))
        return WalkTree(*pTree, arrow);
    return EUserResult::Ignored;
}
