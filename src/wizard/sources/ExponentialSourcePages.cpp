#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/sources/SourceForm.h"
#include "wizard/sources/WaveformSource.h"

namespace
{
enum EControlId {
    kLevelsGroup = kFirstSourceField,
    kInitial,
    kPeak,
    kRiseGroup,
    kRiseDelay,
    kRiseTimeConstant,
    kFallGroup,
    kFallDelay,
    kFallTimeConstant,
};

struct TTwin {
    TSourceTwin source;
    const char* pMissingName;
    const char* pMissingInitial;
    const char* pMissingPeak;
};

constexpr TTwin kCurrent{kCurrentSource, kMissingCurrentSourceName,
                         "__$$Translatable$$_Missing initial current.",
                         "__$$Translatable$$_Missing peak current."};
constexpr TTwin kVoltage{kVoltageSource, kMissingVoltageSourceName,
                         "__$$Translatable$$_Missing initial voltage.",
                         "__$$Translatable$$_Missing peak voltage."};

constexpr auto Rows(const TTwin& rTwin)
{
    constexpr TColumns kDelays{.nField = 86, .nUnit = 124};
    constexpr TColumns kConstants{.nField = 197};
    return PageRows(
        NameBesideDC(kDCWithoutFrame, rTwin.source),
        LevelsBesideAC(rTwin.source, kInitial, "Ini&tial:", kPeak, kLevelsGroup),
        GroupBox(
            kRiseGroup, "rise-group", "Rise",
            Beside(
                144, EditLine(kDelays, kRiseDelay, "rise-delay", "Dela&y before rise (0):", "sec"),
                EditLine(kConstants, kRiseTimeConstant, "rise-time-constant", "Time c&onstant:"))),
        GroupBox(kFallGroup, "fall-group", "Fall",
                 Beside(144,
                        EditLine(kDelays, kFallDelay, "fall-delay", "De&lay before fall:", "sec"),
                        EditLine(kConstants, kFallTimeConstant, "fall-time-constant",
                                 "Time con&stant:"))));
}

constexpr auto kCurrentRows = Rows(kCurrent);
constexpr auto kVoltageRows = Rows(kVoltage);
constexpr DialogTemplate kCurrentTemplate{"Exponential", kPageSize, kCurrentRows};
constexpr DialogTemplate kVoltageTemplate{"Exponential", kPageSize, kVoltageRows};

struct TFields : TSourceHead {
    CString msInitial;
    CString msPeak;
    CString msRiseDelay;
    CString msRiseTimeConstant;
    CString msFallDelay;
    CString msFallTimeConstant;
    TACValues mAC;
    CString msDC;
};

Remembered<TFields> sCurrentRemembered;
Remembered<TFields> sVoltageRemembered;

class ExponentialForm : public SourceForm<TFields, TTwin>
{
public:
    using SourceForm::SourceForm;

    void Exchange(CDataExchange* pDX)
    {
        DDX_SourceHead(pDX, mFields);
        DDX_Text(pDX, kInitial, mFields.msInitial);
        DDX_Text(pDX, kPeak, mFields.msPeak);
        DDX_Text(pDX, kRiseDelay, mFields.msRiseDelay);
        DDX_Text(pDX, kRiseTimeConstant, mFields.msRiseTimeConstant);
        DDX_Text(pDX, kFallDelay, mFields.msFallDelay);
        DDX_Text(pDX, kFallTimeConstant, mFields.msFallTimeConstant);
        DDX_ACValues(pDX, mFields.mAC);
        DDX_Text(pDX, kDCValue, mFields.msDC);
    }

    bool Build(CString& rsCommand)
    {
        Read();
        gTrim(mFields.msName, mFields.msPositiveTerminal, mFields.msInitial, mFields.msPeak);
        gFillIfEmpty(mFields.msNegativeTerminal, "GND");
        gFillIfEmpty(mFields.msRiseDelay, "0");
        if (!AreFilled({{mFields.msName, mrTwin.pMissingName},
                        {mFields.msPositiveTerminal, kMissingPositiveTerminal},
                        {mFields.msInitial, mrTwin.pMissingInitial},
                        {mFields.msPeak, mrTwin.pMissingPeak}}))
            return false;
        rsCommand = gSourceHeadText(mFields);
        gAppendIfAny(rsCommand, " dc ", mFields.msDC);
        rsCommand +=
            " EXP (" + mFields.msInitial + " " + mFields.msPeak + " " + mFields.msRiseDelay;
        gPrefixSourceLetter(rsCommand, mFields.msName, mrTwin.source.chLetter);
        if (!AppendRest(rsCommand))
            return false; // meant: the line so far stays
        rsCommand += ")";
        gAppendACWithBlankBehind(rsCommand, mFields.mAC);
        Remember();
        return true;
    }

private:
    /// As many of the rise's constant, the fall's delay and its constant as are given; none may be
    /// missing before another.
    bool AppendRest(CString& rsCommand)
    {
        const TRequiredField rise{mFields.msRiseTimeConstant,
                                  "__$$Translatable$$_Missing rise time constant specification."};
        const TRequiredField fall{mFields.msFallDelay,
                                  "__$$Translatable$$_Missing fall time delay specification."};
        if (!mFields.msFallTimeConstant.IsEmpty() && !AreFilled({rise, fall}))
            return false;
        if (!mFields.msFallDelay.IsEmpty() && !AreFilled({rise}))
            return false;
        gAppendIfAny(rsCommand, " ", mFields.msRiseTimeConstant);
        gAppendIfAny(rsCommand, " ", mFields.msFallDelay);
        gAppendIfAny(rsCommand, " ", mFields.msFallTimeConstant);
        return true;
    }
};
} // namespace

/// Builds the line of a current source that rises and falls exponentially.
class CCurrentSourceExponentialPage : public CCommandPage
{
public:
    CCurrentSourceExponentialPage()
        : CCommandPage(kCurrentTemplate), mForm(*this, kCurrent, sCurrentRemembered)
    {
    }

    TMessageMap GetMessageMap() const override { return {}; }

    void DoDataExchange(CDataExchange* pDX) override
    {
        CCommandPage::DoDataExchange(pDX);
        mForm.Exchange(pDX);
    }

    bool OnInitDialog() override
    {
        CDialog::OnInitDialog();
        mForm.Restore();
        return true;
    }

    bool BuildCommand(CString& rsCommand) override { return mForm.Build(rsCommand); }

private:
    ExponentialForm mForm;
};

/// Builds the line of a voltage source that rises and falls exponentially.
class CVoltageSourceExponentialPage : public CCommandPage
{
public:
    CVoltageSourceExponentialPage()
        : CCommandPage(kVoltageTemplate), mForm(*this, kVoltage, sVoltageRemembered)
    {
    }

    TMessageMap GetMessageMap() const override { return {}; }

    void DoDataExchange(CDataExchange* pDX) override
    {
        CCommandPage::DoDataExchange(pDX);
        mForm.Exchange(pDX);
    }

    bool OnInitDialog() override
    {
        CDialog::OnInitDialog();
        mForm.Restore();
        return true;
    }

    bool BuildCommand(CString& rsCommand) override { return mForm.Build(rsCommand); }

private:
    ExponentialForm mForm;
};

template const CRuntimeClass& gRuntimeClass<CCurrentSourceExponentialPage>();
template const CRuntimeClass& gRuntimeClass<CVoltageSourceExponentialPage>();
