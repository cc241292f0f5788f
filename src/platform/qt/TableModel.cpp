#include "platform/qt/TableModel.h"

#include "platform/qt/QtText.h"
#include "platform/ui/ListCtrl.h"

CTableModel::CTableModel(const CListCtrl& rTable, QObject* pParent)
    : QAbstractTableModel(pParent), mpTable(&rTable)
{
}

void CTableModel::Renew()
{
    beginResetModel();
    mnRows = mpTable ? mpTable->GetItemCount() : 0;
    mnColumns = mpTable ? mpTable->GetColumnCount() : 0;
    endResetModel();
}

void CTableModel::Detach()
{
    mpTable = nullptr;
    Renew();
}

int CTableModel::rowCount(const QModelIndex& rParent) const
{
    return rParent.isValid() ? 0 : mnRows;
}

int CTableModel::columnCount(const QModelIndex& rParent) const
{
    return rParent.isValid() ? 0 : mnColumns;
}

QVariant CTableModel::data(const QModelIndex& rIndex, int nRole) const
{
    if (!mpTable || !rIndex.isValid() || nRole != Qt::DisplayRole)
        return {};
    return gToQString(mpTable->GetItemText(rIndex.row(), rIndex.column()));
}

QVariant CTableModel::headerData(int nSection, Qt::Orientation orientation, int nRole) const
{
    if (!mpTable || orientation != Qt::Horizontal || nSection < 0 ||
        nSection >= mpTable->GetColumnCount())
        return {};
    if (nRole == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::Alignment(Qt::AlignLeft | Qt::AlignVCenter));
    if (nRole != Qt::DisplayRole)
        return {};
    return gToQString(mpTable->GetColumns()[static_cast<std::size_t>(nSection)].sHeading);
}
