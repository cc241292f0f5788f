#include "quorvahost/RecentFiles.h"

#include <QSettings>

namespace quorvawiz::host
{
namespace
{
const QString kRecentKey = QStringLiteral("recent-files");

/// The last parts of a path.
QString EndOfPath(const QString& rsPath, qsizetype nParts)
{
    return rsPath.section(QLatin1Char('/'), static_cast<int>(-nParts), -1);
}

QString ShortestOwnEnd(const QStringList& rFiles, const QString& rsPath)
{
    const qsizetype nAll = rsPath.count(QLatin1Char('/')) + 1;
    for (qsizetype nParts = 1; nParts < nAll; ++nParts) {
        QString sEnd = EndOfPath(rsPath, nParts);
        qsizetype nSharers = 0;
        for (const QString& rsOther : rFiles)
            nSharers += EndOfPath(rsOther, nParts) == sEnd ? 1 : 0;
        if (nSharers == 1)
            return sEnd;
    }
    return rsPath;
}
} // namespace

QStringList gWithRecentFile(QStringList files, const QString& rsPath)
{
    files.removeAll(rsPath);
    files.prepend(rsPath);
    while (files.size() > kRecentFiles)
        files.removeLast();
    return files;
}

QStringList gRecentFileLabels(const QStringList& rFiles)
{
    QStringList labels;
    for (const QString& rsFile : rFiles) {
        QString sEnd = ShortestOwnEnd(rFiles, rsFile);
        sEnd.replace(QLatin1Char('&'), QStringLiteral("&&"));
        labels.append(QStringLiteral("&%1  %2").arg(labels.size() + 1).arg(sEnd));
    }
    return labels;
}

QStringList gLoadRecentFiles()
{
    return QSettings().value(kRecentKey).toStringList().mid(0, kRecentFiles);
}

void gSaveRecentFiles(const QStringList& rFiles)
{
    QSettings().setValue(kRecentKey, rFiles);
}

} // namespace quorvawiz::host
