#include "wizard/frame/LayerWnd.h"

#include "platform/base/Exceptions.h"
#include "platform/ui/PropertyPage.h"

void CLayerWnd::SetParent(CWnd* pParent)
{
    if (!mpParent)
        mpParent = pParent;
}

int CLayerWnd::Add(CWnd* pLayer)
{
    mLayers.push_back(pLayer);
    return GetCount() - 1;
}

void CLayerWnd::SetOrigin(int x, int y)
{
    mnX = x;
    mnY = y;
}

CWnd* CLayerWnd::GetCurrentWindow() const
{
    if (mnCurrent == -1)
        return nullptr;
    if (mnCurrent < 0 || mnCurrent >= GetCount())
        gThrowInvalidArg("layers: the current index isn't the index of a layer");
    return mLayers[static_cast<std::size_t>(mnCurrent)];
}

CWnd* CLayerWnd::FocusCurrentWindow()
{
    CWnd* const pCurrent = GetCurrentWindow();
    return pCurrent ? pCurrent->SetFocus() : nullptr;
}

void CLayerWnd::ShowLayer(int nIndex)
{
    if (mLayers.empty())
        return;
    if (!mpParent)
        gThrowInvalidArg("layers: there is no parent to show them in");
    if (CWnd* const pBefore = GetCurrentWindow())
        pBefore->ShowWindow(SW_HIDE);
    mnCurrent = nIndex;
    if (nIndex < 0 || nIndex >= GetCount())
        return;

    CWnd& rLayer = *GetCurrentWindow();
    if (auto* const pPage = dynamic_cast<CPropertyPage*>(&rLayer))
        ShowPage(*pPage);
    else
        ShowPlainWindow(rLayer);
    rLayer.ShowWindow(SW_SHOW);
}

void CLayerWnd::ShowPage(CPropertyPage& rPage)
{
    rPage.CreatePane(*mpParent);
    const TRect own = rPage.GetRect();
    rPage.MoveWindow({mnX, mnY, own.w, own.h});
    rPage.BringWindowToTop();
}

void CLayerWnd::ShowPlainWindow(CWnd& rWnd)
{
    const TRect client = mpParent->GetClientRect();
    if (!rWnd.IsCreated())
        rWnd.Create(nullptr, {}, WS_CHILD | WS_VISIBLE, client, mpParent, mnCurrent);
    const TRect own = rWnd.GetRect();
    rWnd.MoveWindow({0, 0, own.w, own.h});
    rWnd.BringWindowToTop();
}
