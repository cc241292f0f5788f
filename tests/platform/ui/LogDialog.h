#pragma once

#include "platform/headless/HeadlessDesktop.h"
#include "platform/ui/Dialog.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

/// What happened, in order.
using TLog = std::vector<std::string>;

/// The name of a notification as logs spell it: "clicked", "sel-change"...
std::string gNotifyName(ENotify code);

/// A dialog or pane that writes down what its controls tell it: "name:change", for a button of a
/// radio group "level#1:clicked". Focus notifications are written down only on demand.
class CLogDialog : public CDialog
{
public:
    explicit CLogDialog(const DialogTemplate& rTemplate, CWnd* pOwner = nullptr)
        : CDialog(rTemplate, pOwner)
    {
    }

    void Write(std::string sLine) { mpLog->push_back(std::move(sLine)); }
    /// What was written since the last call.
    TLog TakeLog() { return std::exchange(*mpLog, {}); }
    /// Writes into another log, from now on.
    void ShareLog(TLog& rLog) { mpLog = &rLog; }
    void LogFocus(bool bOn = true) { mbLogFocus = bOn; }

    /// Runs `action` whenever this line was written down.
    void React(const std::string& rsLine, std::function<void()> action)
    {
        mReactions[rsLine] = std::move(action);
    }
    /// Runs within `OnInitDialog`, after the base; its result is the dialog's.
    void AtInit(std::function<bool()> action) { mAtInit = std::move(action); }
    /// Stands for `DoDataExchange`.
    void Exchange(std::function<void(CDataExchange*)> action) { mExchange = std::move(action); }

    /// The control with this id, as its class.
    template <class TControl> TControl& Get(int nId) const
    {
        return dynamic_cast<TControl&>(*GetDlgItem(nId));
    }

    bool OnInitDialog() override;

protected:
    bool OnCommand(ENotify code, int nId) override;
    void DoDataExchange(CDataExchange* pDX) override;

private:
    TLog mOwnLog;
    TLog* mpLog = &mOwnLog;
    bool mbLogFocus = false;
    std::map<std::string, std::function<void()>> mReactions;
    std::function<bool()> mAtInit;
    std::function<void(CDataExchange*)> mExchange;
};

/// One turn of the user, in the dialog that is innermost by then.
using TTurn = std::function<void(CDialog& rInnermost)>;

/// Runs the dialog on the desktop; the user takes these turns, each in the innermost dialog, and
/// gives up after the last. Fails the test when turns are left over. Result: as `DoModal`.
int gRunTurns(HeadlessDesktop& rDesktop, CDialog& rDialog, std::vector<TTurn> turns);

/// The same with a single turn on a desktop of its own, for a look at an open dialog.
int gLookInto(CDialog& rDialog, const std::function<void()>& rLook);

/// The user's action by its name: "set name=abc", "select list=2", "entry list=abc", "move combo=1"
/// (the mark in the open list), "check again=1", "choose level=1", "click press", "double-click
/// list", "focus name", "path tree=A/B", "expand tree=A", "collapse tree=A", "key shift+tab".
/// Result: empty when done, else why not: "disabled", "hidden", "unknown field"...
std::string gAct(CDialog& rDialog, std::string_view sAction);

/// The key of the window with the focus, of a radio button with its place: "level#1"; "(dialog)"
/// for a window without a key, "(none)" without a focus.
std::string gFocusName();

/// The key of a control, as logs spell it.
std::string gControlPlace(const CWnd& rWnd);
