#pragma once

#include <QString>
#include <QStringList>

namespace quorvawiz::host
{

/// How many files are remembered.
inline constexpr qsizetype kRecentFiles = 8;

/// Puts a file in front of a list of recent ones, once.
/// @param sPath an absolute path
QStringList gWithRecentFile(QStringList files, const QString& rsPath);

/// Menu texts for recent files: each is the shortest end of its path that no other one has, with a
/// mnemonic number in front and "&" doubled.
QStringList gRecentFileLabels(const QStringList& rFiles);

/// The recent files of the user's settings, latest first.
QStringList gLoadRecentFiles();

/// Keeps them in the user's settings.
void gSaveRecentFiles(const QStringList& rFiles);

} // namespace quorvawiz::host
