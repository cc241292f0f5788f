#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/frame/PageText.h"
#include "wizard/frame/Remembered.h"
#include "wizard/sources/BitPattern.h"
#include "wizard/sources/SourceForm.h"
#include "wizard/sources/SourceHead.h"
#include "wizard/sources/SourceTwin.h"
#include "wizard/sources/WaveformSource.h"

// The pages of a current and a voltage source on the lines of a bus that follows a pattern of bits.

namespace
{
enum EControlId { kBusName = kFirstSourceField, kReferenceNode };

struct TTwin {
    const TSourceTwin& source;
    BitPattern::TTexts pattern;
};

constexpr TTwin kCurrent{
    .source = kCurrentSource,
    .pattern = {.pWaveform = "Waveform",
                .pOnValue = "&ON value (1e-3):",
                .pHighTime = "&High time (10n):",
                .pDelay = "&Delay (0):"},
};
constexpr TTwin kVoltage{
    .source = kVoltageSource,
    .pattern = {.pWaveform = "Waveform",
                .pOnValue = "&ON value (5):",
                .pHighTime = "&High time (10n):",
                .pDelay = "&Delay (0):"},
};

constexpr auto Rows(const TTwin& rTwin)
{
    constexpr TColumns kHead{.nField = 97};
    return PageRows(
        GroupBox(kWholeGroup, "bus-source-group", "BUS source",
                 EditLine(kHead, kSourceName, "name", rTwin.source.pNameLabel),
                 EditLine(kHead, kBusName, "bus-name", "Bus &name:"),
                 EditLine(kHead, kReferenceNode, "reference-node", "R&eference node (GND):")),
        Beside(BitPattern::kRightColumn,
               Lines(BitPattern::CornerBox(),
                     BitPattern::WaveformBox(rTwin.pattern, rTwin.source.pUnit)),
               BitPattern::PulseBox(rTwin.pattern)));
}

constexpr auto kCurrentRows = Rows(kCurrent);
constexpr auto kVoltageRows = Rows(kVoltage);
constexpr DialogTemplate kCurrentTemplate{"Bus", kPageSize, kCurrentRows};
constexpr DialogTemplate kVoltageTemplate{"Bus", kPageSize, kVoltageRows};

struct TFields {
    CString msName;
    CString msBusName;
    CString msReferenceNode;
    TBitPattern mPattern;
};

Remembered<TFields> sCurrent;
Remembered<TFields> sVoltage;

class BusForm : public SourceForm<TFields, TTwin>
{
public:
    using SourceForm::SourceForm;

    void Exchange(CDataExchange* pDX)
    {
        DDX_Text(pDX, kSourceName, mFields.msName);
        DDX_Text(pDX, kBusName, mFields.msBusName);
        DDX_Text(pDX, kReferenceNode, mFields.msReferenceNode);
        DDX_BitPattern(pDX, mFields.mPattern);
    }

    bool Build(CString& rsCommand)
    {
        Read();
        gTrim(mFields.msName, mFields.msBusName, mFields.mPattern.msBitStream);
        gFillIfEmpty(mFields.msReferenceNode, kGround);
        if (!AreFilled({{mFields.msName, mrTwin.source.pMissingName},
                        {mFields.msBusName, "__$$Translatable$$_Missing bus name."},
                        {mFields.mPattern.msBitStream, kMissingBitStream}}))
            return false;
        rsCommand = mFields.msName + " " + mFields.msBusName + " " + mFields.msReferenceNode;
        gAppendBitPattern(rsCommand, " BUS ", mFields.mPattern);
        gPrefixSourceLetter(rsCommand, mFields.msName, mrTwin.source.chLetter);
        gAppendIfAny(rsCommand, " ROUND=", mFields.mPattern.msRounding);
        Remember();
        return true;
    }
};
} // namespace

/// Builds the line of a current source on a bus that follows a pattern of bits: I... and " BUS (".
class CCurrentSourceBusPage : public CCommandPage
{
public:
    CCurrentSourceBusPage() : CCommandPage(kCurrentTemplate), mForm(*this, kCurrent, sCurrent) {}

    TMessageMap GetMessageMap() const override { return {}; }
    void DoDataExchange(CDataExchange* pDX) override { mForm.Exchange(pDX); }
    bool OnInitDialog() override { return mForm.InitDialog(); }
    bool BuildCommand(CString& rsCommand) override { return mForm.Build(rsCommand); }

private:
    BusForm mForm;
};

/// Builds the line of a voltage source on a bus that follows a pattern of bits: V... and " BUS (".
class CVoltageSourceBusPage : public CCommandPage
{
public:
    CVoltageSourceBusPage() : CCommandPage(kVoltageTemplate), mForm(*this, kVoltage, sVoltage) {}

    TMessageMap GetMessageMap() const override { return {}; }
    void DoDataExchange(CDataExchange* pDX) override { mForm.Exchange(pDX); }
    bool OnInitDialog() override { return mForm.InitDialog(); }
    bool BuildCommand(CString& rsCommand) override { return mForm.Build(rsCommand); }

private:
    BusForm mForm;
};

template const CRuntimeClass& gRuntimeClass<CCurrentSourceBusPage>();
template const CRuntimeClass& gRuntimeClass<CVoltageSourceBusPage>();
