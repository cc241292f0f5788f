#include "browser/ParameterBrowserDevicesDlg.h"

#include "browser/BrowserTable.h"
#include "browser/DisplayName.h"
#include "browser/Export.h"
#include "browser/ListTables.h"
#include "browser/ListTemplate.h"
#include "browser/ParameterBrowserDeviceDetailsDlg.h"
#include "browser/WindowTitles.h"
#include "platform/ui/DataExchange.h"

#include <cstddef>
#include <utility>

namespace
{

constexpr auto kRows = ListRows(kListSize);
constexpr DialogTemplate kTemplate{"Quorva Devices", kListSize, kRows, "", true};

} // namespace

TParameterBrowserDevicesDlg::TParameterBrowserDevicesDlg(CWnd* pParent,
                                                         const TCircuitParams& rParams,
                                                         const CStringU& rsFilter,
                                                         bool bAllowRecalculate)
    : CXTPResizeDialog(kTemplate, pParent), mpParams(&rParams),
      mbAllowRecalculate(bAllowRecalculate), mTable(TParamTableData())
{
    TDeviceList list = gMakeDeviceList(rParams, rsFilter);
    mDevices = std::move(list.mEntries);
    msFilter = std::move(list.msFilter);
}

TMessageMap TParameterBrowserDevicesDlg::GetMessageMap() const
{
    static constexpr TMessageMapEntry kHandlers[] = {
        On<&TParameterBrowserDevicesDlg::OnDetails>(ENotify::Clicked, kListDetails),
        On<&TParameterBrowserDevicesDlg::OnDetails>(ENotify::DoubleClicked, kListTable),
        On<&TParameterBrowserDevicesDlg::OnExport>(ENotify::Clicked, kListExport),
        On<&TParameterBrowserDevicesDlg::OnRecalculate>(ENotify::Clicked, kListRecalculate),
        OnMessage<&TParameterBrowserDevicesDlg::OnSize>(WM_SIZE),
    };
    return kHandlers;
}

void TParameterBrowserDevicesDlg::DoDataExchange(CDataExchange* pDX)
{
    CXTPResizeDialog::DoDataExchange(pDX);
    DDX_Control(pDX, kListTable, mTable);
}

bool TParameterBrowserDevicesDlg::OnInitDialog()
{
    CXTPResizeDialog::OnInitDialog();
    msExportText = gShowTable(mTable, gMakeDevicesTable(*mpParams, mDevices, msFilter));
    GetDlgItem(kListRecalculate)->ShowWindow(mbAllowRecalculate ? SW_SHOW : SW_HIDE);
    GetDlgItem(kListQuorvaModels)->ShowWindow(SW_HIDE);
    SetWindowText(gMakeDevicesTitle(msFilter).ToAnsi());
    gAnchorList(*this, kAnchorBottomLeft);
    return true;
}

void TParameterBrowserDevicesDlg::OnDetails()
{
    const int nIndex = gSelectedIndex(mTable);
    if (nIndex < 0) {
        return;
    }
    const TDeviceListEntry& rEntry = mDevices[static_cast<std::size_t>(nIndex)];
    const TDeviceData* const pDevice = mpParams->GetDeviceData(rEntry.mnSubckt, rEntry.msName);
    if (pDevice == nullptr) {
        return;
    }
    const CStringU sName = gMakeDisplayName(*mpParams, rEntry.mnSubckt, rEntry.msName);
    TParameterBrowserDeviceDetailsDlg details(this, gMakeDeviceTitle(sName, *pDevice), *pDevice,
                                              false);
    details.DoModal();
}

void TParameterBrowserDevicesDlg::OnExport()
{
    gExportToFile(msExportText, this);
}

void TParameterBrowserDevicesDlg::OnRecalculate()
{
    mbRecalculate = true;
    EndDialog(IDCANCEL);
}

LRESULT TParameterBrowserDevicesDlg::OnSize(WPARAM wParam, LPARAM lParam)
{
    return gFollowSize(*this, mTable, wParam, lParam);
}
