#pragma once

#include "platform/ui/Desktop.h"
#include "platform/ui/FileDialog.h"

#include <QObject>
#include <QString>
#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class CWnd;
class QDialog;
class QSettings;
class QWidget;
struct TUserKey;

/// The desktop of Qt Widgets: real windows, boxes and file dialogs. A QApplication exists before it
/// and longer than it.
///
/// It is the current desktop from its construction to its end, and then puts back the one before.
/// Everything of it runs on the GUI thread.
class QtDesktop : public IDesktop
{
public:
    /// Keeps the profile among the user's settings of this organisation and application.
    QtDesktop(const QString& rsOrganisation, const QString& rsApplication);
    /// Keeps the profile in an INI file.
    explicit QtDesktop(const QString& rsProfilePath);
    ~QtDesktop() override;
    QtDesktop(const QtDesktop&) = delete;
    QtDesktop& operator=(const QtDesktop&) = delete;

    /// Runs the dialog's window, modal to the whole application, in an event loop of its own.
    /// Returns early when the application quits. An exception that a handler of the dialog throws
    /// ends the run and leaves through here.
    void RunModal(CDialog& rDialog) override;
    int ShowMessageBox(const TMessageBox& rBox) override;
    TFileChoice ChooseFile(const TFileDialog& rDialog) override;
    std::optional<CString> ReadProfile(const CString& rsSection, const CString& rsEntry) override;
    bool WriteProfile(const CString& rsSection, const CString& rsEntry,
                      const CString& rsValue) override;
    /// The application's display name.
    CString GetApplicationName() const override;
    std::unique_ptr<IWindowPeer> MakePeer(CWnd& rWnd) override;
    void OnMessagePosted() override;

    // --- for what draws a window of this desktop

    /// The one way from a slot or an event of the toolkit into the windows' model. No exception
    /// passes: the first one is kept, the innermost run ends, and the run throws it on.
    void EnterModel(const std::function<void()>& rCall);
    /// The same for a key that the user pressed in the innermost dialog.
    void EnterKey(const TUserKey& rKey);
    /// True while a key of the user is on its way through the model.
    bool IsInKey() const { return mbInKey; }

private:
    class CNestedLoop;

    std::unique_ptr<QSettings> OpenProfile() const;
    int RunBox(QDialog& rBox, const CWnd* pOwner);
    void LeaveEndedLoops();

    IDesktop* mpBefore;
    QString msOrganisation;
    QString msApplication;
    QString msProfilePath;            ///< empty: by organisation and application
    QObject mContext;                 ///< what was queued for the event loop ends with the desktop
    std::vector<CNestedLoop*> mLoops; ///< outermost first
    std::exception_ptr mpFailure;     ///< on its way to the innermost loop's end
    bool mbPumpQueued = false;
    bool mbInKey = false;
};

/// A window for a host's own widget, to be the owner of dialogs and boxes. It belongs to the widget
/// and ends with it; the same widget always has the same one. Null for null.
CWnd* gWindowOf(QWidget* pWidget);

/// The widget that shows a window of the current QtDesktop, or the widget of `gWindowOf`.
/// Null when there is none.
QWidget* gWidgetOf(const CWnd& rWnd);
