#include "platform/headless/TreePath.h"
#include "platform/ui/TreeCtrl.h"
#include "qt/Player.h"
#include "qt/Visits.h"
#include "support/WizardRun.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QImage>
#include <QList>
#include <QMap>
#include <QPalette>
#include <QPixmap>
#include <QProcess>
#include <QRegularExpression>
#include <QTextStream>
#include <QWidget>
#include <algorithm>
#include <array>
#include <string>

// Takes a picture of every window, to be looked at: `qt-pictures FOLDER` makes one folder per
// palette and scale in FOLDER. Each of these is a process of its own, because the scale is Qt's for
// the whole of one. `qt-pictures docs/images/pages pages` and
// `qt-pictures docs/images/browser browser` take those of the user's documents.

namespace
{
QString sFolder;
int snPictures = 0;

QString FileName(const std::string& rsName)
{
    static const QRegularExpression sOther(QStringLiteral("[ /]"));
    return QString::fromStdString(rsName).toLower().replace(sOther, QStringLiteral("-"));
}

void TakePicture(const std::string& rsName, QWidget& rWindow)
{
    const QString sName = FileName(rsName);
    const QString sNumber = QString::number(++snPictures).rightJustified(3, QLatin1Char('0'));
    rWindow.grab().save(
        QDir(sFolder).filePath(sNumber + QLatin1Char('-') + sName + QLatin1String(".png")));
}

/// The colours of a picture, as exactly as a table of 256 can hold them.
QList<QRgb> ColoursOf(const QImage& rPicture)
{
    QMap<QRgb, int> pixels; // of each colour, how many
    for (int y = 0; y < rPicture.height(); ++y)
        for (int x = 0; x < rPicture.width(); ++x)
            ++pixels[rPicture.pixel(x, y)];
    for (unsigned nDropped = 0;; ++nDropped) {
        const QRgb nMask = 0x010101U * (0xFFU << nDropped & 0xFFU);
        QMap<QRgb, QRgb> colours; // of those that look alike, the most frequent
        for (auto it = pixels.cbegin(); it != pixels.cend(); ++it)
            if (it.value() > pixels.value(colours.value(it.key() & nMask)))
                colours[it.key() & nMask] = it.key();
        if (colours.size() <= 256)
            return colours.values();
    }
}

/// Small, for it is kept: few colours, packed as tightly as can be.
void SaveSmall(QWidget& rWindow, const QString& rsFile)
{
    ++snPictures;
    const QImage picture = rWindow.grab().toImage();
    picture.convertToFormat(QImage::Format_Indexed8, ColoursOf(picture)).save(rsFile, "PNG", 0);
}

/// A picture for the user's documents: a window of the browser, as it opens.
void TakeBrowserPicture(const std::string& rsName, QWidget& rWindow)
{
    const QString sName = QString::fromStdString(rsName);
    const bool bOpens =
        std::ranges::none_of(std::array{"-wide", "-device", "-state"}, [&](const char* pOther) {
            return sName.endsWith(QLatin1String(pOther));
        });
    if (bOpens)
        SaveSmall(rWindow, QDir(sFolder).filePath(FileName(rsName) + QLatin1String(".png")));
}

/// A picture for the user's documents: a page as it opens, and what a choice on it shows if there
/// is a picture of that already.
void TakePagePicture(const std::string& rsName, QWidget& rWindow)
{
    const CTreeCtrl& rTree = gOpenWizard().GetTree();
    const std::string sPath = gTreePathOf(rTree, rTree.GetSelectedItem());
    const QString sFile = QDir(sFolder).filePath(FileName(rsName) + QLatin1String(".png"));
    if (sPath.find('/') == std::string::npos || (rsName != sPath && !QFile::exists(sFile)))
        return;
    SaveSmall(rWindow, sFile);
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
    if (rOptions.contains(QStringLiteral("pages"))) {
        gVisitWizard(TakePagePicture);
    } else if (rOptions.contains(QStringLiteral("browser"))) {
        gVisitBrowser(TakeBrowserPicture);
    } else {
        gVisitWizard(TakePicture);
        gVisitSinglePages(TakePicture);
        gVisitSweep(TakePicture);
        gVisitBrowser(TakePicture);
        gVisitSample(TakePicture);
        gVisitBoxes(TakePicture);
    }
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
        QTextStream(stderr) << "usage: qt-pictures FOLDER [dark | larger | pages | browser]\n";
        return 2;
    }
    sFolder = arguments[1];
    return arguments.size() == 2 ? StartAll(QApplication::applicationFilePath(), sFolder)
                                 : TakeAll(arguments.mid(2));
}
