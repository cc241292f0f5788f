#include "quorvahost/NetlistEdit.h"

#include "quorvahost/CommandPlace.h"
#include "quorvahost/LineNumbers.h"
#include "quorvahost/SpiceColours.h"
#include "quorvahost/SpiceHighlighter.h"

#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QFontDatabase>
#include <QMimeData>
#include <QTextBlock>
#include <QWheelEvent>
#include <algorithm>

namespace quorvawiz::host
{
namespace
{
constexpr int kLeastZoom = -6;
constexpr int kMostZoom = 30;
constexpr int kLeastPointSize = 5;

TCommandPlace PlaceAt(const QTextDocument& rDocument, const QTextCursor& rCursor)
{
    const QTextBlock block = rDocument.findBlock(rCursor.selectionEnd());
    const TLines lines{rDocument.blockCount(),
                       [&](int nLine) { return rDocument.findBlockByNumber(nLine).text(); }};
    return gPlaceOfCommand(lines, {block.blockNumber(), rCursor.selectionEnd() - block.position(),
                                   !rCursor.hasSelection()});
}
} // namespace

CNetlistEdit::CNetlistEdit(QWidget* pParent)
    : QPlainTextEdit(pParent), mpLineNumbers(new CLineNumbers(*this)),
      mpHighlighter(new CSpiceHighlighter(this))
{
    setLineWrapMode(NoWrap);
    setAccessibleName(tr("Netlist"));
    connect(this, &QPlainTextEdit::blockCountChanged, this, &CNetlistEdit::UpdateMargin);
    connect(this, &QPlainTextEdit::updateRequest, mpLineNumbers, &CLineNumbers::Follow);
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &CNetlistEdit::ShowCurrentLine);
    connect(document(), &QTextDocument::contentsChanged, this, &CNetlistEdit::UpdateColoured);
    ApplyFont();
    ApplyLook();
    UpdateColoured();
}

void CNetlistEdit::LoadText(const QString& rsText)
{
    // A large text would be coloured while it is loaded, only to lose its colours.
    mpHighlighter->setDocument(nullptr);
    mbColoured = false;
    setPlainText(rsText);
    document()->setModified(false);
    UpdateColoured();
    emit ColouredChanged(mbColoured);
}

QString CNetlistEdit::Text() const
{
    // Not toPlainText, which turns no-break spaces into blanks.
    QString sText = document()->toRawText();
    return sText.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
}

void CNetlistEdit::InsertCommand(const QString& rsCommand)
{
    if (rsCommand.isEmpty())
        return;
    const TCommandPlace place = PlaceAt(*document(), textCursor());
    const QTextBlock block = document()->findBlockByNumber(place.nLine);
    const int nStart = block.position() + (place.bTakesLine ? 0 : block.length() - 1);
    const QString sInsertion = place.bTakesLine ? rsCommand : QLatin1Char('\n') + rsCommand;

    QTextCursor cursor(document());
    cursor.beginEditBlock();
    cursor.setPosition(nStart);
    // Its last character first: the document takes what is typed right behind the last thing that
    // was inserted for a part of the same step.
    cursor.insertText(sInsertion.last(1));
    cursor.setPosition(nStart);
    cursor.insertText(sInsertion.chopped(1));
    cursor.endEditBlock();
    cursor.setPosition(nStart + static_cast<int>(sInsertion.size()));
    setTextCursor(cursor);
    ensureCursorVisible();
}

void CNetlistEdit::Zoom(int nDirection)
{
    mnZoom = nDirection == 0 ? 0 : std::clamp(mnZoom + nDirection, kLeastZoom, kMostZoom);
    ApplyFont();
}

void CNetlistEdit::resizeEvent(QResizeEvent* pEvent)
{
    QPlainTextEdit::resizeEvent(pEvent);
    PlaceLineNumbers();
}

void CNetlistEdit::changeEvent(QEvent* pEvent)
{
    QPlainTextEdit::changeEvent(pEvent);
    if (pEvent->type() == QEvent::PaletteChange)
        ApplyLook();
}

void CNetlistEdit::wheelEvent(QWheelEvent* pEvent)
{
    if ((pEvent->modifiers() & Qt::ControlModifier) == 0 || pEvent->angleDelta().y() == 0)
        return QPlainTextEdit::wheelEvent(pEvent);
    Zoom(pEvent->angleDelta().y() > 0 ? 1 : -1);
    pEvent->accept();
}

void CNetlistEdit::insertFromMimeData(const QMimeData* pSource)
{
    // The base would render what comes as Markdown, and an empty clipboard is its end.
    if (pSource && pSource->hasText() && !isReadOnly())
        textCursor().insertText(pSource->text());
    ensureCursorVisible();
}

void CNetlistEdit::dragEnterEvent(QDragEnterEvent* pEvent)
{
    if (pEvent->mimeData()->hasUrls())
        pEvent->ignore();
    else
        QPlainTextEdit::dragEnterEvent(pEvent);
}

void CNetlistEdit::dragMoveEvent(QDragMoveEvent* pEvent)
{
    if (pEvent->mimeData()->hasUrls())
        pEvent->ignore();
    else
        QPlainTextEdit::dragMoveEvent(pEvent);
}

void CNetlistEdit::dropEvent(QDropEvent* pEvent)
{
    if (pEvent->mimeData()->hasUrls())
        pEvent->ignore();
    else
        QPlainTextEdit::dropEvent(pEvent);
}

void CNetlistEdit::ApplyLook()
{
    mpHighlighter->SetDark(gIsDark(palette()));
    ShowCurrentLine();
}

void CNetlistEdit::ApplyFont()
{
    QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    fixed.setPointSize(std::max(fixed.pointSize() + mnZoom, kLeastPointSize));
    setFont(fixed);
    constexpr int kTabColumns = 8;
    setTabStopDistance(kTabColumns * QFontMetricsF(fixed).horizontalAdvance(QLatin1Char(' ')));
    UpdateMargin();
}

void CNetlistEdit::ShowCurrentLine()
{
    QTextEdit::ExtraSelection line;
    line.format.setBackground(gCurrentLineColour(palette()));
    line.format.setProperty(QTextFormat::FullWidthSelection, true);
    line.cursor = textCursor();
    line.cursor.clearSelection();
    setExtraSelections({line});
    mpLineNumbers->update();
}

void CNetlistEdit::UpdateColoured()
{
    const bool bColoured = document()->characterCount() <= kLargestColoured;
    if (bColoured == mbColoured)
        return;
    mbColoured = bColoured;
    mpHighlighter->setDocument(bColoured ? document() : nullptr);
    emit ColouredChanged(bColoured);
}

void CNetlistEdit::UpdateMargin()
{
    setViewportMargins(mpLineNumbers->NeededWidth(), 0, 0, 0);
    PlaceLineNumbers();
    mpLineNumbers->update();
}

void CNetlistEdit::PlaceLineNumbers()
{
    const QRect inside = contentsRect();
    mpLineNumbers->setGeometry(
        QRect(inside.topLeft(), QSize(mpLineNumbers->NeededWidth(), inside.height())));
}

} // namespace quorvawiz::host
