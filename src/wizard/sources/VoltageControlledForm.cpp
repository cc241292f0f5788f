#include "wizard/sources/VoltageControlledForm.h"

#include "platform/ui/DataExchange.h"
#include "platform/ui/Fields.h"
#include "wizard/frame/PageText.h"
#include "wizard/sources/ControlledSource.h"

using namespace VoltageControlled;

namespace
{
constexpr const char* kMissingFirstControl =
    "__$$Translatable$$_Missing controlling positive terminal name.";

CString Pair(const CString& rsPositive, const CString& rsNegative)
{
    return rsPositive + " " + rsNegative;
}
} // namespace

void VoltageControlledForm::Exchange(CDataExchange* pDX)
{
    DDX_SourceHead(pDX, mFields.mHead);
    DDX_Text(pDX, kFirstControl, mFields.msFirstControl);
    DDX_Text(pDX, kSecondControl, mFields.msSecondControl);
    DDX_Text(pDX, kGain, mFields.msGain);
    DDX_Text(pDX, kCoefficients, mFields.msCoefficients);
    DDX_Text(pDX, kSecondPositive, mFields.msSecondPositive);
    DDX_Text(pDX, kSecondNegative, mFields.msSecondNegative);
    DDX_Text(pDX, kThirdPositive, mFields.msThirdPositive);
    DDX_Text(pDX, kThirdNegative, mFields.msThirdNegative);
}

bool VoltageControlledForm::InitDialog()
{
    SourceForm::InitDialog();
    mrPage.CheckRadioButton(kLinear, kExpression, mFields.mnMode);
    ShowMode(mFields.mnMode);
    return true;
}

const TMode& VoltageControlledForm::ModeOf(int nMode) const
{
    switch (nMode) {
    case kPolynomial:
        return mrTwin.polynomial;
    case kExpression:
        return mrTwin.expression;
    default:
        return mrTwin.linear;
    }
}

void VoltageControlledForm::ShowMode(int nMode)
{
    const TMode& rMode = ModeOf(nMode);
    SetLabel(kFirstControl, {rMode.pFirstControl});
    if (rMode.pSecondControl)
        SetLabel(kSecondControl, {rMode.pSecondControl});
    SetLabel(kGain, {rMode.pGain});
    for (int n = 0; n < 4; ++n)
        SetLabel(kSecondPositive + n, rMode.furtherPairs[n]);
    gShowLayers(mrPage, rMode.nLayer);
}

void VoltageControlledForm::SetLabel(int nField, const TLabel& rLabel)
{
    gSetFieldLabel(mrPage, nField, gShownText(rLabel.pLiteral) + rLabel.pTail);
}

bool VoltageControlledForm::Build(CString& rsCommand)
{
    mFields.mnMode = mrPage.GetCheckedRadioButton(kLinear, kExpression);
    Read();
    TSourceHead& rHead = mFields.mHead;
    gTrim(rHead.msName, rHead.msPositiveTerminal, mFields.msFirstControl, mFields.msGain,
          mFields.msCoefficients);
    gFillIfEmpty(rHead.msNegativeTerminal, kGround);
    // Meant: in the expression mode, too, where it is the charge expression.
    gFillIfEmpty(mFields.msSecondControl, kGround);
    if (!BuildMode(rsCommand))
        return false;
    Remember();
    return true;
}

bool VoltageControlledForm::BuildMode(CString& rsCommand)
{
    switch (mFields.mnMode) {
    case kPolynomial:
        return BuildPolynomial(rsCommand);
    case kExpression:
        // Meant: on one of the pages a failed check is reported and then nothing else comes of it.
        return BuildExpression(rsCommand) || mrTwin.bFailedExpressionSucceeds;
    default:
        return BuildLinear(rsCommand);
    }
}

bool VoltageControlledForm::IsHeadFilled(const TMode& rMode)
{
    return AreFilled({{mFields.mHead.msName, rMode.pMissingName},
                      {mFields.mHead.msPositiveTerminal, mrTwin.pMissingPositive}});
}

CString VoltageControlledForm::Head() const
{
    CString sHead = gSourceHeadText(mFields.mHead);
    gPrefixSourceLetter(sHead, mFields.mHead.msName, mrTwin.chLetter);
    return sHead;
}

bool VoltageControlledForm::BuildLinear(CString& rsCommand)
{
    if (!IsHeadFilled(mrTwin.linear) || !AreFilled({{mFields.msFirstControl, kMissingFirstControl},
                                                    {mFields.msGain, mrTwin.pMissingGain}}))
        return false;
    rsCommand =
        Head() + " " + Pair(mFields.msFirstControl, mFields.msSecondControl) + " " + mFields.msGain;
    return true;
}

bool VoltageControlledForm::BuildPolynomial(CString& rsCommand)
{
    if (!IsHeadFilled(mrTwin.polynomial) ||
        !AreFilled({{mFields.msFirstControl, kMissingFirstControl},
                    {mFields.msCoefficients, kMissingPolynomialCoefficients}}))
        return false;
    rsCommand = Head() + " POLY(";
    if (!ArePairsWhole())
        return false; // Meant: the line so far stays
    AppendPairs(rsCommand);
    return true;
}

bool VoltageControlledForm::ArePairsWhole()
{
    const bool bSecond = !mFields.msSecondPositive.IsEmpty();
    const bool bThird = !mFields.msThirdPositive.IsEmpty();
    if (!bSecond && (bThird || !mFields.msSecondNegative.IsEmpty()))
        return Fail("__$$Translatable$$_Missing controlled source 2 positive terminal name.");
    if (!bThird && !mFields.msThirdNegative.IsEmpty())
        return Fail("__$$Translatable$$_Missing controlled source 3 positive terminal name.");
    return true;
}

void VoltageControlledForm::AppendPairs(CString& rsCommand)
{
    // Meant: also those of pairs that aren't used. They are remembered, and a next run that leaves
    // the page as it is will miss their positive terminals.
    gFillIfEmpty(mFields.msSecondNegative, kGround);
    gFillIfEmpty(mFields.msThirdNegative, kGround);
    CString sPairs = Pair(mFields.msFirstControl, mFields.msSecondControl);
    int nPairs = 1;
    const auto append = [&](const CString& rsPositive, const CString& rsNegative) {
        if (rsPositive.IsEmpty())
            return;
        sPairs += " " + Pair(rsPositive, rsNegative);
        ++nPairs;
    };
    append(mFields.msSecondPositive, mFields.msSecondNegative);
    append(mFields.msThirdPositive, mFields.msThirdNegative);
    gAppendPolynomial(rsCommand, nPairs, sPairs, mFields.msCoefficients);
}

const char* gMissingExpression(const TVoltageControlledFields& rFields, const TTwin& rTwin)
{
    // Meant: where two expressions count, the second is never empty by now.
    const bool bSecond = rTwin.pSecondExpression && !rFields.msSecondControl.IsEmpty();
    return rFields.msFirstControl.IsEmpty() && !bSecond ? rTwin.pMissingExpression : nullptr;
}

bool VoltageControlledForm::BuildExpression(CString& rsCommand)
{
    if (!IsHeadFilled(mrTwin.expression))
        return false;
    if (const char* const pMissing = gMissingExpression(mFields, mrTwin))
        return Fail(pMissing);
    rsCommand = Head();
    if (!mFields.msFirstControl.IsEmpty())
        rsCommand += mrTwin.pFirstExpression + mFields.msFirstControl + "'";
    if (mrTwin.pSecondExpression)
        rsCommand += mrTwin.pSecondExpression + mFields.msSecondControl + "'"; // never empty by now
    return true;
}
