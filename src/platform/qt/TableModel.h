#pragma once

#include <QAbstractTableModel>

class CListCtrl;

/// The rows of a table as its widget wants to see them: a window onto the control, which keeps no
/// copy, so that a million rows cost nothing here.
class CTableModel : public QAbstractTableModel
{
public:
    CTableModel(const CListCtrl& rTable, QObject* pParent);

    /// Tells the widget that columns, rows or cells have changed.
    void Renew();
    /// The control ends; from now on the table is empty.
    void Detach();

    int rowCount(const QModelIndex& rParent = {}) const override;
    int columnCount(const QModelIndex& rParent = {}) const override;
    QVariant data(const QModelIndex& rIndex, int nRole) const override;
    QVariant headerData(int nSection, Qt::Orientation orientation, int nRole) const override;

private:
    const CListCtrl* mpTable;
    int mnRows = 0; ///< as the widget knows it
    int mnColumns = 0;
};
