#pragma once

#include <gtest/gtest.h>

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

/// A folder for a test's files, gone with it.
class CFileFolder
{
public:
    CFileFolder() { EXPECT_TRUE(mFolder.isValid()); }

    QString Path(const char* pName) const { return mFolder.filePath(QString::fromUtf8(pName)); }
    QString Path() const { return mFolder.path(); }

    /// Writes a file and returns its path.
    QString Write(const char* pName, const QByteArray& rBytes) const
    {
        QFile file(Path(pName));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(rBytes), rBytes.size());
        return file.fileName();
    }

    static QByteArray Read(const QString& rsPath)
    {
        QFile file(rsPath);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << rsPath.toStdString();
        return file.readAll();
    }

private:
    QTemporaryDir mFolder;
};
