#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/frame/PageText.h"
#include "wizard/frame/Remembered.h"
#include "wizard/sources/BitPattern.h"
#include "wizard/sources/SourceLetter.h"

// The pages of a current and a voltage source between two terminals that follows a pattern of bits.

namespace
{
enum EControlId {
    kSourceGroup = 1001,
    kName,
    kPositive,
    kNegative,
    kACGroup,
    kMagnitude,
    kPhase,
    kDCGroup,
    kDCValue,
    kNote,
};

struct TTwin {
    char chLetter;
    const char* pNameLabel;
    const char* pMissingName;
    BitPattern::TTexts pattern; ///< its unit is that of the magnitude, too
};

constexpr TTwin kCurrent{
    'I',
    "&Current source name:",
    "__$$Translatable$$_Missing current source name.",
    {"Waveform:", "A", "&ON value (1e-3):", "Hi&gh time (10n):", "D&elay (0):"}};
constexpr TTwin kVoltage{
    'V',
    "&Voltage source name:",
    "__$$Translatable$$_Missing voltage source name.",
    // Meant: 10 without the n of its neighbours.
    {"Waveform:", "V", "&ON value (5):", "Hi&gh time (10):", "D&elay (0):"}};

constexpr auto Rows(const TTwin& rTwin)
{
    constexpr TColumns kHead{.nField = 88};
    constexpr TColumns kSecondTerminal{.nField = 195};
    constexpr TColumns kAC{.nField = 61, .nUnit = 96};
    return PageRows(
        Tight(GroupBox(kSourceGroup, "bit-source-group", "BIT source",
                       Tight(EditLine(kHead, kName, "name", rTwin.pNameLabel),
                             Beside(132,
                                    EditLine(kHead, kPositive, "positive-terminal",
                                             "&Positive terminal:"),
                                    EditLine(kSecondTerminal, kNegative, "negative-terminal",
                                             "&Negative terminal:")))),
              Beside(BitPattern::kRightColumn,
                     Tight(GroupBox(kACGroup, "ac-values-group", "AC values",
                                    Tight(EditLine(kAC, kMagnitude, "ac-magnitude", "&Magnitude:",
                                                   rTwin.pattern.pUnit),
                                          EditLine(kAC, kPhase, "ac-phase", "P&hase (0):", "deg"))),
                           BitPattern::CornerBox(), BitPattern::WaveformBox(rTwin.pattern)),
                     Tight(GroupBox(kDCGroup, "dc-value-group", "&DC value",
                                    Tight(BareEdit(kDCValue, "dc-value"),
                                          NoteLine(kNote, "note",
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
    CString msName;
    CString msPositive;
    CString msNegative;
    CString msMagnitude;
    CString msPhase;
    TBitPattern mPattern;
    CString msDCValue;
};

Remembered<TFields> sCurrent;
Remembered<TFields> sVoltage;

/// What both pages do.
class BitSource
{
public:
    BitSource(CCommandPage& rPage, const TTwin& rTwin, Remembered<TFields>& rRemembered)
        : mrPage(rPage), mrTwin(rTwin), mrRemembered(rRemembered)
    {
    }

    void Exchange(CDataExchange* pDX)
    {
        DDX_Text(pDX, kName, mFields.msName);
        DDX_Text(pDX, kPositive, mFields.msPositive);
        DDX_Text(pDX, kNegative, mFields.msNegative);
        DDX_Text(pDX, kMagnitude, mFields.msMagnitude);
        DDX_Text(pDX, kPhase, mFields.msPhase);
        DDX_BitPattern(pDX, mFields.mPattern);
        DDX_Text(pDX, kDCValue, mFields.msDCValue);
    }

    void Restore()
    {
        mFields = mrRemembered.Get();
        mrPage.UpdateData(false);
    }

    bool Build(CString& rsCommand)
    {
        mrPage.UpdateData(true);
        gTrim(mFields.msName, mFields.msPositive, mFields.mPattern.msBitStream);
        if (mFields.msNegative.IsEmpty())
            mFields.msNegative = "GND";
        if (mFields.msName.IsEmpty())
            return gReportFailure(mrPage, msMessage, mrTwin.pMissingName);
        if (mFields.msPositive.IsEmpty())
            return gReportFailure(mrPage, msMessage,
                                  "__$$Translatable$$_Missing positive terminal name.");
        if (mFields.mPattern.msBitStream.IsEmpty())
            return gReportFailure(mrPage, msMessage, "__$$Translatable$$_Missing bit stream.");
        rsCommand = Line();
        mrRemembered.Set(mFields);
        return true;
    }

private:
    CString Line() const
    {
        CString sLine = mFields.msName + " " + mFields.msPositive + " " + mFields.msNegative;
        gAppendIfAny(sLine, " dc ", mFields.msDCValue);
        gAppendBitPattern(sLine, " BIT ", mFields.mPattern);
        gPutSourceLetter(sLine, mFields.msName, mrTwin.chLetter);
        if (!mFields.msMagnitude.IsEmpty() || !mFields.msPhase.IsEmpty())
            sLine += " AC";
        gAppendIfAny(sLine, " ", mFields.msMagnitude);
        gAppendIfAny(sLine, " ", mFields.msPhase);
        // Meant: behind the AC part, other than on the pages of pulses and of corners.
        gAppendIfAny(sLine, " ROUND=", mFields.mPattern.msRounding);
        return sLine;
    }

    CCommandPage& mrPage;
    const TTwin& mrTwin;
    Remembered<TFields>& mrRemembered;
    CString msMessage;
    TFields mFields;
};
} // namespace

/// Builds the line of a current source that follows a pattern of bits: I... and " BIT (".
class CCurrentSourceBitPage : public CCommandPage
{
public:
    CCurrentSourceBitPage() : CCommandPage(kCurrentTemplate), mSource(*this, kCurrent, sCurrent) {}

    TMessageMap GetMessageMap() const override { return {}; }

    void DoDataExchange(CDataExchange* pDX) override
    {
        CCommandPage::DoDataExchange(pDX);
        mSource.Exchange(pDX);
    }

    bool OnInitDialog() override
    {
        CDialog::OnInitDialog();
        mSource.Restore();
        return true;
    }

    bool BuildCommand(CString& rsCommand) override { return mSource.Build(rsCommand); }

private:
    BitSource mSource;
};

/// Builds the line of a voltage source that follows a pattern of bits: V... and " BIT (".
class CVoltageSourceBitPage : public CCommandPage
{
public:
    CVoltageSourceBitPage() : CCommandPage(kVoltageTemplate), mSource(*this, kVoltage, sVoltage) {}

    TMessageMap GetMessageMap() const override { return {}; }

    void DoDataExchange(CDataExchange* pDX) override
    {
        CCommandPage::DoDataExchange(pDX);
        mSource.Exchange(pDX);
    }

    bool OnInitDialog() override
    {
        CDialog::OnInitDialog();
        mSource.Restore();
        return true;
    }

    bool BuildCommand(CString& rsCommand) override { return mSource.Build(rsCommand); }

private:
    BitSource mSource;
};

template const CRuntimeClass& gRuntimeClass<CCurrentSourceBitPage>();
template const CRuntimeClass& gRuntimeClass<CVoltageSourceBitPage>();
