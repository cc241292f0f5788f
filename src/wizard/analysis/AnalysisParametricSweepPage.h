#pragma once

#include "wizard/analysis/SweepRows.h"
#include "wizard/frame/CommandPage.h"

/// Builds ".step " and up to three nested sweeps. Without the first one it builds nothing and says
/// nothing.
class CAnalysisParametricSweepPage : public CCommandPage
{
public:
    CAnalysisParametricSweepPage();

    bool BuildCommand(CString& rsCommand) override;

protected:
    TMessageMap GetMessageMap() const override;

private:
    void OnSweep(int nButton);

    SweepRows mSweeps;
};
