#pragma once

#include "platform/ui/ItemList.h"
#include "platform/ui/Wnd.h"

/// A drop-down list; one kind lets the user type a text beside choosing an entry.
class CComboBox : public CWnd
{
public:
    int GetCount() const { return mItems.GetCount(); }
    /// The entry; empty when there is no such index.
    CString GetLBText(int nIndex) const { return mItems.GetText(nIndex); }
    std::span<const CString> GetItems() const { return mItems.GetAll(); }

    /// Adds an entry at the end, or at its alphabetical place when the box is sorted.
    int AddString(const CString& rsText);
    /// Inserts an entry, -1 at the end. Result: its index, or -1.
    int InsertString(int nIndex, const CString& rsText);
    /// Removes all entries and the text.
    void ResetContent();

    int GetCurSel() const { return mItems.GetSelection(); }
    /// Selects an entry, and its text; an index beyond the last clears the selection and the text.
    /// Notifies nobody. Result: the index, or -1.
    int SetCurSel(int nIndex);
    /// The first entry after `nAfter` that equals the text, letter case put aside; -1 when none.
    int FindStringExact(int nAfter, const CString& rsText) const;

    /// Selects the entry that equals the text to the letter. Without one, a box with typing takes
    /// the text as it stands and has no selection, any other box stays as it is. Notifies nobody.
    void SelectText(const CString& rsText);
    /// The platform's text of a box without typing can't be set; of the other kind it can.
    void SetWindowText(const CString& rsText) override;

    bool CanType() const { return GetKind() == EControl::DropDown; }

    /// The user completes a choice: `SelChange` and `SelEndOk`, also for the entry that was
    /// selected.
    EUserResult UserSelect(int nIndex);
    /// The user moves the mark in the open list: `SelChange` only.
    EUserResult UserMoveSelection(int nIndex);
    /// The user replaces the typed text: `EditChange` once.
    EUserResult UserType(const CString& rsText);

    bool IsTabStop() const override;

protected:
    bool AcceptsKind(EControl kind) const override;
    void OnCreated(const TControlRow& rRow) override;
    void OnDestroyed() override;

private:
    CItemList mItems;
};
