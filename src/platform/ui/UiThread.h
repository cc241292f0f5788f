#pragma once

#include "platform/ui/Messages.h"

#include <deque>
#include <vector>

class CWnd;

/// One modal run of a dialog.
struct TModalRun {
    CWnd* pWindow = nullptr;      ///< the dialog
    CWnd* pFocusBefore = nullptr; ///< who gets the focus back
    bool bEnded = false;
    int nResult = IDCANCEL;
};

/// What all windows of one desktop share: the platform's state of the GUI thread.
struct TUiThread {
    CWnd* mpFocus = nullptr;            ///< the window with the keyboard, or null
    std::vector<TModalRun*> mModalRuns; ///< outermost first
    int mnOpenBoxes = 0;                ///< message boxes and file dialogs that are open
    std::deque<TMsg> mPosted;           ///< messages that wait, oldest first
    std::vector<TMsg*> mOnTheWay;       ///< messages being delivered, innermost last

    /// Ends a run with this result, and with IDCANCEL all runs inside it. The first result of a run
    /// counts.
    void EndRuns(TModalRun& rRun, int nResult);

    /// Drops every trace of a window that ends.
    void Forget(const CWnd& rWnd);

    /// The dialog of the innermost modal run, which takes the user's actions; null when none is on.
    CWnd* FrontWindow() const;
};
