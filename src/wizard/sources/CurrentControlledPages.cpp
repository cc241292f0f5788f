#include "platform/ui/Button.h"
#include "platform/ui/DataExchange.h"
#include "platform/ui/Fields.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/frame/PageText.h"
#include "wizard/frame/Remembered.h"
#include "wizard/sources/ControlledSource.h"
#include "wizard/sources/SourceForm.h"
#include "wizard/sources/SourceHead.h"

// The pages of a current and a voltage source that follow the currents through voltage sources.

namespace
{
enum EControlId {
    kSourceGroup = kFirstSourceField,
    kControllingSource,
    kPolynomialSources,
    kGain,
    kCoefficients,
    kSecondSource,
    kThirdSource,
};

constexpr const char* kMissingCCCSName =
    "__$$Translatable$$_Missing current-controlled current source name.";

struct TTwin {
    char chLetter; ///< of the source's line
    const char* pGroup;
    const char* pNameLabel;
    const char* pGainLabel;
    const char* pMissingName;
    const char* pMissingNamePolynomial;
    const char* pMissingGain;
    const char* pIllegalSecondSource;
    const char* pIllegalThirdSource;
};

// Meant: the messages differ in full stops, in a word and in a bracket.
constexpr TTwin kCurrent{
    .chLetter = 'F',
    .pGroup = "Current-controlled current source",
    .pNameLabel = "&CCCS name:",
    .pGainLabel = "C&urrent gain:",
    .pMissingName = kMissingCCCSName,
    .pMissingNamePolynomial = kMissingCCCSName,
    .pMissingGain = "__$$Translatable$$_Missing current gain value.",
    .pIllegalSecondSource =
        "__$$Translatable$$_Controlling voltage source 2 name is not a legal voltage source name "
        "(Must begin with 'V').",
    .pIllegalThirdSource =
        "__$$Translatable$$_Controlling voltage source 3 name is not a legal voltage source name "
        "(Must begin with 'V').",
};
constexpr TTwin kVoltage{
    .chLetter = 'H',
    .pGroup = "Current-controlled voltage source",
    .pNameLabel = "&CCVS name:",
    .pGainLabel = "Tr&ansresistance (in Ohm):",
    .pMissingName = "__$$Translatable$$_Missing current-controlled voltage source name",
    .pMissingNamePolynomial = "__$$Translatable$$_Missing current-controlled voltage source name.",
    .pMissingGain = "__$$Translatable$$_Missing transresistance value.",
    .pIllegalSecondSource =
        "__$$Translatable$$_Controlling voltage source 2 name is not a legal voltage source name "
        "(Must start with 'V').",
    .pIllegalThirdSource =
        "__$$Translatable$$_Controlling voltage source 3 name is not a legal voltage source name "
        "(Must begin with 'V'.)",
};

constexpr auto Rows(const TTwin& rTwin)
{
    constexpr TColumns kFields{.nField = 117};
    return PageRows(GroupBox(
        kSourceGroup, "current-controlled-source-group", rTwin.pGroup,
        SourceHeadLines(kFields, rTwin.pNameLabel),
        EditLine(kFields, kControllingSource, "controlling-source", "C&ontrolling voltage source:"),
        CheckLine(kPolynomialSources, "polynomial-sources", "Po&lynomial sources"),
        EditLine(kFields, kGain, "gain", rTwin.pGainLabel),
        WithFlags(kDisabled,
                  Lines(TextBox(kCoefficients, "coefficients", "Pol&ynomial coefficients:", 36),
                        EditLine(kFields, kSecondSource, "second-controlling-source",
                                 "Con&trolling voltage source #2:"),
                        EditLine(kFields, kThirdSource, "third-controlling-source",
                                 "Cont&rolling voltage source #3:")))));
}

constexpr auto kCurrentRows = Rows(kCurrent);
constexpr auto kVoltageRows = Rows(kVoltage);
constexpr DialogTemplate kCurrentTemplate{"Current-controlled", kPageSize, kCurrentRows};
constexpr DialogTemplate kVoltageTemplate{"Current-controlled", kPageSize, kVoltageRows};

struct TFields {
    int mnPolynomialSources = 0;
    TSourceHead mHead;
    CString msControllingSource;
    CString msGain;
    CString msCoefficients;
    CString msSecondSource;
    CString msThirdSource;
};

Remembered<TFields> sCurrent;
Remembered<TFields> sVoltage;

bool IsVoltageSource(const CString& rsName)
{
    return gBeginsWithLetter(rsName, 'V');
}

class CurrentControlledForm : public SourceForm<TFields, TTwin>
{
public:
    using SourceForm::SourceForm;

    void Exchange(CDataExchange* pDX)
    {
        DDX_Control(pDX, kPolynomialSources, mPolynomialSources);
        DDX_SourceHead(pDX, mFields.mHead);
        DDX_Text(pDX, kControllingSource, mFields.msControllingSource);
        DDX_Text(pDX, kGain, mFields.msGain);
        DDX_Text(pDX, kCoefficients, mFields.msCoefficients);
        DDX_Text(pDX, kSecondSource, mFields.msSecondSource);
        DDX_Text(pDX, kThirdSource, mFields.msThirdSource);
    }

    bool InitDialog()
    {
        SourceForm::InitDialog();
        mPolynomialSources.SetCheck(mFields.mnPolynomialSources);
        OnPolynomialSources();
        return true;
    }

    void OnPolynomialSources()
    {
        mFields.mnPolynomialSources = mPolynomialSources.GetCheck();
        const bool bPolynomial = mFields.mnPolynomialSources != 0;
        gEnableField(mrPage, kGain, !bPolynomial);
        for (const int nField : {kCoefficients, kSecondSource, kThirdSource})
            gEnableField(mrPage, nField, bPolynomial);
    }

    bool Build(CString& rsCommand)
    {
        Read();
        TSourceHead& rHead = mFields.mHead;
        gTrim(rHead.msName, rHead.msPositiveTerminal, mFields.msControllingSource, mFields.msGain,
              mFields.msCoefficients);
        mFields.mnPolynomialSources = mPolynomialSources.GetCheck();
        gFillIfEmpty(rHead.msNegativeTerminal, kGround);
        const bool bPolynomial = mFields.mnPolynomialSources != 0;
        if (!(bPolynomial ? BuildPolynomial(rsCommand) : BuildGain(rsCommand)))
            return false;
        Remember();
        return true;
    }

private:
    /// The checks that both forms of the line begin with.
    bool IsHeadFilled(const char* pMissingName)
    {
        if (!AreFilled({{mFields.mHead.msName, pMissingName},
                        {mFields.mHead.msPositiveTerminal, kMissingPositiveTerminal},
                        {mFields.msControllingSource,
                         "__$$Translatable$$_Missing controlling voltage source name."}}))
            return false;
        return IsVoltageSource(mFields.msControllingSource) ||
               Fail("__$$Translatable$$_Controlling voltage source name is not a legal voltage "
                    "source name (Must begin with 'V').");
    }

    bool BuildGain(CString& rsCommand)
    {
        if (!IsHeadFilled(mrTwin.pMissingName) ||
            !AreFilled({{mFields.msGain, mrTwin.pMissingGain}}))
            return false;
        rsCommand = gSourceHeadText(mFields.mHead) + " " + mFields.msControllingSource + " " +
                    mFields.msGain;
        gPrefixSourceLetter(rsCommand, mFields.mHead.msName, mrTwin.chLetter);
        return true;
    }

    bool BuildPolynomial(CString& rsCommand)
    {
        if (!IsHeadFilled(mrTwin.pMissingNamePolynomial) ||
            !AreFilled({{mFields.msCoefficients, kMissingPolynomialCoefficients}}))
            return false;
        rsCommand = gSourceHeadText(mFields.mHead) + " POLY(";
        gPrefixSourceLetter(rsCommand, mFields.mHead.msName, mrTwin.chLetter);
        if (!AreFurtherSourcesLegal())
            return false; // Meant: the line so far stays
        AppendSources(rsCommand);
        return true;
    }

    bool AreFurtherSourcesLegal()
    {
        const bool bSecond = !mFields.msSecondSource.IsEmpty();
        const bool bThird = !mFields.msThirdSource.IsEmpty();
        if (bSecond && !IsVoltageSource(mFields.msSecondSource))
            return Fail(mrTwin.pIllegalSecondSource);
        if (bThird && bSecond && !IsVoltageSource(mFields.msThirdSource))
            return Fail(mrTwin.pIllegalThirdSource);
        if (bThird && !bSecond)
            return Fail("__$$Translatable$$_Missing controlling voltage source 2 name.");
        return true;
    }

    void AppendSources(CString& rsCommand) const
    {
        CString sSources = mFields.msControllingSource;
        int nSources = 1;
        for (const CString* const pFurther : {&mFields.msSecondSource, &mFields.msThirdSource}) {
            if (pFurther->IsEmpty())
                continue;
            sSources += " " + *pFurther;
            ++nSources;
        }
        gAppendPolynomial(rsCommand, nSources, sSources, mFields.msCoefficients);
    }

    CButton mPolynomialSources;
};
} // namespace

/// Builds the line of a current source that follows currents: F... with a gain or a polynomial.
class CCurrentSourceCurrentControlledPage : public CCommandPage
{
public:
    CCurrentSourceCurrentControlledPage()
        : CCommandPage(kCurrentTemplate), mForm(*this, kCurrent, sCurrent)
    {
    }

    TMessageMap GetMessageMap() const override
    {
        static constexpr TMessageMapEntry kHandlers[] = {
            On<&CCurrentSourceCurrentControlledPage::OnPolynomialSources>(ENotify::Clicked,
                                                                          kPolynomialSources)};
        return kHandlers;
    }
    void DoDataExchange(CDataExchange* pDX) override { mForm.Exchange(pDX); }
    bool OnInitDialog() override { return mForm.InitDialog(); }
    bool BuildCommand(CString& rsCommand) override { return mForm.Build(rsCommand); }

private:
    void OnPolynomialSources() { mForm.OnPolynomialSources(); }

    CurrentControlledForm mForm;
};

/// Builds the line of a voltage source that follows currents: H... with a transresistance or a
/// polynomial.
class CVoltageSourceCurrentControlledPage : public CCommandPage
{
public:
    CVoltageSourceCurrentControlledPage()
        : CCommandPage(kVoltageTemplate), mForm(*this, kVoltage, sVoltage)
    {
    }

    TMessageMap GetMessageMap() const override
    {
        static constexpr TMessageMapEntry kHandlers[] = {
            On<&CVoltageSourceCurrentControlledPage::OnPolynomialSources>(ENotify::Clicked,
                                                                          kPolynomialSources)};
        return kHandlers;
    }
    void DoDataExchange(CDataExchange* pDX) override { mForm.Exchange(pDX); }
    bool OnInitDialog() override { return mForm.InitDialog(); }
    bool BuildCommand(CString& rsCommand) override { return mForm.Build(rsCommand); }

private:
    void OnPolynomialSources() { mForm.OnPolynomialSources(); }

    CurrentControlledForm mForm;
};

template const CRuntimeClass& gRuntimeClass<CCurrentSourceCurrentControlledPage>();
template const CRuntimeClass& gRuntimeClass<CVoltageSourceCurrentControlledPage>();
