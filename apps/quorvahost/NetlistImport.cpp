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

/// Removes what a text may begin with.
bool CutPrefix(QString& rsText, QLatin1StringView sPrefix)
{
    const bool bHas = rsText.startsWith(sPrefix);
    if (bHas)
        rsText.remove(0, sPrefix.size());
    return bHas;
}

/// As much of what the child has said as a box can show.
QString TextOf(const QStringList& rWords)
{
    constexpr qsizetype kMostLines = 20;
    QStringList lines = rWords.mid(0, kMostLines);
    if (rWords.size() > kMostLines)
        lines.append(QStringLiteral("\u2026"));
    return lines.join(QLatin1Char('\n')).trimmed();
}

/// A stage of the import, for the user.
QString LabelOf(const QString& rsStage)
{
    if (rsStage == QLatin1String("netlist"))
        return Say("The netlist is read.");
    if (rsStage == QLatin1String("simulation"))
        return Say("ngspice simulates.");
    if (rsStage == QLatin1String("classes"))
        return Say("ngspice tells its models.");
    if (rsStage == QLatin1String("store") || rsStage == QLatin1String("file"))
        return Say("The params file is made.");
    return {};
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
    // The child decides when it is over, not a bar at its end.
    mpProgress->setAutoClose(false);
    mpProgress->setAutoReset(false);
    mpProgress->setWindowModality(Qt::ApplicationModal);
    const auto close = [this] {
        if (mpProgress)
            mpProgress->hide();
    };
    connect(&mChild, &QProcess::finished, this, close);
    connect(&mChild, &QProcess::errorOccurred, this, close);
    connect(&mChild, &QProcess::readyReadStandardError, this, [this] { Listen(); });

    mChild.setStandardInputFile(QProcess::nullDevice());
    mChild.setStandardOutputFile(QProcess::nullDevice());
    mChild.setWorkingDirectory(QFileInfo(rsNetlist).absolutePath());
    mChild.start(msProgram, {QStringLiteral("import"), rsNetlist, QStringLiteral("-o"), rsParams,
                             QStringLiteral("--progress")});
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

void CNetlistImport::Listen()
{
    mHeard += mChild.readAllStandardError();
    for (qsizetype nEnd = 0; (nEnd = mHeard.indexOf('\n')) >= 0; mHeard.remove(0, nEnd + 1)) {
        QString sLine = QString::fromLocal8Bit(mHeard.left(nEnd));
        CutPrefix(sLine, QLatin1StringView("quorvawiz: "));
        if (CutPrefix(sLine, QLatin1StringView("progress: ")))
            ShowStage(sLine);
        else
            mWords.append(sLine);
    }
}

/// @param rsStage "classes 3/57", or without numbers
void CNetlistImport::ShowStage(const QString& rsStage)
{
    const QString sLabel = LabelOf(rsStage.section(QLatin1Char(' '), 0, 0));
    if (!mpProgress || !mpProgress->isVisible() || sLabel.isEmpty())
        return;
    const QString sNumbers = rsStage.section(QLatin1Char(' '), 1, 1);
    const int nAll = sNumbers.section(QLatin1Char('/'), 1, 1).toInt();
    mpProgress->setLabelText(sLabel);
    mpProgress->setMaximum(nAll);
    mpProgress->setValue(sNumbers.section(QLatin1Char('/'), 0, 0).toInt());
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
    Listen();
    if (!mHeard.isEmpty())
        mWords.append(QString::fromLocal8Bit(mHeard));
    const QString sSaid = TextOf(mWords);
    if (mChild.exitStatus() == QProcess::NormalExit && mChild.exitCode() == 0)
        return {EImportEnd::Done, sSaid};
    return {EImportEnd::Failed, sSaid.isEmpty() ? Say("The import has failed.") : sSaid};
}

} // namespace quorvawiz::host
