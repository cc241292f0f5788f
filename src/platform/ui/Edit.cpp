#include "platform/ui/Edit.h"

#include <string_view>

void CEdit::SetWindowText(const CString& rsText)
{
    if (!IsCreated())
        return;
    SetTextSilently(rsText);
    if (!IsMultiline())
        NotifyParent(ENotify::Change);
}

EUserResult CEdit::UserType(const CString& rsText)
{
    constexpr std::string_view sNeverInALine("\r\n\0", 3);
    const std::string_view sRefused = IsMultiline() ? sNeverInALine.substr(2) : sNeverInALine;
    if (const EUserResult result = WouldAcceptUser(); result != EUserResult::Done)
        return result;
    if (GetControlFlags() & kReadOnly)
        return EUserResult::ReadOnly;
    if (std::string_view(rsText).find_first_of(sRefused) != std::string_view::npos)
        return EUserResult::Invalid;
    if (const EUserResult result = AcceptUser(); result != EUserResult::Done)
        return result;
    SetTextSilently(rsText);
    NotifyParent(ENotify::Change);
    return EUserResult::Done;
}

bool CEdit::IsTabStop() const
{
    return true;
}

bool CEdit::AcceptsKind(EControl kind) const
{
    return kind == EControl::Edit || kind == EControl::MultilineEdit;
}
