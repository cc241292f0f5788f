#include "platform/qt/QtPeer.h"

#include "platform/qt/DialogUnits.h"
#include "platform/qt/KeyForwarding.h"
#include "platform/qt/ModelEntry.h"
#include "platform/ui/Dialog.h"
#include "platform/ui/UiThread.h"
#include "platform/ui/UserKey.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>

CQtPeer::CQtPeer(CModelEntry& rEntry, CWnd& rWnd, QWidget* pWidget, QWidget* pFocusWidget)
    : mrEntry(rEntry), mrWnd(rWnd), mpWidget(pWidget),
      mpFocusWidget(pFocusWidget ? pFocusWidget : pWidget)
{
    mpWidget->setObjectName(QString::fromUtf8(rWnd.GetKey()));
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* pNow) {
        if (pNow && pNow == mpFocusWidget)
            OnGotFocus();
    });
}

CQtPeer::~CQtPeer()
{
    if (!mpWidget)
        return;
    mpWidget->removeEventFilter(this);
    mpWidget->disconnect(this);
    mpWidget->hide();
    mpWidget->deleteLater();
}

CQtPeer* CQtPeer::Of(const CWnd* pWnd)
{
    return pWnd ? dynamic_cast<CQtPeer*>(pWnd->GetPeer()) : nullptr;
}

// --- from the model to the widget

void CQtPeer::OnChanged(EAspect aspect)
{
    if (!mpWidget)
        return;
    const QScopedValueRollback<bool> writing(mbWriting, true);
    switch (aspect) {
    case EAspect::Text:
        PullText();
        break;
    case EAspect::Enabled:
        PullEnabled();
        break;
    case EAspect::Visible:
        PullVisible();
        break;
    case EAspect::Place:
        PlaceAll();
        break;
    case EAspect::Items:
        // New entries take selection, open nodes and text along.
        PullItems();
        PullExpansion();
        PullSelection();
        PullText();
        break;
    case EAspect::Selection:
        PullSelection();
        break;
    case EAspect::Check:
        PullCheck();
        break;
    case EAspect::Expansion:
        PullExpansion();
        break;
    case EAspect::Focus:
        PullFocus();
        break;
    }
}

void CQtPeer::PullFirst()
{
    // Not before the derived class is whole: events come at once.
    mpFocusWidget->installEventFilter(this);
    OnChanged(EAspect::Items);
    OnChanged(EAspect::Place);
    PullAll();
}

void CQtPeer::PullAll()
{
    for (const EAspect aspect : {EAspect::Expansion, EAspect::Selection, EAspect::Text,
                                 EAspect::Check, EAspect::Enabled, EAspect::Visible})
        OnChanged(aspect);
}

void CQtPeer::PullEnabled()
{
    if (mpWidget->testAttribute(Qt::WA_ForceDisabled) == mrWnd.IsWindowEnabled())
        mpWidget->setEnabled(mrWnd.IsWindowEnabled());
}

void CQtPeer::PullVisible()
{
    if (mpWidget->isHidden() == !mrWnd.IsShown())
        return;
    mpWidget->setVisible(mrWnd.IsShown());
    // Qt leaves the keyboard with a widget that was hidden if nobody else takes it.
    QWidget* const pFocus = mpWidget->window()->focusWidget();
    if (!mrWnd.IsShown() && pFocus && (pFocus == mpWidget || mpWidget->isAncestorOf(pFocus)))
        pFocus->clearFocus();
}

void CQtPeer::PullPlace()
{
    // Edges are rounded from the top window's corner on, so that a pane's controls stand in line
    // with those around the pane.
    const TDialogUnits units = GetUnits();
    QRect rect = gToPixels(units, mrWnd.GetWindowRect());
    if (const CWnd* const pParent = mrWnd.GetParent())
        rect.translate(-gToPixels(units, pParent->GetWindowRect()).topLeft());
    if (mpWidget->geometry() != rect)
        mpWidget->setGeometry(rect);
}

void CQtPeer::PlaceAll()
{
    if (!mpWidget)
        return;
    PullPlace();
    for (const CWnd* pChild : mrWnd.GetChildren())
        if (CQtPeer* const pPeer = Of(pChild))
            pPeer->PlaceAll();
}

void CQtPeer::PullFocus()
{
    if (!mpFocusWidget)
        return;
    // With the reason "Tab" an edit marks its text, so that what is typed next replaces it.
    if (QWidget* const pWindow = mpWidget->window(); pWindow->focusWidget() != mpFocusWidget)
        mpFocusWidget->setFocus(mrEntry.IsInKey() ? Qt::TabFocusReason : Qt::OtherFocusReason);
    // A list that gets the keyboard puts its mark on the first entry of its own accord.
    PullSelection();
}

TDialogUnits CQtPeer::GetUnits() const
{
    const CQtPeer* const pTop = Of(&mrWnd.GetTopLevel());
    return pTop && pTop != this ? pTop->GetUnits() : TDialogUnits{};
}

// --- from the user to the model

void CQtPeer::Act(const std::function<void()>& rAction)
{
    const QPointer<CQtPeer> pSelf(this);
    mrEntry.Enter(rAction);
    if (!pSelf)
        return;
    ShowOutcome();
    PullSoon();
}

void CQtPeer::ShowOutcome()
{
    PullAll();
}

void CQtPeer::PullSoon()
{
    if (mbPullQueued)
        return;
    mbPullQueued = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            mbPullQueued = false;
            PullAll();
        },
        Qt::QueuedConnection);
}

void CQtPeer::OnGotFocus()
{
    const CWnd* const pFront = mrEntry.Thread().FrontWindow();
    if (mbWriting || CWnd::GetFocus() == &mrWnd || !pFront || !mrWnd.IsInside(*pFront))
        return;
    const QPointer<CQtPeer> pSelf(this);
    mrEntry.Enter([this] { mrWnd.AcceptUser(); });
    if (!pSelf || CWnd::GetFocus() == &mrWnd)
        return;
    if (CQtPeer* const pHolder = Of(CWnd::GetFocus()))
        pHolder->OnChanged(EAspect::Focus);
    else if (mpFocusWidget)
        mpFocusWidget->clearFocus();
}

bool CQtPeer::TakeKey(const QKeyEvent& rEvent)
{
    // A key that a control has no use for comes by its parents, too.
    if (QWidget* const pFocus = QApplication::focusWidget(); pFocus && pFocus != mpFocusWidget)
        return false;
    const auto key = gUserKeyOf(rEvent);
    if (!key || gKeepsKey(mrWnd, key->key))
        return false;
    mrEntry.EnterKey(*key);
    return true;
}

bool CQtPeer::eventFilter(QObject* pObject, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::Shortcut)
        return true;
    if (pObject != mpFocusWidget)
        return false;
    if (pEvent->type() == QEvent::KeyPress)
        return TakeKey(static_cast<QKeyEvent&>(*pEvent));
    if (pEvent->type() == QEvent::ShortcutOverride &&
        gUserKeyOf(static_cast<QKeyEvent&>(*pEvent))) {
        pEvent->accept();
        return true;
    }
    return false;
}

QWidget* gParentWidgetOf(const CWnd& rWnd)
{
    const CQtPeer* const pParent = CQtPeer::Of(rWnd.GetParent());
    return pParent ? pParent->GetWidget() : nullptr;
}
