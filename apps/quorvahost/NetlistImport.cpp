#include "quorvahost/NetlistImport.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProgressDialog>
#include <QStringList>
#include <utility>

namespace quorvawiz::host
{
namespace
{
QString Say(const char* pEnglish)
{
    return QCoreApplication::translate("NetlistImport", pEnglish);
}

/// How long a child that was asked to end may take, in milliseconds; it ends the simulator first.
constexpr int kLongestEnd = 5000;

/// What the child has said, without its name in front, as much of it as a box can show.
QString TextOf(const QByteArray& rBytes)
{
    constexpr qsizetype kMostLines = 20;
    const QString sPrefix = QStringLiteral("quorvawiz: ");
    QStringList lines = QString::fromLocal8Bit(rBytes).trimmed().split(QLatin1Char('\n'));
    if (lines.size() > kMostLines)
        lines = lines.mid(0, kMostLines) + QStringList(QStringLiteral("\u2026"));
    for (QString& rsLine : lines)
        if (rsLine.startsWith(sPrefix))
            rsLine.remove(0, sPrefix.size());
    return lines.join(QLatin1Char('\n'));
}
} // namespace

QString gCommandLineProgram()
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("quorvawiz"));
}

CNetlistImport::CNetlistImport(QString sProgram) : msProgram(std::move(sProgram)) {}

CNetlistImport::~CNetlistImport()
{
    EndChild();
}

TImportOutcome CNetlistImport::Run(QWidget* pParent, const QString& rsNetlist,
                                   const QString& rsParams)
{
    if (!QFileInfo(msProgram).isExecutable())
        return {EImportEnd::Failed, Say("The program that imports isn't there: \"%1\".")
                                        .arg(QDir::toNativeSeparators(msProgram))};
    // Without a maximum it shows that something is under way, and not how much of it.
    mpProgress =
        new QProgressDialog(Say("ngspice runs on \"%1\".").arg(QFileInfo(rsNetlist).fileName()),
                            Say("Cancel"), 0, 0, pParent);
    mpProgress->setWindowTitle(Say("Import from ngspice"));
    mpProgress->setWindowModality(Qt::ApplicationModal);
    const auto close = [this] {
        if (mpProgress)
            mpProgress->hide();
    };
    connect(&mChild, &QProcess::finished, this, close);
    connect(&mChild, &QProcess::errorOccurred, this, close);

    mChild.setStandardInputFile(QProcess::nullDevice());
    mChild.setStandardOutputFile(QProcess::nullDevice());
    mChild.setWorkingDirectory(QFileInfo(rsNetlist).absolutePath());
    mChild.start(msProgram, {QStringLiteral("import"), rsNetlist, QStringLiteral("-o"), rsParams});
    if (mChild.state() != QProcess::NotRunning)
        mpProgress->exec();
    const bool bCancelled = mChild.state() != QProcess::NotRunning;
    EndChild();
    delete mpProgress;
    return bCancelled ? TImportOutcome{EImportEnd::Cancelled, {}} : Outcome();
}

void CNetlistImport::Cancel()
{
    if (mpProgress)
        mpProgress->hide();
}

void CNetlistImport::EndChild()
{
    if (mChild.state() == QProcess::NotRunning)
        return;
    mChild.terminate();
    if (!mChild.waitForFinished(kLongestEnd)) {
        mChild.kill();
        mChild.waitForFinished();
    }
}

TImportOutcome CNetlistImport::Outcome()
{
    if (mChild.error() == QProcess::FailedToStart)
        return {EImportEnd::Failed,
                Say("Can't start \"%1\": %2.")
                    .arg(QDir::toNativeSeparators(msProgram), mChild.errorString())};
    const QString sSaid = TextOf(mChild.readAllStandardError());
    if (mChild.exitStatus() == QProcess::NormalExit && mChild.exitCode() == 0)
        return {EImportEnd::Done, sSaid};
    return {EImportEnd::Failed, sSaid.isEmpty() ? Say("The import has failed.") : sSaid};
}

} // namespace quorvawiz::host
