#include "platform/qt/Binders.h"
#include "platform/qt/QtText.h"
#include "platform/qt/StackBelow.h"
#include "platform/qt/WidgetPeer.h"
#include "platform/ui/Button.h"

#include <QGroupBox>

namespace
{
class CGroupPeer : public TWidgetPeer<CButton, QGroupBox>
{
public:
    CGroupPeer(CModelEntry& rEntry, CWnd& rWnd)
        : TWidgetPeer(rEntry, rWnd, new QGroupBox(gParentWidgetOf(rWnd)))
    {
        gStackBelowControls(Widget());
        // It may lie over another frame, whose tabs still want to be clicked.
        Widget().setAttribute(Qt::WA_TransparentForMouseEvents);
    }

protected:
    void PullText() override
    {
        const QString sText = gToQString(Model().GetWindowText());
        if (Widget().title() != sText)
            Widget().setTitle(sText);
    }
};
} // namespace

std::unique_ptr<CQtPeer> gBindGroup(CModelEntry& rEntry, CWnd& rWnd)
{
    return std::make_unique<CGroupPeer>(rEntry, rWnd);
}
