#include "quorvahost/NetlistFile.h"

#include "host/FileFolder.h"
#include "host/PrintQt.h"
#include "support/Unprivileged.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFileInfo>

namespace quorvawiz::host
{
namespace
{
using ::testing::HasSubstr;

constexpr TTextForm kLf{ELineEnds::Lf, false};
constexpr TTextForm kBomCrLf{ELineEnds::CrLf, true};

std::string FaultOfReading(const QString& rsPath)
{
    const auto read = gReadNetlistFile(rsPath);
    const auto* const pFault = std::get_if<TFileFault>(&read);
    return pFault ? pFault->sMessage.toStdString() : "no fault";
}

std::string FaultOfWriting(const QString& rsPath, const QString& rsText = QStringLiteral("new"))
{
    const auto fault = gWriteNetlistFile(rsPath, rsText, kLf);
    return fault ? fault->sMessage.toStdString() : "no fault";
}

TEST(NetlistFile, KeepsTheBytesOfAFile)
{
    const CFileFolder folder;
    const QByteArray bytes("\xEF\xBB\xBF* caf\xC3\xA9\r\nR1 a b 1k\r\n");
    const QString sPath = folder.Write("a.cir", bytes);
    const auto read = gReadNetlistFile(sPath);
    const auto* const pFile = std::get_if<TNetlistFile>(&read);
    ASSERT_NE(pFile, nullptr);
    EXPECT_EQ(pFile->netlist.form, kBomCrLf);
    EXPECT_EQ(pFile->stamp, gStampOf(sPath));
    const QString sCopy = folder.Path("b.cir");
    EXPECT_EQ(gWriteNetlistFile(sCopy, pFile->netlist.sText, pFile->netlist.form), std::nullopt);
    EXPECT_EQ(CFileFolder::Read(sCopy), bytes);
}

TEST(NetlistFile, KeepsPermissionsAndLinks)
{
    const CFileFolder folder;
    const QString sPath = folder.Write("a.cir", "old");
    ASSERT_EQ(::chmod(sPath.toLocal8Bit(), 0640), 0);
    const QString sLink = folder.Path("link.cir");
    ASSERT_TRUE(QFile::link(sPath, sLink));

    EXPECT_EQ(FaultOfWriting(sLink), "no fault");
    EXPECT_EQ(CFileFolder::Read(sPath), "new");
    EXPECT_TRUE(QFileInfo(sLink).isSymLink());
    struct stat status {
    };
    ASSERT_EQ(::stat(sPath.toLocal8Bit(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0640U);
    EXPECT_EQ(QDir(folder.Path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

TEST(NetlistFile, WhatCanNotBeReadSaysWhy)
{
    const CFileFolder folder;
    EXPECT_EQ(FaultOfReading(folder.Path("gone.cir")), "can't open \"" +
                                                           folder.Path("gone.cir").toStdString() +
                                                           "\": No such file or directory");
    EXPECT_EQ(FaultOfReading(folder.Path()),
              "can't open \"" + folder.Path().toStdString() + "\": Is a directory");
    EXPECT_THAT(FaultOfReading(QStringLiteral("/dev/zero")), HasSubstr("isn't a regular file"));
    EXPECT_THAT(FaultOfReading(folder.Write("mixed.cir", "a\nb\r\n")),
                HasSubstr("mixed.cir\": line 2, byte 2: mixed line ends"));

    const QString sSecret = folder.Write("secret.cir", "x");
    ASSERT_EQ(::chmod(folder.Path().toLocal8Bit(), 0755), 0);
    ASSERT_EQ(::chmod(sSecret.toLocal8Bit(), 0), 0);
    const CUnprivileged unprivileged;
    EXPECT_THAT(FaultOfReading(sSecret), HasSubstr("Permission denied"));
}

TEST(NetlistFile, TooLargeAFileIsNotRead)
{
    const CFileFolder folder;
    const QString sPath = folder.Write("large.cir", "x");
    ASSERT_TRUE(QFile::resize(sPath, kLargestFile + 1)); // a hole: no byte of it is on the disk
    EXPECT_THAT(FaultOfReading(sPath), HasSubstr("it has more than 512 MB"));
}

TEST(NetlistFile, WhatCanNotBeWrittenSaysWhyAndStaysAsItWas)
{
    const CFileFolder folder;
    EXPECT_THAT(FaultOfWriting(folder.Path()), HasSubstr("Is a directory"));
    EXPECT_THAT(FaultOfWriting(folder.Path("no/such/folder.cir")),
                HasSubstr("No such file or directory"));
    EXPECT_THAT(FaultOfWriting(QStringLiteral("/dev/null")), HasSubstr("isn't a regular file"));
    EXPECT_THAT(FaultOfWriting(folder.Path("half.cir"), QString(QChar(0xD800))),
                HasSubstr("half of a character"));
    EXPECT_FALSE(QFileInfo::exists(folder.Path("half.cir")));
}

TEST(NetlistFile, AReadOnlyFolderKeepsItsFile)
{
    const CFileFolder folder;
    const QString sPath = folder.Write("a.cir", "old");
    ASSERT_EQ(::chmod(sPath.toLocal8Bit(), 0666), 0);
    ASSERT_EQ(::chmod(folder.Path().toLocal8Bit(), 0555), 0);
    {
        const CUnprivileged unprivileged;
        EXPECT_THAT(FaultOfWriting(sPath), HasSubstr("Permission denied"));
        EXPECT_THAT(FaultOfWriting(folder.Path("new.cir")), HasSubstr("Permission denied"));
    }
    ASSERT_EQ(::chmod(folder.Path().toLocal8Bit(), 0755), 0);
    EXPECT_EQ(CFileFolder::Read(sPath), "old");
    EXPECT_EQ(QDir(folder.Path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

TEST(NetlistFile, AStampTellsOfEveryChange)
{
    const CFileFolder folder;
    const QString sPath = folder.Path("a.cir");
    EXPECT_FALSE(gStampOf(sPath).bExists);
    folder.Write("a.cir", "one");
    const TFileStamp stamp = gStampOf(sPath);
    EXPECT_TRUE(stamp.bExists);
    folder.Write("a.cir", "more");
    EXPECT_NE(gStampOf(sPath), stamp);
}
} // namespace
} // namespace quorvawiz::host
