#include "platform/qt/RowHeight.h"

#include <QAbstractItemView>
#include <QFontMetrics>
#include <QStyledItemDelegate>

namespace
{
constexpr int kAir = 4; // above and below the text together

class CRowDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& rOption, const QModelIndex& rIndex) const override
    {
        QSize size = QStyledItemDelegate::sizeHint(rOption, rIndex);
        size.setHeight(gRowHeight(rOption.fontMetrics));
        return size;
    }
};
} // namespace

int gRowHeight(const QFontMetrics& rMetrics)
{
    return rMetrics.height() + kAir;
}

void gSpaceRows(QAbstractItemView& rView)
{
    rView.setItemDelegate(new CRowDelegate(&rView));
}
