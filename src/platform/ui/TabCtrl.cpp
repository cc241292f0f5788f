#include "platform/ui/TabCtrl.h"

int CTabCtrl::AddItem(const CString& rsText)
{
    if (!IsCreated())
        return -1;
    const int nAt = mItems.Insert(-1, rsText);
    if (nAt == 0)
        mItems.Select(0);
    Announce(EAspect::Items);
    return nAt;
}

bool CTabCtrl::SetItemText(int nIndex, const CString& rsText)
{
    if (!mItems.SetText(nIndex, rsText))
        return false;
    Announce(EAspect::Items);
    return true;
}

int CTabCtrl::SetCurSel(int nIndex)
{
    mItems.Select(nIndex);
    Announce(EAspect::Selection);
    return GetCurSel();
}

EUserResult CTabCtrl::UserSelect(int nIndex)
{
    const auto isValid = [this, nIndex] { return mItems.IsIndex(nIndex); };
    if (const EUserResult result = AcceptUserIf(isValid); result != EUserResult::Done)
        return result;
    SetCurSel(nIndex);
    NotifyParent(ENotify::SelChange);
    return EUserResult::Done;
}

bool CTabCtrl::IsTabStop() const
{
    return true;
}

bool CTabCtrl::AcceptsKind(EControl kind) const
{
    return kind == EControl::Tabs;
}

void CTabCtrl::OnDestroyed()
{
    mItems.Clear();
}
