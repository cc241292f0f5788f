#include "wizard/analysis/AnalysisDCOpPage.h"

#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "platform/ui/TemplateRows.h"
#include "wizard/frame/Remembered.h"

namespace
{
enum EControlId { kFrame = 1001, kNote, kSuppress };

constexpr auto kRows = JoinRows(
    Row(kFrame, "frame", EControl::Group, "", {7, 7, 235, 56}, kUnlabelled),
    Row(kNote, "note", EControl::Static, "DC Operating Point Calculation.",
        {11, 20, 227, kLabelHeight}),
    Row(kSuppress, "suppress", EControl::CheckBox,
        "&Suppress automatic output of node voltages and source currents", {11, 40, 229, 12}));
constexpr DialogTemplate kTemplate{111, "DC operating point", kPageSize, kRows};

Remembered<CAnalysisDCOpPage::TFields> sRemembered;
} // namespace

CAnalysisDCOpPage::CAnalysisDCOpPage() : CCommandPage(kTemplate) {}

TMessageMap CAnalysisDCOpPage::GetMessageMap() const
{
    return {};
}

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
