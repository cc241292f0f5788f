#pragma once

#include "quorvahost/HostActions.h"
#include "quorvahost/NetlistFile.h"

#include <QMainWindow>
#include <QString>
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
    void OpenFileOnceShown(const QString& rsPath);

    /// The netlist's editor.
    CNetlistEdit& Edit() { return *mpEdit; }

    /// The path of the netlist's file, absolute; empty for none.
    const QString& Path() const { return msPath; }

    /// Runs the wizard until the user closes it. Without effect while it runs.
    void RunWizard();

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
    QString Folder() const;
    void About();

    QtDesktop& mrDesktop;
    CNetlistEdit* mpEdit;
    CFindBar* mpFindBar;
    CHostStatus* mpStatus;
    std::unique_ptr<QuorvaCommandWizardTarget> mpTarget;
    THostActions mActions;
    QString msPath;
    TTextForm mForm;
    TFileStamp mStamp;
    bool mbAsking = false;
    bool mbWizardRuns = false;
    bool mbCloseAfterWizard = false;
};

} // namespace quorvawiz::host
