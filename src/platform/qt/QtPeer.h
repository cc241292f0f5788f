#pragma once

#include "platform/ui/WindowPeer.h"

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>

class CWnd;
class QKeyEvent;
class CModelEntry;
struct TDialogUnits;

/// What draws one window: holds its widget, pulls what changes into it, and brings the user's
/// actions into the model.
///
/// The widget may be deleted before its peer (by its parent in Qt), and the peer before its widget:
/// a peer that ends while an event of its widget is being handled leaves the widget, hidden, to the
/// event loop.
class CQtPeer : public QObject, public IWindowPeer
{
public:
    ~CQtPeer() override;

    /// The peer of a window; null for a null window, and for one that no QtDesktop draws.
    static CQtPeer* Of(const CWnd* pWnd);

    void OnChanged(EAspect aspect) override;
    /// Pulls everything, once the peer is whole.
    void PullFirst();
    /// Pulls what the user can change, and what decides whether he can.
    void PullAll();
    /// Moves the widget and all inside it to where the model has them.
    virtual void PlaceAll();

    /// Null when the widget has been deleted.
    QWidget* GetWidget() const { return mpWidget; }
    /// The widget that has the keyboard when the window has.
    QWidget* GetFocusWidget() const { return mpFocusWidget; }
    /// The size of a dialog unit here.
    virtual TDialogUnits GetUnits() const;

    bool eventFilter(QObject* pObject, QEvent* pEvent) override;

protected:
    /// Takes over `pWidget`. `pFocusWidget`: the part of it that takes the keyboard; null: itself.
    CQtPeer(CModelEntry& rEntry, CWnd& rWnd, QWidget* pWidget, QWidget* pFocusWidget = nullptr);

    // Each writes to the widget what differs from the model.
    virtual void PullText() {}
    virtual void PullItems() {}
    virtual void PullExpansion() {}
    virtual void PullSelection() {}
    virtual void PullCheck() {}
    virtual void PullEnabled();
    virtual void PullPlace();
    virtual void PullVisible();

    /// True while this peer writes to its widget: what the widget then signals is no user's action.
    bool IsWriting() const { return mbWriting; }
    /// Lets the user act on the model and then shows what has become of it. The peer may be gone
    /// afterwards.
    void Act(const std::function<void()>& rAction);
    /// What follows an action. `Act` has asked whether the peer still lives.
    virtual void ShowOutcome();
    /// Pulls everything once more when the event at hand is over: a widget may go on changing
    /// itself behind its signal.
    void PullSoon();

    CModelEntry& Entry() const { return mrEntry; }
    CWnd& Wnd() const { return mrWnd; }

private:
    void PullFocus();
    void OnGotFocus();
    bool TakeKey(const QKeyEvent& rEvent);

    CModelEntry& mrEntry;
    CWnd& mrWnd;
    QPointer<QWidget> mpWidget;
    QPointer<QWidget> mpFocusWidget;
    bool mbWriting = false;
    bool mbPullQueued = false;
};

/// The widget in which the children of a window are drawn; null when its parent isn't drawn.
QWidget* gParentWidgetOf(const CWnd& rWnd);
