#include "wizard/analysis/AnalysisStabilityPage.h"

#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/frame/PageText.h"
#include "wizard/frame/Remembered.h"

namespace
{
enum EControlId { kFrame = 1001, kSourceOrProbe };

constexpr TColumns kFields{.nField = 130};
constexpr auto kRows = PageRows(GroupBox(
    kFrame, "frame", "Loop stability analysis",
    EditLine(kFields, kSourceOrProbe, "source-or-probe", "&Voltage source or Probe name:")));
constexpr DialogTemplate kTemplate{"Stability", kPageSize, kRows};

Remembered<CAnalysisStabilityPage::TFields> sRemembered;
} // namespace

CAnalysisStabilityPage::CAnalysisStabilityPage() : CCommandPage(kTemplate) {}

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
    gTrimLeft(mFields.msSourceOrProbe);
    // Meant: without a name it succeeds, and the text of the last page is inserted again.
    if (!mFields.msSourceOrProbe.IsEmpty())
        rsCommand = ".lstb " + mFields.msSourceOrProbe;
    sRemembered.Set(mFields);
    return true;
}

template const CRuntimeClass& gRuntimeClass<CAnalysisStabilityPage>();
