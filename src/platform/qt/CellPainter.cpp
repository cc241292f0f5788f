#include "platform/qt/CellPainter.h"

#include "platform/ui/TableCtrl.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QStyledItemDelegate>
#include <QToolTip>

namespace
{
class CCellDelegate : public QStyledItemDelegate
{
public:
    CCellDelegate(QAbstractItemView& rView, const CListCtrl& rTable)
        : QStyledItemDelegate(&rView), mpTable(dynamic_cast<const CTableCtrl*>(&rTable))
    {
    }

    bool helpEvent(QHelpEvent* pEvent, QAbstractItemView* pView,
                   const QStyleOptionViewItem& rOption, const QModelIndex& rIndex) override
    {
        if (pEvent->type() != QEvent::ToolTip || !rIndex.isValid())
            return QStyledItemDelegate::helpEvent(pEvent, pView, rOption, rIndex);
        const bool bCut = sizeHint(rOption, rIndex).width() > rOption.rect.width();
        QToolTip::showText(pEvent->globalPos(), bCut ? displayText(rIndex.data(), {}) : QString(),
                           pView);
        return true;
    }

protected:
    void initStyleOption(QStyleOptionViewItem* pOption, const QModelIndex& rIndex) const override
    {
        QStyledItemDelegate::initStyleOption(pOption, rIndex);
        if (!mpTable)
            return;
        const bool bSelected = pOption->state & QStyle::State_Selected;
        const bool bFocused = pOption->state & QStyle::State_HasFocus;
        const TCellDrawing drawing =
            mpTable->DrawItem(rIndex.row(), rIndex.column(), bSelected, bFocused);
        if (drawing.nColor != CLR_DEFAULT)
            pOption->palette.setColor(
                QPalette::Text,
                gReadableColor(drawing.nColor, pOption->palette.color(QPalette::Base)));
    }

private:
    const CTableCtrl* mpTable; ///< null: all cells are drawn alike
};
} // namespace

void gPaintCells(QAbstractItemView& rView, const CListCtrl& rTable)
{
    rView.setItemDelegate(new CCellDelegate(rView, rTable));
}

QColor gReadableColor(std::uint32_t nColor, const QColor& rBackground)
{
    const QColor color(static_cast<int>(nColor & 0xFF), static_cast<int>(nColor >> 8 & 0xFF),
                       static_cast<int>(nColor >> 16 & 0xFF));
    constexpr int nDark = 128;
    constexpr int nLight = 190;
    if (rBackground.lightness() >= nDark || color.lightness() >= nLight)
        return color;
    return QColor::fromHsl(color.hslHue(), color.hslSaturation(), nLight);
}
