#include "platform/qt/Binders.h"
#include "platform/qt/FieldName.h"
#include "platform/qt/QtText.h"
#include "platform/qt/RowHeight.h"
#include "platform/qt/WidgetPeer.h"
#include "platform/ui/TreeCtrl.h"

#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

namespace
{
HTREEITEM NodeOf(const QTreeWidgetItem* pItem)
{
    return pItem ? static_cast<HTREEITEM>(pItem->data(0, Qt::UserRole).value<void*>()) : nullptr;
}

class CTreePeer : public TWidgetPeer<CTreeCtrl, QTreeWidget>
{
public:
    CTreePeer(CModelEntry& rEntry, CWnd& rWnd)
        : TWidgetPeer(rEntry, rWnd, new QTreeWidget(gParentWidgetOf(rWnd)))
    {
        Widget().setHeaderHidden(true);
        // Lines from node to node are the style's business, and few styles draw any.
        Widget().setRootIsDecorated(true);
        Widget().setColumnCount(1);
        Widget().setUniformRowHeights(true);
        Widget().setSelectionMode(QAbstractItemView::SingleSelection);
        Widget().setFocusPolicy(Qt::StrongFocus);
        gSpaceRows(Widget());
        gNameField(rWnd, Widget());
        // Less than the style's, so that the longest label of the wizard's tree stands whole.
        Widget().setIndentation(14);
        connect(&Widget(), &QTreeWidget::itemSelectionChanged, this, [this] { OnMoved(); });
        connect(&Widget(), &QTreeWidget::currentItemChanged, this, [this] { OnMoved(); });
        connect(&Widget(), &QTreeWidget::itemExpanded, this,
                [this](QTreeWidgetItem* pItem) { OnExpanded(pItem, true); });
        connect(&Widget(), &QTreeWidget::itemCollapsed, this,
                [this](QTreeWidgetItem* pItem) { OnExpanded(pItem, false); });
    }

protected:
    void PullItems() override
    {
        PullChildren(*Widget().invisibleRootItem(), Model().GetRootItem());
    }

    void PullExpansion() override
    {
        for (QTreeWidgetItemIterator item(&Widget()); *item; ++item)
            (*item)->setExpanded(Model().IsExpanded(NodeOf(*item)));
    }

    void PullSelection() override
    {
        const HTREEITEM hSelected = Model().GetSelectedItem();
        const auto selected = Widget().selectedItems();
        if (NodeOf(Widget().currentItem()) == hSelected &&
            NodeOf(selected.isEmpty() ? nullptr : selected.front()) == hSelected)
            return;
        if (QTreeWidgetItem* const pItem = ItemOf(hSelected))
            Widget().setCurrentItem(pItem, 0, QItemSelectionModel::ClearAndSelect);
        else
            Widget().selectionModel()->clear();
    }

private:
    void PullChildren(QTreeWidgetItem& rParent, HTREEITEM hFirst)
    {
        int nAt = 0;
        for (HTREEITEM hNode = hFirst; hNode; hNode = Model().GetNextSiblingItem(hNode), ++nAt) {
            if (nAt == rParent.childCount())
                rParent.addChild(new QTreeWidgetItem);
            QTreeWidgetItem& rItem = *rParent.child(nAt);
            if (NodeOf(&rItem) != hNode)
                rItem.setData(0, Qt::UserRole, QVariant::fromValue(static_cast<void*>(hNode)));
            if (const QString sText = gToQString(Model().GetItemText(hNode));
                rItem.text(0) != sText)
                rItem.setText(0, sText);
            PullChildren(rItem, Model().GetChildItem(hNode));
        }
        while (rParent.childCount() > nAt)
            delete rParent.child(nAt);
    }

    QTreeWidgetItem* ItemOf(HTREEITEM hNode) const
    {
        for (QTreeWidgetItemIterator item(&Widget()); *item && hNode; ++item)
            if (NodeOf(*item) == hNode)
                return *item;
        return nullptr;
    }

    void OnMoved()
    {
        if (IsWriting())
            return;
        const auto selected = Widget().selectedItems();
        const HTREEITEM hNode = NodeOf(selected.isEmpty() ? nullptr : selected.front());
        if (hNode && hNode != Model().GetSelectedItem())
            Act([this, hNode] { Model().UserSelect(hNode); });
        else
            PullSoon();
    }

    void OnExpanded(const QTreeWidgetItem* pItem, bool bExpand)
    {
        const HTREEITEM hNode = NodeOf(pItem);
        if (!IsWriting() && Model().IsExpanded(hNode) != bExpand)
            Act([this, hNode, bExpand] { Model().UserExpand(hNode, bExpand); });
    }
};
} // namespace

std::unique_ptr<CQtPeer> gBindTree(CModelEntry& rEntry, CWnd& rWnd)
{
    return std::make_unique<CTreePeer>(rEntry, rWnd);
}
