#pragma once

#include "host/FileFolder.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QString>

namespace quorvawiz::host
{

/// Writes a params file of a plausible circuit, as the command line's `make-example` does.
/// @return its path
inline QString gMakeParams(const CFileFolder& rFolder, const char* pName, int nDevices)
{
    const QString sPath = rFolder.Path(pName);
    const QDir programs(QCoreApplication::applicationDirPath());
    EXPECT_EQ(QProcess::execute(programs.filePath(QStringLiteral("quorvawiz")),
                                {QStringLiteral("make-example"), sPath, QStringLiteral("--devices"),
                                 QString::number(nDevices)}),
              0);
    return sPath;
}

} // namespace quorvawiz::host
