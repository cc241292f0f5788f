#include "qt/Player.h"
#include "qt/Visits.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFont>
#include <QPalette>
#include <QPixmap>
#include <QProcess>
#include <QTextStream>
#include <QWidget>
#include <string>

// Takes a picture of every window, to be looked at: `qt-pictures FOLDER` makes one folder per
// palette and scale in FOLDER. Each of these is a process of its own, because the scale is Qt's for
// the whole of one.

namespace
{
QString sFolder;
int snPictures = 0;

void TakePicture(const std::string& rsName, QWidget& rWindow)
{
    const QString sName =
        QString::fromStdString(rsName).toLower().replace(QLatin1Char(' '), QLatin1Char('-'));
    const QString sNumber = QString::number(++snPictures).rightJustified(3, QLatin1Char('0'));
    rWindow.grab().save(
        QDir(sFolder).filePath(sNumber + QLatin1Char('-') + sName + QLatin1String(".png")));
}

QPalette DarkPalette()
{
    QPalette palette(QColor(53, 53, 53), QColor(42, 42, 42));
    palette.setColor(QPalette::Base, QColor(30, 31, 34));
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    return palette;
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
    gVisitWizard(TakePicture);
    gVisitSinglePages(TakePicture);
    gVisitSweep(TakePicture);
    gVisitSample(TakePicture);
    gVisitBoxes(TakePicture);
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
