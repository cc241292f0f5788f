#include "platform/base/Ascii.h"
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

// The pages of a current and a voltage source with a sinusoidal waveform.

namespace
{
enum EControlId {
    kWaveformGroup = kFirstSourceField,
    kOffset,
    kPeakAmplitude,
    kFrequency,
    kDelay,
    kDamping,
    kPhaseAdvance,
};

struct TTwin {
    const TSourceTwin& source;
    const char* pOffsetLabel;
    bool bTrimsHeadOnTheRight; ///< name and positive terminal, on the left always
    bool bTrimsDC;             ///< on the left
    const char* pMissingName;
    const char* pMissingPositiveTerminal;
    const char* pMissingPeakAmplitude;
    const char* pMissingFrequency;
};

constexpr TTwin kCurrent{
    .source = kCurrentSource,
    .pOffsetLabel = "C&urrent offset (0):",
    .bTrimsHeadOnTheRight = false,
    .bTrimsDC = true,
    .pMissingName = kCurrentSource.pMissingName,
    .pMissingPositiveTerminal = kMissingPositiveTerminal,
    .pMissingPeakAmplitude = kMissingPeakAmplitude,
    .pMissingFrequency = "__$$Translatable$$_Missing frequency value.",
};
constexpr TTwin kVoltage{
    .source = kVoltageSource,
    .pOffsetLabel = "V&oltage offset (0):",
    .bTrimsHeadOnTheRight = true,
    .bTrimsDC = false,
    // Meant: these messages are shown in English in every language.
    .pMissingName = "Missing voltage source name.",
    .pMissingPositiveTerminal = "Missing positive terminal name.",
    .pMissingPeakAmplitude = "Missing peak amplitude.",
    .pMissingFrequency = "Missing frequency value.",
};

constexpr auto Rows(const TTwin& rTwin)
{
    constexpr TColumns kColumns{.nField = 89, .nUnit = 136};
    const char* const pUnit = rTwin.source.pUnit;
    return PageRows(GroupBox(
        kWholeGroup, "sinusoidal-waveform-group", "Sinusoidal waveform",
        NameBesideDC(kDCInFrame, rTwin.source),
        Beside(
            kDCInFrame,
            GroupBox(
                kWaveformGroup, "waveform-group", "Waveform",
                EditLine(kColumns, kOffset, "offset", rTwin.pOffsetLabel, pUnit),
                EditLine(kColumns, kPeakAmplitude, "peak-amplitude", "P&eak amplitude:", pUnit),
                EditLine(kColumns, kFrequency, "frequency", "&Frequency:", "Hz"),
                EditLine(kColumns, kDelay, "delay", "Dela&y time (0):", "sec"),
                EditLine(kColumns, kDamping, "damping", "D&amping factor (0):", "1/sec"),
                EditLine(kColumns, kPhaseAdvance, "phase-advance", "Pha&se advance (0):", "deg")),
            ACColumn(rTwin.source))));
}

constexpr auto kCurrentRows = Rows(kCurrent);
constexpr auto kVoltageRows = Rows(kVoltage);
constexpr DialogTemplate kCurrentTemplate{"Sinusoidal", kPageSize, kCurrentRows};
constexpr DialogTemplate kVoltageTemplate{"Sinusoidal", kPageSize, kVoltageRows};

struct TFields {
    TSourceHead mHead;
    CString msOffset;
    CString msPeakAmplitude;
    CString msFrequency;
    CString msDelay;
    CString msDamping;
    CString msPhaseAdvance;
    TACValues mAC;
    CString msDC;
};

Remembered<TFields> sCurrent;
Remembered<TFields> sVoltage;

class SinusoidalForm : public SourceForm<TFields, TTwin>
{
public:
    using SourceForm::SourceForm;

    void Exchange(CDataExchange* pDX)
    {
        DDX_SourceHead(pDX, mFields.mHead);
        DDX_Text(pDX, kOffset, mFields.msOffset);
        DDX_Text(pDX, kPeakAmplitude, mFields.msPeakAmplitude);
        DDX_Text(pDX, kFrequency, mFields.msFrequency);
        DDX_Text(pDX, kDelay, mFields.msDelay);
        DDX_Text(pDX, kDamping, mFields.msDamping);
        DDX_Text(pDX, kPhaseAdvance, mFields.msPhaseAdvance);
        DDX_ACValues(pDX, mFields.mAC);
        DDX_Text(pDX, kDCValue, mFields.msDC);
    }

    bool Build(CString& rsCommand)
    {
        Read();
        TSourceHead& rHead = mFields.mHead;
        gTrimLeft(rHead.msName, rHead.msPositiveTerminal);
        if (mrTwin.bTrimsHeadOnTheRight)
            gTrim(rHead.msName, rHead.msPositiveTerminal);
        if (mrTwin.bTrimsDC)
            gTrimLeft(mFields.msDC);
        gFillIfEmpty(rHead.msNegativeTerminal, kGround);
        if (!AreFilled({{rHead.msName, mrTwin.pMissingName},
                        {rHead.msPositiveTerminal, mrTwin.pMissingPositiveTerminal}}))
            return false;
        rsCommand = gHeadWithDC(rHead, mFields.msDC) + " SIN (";
        PrefixLetter(rsCommand, rHead.msName);
        rsCommand += mFields.msOffset;
        if (!(IsSimple() ? AppendSimple(rsCommand) : AppendExtended(rsCommand)))
            return false; // Meant: the line so far stays
        rsCommand += ")";
        gAppendACWithBlankBefore(rsCommand, mFields.mAC);
        Remember();
        return true;
    }

private:
    /// Meant: a name that begins with the capital letter gets a second one, unless it is no longer.
    void PrefixLetter(CString& rsCommand, const CString& rsName) const
    {
        const char chCapital = mrTwin.source.chLetter;
        if (rsName[0] != gToLowerAscii(chCapital) && rsName != CString(chCapital))
            rsCommand.Insert(0, chCapital);
    }

    bool IsSimple() const
    {
        return mFields.msDelay.IsEmpty() && mFields.msDamping.IsEmpty() &&
               mFields.msPhaseAdvance.IsEmpty();
    }

    /// The amplitude behind the offset, which may not be missing before it.
    void AppendAmplitude(CString& rsCommand)
    {
        if (mFields.msOffset.IsEmpty())
            rsCommand += "0";
        rsCommand += " " + mFields.msPeakAmplitude;
    }

    bool AppendSimple(CString& rsCommand)
    {
        if (mFields.msPeakAmplitude.IsEmpty() && mFields.msFrequency.IsEmpty())
            return true;
        if (!AreFilled({{mFields.msPeakAmplitude, mrTwin.pMissingPeakAmplitude}}))
            return false;
        AppendAmplitude(rsCommand);
        gAppendIfAny(rsCommand, " ", mFields.msFrequency);
        return true;
    }

    bool AppendExtended(CString& rsCommand)
    {
        if (!AreFilled({{mFields.msPeakAmplitude, mrTwin.pMissingPeakAmplitude},
                        {mFields.msFrequency, mrTwin.pMissingFrequency}}))
            return false;
        AppendAmplitude(rsCommand);
        rsCommand += " " + mFields.msFrequency;
        // What stands before a value may not be missing; what fills its place stays in the field.
        if (!mFields.msPhaseAdvance.IsEmpty())
            gFillIfEmpty(mFields.msDamping, "0");
        gFillIfEmpty(mFields.msDelay, "0");
        rsCommand += " " + mFields.msDelay;
        gAppendIfAny(rsCommand, " ", mFields.msDamping);
        gAppendIfAny(rsCommand, " ", mFields.msPhaseAdvance);
        return true;
    }
};
} // namespace

/// Builds the line of a current source with a sinusoidal waveform.
class CCurrentSourceSinusoidalPage : public CCommandPage
{
public:
    CCurrentSourceSinusoidalPage()
        : CCommandPage(kCurrentTemplate), mForm(*this, kCurrent, sCurrent)
    {
    }

    TMessageMap GetMessageMap() const override { return {}; }
    void DoDataExchange(CDataExchange* pDX) override { mForm.Exchange(pDX); }
    bool OnInitDialog() override { return mForm.InitDialog(); }
    bool BuildCommand(CString& rsCommand) override { return mForm.Build(rsCommand); }

private:
    SinusoidalForm mForm;
};

/// Builds the line of a voltage source with a sinusoidal waveform.
class CVoltageSourceSinusoidalPage : public CCommandPage
{
public:
    CVoltageSourceSinusoidalPage()
        : CCommandPage(kVoltageTemplate), mForm(*this, kVoltage, sVoltage)
    {
    }

    TMessageMap GetMessageMap() const override { return {}; }
    void DoDataExchange(CDataExchange* pDX) override { mForm.Exchange(pDX); }
    bool OnInitDialog() override { return mForm.InitDialog(); }
    bool BuildCommand(CString& rsCommand) override { return mForm.Build(rsCommand); }

private:
    SinusoidalForm mForm;
};

template const CRuntimeClass& gRuntimeClass<CCurrentSourceSinusoidalPage>();
template const CRuntimeClass& gRuntimeClass<CVoltageSourceSinusoidalPage>();
