#include "platform/qt/FieldName.h"

#include "platform/qt/QtPeer.h"
#include "platform/qt/QtText.h"
#include "platform/ui/Wnd.h"

#include <QLabel>

namespace
{
CWnd* LabelOfField(const CWnd& rField)
{
    const CWnd* const pPane = rField.GetParent();
    return pPane ? pPane->GetDlgItem(LabelOf(rField.GetDlgCtrlID())) : nullptr;
}

QString NameFromKey(const CWnd& rField)
{
    return QString::fromUtf8(rField.GetKey()).replace(QLatin1Char('-'), QLatin1Char(' '));
}
} // namespace

void gNameField(const CWnd& rField, QWidget& rWidget)
{
    const CWnd* const pLabel = LabelOfField(rField);
    rWidget.setAccessibleName(pLabel ? gWithoutMnemonic(pLabel->GetWindowText())
                                     : NameFromKey(rField));
    const CQtPeer* const pPeer = CQtPeer::Of(pLabel);
    if (auto* const pWidget = qobject_cast<QLabel*>(pPeer ? pPeer->GetWidget() : nullptr))
        pWidget->setBuddy(&rWidget);
}

void gRenameFieldOf(const CWnd& rLabel)
{
    if (!rLabel.GetParent())
        return;
    for (const CWnd* pSibling : rLabel.GetParent()->GetChildren()) {
        const CQtPeer* const pPeer = CQtPeer::Of(pSibling);
        if (pPeer && pPeer->GetFocusWidget() && LabelOfField(*pSibling) == &rLabel)
            pPeer->GetFocusWidget()->setAccessibleName(gWithoutMnemonic(rLabel.GetWindowText()));
    }
}
