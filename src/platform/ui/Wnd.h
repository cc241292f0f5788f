#pragma once

#include "platform/base/StringA.h"
#include "platform/ui/DialogTemplate.h"
#include "platform/ui/Geometry.h"
#include "platform/ui/MessageMap.h"
#include "platform/ui/RuntimeClass.h"
#include "platform/ui/UserResult.h"
#include "platform/ui/WindowPeer.h"

#include <memory>
#include <vector>

class CDataExchange;

/// A window: text, state, place and children in memory. Logic reads and writes windows only; the
/// current desktop draws them and brings the user's actions in.
///
/// The object lives longer than its window: `IsCreated` tells whether the window exists. Outside
/// that time every setter is a no-op and every getter answers empty, false or null, as the platform
/// does for a window without a handle.
///
/// Notifications go out at once, nested in the call that causes them. A handler therefore copies
/// what it decides on before its first write to a control.
class CWnd : public CObject
{
public:
    CWnd();
    ~CWnd() override;
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;

protected:
    /// The handlers of the class. A class that replaces this lists all its handlers: the map of the
    /// class it derives from isn't searched.
    virtual TMessageMap GetMessageMap() const;

    /// Moves values between fields and controls, line by line with the DDX functions.
    virtual void DoDataExchange(CDataExchange* pDX);

public:
    /// Sees every posted message of this window and of its children before they do.
    /// Result: true when it took the message.
    virtual bool PreTranslateMessage(const TMsg& rMsg);

    // --- life

    /// Creates the window as a plain child. `nStyle`: WS_CHILD, and WS_VISIBLE if it is to be
    /// shown. `pClassName` and the title may be null and empty. False if it exists already or the
    /// parent has no window.
    bool Create(const char* pClassName, const CString& rsTitle, UINT nStyle, const TRect& rRect,
                CWnd* pParent, int nId);

    /// Ends the window and its children's windows; the objects stay.
    void DestroyWindow();

    bool IsCreated() const { return mbCreated; }

    // --- text and state

    virtual void SetWindowText(const CString& rsText);
    const CString& GetWindowText() const { return msText; }

    /// Enables or disables. A focus inside a window that is disabled moves on to the next tab stop.
    void EnableWindow(bool bEnable = true);
    /// The window's own state; `IsUsable` looks at the parents too.
    bool IsWindowEnabled() const { return mbCreated && mbEnabled; }

    /// Shows (SW_SHOW) or hides (SW_HIDE); a change sends WM_SHOWWINDOW.
    /// Result: whether it was visible before.
    bool ShowWindow(int nCmdShow);
    /// The window's own state, whether or not its parents are visible.
    bool IsShown() const { return mbVisible; }
    /// True when the window and all its parents are visible.
    bool IsWindowVisible() const;
    /// True when the window and all its parents are enabled.
    bool IsUsable() const;
    /// True when the focus can come here: usable, and shown inside its top window.
    bool CanTakeFocus() const;
    /// True when the user can bring the focus here by Tab.
    virtual bool IsTabStop() const;
    /// The control inside this window that had the focus last, or null.
    CWnd* GetLastFocus() const { return mpLastFocus; }

    // --- place

    /// In dialog units of the parent's client area.
    const TRect& GetRect() const { return mRect; }
    /// The same in units of the top window's client area, which stands for the screen here.
    TRect GetWindowRect() const;
    /// The client area: left and top are 0.
    TRect GetClientRect() const;
    /// The client area in pixels; where no screen tells, by the platform's standard font, in which
    /// a dialog unit is 6/4 pixels wide and 13/8 high.
    TSize GetClientPixels() const;
    /// From `GetWindowRect` units to this window's client area.
    TRect ScreenToClient(const TRect& rRect) const;
    /// Moves and resizes; a new size sends WM_SIZE.
    void MoveWindow(const TRect& rRect);
    /// Puts the window before its siblings in drawing and tab order.
    void BringWindowToTop();

    // --- family

    CWnd* GetParent() const { return mpParent; }
    /// The outermost parent, or this window itself.
    CWnd& GetTopLevel();
    /// Children in tab order.
    const std::vector<CWnd*>& GetChildren() const { return mChildren; }
    /// The child with this id, or null.
    CWnd* GetDlgItem(int nId) const;
    /// True when this window is `rAncestor` or lies inside it.
    bool IsInside(const CWnd& rAncestor) const;

    int GetDlgCtrlID() const { return mnId; }
    /// The control's permanent name; empty for a dialog.
    const char* GetKey() const { return mpKey; }
    EControl GetKind() const { return mKind; }
    unsigned GetControlFlags() const { return mnFlags; }
    unsigned GetLayers() const { return mnLayers; }

    // --- focus

    /// Gives the focus to this window; a pane or dialog passes it on to the control that had it
    /// last, else to its first tab stop. Result: the window that lost it, or null.
    virtual CWnd* SetFocus();
    /// The window with the focus, or null.
    static CWnd* GetFocus();

    // --- messages

    LRESULT SendMessage(UINT nMessage, WPARAM wParam = 0, LPARAM lParam = 0);
    /// Queues a message; a window that ends drops what waits for it. False without a window.
    bool PostMessage(UINT nMessage, WPARAM wParam = 0, LPARAM lParam = 0);
    /// What the platform does with a message that no handler takes.
    virtual LRESULT DefWindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam);

    // --- help for windows with controls

    /// From controls to fields (true) or from fields to controls (false) by `DoDataExchange`.
    /// Meanwhile no notification of this window's controls is dispatched. False without a window.
    bool UpdateData(bool bSaveAndValidate = true);
    /// Checks one button of the radio group `nFirst`..`nLast` and unchecks the others.
    /// Notifies nobody.
    void CheckRadioButton(int nFirst, int nLast, int nChecked);
    /// The first checked button of `nFirst`..`nLast`, or 0.
    int GetCheckedRadioButton(int nFirst, int nLast) const;
    /// Shows a box owned by this window. Result: IDOK, IDYES or IDNO.
    int MessageBox(const CString& rsText, const CString& rsCaption, UINT nFlags);

    // --- the user's side

    /// Whether the user can act on this window now; if so, moves the focus to it.
    EUserResult AcceptUser();
    /// The same question without moving the focus.
    EUserResult WouldAcceptUser();
    /// As `AcceptUser`, for an action on something in the window. `isValid` (`bool ()`) tells
    /// whether it is there; it is asked again after the focus has moved, since a handler of that
    /// may have taken it away. `Invalid` when it isn't there.
    template <class TIsValid> EUserResult AcceptUserIf(TIsValid isValid)
    {
        if (const EUserResult result = WouldAcceptUser(); result != EUserResult::Done)
            return result;
        if (!isValid())
            return EUserResult::Invalid;
        const EUserResult result = AcceptUser();
        return result != EUserResult::Done || isValid() ? result : EUserResult::Invalid;
    }
    /// Tells the peer, if there is one.
    void Announce(EAspect aspect);
    /// The desktop's side of this window, for the desktop itself; null where nothing is drawn.
    IWindowPeer* GetPeer() const { return mpPeer.get(); }

protected:
    friend class CDialog;

    /// True when an object of this class can be the control of a row of this kind.
    virtual bool AcceptsKind(EControl kind) const;
    /// Takes what the row says about the control; the window exists by then.
    virtual void OnCreated(const TControlRow& rRow);
    /// Returns the class's own state to that of a fresh object.
    virtual void OnDestroyed();
    /// The control's own handler for its notifications, asked before its parent. True: taken.
    virtual bool OnReflected(ENotify code);
    /// Handles a notification of the child `nId` by the message map. False: the class has no
    /// handler.
    virtual bool OnCommand(ENotify code, int nId);

    /// Tells the parent. Nothing happens without a window or a parent, or while the parent's
    /// `UpdateData` runs.
    void NotifyParent(ENotify code);
    /// Sets the text without notifying.
    void SetTextSilently(const CString& rsText);
    void OpenWindow(CWnd* pParent, int nId, const TRect& rRect);
    /// Asks the current desktop to draw this window.
    void AttachPeer();
    /// Opens the window of the control that a template's row describes.
    void CreateFromRow(CWnd& rParent, const TControlRow& rRow);
    /// Moves the keyboard to this very window and notifies. Result: the window that lost it.
    CWnd* TakeFocus();

private:
    void LeaveFocusIfInside();
    void Unlink();

    CString msText;
    const char* mpKey = "";
    CWnd* mpParent = nullptr;
    CWnd* mpLastFocus = nullptr;
    std::vector<CWnd*> mChildren;
    std::unique_ptr<IWindowPeer> mpPeer;
    TRect mRect;
    int mnId = 0;
    unsigned mnFlags = kNoFlags;
    unsigned mnLayers = 0;
    EControl mKind = EControl::Frame;
    bool mbCreated = false;
    bool mbEnabled = true;
    bool mbVisible = false;
    bool mbUpdatingData = false;
};
