#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/sources/SourceForm.h"
#include "wizard/sources/WaveformSource.h"

#include <string_view>

namespace
{
enum EControlId { kWaveformGroup = kFirstSourceField, kCorners, kRounding };

struct TTwin {
    TSourceTwin source;
    const char* pMissingName;
    const char* pCornersLabel;
    const char* pMissingCorners;
    bool bTrimsDC; ///< on the left
};

constexpr TTwin kCurrent{kCurrentSource, kMissingCurrentSourceName,
                         "C&orners: (t0 i0 t1 i1 t2 i2 ...), t in seconds, i in amps",
                         "__$$Translatable$$_Missing waveform corner points.", true};
constexpr TTwin kVoltage{kVoltageSource, kMissingVoltageSourceName,
                         "&Corners: (t0 v0 t1 v1 t2 v2 ...), t in seconds, v in volts",
                         "__$$Translatable$$_Missing waveform corners points.", false};

constexpr auto Rows(const TTwin& rTwin)
{
    constexpr TColumns kColumns{.nField = 127, .nUnit = 212};
    return PageRows(
        GroupBox(kWholeGroup, "piecewise-linear-waveform-group", "Piecewise linear waveform",
                 Tight(NameBesideDC(kDCInFrame, rTwin.source),
                       GroupBox(kWaveformGroup, "waveform-group", "Waveform",
                                Tight(TextBox(kCorners, "corners", rTwin.pCornersLabel, 42),
                                      EditLine(kColumns, kRounding, "rounding",
                                               "Corner &rounding parameter (0):", "sec"))),
                       ACLine(rTwin.source))));
}

constexpr auto kCurrentRows = Rows(kCurrent);
constexpr auto kVoltageRows = Rows(kVoltage);
constexpr DialogTemplate kCurrentTemplate{"Piecewise linear", kPageSize, kCurrentRows};
constexpr DialogTemplate kVoltageTemplate{"Piecewise linear", kPageSize, kVoltageRows};

struct TFields : TSourceHead {
    CString msCorners;
    CString msRounding;
    TACValues mAC;
    CString msDC;
};

Remembered<TFields> sCurrentRemembered;
Remembered<TFields> sVoltageRemembered;

/// Whether the list has an odd number of values. A line feed or a tab inside a value is part of it.
bool HasOddCount(std::string_view sCorners)
{
    bool bOdd = false;
    for (std::size_t n = 0; (n = sCorners.find_first_not_of(" \r\n", n)) < sCorners.size();) {
        bOdd = !bOdd;
        n = sCorners.find_first_of(" \r", n);
    }
    return bOdd;
}

class PiecewiseLinearForm : public SourceForm<TFields, TTwin>
{
public:
    using SourceForm::SourceForm;

    void Exchange(CDataExchange* pDX)
    {
        DDX_SourceHead(pDX, mFields);
        DDX_Text(pDX, kCorners, mFields.msCorners);
        DDX_Text(pDX, kRounding, mFields.msRounding);
        DDX_ACValues(pDX, mFields.mAC);
        DDX_Text(pDX, kDCValue, mFields.msDC);
    }

    bool Build(CString& rsCommand)
    {
        Read();
        gTrim(mFields.msName, mFields.msPositiveTerminal, mFields.msCorners);
        if (mrTwin.bTrimsDC)
            gTrimLeft(mFields.msDC);
        gFillIfEmpty(mFields.msNegativeTerminal, "GND");
        if (!AreFilled({{mFields.msName, mrTwin.pMissingName},
                        {mFields.msPositiveTerminal, kMissingPositiveTerminal},
                        {mFields.msCorners, mrTwin.pMissingCorners}}))
            return false;
        if (HasOddCount(mFields.msCorners.GetString()))
            return Fail("__$$Translatable$$_Odd number of values in corner list.");
        rsCommand = gSourceHeadText(mFields);
        gAppendIfAny(rsCommand, " dc ", mFields.msDC);
        rsCommand += " PWL (" + gJoinLines(mFields.msCorners);
        gPrefixSourceLetter(rsCommand, mFields.msName, mrTwin.source.chLetter);
        rsCommand += ")";
        gAppendIfAny(rsCommand, " ROUND=", mFields.msRounding);
        gAppendACWithBlankBefore(rsCommand, mFields.mAC);
        Remember();
        return true;
    }
};
} // namespace

/// Builds the line of a current source with a waveform of straight lines between corners.
class CCurrentSourcePiecewiseLinearPage : public CCommandPage
{
public:
    CCurrentSourcePiecewiseLinearPage()
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
    PiecewiseLinearForm mForm;
};

/// Builds the line of a voltage source with a waveform of straight lines between corners.
class CVoltageSourcePiecewiseLinearPage : public CCommandPage
{
public:
    CVoltageSourcePiecewiseLinearPage()
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
    PiecewiseLinearForm mForm;
};

template const CRuntimeClass& gRuntimeClass<CCurrentSourcePiecewiseLinearPage>();
template const CRuntimeClass& gRuntimeClass<CVoltageSourcePiecewiseLinearPage>();
