#include "platform/qt/Binders.h"
#include "platform/ui/Wnd.h"

#include <QWidget>

namespace
{
/// A plain window, or the frame by which a template marks a place. That one is never shown.
class CFramePeer : public CQtPeer
{
public:
    CFramePeer(CModelEntry& rEntry, CWnd& rWnd)
        : CQtPeer(rEntry, rWnd, new QWidget(gParentWidgetOf(rWnd)))
    {
        GetWidget()->hide();
    }

protected:
    void PullVisible() override
    {
        const bool bMarksPlace = *Wnd().GetKey() != '\0';
        if (!bMarksPlace)
            CQtPeer::PullVisible();
    }

    void PullPlace() override
    {
        CQtPeer::PullPlace();
        if (Wnd().GetParent()->GetChildren().front() == &Wnd())
            GetWidget()->raise();
    }
};
} // namespace

std::unique_ptr<CQtPeer> gBindFrame(CModelEntry& rEntry, CWnd& rWnd)
{
    return std::make_unique<CFramePeer>(rEntry, rWnd);
}
