#pragma once

#include "platform/ui/Wnd.h"

/// A push button, a check box, a radio button or a group frame.
class CButton : public CWnd
{
public:
    /// 1 when checked, else 0.
    int GetCheck() const { return mbChecked ? 1 : 0; }
    /// Checks or unchecks this one button. Notifies nobody.
    void SetCheck(int nCheck);

    bool IsPushButton() const;
    bool IsRadio() const { return GetKind() == EControl::RadioButton; }

    /// The user presses a push button, toggles a check box, or chooses a radio button, which takes
    /// the check mark of its group away from the others. Notifies `Clicked`, also for a radio
    /// button that was checked before.
    EUserResult UserClick();

    /// Enter presses the default button, wherever the focus is; it stays there.
    void PressWithoutFocus() { NotifyParent(ENotify::Clicked); }

    /// The buttons of this radio button's group, in order, itself among them. One group has one
    /// key.
    std::vector<CButton*> GetRadioGroup() const;

    /// Where the focus enters this button's group: at the checked button, else at the first one
    /// that can take the focus. This button itself when there is neither, or it is in no group.
    CButton& GetGroupEntry();

    bool IsTabStop() const override;

protected:
    bool AcceptsKind(EControl kind) const override;
    void OnDestroyed() override;

private:
    bool mbChecked = false;
};
