#include "wizard/analysis/StepSweepPage.h"

#include "platform/ui/DataExchange.h"
#include "platform/ui/Fields.h"
#include "platform/ui/Translate.h"
#include "wizard/analysis/StepSweepTemplate.h"
#include "wizard/frame/PageText.h"

using namespace StepSweepTemplate;

CStepSweepPage::CStepSweepPage(CWnd* pOwner) : CDialog(kTemplate, pOwner) {}

void CStepSweepPage::Prepare(const CString& rsPrefix, bool bReset)
{
    msPrefix = rsPrefix;
    mbReset = bReset;
}

TMessageMap CStepSweepPage::GetMessageMap() const
{
    static constexpr TMessageMapEntry kHandlers[] = {
        On<&CStepSweepPage::OnSweepType>(ENotify::SelChange, kType),
        On<&CStepSweepPage::OnParameterType>(ENotify::SelChange, kParameter),
        On<&CStepSweepPage::OnIncrement>(ENotify::Change, kIncrement),
        On<&CStepSweepPage::OnNumberOfPoints>(ENotify::Change, kNumberOfPoints),
        On<&CStepSweepPage::OnAccept>(ENotify::Clicked, kAccept),
        On<&CStepSweepPage::OnCancelButton>(ENotify::Clicked, kCancel),
    };
    return kHandlers;
}

void CStepSweepPage::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, kType, mType);
    DDX_Control(pDX, kParameter, mParameter);
    DDX_Text(pDX, kListOfValues, mFields.msListOfValues);
    DDX_Text(pDX, kStart, mFields.msStart);
    DDX_Text(pDX, kStop, mFields.msStop);
    DDX_Text(pDX, kNumberOfPoints, mFields.msNumberOfPoints);
    DDX_Text(pDX, kIncrement, mFields.msIncrement);
    DDX_Text(pDX, kParameterName, mFields.msParameterName);
    DDX_Text(pDX, kModelName, mFields.msModelName);
}

bool CStepSweepPage::OnInitDialog()
{
    CDialog::OnInitDialog();
    if (mbReset)
        mResultType = ESweepType::NotUsed;
    const ESweepParameter parameter = mbReset ? ESweepParameter::ParameterName : mResultParameter;
    mType.SetCurSel(mbReset ? 0 : static_cast<int>(mResultType));
    OnSweepType();
    mParameter.SetCurSel(static_cast<int>(parameter));
    OnParameterType();
    if (mbReset)
        EmptyEdits();
    return true;
}

ESweepType CStepSweepPage::Type() const
{
    return static_cast<ESweepType>(mType.GetCurSel());
}

ESweepParameter CStepSweepPage::Parameter() const
{
    return static_cast<ESweepParameter>(mParameter.GetCurSel());
}

// --- what a choice shows

void CStepSweepPage::OnSweepType()
{
    const ESweepType type = Type();
    gEnableField(*this, kNumberOfPoints, true);
    gEnableField(*this, kIncrement, true);
    ShowLabels(type);
    gShowLayers(*this, LayerOf(type));
    if (type == ESweepType::Linear)
        ApplyLinearMode();
    const bool bParameter = gVariesParameter(type);
    if (bParameter) {
        mParameter.SetCurSel(static_cast<int>(ESweepParameter::ParameterName));
        gSetFieldLabel(*this, kParameterName,
                       xlang::gTranslate("__$$Translatable$$_Para&meter name:"));
    }
    gShowField(*this, kParameterName, bParameter);
    gShowField(*this, kModelName, false);
}

void CStepSweepPage::ShowLabels(ESweepType type)
{
    const TTypeLabels& rLabels = TypeLabels(type);
    gSetFieldLabel(*this, kStart, gShownText(rLabels.pStart));
    gSetFieldLabel(*this, kStop, gShownText(rLabels.pStop));
    gSetFieldLabel(*this, kIncrement, gShownText(rLabels.pIncrement));
    gSetFieldLabel(*this, kNumberOfPoints, gShownText(rLabels.pNumberOfPoints));
    gSetFieldLabel(*this, kListOfValues, gShownText(rLabels.pListOfValues));
}

void CStepSweepPage::OnParameterType()
{
    const ESweepParameter parameter = Parameter();
    gSetFieldLabel(*this, kParameterName, "");
    gSetFieldLabel(*this, kModelName, ""); // Meant: never written again, the box has no label
    if (!gVariesParameter(Type()))
        return;
    gSetFieldLabel(*this, kParameterName, gShownText(ParameterLabel(parameter)));
    gShowField(*this, kParameterName, parameter != ESweepParameter::Temperature);
    gShowField(*this, kModelName, parameter == ESweepParameter::ModelParameter);
}

// --- increment and number of points of a linear sweep exclude each other

void CStepSweepPage::ApplyLinearMode()
{
    const bool bIncrement = !mFields.msIncrement.IsEmpty();
    const bool bNumberOfPoints = !mFields.msNumberOfPoints.IsEmpty();
    // Emptying an edit runs its handler, which pulls the fields and may change the mode.
    switch (mLinearMode) {
    case ELinearMode::Increment:
        if (bIncrement) {
            gEnableField(*this, kNumberOfPoints, false);
            GetDlgItem(kNumberOfPoints)->SetWindowText("");
        }
        break;
    case ELinearMode::NumberOfPoints:
        if (bNumberOfPoints) {
            gEnableField(*this, kIncrement, false);
            GetDlgItem(kIncrement)->SetWindowText("");
        }
        break;
    case ELinearMode::Either:
        if (bNumberOfPoints)
            gEnableField(*this, kIncrement, false);
        else if (bIncrement)
            gEnableField(*this, kNumberOfPoints, false);
        break;
    }
}

void CStepSweepPage::OnIncrement()
{
    if (Type() != ESweepType::Linear)
        return;
    UpdateData(true);
    FollowIncrement();
    FollowNumberOfPoints();
}

void CStepSweepPage::OnNumberOfPoints()
{
    if (Type() != ESweepType::Linear)
        return;
    UpdateData(true);
    FollowNumberOfPoints();
    FollowIncrement();
}

void CStepSweepPage::FollowIncrement()
{
    const bool bGoverns = !mFields.msIncrement.IsEmpty();
    gEnableField(*this, kNumberOfPoints, !bGoverns);
    if (bGoverns)
        mLinearMode = ELinearMode::Increment;
}

void CStepSweepPage::FollowNumberOfPoints()
{
    const bool bGoverns = !mFields.msNumberOfPoints.IsEmpty();
    gEnableField(*this, kIncrement, !bGoverns);
    if (bGoverns)
        mLinearMode = ELinearMode::NumberOfPoints;
}

// --- the end

void CStepSweepPage::EmptyEdits()
{
    for (const int nId :
         {kListOfValues, kStart, kStop, kNumberOfPoints, kIncrement, kParameterName, kModelName})
        GetDlgItem(nId)->SetWindowText("");
}

void CStepSweepPage::OnCancelButton()
{
    if (mResultType == ESweepType::NotUsed)
        EmptyEdits();
    EndDialog(IDOK);
}

bool CStepSweepPage::Reports(const char* pMissing)
{
    if (pMissing)
        gReportMessage(*this, xlang::gTranslate(pMissing));
    return pMissing != nullptr;
}

void CStepSweepPage::OnAccept()
{
    UpdateData(true);
    gTrimLeft(mFields.msStart, mFields.msStop, mFields.msListOfValues, mFields.msIncrement,
              mFields.msNumberOfPoints, mFields.msParameterName, mFields.msModelName);

    const TSweepEntries entries{Type(), Parameter(), mFields};
    if (gVariesParameter(entries.type) && Reports(gMissingSweepParameter(entries))) {
        mResultType = ESweepType::NotUsed; // Meant: the only way back to no sweep
        return;
    }
    if (Reports(gMissingSweepValue(entries)))
        return;
    msResult = gComposeSweepClause(msPrefix, entries);
    mResultType = entries.type;
    mResultParameter = entries.parameter;
    EndDialog(IDOK);
}
