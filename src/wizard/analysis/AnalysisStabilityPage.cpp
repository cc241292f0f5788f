#include "wizard/analysis/AnalysisStabilityPage.h"

#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "platform/ui/TemplateRows.h"
#include "wizard/frame/Remembered.h"

namespace
{
enum EControlId { kFrame = 1001, kSourceOrProbe };

constexpr TGrid kGrid{14, 112, 130, 105, 0, 0, 24, 0};
constexpr auto kRows = JoinRows(
    Row(kFrame, "frame", EControl::Group, "Loop stability analysis", {7, 7, 235, 38}),
    EditLine(kGrid, 0, kSourceOrProbe, "source-or-probe", "&Voltage source or Probe name:"));
constexpr DialogTemplate kTemplate{115, "Stability", kPageSize, kRows};

Remembered<CAnalysisStabilityPage::TFields> sRemembered;
} // namespace

CAnalysisStabilityPage::CAnalysisStabilityPage() : CCommandPage(kTemplate) {}

TMessageMap CAnalysisStabilityPage::GetMessageMap() const
{
    return {};
}

void CAnalysisStabilityPage::DoDataExchange(CDataExchange* pDX)
{
    CCommandPage::DoDataExchange(pDX);
    DDX_Text(pDX, kSourceOrProbe, mFields.msSourceOrProbe);
}

bool CAnalysisStabilityPage::OnInitDialog()
{
    CDialog::OnInitDialog();
    mFields = sRemembered.Get();
    UpdateData(false);
    return true;
}

bool CAnalysisStabilityPage::BuildCommand(CString& rsCommand)
{
    UpdateData(true);
    mFields.msSourceOrProbe.TrimLeft();
    // Meant: without a name it succeeds, and the text of the last page is inserted again.
    if (!mFields.msSourceOrProbe.IsEmpty())
        rsCommand = ".lstb " + mFields.msSourceOrProbe;
    sRemembered.Set(mFields);
    return true;
}

template const CRuntimeClass& gRuntimeClass<CAnalysisStabilityPage>();
