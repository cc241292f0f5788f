#include "platform/ui/Button.h"
#include "platform/ui/ComboBox.h"
#include "platform/ui/DataExchange.h"
#include "platform/ui/Fields.h"
#include "platform/ui/ListBox.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/ListEditing.h"
#include "wizard/frame/PageText.h"
#include "wizard/optimization/OptimizationBlock.h"
#include "wizard/optimization/OptimizationSteps.h"

#include <algorithm>

namespace
{
using namespace OptimizationSteps;

// Meant: the list of goals asks about parameters, too.
constexpr TListEditingParts PartsOf(int nDeleteButton, int nClearButton)
{
    return {nDeleteButton, nClearButton, "__$$Translatable$$_This entry is already in the list.",
            "__$$Translatable$$_Are you sure you want to delete the selected parameter from the "
            "list?",
            "__$$Translatable$$_Are you sure you want to delete all of the parameters in the "
            "list?"};
}

constexpr TListEditingParts kGoalParts = PartsOf(kGoalDelete, kGoalClear);
constexpr TListEditingParts kParameterParts = PartsOf(kParameterDelete, kParameterClear);

/// Meant: a blank is a text.
template <std::same_as<CString>... TFields> bool HaveText(const TFields&... rsFields)
{
    return (!rsFields.IsEmpty() && ...);
}
} // namespace

/// Builds a whole optimization, ".optimize", ".paramlimits", ".optgoal" and ".model", in five
/// steps. "&Insert Command" is disabled until the last one. Nothing is remembered for the next run.
class COptimizationWizardPage : public CCommandPage
{
public:
    COptimizationWizardPage() : CCommandPage(kTemplate) {}

    TMessageMap GetMessageMap() const override;

    void DoDataExchange(CDataExchange* pDX) override
    {
        CCommandPage::DoDataExchange(pDX);
        DDX_Control(pDX, kGoalList, mGoalList);
        DDX_Control(pDX, kParameterList, mParameterList);
        DDX_Control(pDX, kAnalysisName, mAnalysisNames);
        DDX_Control(pDX, kAlgorithmType, mAlgorithmTypes);
        DDX_Text(pDX, kOptimizationName, msOptimizationName);
        DDX_CBString(pDX, kAnalysisName, msAnalysisName);
        DDX_Text(pDX, kMeasurement, mGoal.msMeasurement);
        DDX_Text(pDX, kTarget, mGoal.msTarget);
        DDX_Text(pDX, kMinimumValue, mGoal.msMinimumValue);
        DDX_Text(pDX, kWeight, mGoal.msWeight);
        DDX_Text(pDX, kParameterName, mLimits.msName);
        DDX_Text(pDX, kMinimum, mLimits.msMinimum);
        DDX_Text(pDX, kMaximum, mLimits.msMaximum);
        DDX_Text(pDX, kDelta, mLimits.msDelta);
        DDX_Text(pDX, kGuess, mLimits.msGuess);
        DDX_Text(pDX, kName, mAlgorithm.msName);
        for (std::size_t n = 0; n < kAlgorithmKeys.size(); ++n)
            DDX_Text(pDX, kFirstKey + static_cast<int>(n), mAlgorithm.mValues[n]);
    }

    bool OnInitDialog() override
    {
        CDialog::OnInitDialog();
        for (const char* pName : kAnalysisNames)
            mAnalysisNames.AddString(gShownText(pName));
        mAlgorithmTypes.SetCurSel(0);
        mnStep = kSetup;
        EnableInsert(false);
        return true;
    }

    bool BuildCommand(CString& rsCommand) override
    {
        UpdateData(true);
        gTrimLeft(mAlgorithm.msName);
        for (CString& rsValue : mAlgorithm.mValues)
            gTrimLeft(rsValue);
        if (mAlgorithm.msName.IsEmpty())
            return gReportFailure(*this, msMessage, "Missing model name."); // Meant: in English
        UpdateData(false);
        rsCommand = gOptimizationBlock(
            {msOptimizationName, msAnalysisName, msGoalLines, msLimitsLines, mAlgorithm});
        return true;
    }

private:
    // --- the steps

    void EnableInsert(bool bEnable)
    {
        auto* const pFrame = dynamic_cast<CDialog*>(GetParent());
        if (CButton* const pInsert = pFrame ? pFrame->GetDefaultButton() : nullptr)
            pInsert->EnableWindow(bEnable);
    }

    /// Meant: on the last step, too, the button waits until the user has come there anew.
    LRESULT OnShowWindow(WPARAM wParam, LPARAM)
    {
        if (wParam != 0)
            EnableInsert(false);
        return 0;
    }

    void ShowStep(int nStep)
    {
        mnStep = nStep;
        for (const TStepText& rText : kStepTexts)
            GetDlgItem(rText.nControl)->SetWindowText({});
        EnableInsert(false);
        gShowLayers(*this, LayerOf(nStep));
        for (const TStepText& rText : kStepTexts)
            if (rText.step == nStep)
                GetDlgItem(rText.nControl)->SetWindowText(gShownText(rText.pText));
        WriteDefaults();
        ShowHelp({}); // of a field that had the focus, or got it on the way
        if (nStep == kInsert)
            EnableInsert(true);
    }

    /// Over what the user has left in these fields.
    void WriteDefaults()
    {
        if (mnStep == kGoals) {
            GetDlgItem(kMinimumValue)->SetWindowText("1e-12");
            GetDlgItem(kWeight)->SetWindowText("1");
        }
        if (mnStep == kAlgorithm)
            for (std::size_t n = 0; n < kAlgorithmKeys.size(); ++n)
                GetDlgItem(kFirstKey + static_cast<int>(n))
                    ->SetWindowText(kAlgorithmKeys[n].pDefault);
    }

    void OnBack() { ShowStep(mnStep - 1); }

    void OnContinue()
    {
        UpdateData(true);
        if (!IsStepDone())
            return;
        ShowStep(mnStep + 1);
        if (mnStep == kInsert) {
            CString sPreview;
            BuildCommand(sPreview);
            GetDlgItem(kPreview)->SetWindowText(sPreview);
        }
    }

    /// Checks the step and takes over what it has collected.
    bool IsStepDone()
    {
        switch (mnStep) {
        case kSetup:
            return gAreFilled(
                *this, msMessage,
                {{msAnalysisName, "__$$Translatable$$_Missing analysis name."},
                 {msOptimizationName, "__$$Translatable$$_Missing optimization name."}});
        case kGoals:
            return TakeGoals();
        case kLimits:
            return TakeLimits();
        default:
            // Meant: in English, and a blank is a name here.
            return gAreFilled(*this, msMessage, {{mAlgorithm.msName, "Missing algorithm name."}});
        }
    }

    bool TakeGoals()
    {
        if (mGoalList.GetCount() > 0) {
            msGoalLines = mGoalEditing.OldestFirst("\n");
            return true;
        }
        if (!gAreFilled(*this, msMessage,
                        {{mGoal.msMeasurement, "__$$Translatable$$_Missing measurement name."},
                         {mGoal.msTarget, "__$$Translatable$$_Missing target value."}}))
            return false;
        // Meant: what stands in the parameter name of the next step goes in front.
        msGoalLines = "\n" + mLimits.msName + gGoalItem(mGoal);
        return true;
    }

    bool TakeLimits()
    {
        if (mParameterList.GetCount() > 0) {
            msLimitsLines = mParameterEditing.OldestFirst("\n");
            return true;
        }
        if (!gAreFilled(*this, msMessage,
                        {{mLimits.msName, "__$$Translatable$$_Missing parameter name."},
                         {mLimits.msMinimum, "__$$Translatable$$_Missing minimum value."},
                         {mLimits.msMaximum, "__$$Translatable$$_Missing maximum value."}}))
            return false;
        msLimitsLines = "\n" + gLimitsItem(mLimits);
        return true;
    }

    // --- the goals

    void EnableGoalAdd(bool bEnable) { GetDlgItem(kGoalAdd)->EnableWindow(bEnable); }

    void OnGoalField()
    {
        UpdateData(true);
        EnableGoalAdd(HaveText(mGoal.msMeasurement, mGoal.msTarget));
    }

    /// Meant: asks for more than the other fields do.
    void OnWeight()
    {
        UpdateData(true);
        EnableGoalAdd(
            HaveText(mGoal.msMeasurement, mGoal.msTarget, mGoal.msWeight, mGoal.msMinimumValue));
    }

    void OnAddGoal()
    {
        UpdateData(true);
        if (HaveText(mGoal.msMeasurement, mGoal.msTarget))
            mGoalEditing.Add(gGoalItem(mGoal), msMessage);
    }

    void OnDeleteGoal() { mGoalEditing.Delete(); }
    void OnClearGoals() { mGoalEditing.Clear(); }

    // --- the limits of the parameters

    bool HasLimits() const
    {
        return HaveText(mLimits.msName, mLimits.msMinimum, mLimits.msMaximum);
    }

    void OnLimitsField()
    {
        UpdateData(true);
        GetDlgItem(kParameterAdd)->EnableWindow(HasLimits());
    }

    void OnAddParameter()
    {
        UpdateData(true);
        if (HasLimits())
            mParameterEditing.Add(gLimitsItem(mLimits), msMessage);
    }

    void OnDeleteParameter() { mParameterEditing.Delete(); }
    void OnClearParameters() { mParameterEditing.Clear(); }

    // --- the algorithm

    void OnName()
    {
        if (mnStep == kAlgorithm)
            EnableInsert(false);
    }

    void ShowHelp(const CString& rsHelp) { GetDlgItem(kDescription)->SetWindowText(rsHelp); }

    void OnKeyEntered(int nId)
    {
        const auto nKey = static_cast<std::size_t>(nId - kFirstKey);
        ShowHelp(gShownText(kAlgorithmKeys.at(nKey).pHelp));
    }

    void OnFieldLeft() { ShowHelp({}); }

    CString msMessage;
    int mnStep = kSetup;
    CString msGoalLines;   ///< each goal behind a line feed
    CString msLimitsLines; ///< each parameter behind a line feed
    CListBox mGoalList;
    CListBox mParameterList;
    ListEditing mGoalEditing{*this, mGoalList, kGoalParts};
    ListEditing mParameterEditing{*this, mParameterList, kParameterParts};
    CString msOptimizationName;
    CComboBox mAnalysisNames;
    CString msAnalysisName;
    TOptimizationGoal mGoal;
    TParameterLimits mLimits;
    CComboBox mAlgorithmTypes;
    TAlgorithm mAlgorithm;
};

TMessageMap COptimizationWizardPage::GetMessageMap() const
{
    using TPage = COptimizationWizardPage;
    static constexpr auto kHandlers = [] {
        constexpr auto kOwn = std::to_array<TMessageMapEntry>({
            OnMessage<&TPage::OnShowWindow>(WM_SHOWWINDOW),
            On<&TPage::OnBack>(ENotify::Clicked, kBack),
            On<&TPage::OnContinue>(ENotify::Clicked, kContinue),
            // Meant: the measurement and the delta have no handler.
            On<&TPage::OnGoalField>(ENotify::Change, kTarget),
            On<&TPage::OnGoalField>(ENotify::Change, kMinimumValue),
            On<&TPage::OnWeight>(ENotify::Change, kWeight),
            On<&TPage::OnAddGoal>(ENotify::Clicked, kGoalAdd),
            On<&TPage::OnDeleteGoal>(ENotify::Clicked, kGoalDelete),
            On<&TPage::OnClearGoals>(ENotify::Clicked, kGoalClear),
            On<&TPage::OnLimitsField>(ENotify::Change, kParameterName),
            On<&TPage::OnLimitsField>(ENotify::Change, kGuess),
            On<&TPage::OnLimitsField>(ENotify::Change, kMinimum),
            On<&TPage::OnLimitsField>(ENotify::Change, kMaximum),
            On<&TPage::OnAddParameter>(ENotify::Clicked, kParameterAdd),
            On<&TPage::OnDeleteParameter>(ENotify::Clicked, kParameterDelete),
            On<&TPage::OnClearParameters>(ENotify::Clicked, kParameterClear),
            On<&TPage::OnName>(ENotify::Change, kName),
            On<&TPage::OnFieldLeft>(ENotify::KillFocus, kName),
        });
        std::array<TMessageMapEntry, kOwn.size() + 2 * kAlgorithmKeys.size()> handlers{};
        auto end = std::ranges::copy(kOwn, handlers.begin()).out;
        for (int nKey = kFirstKey; nKey < kDescriptionGroup; ++nKey) {
            *end++ = On<&TPage::OnKeyEntered>(ENotify::SetFocus, nKey);
            *end++ = On<&TPage::OnFieldLeft>(ENotify::KillFocus, nKey);
        }
        return handlers;
    }();
    return kHandlers;
}

template const CRuntimeClass& gRuntimeClass<COptimizationWizardPage>();
