#include "cli/PageRun.h"

#include "platform/headless/Step.h"
#include "wizard/frame/SinglePageDlg.h"

#include <stdexcept>
#include <utility>

namespace quorvawiz::cli
{

void gRunOnPage(HeadlessDesktop& rDesktop, const TWizard& rWizard, const TPage& rPage,
                QuorvaCommandWizardTarget& rTarget, HeadlessDesktop::TNextAction act)
{
    rDesktop.SetNextAction(
        [&rPage, act = std::move(act), bOnPage = false](CDialog& rInnermost) mutable {
            if (std::exchange(bOnPage, true))
                return act(rInnermost);
            gSelectPage(rInnermost, rPage);
            return true;
        });
    if (rPage.HasNode())
        rWizard.run(rTarget);
    else
        CSinglePageDlg(nullptr, &rTarget, *rPage.pClass).DoModal();
}

void gSelectPage(CDialog& rWizardDialog, const TPage& rPage)
{
    if (!rPage.HasNode())
        return;
    const TStep step{
        .op = EStep::SelectPath, .sKey = "tree", .sText = rPage.sPath, .bOnFrame = true};
    if (!gRunStep(rWizardDialog, step).IsDone())
        throw std::logic_error("the wizard's tree has no node for the page " + rPage.Name());
}

} // namespace quorvawiz::cli
