#include "browser/ParameterBrowserParamDetailsTab.h"

#include "browser/BrowserTable.h"
#include "browser/ParamSheet.h"
#include "platform/ui/DataExchange.h"

namespace
{

enum EControlId { kTable = 1001 };

constexpr TRect kPage = SheetPageRect(kParamSheetSize);
constexpr int kMargin = 4;
constexpr TControlRow kRows[] = {
    Row(kTable, "table", EControl::Table, "",
        {kMargin, kMargin, kPage.w - 2 * kMargin, kPage.h - 2 * kMargin}, kUnlabelled)};
constexpr DialogTemplate kTemplate{"Parameters", {kPage.w, kPage.h}, kRows};

} // namespace

TParameterBrowserParamDetailsTab::TParameterBrowserParamDetailsTab(
    const std::vector<TParamRow>& rRows)
    : CXTPResizePropertyPage(kTemplate), mParamRows(rRows), mTable(TParamTableData())
{
    SetHasHelp(); // without it the sheet shows no button to name "Close"
}

TMessageMap TParameterBrowserParamDetailsTab::GetMessageMap() const
{
    static constexpr TMessageMapEntry kHandlers[] = {
        OnMessage<&TParameterBrowserParamDetailsTab::OnSize>(WM_SIZE),
    };
    return kHandlers;
}

void TParameterBrowserParamDetailsTab::DoDataExchange(CDataExchange* pDX)
{
    CXTPResizePropertyPage::DoDataExchange(pDX);
    DDX_Control(pDX, kTable, mTable);
}

bool TParameterBrowserParamDetailsTab::OnInitDialog()
{
    CXTPResizePropertyPage::OnInitDialog();
    msExportText = gShowTable(mTable, gMakeParamTable(mParamRows));
    SetResize(kTable, kAnchorTopLeft, kAnchorBottomRight);
    return true;
}

LRESULT TParameterBrowserParamDetailsTab::OnSize(WPARAM wParam, LPARAM lParam)
{
    return gFollowSize(*this, mTable, wParam, lParam);
}
