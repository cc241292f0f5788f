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

int CTabCtrl::SetCurSel(int nIndex)
{
    mItems.Select(nIndex);
    Announce(EAspect::Selection);
    return GetCurSel();
}

EUserResult CTabCtrl::UserSelect(int nIndex)
{
    if (const EUserResult result = WouldAcceptUser(); result != EUserResult::Done)
        return result;
    if (!mItems.IsIndex(nIndex))
        return EUserResult::Invalid;
    if (const EUserResult result = AcceptUser(); result != EUserResult::Done)
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
