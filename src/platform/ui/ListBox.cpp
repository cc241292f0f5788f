#include "platform/ui/ListBox.h"

int CListBox::AddString(const CString& rsText)
{
    if (!IsCreated())
        return -1;
    const int nAt =
        GetControlFlags() & kSorted ? mItems.InsertSorted(rsText) : mItems.Insert(-1, rsText);
    Announce(EAspect::Items);
    return nAt;
}

int CListBox::InsertString(int nIndex, const CString& rsText)
{
    if (!IsCreated())
        return -1;
    const int nAt = mItems.Insert(nIndex, rsText);
    Announce(EAspect::Items);
    return nAt;
}

int CListBox::DeleteString(int nIndex)
{
    if (!mItems.Remove(nIndex))
        return -1;
    Announce(EAspect::Items);
    return GetCount();
}

void CListBox::ResetContent()
{
    mItems.Clear();
    Announce(EAspect::Items);
}

int CListBox::SetCurSel(int nIndex)
{
    mItems.Select(nIndex);
    Announce(EAspect::Selection);
    return GetCurSel();
}

int CListBox::FindStringExact(int nAfter, const CString& rsText) const
{
    return mItems.FindExact(nAfter, rsText);
}

EUserResult CListBox::UserSelect(int nIndex)
{
    const auto isValid = [this, nIndex] { return nIndex == -1 || mItems.IsIndex(nIndex); };
    if (const EUserResult result = AcceptUserIf(isValid); result != EUserResult::Done)
        return result;
    SetCurSel(nIndex);
    NotifyParent(ENotify::SelChange);
    return EUserResult::Done;
}

EUserResult CListBox::UserDoubleClick()
{
    const auto isValid = [this] { return GetCurSel() >= 0; };
    if (const EUserResult result = AcceptUserIf(isValid); result != EUserResult::Done)
        return result;
    NotifyParent(ENotify::DoubleClicked);
    return EUserResult::Done;
}

bool CListBox::IsTabStop() const
{
    return true;
}

bool CListBox::AcceptsKind(EControl kind) const
{
    return kind == EControl::ListBox;
}

void CListBox::OnCreated(const TControlRow& rRow)
{
    for (const char* pEntry : rRow.entries)
        AddString(pEntry);
}

void CListBox::OnDestroyed()
{
    mItems.Clear();
}
