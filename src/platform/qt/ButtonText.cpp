#include "platform/qt/ButtonText.h"

#include "platform/qt/QtText.h"

#include <QAbstractButton>
#include <QKeySequence>

void gWriteButtonText(QAbstractButton& rButton, const CString& rsText)
{
    const QString sText = gToQString(rsText);
    if (rButton.text() == sText)
        return;
    rButton.setText(sText);
    rButton.setShortcut(QKeySequence());
}
