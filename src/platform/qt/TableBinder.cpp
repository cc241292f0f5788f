#include "platform/qt/Binders.h"
#include "platform/qt/CellPainter.h"
#include "platform/qt/FieldName.h"
#include "platform/qt/QtText.h"
#include "platform/qt/RowHeight.h"
#include "platform/qt/RowSelection.h"
#include "platform/qt/TableModel.h"
#include "platform/qt/WidgetPeer.h"
#include "platform/ui/ListCtrl.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTableView>

namespace
{
class CTablePeer : public TWidgetPeer<CListCtrl, QTableView>
{
public:
    CTablePeer(CModelEntry& rEntry, CWnd& rWnd)
        : TWidgetPeer(rEntry, rWnd, new QTableView(gParentWidgetOf(rWnd))),
          mpRows(new CTableModel(Model(), &Widget()))
    {
        QTableView& rView = Widget();
        // Rows of one height are what keeps a table of a million of them quick.
        rView.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        rView.verticalHeader()->hide();
        rView.setModel(mpRows);
        gPaintCells(rView, Model());
        rView.setEditTriggers(QAbstractItemView::NoEditTriggers);
        rView.setTabKeyNavigation(false);
        rView.setWordWrap(false);
        rView.setCornerButtonEnabled(false);
        rView.setFocusPolicy(Qt::StrongFocus);
        rView.horizontalHeader()->setHighlightSections(false);
        gNameField(rWnd, rView);
        gOnRowMoved(rView, *this, [this] { OnMoved(); });
        connect(rView.horizontalHeader(), &QHeaderView::sectionResized, this,
                [this](int nColumn, int, int nWidth) { OnColumnDrawn(nColumn, nWidth); });
        mpViewport = rView.viewport();
        mpViewport->installEventFilter(this);
    }

    ~CTablePeer() override
    {
        if (mpRows)
            mpRows->Detach();
    }

    /// Inside the frame, below the headings, and beside the scroll bar if the rows need one.
    std::optional<TSize> GetClientPixels() const override
    {
        if (!GetWidget())
            return std::nullopt;
        const QTableView& rView = Widget();
        const int nFrame = 2 * rView.frameWidth();
        const int nHeight = rView.height() - nFrame - rView.horizontalHeader()->sizeHint().height();
        const int nBar = rView.verticalHeader()->length() > nHeight
                             ? rView.verticalScrollBar()->sizeHint().width()
                             : 0;
        return TSize{std::max(0, rView.width() - nFrame - nBar), std::max(0, nHeight)};
    }

    bool eventFilter(QObject* pObject, QEvent* pEvent) override
    {
        if (pObject == mpViewport)
            return pEvent->type() == QEvent::MouseButtonDblClick &&
                   TakeDoubleClick(static_cast<QMouseEvent&>(*pEvent));
        if (CQtPeer::eventFilter(pObject, pEvent))
            return true;
        return pEvent->type() == QEvent::KeyPress &&
               TakeTableKey(static_cast<const QKeyEvent&>(*pEvent));
    }

protected:
    void PullItems() override
    {
        mpRows->Renew();
        PullWidths();
        Widget().setShowGrid(Model().GetExtendedStyle() & LVS_EX_GRIDLINES);
    }

    void PullSelection() override { gSelectRow(Widget(), Model().GetSelectedRow()); }

    void PullPlace() override
    {
        CQtPeer::PullPlace();
        Widget().verticalHeader()->setDefaultSectionSize(gRowHeight(Widget().fontMetrics()));
        PullWidths();
    }

private:
    void PullWidths()
    {
        const auto& rColumns = Model().GetColumns();
        for (int n = 0; n < Model().GetColumnCount(); ++n)
            if (const int nWidth = rColumns[static_cast<std::size_t>(n)].nWidth;
                Widget().columnWidth(n) != nWidth)
                Widget().setColumnWidth(n, nWidth);
    }

    void OnColumnDrawn(int nColumn, int nWidth)
    {
        if (!IsWriting())
            Act([this, nColumn, nWidth] { Model().UserSizeColumn(nColumn, nWidth); });
    }

    /// Beside the rows the selected one is meant.
    bool TakeDoubleClick(const QMouseEvent& rEvent)
    {
        if (rEvent.button() != Qt::LeftButton)
            return false;
        const QModelIndex clicked = Widget().indexAt(rEvent.pos());
        Act([this, nRow = clicked.isValid() ? clicked.row() : Model().GetSelectedRow()] {
            if (Model().UserSelect(nRow) == EUserResult::Done)
                Model().UserDoubleClick();
        });
        return true;
    }

    bool TakeTableKey(const QKeyEvent& rEvent)
    {
        if (rEvent.matches(QKeySequence::Copy)) {
            CopySelectedRow();
            return true;
        }
        // With whole rows selected, these lead through the rows, not through the cells of one.
        const bool bHome = rEvent.key() == Qt::Key_Home;
        const bool bEnd = rEvent.key() == Qt::Key_End;
        if ((!bHome && !bEnd) || Model().GetItemCount() == 0)
            return false;
        Act([this, bHome] { Model().UserSelect(bHome ? 0 : Model().GetItemCount() - 1); });
        return true;
    }

    void CopySelectedRow() const
    {
        const int nRow = Model().GetSelectedRow();
        if (nRow < 0)
            return;
        QStringList cells;
        for (int n = 0; n < Model().GetColumnCount(); ++n)
            cells += gToQString(Model().GetItemText(nRow, n));
        QGuiApplication::clipboard()->setText(cells.join(u'\t'));
    }

    void OnMoved()
    {
        if (IsWriting())
            return;
        const int nRow = gSelectedRowOf(Widget());
        if (nRow >= 0 && nRow != Model().GetSelectedRow())
            Act([this, nRow] { Model().UserSelect(nRow); });
        else
            PullSoon();
    }

    QPointer<CTableModel> mpRows;
    QWidget* mpViewport = nullptr; ///< known apart: it sends events while its view is being deleted
};
} // namespace

std::unique_ptr<CQtPeer> gBindTable(CModelEntry& rEntry, CWnd& rWnd)
{
    return std::make_unique<CTablePeer>(rEntry, rWnd);
}
