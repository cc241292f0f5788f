#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/frame/PageText.h"
#include "wizard/frame/Remembered.h"
#include "wizard/sources/BitPattern.h"
#include "wizard/sources/SourceForm.h"
#include "wizard/sources/SourceHead.h"
#include "wizard/sources/WaveformSource.h"

// The pages of a current and a voltage source between two terminals that follows a pattern of bits.

namespace
{
enum EControlId { kSourceGroup = kFirstSourceField };

struct TTwin {
    const TSourceTwin& source;
    const char* pMissingName;
    BitPattern::TTexts pattern;
};

constexpr TTwin kCurrent{kCurrentSource,
                         kMissingCurrentSourceName,
                         {"Waveform:", "&ON value (1e-3):", "Hi&gh time (10n):", "D&elay (0):"}};
constexpr TTwin kVoltage{kVoltageSource,
                         kMissingVoltageSourceName,
                         // Meant: 10 without the n of its neighbours.
                         {"Waveform:", "&ON value (5):", "Hi&gh time (10):", "D&elay (0):"}};

constexpr auto Rows(const TTwin& rTwin)
{
    constexpr TColumns kHead{.nField = 88};
    constexpr TColumns kSecondTerminal{.nField = 196};
    constexpr TColumns kAC{.nField = 62, .nUnit = 96};
    return PageRows(Tight(
        GroupBox(kSourceGroup, "bit-source-group", "BIT source",
                 Tight(EditLine(kHead, kSourceName, "name", rTwin.source.pNameLabel),
                       Beside(132,
                              EditLine(kHead, kPositiveTerminal, "positive-terminal",
                                       "&Positive terminal:"),
                              EditLine(kSecondTerminal, kNegativeTerminal, "negative-terminal",
                                       "&Negative terminal:")))),
        Beside(BitPattern::kRightColumn,
               Tight(GroupBox(kACGroup, "ac-values-group", "AC values",
                              Tight(EditLine(kAC, kACMagnitude, "ac-magnitude",
                                             "&Magnitude:", rTwin.source.pUnit),
                                    EditLine(kAC, kACPhase, "ac-phase", "P&hase (0):", "deg"))),
                     BitPattern::CornerBox(),
                     BitPattern::WaveformBox(rTwin.pattern, rTwin.source.pUnit)),
               Tight(GroupBox(kDCGroup, "dc-value-group", "&DC value",
                              Tight(BareEdit(kDCValue, "dc-value"),
                                    NoteLine(kDCNote, "note",
                                             "(default is the time=0 value of the transient "
                                             "waveform)",
                                             2))),
                     BitPattern::PulseBox(rTwin.pattern)))));
}

constexpr auto kCurrentRows = Rows(kCurrent);
constexpr auto kVoltageRows = Rows(kVoltage);
constexpr DialogTemplate kCurrentTemplate{"Bit", kPageSize, kCurrentRows};
constexpr DialogTemplate kVoltageTemplate{"Bit", kPageSize, kVoltageRows};

struct TFields {
    TSourceHead mHead;
    TACValues mAC;
    TBitPattern mPattern;
    CString msDCValue;
};

Remembered<TFields> sCurrent;
Remembered<TFields> sVoltage;

/// What both pages do.
class BitForm : public SourceForm<TFields, TTwin>
{
public:
    using SourceForm::SourceForm;

    void Exchange(CDataExchange* pDX)
    {
        DDX_SourceHead(pDX, mFields.mHead);
        DDX_ACValues(pDX, mFields.mAC);
        DDX_BitPattern(pDX, mFields.mPattern);
        DDX_Text(pDX, kDCValue, mFields.msDCValue);
    }

    bool Build(CString& rsCommand)
    {
        Read();
        TSourceHead& rHead = mFields.mHead;
        gTrim(rHead.msName, rHead.msPositiveTerminal, mFields.mPattern.msBitStream);
        gFillIfEmpty(rHead.msNegativeTerminal, "GND");
        if (!AreFilled({{rHead.msName, mrTwin.pMissingName},
                        {rHead.msPositiveTerminal, kMissingPositiveTerminal},
                        {mFields.mPattern.msBitStream, kMissingBitStream}}))
            return false;
        rsCommand = Line();
        Remember();
        return true;
    }

private:
    CString Line() const
    {
        CString sLine = gSourceHeadText(mFields.mHead);
        gAppendIfAny(sLine, " dc ", mFields.msDCValue);
        gAppendBitPattern(sLine, " BIT ", mFields.mPattern);
        gPrefixSourceLetter(sLine, mFields.mHead.msName, mrTwin.source.chLetter);
        gAppendACWithBlankBefore(sLine, mFields.mAC);
        // Meant: behind the AC part, other than on the pages of pulses and of corners.
        gAppendIfAny(sLine, " ROUND=", mFields.mPattern.msRounding);
        return sLine;
    }
};
} // namespace

/// Builds the line of a current source that follows a pattern of bits: I... and " BIT (".
class CCurrentSourceBitPage : public CCommandPage
{
public:
    CCurrentSourceBitPage() : CCommandPage(kCurrentTemplate), mForm(*this, kCurrent, sCurrent) {}

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
    BitForm mForm;
};

/// Builds the line of a voltage source that follows a pattern of bits: V... and " BIT (".
class CVoltageSourceBitPage : public CCommandPage
{
public:
    CVoltageSourceBitPage() : CCommandPage(kVoltageTemplate), mForm(*this, kVoltage, sVoltage) {}

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
    BitForm mForm;
};

template const CRuntimeClass& gRuntimeClass<CCurrentSourceBitPage>();
template const CRuntimeClass& gRuntimeClass<CVoltageSourceBitPage>();
