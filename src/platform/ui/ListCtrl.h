#pragma once

#include "platform/ui/Wnd.h"

#include <cstdint>
#include <functional>
#include <optional>

inline constexpr unsigned LVS_EX_GRIDLINES = 0x01;
inline constexpr unsigned LVS_EX_FULLROWSELECT = 0x20;

/// One column of a table.
struct TListColumn {
    CString sHeading;
    int nWidth = 0;    ///< in pixels
    int nFormat = 0;   ///< 0: left aligned
    int nSubItem = -1; ///< the platform's own number
};

/// Rows that a table shows but doesn't keep: it asks for what it needs when it needs it, so that a
/// million rows cost it nothing. Rows and columns are those of the table.
struct TListRows {
    int nCount = 0;
    std::function<CString(int nRow, int nColumn)> text; ///< of a cell
    std::function<std::intptr_t(int nRow)> data;        ///< the row's own number
};

/// A table of text cells. One row, or none, is selected.
class CListCtrl : public CWnd
{
public:
    /// Adds a column before `nColumn`, cut at the end. `nFormat` 0: left aligned, the only one in
    /// use; `nSubItem` is the platform's and -1. Result: the column's index, or -1 without a
    /// window.
    int InsertColumn(int nColumn, const CString& rsHeading, int nFormat, int nWidth, int nSubItem);
    int GetColumnCount() const { return static_cast<int>(mColumns.size()); }
    const std::vector<TListColumn>& GetColumns() const { return mColumns; }
    void SetColumnWidth(int nColumn, int nWidth);

    /// Adds a row before `nRow`, cut at the end, with the text of its first cell; the others are
    /// empty. Result: its index, or -1 without a window.
    int InsertItem(int nRow, const CString& rsText);
    void DeleteAllItems();
    int GetItemCount() const;

    /// Shows borrowed rows instead of rows of its own, which end. They stay as they are until the
    /// window ends, all are deleted or others are shown; meanwhile none is inserted or written.
    void ShowRows(TListRows rows);

    /// The text of a cell; empty when there is no such cell.
    CString GetItemText(int nRow, int nColumn) const;
    /// False when there is no such cell.
    bool SetItemText(int nRow, int nColumn, const CString& rsText);
    /// The row's own number, 0 at first and where there is no such row.
    std::intptr_t GetItemData(int nRow) const;
    bool SetItemData(int nRow, std::intptr_t nData);

    unsigned GetExtendedStyle() const { return mnExtendedStyle; }
    void SetExtendedStyle(unsigned nStyle);

    /// The selected row, or -1.
    int GetSelectedRow() const { return mnSelected; }
    /// Selects a row, -1 none; notifies `SelChange` on a change. False when there is no such row.
    bool SelectRow(int nRow);

    /// The user selects a row.
    EUserResult UserSelect(int nRow);
    /// The user draws a column to another width, in pixels.
    EUserResult UserSizeColumn(int nColumn, int nWidth);
    /// The user double-clicks the selected row; notifies `DoubleClicked`. Without a selection there
    /// is none to click: `Invalid`.
    EUserResult UserDoubleClick();

    bool IsTabStop() const override;

protected:
    bool AcceptsKind(EControl kind) const override;
    void OnDestroyed() override;
    /// Another row is selected, or none; the parent is told afterwards.
    virtual void OnSelectionChanged();
    bool IsRow(int nRow) const { return nRow >= 0 && nRow < GetItemCount(); }
    bool IsColumn(int nColumn) const { return nColumn >= 0 && nColumn < GetColumnCount(); }

private:
    struct TRow {
        std::vector<CString> cells;
        std::intptr_t nData = 0;
    };
    std::vector<TListColumn> mColumns;
    std::vector<TRow> mRows;
    std::optional<TListRows> mBorrowedRows; ///< instead of mRows
    unsigned mnExtendedStyle = 0;
    int mnSelected = -1;
};
