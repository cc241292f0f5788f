#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "platform/ui/Translate.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/frame/PageText.h"

namespace
{
enum EControlId {
    kDecade = 1001,
    kOctave,
    kLinear,
    kSamplesGroup,
    kNumberOfSamples,
    kRangeGroup,
    kStartFrequency,
    kFinalFrequency,
};

constexpr TColumns kFrom{.nField = 42};
constexpr TColumns kTo{.nField = 153};
constexpr auto kRows = PageRows(
    RadioLines("sampling-type", TChoice{kDecade, "&DEC  (by decades)"},
               TChoice{kOctave, "&OCT  (by octaves)"}, TChoice{kLinear, "&LIN  (linear sweep)"}),
    GroupBox(kSamplesGroup, "samples-group", "Frequencies per decade",
             Beside(130, BareEdit(kNumberOfSamples, "number-of-samples"), Space(0))),
    GroupBox(kRangeGroup, "range-group", "Frequency range",
             Beside(130, EditLine(kFrom, kStartFrequency, "start-frequency", "F&rom:"),
                    EditLine(kTo, kFinalFrequency, "final-frequency", "&To:"))));
constexpr DialogTemplate kTemplate{"AC analysis", kPageSize, kRows};

const char* SamplesLabel(int nSamplingType)
{
    switch (nSamplingType) {
    case kOctave:
        return "__$$Translatable$$_Frequencies per octave";
    case kLinear:
        return "__$$Translatable$$_Number of frequencies";
    default:
        return "__$$Translatable$$_Frequencies per decade";
    }
}

const char* Keyword(int nSamplingType)
{
    switch (nSamplingType) {
    case kOctave:
        return "OCT ";
    case kLinear:
        return "LIN ";
    default:
        return "DEC ";
    }
}
} // namespace

/// Builds ".ac " and a range of frequencies, its keyword in capitals.
/// No node of the wizard's tree leads here.
class CAnalysisACPage : public CCommandPage
{
public:
    CAnalysisACPage() : CCommandPage(kTemplate) {}

    TMessageMap GetMessageMap() const override
    {
        static constexpr TMessageMapEntry kHandlers[] = {
            On<&CAnalysisACPage::OnSamplingType>(ENotify::Clicked, kDecade),
            On<&CAnalysisACPage::OnSamplingType>(ENotify::Clicked, kOctave),
            On<&CAnalysisACPage::OnSamplingType>(ENotify::Clicked, kLinear),
        };
        return kHandlers;
    }

    void DoDataExchange(CDataExchange* pDX) override
    {
        CCommandPage::DoDataExchange(pDX);
        DDX_Text(pDX, kNumberOfSamples, msNumberOfSamples);
        DDX_Text(pDX, kStartFrequency, msStartFrequency);
        DDX_Text(pDX, kFinalFrequency, msFinalFrequency);
    }

    bool OnInitDialog() override
    {
        CDialog::OnInitDialog();
        CheckRadioButton(kDecade, kLinear, mnSamplingType);
        return true;
    }

    bool BuildCommand(CString& rsCommand) override
    {
        UpdateData(true);
        gTrim(msNumberOfSamples, msStartFrequency, msFinalFrequency);
        if (msNumberOfSamples.IsEmpty())
            return gReportFailure(*this, msMessage,
                                  "__$$Translatable$$_Missing number of frequency samples.");
        if (msStartFrequency.IsEmpty())
            return gReportFailure(*this, msMessage,
                                  "__$$Translatable$$_Missing starting frequency.");
        if (msFinalFrequency.IsEmpty())
            return gReportFailure(*this, msMessage, "__$$Translatable$$_Missing final frequency.");
        rsCommand = CString(".ac ") + Keyword(mnSamplingType) + msNumberOfSamples + " " +
                    msStartFrequency + " " + msFinalFrequency;
        return true;
    }

private:
    void OnSamplingType(int nId)
    {
        mnSamplingType = nId;
        GetDlgItem(kSamplesGroup)->SetWindowText(xlang::gTranslate(SamplesLabel(nId)));
    }

    CString msMessage;
    CString msNumberOfSamples;
    CString msStartFrequency;
    CString msFinalFrequency;
    int mnSamplingType = kDecade;
};

template const CRuntimeClass& gRuntimeClass<CAnalysisACPage>();
