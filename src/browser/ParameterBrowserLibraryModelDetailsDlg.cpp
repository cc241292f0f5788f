#include "browser/ParameterBrowserLibraryModelDetailsDlg.h"

#include "browser/BrowserTable.h"
#include "browser/Export.h"
#include "browser/ListTemplate.h"
#include "browser/ParamRow.h"
#include "browser/WindowTitles.h"
#include "platform/ui/DataExchange.h"

namespace
{

constexpr auto kRows = DetailRows(kListSize);
constexpr DialogTemplate kTemplate{"Library Model Details", kListSize, kRows, "", true};

} // namespace

TParameterBrowserLibraryModelDetailsDlg::TParameterBrowserLibraryModelDetailsDlg(
    CWnd* pParent, const TModelData& rModel, const CStringU& rsModelName)
    : CXTPResizeDialog(kTemplate, pParent), mpModelData(&rModel), msModelName(rsModelName),
      mTable(TParamTableData())
{
}

TMessageMap TParameterBrowserLibraryModelDetailsDlg::GetMessageMap() const
{
    static constexpr TMessageMapEntry kHandlers[] = {
        On<&TParameterBrowserLibraryModelDetailsDlg::OnExport>(ENotify::Clicked, kListExport),
        OnMessage<&TParameterBrowserLibraryModelDetailsDlg::OnSize>(WM_SIZE),
    };
    return kHandlers;
}

void TParameterBrowserLibraryModelDetailsDlg::DoDataExchange(CDataExchange* pDX)
{
    CXTPResizeDialog::DoDataExchange(pDX);
    DDX_Control(pDX, kListTable, mTable);
}

bool TParameterBrowserLibraryModelDetailsDlg::OnInitDialog()
{
    CXTPResizeDialog::OnInitDialog();
    msExportText = gShowTable(mTable, gMakeParamTable(gMakeParamRows(mpModelData->GetParams())));
    SetWindowText(gMakeModelDetailsTitle(msModelName).ToAnsi());
    gAnchorList(*this, kAnchorBottomRight);
    return true;
}

void TParameterBrowserLibraryModelDetailsDlg::OnExport()
{
    gExportToFile(msExportText, this);
}

LRESULT TParameterBrowserLibraryModelDetailsDlg::OnSize(WPARAM wParam, LPARAM lParam)
{
    return gFollowSize(*this, mTable, wParam, lParam);
}
