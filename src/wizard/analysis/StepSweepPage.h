#pragma once

#include "platform/ui/ComboBox.h"
#include "platform/ui/Dialog.h"
#include "wizard/analysis/SweepClause.h"

/// The dialog "Sweep", in which the user says what varies in a simulation and how. It keeps its
/// entries as long as the object lives, so each sweep of each page has an object of its own.
class CStepSweepPage : public CDialog
{
public:
    /// `pOwner` (may be null): the page whose sweep this is.
    explicit CStepSweepPage(CWnd* pOwner = nullptr);

    /// Before each opening: what the clause starts with, and whether to start anew. A page asks for
    /// that as long as it has no sweep; otherwise the dialog would open with no type selected.
    void Prepare(const CString& rsPrefix, bool bReset);

    bool OnInitDialog() override;

    /// The clause that was accepted last, its prefix in front.
    const CString& GetResult() const { return msResult; }
    /// Its type; `NotUsed` also after a parameter was found missing.
    ESweepType GetResultType() const { return mResultType; }
    ESweepParameter GetResultParameter() const { return mResultParameter; }

protected:
    TMessageMap GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pDX) override;

private:
    /// Which of the two fields of a linear sweep that exclude each other governs.
    enum class ELinearMode : int { Increment, NumberOfPoints, Either };

    void OnSweepType();
    void OnParameterType();
    void OnIncrement();
    void OnNumberOfPoints();
    void OnAccept();
    void OnCancelButton();

    ESweepType Type() const;
    ESweepParameter Parameter() const;
    void ShowLabels(ESweepType type);
    void ApplyLinearMode();
    void FollowIncrement();
    void FollowNumberOfPoints();
    void EmptyEdits();
    bool Reports(const char* pMissing);

    bool mbReset = true;
    ELinearMode mLinearMode = ELinearMode::Either;
    CString msPrefix;
    CComboBox mType;
    CComboBox mParameter;
    TSweepFields mFields;
    CString msResult;
    ESweepType mResultType = ESweepType::NotUsed;
    ESweepParameter mResultParameter = ESweepParameter::ModelParameter;
};
