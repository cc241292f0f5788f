#pragma once

#include "platform/ui/Wnd.h"

class CButton;
struct TModalRun;

/// A window whose controls come from a template: a modal dialog, or a pane inside one.
///
/// Creation first runs `DoDataExchange` in binding mode, so that a control member *is* the control,
/// and then walks the template: a row whose id is bound uses the member, any other row gets a
/// control that the dialog owns.
class CDialog : public CWnd
{
public:
    /// `rTemplate` lives as long as the dialog. `pOwner` (may be null) is the window that a modal
    /// run belongs to.
    explicit CDialog(const DialogTemplate& rTemplate, CWnd* pOwner = nullptr);
    ~CDialog() override;

    /// Runs the dialog until `EndDialog` and returns its result. The order: create,
    /// `OnInitDialog`, focus, run (left out if the dialog has ended by then), destroy. A desktop
    /// that gives up before the end counts as IDCANCEL. Throws std::logic_error when it runs
    /// already, and CInvalidArgException when a bound control isn't in the template or is of
    /// another kind.
    virtual int DoModal();

    /// Initialises fields and controls. The base loads the fields into the controls.
    /// Result: true to let the platform choose the focus, false when this function did it.
    virtual bool OnInitDialog();

protected:
    /// IDOK: stores the controls in the fields and ends the run with IDOK.
    virtual void OnOK();
    /// IDCANCEL, Escape, the title bar's close: ends the run with IDCANCEL.
    virtual void OnCancel();

public:
    /// Creates the dialog as a pane of `rParent`, hidden, and calls `OnInitDialog`. False when it
    /// exists already or the parent has no window. Throws as `DoModal`.
    bool CreatePane(CWnd& rParent);

    /// Ends the modal run with this result, and with IDCANCEL all runs inside it. The first result
    /// counts. Nothing happens outside a run.
    void EndDialog(int nResult);
    /// True when a modal run is on and has been ended, or its window is gone, or none is on.
    bool HasEnded() const;

    const DialogTemplate& GetTemplate() const { return mrTemplate; }
    CWnd* GetOwner() const { return mpOwner; }

    /// The user gives the window another size, in dialog units; one below the template's is raised
    /// to it. `nType` SIZE_MINIMIZED: the window is minimised and its size stays. WM_SIZE is sent
    /// in both cases, even for the size that the window has. Result: Invalid when the template
    /// isn't sizable; Blocked while another window takes the user's actions.
    EUserResult UserSize(WPARAM nType, const TSize& rSize);

    /// What Enter and Escape and a press on the buttons of these ids do.
    void PerformOK() { OnOK(); }
    void PerformCancel() { OnCancel(); }
    /// The push button that Enter presses, or null: a row of that kind, or the button IDOK.
    CButton* GetDefaultButton() const;

    CWnd* SetFocus() override;
    LRESULT DefWindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override;
    bool IsTabStop() const override;

protected:
    bool OnCommand(ENotify code, int nId) override;

private:
    class CModalScope;

    void CreateControls(CWnd* pParent);

    const DialogTemplate& mrTemplate;
    CWnd* mpOwner;
    TModalRun* mpRun = nullptr;
    std::vector<std::unique_ptr<CWnd>> mOwnedControls;
};

/// The dialog that takes the user's actions, or null when no modal run is on.
CDialog* gInnermostDialog();

/// The dialog of the first modal run that is on, or null.
CDialog* gOutermostDialog();
