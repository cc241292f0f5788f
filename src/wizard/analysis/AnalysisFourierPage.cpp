#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/frame/PageText.h"
#include "wizard/frame/Remembered.h"

namespace
{
enum EControlId {
    kBaseFrequency = 1001,
    kNumberOfFrequencies,
    kNumberOfPoints,
    kSignals,
    kInterpolate,
};

constexpr TColumns kFields{.nField = 155};
constexpr auto kRows = PageRows(
    EditLine(kFields, kBaseFrequency, "base-frequency", "&Base frequency:"),
    EditLine(kFields, kNumberOfFrequencies, "number-of-frequencies",
             "&Number of frequencies (default is 9):"),
    EditLine(kFields, kNumberOfPoints, "number-of-points", "N&umber of points (default is 100):"),
    WideEdit(kSignals, "signals", "&Signals to be transformed:"),
    CheckLine(kInterpolate, "interpolate", "In&terpolate time domain data"));
constexpr DialogTemplate kTemplate{"Fourier", kPageSize, kRows};

struct TFields {
    CString msBaseFrequency;
    CString msNumberOfFrequencies;
    CString msNumberOfPoints;
    CString msSignals;
    int mnInterpolate = 0;
};

Remembered<TFields> sRemembered;
} // namespace

/// Builds ".four " and what is to be transformed from a transient result.
class CAnalysisFourierPage : public CCommandPage
{
public:
    CAnalysisFourierPage() : CCommandPage(kTemplate) {}

    TMessageMap GetMessageMap() const override { return {}; }

    void DoDataExchange(CDataExchange* pDX) override
    {
        CCommandPage::DoDataExchange(pDX);
        DDX_Text(pDX, kBaseFrequency, mFields.msBaseFrequency);
        DDX_Text(pDX, kNumberOfFrequencies, mFields.msNumberOfFrequencies);
        DDX_Text(pDX, kNumberOfPoints, mFields.msNumberOfPoints);
        DDX_Text(pDX, kSignals, mFields.msSignals);
        DDX_Check(pDX, kInterpolate, mFields.mnInterpolate);
    }

    bool OnInitDialog() override
    {
        CDialog::OnInitDialog();
        mFields = sRemembered.Get();
        mFields.mnInterpolate = 1; // Meant: the box comes up checked, whatever it was
        sRemembered.Set(mFields);
        UpdateData(false);
        return true;
    }

    bool BuildCommand(CString& rsCommand) override
    {
        UpdateData(true);
        gTrimLeft(mFields.msBaseFrequency, mFields.msNumberOfFrequencies, mFields.msNumberOfPoints,
                  mFields.msSignals);
        if (mFields.msBaseFrequency.IsEmpty())
            return gReportFailure(*this, msMessage, "__$$Translatable$$_Missing base frequency.");
        if (mFields.msSignals.IsEmpty())
            return gReportFailure(*this, msMessage, "__$$Translatable$$_Missing plot list.");
        rsCommand = ".four " + mFields.msBaseFrequency + " " + mFields.msSignals;
        gAppendIfAny(rsCommand, " nfreqs=", mFields.msNumberOfFrequencies);
        gAppendIfAny(rsCommand, " npoints=", mFields.msNumberOfPoints);
        rsCommand += mFields.mnInterpolate != 0 ? " interpolate=1" : " interpolate=0";
        sRemembered.Set(mFields);
        return true;
    }

private:
    CString msMessage;
    TFields mFields;
};

template const CRuntimeClass& gRuntimeClass<CAnalysisFourierPage>();
