#pragma once

#include "platform/ui/ItemList.h"
#include "platform/ui/Wnd.h"

/// A row of tabs, one of them selected.
class CTabCtrl : public CWnd
{
public:
    int GetItemCount() const { return mItems.GetCount(); }
    std::span<const CString> GetItems() const { return mItems.GetAll(); }
    /// Adds a tab at the end; the first one becomes the selected one. Result: its index.
    int AddItem(const CString& rsText);

    /// False when there is no such tab.
    bool SetItemText(int nIndex, const CString& rsText);

    int GetCurSel() const { return mItems.GetSelection(); }
    /// Selects a tab. Notifies nobody. Result: the index, or -1.
    int SetCurSel(int nIndex);

    /// The user selects a tab; notifies `SelChange`.
    EUserResult UserSelect(int nIndex);

    bool IsTabStop() const override;

protected:
    bool AcceptsKind(EControl kind) const override;
    void OnDestroyed() override;

private:
    CItemList mItems;
};
