#pragma once

#include "wizard/analysis/SweepSlot.h"
#include "wizard/frame/CommandPage.h"

/// Builds ".tran ", the times of a simulation in seconds, its mode, and a sweep.
class CAnalysisTransientPage : public CCommandPage
{
public:
    CAnalysisTransientPage();

    bool OnInitDialog() override;
    bool BuildCommand(CString& rsCommand) override;

    /// The ids of the mode's radio buttons.
    enum EMode { kStandard = 1001, kRampup, kPowerup, kPreview };

    struct TFields {
        int mnMode = kStandard;
        CString msMaximumTimeStep;
        CString msOutputStartTime;
        CString msSimulationLength;
    };

protected:
    TMessageMap GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pDX) override;

private:
    void OnSweep();

    CString msMessage;
    SweepSlot mSweep;
    TFields mFields;
};
