#include "platform/ui/UiThread.h"

#include "platform/ui/Desktop.h"
#include "platform/ui/Wnd.h"

void TUiThread::Forget(const CWnd& rWnd)
{
    if (mpFocus == &rWnd)
        mpFocus = nullptr;
    for (TModalRun* pRun : mModalRuns)
        if (pRun->pFocusBefore == &rWnd)
            pRun->pFocusBefore = nullptr;
    std::erase_if(mPosted, [&rWnd](const TMsg& rMsg) { return rMsg.pWnd == &rWnd; });
}

CDialog* TUiThread::InnermostDialog() const
{
    return mModalRuns.empty() ? nullptr : mModalRuns.back()->pDialog;
}

void gPumpPostedMessages()
{
    std::deque<TMsg>& rPosted = gDesktop().Thread().mPosted;
    while (!rPosted.empty()) {
        const TMsg msg = rPosted.front();
        rPosted.pop_front();

        bool bTaken = false;
        for (CWnd* pWnd = msg.pWnd; pWnd && !bTaken; pWnd = pWnd->GetParent())
            bTaken = pWnd->PreTranslateMessage(msg);
        if (!bTaken)
            msg.pWnd->SendMessage(msg.nMessage, msg.wParam, msg.lParam);
    }
}
