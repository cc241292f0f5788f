#pragma once

#include "platform/ui/ItemList.h"
#include "platform/ui/Wnd.h"

/// A list of entries with one selection.
class CListBox : public CWnd
{
public:
    int GetCount() const { return mItems.GetCount(); }
    /// The entry; empty when there is no such index.
    CString GetText(int nIndex) const { return mItems.GetText(nIndex); }
    std::span<const CString> GetItems() const { return mItems.GetAll(); }

    /// Adds an entry at the end, or at its alphabetical place when the box is sorted.
    int AddString(const CString& rsText);
    /// Inserts an entry, -1 at the end. Result: its index, or -1.
    int InsertString(int nIndex, const CString& rsText);
    /// Removes an entry. Result: how many remain, or -1 when there is no such index.
    int DeleteString(int nIndex);
    void ResetContent();

    int GetCurSel() const { return mItems.GetSelection(); }
    /// Selects an entry; an index that isn't one clears the selection. Notifies nobody.
    /// Result: the index, or -1.
    int SetCurSel(int nIndex);
    /// LB_FINDSTRINGEXACT: the first entry after `nAfter` that equals the text, letter case put
    /// aside; -1 when none.
    int FindStringExact(int nAfter, const CString& rsText) const;

    /// The user selects an entry, or with -1 takes the selection away; notifies `SelChange`.
    EUserResult UserSelect(int nIndex);
    /// The user double-clicks the selected entry; notifies `DoubleClicked`. Without a selection
    /// there is none to click: `Invalid`.
    EUserResult UserDoubleClick();

    bool IsTabStop() const override;

protected:
    bool AcceptsKind(EControl kind) const override;
    void OnCreated(const TControlRow& rRow) override;
    void OnDestroyed() override;

private:
    CItemList mItems;
};
