#include "platform/qt/FieldName.h"

#include "platform/qt/QtPeer.h"
#include "platform/qt/QtText.h"
#include "platform/ui/FieldView.h"

#include <QLabel>

namespace
{
QString NameFromKey(const CWnd& rField)
{
    return QString::fromUtf8(rField.GetKey()).replace(QLatin1Char('-'), QLatin1Char(' '));
}
} // namespace

void gNameField(const CWnd& rField, QWidget& rWidget)
{
    const CWnd* const pLabel = gLabelOf(rField);
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
        if (pPeer && pPeer->GetFocusWidget() && gLabelOf(*pSibling) == &rLabel)
            pPeer->GetFocusWidget()->setAccessibleName(gWithoutMnemonic(rLabel.GetWindowText()));
    }
}
