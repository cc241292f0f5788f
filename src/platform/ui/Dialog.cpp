#include "platform/ui/Dialog.h"

#include "platform/base/Exceptions.h"
#include "platform/ui/Button.h"
#include "platform/ui/DataExchange.h"
#include "platform/ui/Desktop.h"
#include "platform/ui/MakeControl.h"
#include "platform/ui/MessagePump.h"
#include "platform/ui/TabOrder.h"

#include <algorithm>
#include <stdexcept>

/// One modal run, from its first line to its last, however it ends.
class CDialog::CModalScope
{
public:
    CModalScope(CDialog& rDialog, TUiThread& rThread) : mrDialog(rDialog), mrThread(rThread)
    {
        mRun.pWindow = &rDialog;
        mRun.pFocusBefore = rThread.mpFocus;
        rDialog.mpRun = &mRun;
        rThread.mModalRuns.push_back(&mRun);
    }

    ~CModalScope()
    {
        if (mbClosed)
            return;
        try {
            Close();
        } catch (...) { // the exception that is under way counts
        }
    }

    CModalScope(const CModalScope&) = delete;
    CModalScope& operator=(const CModalScope&) = delete;

    /// Ends the window and gives the focus back, which may throw. Result: that of the run.
    int Close()
    {
        mbClosed = true;
        mrDialog.DestroyWindow();
        mrDialog.mOwnedControls.clear();
        mrDialog.mpRun = nullptr;
        std::erase(mrThread.mModalRuns, &mRun);
        if (CWnd* const pBack = mRun.pFocusBefore)
            (pBack->CanTakeFocus() ? pBack : &pBack->GetTopLevel())->SetFocus();
        return mRun.bEnded ? mRun.nResult : IDCANCEL;
    }

private:
    CDialog& mrDialog;
    TUiThread& mrThread;
    TModalRun mRun;
    bool mbClosed = false;
};

CDialog::CDialog(const DialogTemplate& rTemplate, CWnd* pOwner)
    : mrTemplate(rTemplate), mpOwner(pOwner)
{
}

CDialog::~CDialog()
{
    DestroyWindow();
}

int CDialog::DoModal()
{
    if (mpRun || IsCreated())
        throw std::logic_error("the dialog is open already");

    IDesktop& rDesktop = gDesktop();
    CModalScope scope(*this, rDesktop.Thread());
    CreateControls(nullptr);
    if (OnInitDialog()) {
        // Without a tab stop the keyboard still has to leave the window behind.
        CWnd* const pFirst = gFirstFieldOf(*this);
        (pFirst ? pFirst : this)->SetFocus();
    }
    if (!HasEnded())
        ShowWindow(SW_SHOW);
    gPumpPostedMessages();
    if (!HasEnded())
        rDesktop.RunModal(*this);
    return scope.Close();
}

bool CDialog::OnInitDialog()
{
    UpdateData(false);
    return true;
}

void CDialog::OnOK()
{
    if (UpdateData(true))
        EndDialog(IDOK);
}

void CDialog::OnCancel()
{
    EndDialog(IDCANCEL);
}

bool CDialog::CreatePane(CWnd& rParent)
{
    if (IsCreated() || !rParent.IsCreated())
        return false;
    CreateControls(&rParent);
    try {
        OnInitDialog();
    } catch (...) {
        DestroyWindow();
        throw;
    }
    return true;
}

void CDialog::CreateControls(CWnd* pParent)
{
    CDataExchange binding(*this, EDataExchange::Bind);
    DoDataExchange(&binding);
    auto unused = binding.GetBindings();
    mOwnedControls.clear(); // of an earlier life as a pane

    OpenWindow(pParent, 0, {0, 0, mrTemplate.size.cx, mrTemplate.size.cy});
    try {
        SetTextSilently(mrTemplate.pCaption);
        AttachPeer();
        for (const TControlRow& rRow : mrTemplate.rows) {
            const auto bound = std::ranges::find(unused, rRow.nId, &std::pair<int, CWnd*>::first);
            CWnd* pControl = nullptr;
            if (bound != unused.end()) {
                pControl = bound->second;
                unused.erase(bound);
            } else {
                mOwnedControls.push_back(gMakeControl(rRow.kind));
                pControl = mOwnedControls.back().get();
            }
            if (pControl->IsCreated() || !pControl->AcceptsKind(rRow.kind))
                gThrowInvalidArg("dialog: a bound control is of another kind than its row");
            pControl->CreateFromRow(*this, rRow);
        }
        if (!unused.empty())
            gThrowInvalidArg("dialog: a bound control has no row in the template");
    } catch (...) {
        DestroyWindow();
        mOwnedControls.clear();
        throw;
    }
}

void CDialog::EndDialog(int nResult)
{
    if (mpRun)
        gDesktop().Thread().EndRuns(*mpRun, nResult);
}

bool CDialog::HasEnded() const
{
    return !mpRun || mpRun->bEnded || !IsCreated();
}

EUserResult CDialog::UserSize(WPARAM nType, const TSize& rSize)
{
    if (!mrTemplate.bSizable || GetParent())
        return EUserResult::Invalid;
    if (const EUserResult result = WouldAcceptUser(); result != EUserResult::Done)
        return result;
    const TRect before = GetRect();
    TRect now = before;
    if (nType != SIZE_MINIMIZED) {
        now.w = std::max(rSize.cx, mrTemplate.size.cx);
        now.h = std::max(rSize.cy, mrTemplate.size.cy);
    }
    if (now == before)
        SendMessage(WM_SIZE, nType);
    else
        MoveWindow(now);
    return EUserResult::Done;
}

CButton* CDialog::GetDefaultButton() const
{
    const auto isDefault = [](const CWnd* pChild) {
        return pChild->GetKind() == EControl::DefaultButton;
    };
    const auto found = std::ranges::find_if(GetChildren(), isDefault);
    return dynamic_cast<CButton*>(found != GetChildren().end() ? *found : GetDlgItem(IDOK));
}

CWnd* CDialog::SetFocus()
{
    if (!CanTakeFocus())
        return nullptr;
    CWnd* const pInside = gFocusInPane(*this);
    return pInside ? pInside->SetFocus() : TakeFocus();
}

bool CDialog::IsTabStop() const
{
    return false;
}

LRESULT CDialog::DefWindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam)
{
    const auto directionOf = [](bool bBackward) {
        return bBackward ? ETabDirection::Backward : ETabDirection::Forward;
    };
    switch (nMessage) {
    case WM_NEXTDLGCTL:
        // lParam other than 0 would name the control itself; nothing here sends that.
        if (lParam == 0)
            gMoveFocusRound(*this, directionOf(wParam != 0));
        return 0;
    case WM_KEYDOWN:
        if (wParam == VK_TAB)
            gMoveFocusThrough(*this, directionOf(lParam != 0));
        return 0;
    case WM_SYSCOMMAND:
        if (wParam == SC_CLOSE)
            OnCancel();
        return 0;
    default:
        return CWnd::DefWindowProc(nMessage, wParam, lParam);
    }
}

bool CDialog::OnCommand(ENotify code, int nId)
{
    if (CWnd::OnCommand(code, nId))
        return true;
    if (code == ENotify::Clicked && nId == IDOK)
        OnOK();
    else if (code == ENotify::Clicked && nId == IDCANCEL)
        OnCancel();
    else
        return false;
    return true;
}

CDialog* gInnermostDialog()
{
    const auto& rRuns = gDesktop().Thread().mModalRuns;
    return rRuns.empty() ? nullptr : dynamic_cast<CDialog*>(rRuns.back()->pWindow);
}

CDialog* gOutermostDialog()
{
    const auto& rRuns = gDesktop().Thread().mModalRuns;
    return rRuns.empty() ? nullptr : dynamic_cast<CDialog*>(rRuns.front()->pWindow);
}
