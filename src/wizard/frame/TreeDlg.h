#pragma once

#include "platform/ui/Dialog.h"
#include "platform/ui/TreeCtrl.h"
#include "wizard/frame/LayerWnd.h"
#include "wizard/frame/TreeSelectPage.h"

#include <list>

namespace quorvawiz
{
class QuorvaCommandWizardTarget;
}

/// A dialog with a tree on the left and the pane of the selected node on the right. "&Insert
/// Command" asks the pane for a text and hands it to the target. What the panes are about is the
/// business of the class that fills the tree.
class CTreeDlg : public CDialog
{
public:
    /// `pParent` (may be null) owns the modal run; `pTarget` receives the texts, is not owned, and
    /// is tested at the first insertion only.
    CTreeDlg(CWnd* pParent, quorvawiz::QuorvaCommandWizardTarget* pTarget);

    bool PreTranslateMessage(const TMsg& rMsg) override;
    bool OnInitDialog() override;

    /// The text of the last successful `BuildCommand`, or what a failed one left there.
    const CString& GetCommand() const { return msCommand; }
    const CLayerWnd& GetLayers() const { return mLayers; }
    const CTreeCtrl& GetTree() const { return mTree; }
    /// All labels in the order of insertion, kept as long as the dialog lives.
    const std::list<CString>& GetLabels() const { return mLabels; }

protected:
    TMessageMap GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pDX) override;
    void OnOK() override;

    /// Adds a root node at the end with its pane.
    /// Result: its place among the root nodes, or -1 if it can't be found again.
    int AddCategory(const CString& rsLabel, CWnd* pPane);
    /// Adds a node at the end of a category, given by its place, with its pane.
    /// Result: its place in the category, or -1 if there is no such category or the node can't be
    /// found again.
    int AddPage(int nCategory, const CString& rsLabel, CWnd* pPane);
    /// Adds a root node that has no pane. Result: as `AddCategory`.
    int AddCategoryWithoutPane(const CString& rsLabel);
    /// Selects the leaf at a place of a category and shows its pane.
    /// False when there is no such leaf; then nothing changes.
    bool SelectLeaf(int nCategory, int nPage);
    /// Enables or disables "&Insert Command".
    void EnableInsert(bool bEnable);

private:
    void OnTreeSelectionChanged();
    LRESULT OnKeyDown(WPARAM wParam, LPARAM lParam);
    LRESULT OnNextDlgCtl(WPARAM wParam, LPARAM lParam);
    LRESULT OnQueryDragIcon(WPARAM wParam, LPARAM lParam);

    int AddNode(HTREEITEM hParent, std::int32_t nData);
    HTREEITEM FirstChildOf(HTREEITEM hParent) const;
    HTREEITEM NodeAt(HTREEITEM hParent, LPARAM nPlace) const;
    bool SelectByPosition(HTREEITEM hParent, LPARAM nPlace);

    CString msCommand;
    CTreeCtrl mTree;
    HICON mhIcon = nullptr; // kept: never set, the dialog has no minimise box
    CLayerWnd mLayers;
    std::list<CString> mLabels;
    quorvawiz::QuorvaCommandWizardTarget* mpTarget;

protected:
    // The one operation that this class adds; it stands behind all inherited ones.

    /// Fills the tree with `AddCategory` and `AddPage`.
    virtual void BuildTree() = 0;
};
