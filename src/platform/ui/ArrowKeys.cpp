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

EUserResult WalkTree(CTreeCtrl& rTree, EArrow arrow)
{
    const HTREEITEM hSelected = rTree.GetSelectedItem();
    switch (arrow) {
    case EArrow::Up:
        return rTree.UserSelect(rTree.GetVisibleNeighbour(-1));
    case EArrow::Down:
        return rTree.UserSelect(rTree.GetVisibleNeighbour(1));
    case EArrow::Left:
        return rTree.IsExpanded(hSelected) ? rTree.UserExpand(hSelected, false)
                                           : rTree.UserSelect(rTree.GetParentItem(hSelected));
    case EArrow::Right:
        return rTree.IsExpanded(hSelected) ? rTree.UserSelect(rTree.GetChildItem(hSelected))
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
        return pCombo->UserSelect(NeighbourOf(pCombo->GetCurSel(), pCombo->GetCount(), arrow));
    if (auto* const pList = dynamic_cast<CListBox*>(pFocus); pList && pList->GetCount() > 0)
        return pList->UserSelect(NeighbourOf(pList->GetCurSel(), pList->GetCount(), arrow));
    if (auto* const pTable = dynamic_cast<CListCtrl*>(pFocus); pTable && pTable->GetItemCount() > 0)
        return pTable->UserSelect(
            NeighbourOf(pTable->GetSelectedRow(), pTable->GetItemCount(), arrow));
    if (auto* const pTabs = dynamic_cast<CTabCtrl*>(pFocus))
        return pTabs->UserSelect(NeighbourOf(pTabs->GetCurSel(), pTabs->GetItemCount(), arrow));
    if (auto* const pTree = dynamic_cast<CTreeCtrl*>(pFocus))
        return WalkTree(*pTree, arrow);
    return EUserResult::Ignored;
}
