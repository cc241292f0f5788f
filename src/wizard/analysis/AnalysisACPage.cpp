#include "wizard/analysis/AnalysisACPage.h"

#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "platform/ui/Translate.h"
#include "wizard/frame/PageLayout.h"
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

constexpr TColumns kFrom{.nField = 42};
constexpr TColumns kTo{.nField = 153};
constexpr auto kRows = PageRows(
    RadioLine(CAnalysisACPage::kDecade, "sampling-type", "&DEC  (by decades)", kFirstOfGroup),
    RadioLine(CAnalysisACPage::kOctave, "sampling-type", "&OCT  (by octaves)"),
    RadioLine(CAnalysisACPage::kLinear, "sampling-type", "&LIN  (linear sweep)"),
    GroupBox(kSamplesGroup, "samples-group", "Frequencies per decade",
             At(Row(kNumberOfSamples, "number-of-samples", EControl::Edit, "",
                    {42, 0, 82, kEditHeight}, kUnlabelled))),
    GroupBox(kRangeGroup, "range-group", "Frequency range",
             Beside(130, EditLine(kFrom, kStartFrequency, "start-frequency", "F&rom:"),
                    EditLine(kTo, kFinalFrequency, "final-frequency", "&To:"))));
constexpr DialogTemplate kTemplate{"AC analysis", kPageSize, kRows};

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
    gTrim(msNumberOfSamples, msStartFrequency, msFinalFrequency);
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
