#include "quorvahost/HostWindow.h"

#include "exports/Quorvawiz.h"
#include "platform/qt/QtDesktop.h"
#include "quorvahost/CloseListener.h"
#include "quorvahost/CommandText.h"
#include "quorvahost/FileQuestions.h"
#include "quorvahost/FindBar.h"
#include "quorvahost/HostStatus.h"
#include "quorvahost/NetlistEdit.h"
#include "quorvahost/ParameterTools.h"
#include "quorvahost/RecentFiles.h"
#include "quorvahost/WaitPointer.h"
#include "quorvawiz/version.h"

#include <QAction>
#include <QCloseEvent>
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>
#include <QSettings>
#include <QStatusBar>
#include <QTextDocument>
#include <QUrl>
#include <QVBoxLayout>
#include <exception>
#include <functional>
#include <utility>

namespace quorvawiz::host
{
namespace
{
const QString kGeometryKey = QStringLiteral("window-geometry");

/// Puts what the wizard inserts into the editor.
class CEditTarget : public CTextTarget
{
public:
    explicit CEditTarget(CNetlistEdit& rEdit) : mrEdit(rEdit) {}

protected:
    void Take(const QString& rsText) override { mrEdit.InsertCommand(rsText); }

private:
    CNetlistEdit& mrEdit;
};

/// Sets a flag while it lives.
class CFlagScope
{
public:
    explicit CFlagScope(bool& rbFlag) : mrbFlag(rbFlag) { mrbFlag = true; }
    ~CFlagScope() { mrbFlag = false; }
    CFlagScope(const CFlagScope&) = delete;
    CFlagScope& operator=(const CFlagScope&) = delete;

private:
    bool& mrbFlag;
};

/// Acts once when a widget has been painted for the first time. The widget's child.
class CFirstPaint : public QObject
{
public:
    CFirstPaint(QWidget& rWidget, std::function<void()> act)
        : QObject(&rWidget), mAct(std::move(act))
    {
        rWidget.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* pWidget, QEvent* pEvent) override
    {
        if (pEvent->type() == QEvent::Paint) {
            pWidget->removeEventFilter(this);
            // Behind the painting of all the window.
            QMetaObject::invokeMethod(pWidget, mAct, Qt::QueuedConnection);
            deleteLater();
        }
        return false;
    }

private:
    std::function<void()> mAct;
};

/// The one local file of a drop, or an empty text.
QString DroppedFile(const QMimeData& rData)
{
    const QList<QUrl> urls = rData.urls();
    return urls.size() == 1 && urls.first().isLocalFile() ? urls.first().toLocalFile() : QString();
}
} // namespace

CHostWindow::CHostWindow(QtDesktop& rDesktop) : mrDesktop(rDesktop)
{
    auto* const pCentre = new QWidget(this);
    mpEdit = new CNetlistEdit(pCentre);
    mpFindBar = new CFindBar(*mpEdit, pCentre);
    auto* const pLayout = new QVBoxLayout(pCentre);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->setSpacing(0);
    pLayout->addWidget(mpEdit, 1);
    pLayout->addWidget(mpFindBar);
    setCentralWidget(pCentre);
    mpTarget = std::make_unique<CEditTarget>(*mpEdit);
    mpEdit->setFrameShape(QFrame::NoFrame);

    mpParameters = new CParameterTools(*this);
    mActions = gMakeHostMenus(*this, Handlers());
    for (QAction* const pAction : mActions.withParams)
        pAction->setEnabled(false);
    mpStatus = new CHostStatus(*mpEdit, *statusBar());
    for (QAction* const pAction : {mActions.pUndo, mActions.pRedo, mActions.pCut, mActions.pCopy})
        pAction->setEnabled(false);
    connect(mpEdit, &QPlainTextEdit::undoAvailable, mActions.pUndo, &QAction::setEnabled);
    connect(mpEdit, &QPlainTextEdit::redoAvailable, mActions.pRedo, &QAction::setEnabled);
    connect(mpEdit, &QPlainTextEdit::copyAvailable, mActions.pCut, &QAction::setEnabled);
    connect(mpEdit, &QPlainTextEdit::copyAvailable, mActions.pCopy, &QAction::setEnabled);
    connect(mpEdit, &QPlainTextEdit::modificationChanged, this, &QWidget::setWindowModified);

    setAcceptDrops(true);
    ShowRecentFiles(gLoadRecentFiles());
    SetFile({}, {}, {});
    constexpr QSize kFirstSize(900, 640);
    resize(kFirstSize);
    restoreGeometry(QSettings().value(kGeometryKey).toByteArray());
    mpEdit->setFocus();
}

CHostWindow::~CHostWindow() = default;

THostHandlers CHostWindow::Handlers()
{
    return {
        .fileNew = [this] { NewFile(); },
        .open = [this] { ChooseAndOpen(); },
        .save = [this] { Save(); },
        .saveAs = [this] { SaveAs(); },
        .quit = [this] { close(); },
        .undo = [this] { mpEdit->undo(); },
        .redo = [this] { mpEdit->redo(); },
        .cut = [this] { mpEdit->cut(); },
        .copy = [this] { mpEdit->copy(); },
        .paste = [this] { mpEdit->paste(); },
        .selectAll = [this] { mpEdit->selectAll(); },
        .find = [this] { mpFindBar->Open(); },
        .findNext = [this] { mpFindBar->FindAgain(EDirection::Forward); },
        .findPrevious = [this] { mpFindBar->FindAgain(EDirection::Backward); },
        .zoomIn = [this] { mpEdit->Zoom(1); },
        .zoomOut = [this] { mpEdit->Zoom(-1); },
        .zoomReset = [this] { mpEdit->Zoom(0); },
        .wizard = [this] { RunWizard(); },
        .openParams = [this] { mpParameters->ChooseAndOpen(); },
        .devices = [this] { mpParameters->Browse(EBrowserList::Devices); },
        .libraryModels = [this] { mpParameters->Browse(EBrowserList::LibraryModels); },
        .simulatorModels = [this] { mpParameters->Browse(EBrowserList::SimulatorModels); },
        .deviceAtCursor = [this] { mpParameters->BrowseDeviceAtCursor(); },
        .recalculate = [this] { mpParameters->Recalculate(); },
        .importNetlist = [this] { mpParameters->ImportNetlist(); },
        .about = [this] { About(); },
    };
}

bool CHostWindow::OpenFile(const QString& rsPath)
{
    if (!MayLeaveNetlist())
        return false;
    const QString sPath = QFileInfo(rsPath).absoluteFilePath();
    auto read = [&sPath] {
        const CWaitPointer wait;
        return gReadNetlistFile(sPath);
    }();
    if (const auto* pFault = std::get_if<TFileFault>(&read)) {
        QStringList recent = gLoadRecentFiles();
        if (!QFileInfo::exists(sPath) && recent.removeAll(sPath) > 0)
            KeepRecentFiles(recent);
        gShowFault(this, *pFault);
        return false;
    }
    const CWaitPointer wait;
    const TNetlistFile& rFile = std::get<TNetlistFile>(read);
    mpEdit->LoadText(rFile.netlist.sText);
    SetFile(sPath, rFile.netlist.form, rFile.stamp);
    KeepRecentFiles(gWithRecentFile(gLoadRecentFiles(), sPath));
    return true;
}

void CHostWindow::OpenFileOnceShown(const QString& rsPath, bool bImport)
{
    new CFirstPaint(*mpEdit->viewport(), [this, rsPath, bImport] {
        if (OpenFile(rsPath) && bImport)
            mpParameters->ImportNetlist();
    });
}

void CHostWindow::NewFile()
{
    if (!MayLeaveNetlist())
        return;
    mpEdit->LoadText({});
    SetFile({}, {}, {});
}

void CHostWindow::ChooseAndOpen()
{
    const auto path = gAskForFileToOpen(this, Folder());
    if (path)
        OpenFile(*path);
}

bool CHostWindow::Save()
{
    if (msPath.isEmpty())
        return SaveAs();
    const TFileStamp now = gStampOf(msPath);
    // A file that is gone is simply written again.
    const bool bChangedByOthers = now.bExists && now != mStamp;
    if (bChangedByOthers && !gAskToOverwrite(this, ShownName()))
        return false;
    return SaveTo(msPath);
}

bool CHostWindow::SaveAs()
{
    const auto path = gAskForFileToSave(this, msPath.isEmpty() ? Folder() : msPath);
    return path && SaveTo(*path);
}

bool CHostWindow::SaveTo(const QString& rsPath)
{
    if (const auto fault = gWriteNetlistFile(rsPath, mpEdit->Text(), mForm)) {
        gShowFault(this, *fault);
        return false;
    }
    mpEdit->document()->setModified(false);
    SetFile(rsPath, mForm, gStampOf(rsPath));
    KeepRecentFiles(gWithRecentFile(gLoadRecentFiles(), rsPath));
    statusBar()->showMessage(tr("Saved"), 3000);
    return true;
}

bool CHostWindow::MayLeaveNetlist()
{
    // The window system may ask to close while the question is on the screen.
    if (mbAsking)
        return false;
    if (!mpEdit->document()->isModified())
        return true;
    const CFlagScope asking(mbAsking);
    switch (gAskAboutUnsaved(this, ShownName())) {
    case EUnsaved::Save:
        return Save();
    case EUnsaved::Discard:
        return true;
    case EUnsaved::Cancel:
        return false;
    }
    return false;
}

void CHostWindow::RunWizard()
{
    RunInFront({.sWhat = tr("the wizard has ended: %1"),
                .run = [this] { gInvokeSpiceCommandWizard(gWindowOf(this), mpTarget.get()); }});
}

bool CHostWindow::RunInFront(const TInFront& rInFront)
{
    if (mEndInFront)
        return false;
    // Whoever deletes the window ends what is in front, which returns here.
    const QPointer<CHostWindow> pAlive(this);
    mEndInFront = rInFront.end;
    if (!mEndInFront)
        mEndInFront = [this] { mrDesktop.EnterModel([this] { mrDesktop.EndModalRuns(); }); };
    QString sFault;
    try {
        const CCloseListener closeListener(*this);
        rInFront.run();
    } catch (const std::exception& rError) {
        sFault = rInFront.sWhat.arg(QString::fromUtf8(rError.what()));
    }
    if (!pAlive)
        return false;
    mEndInFront = nullptr;
    if (!sFault.isEmpty())
        gShowFault(this, {sFault});
    if (!std::exchange(mbCloseAfterInFront, false))
        return sFault.isEmpty();
    close();
    return false;
}

bool CHostWindow::SaveForOthers()
{
    if (!msPath.isEmpty() && !mpEdit->document()->isModified())
        return true;
    return gAskToSaveFirst(this, ShownName()) && Save();
}

void CHostWindow::ShowParams(const QString& rsName)
{
    mpStatus->ShowParams(rsName);
    for (QAction* const pAction : mActions.withParams)
        pAction->setEnabled(true);
}

void CHostWindow::closeEvent(QCloseEvent* pEvent)
{
    if (mEndInFront) {
        // It runs on this window's stack: it has to end first.
        mbCloseAfterInFront = true;
        pEvent->ignore();
        mEndInFront();
        return;
    }
    pEvent->setAccepted(MayLeaveNetlist());
    if (pEvent->isAccepted())
        QSettings().setValue(kGeometryKey, saveGeometry());
}

void CHostWindow::dragEnterEvent(QDragEnterEvent* pEvent)
{
    if (!DroppedFile(*pEvent->mimeData()).isEmpty())
        pEvent->acceptProposedAction();
}

void CHostWindow::dropEvent(QDropEvent* pEvent)
{
    const QString sFile = DroppedFile(*pEvent->mimeData());
    if (sFile.isEmpty())
        return;
    pEvent->acceptProposedAction();
    // The program that the file comes from waits until the drop is done: ask no question before.
    QMetaObject::invokeMethod(
        this, [this, sFile] { OpenFile(sFile); }, Qt::QueuedConnection);
}

void CHostWindow::SetFile(const QString& rsPath, TTextForm form, const TFileStamp& rStamp)
{
    msPath = rsPath;
    mForm = form;
    mStamp = rStamp;
    mpStatus->ShowForm(form);
    setWindowFilePath(rsPath);
    setWindowTitle(ShownName() + QStringLiteral("[*] \u2014 quorvahost"));
    setWindowModified(mpEdit->document()->isModified());
}

void CHostWindow::KeepRecentFiles(const QStringList& rFiles)
{
    gSaveRecentFiles(rFiles);
    ShowRecentFiles(rFiles);
}

void CHostWindow::ShowRecentFiles(const QStringList& rFiles)
{
    mActions.pRecent->clear();
    mActions.pRecent->setEnabled(!rFiles.isEmpty());
    const QStringList labels = gRecentFileLabels(rFiles);
    for (qsizetype i = 0; i < rFiles.size(); ++i) {
        QAction* const pAction = mActions.pRecent->addAction(labels[i]);
        pAction->setStatusTip(QDir::toNativeSeparators(rFiles[i]));
        // Queued: opening fills this menu anew, which ends the action.
        connect(
            pAction, &QAction::triggered, this, [this, sPath = rFiles[i]] { OpenFile(sPath); },
            Qt::QueuedConnection);
    }
}

QString CHostWindow::ShownName() const
{
    return msPath.isEmpty() ? tr("untitled") : QFileInfo(msPath).fileName();
}

QString CHostWindow::Folder() const
{
    return msPath.isEmpty() ? QDir::currentPath() : QFileInfo(msPath).absolutePath();
}

void CHostWindow::About()
{
    QMessageBox box(
        QMessageBox::Information, tr("About quorvahost"),
        tr("<b>quorvahost %1</b><p>A small editor for SPICE netlists, and the host of "
           "the SPICE Command Wizard and the Parameter Browser.</p>")
            .arg(QLatin1StringView(kVersion.data(), static_cast<qsizetype>(kVersion.size()))),
        QMessageBox::Ok, this);
    box.exec();
}

} // namespace quorvawiz::host
