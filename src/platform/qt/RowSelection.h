#pragma once

#include <functional>

class QAbstractItemView;
class QObject;

// A list or table in which one row, or none, is selected, and in which the current row is that one.

/// Lets the view select single rows and calls `rOnMoved`, as long as `rContext` lives, whenever the
/// user or the view has moved the current or the selected row. The view has its model by then.
void gOnRowMoved(QAbstractItemView& rView, QObject& rContext,
                 const std::function<void()>& rOnMoved);

/// The selected row, or -1.
int gSelectedRowOf(const QAbstractItemView& rView);

/// Selects a row, or none for -1, and brings it into view, where it isn't so already.
void gSelectRow(QAbstractItemView& rView, int nRow);
