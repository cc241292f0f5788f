#include "platform/ui/ComboBox.h"
#include "platform/ui/DataExchange.h"
#include "platform/ui/Fields.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "platform/ui/Translate.h"
#include "wizard/analysis/SweepSlot.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/frame/PageText.h"
#include "wizard/frame/Remembered.h"

namespace
{
enum EControlId {
    kSamplingType = 1001,
    kSamplesGroup,
    kNumberOfSamples,
    kListOfValues,
    kRangeGroup,
    kStartFrequency,
    kFinalFrequency,
    kCountOfListedValues,
    kSweepGroup,
    kSweep,
};

enum ESamplingType { kLinear, kDecade, kOctave, kList, kPoi };

constexpr const char* kSamplingTypes[] = {"linear", "decade", "octave", "list", "poi"};

// What the types show in each other's place.
constexpr unsigned kRangeLayer = 1;
constexpr unsigned kListLayer = 2;
constexpr unsigned kPoiLayer = 4;

constexpr TColumns kType{.nField = 107};
constexpr TColumns kFrom{.nField = 42};
constexpr TColumns kTo{.nField = 153};
constexpr TColumns kCount{.nField = 137};
constexpr auto kRanges = OnLayers(
    kRangeLayer,
    Lines(GroupBox(kSamplesGroup, "samples-group", "Fr&equencies per linear",
                   Beside(130, BareEdit(kNumberOfSamples, "number-of-samples"), Space(0))),
          GroupBox(kRangeGroup, "range-group", "Frequency range",
                   Beside(130, EditLine(kFrom, kStartFrequency, "start-frequency", "F&rom:"),
                          EditLine(kTo, kFinalFrequency, "final-frequency", "&To:")))));
constexpr auto kListing = Lines(
    OnLayers(kListLayer | kPoiLayer, TextBox(kListOfValues, "list-of-values",
                                             "&List frequency values, separated by spaces:", 78)),
    OnLayers(kPoiLayer, EditLine(kCount, kCountOfListedValues, "count-of-listed-values",
                                 "&Number of frequency values listed:")));
constexpr auto kRows =
    PageRows(DropDownLine(kType, kSamplingType, "sampling-type",
                          "&Frequency sampling type:", kSamplingTypes),
             SameTop(kRanges, kListing),
             GroupBox(kSweepGroup, "sweep-group", "Sweep",
                      SweepLine(kSweep, "sweep", "&Sweep", "sweep-summary-1", "sweep-summary-2")));
constexpr DialogTemplate kTemplate{"AC", kPageSize, kRows};

struct TFields {
    int mnSamplingType = 0;
    CString msNumberOfSamples;
    CString msStartFrequency;
    CString msListOfValues;
    CString msFinalFrequency;
    CString msCountOfListedValues;
};

Remembered<TFields> sRemembered;

unsigned LayerOf(int nType)
{
    switch (nType) {
    case kLinear:
    case kDecade:
    case kOctave:
        return kRangeLayer;
    case kList:
        return kListLayer;
    case kPoi:
        return kPoiLayer;
    default:
        return 0;
    }
}

const char* SamplesLabel(int nType)
{
    switch (nType) {
    case kLinear:
        return "__$$Translatable$$_Fr&equencies per linear";
    case kDecade:
        return "__$$Translatable$$_Fr&equencies per decade";
    case kOctave:
        return "__$$Translatable$$_Fr&equencies per octave";
    default:
        return "";
    }
}
} // namespace

/// Builds ".ac ", the frequencies of a small-signal analysis, and a sweep.
class CAnalysisAC1Page : public CCommandPage
{
public:
    CAnalysisAC1Page() : CCommandPage(kTemplate), mSweep(*this, kSweep) {}

    TMessageMap GetMessageMap() const override
    {
        static constexpr TMessageMapEntry kHandlers[] = {
            On<&CAnalysisAC1Page::OnSamplingType>(ENotify::SelChange, kSamplingType),
            On<&CAnalysisAC1Page::OnSweep>(ENotify::Clicked, kSweep),
        };
        return kHandlers;
    }

    void DoDataExchange(CDataExchange* pDX) override
    {
        CCommandPage::DoDataExchange(pDX);
        DDX_Control(pDX, kSamplingType, mSamplingType);
        DDX_Text(pDX, kNumberOfSamples, mFields.msNumberOfSamples);
        DDX_Text(pDX, kStartFrequency, mFields.msStartFrequency);
        DDX_Text(pDX, kListOfValues, mFields.msListOfValues);
        DDX_Text(pDX, kFinalFrequency, mFields.msFinalFrequency);
        DDX_Text(pDX, kCountOfListedValues, mFields.msCountOfListedValues);
    }

    bool OnInitDialog() override
    {
        CDialog::OnInitDialog();
        mFields = sRemembered.Get();
        mSamplingType.SetCurSel(mFields.mnSamplingType);
        UpdateData(false);
        OnSamplingType();
        return true;
    }

    bool BuildCommand(CString& rsCommand) override
    {
        UpdateData(true);
        mFields.mnSamplingType = mSamplingType.GetCurSel();
        gTrimLeft(mFields.msNumberOfSamples, mFields.msStartFrequency, mFields.msListOfValues,
                  mFields.msFinalFrequency, mFields.msCountOfListedValues);
        rsCommand = ".ac "; // Meant: before the checks, so that a failed one leaves it there
        if (!AppendFrequencies(rsCommand))
            return false;
        if (mSweep.IsUsed())
            rsCommand += " " + mSweep.GetText();
        sRemembered.Set(mFields);
        return true;
    }

private:
    void OnSamplingType()
    {
        const int nType = mSamplingType.GetCurSel();
        const unsigned nLayer = LayerOf(nType);
        const auto label = [this, nLayer](int nField, unsigned nLayers, const char* pLiteral) {
            gSetFieldLabel(*this, nField, nLayer & nLayers ? xlang::gTranslate(pLiteral) : "");
        };
        GetDlgItem(kSamplesGroup)->SetWindowText(gShownText(SamplesLabel(nType)));
        label(kStartFrequency, kRangeLayer, "__$$Translatable$$_F&rom:");
        label(kFinalFrequency, kRangeLayer, "__$$Translatable$$_&To:");
        label(kListOfValues, kListLayer | kPoiLayer,
              "__$$Translatable$$_&List frequency values, separated by spaces:");
        label(kCountOfListedValues, kPoiLayer,
              "__$$Translatable$$_&Number of frequency values listed:");
        gShowLayers(*this, nLayer);
    }

    void OnSweep() { mSweep.Press("sweep "); }

    bool AppendFrequencies(CString& rsCommand)
    {
        switch (mFields.mnSamplingType) {
        case kLinear:
            return AppendRange("lin ", rsCommand);
        case kDecade:
            return AppendRange("dec ", rsCommand);
        case kOctave:
            return AppendRange("oct ", rsCommand);
        case kList:
            if (mFields.msListOfValues.IsEmpty())
                return gReportFailure(*this, msMessage,
                                      "__$$Translatable$$_Missing list of frequency values.");
            rsCommand += "list " + gJoinLines(mFields.msListOfValues);
            return true;
        case kPoi:
            if (mFields.msListOfValues.IsEmpty())
                return gReportFailure(*this, msMessage,
                                      "__$$Translatable$$_Missing list of frequency values.");
            if (mFields.msCountOfListedValues.IsEmpty())
                return gReportFailure(
                    *this, msMessage,
                    "__$$Translatable$$_Missing the number of frequency values listed.");
            rsCommand += "poi " + mFields.msCountOfListedValues + " ";
            rsCommand += gJoinLines(mFields.msListOfValues);
            return true;
        default:
            return true; // nothing is selected
        }
    }

    bool AppendRange(const char* pType, CString& rsCommand)
    {
        if (mFields.msNumberOfSamples.IsEmpty())
            return gReportFailure(*this, msMessage,
                                  "__$$Translatable$$_Missing number of frequency samples.");
        if (mFields.msStartFrequency.IsEmpty())
            return gReportFailure(*this, msMessage,
                                  "__$$Translatable$$_Missing starting frequency.");
        if (mFields.msFinalFrequency.IsEmpty())
            return gReportFailure(*this, msMessage, "__$$Translatable$$_Missing final frequency.");
        rsCommand += pType + mFields.msNumberOfSamples + " " + mFields.msStartFrequency + " " +
                     mFields.msFinalFrequency;
        return true;
    }

    CString msMessage;
    SweepSlot mSweep;
    CComboBox mSamplingType;
    TFields mFields;
};

template const CRuntimeClass& gRuntimeClass<CAnalysisAC1Page>();
