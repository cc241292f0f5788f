#include "browser/ParameterBrowserCircuitModelDatasetsDlg.h"

#include "browser/BrowserTable.h"
#include "browser/DisplayName.h"
#include "browser/Export.h"
#include "browser/ListTables.h"
#include "browser/ListTemplate.h"
#include "browser/ParameterBrowserLibraryModelDetailsDlg.h"
#include "browser/ParameterBrowserQuorvaModelsDlg.h"
#include "browser/WindowTitles.h"
#include "platform/ui/DataExchange.h"

#include <cstddef>

namespace
{

constexpr auto kRows = ListRows(kListSize);
constexpr DialogTemplate kTemplate{"Library Models", kListSize, kRows, "", true};

} // namespace

TParameterBrowserCircuitModelDatasetsDlg::TParameterBrowserCircuitModelDatasetsDlg(
    CWnd* pParent, const TCircuitParams& rParams, bool bAllowRecalculate)
    : CXTPResizeDialog(kTemplate, pParent), mpParams(&rParams), mModels(rParams.GetModelList()),
      mbAllowRecalculate(bAllowRecalculate), mTable(TParamTableData())
{
}

TMessageMap TParameterBrowserCircuitModelDatasetsDlg::GetMessageMap() const
{
    using TDialog = TParameterBrowserCircuitModelDatasetsDlg;
    static constexpr TMessageMapEntry kHandlers[] = {
        On<&TDialog::OnDetails>(ENotify::Clicked, kListDetails),
        On<&TDialog::OnDetails>(ENotify::DoubleClicked, kListTable),
        On<&TDialog::OnExport>(ENotify::Clicked, kListExport),
        On<&TDialog::OnQuorvaModels>(ENotify::Clicked, kListQuorvaModels),
        On<&TDialog::OnRecalculate>(ENotify::Clicked, kListRecalculate),
        OnMessage<&TDialog::OnSize>(WM_SIZE),
    };
    return kHandlers;
}

void TParameterBrowserCircuitModelDatasetsDlg::DoDataExchange(CDataExchange* pDX)
{
    CXTPResizeDialog::DoDataExchange(pDX);
    DDX_Control(pDX, kListTable, mTable);
}

bool TParameterBrowserCircuitModelDatasetsDlg::OnInitDialog()
{
    CXTPResizeDialog::OnInitDialog();
    msExportText = gShowTable(mTable, gMakeModelsTable(*mpParams, mModels));
    GetDlgItem(kListRecalculate)->ShowWindow(mbAllowRecalculate ? SW_SHOW : SW_HIDE);
    SetWindowText(gMakeModelsTitle().ToAnsi());
    gAnchorList(*this, kAnchorBottomLeft);
    return true;
}

void TParameterBrowserCircuitModelDatasetsDlg::OnDetails()
{
    const int nIndex = gSelectedIndex(mTable);
    if (nIndex < 0) {
        return;
    }
    const TModelListEntry& rEntry = mModels[static_cast<std::size_t>(nIndex)];
    const TModelData* const pModel = mpParams->GetModelData(rEntry.mnSubckt, rEntry.msName);
    if (pModel == nullptr) {
        return;
    }
    TParameterBrowserLibraryModelDetailsDlg details(
        this, *pModel, gMakeDisplayName(*mpParams, rEntry.mnSubckt, rEntry.msName));
    details.DoModal();
}

void TParameterBrowserCircuitModelDatasetsDlg::OnExport()
{
    gExportToFile(msExportText, this);
}

void TParameterBrowserCircuitModelDatasetsDlg::OnQuorvaModels()
{
    const int nIndex = gSelectedIndex(mTable);
    if (nIndex < 0) {
        return;
    }
    TParameterBrowserQuorvaModelsDlg classes(this, *mpParams,
                                             mModels[static_cast<std::size_t>(nIndex)].msClass);
    classes.DoModal();
}

void TParameterBrowserCircuitModelDatasetsDlg::OnRecalculate()
{
    mbRecalculate = true;
    EndDialog(IDCANCEL);
}

LRESULT TParameterBrowserCircuitModelDatasetsDlg::OnSize(WPARAM wParam, LPARAM lParam)
{
    return gFollowSize(*this, mTable, wParam, lParam);
}
