#pragma once

#include "platform/base/StringA.h"

class CListBox;
class CWnd;

/// What differs between the lists of two pages. A text without the translation marker is shown in
/// English in every language.
struct TListEditingParts {
    int nDeleteButton;
    int nClearButton;
    const char* pAlreadyThere; ///< the message of an entry that is refused
    const char* pDeleteQuestion;
    const char* pClearQuestion;
};

/// A page's list of entries with its buttons Add, Delete and Clear. The newest entry stands on top.
class ListEditing
{
public:
    /// `rPage`, `rList` and `rParts` live longer than this.
    ListEditing(CWnd& rPage, CListBox& rList, const TListEditingParts& rParts);

    /// Puts an entry on top, selects it, and enables Delete and Clear. An entry that is there
    /// already, letter case put aside, is refused with a message; then nothing changes.
    /// Result: whether it was added. `rsMessage`: the page's message string, takes the message
    /// first; it may be the string that the entry was put together in.
    bool Add(const CString& rsEntry, CString& rsMessage);
    /// The same for a page without a message string.
    bool Add(const CString& rsEntry);
    /// Asks, and on yes removes the selected entry and selects the one on top; without entries left
    /// Delete and Clear are disabled. Nothing happens without a selection.
    void Delete();
    /// Asks, and on yes empties the list and disables Delete and Clear. Nothing happens without a
    /// selection, even if there are entries.
    void Clear();

    /// The entries in the order in which they were added, each behind `rsSeparator`.
    CString OldestFirst(const CString& rsSeparator) const;

private:
    /// Puts the entry on top, unless it is there already. Result: whether it did.
    bool Insert(const CString& rsEntry);
    void EnableButtons(bool bEnable);

    CWnd& mrPage;
    CListBox& mrList;
    const TListEditingParts& mrParts;
};
