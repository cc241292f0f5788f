#include "platform/ui/PropertySheet.h"

#include <algorithm>

CPropertySheet::CPropertySheet(const DialogTemplate& rTemplate, int nTabsId, const TRect& rPageRect,
                               CWnd* pOwner)
    : CDialog(rTemplate, pOwner), mnTabsId(nTabsId), mPageRect(rPageRect)
{
}

void CPropertySheet::AddPage(CPropertyPage& rPage)
{
    mPages.push_back(&rPage);
}

CPropertyPage* CPropertySheet::GetActivePage() const
{
    return mnActive < 0 ? nullptr : mPages[static_cast<std::size_t>(mnActive)];
}

bool CPropertySheet::SetActivePage(int nIndex)
{
    if (!IsCreated() || nIndex < 0 || nIndex >= GetPageCount())
        return false;
    Tabs().SetCurSel(nIndex);
    if (nIndex == mnActive)
        return true;
    if (CPropertyPage* const pBefore = GetActivePage())
        pBefore->ShowWindow(SW_HIDE);
    mnActive = nIndex;

    CPropertyPage& rPage = *GetActivePage();
    rPage.CreatePane(*this);
    rPage.MoveWindow(PageRectNow());
    rPage.ShowWindow(SW_SHOW);
    ShowHelpButton();
    return true;
}

TRect CPropertySheet::PageRectNow() const
{
    const TSize atFirst = GetTemplate().size;
    const TRect now = GetClientRect();
    return {mPageRect.x, mPageRect.y, mPageRect.w + now.w - atFirst.cx,
            mPageRect.h + now.h - atFirst.cy};
}

void CPropertySheet::ShowHelpButton()
{
    CWnd* const pHelp = GetDlgItem(IDHELP);
    if (!pHelp)
        return;
    const bool bShow = mbHasHelp || std::ranges::any_of(mPages, &CPropertyPage::HasHelp);
    const CPropertyPage* const pActive = GetActivePage();
    pHelp->ShowWindow(bShow ? SW_SHOW : SW_HIDE);
    pHelp->EnableWindow(pActive && pActive->HasHelp());
}

bool CPropertySheet::OnInitDialog()
{
    CDialog::OnInitDialog();
    if (!msTitle.IsEmpty())
        SetWindowText(msTitle);
    ShowHelpButton();
    for (const CPropertyPage* pPage : mPages)
        Tabs().AddItem(pPage->GetTemplate().pCaption);
    SetActivePage(0);
    return true;
}

LRESULT CPropertySheet::DefWindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam)
{
    if (CPropertyPage* const pPage = GetActivePage(); pPage && nMessage == WM_SIZE) {
        const TRect before = pPage->GetRect();
        if (before == PageRectNow())
            pPage->SendMessage(WM_SIZE, wParam); // its pixels may have changed all the same
        else
            pPage->MoveWindow(PageRectNow());
    }
    return CDialog::DefWindowProc(nMessage, wParam, lParam);
}

bool CPropertySheet::OnCommand(ENotify code, int nId)
{
    if (code != ENotify::SelChange || nId != mnTabsId)
        return CDialog::OnCommand(code, nId);
    SetActivePage(Tabs().GetCurSel());
    return true;
}

void CPropertySheet::OnDestroyed()
{
    mnActive = -1;
}

CTabCtrl& CPropertySheet::Tabs() const
{
    return dynamic_cast<CTabCtrl&>(*GetDlgItem(mnTabsId));
}
