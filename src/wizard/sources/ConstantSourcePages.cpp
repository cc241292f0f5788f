#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/sources/SourceForm.h"
#include "wizard/sources/WaveformSource.h"

namespace
{
struct TTwin {
    TSourceTwin source;
    const char* pMissingName;
};

// Meant: these messages have no full stop.
constexpr TTwin kCurrent{kCurrentSource, "__$$Translatable$$_Missing current source name"};
constexpr TTwin kVoltage{kVoltageSource, "__$$Translatable$$_Missing voltage source name"};

constexpr auto Rows(const TTwin& rTwin)
{
    constexpr TColumns kColumns{.nField = 107, .nUnit = 212};
    return PageRows(
        GroupBox(kWholeGroup, "constant-source-group", "Constant Source",
                 GroupBox(kNameGroup, "name-group", "Name",
                          SourceHeadLines(kColumns, {rTwin.source.pNameLabel})),
                 EditLine(kColumns, kDCValue, "dc-value", "&DC value:", rTwin.source.pUnit),
                 ACLines(kColumns, rTwin.source)));
}

constexpr auto kCurrentRows = Rows(kCurrent);
constexpr auto kVoltageRows = Rows(kVoltage);
constexpr DialogTemplate kCurrentTemplate{"Constant", kPageSize, kCurrentRows};
constexpr DialogTemplate kVoltageTemplate{"Constant", kPageSize, kVoltageRows};

struct TFields : TSourceHead {
    CString msDC;
    TACValues mAC;
};

Remembered<TFields> sCurrentRemembered;
Remembered<TFields> sVoltageRemembered;

class ConstantForm : public SourceForm<TFields, TTwin>
{
public:
    using SourceForm::SourceForm;

    void Exchange(CDataExchange* pDX)
    {
        DDX_SourceHead(pDX, mFields);
        DDX_Text(pDX, kDCValue, mFields.msDC);
        DDX_ACValues(pDX, mFields.mAC);
    }

    bool Build(CString& rsCommand)
    {
        Read();
        gTrim(mFields.msName, mFields.msPositiveTerminal, mFields.msDC);
        gFillIfEmpty(mFields.msNegativeTerminal, "GND");
        if (!AreFilled({{mFields.msName, mrTwin.pMissingName},
                        {mFields.msPositiveTerminal, kMissingPositiveTerminal},
                        {mFields.msDC, "__$$Translatable$$_Missing DC value"}})) // meant: no stop
            return false;
        rsCommand = gSourceHeadText(mFields) + " " + mFields.msDC;
        gPrefixSourceLetter(rsCommand, mFields.msName, mrTwin.source.chLetter);
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
    CCurrentSourceConstantPage()
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
    ConstantForm mForm;
};

/// Builds the line of a voltage source with a DC value and its part in an AC analysis.
class CVoltageSourceConstantPage : public CCommandPage
{
public:
    CVoltageSourceConstantPage()
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
    ConstantForm mForm;
};

template const CRuntimeClass& gRuntimeClass<CCurrentSourceConstantPage>();
template const CRuntimeClass& gRuntimeClass<CVoltageSourceConstantPage>();
