#pragma once

#include "platform/ui/Dialog.h"
#include "platform/ui/PropertyPage.h"
#include "platform/ui/TabCtrl.h"

/// A modal dialog whose pages lie behind tabs. A page is created when it is first shown.
class CPropertySheet : public CDialog
{
public:
    /// `rTemplate` has one control of kind Tabs, `nTabsId`; the pages stand at `pageRect`.
    CPropertySheet(const DialogTemplate& rTemplate, int nTabsId, const TRect& rPageRect,
                   CWnd* pOwner = nullptr);

    /// Adds a page at the end, before the sheet runs. Not owned; the tab shows the caption of its
    /// template.
    void AddPage(CPropertyPage& rPage);

    int GetPageCount() const { return static_cast<int>(mPages.size()); }
    /// The index of the page on display, or -1.
    int GetActiveIndex() const { return mnActive; }
    CPropertyPage* GetActivePage() const;
    /// Shows a page. False when there is no such index or the sheet has no window.
    bool SetActivePage(int nIndex);

    bool OnInitDialog() override;

protected:
    bool OnCommand(ENotify code, int nId) override;
    void OnDestroyed() override;

private:
    CTabCtrl& Tabs() const;

    int mnTabsId;
    TRect mPageRect;
    int mnActive = -1;
    std::vector<CPropertyPage*> mPages;
};
