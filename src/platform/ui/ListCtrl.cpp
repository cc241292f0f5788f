#include "platform/ui/ListCtrl.h"

#include <algorithm>
#include <utility>

int CListCtrl::InsertColumn(int nColumn, const CString& rsHeading, int nFormat, int nWidth,
                            int nSubItem)
{
    if (!IsCreated())
        return -1;
    const int nAt = std::clamp(nColumn, 0, GetColumnCount());
    mColumns.insert(mColumns.begin() + nAt, {rsHeading, nWidth, nFormat, nSubItem});
    for (TRow& rRow : mRows)
        if (static_cast<std::size_t>(nAt) < rRow.cells.size())
            rRow.cells.insert(rRow.cells.begin() + nAt, CString());
    Announce(EAspect::Items);
    return nAt;
}

void CListCtrl::SetColumnWidth(int nColumn, int nWidth)
{
    if (!IsColumn(nColumn))
        return;
    mColumns[static_cast<std::size_t>(nColumn)].nWidth = nWidth;
    Announce(EAspect::Place);
}

int CListCtrl::InsertItem(int nRow, const CString& rsText)
{
    if (!IsCreated() || mBorrowedRows)
        return -1;
    const int nAt = std::clamp(nRow, 0, GetItemCount());
    mRows.insert(mRows.begin() + nAt, TRow{{rsText}, 0});
    if (mnSelected >= nAt)
        ++mnSelected;
    Announce(EAspect::Items);
    return nAt;
}

int CListCtrl::GetItemCount() const
{
    return mBorrowedRows ? mBorrowedRows->nCount : static_cast<int>(mRows.size());
}

void CListCtrl::ShowRows(TListRows rows)
{
    if (!IsCreated())
        return;
    DeleteAllItems();
    mBorrowedRows = std::move(rows);
    Announce(EAspect::Items);
}

void CListCtrl::DeleteAllItems()
{
    mBorrowedRows.reset();
    mRows.clear();
    mnSelected = -1;
    Announce(EAspect::Items);
}

CString CListCtrl::GetItemText(int nRow, int nColumn) const
{
    if (!IsRow(nRow) || nColumn < 0)
        return {};
    if (mBorrowedRows)
        return IsColumn(nColumn) ? mBorrowedRows->text(nRow, nColumn) : CString();
    const auto& rCells = mRows[static_cast<std::size_t>(nRow)].cells;
    const auto nCell = static_cast<std::size_t>(nColumn);
    return nCell < rCells.size() ? rCells[nCell] : CString();
}

bool CListCtrl::SetItemText(int nRow, int nColumn, const CString& rsText)
{
    if (mBorrowedRows || !IsRow(nRow) || !IsColumn(nColumn))
        return false;
    auto& rCells = mRows[static_cast<std::size_t>(nRow)].cells;
    const auto nCell = static_cast<std::size_t>(nColumn);
    if (nCell >= rCells.size())
        rCells.resize(nCell + 1);
    rCells[nCell] = rsText;
    Announce(EAspect::Items);
    return true;
}

std::intptr_t CListCtrl::GetItemData(int nRow) const
{
    if (!IsRow(nRow))
        return 0;
    return mBorrowedRows ? mBorrowedRows->data(nRow) : mRows[static_cast<std::size_t>(nRow)].nData;
}

bool CListCtrl::SetItemData(int nRow, std::intptr_t nData)
{
    if (mBorrowedRows || !IsRow(nRow))
        return false;
    mRows[static_cast<std::size_t>(nRow)].nData = nData;
    return true;
}

void CListCtrl::SetExtendedStyle(unsigned nStyle)
{
    if (!IsCreated())
        return;
    mnExtendedStyle = nStyle;
    Announce(EAspect::Items);
}

bool CListCtrl::SelectRow(int nRow)
{
    if (nRow != -1 && !IsRow(nRow))
        return false;
    if (mnSelected == nRow)
        return true;
    mnSelected = nRow;
    Announce(EAspect::Selection);
    OnSelectionChanged();
    NotifyParent(ENotify::SelChange);
    return true;
}

EUserResult CListCtrl::UserSelect(int nRow)
{
    const auto isValid = [this, nRow] { return nRow == -1 || IsRow(nRow); };
    if (const EUserResult result = AcceptUserIf(isValid); result != EUserResult::Done)
        return result;
    SelectRow(nRow);
    return EUserResult::Done;
}

EUserResult CListCtrl::UserSizeColumn(int nColumn, int nWidth)
{
    const auto isValid = [this, nColumn, nWidth] { return IsColumn(nColumn) && nWidth >= 0; };
    if (const EUserResult result = AcceptUserIf(isValid); result != EUserResult::Done)
        return result;
    SetColumnWidth(nColumn, nWidth);
    return EUserResult::Done;
}

EUserResult CListCtrl::UserDoubleClick()
{
    const auto isValid = [this] { return mnSelected >= 0; };
    if (const EUserResult result = AcceptUserIf(isValid); result != EUserResult::Done)
        return result;
    NotifyParent(ENotify::DoubleClicked);
    return EUserResult::Done;
}

void CListCtrl::OnSelectionChanged() {}

bool CListCtrl::IsTabStop() const
{
    return true;
}

bool CListCtrl::AcceptsKind(EControl kind) const
{
    return kind == EControl::Table;
}

void CListCtrl::OnDestroyed()
{
    mColumns.clear();
    mRows.clear();
    mBorrowedRows.reset();
    mnExtendedStyle = 0;
    mnSelected = -1;
}
