#include "wizard/analysis/AnalysisACPage.h"

#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "platform/ui/TemplateRows.h"
#include "platform/ui/Translate.h"
#include "wizard/frame/PageText.h"

namespace
{
// The ids of the radio buttons stand before these.
enum EControlId {
    kSamplesGroup = 1011,
    kNumberOfSamples,
    kRangeGroup,
    kStartFrequency,
    kFinalFrequency,
};

constexpr TControlRow SamplingType(int nId, const char* pLabel, unsigned nFlags = kNoFlags)
{
    return Row(nId, "sampling-type", EControl::RadioButton, pLabel,
               {7, 7 + (nId - CAnalysisACPage::kDecade) * 14, 100, 12}, nFlags);
}

constexpr TGrid kFrom{14, 24, 42, 74, 0, 0, 113, 0};
constexpr TGrid kTo{133, 16, 153, 74, 0, 0, 113, 0};
constexpr auto kRows =
    JoinRows(SamplingType(CAnalysisACPage::kDecade, "&DEC  (by decades)", kFirstOfGroup),
             SamplingType(CAnalysisACPage::kOctave, "&OCT  (by octaves)"),
             SamplingType(CAnalysisACPage::kLinear, "&LIN  (linear sweep)"),
             Row(kSamplesGroup, "samples-group", EControl::Group, "Frequencies per decade",
                 {7, 55, 235, 36}),
             Row(kNumberOfSamples, "number-of-samples", EControl::Edit, "",
                 {42, 71, 74, kEditHeight}, kUnlabelled),
             Row(kRangeGroup, "range-group", EControl::Group, "Frequency range", {7, 97, 235, 36}),
             EditLine(kFrom, 0, kStartFrequency, "start-frequency", "F&rom:"),
             EditLine(kTo, 0, kFinalFrequency, "final-frequency", "&To:"));
constexpr DialogTemplate kTemplate{119, "AC analysis", kPageSize, kRows};

const char* SamplesLabel(int nSamplingType)
{
    switch (nSamplingType) {
    case CAnalysisACPage::kOctave:
        return "__$$Translatable$$_Frequencies per octave";
    case CAnalysisACPage::kLinear:
        return "__$$Translatable$$_Number of frequencies";
    default:
        return "__$$Translatable$$_Frequencies per decade";
    }
}

const char* Keyword(int nSamplingType)
{
    switch (nSamplingType) {
    case CAnalysisACPage::kOctave:
        return "OCT ";
    case CAnalysisACPage::kLinear:
        return "LIN ";
    default:
        return "DEC ";
    }
}
} // namespace

CAnalysisACPage::CAnalysisACPage() : CCommandPage(kTemplate) {}

TMessageMap CAnalysisACPage::GetMessageMap() const
{
    static constexpr TMessageMapEntry kHandlers[] = {
        On<&CAnalysisACPage::OnSamplingType>(ENotify::Clicked, kDecade),
        On<&CAnalysisACPage::OnSamplingType>(ENotify::Clicked, kOctave),
        On<&CAnalysisACPage::OnSamplingType>(ENotify::Clicked, kLinear),
    };
    return kHandlers;
}

void CAnalysisACPage::DoDataExchange(CDataExchange* pDX)
{
    CCommandPage::DoDataExchange(pDX);
    DDX_Text(pDX, kNumberOfSamples, msNumberOfSamples);
    DDX_Text(pDX, kStartFrequency, msStartFrequency);
    DDX_Text(pDX, kFinalFrequency, msFinalFrequency);
}

bool CAnalysisACPage::OnInitDialog()
{
    CDialog::OnInitDialog();
    CheckRadioButton(kDecade, kLinear, mnSamplingType);
    return true;
}

void CAnalysisACPage::OnSamplingType(int nId)
{
    mnSamplingType = nId;
    GetDlgItem(kSamplesGroup)->SetWindowText(xlang::gTranslate(SamplesLabel(nId)));
}

bool CAnalysisACPage::BuildCommand(CString& rsCommand)
{
    UpdateData(true);
    for (CString* pField : {&msNumberOfSamples, &msStartFrequency, &msFinalFrequency})
        gTrim(*pField);
    if (msNumberOfSamples.IsEmpty())
        return gReportFailure(*this, msMessage,
                              "__$$Translatable$$_Missing number of frequency samples.");
    if (msStartFrequency.IsEmpty())
        return gReportFailure(*this, msMessage, "__$$Translatable$$_Missing starting frequency.");
    if (msFinalFrequency.IsEmpty())
        return gReportFailure(*this, msMessage, "__$$Translatable$$_Missing final frequency.");
    rsCommand = CString(".ac ") + Keyword(mnSamplingType) + msNumberOfSamples + " " +
                msStartFrequency + " " + msFinalFrequency;
    return true;
}

template const CRuntimeClass& gRuntimeClass<CAnalysisACPage>();
