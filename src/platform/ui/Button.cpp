#include "platform/ui/Button.h"

#include <algorithm>
#include <string_view>

void CButton::SetCheck(int nCheck)
{
    const bool bCheck = nCheck != 0;
    if (!IsCreated() || mbChecked == bCheck)
        return;
    mbChecked = bCheck;
    Announce(EAspect::Check);
}

bool CButton::IsPushButton() const
{
    return GetKind() == EControl::PushButton || GetKind() == EControl::DefaultButton;
}

EUserResult CButton::UserClick()
{
    if (GetKind() == EControl::Group)
        return EUserResult::Ignored;
    if (const EUserResult result = AcceptUser(); result != EUserResult::Done)
        return result;
    if (IsRadio()) {
        for (CButton* pButton : GetRadioGroup())
            pButton->SetCheck(pButton == this);
    } else if (!IsPushButton()) {
        SetCheck(!mbChecked);
    }
    NotifyParent(ENotify::Clicked);
    return EUserResult::Done;
}

std::vector<CButton*> CButton::GetRadioGroup() const
{
    std::vector<CButton*> group;
    if (!GetParent() || !IsRadio())
        return group;
    for (CWnd* pSibling : GetParent()->GetChildren()) {
        auto* const pButton = dynamic_cast<CButton*>(pSibling);
        if (pButton && pButton->IsRadio() && std::string_view(pButton->GetKey()) == GetKey())
            group.push_back(pButton);
    }
    return group;
}

CButton& CButton::GetGroupEntry()
{
    const auto group = GetRadioGroup();
    const auto entry = std::ranges::find_if(group, &CWnd::IsTabStop);
    return entry == group.end() ? *this : **entry;
}

bool CButton::IsTabStop() const
{
    if (GetKind() == EControl::Group)
        return false;
    if (!IsRadio() || mbChecked)
        return true;
    // A group without a check mark is entered at its first button that can take the focus.
    const auto group = GetRadioGroup();
    if (std::ranges::any_of(group, [](const CButton* p) { return p->GetCheck() != 0; }))
        return false;
    const auto first = std::ranges::find_if(group, &CWnd::CanTakeFocus);
    return first != group.end() && *first == this;
}

bool CButton::AcceptsKind(EControl kind) const
{
    return kind == EControl::PushButton || kind == EControl::DefaultButton ||
           kind == EControl::CheckBox || kind == EControl::RadioButton || kind == EControl::Group;
}

void CButton::OnDestroyed()
{
    mbChecked = false;
}
