#include "platform/qt/Binders.h"
#include "platform/qt/QtText.h"
#include "platform/ui/Wnd.h"

#include <QWidget>

namespace
{
/// The widget of a pane; where the keyboard goes next is the model's business.
class CPaneWidget : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    bool focusNextPrevChild(bool) override { return false; }
};

class CPanePeer : public CQtPeer
{
public:
    CPanePeer(CModelEntry& rEntry, CWnd& rWnd)
        : CQtPeer(rEntry, rWnd, new CPaneWidget(gParentWidgetOf(rWnd)))
    {
        GetWidget()->hide();
    }

protected:
    void PullText() override
    {
        GetWidget()->setAccessibleName(gWithoutMnemonic(Wnd().GetWindowText()));
    }

    void PullPlace() override
    {
        CQtPeer::PullPlace();
        if (Wnd().GetParent()->GetChildren().front() == &Wnd())
            GetWidget()->raise();
    }
};
} // namespace

std::unique_ptr<CQtPeer> gBindPane(CModelEntry& rEntry, CWnd& rWnd)
{
    return std::make_unique<CPanePeer>(rEntry, rWnd);
}
