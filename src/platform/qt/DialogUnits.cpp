#include "platform/qt/DialogUnits.h"

#include <QFontMetricsF>
#include <QRect>
#include <QString>
#include <QtMath>

TDialogUnits gDialogUnitsOf(const QFont& rFont)
{
    static const QString kLetters =
        QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
    const QFontMetricsF metrics(rFont);
    return {metrics.horizontalAdvance(kLetters) / static_cast<double>(kLetters.size()) / 4,
            metrics.height() / 8};
}

QRect gToPixels(const TDialogUnits& rUnits, const TRect& rRect)
{
    const QPoint topLeft(qRound(rRect.x * rUnits.dX), qRound(rRect.y * rUnits.dY));
    const QPoint behind(qRound(rRect.Right() * rUnits.dX), qRound(rRect.Bottom() * rUnits.dY));
    return {topLeft, QSize(behind.x() - topLeft.x(), behind.y() - topLeft.y())};
}

TSize gToUnits(const TDialogUnits& rUnits, const QSize& rSize)
{
    return {qRound(rSize.width() / rUnits.dX), qRound(rSize.height() / rUnits.dY)};
}
