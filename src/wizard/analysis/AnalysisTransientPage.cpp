#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/analysis/SweepSlot.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/frame/PageText.h"
#include "wizard/frame/Remembered.h"

namespace
{
enum EControlId {
    kModes = 1001,
    kStandard,
    kRampup,
    kPowerup,
    kPreview,
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
        RadioLines("mode", TChoice{kStandard, "S&tandard (from DC op. point)"},
                   TChoice{kRampup, "&Rampup simulation (pre-ramp DC sources to final values)"},
                   TChoice{kPowerup, "&Powerup simulation (ramp DC sources to final values)"},
                   TChoice{kPreview, "P&review mode (view input signals)"})),
    EditLine(kTimes, kMaximumTimeStep, "maximum-time-step", "&Maximum time step:", "sec"),
    EditLine(kTimes, kSimulationLength, "simulation-length", "Sim&ulation length:", "sec"),
    EditLine(kTimes, kOutputStartTime, "output-start-time", "&Output start time (0):", "sec"),
    GroupBox(kSweepGroup, "sweep-group", "Sweep",
             SweepLine(kSweep, "sweep", "&Sweep", "sweep-summary-1", "sweep-summary-2")));
// Two modes share a letter.
constexpr DialogTemplate kTemplate{"Transient", kPageSize, kRows, "r"};

struct TFields {
    int mnMode = kStandard;
    CString msMaximumTimeStep;
    CString msOutputStartTime;
    CString msSimulationLength;
};

Remembered<TFields> sRemembered;

const char* ModeClause(int nMode)
{
    switch (nMode) {
    case kRampup:
        return " rampup";
    case kPowerup:
        return " powerup";
    case kPreview:
        return " preview";
    default:
        return "";
    }
}
} // namespace

/// Builds ".tran ", the times of a simulation in seconds, its mode, and a sweep.
class CAnalysisTransientPage : public CCommandPage
{
public:
    CAnalysisTransientPage() : CCommandPage(kTemplate), mSweep(*this, kSweep) {}

    TMessageMap GetMessageMap() const override
    {
        static constexpr TMessageMapEntry kHandlers[] = {
            On<&CAnalysisTransientPage::OnSweep>(ENotify::Clicked, kSweep),
        };
        return kHandlers;
    }

    void DoDataExchange(CDataExchange* pDX) override
    {
        CCommandPage::DoDataExchange(pDX);
        DDX_Text(pDX, kMaximumTimeStep, mFields.msMaximumTimeStep);
        DDX_Text(pDX, kOutputStartTime, mFields.msOutputStartTime);
        DDX_Text(pDX, kSimulationLength, mFields.msSimulationLength);
    }

    bool OnInitDialog() override
    {
        CDialog::OnInitDialog();
        mFields = sRemembered.Get();
        CheckRadioButton(kStandard, kPreview, mFields.mnMode);
        UpdateData(false);
        return true;
    }

    bool BuildCommand(CString& rsCommand) override
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
        gAppendIfAny(rsCommand, " start=", mFields.msOutputStartTime);
        if (mSweep.IsUsed())
            rsCommand += " " + mSweep.GetText();
        sRemembered.Set(mFields);
        return true;
    }

private:
    void OnSweep() { mSweep.Press("sweep "); }

    CString msMessage;
    SweepSlot mSweep;
    TFields mFields;
};

template const CRuntimeClass& gRuntimeClass<CAnalysisTransientPage>();
