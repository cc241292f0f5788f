#include "platform/ui/Desktop.h"
#include "platform/ui/Wnd.h"

// Whether the user can act on a window.

EUserResult CWnd::WouldAcceptUser()
{
    const TUiThread& rThread = gDesktop().Thread();
    const CWnd* const pFront = rThread.FrontWindow();
    if (!mbCreated || rThread.mnOpenBoxes > 0 || (pFront && pFront != &GetTopLevel()))
        return EUserResult::Blocked;
    if (!IsWindowVisible())
        return EUserResult::Hidden;
    if (!IsUsable())
        return EUserResult::Disabled;
    return EUserResult::Done;
}

EUserResult CWnd::AcceptUser()
{
    if (const EUserResult result = WouldAcceptUser(); result != EUserResult::Done)
        return result;
    SetFocus();
    // A handler of the focus change may have closed the way.
    return WouldAcceptUser();
}
