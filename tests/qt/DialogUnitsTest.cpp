#include "platform/qt/DialogUnits.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetricsF>
#include <QRect>

namespace
{
TEST(DialogUnits, FollowTheFont)
{
    QFont font = QApplication::font();
    const TDialogUnits units = gDialogUnitsOf(font);
    EXPECT_DOUBLE_EQ(units.dY * 8, QFontMetricsF(font).height());
    EXPECT_GT(units.dX * 4, QFontMetricsF(font).horizontalAdvance(QLatin1Char('i')));
    EXPECT_LT(units.dX * 4, QFontMetricsF(font).horizontalAdvance(QLatin1Char('W')));
    font.setPointSizeF(font.pointSizeF() * 2);
    EXPECT_GT(gDialogUnitsOf(font).dX, units.dX * 1.5);
}

TEST(DialogUnits, WhatTouchesInUnitsTouchesInPixels)
{
    for (const double dUnit : {1.0, 1.37, 1.5, 1.75, 2.06, 3.3}) {
        const TDialogUnits units{dUnit, dUnit};
        for (int n = 0; n < 100; ++n) {
            const QRect left = gToPixels(units, {0, 0, n, n});
            const QRect right = gToPixels(units, {n, n, 7, 9});
            EXPECT_EQ(left.x() + left.width(), right.x());
            EXPECT_EQ(left.y() + left.height(), right.y());
            // The same edge, from whichever side it is reached.
            EXPECT_EQ(right.x() + right.width(), gToPixels(units, {n + 7, 0, 1, 1}).x());
        }
    }
}
} // namespace
