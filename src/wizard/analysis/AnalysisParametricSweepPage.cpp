#include "wizard/analysis/AnalysisParametricSweepPage.h"

#include "platform/ui/RuntimeClassDefinition.h"

namespace
{
constexpr DialogTemplate kTemplate{"Parametric sweep", kPageSize, kSweepRows};
} // namespace

CAnalysisParametricSweepPage::CAnalysisParametricSweepPage()
    : CCommandPage(kTemplate), mSweeps(*this, ".step ")
{
}

TMessageMap CAnalysisParametricSweepPage::GetMessageMap() const
{
    static constexpr TMessageMapEntry kHandlers[] = {
        On<&CAnalysisParametricSweepPage::OnSweep>(ENotify::Clicked, kSweep1),
        On<&CAnalysisParametricSweepPage::OnSweep>(ENotify::Clicked, kSweep2),
        On<&CAnalysisParametricSweepPage::OnSweep>(ENotify::Clicked, kSweep3),
    };
    return kHandlers;
}

void CAnalysisParametricSweepPage::OnSweep(int nButton)
{
    mSweeps.Press(nButton);
}

// Meant: without the first sweep it says nothing, and nothing is remembered.
bool CAnalysisParametricSweepPage::BuildCommand(CString& rsCommand)
{
    return mSweeps.Compose(rsCommand);
}

template const CRuntimeClass& gRuntimeClass<CAnalysisParametricSweepPage>();
