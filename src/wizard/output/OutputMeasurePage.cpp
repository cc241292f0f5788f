#include "platform/ui/ComboBox.h"
#include "platform/ui/DataExchange.h"
#include "platform/ui/Fields.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/PageText.h"
#include "wizard/frame/Remembered.h"
#include "wizard/output/MeasureCommand.h"
#include "wizard/output/MeasureRows.h"

namespace
{
using namespace Measure;

Remembered<TFields> sRemembered;

/// The lists of an event.
struct TEventLists {
    CComboBox mKind;
    CComboBox mNumber;
};
} // namespace

/// Builds ".measure ", the name of a result, and what it is: a difference, a statistic, a value at
/// a point, an expression, or the error between two signals.
class COutputMeasurePage : public CCommandPage
{
public:
    COutputMeasurePage() : CCommandPage(kTemplate) {}

    TMessageMap GetMessageMap() const override
    {
        using TPage = COutputMeasurePage;
        static constexpr TMessageMapEntry kHandlers[] = {
            On<&TPage::OnType>(ENotify::SelChange, kType),
            On<&TPage::OnKind>(ENotify::SelChange, kKind),
            On<&TPage::OnTriggerMode>(ENotify::Clicked, kAt),
            On<&TPage::OnTriggerMode>(ENotify::Clicked, kWhen),
            On<&TPage::OnFindChoice>(ENotify::Clicked, kFindX),
            On<&TPage::OnFindChoice>(ENotify::Clicked, kFindValue),
            On<&TPage::OnWhenRow>(ENotify::Clicked, kXRow),
            On<&TPage::OnWhenRow>(ENotify::Clicked, kValueRow),
            On<&TPage::OnWhenRow>(ENotify::Clicked, kSignalRow),
        };
        return kHandlers;
    }

    void DoDataExchange(CDataExchange* pDX) override
    {
        CCommandPage::DoDataExchange(pDX);
        DDX_Control(pDX, kAnalysis, mAnalysis);
        DDX_Text(pDX, kResultName, mFields.msResultName);
        DDX_Control(pDX, kType, mType);
        DDX_Check(pDX, kSuppress, mFields.mnSuppress);
        DDX_Text(pDX, kGoal, mFields.msGoal);
        DDX_Text(pDX, kMinimumValue, mFields.msMinimumValue);
        DDX_Text(pDX, kWeight, mFields.msWeight);
        DDX_Text(pDX, kAtValue, mFields.msAtValue);
        ExchangeEvent(pDX, kTrigger, mFields.mTrigger, mTriggerLists);
        ExchangeEvent(pDX, kTarget, mFields.mTarget, mTargetLists);
        DDX_Control(pDX, kKind, mKind);
        DDX_Text(pDX, kOutputSignal, mFields.msOutputSignal);
        DDX_Text(pDX, kReportedSignal, mFields.msReportedSignal);
        DDX_Text(pDX, kFrom, mFields.msFrom);
        DDX_Text(pDX, kTo, mFields.msTo);
        DDX_Text(pDX, kFirstSignal, mFields.msFirstSignal);
        DDX_Text(pDX, kSecondSignal, mFields.msSecondSignal);
        DDX_Text(pDX, kFindSignal, mFields.msFindSignal);
        DDX_Text(pDX, kWhenX, mFields.msWhenX);
        ExchangeEvent(pDX, kValueEvent, mFields.mValueEvent, mValueLists);
        ExchangeEvent(pDX, kSignalEvent, mFields.mSignalEvent, mSignalLists);
        DDX_Text(pDX, kExpression, mFields.msExpression);
    }

    bool OnInitDialog() override
    {
        CDialog::OnInitDialog();
        mFields = sRemembered.Get();
        ShowChoices();
        UpdateData(false);
        OnTriggerMode(mFields.mnTriggerMode);
        OnFindChoice(mFields.mnFindChoice);
        OnWhenRow(mFields.mnWhenRow);
        OnType();
        OnKind();
        return true;
    }

    bool BuildCommand(CString& rsCommand) override
    {
        Read();
        gTrimLeft(mFields.msResultName, mFields.msGoal, mFields.msWeight, mFields.msMinimumValue);
        if (mFields.msResultName.IsEmpty())
            return gReportFailure(*this, msMessage, "__$$Translatable$$_Missing result name.");
        // Meant: written at once, so that a check that fails below leaves it there.
        rsCommand = ".measure ";
        rsCommand += kAnalyses[mFields.mnAnalysis].pKeyword;
        rsCommand += " " + mFields.msResultName;
        if (const char* const pMissing = AppendMeasurement(mFields, mKind.GetCurSel(), rsCommand))
            return gReportFailure(*this, msMessage, pMissing);
        AppendOptions(mFields, rsCommand);
        sRemembered.Set(mFields);
        return true;
    }

private:
    static void ExchangeEvent(CDataExchange* pDX, int nId, TEvent& rEvent, TEventLists& rLists)
    {
        DDX_Text(pDX, IdOf(nId, kSignal), rEvent.msSignal);
        DDX_Text(pDX, IdOf(nId, kOther), rEvent.msOther);
        DDX_Control(pDX, IdOf(nId, kCrossingKind), rLists.mKind);
        DDX_Control(pDX, IdOf(nId, kCrossingNumber), rLists.mNumber);
        DDX_Text(pDX, IdOf(nId, kDelay), rEvent.msDelay);
    }

    static void ShowEvent(const TEvent& rEvent, TEventLists& rLists)
    {
        rLists.mKind.SetCurSel(rEvent.mnKind);
        rLists.mNumber.SetCurSel(rEvent.mnNumber);
    }

    static void ReadEvent(TEvent& rEvent, const TEventLists& rLists)
    {
        rEvent.mnKind = rLists.mKind.GetCurSel();
        rEvent.mnNumber = rLists.mNumber.GetCurSel();
    }

    void ShowChoices()
    {
        mAnalysis.SetCurSel(mFields.mnAnalysis);
        mType.SetCurSel(mFields.mnType);
        ShowEvent(mFields.mTrigger, mTriggerLists);
        ShowEvent(mFields.mTarget, mTargetLists);
        ShowEvent(mFields.mValueEvent, mValueLists);
        ShowEvent(mFields.mSignalEvent, mSignalLists);
        CheckRadioButton(kAt, kWhen, mFields.mnTriggerMode);
        CheckRadioButton(kFindX, kFindValue, mFields.mnFindChoice);
        CheckRadioButton(kXRow, kSignalRow, mFields.mnWhenRow);
    }

    void Read()
    {
        UpdateData(true);
        mFields.mnAnalysis = mAnalysis.GetCurSel();
        mFields.mnType = mType.GetCurSel();
        ReadEvent(mFields.mTrigger, mTriggerLists);
        ReadEvent(mFields.mTarget, mTargetLists);
        ReadEvent(mFields.mValueEvent, mValueLists);
        ReadEvent(mFields.mSignalEvent, mSignalLists);
        mFields.mnTriggerMode = GetCheckedRadioButton(kAt, kWhen);
        mFields.mnFindChoice = GetCheckedRadioButton(kFindX, kFindValue);
        mFields.mnWhenRow = GetCheckedRadioButton(kXRow, kSignalRow);
    }

    // --- what a choice shows

    EType Type() const { return static_cast<EType>(mType.GetCurSel()); }

    void OnType()
    {
        const EType type = Type();
        for (const TLabel& rLabel : kLabels)
            if (rLabel.nLayers & LayerOf(type))
                gSetFieldLabel(*this, rLabel.nField, gShownText(rLabel.pLiteral));
        if (type == kDifference)
            GetDlgItem(kTargetGroup)->SetWindowText(gShownText("__$$Translatable$$_Target"));
        if (LayerOf(type) & kRangeLayers)
            GetDlgItem(kOptionalGroup)->SetWindowText(gShownText("__$$Translatable$$_Optional"));
        if (type == kStatistics)
            FillKinds(kStatisticsKinds);
        if (type == kErrorFunction)
            FillKinds(kErrorKinds);
        gShowLayers(*this, LayerOf(type));
        OnKind();
    }

    void FillKinds(std::span<const TEntry> kinds)
    {
        mKind.ResetContent();
        for (const TEntry& rKind : kinds)
            mKind.AddString(gShownText(rKind.pEntry));
        mKind.SetCurSel(0);
    }

    void OnKind()
    {
        if (Type() != kStatistics)
            return;
        const int nKind = mKind.GetCurSel();
        const bool bReports = nKind == kMaximum || nKind == kMinimum;
        gSetFieldLabel(*this, kOutputSignal,
                       gShownText(bReports ? kMeasuredSignalLabel : kOutputSignalLabel));
        gShowField(*this, kReportedSignal, bReports);
    }

    // --- what a choice enables

    void EnableEvent(int nId, bool bEnable)
    {
        for (const EEventField field : {kSignal, kOther, kCrossingKind, kCrossingNumber, kDelay})
            gEnableField(*this, IdOf(nId, field), bEnable);
    }

    void OnTriggerMode(int nMode)
    {
        gEnableField(*this, kAtValue, nMode == kAt);
        EnableEvent(kTrigger, nMode == kWhen);
    }

    void OnFindChoice(int nChoice) { gEnableField(*this, kFindSignal, nChoice == kFindValue); }

    void OnWhenRow(int nRow)
    {
        GetDlgItem(kFindX)->EnableWindow(nRow != kXRow);
        gEnableField(*this, kWhenX, nRow == kXRow);
        EnableEvent(kValueEvent, nRow == kValueRow);
        EnableEvent(kSignalEvent, nRow == kSignalRow);
        if (nRow != kXRow)
            return;
        // At an x-value there is only a value to be found.
        CheckRadioButton(kFindX, kFindValue, kFindValue);
        OnFindChoice(kFindValue);
    }

    CString msMessage;
    CComboBox mAnalysis;
    CComboBox mType;
    TEventLists mTriggerLists;
    TEventLists mTargetLists;
    CComboBox mKind;
    TEventLists mValueLists;
    TEventLists mSignalLists;
    TFields mFields;
};

template const CRuntimeClass& gRuntimeClass<COutputMeasurePage>();
