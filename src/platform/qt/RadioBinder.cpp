#include "platform/qt/Binders.h"
#include "platform/qt/ButtonText.h"
#include "platform/qt/WidgetPeer.h"
#include "platform/ui/Button.h"

#include <QRadioButton>

namespace
{
class CRadioPeer : public TWidgetPeer<CButton, QRadioButton>
{
public:
    CRadioPeer(CModelEntry& rEntry, CWnd& rWnd)
        : TWidgetPeer(rEntry, rWnd, new QRadioButton(gParentWidgetOf(rWnd)))
    {
        // One pane may hold several groups; which buttons exclude each other, the model knows.
        Widget().setAutoExclusive(false);
        connect(&Widget(), &QRadioButton::clicked, this,
                [this] { Act([this] { Model().UserClick(); }); });
    }

protected:
    void PullText() override { gWriteButtonText(Widget(), Model().GetWindowText()); }
    void PullCheck() override { Widget().setChecked(Model().GetCheck() != 0); }

    void ShowOutcome() override
    {
        for (const CButton* pButton : Model().GetRadioGroup())
            if (CQtPeer* const pPeer = Of(pButton))
                pPeer->PullAll();
    }
};
} // namespace

std::unique_ptr<CQtPeer> gBindRadio(CModelEntry& rEntry, CWnd& rWnd)
{
    return std::make_unique<CRadioPeer>(rEntry, rWnd);
}
