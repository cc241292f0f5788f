#include "browser/ParameterBrowserDeviceDetailsDlg.h"

#include "browser/ParamSheet.h"
#include "browser/WindowTitles.h"

TParameterBrowserDeviceDetailsDlg::TParameterBrowserDeviceDetailsDlg(CWnd* pParent,
                                                                     const CStringU& rsTitle,
                                                                     const TDeviceData& rDevice,
                                                                     bool bAllowReevaluate)
    : CXTPResizePropertySheet(gParamSheetTemplate(), kSheetTabsId, SheetPageRect(kParamSheetSize),
                              pParent),
      mDeviceTab(gMakeParamRows(rDevice.GetDeviceParams())),
      mModelTab(gMakeParamRows(rDevice.GetModelParams())), mbAllowReevaluate(bAllowReevaluate)
{
    SetTitle(gMakeDeviceDetailsTitle(rsTitle).ToAnsi());
    SetHasHelp();
    if (rDevice.mpModelData != nullptr) {
        AddPage(mModelTab);
    }
    AddPage(mDeviceTab);
}

TMessageMap TParameterBrowserDeviceDetailsDlg::GetMessageMap() const
{
    static constexpr TMessageMapEntry kHandlers[] = {
        On<&TParameterBrowserDeviceDetailsDlg::OnReevaluate>(ENotify::Clicked, IDCANCEL),
        On<&TParameterBrowserDeviceDetailsDlg::OnExport>(ENotify::Clicked, ID_APPLY_NOW),
        On<&TParameterBrowserDeviceDetailsDlg::OnClose>(ENotify::Clicked, IDHELP),
    };
    return kHandlers;
}

bool TParameterBrowserDeviceDetailsDlg::OnInitDialog()
{
    CXTPResizePropertySheet::OnInitDialog();
    constexpr const char* model = "__$$Translatable$$_Model";
    constexpr const char* device = "__$$Translatable$$_Device";
    if (GetPageCount() > 1) {
        gInitParamSheet(*this, {model, device}, mbAllowReevaluate);
    } else {
        gInitParamSheet(*this, {device}, mbAllowReevaluate);
    }
    return true;
}

void TParameterBrowserDeviceDetailsDlg::OnReevaluate()
{
    mbReevaluate = true;
    EndDialog(kParamSheetEnd);
}

void TParameterBrowserDeviceDetailsDlg::OnExport()
{
    gExportActivePage(*this);
}

void TParameterBrowserDeviceDetailsDlg::OnClose()
{
    EndDialog(kParamSheetEnd);
}
