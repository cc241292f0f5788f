#include "platform/ui/UserKey.h"

#include "platform/ui/ArrowKeys.h"
#include "platform/ui/Button.h"
#include "platform/ui/Desktop.h"
#include "platform/ui/Dialog.h"
#include "platform/ui/Edit.h"
#include "platform/ui/Mnemonics.h"

namespace
{
/// Without a screen there is no caret: what a key types goes to the end of the text.
EUserResult TypeAtEnd(CEdit& rEdit, const char* pText)
{
    return rEdit.UserType(rEdit.GetWindowText() + pText);
}

EUserResult PressEnter(CDialog& rDialog, CWnd* pFocus)
{
    if (auto* const pButton = dynamic_cast<CButton*>(pFocus); pButton && pButton->IsPushButton())
        return pButton->UserClick();
    auto* const pEdit = dynamic_cast<CEdit*>(pFocus);
    if (pEdit && pEdit->IsMultiline() && (pEdit->GetControlFlags() & kWantReturn))
        return TypeAtEnd(*pEdit, "\r\n");

    CButton* const pDefault = rDialog.GetDefaultButton();
    if (!pDefault) {
        rDialog.PerformOK();
        return EUserResult::Done;
    }
    if (const EUserResult result = pDefault->WouldAcceptUser(); result != EUserResult::Done)
        return result;
    pDefault->PressWithoutFocus();
    return EUserResult::Done;
}

EUserResult PressSpace(CWnd* pFocus)
{
    if (auto* const pEdit = dynamic_cast<CEdit*>(pFocus))
        return TypeAtEnd(*pEdit, " ");
    auto* const pButton = dynamic_cast<CButton*>(pFocus);
    return pButton ? pButton->UserClick() : EUserResult::Ignored;
}
} // namespace

EUserResult gUserKey(const TUserKey& rKey)
{
    const TUiThread& rThread = gDesktop().Thread();
    CDialog* const pDialog = gInnermostDialog();
    if (!pDialog || rThread.mnOpenBoxes > 0)
        return EUserResult::Blocked;
    CWnd* pFocus = CWnd::GetFocus();
    if (pFocus && !pFocus->IsInside(*pDialog))
        pFocus = nullptr;

    switch (rKey.key) {
    case TUserKey::EKey::Enter:
        return PressEnter(*pDialog, pFocus);
    case TUserKey::EKey::Escape:
        pDialog->PerformCancel();
        return EUserResult::Done;
    case TUserKey::EKey::Tab:
        pDialog->SendMessage(WM_KEYDOWN, VK_TAB, rKey.bShift ? 1 : 0);
        return EUserResult::Done;
    case TUserKey::EKey::Space:
        return PressSpace(pFocus);
    case TUserKey::EKey::Up:
        return gPressArrow(pFocus, EArrow::Up);
    case TUserKey::EKey::Down:
        return gPressArrow(pFocus, EArrow::Down);
    case TUserKey::EKey::Left:
        return gPressArrow(pFocus, EArrow::Left);
    case TUserKey::EKey::Right:
        return gPressArrow(pFocus, EArrow::Right);
    case TUserKey::EKey::Mnemonic:
        return gPressMnemonic(*pDialog, rKey.cMnemonic);
    }
    return EUserResult::Ignored;
}
