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
        mrDialog.DestroyWindow();
        mrDialog.mOwnedControls.clear();
        mrDialog.mpRun = nullptr;
        std::erase(mrThread.mModalRuns, &mRun);
        if (mRun.pFocusBefore)
            mRun.pFocusBefore->SetFocus();
    }

    CModalScope(const CModalScope&) = delete;
    CModalScope& operator=(const CModalScope&) = delete;

    const TModalRun& Run() const { return mRun; }

private:
    CDialog& mrDialog;
    TUiThread& mrThread;
    TModalRun mRun;
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
    const CModalScope scope(*this, rDesktop.Thread());
    CreateControls(nullptr);
    if (OnInitDialog())
        if (CWnd* const pFirst = gFirstFieldOf(*this))
            pFirst->SetFocus();
    ShowWindow(SW_SHOW);
    gPumpPostedMessages();
    if (!HasEnded())
        rDesktop.RunModal(*this);
    return scope.Run().bEnded ? scope.Run().nResult : IDCANCEL;
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
    OnInitDialog();
    return true;
}

void CDialog::CreateControls(CWnd* pParent)
{
    CDataExchange binding(*this, EDataExchange::Bind);
    DoDataExchange(&binding);
    auto unused = binding.GetBindings();

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
    if (!mpRun)
        return;
    const auto& rRuns = gDesktop().Thread().mModalRuns;
    for (auto run = std::ranges::find(rRuns, mpRun); run != rRuns.end(); ++run) {
        if ((*run)->bEnded)
            continue;
        (*run)->bEnded = true;
        (*run)->nResult = *run == mpRun ? nResult : IDCANCEL;
    }
}

bool CDialog::HasEnded() const
{
    return !mpRun || mpRun->bEnded;
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
