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

#include <string_view>

// The pages of a current and a voltage source with a waveform of straight lines between corners.

namespace
{
enum EControlId { kWaveformGroup = kFirstSourceField, kCorners, kRounding };

struct TTwin {
    const TSourceTwin& source;
    const char* pCornersLabel;
    const char* pMissingCorners;
    bool bTrimsDC; ///< on the left
};

constexpr TTwin kCurrent{
    .source = kCurrentSource,
    .pCornersLabel = "C&orners: (t0 i0 t1 i1 t2 i2 ...), t in seconds, i in amps",
    .pMissingCorners = "__$$Translatable$$_Missing waveform corner points.",
    .bTrimsDC = true,
};
constexpr TTwin kVoltage{
    .source = kVoltageSource,
    .pCornersLabel = "&Corners: (t0 v0 t1 v1 t2 v2 ...), t in seconds, v in volts",
    // Meant: with one s more.
    .pMissingCorners = "__$$Translatable$$_Missing waveform corners points.",
    .bTrimsDC = false,
};

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

struct TFields {
    TSourceHead mHead;
    CString msCorners;
    CString msRounding;
    TACValues mAC;
    CString msDC;
};

Remembered<TFields> sCurrent;
Remembered<TFields> sVoltage;

/// Whether the list has an odd number of values. A line feed or a tab inside a value is part of it.
bool HasOddCount(std::string_view sCorners)
{
    constexpr const char* kBetween = " \r\n";
    constexpr const char* kEnd = " \r";
    bool bOdd = false;
    std::size_t nBegin = sCorners.find_first_not_of(kBetween);
    while (nBegin != std::string_view::npos) {
        bOdd = !bOdd;
        const std::size_t nEnd = sCorners.find_first_of(kEnd, nBegin);
        nBegin = sCorners.find_first_not_of(kBetween, nEnd);
    }
    return bOdd;
}

class PiecewiseLinearForm : public SourceForm<TFields, TTwin>
{
public:
    using SourceForm::SourceForm;

    void Exchange(CDataExchange* pDX)
    {
        DDX_SourceHead(pDX, mFields.mHead);
        DDX_Text(pDX, kCorners, mFields.msCorners);
        DDX_Text(pDX, kRounding, mFields.msRounding);
        DDX_ACValues(pDX, mFields.mAC);
        DDX_Text(pDX, kDCValue, mFields.msDC);
    }

    bool Build(CString& rsCommand)
    {
        Read();
        TSourceHead& rHead = mFields.mHead;
        gTrim(rHead.msName, rHead.msPositiveTerminal, mFields.msCorners);
        if (mrTwin.bTrimsDC)
            gTrimLeft(mFields.msDC);
        gFillIfEmpty(rHead.msNegativeTerminal, kGround);
        if (!AreFilled({{rHead.msName, mrTwin.source.pMissingName},
                        {rHead.msPositiveTerminal, kMissingPositiveTerminal},
                        {mFields.msCorners, mrTwin.pMissingCorners}}))
            return false;
        if (HasOddCount(mFields.msCorners.GetString()))
            return Fail("__$$Translatable$$_Odd number of values in corner list.");
        rsCommand = gHeadWithDC(rHead, mFields.msDC) + " PWL (" + gJoinLines(mFields.msCorners);
        gPrefixSourceLetter(rsCommand, rHead.msName, mrTwin.source.chLetter);
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
        : CCommandPage(kCurrentTemplate), mForm(*this, kCurrent, sCurrent)
    {
    }

    TMessageMap GetMessageMap() const override { return {}; }
    void DoDataExchange(CDataExchange* pDX) override { mForm.Exchange(pDX); }
    bool OnInitDialog() override { return mForm.InitDialog(); }
    bool BuildCommand(CString& rsCommand) override { return mForm.Build(rsCommand); }

private:
    PiecewiseLinearForm mForm;
};

/// Builds the line of a voltage source with a waveform of straight lines between corners.
class CVoltageSourcePiecewiseLinearPage : public CCommandPage
{
public:
    CVoltageSourcePiecewiseLinearPage()
        : CCommandPage(kVoltageTemplate), mForm(*this, kVoltage, sVoltage)
    {
    }

    TMessageMap GetMessageMap() const override { return {}; }
    void DoDataExchange(CDataExchange* pDX) override { mForm.Exchange(pDX); }
    bool OnInitDialog() override { return mForm.InitDialog(); }
    bool BuildCommand(CString& rsCommand) override { return mForm.Build(rsCommand); }

private:
    PiecewiseLinearForm mForm;
};

template const CRuntimeClass& gRuntimeClass<CCurrentSourcePiecewiseLinearPage>();
template const CRuntimeClass& gRuntimeClass<CVoltageSourcePiecewiseLinearPage>();
