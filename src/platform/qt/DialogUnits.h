#pragma once

#include "platform/ui/Geometry.h"

class QFont;
class QRect;
class QSize;

/// The size of a dialog unit in pixels. Both follow the font, so that texts fit at any size of it.
struct TDialogUnits {
    double dX = 1; ///< a quarter of the mean advance of A-Z and a-z
    double dY = 1; ///< an eighth of the line's height
    bool operator==(const TDialogUnits&) const = default;
};

TDialogUnits gDialogUnitsOf(const QFont& rFont);

/// A rectangle in pixels. Each edge is rounded by itself, so that what touches or stands in line in
/// dialog units does so on the screen.
QRect gToPixels(const TDialogUnits& rUnits, const TRect& rRect);

/// A size in whole dialog units, rounded.
TSize gToUnits(const TDialogUnits& rUnits, const QSize& rSize);
