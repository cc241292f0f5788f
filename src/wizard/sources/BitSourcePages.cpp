#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/frame/PageText.h"
#include "wizard/frame/Remembered.h"
#include "wizard/sources/ACValues.h"
#include "wizard/sources/BitPattern.h"
#include "wizard/sources/SourceForm.h"
#include "wizard/sources/SourceHead.h"
#include "wizard/sources/SourceTwin.h"
#include "wizard/sources/WaveformSource.h"

// The pages of a current and a voltage source between two terminals that follows a pattern of bits.

namespace
{
struct TTwin {
    const TSourceTwin& source;
    BitPattern::TTexts pattern;
};

constexpr TTwin kCurrent{
    .source = kCurrentSource,
    .pattern = {.pWaveform = "Waveform:",
                .pOnValue = "&ON value (1e-3):",
                .pHighTime = "Hi&gh time (10n):",
                .pDelay = "D&elay (0):"},
};
constexpr TTwin kVoltage{
    .source = kVoltageSource,
    .pattern = {.pWaveform = "Waveform:",
                .pOnValue = "&ON value (5):",
                .pHighTime = "Hi&gh time (10):", // Meant: without the n of its neighbours
                .pDelay = "D&elay (0):"},
};

constexpr auto Rows(const TTwin& rTwin)
{
    constexpr TColumns kHead{.nField = 88};
    constexpr TColumns kSecondTerminal{.nField = 196};
    constexpr TColumns kAC{.nField = 62, .nUnit = 96};
    return PageRows(Tight(
        GroupBox(kWholeGroup, "bit-source-group", "BIT source",
                 Tight(EditLine(kHead, kSourceName, "name", rTwin.source.pNameLabel),
                       Beside(132,
                              EditLine(kHead, kPositiveTerminal, "positive-terminal",
                                       "&Positive terminal:"),
                              EditLine(kSecondTerminal, kNegativeTerminal, "negative-terminal",
                                       "&Negative terminal:")))),
        Beside(
            BitPattern::kRightColumn,
            Tight(ACBox(Tight(ACMagnitudeLine(kAC, rTwin.source, "&Magnitude:"), ACPhaseLine(kAC))),
                  BitPattern::CornerBox(),
                  BitPattern::WaveformBox(rTwin.pattern, rTwin.source.pUnit)),
            Tight(DCBox(2), BitPattern::PulseBox(rTwin.pattern)))));
}

constexpr auto kCurrentRows = Rows(kCurrent);
constexpr auto kVoltageRows = Rows(kVoltage);
constexpr DialogTemplate kCurrentTemplate{"Bit", kPageSize, kCurrentRows};
constexpr DialogTemplate kVoltageTemplate{"Bit", kPageSize, kVoltageRows};

struct TFields {
    TSourceHead mHead;
    TACValues mAC;
    TBitPattern mPattern;
    CString msDC;
};

Remembered<TFields> sCurrent;
Remembered<TFields> sVoltage;

class BitForm : public SourceForm<TFields, TTwin>
{
public:
    using SourceForm::SourceForm;

    void Exchange(CDataExchange* pDX)
    {
        DDX_SourceHead(pDX, mFields.mHead);
        DDX_ACValues(pDX, mFields.mAC);
        DDX_BitPattern(pDX, mFields.mPattern);
        DDX_Text(pDX, kDCValue, mFields.msDC);
    }

    bool Build(CString& rsCommand)
    {
        Read();
        TSourceHead& rHead = mFields.mHead;
        gTrim(rHead.msName, rHead.msPositiveTerminal, mFields.mPattern.msBitStream);
        gFillIfEmpty(rHead.msNegativeTerminal, kGround);
        if (!AreFilled({{rHead.msName, mrTwin.source.pMissingName},
                        {rHead.msPositiveTerminal, kMissingPositiveTerminal},
                        {mFields.mPattern.msBitStream, kMissingBitStream}}))
            return false;
        rsCommand = gHeadWithDC(rHead, mFields.msDC);
        gAppendBitPattern(rsCommand, " BIT ", mFields.mPattern);
        gPrefixSourceLetter(rsCommand, rHead.msName, mrTwin.source.chLetter);
        gAppendACWithBlankBefore(rsCommand, mFields.mAC);
        // Meant: behind the AC part, other than on the pages of pulses and of corners.
        gAppendIfAny(rsCommand, " ROUND=", mFields.mPattern.msRounding);
        Remember();
        return true;
    }
};
} // namespace

/// Builds the line of a current source that follows a pattern of bits: I... and " BIT (".
class CCurrentSourceBitPage : public CCommandPage
{
public:
    CCurrentSourceBitPage() : CCommandPage(kCurrentTemplate), mForm(*this, kCurrent, sCurrent) {}

    TMessageMap GetMessageMap() const override { return {}; }
    void DoDataExchange(CDataExchange* pDX) override { mForm.Exchange(pDX); }
    bool OnInitDialog() override { return mForm.InitDialog(); }
    bool BuildCommand(CString& rsCommand) override { return mForm.Build(rsCommand); }

private:
    BitForm mForm;
};

/// Builds the line of a voltage source that follows a pattern of bits: V... and " BIT (".
class CVoltageSourceBitPage : public CCommandPage
{
public:
    CVoltageSourceBitPage() : CCommandPage(kVoltageTemplate), mForm(*this, kVoltage, sVoltage) {}

    TMessageMap GetMessageMap() const override { return {}; }
    void DoDataExchange(CDataExchange* pDX) override { mForm.Exchange(pDX); }
    bool OnInitDialog() override { return mForm.InitDialog(); }
    bool BuildCommand(CString& rsCommand) override { return mForm.Build(rsCommand); }

private:
    BitForm mForm;
};

template const CRuntimeClass& gRuntimeClass<CCurrentSourceBitPage>();
template const CRuntimeClass& gRuntimeClass<CVoltageSourceBitPage>();
