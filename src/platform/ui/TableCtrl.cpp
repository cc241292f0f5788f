#include "platform/ui/TableCtrl.h"

TCellDrawing CTableCtrl::DrawItem(int nRow, int nColumn, bool bSelected, bool bFocused) const
{
    return {GetItemText(nRow, nColumn), GetCellColor(nRow, nColumn, bSelected, bFocused)};
}

COLORREF CTableCtrl::GetCellColor(int, int, bool, bool) const
{
    return CLR_DEFAULT;
}

bool CTableCtrl::IsCellEditable(int, int) const
{
    return true;
}

bool CTableCtrl::IsCellSelectable(int, int) const
{
    return true;
}

bool CTableCtrl::OnCommitCell(int nRow, int nColumn, const CString& rsText)
{
    return IsCellEditable(nRow, nColumn) && SetItemText(nRow, nColumn, rsText);
}

bool CTableCtrl::IsCancelControl(const CWnd* pControl) const
{
    return pControl && pControl->GetDlgCtrlID() == IDCANCEL;
}

void CTableCtrl::AfterSelectionChanged() {}

bool CTableCtrl::SelectCell(int nRow, int nColumn)
{
    return IsRow(nRow) && IsColumn(nColumn) && IsCellSelectable(nRow, nColumn) && SelectRow(nRow);
}

void CTableCtrl::OnSelectionChanged()
{
    AfterSelectionChanged();
}
