#include "quorvahost/CommandSinks.h"

#include "host/FileFolder.h"
#include "host/PrintQt.h"
#include "platform/qt/QtDesktop.h"
#include "quorvahost/NetlistFile.h"
#include "quorvahost/WizardAlone.h"
#include "quorvahost/tour/WizardUser.h"
#include "support/Unprivileged.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QKeySequence>
#include <QMessageBox>
#include <QWindow>
#include <csignal>
#include <functional>
#include <vector>

namespace quorvawiz::host
{
namespace
{
using ::testing::HasSubstr;

std::string ErrorOf(const std::function<void()>& rDo)
{
    try {
        rDo();
    } catch (const CSinkError& rError) {
        return rError.what();
    }
    return "no error";
}

TEST(OutputSink, PrintsEachCommandAtOnceWithLineFeeds)
{
    const CFileFolder folder;
    const QString sPath = folder.Path("out");
    std::FILE* const pStream = std::fopen(sPath.toLocal8Bit(), "w");
    ASSERT_NE(pStream, nullptr);
    COutputSink sink(pStream);
    sink.InsertCommand(".temp 0");
    EXPECT_EQ(CFileFolder::Read(sPath), ".temp 0\n");
    sink.InsertCommand(".x 1\r\n+ 2");
    EXPECT_EQ(CFileFolder::Read(sPath), ".temp 0\n.x 1\n+ 2\n");
    std::fclose(pStream);
}

TEST(OutputSink, SaysWhyItCanNotPrint)
{
    std::FILE* const pFull = std::fopen("/dev/full", "w");
    ASSERT_NE(pFull, nullptr);
    COutputSink sink(pFull);
    EXPECT_EQ(ErrorOf([&sink] { sink.InsertCommand(".op"); }),
              "can't write to standard output: No space left on device");
    std::fclose(pFull);

    const auto before = std::signal(SIGPIPE, SIG_IGN);
    int ends[2] = {};
    ASSERT_EQ(::pipe(ends), 0);
    ASSERT_EQ(::close(ends[0]), 0); // nobody reads
    std::FILE* const pPipe = ::fdopen(ends[1], "w");
    COutputSink toNobody(pPipe);
    EXPECT_EQ(ErrorOf([&toNobody] { toNobody.InsertCommand(".op"); }),
              "can't write to standard output: Broken pipe");
    std::fclose(pPipe);
    std::signal(SIGPIPE, before);
}

struct TFileCase {
    const char* pName;
    const char* pBefore; // null: no file
    QByteArray after;
};

TEST(FileSink, AddsLinesWithTheFilesOwnLineEnds)
{
    const std::vector<TFileCase> cases{
        {"no file", nullptr, ".x 1\n+ 2\n.op\n"},
        {"an empty file", "", ".x 1\n+ 2\n.op\n"},
        {"LF", "a\n", "a\n.x 1\n+ 2\n.op\n"},
        {"CR LF", "a\r\n", "a\r\n.x 1\r\n+ 2\r\n.op\r\n"},
        {"an open last line", "a\nb", "a\nb\n.x 1\n+ 2\n.op\n"},
        {"an open last line, CR LF", "a\r\nb", "a\r\nb\r\n.x 1\r\n+ 2\r\n.op\r\n"},
        {"a byte order mark",
         "\xEF\xBB\xBF"
         "a\n",
         "\xEF\xBB\xBF"
         "a\n.x 1\n+ 2\n.op\n"},
        {"nothing but a byte order mark", "\xEF\xBB\xBF",
         "\xEF\xBB\xBF"
         ".x 1\n+ 2\n.op\n"},
    };
    for (const TFileCase& rCase : cases) {
        SCOPED_TRACE(rCase.pName);
        const CFileFolder folder;
        const QString sPath = folder.Path("a.cir");
        if (rCase.pBefore)
            folder.Write("a.cir", rCase.pBefore);
        CFileSink sink(sPath);
        EXPECT_EQ(QFileInfo::exists(sPath), rCase.pBefore != nullptr);
        sink.InsertCommand(".x 1\r\n+ 2");
        sink.InsertCommand(".op");
        EXPECT_EQ(CFileFolder::Read(sPath), rCase.after);
    }
}

TEST(FileSink, FollowsTheLineEndsOfWhoeverWroteLast)
{
    const CFileFolder folder;
    const QString sPath = folder.Path("a.cir");
    CFileSink sink(sPath);
    folder.Write("a.cir", "* another program\r\n");
    sink.InsertCommand(".op");
    EXPECT_EQ(CFileFolder::Read(sPath), "* another program\r\n.op\r\n");
}

TEST(FileSink, ReadsALargeFileOnce)
{
    const CFileFolder folder;
    const QString sPath = folder.Write("a.cir", "* a\n");
    CFileSink sink(sPath);
    // More than is ever read; a hole, no byte of it is on the disk.
    ASSERT_TRUE(QFile::resize(sPath, kLargestFile + 1));
    EXPECT_NO_THROW(sink.InsertCommand(".op"));
    EXPECT_EQ(QFileInfo(sPath).size(), kLargestFile + 1 + 5);
}

TEST(AnySink, TakesNoEmptyCommand)
{
    const CFileFolder folder;
    const QString sOutput = folder.Path("out");
    std::FILE* const pStream = std::fopen(sOutput.toLocal8Bit(), "w");
    ASSERT_NE(pStream, nullptr);
    COutputSink output(pStream);
    output.InsertCommand("");
    std::fclose(pStream);
    EXPECT_EQ(CFileFolder::Read(sOutput), "");
    CFileSink file(folder.Path("a.cir"));
    file.InsertCommand("");
    EXPECT_FALSE(QFileInfo::exists(folder.Path("a.cir")));
    CClipboardSink clipboard;
    clipboard.InsertCommand(".op");
    clipboard.InsertCommand("");
    EXPECT_EQ(QApplication::clipboard()->text(), ".op");
}

TEST(FileSink, SaysAtTheStartThatTheFileCanNotBeWritten)
{
    const CFileFolder folder;
    const auto errorOf = [](const QString& rsPath) {
        return ErrorOf([&rsPath] { const CFileSink sink(rsPath); });
    };
    EXPECT_THAT(errorOf(folder.Path()), HasSubstr("Is a directory"));
    EXPECT_THAT(errorOf(folder.Path("no/a.cir")), HasSubstr("No such file or directory"));
    folder.Write("file", "");
    EXPECT_THAT(errorOf(folder.Path("file/a.cir")), HasSubstr("Not a directory"));
    EXPECT_THAT(errorOf(folder.Path("file/b/a.cir")), HasSubstr("Not a directory"));
    EXPECT_THAT(errorOf(folder.Write("mixed.cir", "a\nb\r\n")), HasSubstr("mixed line ends"));
    const QString sReadOnly = folder.Write("readonly.cir", "a\n");
    ASSERT_EQ(::chmod(folder.Path().toLocal8Bit(), 0755), 0);
    ASSERT_EQ(::chmod(sReadOnly.toLocal8Bit(), 0444), 0);
    const CUnprivileged unprivileged;
    EXPECT_THAT(errorOf(sReadOnly), HasSubstr("Permission denied"));
}

TEST(FileSink, SaysThatTheFileHasBecomeUnwritable)
{
    const CFileFolder folder;
    const QString sPath = folder.Path("a.cir");
    CFileSink sink(sPath);
    ASSERT_EQ(::chmod(folder.Path().toLocal8Bit(), 0555), 0);
    {
        const CUnprivileged unprivileged;
        EXPECT_THAT(ErrorOf([&sink] { sink.InsertCommand(".op"); }),
                    HasSubstr("Permission denied"));
    }
    ASSERT_EQ(::chmod(folder.Path().toLocal8Bit(), 0755), 0);
    EXPECT_FALSE(QFileInfo::exists(sPath));
}

TEST(ClipboardSink, HoldsTheLatestCommand)
{
    CClipboardSink sink;
    sink.InsertCommand(".op");
    sink.InsertCommand(".x 1\r\n+ 2");
    EXPECT_EQ(QApplication::clipboard()->text(), ".x 1\n+ 2");
}

TEST(WizardAlone, AppendsWhatTheUserInserts)
{
    const CFileFolder folder;
    QtDesktop desktop(folder.Path("profile.ini"));
    const QString sPath = folder.Write("a.cir", "* a\r\n");
    CWizardUser user;
    user.Meet([&](QWidget& rWizard) {
        user.InsertTemperature(rWizard, "0 27 85");
        EXPECT_EQ(CFileFolder::Read(sPath), "* a\r\n.temp 0 27 85\r\n");
        user.Press(QKeySequence(Qt::Key_Escape));
    });
    EXPECT_EQ(gRunWizardAlone({EHostTask::Wizard, ECommandSink::File, sPath}), 0);
    EXPECT_NO_THROW(user.RethrowFailure());
}

TEST(WizardAlone, TellsOfACommandThatCanNotBeWrittenAndStaysOpen)
{
    const CFileFolder folder;
    QtDesktop desktop(folder.Path("profile.ini"));
    const QString sPath = folder.Path("a.cir");
    const std::string sMessage = "an't write to \"" + sPath.toStdString() + "\": Is a directory";
    CWizardUser user;
    user.Meet([&](QWidget& rWizard) {
        user.InsertTemperature(rWizard, "27");
        ASSERT_TRUE(QFile::remove(sPath));
        ASSERT_TRUE(QDir().mkdir(sPath));
        user.Meet([&](QWidget& rBox) {
            auto* const pBox = qobject_cast<QMessageBox*>(&rBox);
            ASSERT_NE(pBox, nullptr);
            EXPECT_EQ(pBox->text().toStdString(), 'C' + sMessage + '.');
            EXPECT_EQ(pBox->windowHandle()->transientParent(), rWizard.windowHandle());
            user.Press(QKeySequence(Qt::Key_Return));
        });
        user.Press(QKeySequence(Qt::ALT | Qt::Key_I));
        EXPECT_TRUE(user.HasMetAll());
        EXPECT_TRUE(rWizard.isVisible());
        ASSERT_TRUE(QDir().rmdir(sPath));
        user.Press(QKeySequence(Qt::ALT | Qt::Key_I));
        EXPECT_EQ(CFileFolder::Read(sPath), ".temp 27\n");
        user.Press(QKeySequence(Qt::Key_Escape));
    });
    testing::internal::CaptureStderr();
    EXPECT_EQ(gRunWizardAlone({EHostTask::Wizard, ECommandSink::File, sPath}), 1);
    EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("quorvahost: c" + sMessage));
    EXPECT_NO_THROW(user.RethrowFailure());
}

TEST(WizardAlone, DoesNotOpenForATargetThatCanNotTakeACommand)
{
    const CFileFolder folder;
    QtDesktop desktop(folder.Path("profile.ini"));
    testing::internal::CaptureStderr();
    EXPECT_EQ(gRunWizardAlone({EHostTask::Wizard, ECommandSink::File, folder.Path()}), 1);
    EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("Is a directory"));
}

TEST(WizardAlone, PrintsToStandardOutput)
{
    const CFileFolder folder;
    QtDesktop desktop(folder.Path("profile.ini"));
    CWizardUser user;
    user.Meet([&user](QWidget& rWizard) {
        user.InsertTemperature(rWizard, "27");
        user.Press(QKeySequence(Qt::Key_Escape));
    });
    testing::internal::CaptureStdout();
    EXPECT_EQ(gRunWizardAlone({EHostTask::Wizard, ECommandSink::Output, {}}), 0);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), ".temp 27\n");
    EXPECT_NO_THROW(user.RethrowFailure());
}
} // namespace
} // namespace quorvawiz::host
