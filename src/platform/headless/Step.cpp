#include "platform/headless/Step.h"

#include "platform/headless/TreePath.h"
#include "platform/ui/Button.h"
#include "platform/ui/ComboBox.h"
#include "platform/ui/Edit.h"
#include "platform/ui/FieldView.h"
#include "platform/ui/ListBox.h"
#include "platform/ui/ListCtrl.h"
#include "platform/ui/TabCtrl.h"

namespace
{
TStepResult Ended(EUserResult result)
{
    switch (result) {
    case EUserResult::Done:
        return {};
    case EUserResult::Ignored:
        return {EStepEnd::WrongKind, result};
    case EUserResult::Disabled:
    case EUserResult::Hidden:
    case EUserResult::Blocked:
    case EUserResult::ReadOnly:
    case EUserResult::Invalid:
        return {EStepEnd::Refused, result};
    }
    return {};
}

TStepResult Failed(EStepEnd end)
{
    return {end, EUserResult::Done};
}

TStepResult SetText(CWnd& rControl, const CString& rsText)
{
    if (auto* const pEdit = dynamic_cast<CEdit*>(&rControl))
        return Ended(pEdit->UserType(rsText));
    if (auto* const pCombo = dynamic_cast<CComboBox*>(&rControl))
        return Ended(pCombo->UserType(rsText));
    return Failed(EStepEnd::WrongKind);
}

/// An index that the control doesn't have is told apart from a refusal.
TStepResult SelectIndex(CWnd& rControl, int nIndex)
{
    const auto ended = [&rControl](EUserResult result) {
        return result == EUserResult::Invalid && rControl.WouldAcceptUser() == EUserResult::Done
                   ? Failed(EStepEnd::UnknownEntry)
                   : Ended(result);
    };
    if (auto* const pCombo = dynamic_cast<CComboBox*>(&rControl))
        return ended(pCombo->UserSelect(nIndex));
    if (auto* const pList = dynamic_cast<CListBox*>(&rControl))
        return ended(pList->UserSelect(nIndex));
    if (auto* const pTable = dynamic_cast<CListCtrl*>(&rControl))
        return ended(pTable->UserSelect(nIndex));
    if (auto* const pTabs = dynamic_cast<CTabCtrl*>(&rControl))
        return ended(pTabs->UserSelect(nIndex));
    return Failed(EStepEnd::WrongKind);
}

/// Entries of one list are distinct, letter case put aside; the exact one still comes first.
int FindEntry(std::span<const CString> items, const CString& rsText)
{
    int nFolded = -1;
    for (int n = 0; n < static_cast<int>(items.size()); ++n) {
        const CString& rsItem = items[static_cast<std::size_t>(n)];
        if (rsItem == rsText)
            return n;
        if (nFolded < 0 && rsItem.CompareNoCase(rsText) == 0)
            nFolded = n;
    }
    return nFolded;
}

TStepResult SelectEntry(CWnd& rControl, const CString& rsText)
{
    std::span<const CString> items;
    if (const auto* const pCombo = dynamic_cast<CComboBox*>(&rControl))
        items = pCombo->GetItems();
    else if (const auto* const pList = dynamic_cast<CListBox*>(&rControl))
        items = pList->GetItems();
    else if (const auto* const pTabs = dynamic_cast<CTabCtrl*>(&rControl))
        items = pTabs->GetItems();
    else
        return Failed(EStepEnd::WrongKind);
    const int nIndex = FindEntry(items, rsText);
    return nIndex < 0 ? Failed(EStepEnd::UnknownEntry) : SelectIndex(rControl, nIndex);
}

TStepResult Check(const TFieldView& rField, bool bOn)
{
    auto* const pButton = dynamic_cast<CButton*>(rField.pControl);
    if (rField.kind != EControl::CheckBox || !pButton)
        return Failed(EStepEnd::WrongKind);
    // A user who finds the box as wanted leaves it alone, but can't reach it when it is refused.
    if ((pButton->GetCheck() != 0) == bOn)
        return Ended(pButton->AcceptUser());
    return Ended(pButton->UserClick());
}

TStepResult Choose(const TFieldView& rField, int nIndex)
{
    if (rField.kind != EControl::RadioButton)
        return Failed(EStepEnd::WrongKind);
    if (nIndex < 0 || nIndex >= static_cast<int>(rField.radios.size()))
        return Failed(EStepEnd::UnknownEntry);
    return Ended(rField.radios[static_cast<std::size_t>(nIndex)]->UserClick());
}

TStepResult Click(const TFieldView& rField)
{
    auto* const pButton = dynamic_cast<CButton*>(rField.pControl);
    if (!pButton || rField.radios.size() > 1)
        return Failed(EStepEnd::WrongKind);
    return Ended(pButton->UserClick());
}

TStepResult DoubleClick(CWnd& rControl)
{
    if (auto* const pList = dynamic_cast<CListBox*>(&rControl))
        return Ended(pList->UserDoubleClick());
    if (auto* const pTable = dynamic_cast<CListCtrl*>(&rControl))
        return Ended(pTable->UserDoubleClick());
    return Failed(EStepEnd::WrongKind);
}

TStepResult Focus(const TFieldView& rField)
{
    CWnd* const pTarget =
        rField.radios.empty() ? rField.pControl : &rField.radios.front()->GetGroupEntry();
    if (const EUserResult result = pTarget->WouldAcceptUser(); result != EUserResult::Done)
        return Ended(result);
    if (!pTarget->IsTabStop() && rField.radios.empty())
        return Failed(EStepEnd::WrongKind);
    return Ended(pTarget->AcceptUser());
}

TStepResult WalkTree(CWnd& rControl, const TStep& rStep)
{
    auto* const pTree = dynamic_cast<CTreeCtrl*>(&rControl);
    if (!pTree)
        return Failed(EStepEnd::WrongKind);
    const HTREEITEM hItem = gFindTreePath(*pTree, rStep.sText);
    if (!hItem)
        return Failed(EStepEnd::UnknownEntry);
    if (rStep.op == EStep::SelectPath)
        return Ended(pTree->UserSelect(hItem));
    return Ended(pTree->UserExpand(hItem, rStep.op == EStep::Expand));
}
} // namespace

TFieldView gFieldOf(CDialog& rDialog, const TStep& rStep)
{
    return rStep.bOnFrame ? gFindOwnField(rDialog, rStep.sKey) : gFindField(rDialog, rStep.sKey);
}

TStepResult gRunStep(CDialog& rDialog, const TStep& rStep)
{
    if (rStep.op == EStep::Key)
        return Ended(gUserKey(rStep.key));

    const TFieldView field = gFieldOf(rDialog, rStep);
    if (!field.pControl)
        return Failed(EStepEnd::UnknownField);
    CWnd& rControl = *field.pControl;

    switch (rStep.op) {
    case EStep::Set:
        return SetText(rControl, rStep.sText);
    case EStep::Select:
        return SelectIndex(rControl, rStep.nIndex);
    case EStep::SelectEntry:
        return SelectEntry(rControl, rStep.sText);
    case EStep::Check:
        return Check(field, rStep.nIndex != 0);
    case EStep::Choose:
        return Choose(field, rStep.nIndex);
    case EStep::Click:
        return Click(field);
    case EStep::DoubleClick:
        return DoubleClick(rControl);
    case EStep::Focus:
        return Focus(field);
    case EStep::SelectPath:
    case EStep::Expand:
    case EStep::Collapse:
        return WalkTree(rControl, rStep);
    case EStep::Key:
        break;
    }
    return {};
}
