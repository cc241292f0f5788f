#include "platform/qt/Binders.h"
#include "platform/qt/FieldName.h"
#include "platform/qt/ItemListModel.h"
#include "platform/qt/RowHeight.h"
#include "platform/qt/RowSelection.h"
#include "platform/qt/WidgetPeer.h"
#include "platform/ui/ListBox.h"

#include <QListView>

namespace
{
class CListPeer : public TWidgetPeer<CListBox, QListView>
{
public:
    CListPeer(CModelEntry& rEntry, CWnd& rWnd)
        : TWidgetPeer(rEntry, rWnd, new QListView(gParentWidgetOf(rWnd))),
          mpItems(new CItemListModel([this] { return Model().GetItems(); }, &Widget()))
    {
        Widget().setModel(mpItems);
        Widget().setUniformItemSizes(true);
        Widget().setEditTriggers(QAbstractItemView::NoEditTriggers);
        Widget().setFocusPolicy(Qt::StrongFocus);
        gSpaceRows(Widget());
        gNameField(rWnd, Widget());
        gOnRowMoved(Widget(), *this, [this] { OnMoved(); });
        connect(&Widget(), &QListView::doubleClicked, this,
                [this] { Act([this] { Model().UserDoubleClick(); }); });
    }

    ~CListPeer() override
    {
        if (mpItems)
            mpItems->Detach();
    }

protected:
    void PullItems() override { mpItems->Renew(); }
    void PullSelection() override { gSelectRow(Widget(), Model().GetCurSel()); }

private:
    void OnMoved()
    {
        if (IsWriting())
            return;
        const int nRow = gSelectedRowOf(Widget());
        if (nRow >= 0 && nRow != Model().GetCurSel())
            Act([this, nRow] { Model().UserSelect(nRow); });
        else
            PullSoon();
    }

    QPointer<CItemListModel> mpItems;
};
} // namespace

std::unique_ptr<CQtPeer> gBindList(CModelEntry& rEntry, CWnd& rWnd)
{
    return std::make_unique<CListPeer>(rEntry, rWnd);
}
