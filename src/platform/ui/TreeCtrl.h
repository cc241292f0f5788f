#pragma once

#include "platform/ui/Wnd.h"

#include <cstdint>

struct TTreeItem;

/// A node of a tree; null is none. Valid until the node is deleted.
using HTREEITEM = TTreeItem*;

/// A tree of nodes with a text and a 32-bit datum each. One node, or none, is selected.
class CTreeCtrl : public CWnd
{
public:
    CTreeCtrl();
    ~CTreeCtrl() override;

    /// Adds a node as the last child of `hParent`; null: as the last root node.
    /// Result: the node, or null without a window.
    HTREEITEM InsertItem(const CString& rsText, HTREEITEM hParent = nullptr);
    void DeleteAllItems();

    HTREEITEM GetRootItem() const;
    HTREEITEM GetChildItem(HTREEITEM hItem) const;
    HTREEITEM GetNextSiblingItem(HTREEITEM hItem) const;
    HTREEITEM GetParentItem(HTREEITEM hItem) const;

    CString GetItemText(HTREEITEM hItem) const;
    std::int32_t GetItemData(HTREEITEM hItem) const;
    void SetItemData(HTREEITEM hItem, std::int32_t nData);

    HTREEITEM GetSelectedItem() const { return mpSelected; }
    /// Selects a node and opens its parents; notifies `SelChange` like a click. A node that is
    /// selected already notifies nothing.
    void SelectItem(HTREEITEM hItem);
    bool IsExpanded(HTREEITEM hItem) const;
    /// Opens or closes a node. Closing over the selection moves it to the closed node.
    void Expand(HTREEITEM hItem, bool bExpand);

    /// The user clicks a node.
    EUserResult UserSelect(HTREEITEM hItem);
    /// The user opens or closes a node.
    EUserResult UserExpand(HTREEITEM hItem, bool bExpand);
    /// The visible node `nSteps` lines below the selected one (above when negative), cut at the
    /// ends; the first node when none is selected. Null for an empty tree.
    HTREEITEM GetVisibleNeighbour(int nSteps) const;

    bool IsTabStop() const override;

protected:
    bool AcceptsKind(EControl kind) const override;
    void OnDestroyed() override;

private:
    std::unique_ptr<TTreeItem> mpRoot; ///< holds the root nodes; not a node itself
    HTREEITEM mpSelected = nullptr;
};
