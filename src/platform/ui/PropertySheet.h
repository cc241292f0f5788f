#pragma once

#include "platform/ui/Dialog.h"
#include "platform/ui/PropertyPage.h"
#include "platform/ui/TabCtrl.h"

/// A modal dialog whose pages lie behind tabs. A page is created when it is first shown, and grows
/// and shrinks with the sheet.
///
/// The standard buttons are IDOK, IDCANCEL, ID_APPLY_NOW and IDHELP, as far as the template has
/// them. IDHELP is shown when the sheet or one of its pages is marked as having help, and enabled
/// on the pages that are.
class CPropertySheet : public CDialog
{
public:
    /// `rTemplate` has one control of kind Tabs, `nTabsId`; the pages stand at `rPageRect`.
    CPropertySheet(const DialogTemplate& rTemplate, int nTabsId, const TRect& rPageRect,
                   CWnd* pOwner = nullptr);

    /// The title in place of the template's, from the next run on.
    void SetTitle(const CString& rsTitle) { msTitle = rsTitle; }
    /// Marks the sheet as one with a help button (PSH_HASHELP).
    void SetHasHelp() { mbHasHelp = true; }
    bool HasHelp() const { return mbHasHelp; }

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
    LRESULT DefWindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override;

protected:
    bool OnCommand(ENotify code, int nId) override;
    void OnDestroyed() override;

private:
    CTabCtrl& Tabs() const;
    TRect PageRectNow() const;
    void ShowHelpButton();

    CString msTitle;
    int mnTabsId;
    TRect mPageRect;
    int mnActive = -1;
    bool mbHasHelp = false;
    std::vector<CPropertyPage*> mPages;
};
