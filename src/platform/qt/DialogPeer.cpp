#include "platform/qt/DialogPeer.h"

#include "platform/qt/ModelEntry.h"
#include "platform/qt/OwnedWindow.h"
#include "platform/qt/QtText.h"
#include "platform/ui/Dialog.h"
#include "platform/ui/UiThread.h"

#include <QCloseEvent>
#include <QDialog>
#include <QKeyEvent>

/// A dialog window that leaves focus, Enter, Escape and closing to the model.
class CDialogPeer::CWindow : public QDialog
{
public:
    explicit CWindow(bool bSizable)
    {
        setWindowModality(Qt::ApplicationModal);
        setWindowFlag(Qt::MSWindowsFixedSizeDialogHint, !bSizable);
        setWindowFlag(Qt::WindowMinMaxButtonsHint, bSizable);
    }

    /// Who is told; the window may stay a moment longer.
    void SetPeer(CDialogPeer& rPeer) { mpPeer = &rPeer; }

    void reject() override
    {
        if (mpPeer)
            mpPeer->Close();
    }

protected:
    bool focusNextPrevChild(bool) override { return false; }

    void closeEvent(QCloseEvent* pEvent) override
    {
        reject();
        // Who closes all windows to quit wants to know.
        pEvent->setAccepted(!mpPeer || mpPeer->mrDialog.HasEnded());
    }

    /// Comes here when no control has the keyboard, or has no use for the key.
    void keyPressEvent(QKeyEvent* pEvent) override { pEvent->accept(); }

    void changeEvent(QEvent* pEvent) override
    {
        QDialog::changeEvent(pEvent);
        if (mpPeer &&
            (pEvent->type() == QEvent::FontChange || pEvent->type() == QEvent::StyleChange))
            mpPeer->FollowFont();
        if (mpPeer && pEvent->type() == QEvent::WindowStateChange && isMinimized())
            mpPeer->FollowUser(SIZE_MINIMIZED);
    }

    void resizeEvent(QResizeEvent* pEvent) override
    {
        QDialog::resizeEvent(pEvent);
        if (mpPeer)
            mpPeer->FollowUser(SIZE_RESTORED);
    }

private:
    QPointer<CDialogPeer> mpPeer;
};

CDialogPeer::CDialogPeer(CModelEntry& rEntry, CDialog& rDialog)
    : CQtPeer(rEntry, rDialog, new CWindow(rDialog.GetTemplate().bSizable)), mrDialog(rDialog),
      mpOwner(gOwnerWidgetOf(rDialog.GetOwner())), mUnits(gDialogUnitsOf(GetWidget()->font()))
{
    static_cast<CWindow*>(GetWidget())->SetPeer(*this);
}

void CDialogPeer::PullText()
{
    GetWidget()->setWindowTitle(gToQString(mrDialog.GetWindowText()));
}

void CDialogPeer::PullPlace()
{
    const TRect rect = mrDialog.GetWindowRect();
    const QSize size = gToPixels(mUnits, rect).size();
    if (!IsSizable()) {
        if (GetWidget()->size() != size || GetWidget()->minimumSize() != size)
            GetWidget()->setFixedSize(size);
        return;
    }
    const TSize least = mrDialog.GetTemplate().size;
    GetWidget()->setMinimumSize(gToPixels(mUnits, {0, 0, least.cx, least.cy}).size());
    // The user's window is seldom a whole number of units large, and stays as he left it.
    if (gToUnits(mUnits, GetWidget()->size()) != TSize{rect.w, rect.h})
        GetWidget()->resize(size);
}

void CDialogPeer::PullVisible()
{
    const bool bShow = mrDialog.IsShown() && !mrDialog.HasEnded();
    if (GetWidget()->isHidden() == !bShow)
        return;
    if (bShow)
        gTieToOwner(*GetWidget(), mpOwner);
    GetWidget()->setVisible(bShow);
    if (bShow)
        GetWidget()->activateWindow();
}

void CDialogPeer::FollowFont()
{
    const TDialogUnits units = gDialogUnitsOf(GetWidget()->font());
    if (units == mUnits)
        return;
    mUnits = units;
    PlaceAll();
    // The same size in dialog units is another one in pixels.
    if (IsSizable())
        Entry().Enter([this] { mrDialog.SendMessage(WM_SIZE, SIZE_RESTORED); });
}

void CDialogPeer::FollowUser(WPARAM nType)
{
    if (IsWriting() || !IsSizable() || !IsInFront() || GetWidget()->isHidden())
        return;
    const TSize size = gToUnits(mUnits, GetWidget()->size());
    Entry().Enter([this, nType, size] { mrDialog.UserSize(nType, size); });
}

bool CDialogPeer::IsSizable() const
{
    return mrDialog.GetTemplate().bSizable;
}

bool CDialogPeer::IsInFront() const
{
    const TUiThread& rThread = Entry().Thread();
    return rThread.mnOpenBoxes == 0 && rThread.FrontWindow() == &mrDialog;
}

void CDialogPeer::Close()
{
    if (IsInFront())
        Entry().Enter([this] { mrDialog.SendMessage(WM_SYSCOMMAND, SC_CLOSE); });
}
