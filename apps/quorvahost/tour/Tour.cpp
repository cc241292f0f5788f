#include "quorvahost/tour/Tour.h"

#include "quorvahost/HostWindow.h"
#include "quorvahost/NetlistEdit.h"

#include <QAction>
#include <QDir>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPixmap>
#include <QTest>
#include <QTextDocument>
#include <utility>

namespace quorvawiz::host
{
namespace
{
void Expect(bool bTrue, const char* pWhat)
{
    if (!bTrue)
        throw CUserError(std::string("expected: ") + pWhat);
}

/// The control of a key, if it is on the screen; not the label, which has the same one.
QWidget* FindControl(const QWidget& rWindow, const char* pKey)
{
    for (auto* const pControl : rWindow.findChildren<QWidget*>(QString::fromLatin1(pKey)))
        if (pControl->isVisible() && pControl->focusPolicy() != Qt::NoFocus)
            return pControl;
    return nullptr;
}

QWidget& Control(const QWidget& rWindow, const char* pKey)
{
    QWidget* const pControl = FindControl(rWindow, pKey);
    Expect(pControl, pKey);
    return *pControl;
}
} // namespace

CTour::CTour(CHostWindow& rWindow, QString sFile, QString sFolder)
    : mrWindow(rWindow), msFile(std::move(sFile)), msFolder(std::move(sFolder))
{
}

void CTour::Run()
{
    Expect(QDir().mkpath(msFolder), "a folder for the pictures");
    mrWindow.show();
    mrWindow.activateWindow();
    CUser::Settle();
    VisitEditor();
    VisitToolsMenu();
    VisitFindBar();
    VisitFileDialogs();
    Leave();
}

void CTour::VisitEditor()
{
    Expect(mrWindow.OpenFile(msFile), "the netlist opens");
    Picture(mrWindow, "editor");
    // To the empty line in front of ".end".
    mUser.Press(QKeySequence(Qt::CTRL | Qt::Key_End));
    for (int i = 0; i < 2; ++i)
        mUser.Press(QKeySequence(Qt::Key_Up));
}

void CTour::VisitToolsMenu()
{
    auto* const pWizard = mrWindow.findChild<QAction*>(QStringLiteral("wizard"));
    auto* const pMenu = mrWindow.findChild<QMenu*>(QStringLiteral("tools"));
    Expect(pWizard && pMenu, "Tools > SPICE Command Wizard");
    mUser.Meet([&](QWidget& rMenu) {
        Picture(mrWindow, "tools-menu", &rMenu);
        mUser.Meet([this](QWidget& rWizard) { VisitWizard(rWizard); });
        CUser::ClickAt(rMenu, pMenu->actionGeometry(pWizard).center());
    });
    QMenuBar& rBar = *mrWindow.menuBar();
    CUser::ClickAt(rBar, rBar.actionGeometry(pMenu->menuAction()).center());
    CUser::Settle();
    mUser.RethrowFailure();
    Expect(mUser.HasMetAll(), "the wizard opens");
    Picture(mrWindow, "inserted");
}

void CTour::VisitWizard(QWidget& rWizard)
{
    Picture(rWizard, "wizard");
    mUser.Type(QStringLiteral("Settings"));
    Picture(rWizard, "settings");
    mUser.Press(QKeySequence(Qt::Key_Right));
    constexpr int kMostPages = 12;
    for (int i = 0; i < kMostPages && !FindControl(rWizard, "temperature-list"); ++i) {
        mUser.Press(QKeySequence(Qt::Key_Down));
    }
    CUser::Click(Control(rWizard, "temperature-list"));

    // Nothing is filled in.
    mUser.Meet([this](QWidget& rBox) {
        Picture(rBox, "message");
        mUser.Press(QKeySequence(Qt::Key_Return));
    });
    mUser.Press(QKeySequence(Qt::ALT | Qt::Key_I));

    CUser::Click(Control(rWizard, "temperature-list"));
    mUser.Type(QStringLiteral("0 27 85"));
    CUser::Click(Control(rWizard, "insert"));
    Picture(rWizard, "temperature");

    // The wizard stays open for the next one.
    CUser::Click(Control(rWizard, "temperature-list"));
    mUser.Press(QKeySequence::SelectAll);
    mUser.Type(QStringLiteral("-40 125"));
    mUser.Press(QKeySequence(Qt::ALT | Qt::Key_I));
    mUser.Press(QKeySequence(Qt::Key_Escape));
}

void CTour::VisitFindBar()
{
    mUser.Press(QKeySequence(Qt::CTRL | Qt::Key_Home));
    mUser.Press(QKeySequence::Find);
    mUser.Type(QStringLiteral(".temp"));
    CUser::Settle();
    Expect(mrWindow.Edit().textCursor().selectedText() == QStringLiteral(".temp"), "a find");
    Picture(mrWindow, "find-bar");
    mUser.Press(QKeySequence(Qt::Key_Escape));
}

void CTour::VisitFileDialogs()
{
    mUser.Meet([this](QWidget& rDialog) {
        Picture(rDialog, "open");
        mUser.Press(QKeySequence(Qt::Key_Escape));
    });
    mUser.Press(QKeySequence::Open);
    mUser.Meet([this](QWidget& rBox) {
        Picture(rBox, "unsaved");
        mUser.Press(QKeySequence(Qt::Key_Escape));
    });
    mUser.Press(QKeySequence::New);
    mUser.RethrowFailure();
    Expect(mUser.HasMetAll(), "a dialog for a file, and a question about unsaved work");
}

void CTour::Leave()
{
    mUser.Press(QKeySequence::Save);
    CUser::Settle();
    Expect(!mrWindow.Edit().document()->isModified(), "the netlist is saved");
    mUser.Press(QKeySequence(Qt::CTRL | Qt::Key_Q));
    CUser::Settle();
    Expect(!mrWindow.isVisible(), "the host closes");
}

void CTour::Picture(QWidget& rWindow, const char* pName, QWidget* pInFront)
{
    CUser::Settle();
    QPixmap picture = rWindow.grab();
    if (pInFront) {
        QPainter painter(&picture);
        painter.drawPixmap(rWindow.mapFromGlobal(pInFront->mapToGlobal(QPoint())),
                           pInFront->grab());
    }
    const QString sName = QStringLiteral("%1/%2-%3.png")
                              .arg(msFolder)
                              .arg(++mnPictures, 2, 10, QLatin1Char('0'))
                              .arg(QString::fromLatin1(pName));
    Expect(picture.save(sName), "a picture is written");
}

} // namespace quorvawiz::host
