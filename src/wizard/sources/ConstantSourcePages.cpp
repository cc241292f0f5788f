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

// The pages of a current and a voltage source with a DC value and its part in an AC analysis.

namespace
{
struct TTwin {
    const TSourceTwin& source;
    const char* pMissingName; ///< meant: without the full stop of the other kinds
};

constexpr TTwin kCurrent{
    .source = kCurrentSource,
    .pMissingName = "__$$Translatable$$_Missing current source name",
};
constexpr TTwin kVoltage{
    .source = kVoltageSource,
    .pMissingName = "__$$Translatable$$_Missing voltage source name",
};

constexpr auto Rows(const TTwin& rTwin)
{
    constexpr TColumns kColumns{.nField = 107, .nUnit = 212};
    return PageRows(
        GroupBox(kWholeGroup, "constant-source-group", "Constant Source",
                 GroupBox(kNameGroup, "name-group", "Name",
                          SourceHeadLines(kColumns, rTwin.source.pNameLabel)),
                 EditLine(kColumns, kDCValue, "dc-value", "&DC value:", rTwin.source.pUnit),
                 ACLines(kColumns, rTwin.source)));
}

constexpr auto kCurrentRows = Rows(kCurrent);
constexpr auto kVoltageRows = Rows(kVoltage);
constexpr DialogTemplate kCurrentTemplate{"Constant", kPageSize, kCurrentRows};
constexpr DialogTemplate kVoltageTemplate{"Constant", kPageSize, kVoltageRows};

struct TFields {
    TSourceHead mHead;
    CString msDC;
    TACValues mAC;
};

Remembered<TFields> sCurrent;
Remembered<TFields> sVoltage;

class ConstantForm : public SourceForm<TFields, TTwin>
{
public:
    using SourceForm::SourceForm;

    void Exchange(CDataExchange* pDX)
    {
        DDX_SourceHead(pDX, mFields.mHead);
        DDX_Text(pDX, kDCValue, mFields.msDC);
        DDX_ACValues(pDX, mFields.mAC);
    }

    bool Build(CString& rsCommand)
    {
        Read();
        TSourceHead& rHead = mFields.mHead;
        gTrim(rHead.msName, rHead.msPositiveTerminal, mFields.msDC);
        gFillIfEmpty(rHead.msNegativeTerminal, kGround);
        if (!AreFilled(
                {{rHead.msName, mrTwin.pMissingName},
                 {rHead.msPositiveTerminal, kMissingPositiveTerminal},
                 {mFields.msDC, "__$$Translatable$$_Missing DC value"}})) // Meant: no full stop
            return false;
        rsCommand = gSourceHeadText(rHead) + " " + mFields.msDC;
        gPrefixSourceLetter(rsCommand, rHead.msName, mrTwin.source.chLetter);
        gAppendACWithBlankBehind(rsCommand, mFields.mAC);
        Remember();
        return true;
    }
};
} // namespace

/// Builds the line of a current source with a DC value and its part in an AC analysis.
class CCurrentSourceConstantPage : public CCommandPage
{
public:
    CCurrentSourceConstantPage() : CCommandPage(kCurrentTemplate), mForm(*this, kCurrent, sCurrent)
    {
    }

    TMessageMap GetMessageMap() const override { return {}; }
    void DoDataExchange(CDataExchange* pDX) override { mForm.Exchange(pDX); }
    bool OnInitDialog() override { return mForm.InitDialog(); }
    bool BuildCommand(CString& rsCommand) override { return mForm.Build(rsCommand); }

private:
    ConstantForm mForm;
};

/// Builds the line of a voltage source with a DC value and its part in an AC analysis.
class CVoltageSourceConstantPage : public CCommandPage
{
public:
    CVoltageSourceConstantPage() : CCommandPage(kVoltageTemplate), mForm(*this, kVoltage, sVoltage)
    {
    }

    TMessageMap GetMessageMap() const override { return {}; }
    void DoDataExchange(CDataExchange* pDX) override { mForm.Exchange(pDX); }
    bool OnInitDialog() override { return mForm.InitDialog(); }
    bool BuildCommand(CString& rsCommand) override { return mForm.Build(rsCommand); }

private:
    ConstantForm mForm;
};

template const CRuntimeClass& gRuntimeClass<CCurrentSourceConstantPage>();
template const CRuntimeClass& gRuntimeClass<CVoltageSourceConstantPage>();
