#pragma once

#include "platform/ui/ListCtrl.h"

/// A colour as 0x00BBGGRR, the platform's order.
using COLORREF = std::uint32_t;

/// No colour of its own: the desktop's, for a selected cell or another.
inline constexpr COLORREF CLR_DEFAULT = 0xFF000000;

/// How one cell is to be drawn.
struct TCellDrawing {
    CString sText;
    COLORREF nColor = CLR_DEFAULT; ///< of the text
};

/// A grid: a table whose cells have colours of their own, and in which a class decides what can be
/// selected and edited. The operations from `DrawItem` on keep their order.
class CTableCtrl : public CListCtrl
{
public:
    CTableCtrl() = default;

    /// What a desktop draws in a cell. `bSelected`: the cell's row is the selected one; `bFocused`:
    /// the table has the keyboard, too. The base: the cell's text in `GetCellColor`.
    virtual TCellDrawing DrawItem(int nRow, int nColumn, bool bSelected, bool bFocused) const;

    /// The colour of a cell's text. The flags are those of `DrawItem`. The base: `CLR_DEFAULT`.
    virtual COLORREF GetCellColor(int nRow, int nColumn, bool bSelected, bool bFocused) const;

    /// Whether the user can edit the cell. The base: every cell.
    virtual bool IsCellEditable(int nRow, int nColumn) const;

    /// Whether `SelectCell` can select the cell. The base: every cell.
    virtual bool IsCellSelectable(int nRow, int nColumn) const;

    /// Takes a text that the user has edited. Result: whether the cell takes it. The base writes it
    /// to the cell, if it is editable.
    virtual bool OnCommitCell(int nRow, int nColumn, const CString& rsText);

    /// Whether an edit is given up, and not committed, when `pControl` gets the keyboard. The base:
    /// the button IDCANCEL.
    virtual bool IsCancelControl(const CWnd* pControl) const;

    /// Another row is selected, or none. The base does nothing.
    virtual void AfterSelectionChanged();

    /// Selects the row of a cell and brings it into view. False when there is no such cell or it
    /// isn't selectable.
    bool SelectCell(int nRow, int nColumn);

    /// True when a selection is that of a whole row, whatever cell the user points to.
    bool SelectsWholeRows() const { return mbWholeRows; }

protected:
    bool mbWholeRows = false;

private:
    void OnSelectionChanged() override;
};
