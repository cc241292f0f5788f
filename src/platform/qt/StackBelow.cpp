#include "platform/qt/StackBelow.h"

#include <QGroupBox>
#include <QTabWidget>

void gStackBelowControls(QWidget& rFrame)
{
    for (QObject* pChild : rFrame.parentWidget()->children()) {
        auto* const pSibling = qobject_cast<QWidget*>(pChild);
        if (!pSibling || pSibling == &rFrame || qobject_cast<QGroupBox*>(pSibling) ||
            qobject_cast<QTabWidget*>(pSibling))
            continue;
        rFrame.stackUnder(pSibling);
        return;
    }
}
