#include "platform/ui/PropertySheet.h"

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
    rPage.MoveWindow(mPageRect);
    rPage.ShowWindow(SW_SHOW);
    return true;
}

bool CPropertySheet::OnInitDialog()
{
    CDialog::OnInitDialog();
    for (const CPropertyPage* pPage : mPages)
        Tabs().AddItem(pPage->GetTemplate().pCaption);
    SetActivePage(0);
    return true;
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
