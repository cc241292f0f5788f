#include "wizard/analysis/AnalysisTransientPage.h"

#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/frame/PageText.h"
#include "wizard/frame/Remembered.h"

namespace
{
// The ids of the radio buttons stand before these.
enum EControlId {
    kModes = 1011,
    kMaximumTimeStep,
    kSimulationLength,
    kOutputStartTime,
    kSweepGroup,
    kSweep,
};

constexpr TColumns kTimes{.nField = 96, .nUnit = 191};
constexpr auto kRows = PageRows(
    GroupBox(
        kModes, "mode-group", "Modes",
        RadioLine(CAnalysisTransientPage::kStandard, "mode", "S&tandard (from DC op. point)",
                  kFirstOfGroup),
        RadioLine(CAnalysisTransientPage::kRampup, "mode",
                  "&Rampup simulation (pre-ramp DC sources to final values)"),
        RadioLine(CAnalysisTransientPage::kPowerup, "mode",
                  "&Powerup simulation (ramp DC sources to final values)"),
        RadioLine(CAnalysisTransientPage::kPreview, "mode", "P&review mode (view input signals)")),
    EditLine(kTimes, kMaximumTimeStep, "maximum-time-step", "&Maximum time step:", "sec"),
    EditLine(kTimes, kSimulationLength, "simulation-length", "Sim&ulation length:", "sec"),
    EditLine(kTimes, kOutputStartTime, "output-start-time", "&Output start time (0):", "sec"),
    GroupBox(kSweepGroup, "sweep-group", "Sweep",
             SweepLine(kSweep, "sweep", "&Sweep", "sweep-summary-1", "sweep-summary-2")));
// Two modes share a letter.
constexpr DialogTemplate kTemplate{"Transient", kPageSize, kRows, "r"};

Remembered<CAnalysisTransientPage::TFields> sRemembered;

const char* ModeClause(int nMode)
{
    switch (nMode) {
    case CAnalysisTransientPage::kRampup:
        return " rampup";
    case CAnalysisTransientPage::kPowerup:
        return " powerup";
    case CAnalysisTransientPage::kPreview:
        return " preview";
    default:
        return "";
    }
}
} // namespace

CAnalysisTransientPage::CAnalysisTransientPage() : CCommandPage(kTemplate), mSweep(*this, kSweep) {}

TMessageMap CAnalysisTransientPage::GetMessageMap() const
{
    static constexpr TMessageMapEntry kHandlers[] = {
        On<&CAnalysisTransientPage::OnSweep>(ENotify::Clicked, kSweep),
    };
    return kHandlers;
}

void CAnalysisTransientPage::DoDataExchange(CDataExchange* pDX)
{
    CCommandPage::DoDataExchange(pDX);
    DDX_Text(pDX, kMaximumTimeStep, mFields.msMaximumTimeStep);
    DDX_Text(pDX, kOutputStartTime, mFields.msOutputStartTime);
    DDX_Text(pDX, kSimulationLength, mFields.msSimulationLength);
}

bool CAnalysisTransientPage::OnInitDialog()
{
    CDialog::OnInitDialog();
    mFields = sRemembered.Get();
    CheckRadioButton(kStandard, kPreview, mFields.mnMode);
    UpdateData(false);
    return true;
}

void CAnalysisTransientPage::OnSweep()
{
    mSweep.Press("sweep ");
}

bool CAnalysisTransientPage::BuildCommand(CString& rsCommand)
{
    // Meant: nothing is trimmed, a blank is a value.
    UpdateData(true);
    mFields.mnMode = GetCheckedRadioButton(kStandard, kPreview);
    if (mFields.msMaximumTimeStep.IsEmpty())
        return gReportFailure(*this, msMessage,
                              "__$$Translatable$$_Missing maximum time step value.");
    if (mFields.msSimulationLength.IsEmpty())
        return gReportFailure(*this, msMessage,
                              "__$$Translatable$$_Missing total simulation time value.");
    rsCommand = ".tran " + mFields.msMaximumTimeStep + " " + mFields.msSimulationLength;
    rsCommand += ModeClause(mFields.mnMode);
    if (!mFields.msOutputStartTime.IsEmpty())
        rsCommand += " start=" + mFields.msOutputStartTime;
    if (mSweep.IsUsed())
        rsCommand += " " + mSweep.GetText();
    sRemembered.Set(mFields);
    return true;
}

template const CRuntimeClass& gRuntimeClass<CAnalysisTransientPage>();
