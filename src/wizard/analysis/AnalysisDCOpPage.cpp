#include "wizard/analysis/AnalysisDCOpPage.h"

#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/frame/Remembered.h"

namespace
{
enum EControlId { kFrame = 1001, kNote, kSuppress };

constexpr auto kRows = PageRows(
    GroupBox(kFrame, "frame", "", NoteLine(kNote, "note", "DC Operating Point Calculation."),
             CheckLine(kSuppress, "suppress",
                       "&Suppress automatic output of node voltages and source currents")));
constexpr DialogTemplate kTemplate{"DC operating point", kPageSize, kRows};

Remembered<CAnalysisDCOpPage::TFields> sRemembered;
} // namespace

CAnalysisDCOpPage::CAnalysisDCOpPage() : CCommandPage(kTemplate) {}

void CAnalysisDCOpPage::DoDataExchange(CDataExchange* pDX)
{
    CCommandPage::DoDataExchange(pDX);
    DDX_Check(pDX, kSuppress, mFields.mnSuppress);
}

bool CAnalysisDCOpPage::OnInitDialog()
{
    CDialog::OnInitDialog();
    mFields = sRemembered.Get();
    UpdateData(false);
    return true;
}

bool CAnalysisDCOpPage::BuildCommand(CString& rsCommand)
{
    UpdateData(true);
    rsCommand = ".op";
    if (mFields.mnSuppress != 0)
        rsCommand += " noprint";
    sRemembered.Set(mFields);
    return true;
}

template const CRuntimeClass& gRuntimeClass<CAnalysisDCOpPage>();
