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
    kPulseGroup,
    kRiseTime,
    kFallTime,
    kWidth,
    kPeriod,
    kDelay,
    kRounding,
};

struct TTwin {
    TSourceTwin source;
    const char* pMissingName;
    const char* pMissingPeak;
    bool bTrimsDC; ///< on the left
};

constexpr TTwin kCurrent{kCurrentSource, kMissingCurrentSourceName,
                         "__$$Translatable$$_Missing peak current.", true};
constexpr TTwin kVoltage{kVoltageSource, kMissingVoltageSourceName,
                         "__$$Translatable$$_Missing peak voltage.", false};

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
            LevelsBesideAC(rTwin.source, kInitial, "Ini&tial (0):", kPeak, kLevelsGroup),
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

struct TFields : TSourceHead {
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

Remembered<TFields> sCurrentRemembered;
Remembered<TFields> sVoltageRemembered;

class PulseForm : public SourceForm<TFields, TTwin>
{
public:
    using SourceForm::SourceForm;

    void Exchange(CDataExchange* pDX)
    {
        DDX_SourceHead(pDX, mFields);
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
        gTrim(mFields.msName, mFields.msPositiveTerminal, mFields.msPeak);
        if (mrTwin.bTrimsDC)
            gTrimLeft(mFields.msDC);
        gFillIfEmpty(mFields.msNegativeTerminal, "GND");
        gFillIfEmpty(mFields.msInitial, "0");
        if (!AreFilled({{mFields.msName, mrTwin.pMissingName},
                        {mFields.msPositiveTerminal, kMissingPositiveTerminal},
                        {mFields.msPeak, mrTwin.pMissingPeak}}))
            return false;
        rsCommand = gSourceHeadText(mFields);
        gAppendIfAny(rsCommand, " dc ", mFields.msDC);
        rsCommand += " PULSE (" + mFields.msInitial + " " + mFields.msPeak;
        gPrefixSourceLetter(rsCommand, mFields.msName, mrTwin.source.chLetter);
        if (!AppendTimes(rsCommand))
            return false; // meant: the line so far stays
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
            rsCommand += sDelaySlot + sRiseAndFall + " "; // meant: the slot of the empty width
        }
        return true; // meant: a rise time alone is left out
    }
};
} // namespace

/// Builds the line of a current source with a pulse waveform.
class CCurrentSourcePulsePage : public CCommandPage
{
public:
    CCurrentSourcePulsePage()
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
    PulseForm mForm;
};

/// Builds the line of a voltage source with a pulse waveform.
class CVoltageSourcePulsePage : public CCommandPage
{
public:
    CVoltageSourcePulsePage()
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
    PulseForm mForm;
};

template const CRuntimeClass& gRuntimeClass<CCurrentSourcePulsePage>();
template const CRuntimeClass& gRuntimeClass<CVoltageSourcePulsePage>();
