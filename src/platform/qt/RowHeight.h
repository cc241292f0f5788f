#pragma once

class QAbstractItemView;
class QFontMetrics;

/// The height of a row of text in a list, tree or table, in pixels: the text and a little air.
int gRowHeight(const QFontMetrics& rMetrics);

/// Gives all rows of a list or tree that height, at any size of its font.
void gSpaceRows(QAbstractItemView& rView);
