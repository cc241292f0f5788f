#pragma once

#include "platform/ui/Wnd.h"

/// A box for text, of one line or of several. Lines are joined by CR LF.
class CEdit : public CWnd
{
public:
    /// Replaces the text. A single-line edit notifies `Change`, also when the text is equal; a
    /// multi-line edit notifies nobody.
    void SetWindowText(const CString& rsText) override;

    bool IsMultiline() const { return GetKind() == EControl::MultilineEdit; }

    /// The user replaces the text; notifies `Change` once, also when it is equal. Refused: CR, LF
    /// or NUL in a single-line edit, NUL in any.
    EUserResult UserType(const CString& rsText);

    bool IsTabStop() const override;

protected:
    bool AcceptsKind(EControl kind) const override;
};
