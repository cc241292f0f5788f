#pragma once

#include <cstdint>

class CListCtrl;
class QAbstractItemView;
class QColor;

/// Lets the view draw a table's cells in the colours that the table names, and show a text that is
/// cut off as a tool tip. The table lives as long as the view takes events.
void gPaintCells(QAbstractItemView& rView, const CListCtrl& rTable);

/// A cell's colour on the screen, where `rBackground` stands behind it: the colour itself, on a
/// dark background a lighter one of the same hue. `nColor`: 0x00BBGGRR.
QColor gReadableColor(std::uint32_t nColor, const QColor& rBackground);
