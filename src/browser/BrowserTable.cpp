#include "browser/BrowserTable.h"

#include "browser/CsvLine.h"

#include <utility>

CStringU gShowTable(TParamBrowserCustomTableCtrl& rControl, TParamTableData table)
{
    rControl.mTableData = std::move(table);
    rControl.FillTable();
    return gMakeExportText(rControl.mTableData);
}

LRESULT gFollowSize(CWnd& rWindow, TParamBrowserCustomTableCtrl& rControl, WPARAM wParam,
                    LPARAM lParam)
{
    const LRESULT nResult = rWindow.DefWindowProc(WM_SIZE, wParam, lParam);
    if (wParam != SIZE_MINIMIZED && rControl.IsCreated()) {
        rControl.ResizeColumns();
    }
    return nResult;
}

int gSelectedIndex(const TParamBrowserCustomTableCtrl& rControl)
{
    const int nRow = rControl.GetSelectedRow();
    return nRow < 0 ? -1 : static_cast<int>(rControl.GetItemData(nRow));
}
