#include "quorvahost/tour/BrowserTour.h"

#include "quorvahost/HostWindow.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QFileInfo>
#include <QKeySequence>
#include <QLineEdit>
#include <QMenu>
#include <QStandardPaths>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <utility>

namespace quorvawiz::host
{

CBrowserTour::CBrowserTour(CHostWindow& rWindow, CWizardUser& rUser, TPicture picture)
    : mrWindow(rWindow), mrUser(rUser), mPicture(std::move(picture))
{
}

bool CBrowserTour::HasSimulator()
{
    return !QStandardPaths::findExecutable(QStringLiteral("ngspice")).isEmpty();
}

void CBrowserTour::VisitFile(const QString& rsParams, const QString& rsCsv)
{
    OpenParams(rsParams);
    mrUser.Meet([this, rsCsv](QWidget& rList) { VisitDevices(rList, rsCsv); });
    Choose(Qt::Key_D, true);
    mrUser.Meet([this](QWidget& rList) { VisitLibraryModels(rList); });
    Choose(Qt::Key_L);
    mrUser.Meet([this](QWidget& rList) { VisitSimulatorModels(rList); });
    Choose(Qt::Key_S);
    ExpectMetAll("the three lists of the browser");
    if (!QFileInfo::exists(rsCsv))
        throw CUserError("expected: an exported file");
}

void CBrowserTour::VisitNetlist(const QString& rsNetlist)
{
    if (!mrWindow.OpenFile(rsNetlist))
        throw CUserError("expected: " + rsNetlist.toStdString() + " opens");
    const QString sName = QFileInfo(rsNetlist).completeBaseName();
    mrUser.Meet([](QWidget& rProgress) { CUser::AwaitEnd(rProgress); });
    mrUser.Meet([this, sName](QWidget& rList) {
        mPicture(rList, QStringLiteral("imported-%1").arg(sName), nullptr);
        mrUser.Press(QKeySequence(Qt::Key_End));
        mrUser.Meet([this, sName](QWidget&) {
            VisitSheet(QStringLiteral("imported-%1-device").arg(sName));
        });
        mrUser.Press(QKeySequence(Qt::Key_Return));
        Leave();
    });
    Choose(Qt::Key_I);
    mrUser.Meet([this, sName](QWidget& rList) {
        mPicture(rList, QStringLiteral("imported-%1-models").arg(sName), nullptr);
        if (!std::exchange(mbClassesVisited, true))
            for (const char* const pClass : {"BJT", "BSIM4", "Diode"})
                VisitClass(rList, QString::fromLatin1(pClass));
        Leave();
    });
    Choose(Qt::Key_S);
    ExpectMetAll("the import of a netlist");
}

/// Opens the menu by its letter and chooses an entry by its own.
void CBrowserTour::Choose(Qt::Key key, bool bPicture)
{
    mrUser.MeetFirst([this, key, bPicture](QWidget& rMenu) {
        if (bPicture)
            mPicture(mrWindow, QStringLiteral("parameters-menu"), &rMenu);
        mrUser.Press(QKeySequence(key));
    });
    mrUser.Press(QKeySequence(Qt::ALT | Qt::Key_P));
    CUser::Settle();
    mrUser.RethrowFailure();
}

void CBrowserTour::OpenParams(const QString& rsParams)
{
    mrUser.Meet([this, rsParams](QWidget& rDialog) { AnswerFileDialog(rDialog, rsParams); });
    Choose(Qt::Key_O);
    ExpectMetAll("a dialog for a params file");
}

void CBrowserTour::VisitDevices(QWidget& rList, const QString& rsCsv)
{
    for (int i = 0; i < 3; ++i)
        mrUser.Press(QKeySequence(Qt::Key_Down));
    mPicture(rList, QStringLiteral("devices"), nullptr);
    mrUser.Meet([this](QWidget&) { VisitSheet(QStringLiteral("device")); });
    mrUser.Press(QKeySequence(Qt::ALT | Qt::Key_D));
    mrUser.Meet([this, rsCsv](QWidget& rDialog) {
        mPicture(rDialog, QStringLiteral("export"), nullptr);
        AnswerFileDialog(rDialog, rsCsv);
    });
    mrUser.Press(QKeySequence(Qt::ALT | Qt::Key_E));
    Leave();
}

void CBrowserTour::VisitLibraryModels(QWidget& rList)
{
    mrUser.Press(QKeySequence(Qt::Key_Down));
    mPicture(rList, QStringLiteral("library-models"), nullptr);
    mrUser.Meet([this](QWidget& rModel) {
        mPicture(rModel, QStringLiteral("library-model"), nullptr);
        Leave();
    });
    mrUser.Press(QKeySequence(Qt::Key_Return));
    mrUser.Meet([this](QWidget&) { Leave(); });
    mrUser.Press(QKeySequence(Qt::ALT | Qt::Key_Q));
    Leave();
}

void CBrowserTour::VisitSimulatorModels(QWidget& rList)
{
    mPicture(rList, QStringLiteral("simulator-models"), nullptr);
    mrUser.Press(QKeySequence(Qt::Key_End));
    mrUser.Meet([this](QWidget&) { VisitSheet(QStringLiteral("class")); });
    mrUser.Press(QKeySequence(Qt::Key_Return));
    Leave();
}

/// Walks down a list to a class, and looks at its pages.
void CBrowserTour::VisitClass(QWidget& rList, const QString& rsName)
{
    const auto& rTable = dynamic_cast<QTableView&>(CWizardUser::Control(rList, "table"));
    const QAbstractItemModel& rRows = *rTable.model();
    const auto isThere = [&] { return rTable.currentIndex().siblingAtColumn(0).data() == rsName; };
    mrUser.Press(QKeySequence(Qt::Key_Home));
    for (int i = 0; i < rRows.rowCount() && !isThere(); ++i)
        mrUser.Press(QKeySequence(Qt::Key_Down));
    if (!isThere())
        throw CUserError("expected: the class " + rsName.toStdString());
    mrUser.Meet(
        [this, rsName](QWidget&) { VisitSheet(QStringLiteral("simulator-") + rsName.toLower()); });
    mrUser.Press(QKeySequence(Qt::Key_Return));
}

/// Looks at each page of the sheet in front, and leaves it.
void CBrowserTour::VisitSheet(const QString& rsName)
{
    QWidget& rSheet = *QApplication::activeModalWidget();
    auto& rTabs = dynamic_cast<QTabWidget&>(CWizardUser::Control(rSheet, "tabs"));
    for (int i = 0; i < rTabs.count(); ++i) {
        CUser::ClickAt(*rTabs.tabBar(), rTabs.tabBar()->tabRect(i).center());
        mPicture(rSheet, rsName + QLatin1Char('-') + rTabs.tabText(i).toLower(), nullptr);
    }
    Leave();
}

void CBrowserTour::AnswerFileDialog(QWidget& rDialog, const QString& rsFile)
{
    auto* const pName = rDialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (!pName)
        throw CUserError("expected: a file dialog");
    pName->setText(rsFile);
    mrUser.Press(QKeySequence(Qt::Key_Return));
}

void CBrowserTour::ExpectMetAll(const char* pWhat)
{
    mrUser.RethrowFailure();
    if (!mrUser.HasMetAll())
        throw CUserError(std::string("expected: ") + pWhat);
}

} // namespace quorvawiz::host
