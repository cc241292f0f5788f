#include "platform/ui/ResizeAnchors.h"

void CResizeAnchors::Add(const CWnd& rWindow, int nId, TAnchor topLeft, TAnchor bottomRight)
{
    if (const CWnd* const pControl = rWindow.GetDlgItem(nId))
        mControls.push_back(
            {nId, topLeft, bottomRight, pControl->GetRect(), rWindow.GetClientRect()});
}

void CResizeAnchors::Apply(const CWnd& rWindow) const
{
    const TRect now = rWindow.GetClientRect();
    for (const TControl& rControl : mControls) {
        CWnd* const pControl = rWindow.GetDlgItem(rControl.nId);
        if (!pControl)
            continue;
        const int nWider = now.w - rControl.windowRect.w;
        const int nHigher = now.h - rControl.windowRect.h;
        const int nLeft = rControl.rect.x + rControl.topLeft.nX * nWider;
        const int nTop = rControl.rect.y + rControl.topLeft.nY * nHigher;
        const int nRight = rControl.rect.Right() + rControl.bottomRight.nX * nWider;
        const int nBottom = rControl.rect.Bottom() + rControl.bottomRight.nY * nHigher;
        pControl->MoveWindow({nLeft, nTop, nRight - nLeft, nBottom - nTop});
    }
}
