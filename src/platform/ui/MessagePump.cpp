#include "platform/ui/MessagePump.h"

#include "platform/ui/Desktop.h"
#include "platform/ui/Wnd.h"

namespace
{
/// The way of one posted message. Its window may end before the message arrives: then it is
/// dropped.
class CDelivery
{
public:
    explicit CDelivery(TUiThread& rThread) : mrThread(rThread), mMsg(rThread.mPosted.front())
    {
        mrThread.mPosted.pop_front();
        mrThread.mOnTheWay.push_back(&mMsg);
    }
    ~CDelivery() { mrThread.mOnTheWay.pop_back(); }
    CDelivery(const CDelivery&) = delete;
    CDelivery& operator=(const CDelivery&) = delete;

    void Run()
    {
        // A parent can't end without its children, so that the window's end tells of theirs.
        for (CWnd* pWnd = mMsg.pWnd; pWnd; pWnd = mMsg.pWnd ? pWnd->GetParent() : nullptr)
            if (pWnd->PreTranslateMessage(mMsg))
                return;
        if (mMsg.pWnd)
            mMsg.pWnd->SendMessage(mMsg.nMessage, mMsg.wParam, mMsg.lParam);
    }

private:
    TUiThread& mrThread;
    TMsg mMsg;
};
} // namespace

void gPumpPostedMessages()
{
    TUiThread& rThread = gDesktop().Thread();
    while (!rThread.mPosted.empty())
        CDelivery(rThread).Run();
}
