#include "wizard/sources/VoltageControlledForm.h"

#include "platform/ui/DataExchange.h"
#include "platform/ui/Fields.h"
#include "wizard/frame/PageText.h"

using namespace VoltageControlled;

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

void VoltageControlledForm::Restore()
{
    SourceForm::Restore();
    mrPage.CheckRadioButton(kLinear, kExpression, mFields.mnMode);
    ShowMode(mFields.mnMode);
}

void VoltageControlledForm::ShowMode(int nMode)
{
    const bool bPolynomial = nMode == kPolynomial;
    const TMode& rMode = bPolynomial            ? mrTwin.polynomial
                         : nMode == kExpression ? mrTwin.expression
                                                : mrTwin.linear;
    SetLabel(kFirstControl, {rMode.pFirstControl});
    if (rMode.pSecondControl)
        SetLabel(kSecondControl, {rMode.pSecondControl});
    SetLabel(kGain, {rMode.pGain});
    for (int n = 0; n < 4; ++n)
        SetLabel(kSecondPositive + n, bPolynomial ? mrTwin.furtherPairs[n] : TLabel{""});
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
    gTrim(mFields.mHead.msName, mFields.mHead.msPositiveTerminal, mFields.msFirstControl,
          mFields.msGain, mFields.msCoefficients);
    gFillIfEmpty(mFields.mHead.msNegativeTerminal, "GND");
    // Meant: in the expression mode, too, where it is the charge expression.
    gFillIfEmpty(mFields.msSecondControl, "GND");
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

namespace
{
constexpr const char* kMissingFirstControl =
    "__$$Translatable$$_Missing controlling positive terminal name.";

CString Pair(const CString& rsPositive, const CString& rsNegative)
{
    return " " + rsPositive + " " + rsNegative;
}
} // namespace

bool VoltageControlledForm::BuildLinear(CString& rsCommand)
{
    if (!IsHeadFilled(mrTwin.linear) || !AreFilled({{mFields.msFirstControl, kMissingFirstControl},
                                                    {mFields.msGain, mrTwin.pMissingGain}}))
        return false;
    rsCommand =
        Head() + Pair(mFields.msFirstControl, mFields.msSecondControl) + " " + mFields.msGain;
    return true;
}

bool VoltageControlledForm::BuildPolynomial(CString& rsCommand)
{
    if (!IsHeadFilled(mrTwin.polynomial) ||
        !AreFilled(
            {{mFields.msFirstControl, kMissingFirstControl},
             {mFields.msCoefficients, "__$$Translatable$$_Missing polynomial coefficients."}}))
        return false;
    // Meant: the line so far stays when a further pair is refused.
    rsCommand = Head() + " POLY(";
    if (!ArePairsWhole())
        return false;
    AppendPairs(rsCommand);
    rsCommand += " " + gJoinLines(mFields.msCoefficients);
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
    gFillIfEmpty(mFields.msSecondNegative, "GND");
    gFillIfEmpty(mFields.msThirdNegative, "GND");
    const bool bSecond = !mFields.msSecondPositive.IsEmpty();
    const bool bThird = !mFields.msThirdPositive.IsEmpty();
    rsCommand += bThird ? "3)" : bSecond ? "2)" : "1)";
    rsCommand += Pair(mFields.msFirstControl, mFields.msSecondControl);
    if (bSecond)
        rsCommand += Pair(mFields.msSecondPositive, mFields.msSecondNegative);
    if (bThird)
        rsCommand += Pair(mFields.msThirdPositive, mFields.msThirdNegative);
}

bool VoltageControlledForm::BuildExpression(CString& rsCommand)
{
    if (!IsHeadFilled(mrTwin.expression))
        return false;
    // Meant: where two expressions count, the second is never empty by now.
    const bool bSecond = mrTwin.pSecondExpression && !mFields.msSecondControl.IsEmpty();
    if (!bSecond && !AreFilled({{mFields.msFirstControl, mrTwin.pMissingExpression}}))
        return false;
    rsCommand = Head();
    if (!mFields.msFirstControl.IsEmpty())
        rsCommand += mrTwin.pFirstExpression + mFields.msFirstControl + "'";
    if (bSecond)
        rsCommand += mrTwin.pSecondExpression + mFields.msSecondControl + "'";
    return true;
}
