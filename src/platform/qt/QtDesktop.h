#pragma once

#include "platform/qt/HostWidget.h"
#include "platform/ui/Desktop.h"
#include "platform/ui/FileDialog.h"

#include <QObject>
#include <QString>
#include <functional>
#include <memory>
#include <optional>

class CModelEntry;
class CWnd;
class QDialog;
class QSettings;

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

    /// For a slot or an event of the host's own that acts on the windows: calls into their model.
    /// No exception passes while a window is open: the first one is kept, the innermost run ends,
    /// and throws it on.
    void EnterModel(const std::function<void()>& rCall);

private:
    std::unique_ptr<QSettings> OpenProfile() const;
    int RunBox(QDialog& rBox, const CWnd* pOwner);

    IDesktop* mpBefore;
    QString msOrganisation;
    QString msApplication;
    QString msProfilePath; ///< empty: by organisation and application
    std::unique_ptr<CModelEntry> mpEntry;
    QObject mContext; ///< what was queued for the event loop ends with the desktop
    bool mbPumpQueued = false;
};
