#pragma once

#include "quorvahost/HostActions.h"
#include "quorvahost/NetlistFile.h"

#include <QMainWindow>
#include <QString>
#include <functional>
#include <memory>

class QtDesktop;

namespace quorvawiz
{
class QuorvaCommandWizardTarget;
}

namespace quorvawiz::host
{

class CFindBar;
class CHostStatus;
class CNetlistEdit;
class CParameterTools;

/// What runs in front of a window, and on its stack, until the user is done with it.
struct TInFront {
    QString sWhat;                       ///< said of an exception, whose words are "%1"
    std::function<void()> run;           ///< returns when the user is done
    std::function<void()> end = nullptr; ///< makes `run` return; none: the library's dialogs end
};

/// The editor's window: one netlist, its file, the menus, and the wizard's host.
class CHostWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// An empty netlist without a file. The desktop, which shows the wizard, outlives the window.
    explicit CHostWindow(QtDesktop& rDesktop);
    ~CHostWindow() override;

    /// Opens a file in the place of the netlist there is, after asking about unsaved work.
    /// @return false if the user kept what was there, or the file can't be read; it was told then
    bool OpenFile(const QString& rsPath);

    /// `OpenFile` as soon as the window has been painted for the first time: a large file takes a
    /// while, and a message stands in front of a window that is there.
    void OpenFileOnceShown(const QString& rsPath, bool bImport = false);

    /// The netlist's editor.
    CNetlistEdit& Edit() { return *mpEdit; }

    /// The path of the netlist's file, absolute; empty for none.
    const QString& Path() const { return msPath; }

    /// The folder of the netlist's file, or the current one.
    QString Folder() const;

    /// Runs the wizard until the user closes it. Without effect while it runs.
    void RunWizard();

    /// Runs a dialog, or what else has a window in front of this one. A request to close this
    /// window ends it first.
    /// @return false when something is in front already, an exception was told of, or this window
    ///         has closed or ended meanwhile, so that nobody touches it any more
    bool RunInFront(const TInFront& rInFront);

    /// Makes the file hold what is in the editor, as other programs are to read it; asks before.
    /// @return false if the user didn't want to, or it failed, which was told
    bool SaveForOthers();

    /// Shows that a params file of this name is open, and enables what needs one.
    void ShowParams(const QString& rsName);

    /// The menu "Parameters".
    CParameterTools& Parameters() { return *mpParameters; }

protected:
    void closeEvent(QCloseEvent* pEvent) override;
    void dragEnterEvent(QDragEnterEvent* pEvent) override;
    void dropEvent(QDropEvent* pEvent) override;

private:
    THostHandlers Handlers();
    void NewFile();
    void ChooseAndOpen();
    bool Save();
    bool SaveAs();
    bool SaveTo(const QString& rsPath);
    bool MayLeaveNetlist();
    void SetFile(const QString& rsPath, TTextForm form, const TFileStamp& rStamp);
    void KeepRecentFiles(const QStringList& rFiles);
    void ShowRecentFiles(const QStringList& rFiles);
    QString ShownName() const;
    void About();

    QtDesktop& mrDesktop;
    CNetlistEdit* mpEdit;
    CFindBar* mpFindBar;
    CHostStatus* mpStatus;
    CParameterTools* mpParameters;
    std::unique_ptr<QuorvaCommandWizardTarget> mpTarget;
    THostActions mActions;
    QString msPath;
    TTextForm mForm;
    TFileStamp mStamp;
    bool mbAsking = false;
    std::function<void()> mEndInFront; ///< while something is in front
    bool mbCloseAfterInFront = false;
};

} // namespace quorvawiz::host
