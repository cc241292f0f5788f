#include "platform/qt/Binders.h"
#include "platform/qt/FieldName.h"
#include "platform/qt/RowHeight.h"
#include "platform/qt/RowSelection.h"
#include "platform/qt/TableModel.h"
#include "platform/qt/WidgetPeer.h"
#include "platform/ui/ListCtrl.h"

#include <QHeaderView>
#include <QTableView>
#include <vector>

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
        rView.setModel(mpRows);
        rView.setEditTriggers(QAbstractItemView::NoEditTriggers);
        rView.setTabKeyNavigation(false);
        rView.setWordWrap(false);
        rView.setCornerButtonEnabled(false);
        rView.setFocusPolicy(Qt::StrongFocus);
        rView.verticalHeader()->hide();
        // Rows of one height are what keeps a table of a million of them quick.
        rView.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        rView.horizontalHeader()->setHighlightSections(false);
        gNameField(rWnd, rView);
        gOnRowMoved(rView, *this, [this] { OnMoved(); });
        connect(&rView, &QTableView::doubleClicked, this,
                [this] { Act([this] { Model().UserDoubleClick(); }); });
    }

    ~CTablePeer() override
    {
        if (mpRows)
            mpRows->Detach();
    }

protected:
    void PullItems() override
    {
        mpRows->Renew();
        mWidths.clear();
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
    /// A column that the user has drawn to another width keeps it until the model sets a new one.
    void PullWidths()
    {
        const auto& rColumns = Model().GetColumns();
        mWidths.resize(rColumns.size(), -1);
        for (std::size_t n = 0; n < rColumns.size(); ++n) {
            if (mWidths[n] != rColumns[n].nWidth)
                Widget().setColumnWidth(static_cast<int>(n), rColumns[n].nWidth);
            mWidths[n] = rColumns[n].nWidth;
        }
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
    std::vector<int> mWidths; ///< as the model had them last
};
} // namespace

std::unique_ptr<CQtPeer> gBindTable(CModelEntry& rEntry, CWnd& rWnd)
{
    return std::make_unique<CTablePeer>(rEntry, rWnd);
}
