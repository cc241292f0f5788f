#include "platform/ui/Wnd.h"

#include "platform/ui/Desktop.h"

#include <algorithm>

CWnd::CWnd() = default;

CWnd::~CWnd()
{
    DestroyWindow();
}

TMessageMap CWnd::GetMessageMap() const
{
    return {};
}

void CWnd::DoDataExchange(CDataExchange*) {}

bool CWnd::PreTranslateMessage(const TMsg&)
{
    return false;
}

// --- life

bool CWnd::Create(const char*, const CString& rsTitle, UINT nStyle, const TRect& rRect,
                  CWnd* pParent, int nId)
{
    if (mbCreated || !pParent || !pParent->IsCreated())
        return false;
    OpenWindow(pParent, nId, rRect);
    SetTextSilently(rsTitle);
    mbVisible = (nStyle & WS_VISIBLE) != 0;
    AttachPeer();
    return true;
}

void CWnd::OpenWindow(CWnd* pParent, int nId, const TRect& rRect)
{
    mbCreated = true;
    mnId = nId;
    mRect = rRect;
    mpParent = pParent;
    if (mpParent)
        mpParent->mChildren.push_back(this);
}

void CWnd::CreateFromRow(CWnd& rParent, const TControlRow& rRow)
{
    OpenWindow(&rParent, rRow.nId, rRow.rect);
    mpKey = rRow.pKey;
    mKind = rRow.kind;
    mnFlags = rRow.nFlags;
    mnLayers = rRow.nLayers;
    msText = rRow.pLabel;
    mbEnabled = !(rRow.nFlags & kDisabled);
    mbVisible = !(rRow.nFlags & kHidden) && rRow.kind != EControl::Frame;
    OnCreated(rRow);
    AttachPeer();
}

void CWnd::AttachPeer()
{
    mpPeer = gDesktop().MakePeer(*this);
}

void CWnd::DestroyWindow()
{
    if (!mbCreated)
        return;
    while (!mChildren.empty())
        mChildren.back()->DestroyWindow();
    Unlink();
    mpPeer.reset();
    OnDestroyed();
    msText.Empty();
    mpKey = "";
    mKind = EControl::Frame;
    mnId = 0;
    mnFlags = kNoFlags;
    mnLayers = 0;
    mRect = {};
    mbCreated = false;
    mbEnabled = true;
    mbVisible = false;
}

void CWnd::Unlink()
{
    if (IDesktop* const pDesktop = gFindDesktop())
        pDesktop->Thread().Forget(*this);
    for (CWnd* pAncestor = mpParent; pAncestor; pAncestor = pAncestor->mpParent)
        if (pAncestor->mpLastFocus == this)
            pAncestor->mpLastFocus = nullptr;
    if (mpParent)
        std::erase(mpParent->mChildren, this);
    mpParent = nullptr;
}

bool CWnd::AcceptsKind(EControl) const
{
    return false;
}

void CWnd::OnCreated(const TControlRow&) {}

void CWnd::OnDestroyed() {}

// --- text and state

void CWnd::SetWindowText(const CString& rsText)
{
    SetTextSilently(rsText);
}

void CWnd::SetTextSilently(const CString& rsText)
{
    if (!mbCreated || msText == rsText)
        return;
    msText = rsText;
    Announce(EAspect::Text);
}

bool CWnd::IsWindowVisible() const
{
    const CWnd* pWnd = this;
    while (pWnd && pWnd->mbVisible)
        pWnd = pWnd->mpParent;
    return !pWnd;
}

bool CWnd::IsUsable() const
{
    const CWnd* pWnd = this;
    while (pWnd && pWnd->mbCreated && pWnd->mbEnabled)
        pWnd = pWnd->mpParent;
    return !pWnd;
}

bool CWnd::CanTakeFocus() const
{
    // A top window isn't shown yet when its focus is chosen.
    const CWnd* pWnd = this;
    while (pWnd->mpParent && pWnd->mbVisible)
        pWnd = pWnd->mpParent;
    return !pWnd->mpParent && IsUsable();
}

CWnd* CWnd::GetFocus()
{
    IDesktop* const pDesktop = gFindDesktop();
    return pDesktop ? pDesktop->Thread().mpFocus : nullptr;
}

bool CWnd::IsTabStop() const
{
    return false;
}

// --- place

TRect CWnd::GetWindowRect() const
{
    TRect rect = mRect;
    if (!mpParent)
        return {0, 0, rect.w, rect.h};
    for (const CWnd* pWnd = mpParent; pWnd->mpParent; pWnd = pWnd->mpParent) {
        rect.x += pWnd->mRect.x;
        rect.y += pWnd->mRect.y;
    }
    return rect;
}

TRect CWnd::GetClientRect() const
{
    return {0, 0, mRect.w, mRect.h};
}

TSize CWnd::GetClientPixels() const
{
    if (mpPeer)
        if (const auto size = mpPeer->GetClientPixels())
            return *size;
    return {mRect.w * 6 / 4, mRect.h * 13 / 8};
}

TRect CWnd::ScreenToClient(const TRect& rRect) const
{
    const TRect own = GetWindowRect();
    return {rRect.x - own.x, rRect.y - own.y, rRect.w, rRect.h};
}

void CWnd::MoveWindow(const TRect& rRect)
{
    if (!mbCreated || mRect == rRect)
        return;
    const bool bResized = mRect.w != rRect.w || mRect.h != rRect.h;
    mRect = rRect;
    Announce(EAspect::Place);
    if (bResized)
        SendMessage(WM_SIZE, SIZE_RESTORED);
}

void CWnd::BringWindowToTop()
{
    if (!mpParent || mpParent->mChildren.front() == this)
        return;
    auto& rSiblings = mpParent->mChildren;
    const auto self = std::find(rSiblings.begin(), rSiblings.end(), this);
    std::rotate(rSiblings.begin(), self, self + 1);
    Announce(EAspect::Place);
}

// --- family

CWnd& CWnd::GetTopLevel()
{
    CWnd* pWnd = this;
    while (pWnd->mpParent)
        pWnd = pWnd->mpParent;
    return *pWnd;
}

CWnd* CWnd::GetDlgItem(int nId) const
{
    const auto found = std::ranges::find(mChildren, nId, &CWnd::mnId);
    return found == mChildren.end() ? nullptr : *found;
}

bool CWnd::IsInside(const CWnd& rAncestor) const
{
    const CWnd* pWnd = this;
    while (pWnd && pWnd != &rAncestor)
        pWnd = pWnd->mpParent;
    return pWnd != nullptr;
}

// --- messages

LRESULT CWnd::SendMessage(UINT nMessage, WPARAM wParam, LPARAM lParam)
{
    for (const TMessageMapEntry& rEntry : GetMessageMap())
        // A notification's entry has no message, which isn't the same as the message 0.
        if (nMessage != 0 && rEntry.nMessage == nMessage)
            return rEntry.pCall(*this, wParam, lParam);
    return DefWindowProc(nMessage, wParam, lParam);
}

bool CWnd::PostMessage(UINT nMessage, WPARAM wParam, LPARAM lParam)
{
    if (!mbCreated)
        return false;
    IDesktop& rDesktop = gDesktop();
    rDesktop.Thread().mPosted.push_back({this, nMessage, wParam, lParam});
    rDesktop.OnMessagePosted();
    return true;
}

LRESULT CWnd::DefWindowProc(UINT, WPARAM, LPARAM)
{
    return 0;
}

void CWnd::NotifyParent(ENotify code)
{
    if (!mbCreated || !mpParent || mpParent->mbUpdatingData)
        return;
    if (!OnReflected(code))
        mpParent->OnCommand(code, mnId);
}

bool CWnd::OnReflected(ENotify)
{
    return false;
}

bool CWnd::OnCommand(ENotify code, int nId)
{
    for (const TMessageMapEntry& rEntry : GetMessageMap()) {
        if (rEntry.nMessage == 0 && rEntry.notify == code && rEntry.nId == nId) {
            rEntry.pCall(*this, static_cast<WPARAM>(nId), 0);
            return true;
        }
    }
    return false;
}

int CWnd::MessageBox(const CString& rsText, const CString& rsCaption, UINT nFlags)
{
    return gShowMessageBox({this, rsText, rsCaption, nFlags});
}

void CWnd::Announce(EAspect aspect)
{
    if (mpPeer)
        mpPeer->OnChanged(aspect);
}

// --- whether the user can act on the window

EUserResult CWnd::WouldAcceptUser()
{
    const TUiThread& rThread = gDesktop().Thread();
    const CWnd* const pFront = rThread.FrontWindow();
    if (!mbCreated || rThread.mnOpenBoxes > 0 || (pFront && pFront != &GetTopLevel()))
        return EUserResult::Blocked;
    if (!IsWindowVisible())
        return EUserResult::Hidden;
    if (!IsUsable())
        return EUserResult::Disabled;
    return EUserResult::Done;
}

EUserResult CWnd::AcceptUser()
{
    if (const EUserResult result = WouldAcceptUser(); result != EUserResult::Done)
        return result;
    SetFocus();
    // A handler of the focus change may have closed the way.
    return WouldAcceptUser();
}
