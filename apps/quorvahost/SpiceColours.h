#pragma once

#include "quorvahost/SpiceTokens.h"

#include <QColor>
#include <QPalette>
#include <QTextCharFormat>

namespace quorvawiz::host
{

/// Tells whether a palette has light text on a dark ground.
bool gIsDark(const QPalette& rPalette);

/// How a part of a netlist looks on a ground of the palette. Each colour has a contrast of at least
/// 4.5 to 1 with the ground.
QTextCharFormat gFormatOf(EToken kind, bool bDark);

/// The ground of the caret's line.
QColor gCurrentLineColour(const QPalette& rPalette);

} // namespace quorvawiz::host
