#include "platform/qt/ItemListModel.h"

#include "platform/qt/QtText.h"

#include <utility>

CItemListModel::CItemListModel(TGetItems getItems, QObject* pParent)
    : QAbstractListModel(pParent), mGetItems(std::move(getItems))
{
}

void CItemListModel::Renew()
{
    beginResetModel();
    mnRows = static_cast<int>(mGetItems().size());
    endResetModel();
}

void CItemListModel::Detach()
{
    mGetItems = [] { return std::span<const CString>(); };
    Renew();
}

int CItemListModel::rowCount(const QModelIndex& rParent) const
{
    return rParent.isValid() ? 0 : mnRows;
}

QVariant CItemListModel::data(const QModelIndex& rIndex, int nRole) const
{
    // Between a change and `Renew` there may be fewer entries than rows.
    const auto items = mGetItems();
    const auto nRow = static_cast<std::size_t>(rIndex.row());
    if (!rIndex.isValid() || nRow >= items.size() ||
        (nRole != Qt::DisplayRole && nRole != Qt::EditRole))
        return {};
    return gToQString(items[nRow]);
}
