#include "platform/qt/Binders.h"
#include "platform/qt/ButtonText.h"
#include "platform/qt/WidgetPeer.h"
#include "platform/ui/Button.h"

#include <QCheckBox>

namespace
{
class CCheckBoxPeer : public TWidgetPeer<CButton, QCheckBox>
{
public:
    CCheckBoxPeer(CModelEntry& rEntry, CWnd& rWnd)
        : TWidgetPeer(rEntry, rWnd, new QCheckBox(gParentWidgetOf(rWnd)))
    {
        connect(&Widget(), &QCheckBox::clicked, this,
                [this] { Act([this] { Model().UserClick(); }); });
    }

protected:
    void PullText() override { gWriteButtonText(Widget(), Model().GetWindowText()); }
    void PullCheck() override { Widget().setChecked(Model().GetCheck() != 0); }
};
} // namespace

std::unique_ptr<CQtPeer> gBindCheckBox(CModelEntry& rEntry, CWnd& rWnd)
{
    return std::make_unique<CCheckBoxPeer>(rEntry, rWnd);
}
