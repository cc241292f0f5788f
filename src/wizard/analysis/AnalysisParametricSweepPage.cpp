#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/analysis/SweepRows.h"
#include "wizard/frame/CommandPage.h"

namespace
{
constexpr DialogTemplate kTemplate{"Parametric sweep", kPageSize, kSweepRows};
} // namespace

/// Builds ".step " and up to three nested sweeps. Without the first one it builds nothing and says
/// nothing.
class CAnalysisParametricSweepPage : public CCommandPage
{
public:
    CAnalysisParametricSweepPage() : CCommandPage(kTemplate), mSweeps(*this, ".step ") {}

    TMessageMap GetMessageMap() const override
    {
        static constexpr TMessageMapEntry kHandlers[] = {
            On<&CAnalysisParametricSweepPage::OnSweep>(ENotify::Clicked, kSweep1),
            On<&CAnalysisParametricSweepPage::OnSweep>(ENotify::Clicked, kSweep2),
            On<&CAnalysisParametricSweepPage::OnSweep>(ENotify::Clicked, kSweep3),
        };
        return kHandlers;
    }

    // Meant: without the first sweep it says nothing, and nothing is remembered.
    bool BuildCommand(CString& rsCommand) override { return mSweeps.Compose(rsCommand); }

private:
    void OnSweep(int nButton) { mSweeps.Press(nButton); }

    SweepRows mSweeps;
};

template const CRuntimeClass& gRuntimeClass<CAnalysisParametricSweepPage>();
