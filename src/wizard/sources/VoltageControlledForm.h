#pragma once

#include "wizard/sources/SourceForm.h"
#include "wizard/sources/SourceHead.h"
#include "wizard/sources/VoltageControlledTwin.h"

/// The fields of a page of a voltage-controlled source. In the expression mode the first two
/// controlling fields hold expressions.
struct TVoltageControlledFields {
    int mnMode = VoltageControlled::kLinear; ///< the id of the checked radio button
    TSourceHead mHead;
    CString msFirstControl;
    CString msSecondControl;
    CString msGain;
    CString msCoefficients;
    CString msSecondPositive;
    CString msSecondNegative;
    CString msThirdPositive;
    CString msThirdNegative;
};

/// The check of the expressions: the literal of the message that one is missing, or null.
const char* gMissingExpression(const TVoltageControlledFields& rFields,
                               const VoltageControlled::TTwin& rTwin);

/// What the pages of both voltage-controlled sources do.
class VoltageControlledForm : public SourceForm<TVoltageControlledFields, VoltageControlled::TTwin>
{
public:
    using SourceForm::SourceForm;

    void Exchange(CDataExchange* pDX);
    /// As `OnInitDialog` of a page.
    bool InitDialog();
    /// Shows what the mode of this radio button asks for, and how that is called in it.
    void ShowMode(int nMode);
    /// As `BuildCommand` of a page.
    bool Build(CString& rsCommand);

private:
    const VoltageControlled::TMode& ModeOf(int nMode) const;
    bool BuildMode(CString& rsCommand);
    bool BuildLinear(CString& rsCommand);
    bool BuildPolynomial(CString& rsCommand);
    bool BuildExpression(CString& rsCommand);
    bool IsHeadFilled(const VoltageControlled::TMode& rMode);
    bool ArePairsWhole();
    /// Fills the negative terminals of the further pairs in and appends all pairs.
    void AppendPairs(CString& rsCommand);
    CString Head() const;
    void SetLabel(int nField, const VoltageControlled::TLabel& rLabel);
};
