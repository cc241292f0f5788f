#include "browser/ParameterBrowserQuorvaModelsDlg.h"

#include "browser/BrowserTable.h"
#include "browser/ClassParamRows.h"
#include "browser/Export.h"
#include "browser/ListTemplate.h"
#include "browser/ParameterBrowserModelClassDetailsDlg.h"
#include "browser/WindowTitles.h"
#include "platform/ui/DataExchange.h"

#include <cstddef>

namespace
{

constexpr TSize kSize{395, 234};
constexpr auto kRows = PlainListRows(kSize);
constexpr DialogTemplate kTemplate{"Quorva Models", kSize, kRows, "", true};

} // namespace

TParameterBrowserQuorvaModelsDlg::TParameterBrowserQuorvaModelsDlg(CWnd* pParent,
                                                                   const TCircuitParams& rParams,
                                                                   const CStringU& rsSelectClass)
    : CXTPResizeDialog(kTemplate, pParent), mpParams(&rParams),
      mClassRows(gMakeModelClassRows(rParams)), msSelectClass(rsSelectClass),
      mTable(TParamTableData())
{
}

TMessageMap TParameterBrowserQuorvaModelsDlg::GetMessageMap() const
{
    static constexpr TMessageMapEntry kHandlers[] = {
        On<&TParameterBrowserQuorvaModelsDlg::OnDetails>(ENotify::Clicked, kListDetails),
        On<&TParameterBrowserQuorvaModelsDlg::OnDetails>(ENotify::DoubleClicked, kListTable),
        On<&TParameterBrowserQuorvaModelsDlg::OnExport>(ENotify::Clicked, kListExport),
        OnMessage<&TParameterBrowserQuorvaModelsDlg::OnSize>(WM_SIZE),
    };
    return kHandlers;
}

void TParameterBrowserQuorvaModelsDlg::DoDataExchange(CDataExchange* pDX)
{
    CXTPResizeDialog::DoDataExchange(pDX);
    DDX_Control(pDX, kListTable, mTable);
}

bool TParameterBrowserQuorvaModelsDlg::OnInitDialog()
{
    CXTPResizeDialog::OnInitDialog();
    msExportText = gShowTable(mTable, gMakeClassesTable(mClassRows));
    if (const int nRow = gFindClassRow(mClassRows, msSelectClass); nRow >= 0) {
        mTable.SelectCell(nRow, 0);
    }
    SetWindowText(gMakeClassesTitle().ToAnsi());
    gAnchorList(*this, kAnchorBottomLeft);
    return true;
}

void TParameterBrowserQuorvaModelsDlg::OnDetails()
{
    const int nIndex = gSelectedIndex(mTable);
    if (nIndex < 0) {
        return;
    }
    // The text of column 0, as it is outside the system's code page.
    const CStringU& rsClass = mTable.mTableData.mRows[static_cast<std::size_t>(nIndex)][0].msText;
    TParameterBrowserModelClassDetailsDlg details(this, rsClass,
                                                  gMakeClassParamRows(*mpParams, rsClass));
    details.DoModal();
}

void TParameterBrowserQuorvaModelsDlg::OnExport()
{
    gExportToFile(msExportText, this);
}

LRESULT TParameterBrowserQuorvaModelsDlg::OnSize(WPARAM wParam, LPARAM lParam)
{
    return gFollowSize(*this, mTable, wParam, lParam);
}
