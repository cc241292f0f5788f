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

// The pages of a current and a voltage source with a carrier that one signal modulates in
// frequency.

namespace
{
enum EControlId {
    kSignalGroup = kFirstSourceField,
    kOffset,
    kPeakAmplitude,
    kCarrierFrequency,
    kModulationIndex,
    kSignalFrequency,
};

struct TTwin {
    const TSourceTwin& source;
    const char* pOffsetLabel;
};

constexpr TTwin kCurrent{.source = kCurrentSource, .pOffsetLabel = "C&urrent offset (0):"};
constexpr TTwin kVoltage{.source = kVoltageSource, .pOffsetLabel = "Vo&ltage offset (0):"};

constexpr auto Rows(const TTwin& rTwin)
{
    // Wide enough on its left for long labels.
    constexpr int kRightColumn = 173;
    constexpr TColumns kColumns{.nField = 114, .nUnit = 151};
    const char* const pUnit = rTwin.source.pUnit;
    return PageRows(GroupBox(
        kWholeGroup, "single-frequency-fm-source-group", "Single frequency FM source",
        NameBesideDC(kRightColumn, rTwin.source, 5),
        Beside(
            kRightColumn,
            GroupBox(
                kSignalGroup, "signal-group", "Signal",
                EditLine(kColumns, kOffset, "offset", rTwin.pOffsetLabel, pUnit),
                EditLine(kColumns, kPeakAmplitude, "peak-amplitude", "P&eak amplitude:", pUnit),
                EditLine(kColumns, kCarrierFrequency, "carrier-frequency",
                         "C&arrier frequency (1/tstop):", "Hz"),
                EditLine(kColumns, kModulationIndex, "modulation-index", "M&odulation index (0):"),
                EditLine(kColumns, kSignalFrequency, "signal-frequency",
                         "&Signal frequency (1/tstop):", "Hz")),
            ACColumn(rTwin.source))));
}

constexpr auto kCurrentRows = Rows(kCurrent);
constexpr auto kVoltageRows = Rows(kVoltage);
constexpr DialogTemplate kCurrentTemplate{"FM", kPageSize, kCurrentRows};
constexpr DialogTemplate kVoltageTemplate{"FM", kPageSize, kVoltageRows};

struct TFields {
    TSourceHead mHead;
    CString msOffset;
    CString msPeakAmplitude;
    CString msCarrierFrequency;
    CString msModulationIndex;
    CString msSignalFrequency;
    TACValues mAC;
    CString msDC;
};

Remembered<TFields> sCurrent;
Remembered<TFields> sVoltage;

class FMForm : public SourceForm<TFields, TTwin>
{
public:
    using SourceForm::SourceForm;

    void Exchange(CDataExchange* pDX)
    {
        DDX_SourceHead(pDX, mFields.mHead);
        DDX_Text(pDX, kOffset, mFields.msOffset);
        DDX_Text(pDX, kPeakAmplitude, mFields.msPeakAmplitude);
        DDX_Text(pDX, kCarrierFrequency, mFields.msCarrierFrequency);
        DDX_Text(pDX, kModulationIndex, mFields.msModulationIndex);
        DDX_Text(pDX, kSignalFrequency, mFields.msSignalFrequency);
        DDX_ACValues(pDX, mFields.mAC);
        DDX_Text(pDX, kDCValue, mFields.msDC);
    }

    bool Build(CString& rsCommand)
    {
        Read();
        TSourceHead& rHead = mFields.mHead;
        gTrim(rHead.msName, rHead.msPositiveTerminal, mFields.msPeakAmplitude);
        gFillIfEmpty(rHead.msNegativeTerminal, kGround);
        gFillIfEmpty(mFields.msOffset, "0");
        if (!AreFilled(
                {{rHead.msName, mrTwin.source.pMissingName},
                 // Meant: so spelled.
                 {rHead.msPositiveTerminal, "__$$Translatable$$_Missing postive terminal name."},
                 {mFields.msPeakAmplitude, kMissingPeakAmplitude}}))
            return false;
        rsCommand = gHeadWithDC(rHead, mFields.msDC) + " SFFM (" + mFields.msOffset + " " +
                    mFields.msPeakAmplitude;
        gPrefixSourceLetter(rsCommand, rHead.msName, mrTwin.source.chLetter);
        if (!AppendModulation(rsCommand))
            return false; // Meant: the line so far stays
        rsCommand += ")";
        gAppendACWithBlankBehind(rsCommand, mFields.mAC);
        Remember();
        return true;
    }

private:
    bool AppendModulation(CString& rsCommand)
    {
        const bool bModulated =
            !mFields.msModulationIndex.IsEmpty() || !mFields.msSignalFrequency.IsEmpty();
        if (bModulated && !AreFilled({{mFields.msCarrierFrequency,
                                       // Meant: no full stop.
                                       "__$$Translatable$$_Missing carrier frequency"}}))
            return false;
        gAppendIfAny(rsCommand, " ", mFields.msCarrierFrequency);
        gAppendIfAny(rsCommand, " ", mFields.msModulationIndex);
        gAppendIfAny(rsCommand, " ", mFields.msSignalFrequency); // Meant: even in the index's place
        return true;
    }
};
} // namespace

/// Builds the line of a current source with a carrier that one signal modulates in frequency.
class CCurrentSourceFMPage : public CCommandPage
{
public:
    CCurrentSourceFMPage() : CCommandPage(kCurrentTemplate), mForm(*this, kCurrent, sCurrent) {}

    TMessageMap GetMessageMap() const override { return {}; }
    void DoDataExchange(CDataExchange* pDX) override { mForm.Exchange(pDX); }
    bool OnInitDialog() override { return mForm.InitDialog(); }
    bool BuildCommand(CString& rsCommand) override { return mForm.Build(rsCommand); }

private:
    FMForm mForm;
};

/// Builds the line of a voltage source with a carrier that one signal modulates in frequency.
class CVoltageSourceFMPage : public CCommandPage
{
public:
    CVoltageSourceFMPage() : CCommandPage(kVoltageTemplate), mForm(*this, kVoltage, sVoltage) {}

    TMessageMap GetMessageMap() const override { return {}; }
    void DoDataExchange(CDataExchange* pDX) override { mForm.Exchange(pDX); }
    bool OnInitDialog() override { return mForm.InitDialog(); }
    bool BuildCommand(CString& rsCommand) override { return mForm.Build(rsCommand); }

private:
    FMForm mForm;
};

template const CRuntimeClass& gRuntimeClass<CCurrentSourceFMPage>();
template const CRuntimeClass& gRuntimeClass<CVoltageSourceFMPage>();
