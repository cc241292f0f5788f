#pragma once

#include "platform/base/StringA.h"

#include <QAbstractListModel>
#include <functional>
#include <span>

/// The entries of a list or combo box as widgets want to see them: a window onto the control, which
/// keeps no copy.
class CItemListModel : public QAbstractListModel
{
public:
    using TGetItems = std::function<std::span<const CString>()>;

    /// `getItems` is asked as long as this object lives, for entries that stay put meanwhile.
    explicit CItemListModel(TGetItems getItems, QObject* pParent);

    /// Tells the widgets that the entries have changed.
    void Renew();
    /// The control ends; from now on there are no entries.
    void Detach();

    int rowCount(const QModelIndex& rParent = {}) const override;
    QVariant data(const QModelIndex& rIndex, int nRole) const override;

private:
    TGetItems mGetItems;
    int mnRows = 0; ///< as the widgets know it
};
