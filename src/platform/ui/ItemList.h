#pragma once

#include "platform/base/StringA.h"

#include <span>
#include <string_view>
#include <vector>

/// The entries of a combo or list box with the index of the selected one; -1 is none.
class CItemList
{
public:
    int GetCount() const { return static_cast<int>(mItems.size()); }
    bool IsIndex(int nIndex) const { return nIndex >= 0 && nIndex < GetCount(); }
    /// The entry; empty when there is no such index.
    CString GetText(int nIndex) const;
    std::span<const CString> GetAll() const { return mItems; }

    /// False when there is no such index.
    bool SetText(int nIndex, const CString& rsText);

    int GetSelection() const { return mnSelection; }
    /// An index that isn't one clears the selection. Result: false in that case.
    bool Select(int nIndex);

    /// Inserts an entry before `nIndex`, -1 at the end; the selected entry stays selected.
    /// Result: where it stands, or -1 when `nIndex` is beyond the end.
    int Insert(int nIndex, const CString& rsText);
    /// Inserts an entry at its place in the order of the alphabet, letter case put aside.
    int InsertSorted(const CString& rsText);
    /// Removes an entry; a removed selection is gone. False when there is no such index.
    bool Remove(int nIndex);
    void Clear();

    /// The first entry that equals the text, letter case put aside, after index `nAfter` and round
    /// the end; -1 when there is none.
    int FindExact(int nAfter, std::string_view sText) const;

private:
    std::vector<CString> mItems;
    int mnSelection = -1;
};
