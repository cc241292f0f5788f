#include "platform/qt/Binders.h"
#include "platform/qt/ButtonText.h"
#include "platform/qt/WidgetPeer.h"
#include "platform/ui/Button.h"

#include <QPushButton>

namespace
{
class CButtonPeer : public TWidgetPeer<CButton, QPushButton>
{
public:
    CButtonPeer(CModelEntry& rEntry, CWnd& rWnd)
        : TWidgetPeer(rEntry, rWnd, new QPushButton(gParentWidgetOf(rWnd)))
    {
        Widget().setAutoDefault(false);
        Widget().setDefault(rWnd.GetKind() == EControl::DefaultButton);
        connect(&Widget(), &QPushButton::clicked, this,
                [this] { Act([this] { Model().UserClick(); }); });
    }

protected:
    void PullText() override { gWriteButtonText(Widget(), Model().GetWindowText()); }
};
} // namespace

std::unique_ptr<CQtPeer> gBindButton(CModelEntry& rEntry, CWnd& rWnd)
{
    return std::make_unique<CButtonPeer>(rEntry, rWnd);
}
