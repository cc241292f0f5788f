#include "platform/qt/HostWidget.h"

#include "platform/qt/QtPeer.h"
#include "platform/ui/Wnd.h"

#include <QWidget>

namespace
{
/// A host's widget as a window that is never created: it owns dialogs and boxes, no more.
class CHostWnd : public CWnd
{
public:
    explicit CHostWnd(QWidget& rWidget) : mrWidget(rWidget) {}
    QWidget& GetWidget() const { return mrWidget; }

private:
    QWidget& mrWidget;
};

/// Ties the window's life to the widget's.
class CHostTie : public QObject
{
public:
    explicit CHostTie(QWidget& rWidget) : QObject(&rWidget), mWnd(rWidget) {}

    CHostWnd mWnd;
};
} // namespace

CWnd* gWindowOf(QWidget* pWidget)
{
    if (!pWidget)
        return nullptr;
    for (QObject* pChild : pWidget->children())
        if (auto* const pTie = dynamic_cast<CHostTie*>(pChild))
            return &pTie->mWnd;
    // The widget, as the tie's parent, ends it.
    return &(new CHostTie(*pWidget))->mWnd;
}

QWidget* gWidgetOf(const CWnd& rWnd)
{
    if (const auto* const pHost = dynamic_cast<const CHostWnd*>(&rWnd))
        return &pHost->GetWidget();
    const CQtPeer* const pPeer = CQtPeer::Of(&rWnd);
    return pPeer ? pPeer->GetWidget() : nullptr;
}
