#pragma once

#include <exception>
#include <functional>
#include <vector>

class CDialog;
struct TUiThread;
struct TUserKey;

/// The one way from a slot or an event of the toolkit into the windows' model, and what keeps the
/// toolkit whole on it: no exception passes. The first one is kept, the innermost event loop ends,
/// and whoever ran that loop throws it on.
///
/// One for each desktop, on the GUI thread.
class CModelEntry
{
public:
    /// `rThread`: what the windows of the desktop share; outlives this.
    explicit CModelEntry(TUiThread& rThread) : mrThread(rThread) {}
    CModelEntry(const CModelEntry&) = delete;
    CModelEntry& operator=(const CModelEntry&) = delete;

    /// One event loop inside another, registered while it lives: of a dialog's run, or of a box.
    class CLoop
    {
    public:
        /// `pDialog`: null for a box. `leave` ends the loop; it may be called several times.
        CLoop(CModelEntry& rEntry, CDialog* pDialog, std::function<void()> leave);
        ~CLoop();
        CLoop(const CLoop&) = delete;
        CLoop& operator=(const CLoop&) = delete;

        /// To be called behind the loop: throws on what came up inside it.
        void RethrowFailure();

    private:
        friend class CModelEntry;

        CModelEntry& mrEntry;
        CDialog* const mpDialog;
        const std::function<void()> mLeave;
    };

    /// Calls into the model. Afterwards the loops of dialogs that have ended are left. Outside of
    /// all loops an exception passes, as there is nobody to throw it on to.
    void Enter(const std::function<void()>& rCall);
    /// The same for a key that the user pressed in the innermost dialog.
    void EnterKey(const TUserKey& rKey);
    /// True while a key of the user is on its way through the model.
    bool IsInKey() const { return mbInKey; }

    /// Leaves the innermost loop if the dialog that it is on, or in front of, has ended.
    void LeaveEndedLoops();
    /// True while an exception waits for the innermost loop's end.
    bool HasFailed() const { return mpFailure != nullptr; }

    /// What the windows of the desktop share.
    const TUiThread& Thread() const { return mrThread; }

private:
    TUiThread& mrThread;
    std::vector<CLoop*> mLoops; ///< outermost first
    std::exception_ptr mpFailure;
    bool mbInKey = false;
};
