#include "quorvahost/LineNumbers.h"

#include "quorvahost/NetlistEdit.h"

#include <QMouseEvent>
#include <QPainter>
#include <QTextBlock>
#include <algorithm>

namespace quorvawiz::host
{
namespace
{
// In widths of a digit.
constexpr int kGapLeft = 1;
constexpr int kGapRight = 1;
// The margin doesn't move when a short netlist gets its tenth or hundredth line.
constexpr int kLeastDigits = 3;
} // namespace

CLineNumbers::CLineNumbers(CNetlistEdit& rEdit) : QWidget(&rEdit), mrEdit(rEdit)
{
    setCursor(Qt::ArrowCursor);
}

int CLineNumbers::NeededWidth() const
{
    const auto nDigits = static_cast<int>(QString::number(mrEdit.blockCount()).size());
    const int nDigit = mrEdit.fontMetrics().horizontalAdvance(QLatin1Char('9'));
    return (std::max(nDigits, kLeastDigits) + kGapLeft + kGapRight) * nDigit;
}

QSize CLineNumbers::sizeHint() const
{
    return {NeededWidth(), 0};
}

void CLineNumbers::Follow(const QRect& rPart, int nScrolled)
{
    if (nScrolled != 0)
        scroll(0, nScrolled);
    else
        update(0, rPart.y(), width(), rPart.height());
}

void CLineNumbers::paintEvent(QPaintEvent* pEvent)
{
    QPainter painter(this);
    painter.fillRect(pEvent->rect(), palette().color(QPalette::Window));
    painter.setFont(mrEdit.font());
    const QColor here = palette().color(QPalette::WindowText);
    QColor elsewhere = here;
    constexpr float kFaint = 0.6F;
    elsewhere.setAlphaF(kFaint);
    const int nDigit = mrEdit.fontMetrics().horizontalAdvance(QLatin1Char('9'));
    const int nCaretLine = mrEdit.textCursor().blockNumber();

    QTextBlock block = mrEdit.firstVisibleBlock();
    QRectF place = mrEdit.blockBoundingGeometry(block).translated(mrEdit.contentOffset());
    while (block.isValid() && place.top() <= pEvent->rect().bottom()) {
        const bool bHere = block.blockNumber() == nCaretLine;
        painter.setPen(bHere ? here : elsewhere);
        // By the line's own height: the last block has the document's lower edge in it.
        painter.drawText(
            QRectF(0, place.top(), width() - kGapRight * nDigit, mrEdit.fontMetrics().height()),
            Qt::AlignRight | Qt::AlignVCenter, QString::number(block.blockNumber() + 1));
        block = block.next();
        place = mrEdit.blockBoundingGeometry(block).translated(mrEdit.contentOffset());
    }
}

void CLineNumbers::mousePressEvent(QMouseEvent* pEvent)
{
    // A click on a number selects its line, as in other editors.
    QTextCursor cursor = mrEdit.cursorForPosition({0, pEvent->pos().y()});
    cursor.movePosition(QTextCursor::StartOfBlock);
    if (!cursor.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor))
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    mrEdit.setTextCursor(cursor);
    mrEdit.setFocus();
}

} // namespace quorvawiz::host
