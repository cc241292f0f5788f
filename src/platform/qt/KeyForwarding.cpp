#include "platform/qt/KeyForwarding.h"

#include "platform/ui/Dialog.h"

#include <QKeyEvent>

namespace
{
using EKey = TUserKey::EKey;

/// True for the controls whose widgets have something to walk through with arrow keys.
bool WalksItself(EControl kind)
{
    switch (kind) {
    case EControl::Edit:
    case EControl::MultilineEdit:
    case EControl::DropDownList:
    case EControl::DropDown:
    case EControl::ListBox:
    case EControl::Tree:
    case EControl::Table:
        return true;
    case EControl::Label:
    case EControl::Static:
    case EControl::Group:
    case EControl::Frame:
    case EControl::PushButton:
    case EControl::DefaultButton:
    case EControl::CheckBox:
    case EControl::RadioButton:
    case EControl::Tabs:
        return false;
    }
    return false;
}

std::optional<TUserKey> PlainKeyOf(int nKey)
{
    switch (nKey) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return TUserKey{EKey::Enter};
    case Qt::Key_Escape:
        return TUserKey{EKey::Escape};
    case Qt::Key_Up:
        return TUserKey{EKey::Up};
    case Qt::Key_Down:
        return TUserKey{EKey::Down};
    case Qt::Key_Left:
        return TUserKey{EKey::Left};
    case Qt::Key_Right:
        return TUserKey{EKey::Right};
    default:
        return std::nullopt;
    }
}
} // namespace

std::optional<TUserKey> gUserKeyOf(const QKeyEvent& rEvent)
{
    const auto modifiers =
        rEvent.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier |
                              Qt::MetaModifier | Qt::GroupSwitchModifier);
    const int nKey = rEvent.key();
    if (nKey == Qt::Key_Backtab && (modifiers | Qt::ShiftModifier) == Qt::ShiftModifier)
        return TUserKey{EKey::Tab, true};
    if (nKey == Qt::Key_Tab && (modifiers | Qt::ShiftModifier) == Qt::ShiftModifier)
        return TUserKey{EKey::Tab, modifiers == Qt::ShiftModifier};
    const bool bLetter = nKey >= Qt::Key_A && nKey <= Qt::Key_Z;
    const bool bDigit = nKey >= Qt::Key_0 && nKey <= Qt::Key_9;
    if (modifiers == Qt::AltModifier && (bLetter || bDigit))
        return TUserKey{EKey::Mnemonic, false, static_cast<char>(nKey)};
    const bool bEnter = nKey == Qt::Key_Return || nKey == Qt::Key_Enter;
    if (bEnter && modifiers == Qt::ShiftModifier)
        return TUserKey{EKey::Enter, true};
    return modifiers == Qt::NoModifier ? PlainKeyOf(nKey) : std::nullopt;
}

bool gKeepsKey(const CWnd& rControl, TUserKey::EKey key)
{
    switch (key) {
    case EKey::Enter:
        return rControl.GetKind() == EControl::MultilineEdit &&
               (rControl.GetControlFlags() & kWantReturn);
    case EKey::Up:
    case EKey::Down:
    case EKey::Left:
    case EKey::Right:
        return WalksItself(rControl.GetKind());
    case EKey::Space:
        return true;
    case EKey::Escape:
    case EKey::Tab:
    case EKey::Mnemonic:
        return false;
    }
    return false;
}
