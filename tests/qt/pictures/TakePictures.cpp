#include "exports/Quorvawiz.h"
#include "platform/ui/Dialog.h"
#include "platform/ui/SampleDialog.h"
#include "platform/ui/TreeCtrl.h"
#include "qt/Player.h"
#include "support/WizardRun.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QProcess>
#include <QTextStream>
#include <utility>

// Takes a picture of every window, to be looked at: `qt-pictures FOLDER` makes one folder per
// palette and scale in FOLDER. Each of these is a process of its own, because the scale is Qt's for
// the whole of one.

namespace
{
QString sFolder;
int snPictures = 0;

void TakePicture(QWidget& rWindow, QString sName)
{
    sName = sName.toLower().replace(QLatin1Char(' '), QLatin1Char('-'));
    const QString sNumber = QString::number(++snPictures).rightJustified(3, QLatin1Char('0'));
    rWindow.grab().save(
        QDir(sFolder).filePath(sNumber + QLatin1Char('-') + sName + QLatin1String(".png")));
}

QPalette DarkPalette()
{
    QPalette palette(QColor(53, 53, 53), QColor(42, 42, 42));
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    return palette;
}

/// The nodes of the wizard's tree from top to bottom.
std::vector<HTREEITEM> NodesOf(const CTreeCtrl& rTree)
{
    std::vector<HTREEITEM> nodes;
    for (HTREEITEM h = rTree.GetRootItem(); h; h = rTree.GetNextSiblingItem(h)) {
        nodes.push_back(h);
        for (HTREEITEM c = rTree.GetChildItem(h); c; c = rTree.GetNextSiblingItem(c))
            nodes.push_back(c);
    }
    return nodes;
}

class CWizardTour
{
public:
    /// Two turns for each node: to select it, and to take the picture of what has come of that.
    CPlayer::TTurn NextTurn()
    {
        auto& rTree = const_cast<CTreeCtrl&>(gOpenWizard().GetTree());
        const auto nodes = NodesOf(rTree);
        if (mnNext == nodes.size())
            return std::exchange(mbDone, true) ? CPlayer::TTurn() : [] { gInput("press Escape"); };
        const HTREEITEM hNode = nodes[mnNext];
        if (!std::exchange(mbSelected, true))
            return [&rTree, hNode] { rTree.UserSelect(hNode); };
        mbSelected = false;
        ++mnNext;
        return [&rTree, hNode] {
            TakePicture(*gWidgetOf(gOpenWizard()),
                        QString::fromUtf8(rTree.GetItemText(hNode).GetString()));
        };
    }

private:
    std::size_t mnNext = 0;
    bool mbSelected = false;
    bool mbDone = false;
};

void TakeWizard()
{
    CWizardTour tour;
    CPlayer player;
    player.SetMore([&tour] { return tour.NextTurn(); });
    CRecordingTarget target;
    player.Play([&target] { quorvawiz::gInvokeSpiceCommandWizard(nullptr, &target); });
}

void TakeSample()
{
    CSampleDialog dialog;
    CPlayer player;
    player.Do({"type Text", "click again", "click level#1", "click shape", "pick 2",
               "click fruit@1", "branch places@A", "click cells@1"});
    player.Then("take", [&dialog] { TakePicture(*gWidgetOf(dialog), QStringLiteral("sample")); });
    player.Do({"press Escape"}).Play([&dialog] { dialog.DoModal(); });
}

void TakeBox(UINT nFlags, const char* pName)
{
    CPlayer player;
    player.Then("take", [pName] {
        TakePicture(*QApplication::activeModalWidget(), QString::fromUtf8(pName));
        gInput("press Return");
    });
    player.Play([nFlags] {
        gShowMessageBox({nullptr, "Missing temperature value.", "SPICE Command Wizard", nFlags});
    });
}

int TakeAll(const QStringList& rOptions)
{
    if (rOptions.contains(QStringLiteral("dark")))
        QApplication::setPalette(DarkPalette());
    if (rOptions.contains(QStringLiteral("larger"))) {
        QFont font = QApplication::font();
        font.setPointSizeF(font.pointSizeF() + 1);
        QApplication::setFont(font);
    }
    QDir().mkpath(sFolder);
    CTestDesktop desktop;
    TakeWizard();
    TakeSample();
    TakeBox(MB_OK | MB_ICONEXCLAMATION, "box");
    TakeBox(MB_YESNO | MB_ICONQUESTION, "question");
    QTextStream(stdout) << snPictures << " pictures in " << sFolder << '\n';
    return 0;
}

int StartAll(const QString& rsProgram, const QString& rsFolder)
{
    int nFailed = 0;
    for (const char* pScale : {"1", "1.5", "2"}) {
        for (const char* pPalette : {"light", "dark", "light-larger"}) {
            QProcess process;
            auto environment = QProcessEnvironment::systemEnvironment();
            environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QString::fromUtf8(pScale));
            process.setProcessEnvironment(environment);
            process.setProcessChannelMode(QProcess::ForwardedChannels);
            const QString sName =
                QStringLiteral("%1-%2").arg(QString::fromUtf8(pPalette), QString::fromUtf8(pScale));
            process.start(rsProgram, QStringList(QDir(rsFolder).filePath(sName)) +
                                         QString::fromUtf8(pPalette).split(QLatin1Char('-')));
            process.waitForFinished(-1);
            nFailed += process.exitCode() != 0;
        }
    }
    return nFailed;
}
} // namespace

int main(int nCount, char** pArguments)
{
    testing::InitGoogleTest(&nCount, pArguments);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(nCount, pArguments);
    QApplication::setStyle(QStringLiteral("Fusion"));
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 2) {
        QTextStream(stderr) << "usage: qt-pictures FOLDER\n";
        return 2;
    }
    sFolder = arguments[1];
    return arguments.size() == 2 ? StartAll(QApplication::applicationFilePath(), sFolder)
                                 : TakeAll(arguments.mid(2));
}
