#include "browser/ParamSheet.h"

#include "browser/Export.h"
#include "browser/ParameterBrowserParamDetailsTab.h"
#include "platform/ui/TabCtrl.h"
#include "platform/ui/Translate.h"

namespace
{

constexpr int kButtonWidth = 60;
constexpr auto kRows = SheetRows(
    kParamSheetSize, {.pOk = "ok", .pCancel = "reevaluate", .pApply = "export", .pHelp = "close"},
    kButtonWidth, true);
constexpr DialogTemplate kTemplate{"Parameters", kParamSheetSize, kRows, "", true};

void NameTabs(CXTPResizePropertySheet& rSheet, std::initializer_list<const char*> labels)
{
    auto& rTabs = dynamic_cast<CTabCtrl&>(*rSheet.GetDlgItem(kSheetTabsId));
    int nTab = 0;
    for (const char* const pLabel : labels) {
        rTabs.SetItemText(nTab++, xlang::gTranslate(pLabel));
    }
}

void NameButton(const CXTPResizePropertySheet& rSheet, int nId, const char* pLabel)
{
    CWnd& rButton = *rSheet.GetDlgItem(nId);
    rButton.SetWindowText(xlang::gTranslate(pLabel));
    rButton.EnableWindow();
}

} // namespace

const DialogTemplate& gParamSheetTemplate()
{
    return kTemplate;
}

void gInitParamSheet(CXTPResizePropertySheet& rSheet, std::initializer_list<const char*> labels,
                     bool bReevaluate)
{
    NameTabs(rSheet, labels);
    NameButton(rSheet, IDCANCEL, "__$$Translatable$$_&Reevaluate...");
    NameButton(rSheet, ID_APPLY_NOW, "__$$Translatable$$_&Export...");
    NameButton(rSheet, IDHELP, "__$$Translatable$$_&Close");
    rSheet.GetDlgItem(IDOK)->ShowWindow(SW_HIDE);
    rSheet.GetDlgItem(IDCANCEL)->ShowWindow(bReevaluate ? SW_SHOW : SW_HIDE);
    rSheet.SetResize(kSheetTabsId, kAnchorTopLeft, kAnchorBottomRight);
    for (const int nId : {IDOK, IDCANCEL, ID_APPLY_NOW, IDHELP}) {
        rSheet.SetResize(nId, kAnchorBottomRight, kAnchorBottomRight);
    }
}

void gExportActivePage(const CXTPResizePropertySheet& rSheet)
{
    if (const auto* const pTab =
            dynamic_cast<const TParameterBrowserParamDetailsTab*>(rSheet.GetActivePage())) {
        gExportToFile(pTab->GetExportText(), pTab);
    }
}
