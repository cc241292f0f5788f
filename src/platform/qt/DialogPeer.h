#pragma once

#include "platform/qt/DialogUnits.h"
#include "platform/qt/QtPeer.h"
#include "platform/ui/Messages.h"

class CDialog;

/// Draws a modal dialog as a window of its own.
///
/// The window has no parent in Qt: the host may delete its own window while the dialog is open. It
/// is tied to its owner as a transient window instead.
class CDialogPeer : public CQtPeer
{
public:
    CDialogPeer(CModelEntry& rEntry, CDialog& rDialog);

    /// The widget of the window that the dialog belongs to; null when there is none, or no more.
    QWidget* GetOwnerWidget() const { return mpOwner; }
    TDialogUnits GetUnits() const override { return mUnits; }

protected:
    void PullText() override;
    void PullPlace() override;
    void PullVisible() override;

private:
    class CWindow;

    bool IsInFront() const;
    void Close();
    void FollowFont();
    void FollowUser(WPARAM nType);
    bool IsSizable() const;

    CDialog& mrDialog;
    QPointer<QWidget> mpOwner;
    TDialogUnits mUnits;
};
