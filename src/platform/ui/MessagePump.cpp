#include "platform/ui/MessagePump.h"

#include "platform/ui/Desktop.h"
#include "platform/ui/Wnd.h"

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
