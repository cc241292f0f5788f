#pragma once

#include "platform/ui/Messages.h"

#include <deque>
#include <vector>

class CDialog;
class CWnd;

/// One modal run of a dialog.
struct TModalRun {
    CDialog* pDialog = nullptr;
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

    /// Drops every trace of a window that ends.
    void Forget(const CWnd& rWnd);

    /// The dialog that takes the user's actions, or null when no modal run is on.
    CDialog* InnermostDialog() const;
};

/// Delivers all posted messages: each goes to `PreTranslateMessage` of its window and of that
/// window's parents in turn and, if none of them takes it, to the window.
void gPumpPostedMessages();
