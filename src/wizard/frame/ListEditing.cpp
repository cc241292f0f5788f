#include "wizard/frame/ListEditing.h"

#include "platform/base/Exceptions.h"
#include "platform/ui/Desktop.h"
#include "platform/ui/ListBox.h"
#include "wizard/frame/PageText.h"

namespace
{
bool Confirms(const char* pQuestion)
{
    return AfxMessageBox(gShownText(pQuestion), MB_YESNO) == IDYES;
}
} // namespace

ListEditing::ListEditing(CWnd& rPage, CListBox& rList, const TListEditingParts& rParts)
    : mrPage(rPage), mrList(rList), mrParts(rParts)
{
}

bool ListEditing::Add(const CString& rsEntry, CString& rsMessage)
{
    return Insert(rsEntry) || gReportFailure(mrPage, rsMessage, mrParts.pAlreadyThere);
}

bool ListEditing::Add(const CString& rsEntry)
{
    return Insert(rsEntry) || gReportFailure(mrPage, mrParts.pAlreadyThere);
}

bool ListEditing::Insert(const CString& rsEntry)
{
    if (mrList.GetParent() != &mrPage)
        gThrowInvalidArg("list editing: the list isn't bound to a control of the page");
    if (mrList.FindStringExact(-1, rsEntry) >= 0)
        return false;
    mrList.InsertString(0, rsEntry);
    mrList.SetCurSel(0);
    EnableButtons(true);
    return true;
}

void ListEditing::Delete()
{
    const int nSelected = mrList.GetCurSel();
    if (nSelected < 0 || !Confirms(mrParts.pDeleteQuestion))
        return;
    mrList.DeleteString(nSelected);
    if (mrList.GetCount() > 0)
        mrList.SetCurSel(0);
    else
        EnableButtons(false);
}

void ListEditing::Clear()
{
    if (mrList.GetCurSel() < 0 || !Confirms(mrParts.pClearQuestion))
        return;
    mrList.ResetContent();
    EnableButtons(false);
}

CString ListEditing::OldestFirst(const CString& rsSeparator) const
{
    CString sAll;
    for (int n = mrList.GetCount() - 1; n >= 0; --n)
        sAll += rsSeparator + mrList.GetText(n);
    return sAll;
}

void ListEditing::EnableButtons(bool bEnable)
{
    for (const int nButton : {mrParts.nDeleteButton, mrParts.nClearButton}) {
        CWnd* const pButton = mrPage.GetDlgItem(nButton);
        if (!pButton)
            gThrowInvalidArg("list editing: the page has no button of this id");
        pButton->EnableWindow(bEnable);
    }
}
