#include "platform/ui/ComboBox.h"

#include <algorithm>

int CComboBox::AddString(const CString& rsText)
{
    if (!IsCreated())
        return -1;
    const int nAt =
        GetControlFlags() & kSorted ? mItems.InsertSorted(rsText) : mItems.Insert(-1, rsText);
    Announce(EAspect::Items);
    return nAt;
}

int CComboBox::InsertString(int nIndex, const CString& rsText)
{
    if (!IsCreated())
        return -1;
    const int nAt = mItems.Insert(nIndex, rsText);
    Announce(EAspect::Items);
    return nAt;
}

void CComboBox::ResetContent()
{
    mItems.Clear();
    Announce(EAspect::Items);
    SetTextSilently({});
}

int CComboBox::SetCurSel(int nIndex)
{
    if (!IsCreated())
        return -1;
    mItems.Select(nIndex);
    SetTextSilently(mItems.GetText(GetCurSel()));
    Announce(EAspect::Selection);
    return GetCurSel();
}

int CComboBox::FindStringExact(int nAfter, const CString& rsText) const
{
    return mItems.FindExact(nAfter, rsText);
}

void CComboBox::SelectText(const CString& rsText)
{
    if (!IsCreated())
        return;
    const auto items = mItems.GetAll();
    const auto found = std::ranges::find(items, rsText);
    if (found != items.end()) {
        SetCurSel(static_cast<int>(found - items.begin()));
    } else if (CanType()) {
        SetCurSel(-1);
        SetTextSilently(rsText);
    }
}

void CComboBox::SetWindowText(const CString& rsText)
{
    if (CanType())
        SetTextSilently(rsText);
}

EUserResult CComboBox::UserSelect(int nIndex)
{
    const EUserResult result = UserMoveSelection(nIndex);
    if (result == EUserResult::Done)
        NotifyParent(ENotify::SelEndOk);
    return result;
}

EUserResult CComboBox::UserMoveSelection(int nIndex)
{
    const auto isValid = [this, nIndex] { return mItems.IsIndex(nIndex); };
    if (const EUserResult result = AcceptUserIf(isValid); result != EUserResult::Done)
        return result;
    SetCurSel(nIndex);
    NotifyParent(ENotify::SelChange);
    return EUserResult::Done;
}

EUserResult CComboBox::UserType(const CString& rsText)
{
    if (const EUserResult result = WouldAcceptUser(); result != EUserResult::Done)
        return result;
    constexpr std::string_view sNeverInALine("\r\n\0", 3);
    if (!CanType())
        return EUserResult::Ignored;
    if (std::string_view(rsText).find_first_of(sNeverInALine) != std::string_view::npos)
        return EUserResult::Invalid;
    if (const EUserResult result = AcceptUser(); result != EUserResult::Done)
        return result;
    SelectText(rsText);
    NotifyParent(ENotify::EditChange);
    return EUserResult::Done;
}

bool CComboBox::IsTabStop() const
{
    return true;
}

bool CComboBox::AcceptsKind(EControl kind) const
{
    return kind == EControl::DropDownList || kind == EControl::DropDown;
}

void CComboBox::OnCreated(const TControlRow& rRow)
{
    for (const char* pEntry : rRow.entries)
        AddString(pEntry);
}

void CComboBox::OnDestroyed()
{
    mItems.Clear();
}
