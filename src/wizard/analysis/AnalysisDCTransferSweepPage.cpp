#include "wizard/analysis/AnalysisDCTransferSweepPage.h"

#include "platform/ui/RuntimeClassDefinition.h"

namespace
{
constexpr DialogTemplate kTemplate{"DC transfer sweep", kPageSize, kSweepRows};
} // namespace

CAnalysisDCTransferSweepPage::CAnalysisDCTransferSweepPage()
    : CCommandPage(kTemplate), mSweeps(*this, ".dc ")
{
}

TMessageMap CAnalysisDCTransferSweepPage::GetMessageMap() const
{
    static constexpr TMessageMapEntry kHandlers[] = {
        On<&CAnalysisDCTransferSweepPage::OnSweep>(ENotify::Clicked, kSweep1),
        On<&CAnalysisDCTransferSweepPage::OnSweep>(ENotify::Clicked, kSweep2),
        On<&CAnalysisDCTransferSweepPage::OnSweep>(ENotify::Clicked, kSweep3),
    };
    return kHandlers;
}

void CAnalysisDCTransferSweepPage::OnSweep(int nButton)
{
    mSweeps.Press(nButton);
}

// Meant: without the first sweep it says nothing, and nothing is remembered.
bool CAnalysisDCTransferSweepPage::BuildCommand(CString& rsCommand)
{
    return mSweeps.Compose(rsCommand);
}

template const CRuntimeClass& gRuntimeClass<CAnalysisDCTransferSweepPage>();
