#pragma once

#include "platform/qt/QtPeer.h"

/// The peer of a window of class `TWnd` that is drawn by a widget of class `TWidget`.
template <class TWnd, class TWidget> class TWidgetPeer : public CQtPeer
{
public:
    /// Takes over `pWidget`; `pFocusWidget` as for `CQtPeer`.
    TWidgetPeer(CModelEntry& rEntry, CWnd& rWnd, TWidget* pWidget, QWidget* pFocusWidget = nullptr)
        : CQtPeer(rEntry, rWnd, pWidget, pFocusWidget)
    {
    }

protected:
    TWnd& Model() const { return static_cast<TWnd&>(Wnd()); }
    /// To be used where the widget is known to exist: while pulling, and in its own signals.
    TWidget& Widget() const { return static_cast<TWidget&>(*GetWidget()); }
};
