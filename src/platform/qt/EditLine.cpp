#include "platform/qt/EditLine.h"

#include <QLineEdit>
#include <QRegularExpression>

QString gWithoutPastedLines(const QLineEdit& rEdit)
{
    static const QRegularExpression kLineEnd(QStringLiteral("[\\r\\n]"));
    const QString sText = rEdit.text();
    const qsizetype nLineEnd = sText.indexOf(kLineEnd);
    if (nLineEnd < 0)
        return sText;
    // The caret stands behind what was put in.
    const qsizetype nCaret = std::max<qsizetype>(rEdit.cursorPosition(), nLineEnd);
    QString sBehind = sText.mid(nCaret);
    return sText.left(nLineEnd) + sBehind.remove(kLineEnd);
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
