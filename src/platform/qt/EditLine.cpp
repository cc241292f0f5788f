#include "platform/qt/EditLine.h"

#include <QLineEdit>
#include <QRegularExpression>
#include <algorithm>

void gCutPastedLines(QLineEdit& rEdit)
{
    static const QRegularExpression kLineEnd(QStringLiteral("[\\r\\n]"));
    const QString sText = rEdit.text();
    const auto nLineEnd = static_cast<int>(sText.indexOf(kLineEnd));
    if (nLineEnd < 0)
        return;
    // The caret stands behind what was put in.
    QString sBehind = sText.mid(std::max(rEdit.cursorPosition(), nLineEnd));
    rEdit.setText(sText.left(nLineEnd) + sBehind.remove(kLineEnd));
    rEdit.setCursorPosition(nLineEnd);
}

void gWriteLine(QLineEdit& rEdit, const QString& rsText)
{
    if (rEdit.text() == rsText)
        return;
    const int nCaret = rEdit.cursorPosition();
    const bool bAtEnd = nCaret == rEdit.text().size();
    rEdit.setText(rsText);
    if (!bAtEnd)
        rEdit.setCursorPosition(nCaret);
}
