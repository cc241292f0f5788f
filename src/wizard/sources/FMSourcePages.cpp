#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/sources/SourceForm.h"
#include "wizard/sources/WaveformSource.h"

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
    TSourceTwin source;
    const char* pMissingName;
    const char* pOffsetLabel;
};

constexpr TTwin kCurrent{kCurrentSource, kMissingCurrentSourceName, "C&urrent offset (0):"};
constexpr TTwin kVoltage{kVoltageSource, kMissingVoltageSourceName, "Vo&ltage offset (0):"};

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

struct TFields : TSourceHead {
    CString msOffset;
    CString msPeakAmplitude;
    CString msCarrierFrequency;
    CString msModulationIndex;
    CString msSignalFrequency;
    TACValues mAC;
    CString msDC;
};

Remembered<TFields> sCurrentRemembered;
Remembered<TFields> sVoltageRemembered;

class FMForm : public SourceForm<TFields, TTwin>
{
public:
    using SourceForm::SourceForm;

    void Exchange(CDataExchange* pDX)
    {
        DDX_SourceHead(pDX, mFields);
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
        gTrim(mFields.msName, mFields.msPositiveTerminal, mFields.msPeakAmplitude);
        gFillIfEmpty(mFields.msNegativeTerminal, "GND");
        gFillIfEmpty(mFields.msOffset, "0");
        if (!AreFilled(
                {{mFields.msName, mrTwin.pMissingName},
                 // Meant: so spelled.
                 {mFields.msPositiveTerminal, "__$$Translatable$$_Missing postive terminal name."},
                 {mFields.msPeakAmplitude, "__$$Translatable$$_Missing peak amplitude."}}))
            return false;
        rsCommand = gSourceHeadText(mFields);
        gAppendIfAny(rsCommand, " dc ", mFields.msDC);
        rsCommand += " SFFM (" + mFields.msOffset + " " + mFields.msPeakAmplitude;
        gPrefixSourceLetter(rsCommand, mFields.msName, mrTwin.source.chLetter);
        if (!AppendModulation(rsCommand))
            return false; // meant: the line so far stays
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
        gAppendIfAny(rsCommand, " ", mFields.msSignalFrequency); // meant: even in the index's place
        return true;
    }
};
} // namespace

/// Builds the line of a current source with a carrier that one signal modulates in frequency.
class CCurrentSourceFMPage : public CCommandPage
{
public:
    CCurrentSourceFMPage()
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
    FMForm mForm;
};

/// Builds the line of a voltage source with a carrier that one signal modulates in frequency.
class CVoltageSourceFMPage : public CCommandPage
{
public:
    CVoltageSourceFMPage()
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
    FMForm mForm;
};

template const CRuntimeClass& gRuntimeClass<CCurrentSourceFMPage>();
template const CRuntimeClass& gRuntimeClass<CVoltageSourceFMPage>();
