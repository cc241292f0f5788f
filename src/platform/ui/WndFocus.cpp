#include "platform/ui/Desktop.h"
#include "platform/ui/TabOrder.h"
#include "platform/ui/Wnd.h"

#include <utility>

// The keyboard's way through the windows: who has it, who takes it, where it goes when its window
// is disabled or hidden.

void CWnd::EnableWindow(bool bEnable)
{
    if (!mbCreated || mbEnabled == bEnable)
        return;
    mbEnabled = bEnable;
    Announce(EAspect::Enabled);
    if (!bEnable)
        LeaveFocusIfInside();
}

bool CWnd::ShowWindow(int nCmdShow)
{
    const bool bShow = nCmdShow != SW_HIDE;
    const bool bBefore = mbVisible;
    if (!mbCreated || bBefore == bShow)
        return bBefore;
    mbVisible = bShow;
    Announce(EAspect::Visible);
    if (!bShow)
        LeaveFocusIfInside();
    SendMessage(WM_SHOWWINDOW, bShow ? 1 : 0);
    return bBefore;
}

CWnd* CWnd::SetFocus()
{
    return CanTakeFocus() ? TakeFocus() : nullptr;
}

CWnd* CWnd::TakeFocus()
{
    TUiThread& rThread = gDesktop().Thread();
    CWnd* const pBefore = rThread.mpFocus;
    if (pBefore == this)
        return pBefore;

    rThread.mpFocus = this;
    for (CWnd* pAncestor = mpParent; pAncestor; pAncestor = pAncestor->mpParent)
        pAncestor->mpLastFocus = this;
    if (pBefore)
        pBefore->NotifyParent(ENotify::KillFocus);
    // The handler may have moved the focus on, or ended this window.
    if (rThread.mpFocus == this) {
        Announce(EAspect::Focus);
        NotifyParent(ENotify::SetFocus);
    }
    return pBefore;
}

void CWnd::LeaveFocusIfInside()
{
    TUiThread& rThread = gDesktop().Thread();
    if (!rThread.mpFocus || !rThread.mpFocus->IsInside(*this))
        return;
    const CWnd* pFrom = this;
    for (CWnd* pPane = mpParent; pPane; pFrom = pPane, pPane = pPane->mpParent) {
        CWnd* const pNext = gNextTabStop(*pPane, pFrom, ETabDirection::Forward);
        if (pNext && !pNext->IsInside(*this)) {
            pNext->SetFocus();
            return;
        }
    }
    CWnd* const pLoser = std::exchange(rThread.mpFocus, nullptr);
    pLoser->NotifyParent(ENotify::KillFocus);
}
