#include "browser/ParameterBrowserModelClassDetailsDlg.h"

#include "browser/ParamSheet.h"
#include "browser/WindowTitles.h"

TParameterBrowserModelClassDetailsDlg::TParameterBrowserModelClassDetailsDlg(
    CWnd* pParent, const CStringU& rsClass, const TClassParamRows& rRows)
    : CXTPResizePropertySheet(gParamSheetTemplate(), kSheetTabsId, SheetPageRect(kParamSheetSize),
                              pParent),
      mDeviceTab(rRows.mDeviceRows), mModelTab(rRows.mModelRows), mStateTab(rRows.mStateRows)
{
    SetTitle(gMakeClassDetailsTitle(rsClass).ToAnsi());
    SetHasHelp();
    AddPage(mModelTab); // kept: not the order of the members
    AddPage(mDeviceTab);
    AddPage(mStateTab);
}

TMessageMap TParameterBrowserModelClassDetailsDlg::GetMessageMap() const
{
    static constexpr TMessageMapEntry kHandlers[] = {
        On<&TParameterBrowserModelClassDetailsDlg::OnExport>(ENotify::Clicked, ID_APPLY_NOW),
        On<&TParameterBrowserModelClassDetailsDlg::OnClose>(ENotify::Clicked, IDHELP),
    };
    return kHandlers;
}

bool TParameterBrowserModelClassDetailsDlg::OnInitDialog()
{
    CXTPResizePropertySheet::OnInitDialog();
    gInitParamSheet(
        *this,
        {"__$$Translatable$$_Model", "__$$Translatable$$_Device", "__$$Translatable$$_State"},
        false);
    return true;
}

void TParameterBrowserModelClassDetailsDlg::OnExport()
{
    gExportActivePage(*this);
}

void TParameterBrowserModelClassDetailsDlg::OnClose()
{
    EndDialog(kParamSheetEnd);
}
