#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/frame/PageText.h"
#include "wizard/frame/Remembered.h"
#include "wizard/sources/ACValues.h"
#include "wizard/sources/SourceForm.h"
#include "wizard/sources/SourceHead.h"
#include "wizard/sources/SourceTwin.h"
#include "wizard/sources/WaveformSource.h"

// The pages of a current and a voltage source that rises and falls exponentially.

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
    const TSourceTwin& source;
    const char* pMissingInitial;
};

constexpr TTwin kCurrent{
    .source = kCurrentSource,
    .pMissingInitial = "__$$Translatable$$_Missing initial current.",
};
constexpr TTwin kVoltage{
    .source = kVoltageSource,
    .pMissingInitial = "__$$Translatable$$_Missing initial voltage.",
};

constexpr auto Rows(const TTwin& rTwin)
{
    constexpr TColumns kDelays{.nField = 86, .nUnit = 124};
    constexpr TColumns kConstants{.nField = 197};
    return PageRows(
        NameBesideDC(kDCWithoutFrame, rTwin.source),
        LevelsBesideAC(rTwin.source, {.nGroup = kLevelsGroup, .nInitial = kInitial, .nPeak = kPeak},
                       "Ini&tial:"),
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

struct TFields {
    TSourceHead mHead;
    CString msInitial;
    CString msPeak;
    CString msRiseDelay;
    CString msRiseTimeConstant;
    CString msFallDelay;
    CString msFallTimeConstant;
    TACValues mAC;
    CString msDC;
};

Remembered<TFields> sCurrent;
Remembered<TFields> sVoltage;

class ExponentialForm : public SourceForm<TFields, TTwin>
{
public:
    using SourceForm::SourceForm;

    void Exchange(CDataExchange* pDX)
    {
        DDX_SourceHead(pDX, mFields.mHead);
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
        TSourceHead& rHead = mFields.mHead;
        gTrim(rHead.msName, rHead.msPositiveTerminal, mFields.msInitial, mFields.msPeak);
        gFillIfEmpty(rHead.msNegativeTerminal, kGround);
        gFillIfEmpty(mFields.msRiseDelay, "0");
        if (!AreFilled({{rHead.msName, mrTwin.source.pMissingName},
                        {rHead.msPositiveTerminal, kMissingPositiveTerminal},
                        {mFields.msInitial, mrTwin.pMissingInitial},
                        {mFields.msPeak, mrTwin.source.pMissingPeak}}))
            return false;
        rsCommand = gHeadWithDC(rHead, mFields.msDC) + " EXP (" + mFields.msInitial + " " +
                    mFields.msPeak + " " + mFields.msRiseDelay;
        gPrefixSourceLetter(rsCommand, rHead.msName, mrTwin.source.chLetter);
        if (!AppendRest(rsCommand))
            return false; // Meant: the line so far stays
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
        : CCommandPage(kCurrentTemplate), mForm(*this, kCurrent, sCurrent)
    {
    }

    TMessageMap GetMessageMap() const override { return {}; }
    void DoDataExchange(CDataExchange* pDX) override { mForm.Exchange(pDX); }
    bool OnInitDialog() override { return mForm.InitDialog(); }
    bool BuildCommand(CString& rsCommand) override { return mForm.Build(rsCommand); }

private:
    ExponentialForm mForm;
};

/// Builds the line of a voltage source that rises and falls exponentially.
class CVoltageSourceExponentialPage : public CCommandPage
{
public:
    CVoltageSourceExponentialPage()
        : CCommandPage(kVoltageTemplate), mForm(*this, kVoltage, sVoltage)
    {
    }

    TMessageMap GetMessageMap() const override { return {}; }
    void DoDataExchange(CDataExchange* pDX) override { mForm.Exchange(pDX); }
    bool OnInitDialog() override { return mForm.InitDialog(); }
    bool BuildCommand(CString& rsCommand) override { return mForm.Build(rsCommand); }

private:
    ExponentialForm mForm;
};

template const CRuntimeClass& gRuntimeClass<CCurrentSourceExponentialPage>();
template const CRuntimeClass& gRuntimeClass<CVoltageSourceExponentialPage>();
