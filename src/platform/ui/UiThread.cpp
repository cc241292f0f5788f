#include "platform/ui/UiThread.h"

#include <algorithm>

void TUiThread::EndRuns(TModalRun& rRun, int nResult)
{
    for (auto run = std::ranges::find(mModalRuns, &rRun); run != mModalRuns.end(); ++run) {
        if ((*run)->bEnded)
            continue;
        (*run)->bEnded = true;
        (*run)->nResult = *run == &rRun ? nResult : IDCANCEL;
    }
}

void TUiThread::Forget(const CWnd& rWnd)
{
    if (mpFocus == &rWnd)
        mpFocus = nullptr;
    for (TModalRun* pRun : mModalRuns)
        if (pRun->pFocusBefore == &rWnd)
            pRun->pFocusBefore = nullptr;
    for (TMsg* pMsg : mOnTheWay)
        if (pMsg->pWnd == &rWnd)
            pMsg->pWnd = nullptr;
    std::erase_if(mPosted, [&rWnd](const TMsg& rMsg) { return rMsg.pWnd == &rWnd; });
}

CWnd* TUiThread::FrontWindow() const
{
    return mModalRuns.empty() ? nullptr : mModalRuns.back()->pWindow;
}
