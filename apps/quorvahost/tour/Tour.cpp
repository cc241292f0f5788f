#include "quorvahost/tour/Tour.h"

#include "quorvahost/HostWindow.h"
#include "quorvahost/NetlistEdit.h"
#include "quorvahost/tour/BrowserTour.h"

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
} // namespace

CTour::CTour(CHostWindow& rWindow, TTourFiles files) : mrWindow(rWindow), mFiles(std::move(files))
{
}

void CTour::Run()
{
    Expect(QDir().mkpath(mFiles.sFolder), "a folder for the pictures");
    mrWindow.show();
    mrWindow.activateWindow();
    CUser::Settle();
    VisitBrowser();
    VisitEditor();
    VisitToolsMenu();
    VisitFindBar();
    VisitFileDialogs();
    VisitAbout();
    Leave();
}

/// Before the netlist is changed: what the simulator reads is the file.
void CTour::VisitBrowser()
{
    CBrowserTour browser(mrWindow, mUser,
                         [this](QWidget& rWindow, const QString& rsName, QWidget* pInFront) {
                             Picture(rWindow, rsName, pInFront);
                         });
    browser.VisitFile(mFiles.sParams, QDir(mFiles.sFolder).filePath(QStringLiteral("devices.csv")));
    if (CBrowserTour::HasSimulator())
        for (const QString& rsNetlist : mFiles.imported)
            browser.VisitNetlist(rsNetlist);
}

void CTour::VisitEditor()
{
    Expect(mrWindow.OpenFile(mFiles.sNetlist), "the netlist opens");
    Picture(mrWindow, QStringLiteral("editor"));
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
        Picture(mrWindow, QStringLiteral("tools-menu"), &rMenu);
        mUser.Meet([this](QWidget& rWizard) { VisitWizard(rWizard); });
        CUser::ClickAt(rMenu, pMenu->actionGeometry(pWizard).center());
    });
    QMenuBar& rBar = *mrWindow.menuBar();
    CUser::ClickAt(rBar, rBar.actionGeometry(pMenu->menuAction()).center());
    CUser::Settle();
    mUser.RethrowFailure();
    Expect(mUser.HasMetAll(), "the wizard opens");
    Picture(mrWindow, QStringLiteral("inserted"));
}

void CTour::VisitWizard(QWidget& rWizard)
{
    Picture(rWizard, QStringLiteral("wizard"));
    // The wizard stays open from one command to the next.
    InsertTemperature(rWizard);
    InsertTransient(rWizard);
    InsertAC(rWizard);
    InsertDC(rWizard);
    InsertMeasure(rWizard);
    mUser.Press(QKeySequence(Qt::Key_Escape));
}

void CTour::InsertTemperature(QWidget& rWizard)
{
    mUser.Type(QStringLiteral("Settings"));
    Picture(rWizard, QStringLiteral("settings"));
    mUser.OpenPage(rWizard, QStringLiteral("Settings"), QStringLiteral("Temperature"));

    // Nothing is filled in.
    mUser.Meet([this](QWidget& rBox) {
        Picture(rBox, QStringLiteral("message"));
        mUser.Press(QKeySequence(Qt::Key_Return));
    });
    mUser.Press(QKeySequence(Qt::ALT | Qt::Key_I));

    mUser.Fill(rWizard, "temperature-list", QStringLiteral("0 27 85"));
    CUser::Click(CWizardUser::Control(rWizard, "insert"));
    Picture(rWizard, QStringLiteral("temperature"));
}

/// By keys alone, with a sweep in a dialog of its own.
void CTour::InsertTransient(QWidget& rWizard)
{
    mUser.OpenPage(rWizard, QStringLiteral("Analysis"), QStringLiteral("Transient"));
    mUser.Press(QKeySequence(Qt::ALT | Qt::Key_M));
    mUser.Type(QStringLiteral("1u"));
    mUser.Press(QKeySequence(Qt::Key_Tab));
    mUser.Type(QStringLiteral("800u"));
    mUser.Meet([this](QWidget& rSweep) {
        mUser.Press(QKeySequence(Qt::ALT | Qt::Key_M));
        mUser.Type(QStringLiteral("rs"));
        mUser.Press(QKeySequence(Qt::ALT | Qt::Key_R));
        mUser.Type(QStringLiteral("5k"));
        mUser.Press(QKeySequence(Qt::Key_Tab));
        mUser.Type(QStringLiteral("20k"));
        mUser.Press(QKeySequence(Qt::ALT | Qt::Key_C));
        mUser.Type(QStringLiteral("5k"));
        Picture(rSweep, QStringLiteral("sweep"));
        mUser.Press(QKeySequence(Qt::ALT | Qt::Key_A));
    });
    mUser.Press(QKeySequence(Qt::ALT | Qt::Key_S));
    mUser.Press(QKeySequence(Qt::ALT | Qt::Key_I));
    Picture(rWizard, QStringLiteral("transient"));
}

/// With the mouse, through the button of the category's page.
void CTour::InsertAC(QWidget& rWizard)
{
    CUser::Click(CWizardUser::Control(rWizard, "tree"));
    mUser.Press(QKeySequence(Qt::Key_Home));
    Picture(rWizard, QStringLiteral("analysis"));
    CUser::Click(CWizardUser::Control(rWizard, "button-1"));
    mUser.Press(QKeySequence(Qt::ALT | Qt::Key_F));
    mUser.Type(QStringLiteral("decade"));
    mUser.Fill(rWizard, "number-of-samples", QStringLiteral("20"));
    mUser.Fill(rWizard, "start-frequency", QStringLiteral("10"));
    mUser.Fill(rWizard, "final-frequency", QStringLiteral("1meg"));
    CUser::Click(CWizardUser::Control(rWizard, "insert"));
    Picture(rWizard, QStringLiteral("ac"));
}

/// A sweep of a source, which is all of the command.
void CTour::InsertDC(QWidget& rWizard)
{
    mUser.OpenPage(rWizard, QStringLiteral("Analysis"), QStringLiteral("DC transfer sweep"));
    mUser.Meet([this](QWidget& rSweep) {
        mUser.Press(QKeySequence(Qt::ALT | Qt::Key_P));
        mUser.Type(QStringLiteral("Source"));
        mUser.Fill(rSweep, "parameter-name", QStringLiteral("V1"));
        mUser.Fill(rSweep, "start", QStringLiteral("0"));
        mUser.Fill(rSweep, "stop", QStringLiteral("1"));
        mUser.Fill(rSweep, "number-of-points", QStringLiteral("11"));
        Picture(rSweep, QStringLiteral("dc-sweep"));
        CUser::Click(CWizardUser::Control(rSweep, "accept"));
    });
    CUser::Click(CWizardUser::Control(rWizard, "sweep-1"));
    CUser::Click(CWizardUser::Control(rWizard, "insert"));
    Picture(rWizard, QStringLiteral("dc"));
}

/// When the output has risen to half of the input, counted from the beginning.
void CTour::InsertMeasure(QWidget& rWizard)
{
    mUser.OpenPage(rWizard, QStringLiteral("Output"), QStringLiteral("Measure"));
    mUser.Press(QKeySequence(Qt::ALT | Qt::Key_Y));
    mUser.Type(QStringLiteral("Transient"));
    mUser.Fill(rWizard, "result-name", QStringLiteral("delay"));
    mUser.Fill(rWizard, "at-value", QStringLiteral("0"));
    mUser.Fill(rWizard, "target-signal", QStringLiteral("v(out)"));
    mUser.Fill(rWizard, "target-value", QStringLiteral("0.5"));
    CUser::Click(CWizardUser::Control(rWizard, "insert"));
    Picture(rWizard, QStringLiteral("measure"));
}

void CTour::VisitFindBar()
{
    mUser.Press(QKeySequence(Qt::CTRL | Qt::Key_Home));
    mUser.Press(QKeySequence::Find);
    mUser.Type(QStringLiteral(".temp"));
    CUser::Settle();
    Expect(mrWindow.Edit().textCursor().selectedText() == QStringLiteral(".temp"), "a find");
    Picture(mrWindow, QStringLiteral("find-bar"));
    mUser.Press(QKeySequence(Qt::Key_Escape));
}

void CTour::VisitFileDialogs()
{
    mUser.Meet([this](QWidget& rDialog) {
        Picture(rDialog, QStringLiteral("open"));
        mUser.Press(QKeySequence(Qt::Key_Escape));
    });
    mUser.Press(QKeySequence::Open);
    mUser.Meet([this](QWidget& rBox) {
        Picture(rBox, QStringLiteral("unsaved"));
        mUser.Press(QKeySequence(Qt::Key_Escape));
    });
    mUser.Press(QKeySequence::New);
    mUser.RethrowFailure();
    Expect(mUser.HasMetAll(), "a dialog for a file, and a question about unsaved work");
}

void CTour::VisitAbout()
{
    mUser.Meet([this](QWidget&) {
        mUser.Meet([this](QWidget& rBox) {
            Picture(rBox, QStringLiteral("about"));
            mUser.Press(QKeySequence(Qt::Key_Escape));
        });
        mUser.Press(QKeySequence(Qt::Key_A));
    });
    mUser.Press(QKeySequence(Qt::ALT | Qt::Key_H));
    CUser::Settle();
    mUser.RethrowFailure();
    Expect(mUser.HasMetAll(), "Help > About");
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

void CTour::Picture(QWidget& rWindow, const QString& rsName, QWidget* pInFront)
{
    CUser::Settle();
    QPixmap picture = rWindow.grab();
    if (pInFront) {
        QPainter painter(&picture);
        painter.drawPixmap(rWindow.mapFromGlobal(pInFront->mapToGlobal(QPoint())),
                           pInFront->grab());
    }
    const QString sName = QStringLiteral("%1/%2-%3.png")
                              .arg(mFiles.sFolder)
                              .arg(++mnPictures, 2, 10, QLatin1Char('0'))
                              .arg(rsName);
    Expect(picture.save(sName), "a picture is written");
}

} // namespace quorvawiz::host
