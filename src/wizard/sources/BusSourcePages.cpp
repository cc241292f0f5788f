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

// The pages of a current and a voltage source on the lines of a bus that follows a pattern of bits.

namespace
{
enum EControlId { kSourceGroup = 1001, kName, kBusName, kReferenceNode };

struct TTwin {
    const TSourceTwin& source;
    const char* pMissingName;
    BitPattern::TTexts pattern;
};

constexpr TTwin kCurrent{kCurrentSource,
                         kMissingCurrentSourceName,
                         {"Waveform", "&ON value (1e-3):", "&High time (10n):", "&Delay (0):"}};
constexpr TTwin kVoltage{kVoltageSource,
                         kMissingVoltageSourceName,
                         {"Waveform", "&ON value (5):", "&High time (10n):", "&Delay (0):"}};

constexpr auto Rows(const TTwin& rTwin)
{
    constexpr TColumns kHead{.nField = 97};
    return PageRows(
        GroupBox(kSourceGroup, "bus-source-group", "BUS source",
                 EditLine(kHead, kName, "name", rTwin.source.pNameLabel),
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

/// What both pages do.
class BusForm : public SourceForm<TFields, TTwin>
{
public:
    using SourceForm::SourceForm;

    void Exchange(CDataExchange* pDX)
    {
        DDX_Text(pDX, kName, mFields.msName);
        DDX_Text(pDX, kBusName, mFields.msBusName);
        DDX_Text(pDX, kReferenceNode, mFields.msReferenceNode);
        DDX_BitPattern(pDX, mFields.mPattern);
    }

    bool Build(CString& rsCommand)
    {
        Read();
        gTrim(mFields.msName, mFields.msBusName, mFields.mPattern.msBitStream);
        gFillIfEmpty(mFields.msReferenceNode, "GND");
        if (!AreFilled({{mFields.msName, mrTwin.pMissingName},
                        {mFields.msBusName, "__$$Translatable$$_Missing bus name."},
                        {mFields.mPattern.msBitStream, kMissingBitStream}}))
            return false;
        CString sLine = mFields.msName + " " + mFields.msBusName + " " + mFields.msReferenceNode;
        gAppendBitPattern(sLine, " BUS ", mFields.mPattern);
        gPrefixSourceLetter(sLine, mFields.msName, mrTwin.source.chLetter);
        gAppendIfAny(sLine, " ROUND=", mFields.mPattern.msRounding);
        rsCommand = sLine;
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
    BusForm mForm;
};

/// Builds the line of a voltage source on a bus that follows a pattern of bits: V... and " BUS (".
class CVoltageSourceBusPage : public CCommandPage
{
public:
    CVoltageSourceBusPage() : CCommandPage(kVoltageTemplate), mForm(*this, kVoltage, sVoltage) {}

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
    BusForm mForm;
};

template const CRuntimeClass& gRuntimeClass<CCurrentSourceBusPage>();
template const CRuntimeClass& gRuntimeClass<CVoltageSourceBusPage>();
