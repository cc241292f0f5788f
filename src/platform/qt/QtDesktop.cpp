#include "platform/qt/QtDesktop.h"

#include "platform/qt/DialogPeer.h"
#include "platform/qt/FileDialogWindow.h"
#include "platform/qt/MakePeer.h"
#include "platform/qt/MessageBoxWindow.h"
#include "platform/qt/ModelEntry.h"
#include "platform/qt/OwnedWindow.h"
#include "platform/qt/QtText.h"
#include "platform/ui/Dialog.h"
#include "platform/ui/MessagePump.h"

#include <QAbstractEventDispatcher>
#include <QDialog>
#include <QEventLoop>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPointer>
#include <QSettings>

QtDesktop::QtDesktop(const QString& rsOrganisation, const QString& rsApplication)
    : mpBefore(gSetDesktop(this)), msOrganisation(rsOrganisation), msApplication(rsApplication),
      mpEntry(std::make_unique<CModelEntry>(Thread()))
{
}

QtDesktop::QtDesktop(const QString& rsProfilePath)
    : mpBefore(gSetDesktop(this)), msProfilePath(rsProfilePath),
      mpEntry(std::make_unique<CModelEntry>(Thread()))
{
}

QtDesktop::~QtDesktop()
{
    gSetDesktop(mpBefore);
}

std::unique_ptr<IWindowPeer> QtDesktop::MakePeer(CWnd& rWnd)
{
    return gMakePeer(*mpEntry, rWnd);
}

// --- into the model

void QtDesktop::EnterModel(const std::function<void()>& rCall)
{
    mpEntry->Enter(rCall);
}

void QtDesktop::OnMessagePosted()
{
    if (mbPumpQueued)
        return;
    mbPumpQueued = true;
    QMetaObject::invokeMethod(
        &mContext,
        [this] {
            mbPumpQueued = false;
            if (gFindDesktop() == this)
                EnterModel([] { gPumpPostedMessages(); });
        },
        Qt::QueuedConnection);
}

// --- windows, boxes, files

void QtDesktop::RunModal(CDialog& rDialog)
{
    const QPointer<QWidget> pWindow = gWidgetOf(rDialog);
    const auto* const pPeer = dynamic_cast<const CDialogPeer*>(rDialog.GetPeer());
    const QPointer<QWidget> pOwner = pPeer ? pPeer->GetOwnerWidget() : nullptr;
    QEventLoop eventLoop;
    CModelEntry::CLoop loop(*mpEntry, &rDialog, [&eventLoop] { eventLoop.quit(); });

    // Whoever ends the dialog, be it from outside of all its events, the loop sees it before it
    // waits.
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                     &eventLoop, [this] { mpEntry->LeaveEndedLoops(); });
    const auto cancel = [this, &rDialog] {
        EnterModel([&rDialog] { rDialog.EndDialog(IDCANCEL); });
    };
    if (pOwner)
        QObject::connect(pOwner, &QObject::destroyed, &eventLoop, cancel);
    if (pWindow)
        QObject::connect(pWindow, &QObject::destroyed, &eventLoop, cancel);

    if (!rDialog.HasEnded() && !mpEntry->HasFailed())
        eventLoop.exec(QEventLoop::DialogExec);
    if (pWindow)
        pWindow->hide();
    gActivateOwner(pOwner);
    loop.RethrowFailure();
}

int QtDesktop::ShowMessageBox(const TMessageBox& rBox)
{
    const auto pBox = gMakeMessageBox(rBox, GetApplicationName());
    return gResultOf(rBox, RunBox(*pBox, rBox.pOwner));
}

TFileChoice QtDesktop::ChooseFile(const TFileDialog& rDialog)
{
    if (!gIsFileName(rDialog.sFileName))
        return {TFileChoice::EEnd::InvalidName, {}};
    const auto pDialog = gMakeFileDialog(rDialog);
    RunBox(*pDialog, rDialog.pParent);
    return gChoiceOf(*pDialog);
}

int QtDesktop::RunBox(QDialog& rBox, const CWnd* pOwner)
{
    const QPointer<QWidget> pOwnerWidget = gOwnerWidgetOf(pOwner);
    gTieToOwner(rBox, pOwnerWidget);
    const auto leave = [&rBox] { rBox.done(QDialog::Rejected); };
    CModelEntry::CLoop loop(*mpEntry, nullptr, leave);
    if (pOwnerWidget)
        QObject::connect(pOwnerWidget, &QObject::destroyed, &rBox, leave);
    const int nResult = rBox.exec();
    gActivateOwner(pOwnerWidget);
    loop.RethrowFailure();
    return nResult;
}

// --- profile

std::unique_ptr<QSettings> QtDesktop::OpenProfile() const
{
    return msProfilePath.isEmpty()
               ? std::make_unique<QSettings>(msOrganisation, msApplication)
               : std::make_unique<QSettings>(msProfilePath, QSettings::IniFormat);
}

namespace
{
QString ProfileKey(const CString& rsSection, const CString& rsEntry)
{
    return gToQString(rsSection) + QLatin1Char('/') + gToQString(rsEntry);
}
} // namespace

std::optional<CString> QtDesktop::ReadProfile(const CString& rsSection, const CString& rsEntry)
{
    const auto pProfile = OpenProfile();
    const QString sKey = ProfileKey(rsSection, rsEntry);
    if (!pProfile->contains(sKey))
        return std::nullopt;
    return gFromQString(pProfile->value(sKey).toString());
}

bool QtDesktop::WriteProfile(const CString& rsSection, const CString& rsEntry,
                             const CString& rsValue)
{
    const auto pProfile = OpenProfile();
    pProfile->setValue(ProfileKey(rsSection, rsEntry), gToQString(rsValue));
    pProfile->sync();
    return pProfile->status() == QSettings::NoError;
}

CString QtDesktop::GetApplicationName() const
{
    return gFromQString(QGuiApplication::applicationDisplayName()).value_or(CString());
}
