#include "wizard/analysis/AnalysisTransientPage.h"

#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "platform/ui/TemplateRows.h"
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

constexpr TControlRow Mode(int nId, const char* pLabel, unsigned nFlags = kNoFlags)
{
    const int nLine = nId - CAnalysisTransientPage::kStandard;
    return Row(nId, "mode", EControl::RadioButton, pLabel, {14, 21 + nLine * 14, 221, 12}, nFlags);
}

constexpr TGrid kGrid{7, 84, 96, 90, 191, 20, 91, 19};
constexpr auto kRows = JoinRows(
    Row(kModes, "mode-group", EControl::Group, "Modes", {7, 7, 235, 76}),
    Mode(CAnalysisTransientPage::kStandard, "S&tandard (from DC op. point)", kFirstOfGroup),
    Mode(CAnalysisTransientPage::kRampup,
         "&Rampup simulation (pre-ramp DC sources to final values)"),
    Mode(CAnalysisTransientPage::kPowerup, "&Powerup simulation (ramp DC sources to final values)"),
    Mode(CAnalysisTransientPage::kPreview, "P&review mode (view input signals)"),
    EditLineWithUnit(kGrid, 0, kMaximumTimeStep, "maximum-time-step", "&Maximum time step:", "sec"),
    EditLineWithUnit(kGrid, 1, kSimulationLength, "simulation-length",
                     "Sim&ulation length:", "sec"),
    EditLineWithUnit(kGrid, 2, kOutputStartTime, "output-start-time",
                     "&Output start time (0):", "sec"),
    Row(kSweepGroup, "sweep-group", EControl::Group, "Sweep", {7, 152, 235, 37}),
    SweepLine(kSweep, "sweep", "&Sweep", "sweep-summary-1", "sweep-summary-2", 14, 168));
// Two modes share a letter.
constexpr DialogTemplate kTemplate{117, "Transient", kPageSize, kRows, "r"};

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
