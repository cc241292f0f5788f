#include "wizard/frame/SinglePageDlg.h"

#include "platform/base/Exceptions.h"
#include "wizard/frame/CommandPage.h"

CSinglePageDlg::CSinglePageDlg(CWnd* pParent, quorvawiz::QuorvaCommandWizardTarget* pTarget,
                               const CRuntimeClass& rPageClass)
    : CTreeDlg(pParent, pTarget), mpObject(rPageClass.CreateObject()),
      mpPage(dynamic_cast<CCommandPage*>(mpObject.get()))
{
    if (!mpPage)
        gThrowInvalidArg("single page: the class isn't that of a concrete page");
}

CSinglePageDlg::~CSinglePageDlg() = default;

void CSinglePageDlg::BuildTree()
{
    SetWindowText(mpPage->GetTemplate().pCaption);
    AddCategory(mpPage->GetTemplate().pCaption, mpPage);
}

bool CSinglePageDlg::OnInitDialog()
{
    CTreeDlg::OnInitDialog();
    // The only node stands where categories stand, and those have nothing to insert.
    EnableInsert(true);
    return true;
}
