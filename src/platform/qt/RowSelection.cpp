#include "platform/qt/RowSelection.h"

#include <QAbstractItemView>
#include <QItemSelectionModel>
#include <utility>

void gOnRowMoved(QAbstractItemView& rView, QObject& rContext, const std::function<void()>& rOnMoved)
{
    rView.setSelectionMode(QAbstractItemView::SingleSelection);
    rView.setSelectionBehavior(QAbstractItemView::SelectRows);
    // Keys and mouse move the two in different orders.
    QItemSelectionModel* const pSelection = rView.selectionModel();
    QObject::connect(
        pSelection, &QItemSelectionModel::selectionChanged, &rContext,
        [onMoved = rOnMoved](const QItemSelection&, const QItemSelection&) { onMoved(); });
    QObject::connect(pSelection, &QItemSelectionModel::currentChanged, &rContext,
                     [onMoved = rOnMoved](const QModelIndex&, const QModelIndex&) { onMoved(); });
}

int gSelectedRowOf(const QAbstractItemView& rView)
{
    const QModelIndexList rows = rView.selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.front().row();
}

void gSelectRow(QAbstractItemView& rView, int nRow)
{
    const QModelIndex current = rView.currentIndex();
    if (gSelectedRowOf(rView) == nRow && (current.isValid() ? current.row() : -1) == nRow)
        return;
    QItemSelectionModel& rSelection = *rView.selectionModel();
    if (nRow < 0) {
        rSelection.clear();
        return;
    }
    const int nColumn = current.isValid() ? current.column() : 0;
    rSelection.setCurrentIndex(rView.model()->index(nRow, nColumn),
                               QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}
