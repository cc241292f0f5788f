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

// The pages of a current and a voltage source with a pulse waveform.

namespace
{
enum EControlId {
    kLevelsGroup = kFirstSourceField,
    kInitial,
    kPeak,
    kPulseGroup,
    kRiseTime,
    kFallTime,
    kWidth,
    kPeriod,
    kDelay,
    kRounding,
};

struct TTwin {
    const TSourceTwin& source;
    bool bTrimsDC; ///< on the left
};

constexpr TTwin kCurrent{.source = kCurrentSource, .bTrimsDC = true};
constexpr TTwin kVoltage{.source = kVoltageSource, .bTrimsDC = false};

constexpr auto ThreeTimes(const TBlock<3>& rFirst, const TBlock<3>& rSecond,
                          const TBlock<3>& rThird)
{
    return Beside(87, rFirst, Beside(158, rSecond, rThird));
}

constexpr auto Rows(const TTwin& rTwin)
{
    // The left edges of the units in the three columns of times.
    constexpr int kOne = 69;
    constexpr int kTwo = 140;
    constexpr int kThree = 212;
    return PageRows(GroupBox(
        kWholeGroup, "pulse-source-group", "Pulse source",
        Tight(
            NameBesideDC(kDCInFrame, rTwin.source),
            LevelsBesideAC(rTwin.source,
                           {.nGroup = kLevelsGroup, .nInitial = kInitial, .nPeak = kPeak},
                           "Ini&tial (0):"),
            GroupBox(kPulseGroup, "pulse-waveform-group", "Pulse waveform",
                     Tight(ThreeTimes(WideEdit(kRiseTime, "rise-time", "&Rise time:", "sec", kOne),
                                      WideEdit(kFallTime, "fall-time", "&Fall time:", "sec", kTwo),
                                      WideEdit(kWidth, "width", "P&ulse width:", "sec", kThree)),
                           ThreeTimes(WideEdit(kPeriod, "period", "Pu&lse period:", "sec", kOne),
                                      WideEdit(kDelay, "delay", "Initi&al delay (0):", "sec", kTwo),
                                      WideEdit(kRounding, "rounding",
                                               "C&orner rounding (0):", "sec", kThree)))))));
}

constexpr auto kCurrentRows = Rows(kCurrent);
constexpr auto kVoltageRows = Rows(kVoltage);
constexpr DialogTemplate kCurrentTemplate{"Pulse", kPageSize, kCurrentRows};
constexpr DialogTemplate kVoltageTemplate{"Pulse", kPageSize, kVoltageRows};

struct TFields {
    TSourceHead mHead;
    CString msInitial;
    CString msPeak;
    CString msRiseTime;
    CString msFallTime;
    CString msWidth;
    CString msPeriod;
    CString msDelay;
    CString msRounding;
    TACValues mAC;
    CString msDC;
};

Remembered<TFields> sCurrent;
Remembered<TFields> sVoltage;

class PulseForm : public SourceForm<TFields, TTwin>
{
public:
    using SourceForm::SourceForm;

    void Exchange(CDataExchange* pDX)
    {
        DDX_SourceHead(pDX, mFields.mHead);
        DDX_Text(pDX, kInitial, mFields.msInitial);
        DDX_Text(pDX, kPeak, mFields.msPeak);
        DDX_Text(pDX, kRiseTime, mFields.msRiseTime);
        DDX_Text(pDX, kFallTime, mFields.msFallTime);
        DDX_Text(pDX, kWidth, mFields.msWidth);
        DDX_Text(pDX, kPeriod, mFields.msPeriod);
        DDX_Text(pDX, kDelay, mFields.msDelay);
        DDX_Text(pDX, kRounding, mFields.msRounding);
        DDX_ACValues(pDX, mFields.mAC);
        DDX_Text(pDX, kDCValue, mFields.msDC);
    }

    bool Build(CString& rsCommand)
    {
        Read();
        TSourceHead& rHead = mFields.mHead;
        gTrim(rHead.msName, rHead.msPositiveTerminal, mFields.msPeak);
        if (mrTwin.bTrimsDC)
            gTrimLeft(mFields.msDC);
        gFillIfEmpty(rHead.msNegativeTerminal, kGround);
        gFillIfEmpty(mFields.msInitial, "0");
        if (!AreFilled({{rHead.msName, mrTwin.source.pMissingName},
                        {rHead.msPositiveTerminal, kMissingPositiveTerminal},
                        {mFields.msPeak, mrTwin.source.pMissingPeak}}))
            return false;
        rsCommand = gHeadWithDC(rHead, mFields.msDC) + " PULSE (" + mFields.msInitial + " " +
                    mFields.msPeak;
        gPrefixSourceLetter(rsCommand, rHead.msName, mrTwin.source.chLetter);
        if (!AppendTimes(rsCommand))
            return false; // Meant: the line so far stays
        rsCommand += ")";
        gAppendIfAny(rsCommand, " ROUND=", mFields.msRounding);
        gAppendACWithBlankBefore(rsCommand, mFields.mAC);
        Remember();
        return true;
    }

private:
    /// The delay, and as many of rise, fall, width and period as the last one given demands.
    bool AppendTimes(CString& rsCommand)
    {
        const TRequiredField rise{mFields.msRiseTime,
                                  "__$$Translatable$$_Missing rise time specification."};
        const TRequiredField fall{mFields.msFallTime,
                                  "__$$Translatable$$_Missing fall time specification."};
        const TRequiredField width{mFields.msWidth,
                                   "__$$Translatable$$_Missing pulse width specification."};
        gAppendIfAny(rsCommand, " ", mFields.msDelay);
        const CString sDelaySlot = mFields.msDelay.IsEmpty() ? " 0" : "";
        const CString sRiseAndFall = " " + mFields.msRiseTime + " " + mFields.msFallTime;
        if (!mFields.msPeriod.IsEmpty()) {
            if (!AreFilled({rise, fall, width}))
                return false;
            rsCommand += sDelaySlot + sRiseAndFall + " " + mFields.msWidth + " " + mFields.msPeriod;
        } else if (!mFields.msWidth.IsEmpty()) {
            if (!AreFilled({rise, fall}))
                return false;
            rsCommand += sDelaySlot + sRiseAndFall + " " + mFields.msWidth;
        } else if (!mFields.msFallTime.IsEmpty()) {
            if (!AreFilled({rise}))
                return false;
            rsCommand += sDelaySlot + sRiseAndFall + " "; // Meant: the slot of the empty width
        }
        return true; // Meant: a rise time alone is left out
    }
};
} // namespace

/// Builds the line of a current source with a pulse waveform.
class CCurrentSourcePulsePage : public CCommandPage
{
public:
    CCurrentSourcePulsePage() : CCommandPage(kCurrentTemplate), mForm(*this, kCurrent, sCurrent) {}

    TMessageMap GetMessageMap() const override { return {}; }
    void DoDataExchange(CDataExchange* pDX) override { mForm.Exchange(pDX); }
    bool OnInitDialog() override { return mForm.InitDialog(); }
    bool BuildCommand(CString& rsCommand) override { return mForm.Build(rsCommand); }

private:
    PulseForm mForm;
};

/// Builds the line of a voltage source with a pulse waveform.
class CVoltageSourcePulsePage : public CCommandPage
{
public:
    CVoltageSourcePulsePage() : CCommandPage(kVoltageTemplate), mForm(*this, kVoltage, sVoltage) {}

    TMessageMap GetMessageMap() const override { return {}; }
    void DoDataExchange(CDataExchange* pDX) override { mForm.Exchange(pDX); }
    bool OnInitDialog() override { return mForm.InitDialog(); }
    bool BuildCommand(CString& rsCommand) override { return mForm.Build(rsCommand); }

private:
    PulseForm mForm;
};

template const CRuntimeClass& gRuntimeClass<CCurrentSourcePulsePage>();
template const CRuntimeClass& gRuntimeClass<CVoltageSourcePulsePage>();
