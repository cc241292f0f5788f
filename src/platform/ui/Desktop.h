#pragma once

#include "platform/base/StringA.h"
#include "platform/ui/UiThread.h"
#include "platform/ui/WindowPeer.h"

#include <memory>
#include <optional>

class CDialog;
class CWnd;
struct TFileDialog;
struct TFileChoice;

/// A message box, as a desktop is asked to show it.
struct TMessageBox {
    const CWnd* pOwner = nullptr;    ///< the window that the box belongs to, or null
    CString sText;                   ///< the text
    std::optional<CString> sCaption; ///< none: the application's name
    UINT nFlags = MB_OK;             ///< MB_OK or MB_YESNO, with an icon
};

/// The one seam between the windows of this house, which are a model in memory, and the outside.
/// A desktop draws the model and brings the user's actions into it; it decides nothing.
class IDesktop
{
public:
    virtual ~IDesktop() = default;

    /// Lets the user act until `rDialog.HasEnded()`. A return before that counts as IDCANCEL.
    virtual void RunModal(CDialog& rDialog) = 0;

    /// Shows a box and waits. Result: IDOK, or IDYES / IDNO, as the flags say. A yes/no box can't
    /// be left in another way.
    virtual int ShowMessageBox(const TMessageBox& rBox) = 0;

    /// Lets the user pick a file.
    virtual TFileChoice ChooseFile(const TFileDialog& rDialog) = 0;

    /// A value of the application's profile; none if it was never written.
    virtual std::optional<CString> ReadProfile(const CString& rsSection,
                                               const CString& rsEntry) = 0;

    /// Keeps a value in the application's profile. False: it couldn't be written.
    virtual bool WriteProfile(const CString& rsSection, const CString& rsEntry,
                              const CString& rsValue) = 0;

    /// The application's name, the caption of boxes that have none of their own.
    virtual CString GetApplicationName() const = 0;

    /// Draws a window from now on, or hands back a peer that draws nothing. Never null.
    virtual std::unique_ptr<IWindowPeer> MakePeer(CWnd& rWnd);

    /// A message was posted: `gPumpPostedMessages` is to be called soon.
    virtual void OnMessagePosted();

    /// Ends every modal run of this desktop, which is the current one, with IDCANCEL: a host that
    /// closes ends what runs on top of it first. The runs are over when their callers go on.
    void EndModalRuns();

    /// What the windows of this desktop share.
    TUiThread& Thread() { return mThread; }

private:
    TUiThread mThread;
};

/// The current desktop, or null.
IDesktop* gFindDesktop();

/// The current desktop. Without one, throws std::logic_error.
IDesktop& gDesktop();

/// Makes `pDesktop` (may be null, not owned) the current desktop. Result: the one before.
IDesktop* gSetDesktop(IDesktop* pDesktop);

/// Shows a box through the current desktop; user actions on windows are refused meanwhile.
/// Result: as `IDesktop::ShowMessageBox`.
int gShowMessageBox(const TMessageBox& rBox);

/// The application's own message box: no owner, the application's name as caption.
int AfxMessageBox(const CString& rsText, UINT nFlags = MB_OK);
