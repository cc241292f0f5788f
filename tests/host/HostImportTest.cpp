#include "host/CloseRequest.h"
#include "host/ParameterFixture.h"
#include "quorvahost/NetlistImport.h"

#include <QFile>
#include <QFileInfo>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QStatusBar>
#include <QTest>

// The program that imports is a script of the test's own, which notes what it was called with.

namespace quorvawiz::host
{
namespace
{
constexpr int kDevices = 30;
constexpr int kLongestWait = 30'000; // in milliseconds; no good run waits that long

class HostImport : public CParameterFixture
{
protected:
    HostImport()
    {
        gMakeParams(mFolder, "example.params", kDevices);
        msNetlist = mFolder.Write("filter.cir", "title\nR1 a 0 1k\n.end\n");
        EXPECT_TRUE(mpWindow->OpenFile(msNetlist));
    }

    /// Writes the program. `rsBody` runs in the test's folder.
    void Program(const QByteArray& rsBody)
    {
        QFile file(mFolder.Write("importer", "#!/bin/sh\npwd >>folders\necho \"$@\" >>calls\n"
                                             "sim=$4\n" +
                                                 rsBody));
        EXPECT_TRUE(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        mpWindow->Parameters().SetImportProgram(file.fileName());
    }

    /// Meets the progress window, and stays until it has gone.
    void MeetProgress()
    {
        mUser.Meet([](QWidget& rProgress) {
            EXPECT_EQ(rProgress.windowTitle(), QStringLiteral("Import from ngspice"));
            CUser::AwaitEnd(rProgress);
        });
    }

    bool Exists(const char* pName) const { return QFileInfo::exists(mFolder.Path(pName)); }

    QString msNetlist;
};

const QByteArray kGood = "cp example.params \"$sim\"\n";

TEST_F(HostImport, TheProgramStandsBesideThisOne)
{
    EXPECT_TRUE(QFileInfo(gCommandLineProgram()).isExecutable())
        << gCommandLineProgram().toStdString();
}

TEST_F(HostImport, ShowsTheDevicesOfTheNetlist)
{
    Program(kGood);
    MeetProgress();
    MeetTable("Quorva Devices", kDevices);
    Choose(Qt::Key_I);
    EXPECT_EQ(ShownParams(), QStringLiteral("Parameters: filter.params"));
    EXPECT_THAT(CFileFolder::Read(mFolder.Path("calls")).toStdString(),
                testing::MatchesRegex("import " + msNetlist.toStdString() +
                                      " -o /.*/filter\\.params --progress\n"));
    EXPECT_EQ(CFileFolder::Read(mFolder.Path("folders")), mFolder.Path().toUtf8() + '\n');
    EXPECT_FALSE(Exists("filter.params")) << "nothing is left beside the netlist";
}

TEST_F(HostImport, ANetlistIsImportedAsItOpens)
{
    Program(kGood);
    MeetProgress();
    MeetTable("Quorva Devices", kDevices);
    mpWindow->OpenFileOnceShown(mFolder.Write("other.cir", "title\nR2 a 0 1k\n.end\n"), true);
    mpWindow->findChild<QPlainTextEdit*>()->viewport()->update();
    CUser::Settle();
    EXPECT_EQ(ShownParams(), QStringLiteral("Parameters: other.params"));
}

TEST_F(HostImport, UnsavedWorkIsSavedFirst)
{
    Program(kGood);
    mUser.Press(QKeySequence(Qt::CTRL | Qt::Key_End));
    mUser.Type(QStringLiteral("* more"));
    MeetBox("\"filter.cir\" has to be saved first.", QKeySequence(Qt::Key_Escape));
    Choose(Qt::Key_I);
    EXPECT_FALSE(Exists("calls"));

    MeetBox("\"filter.cir\" has to be saved first.");
    MeetProgress();
    MeetTable("Quorva Devices", kDevices);
    Choose(Qt::Key_I);
    EXPECT_TRUE(CFileFolder::Read(msNetlist).endsWith("* more"));
}

TEST_F(HostImport, RecalculatingImportsAgain)
{
    Program(kGood);
    MeetProgress();
    MeetTable("Quorva Devices", kDevices, QKeySequence(Qt::ALT | Qt::Key_R));
    MeetProgress();
    MeetTable("Quorva Devices", kDevices);
    Choose(Qt::Key_I);
    MeetProgress();
    mUser.Press(QKeySequence(Qt::Key_F5));
    EXPECT_EQ(CFileFolder::Read(mFolder.Path("calls")).count('\n'), 3);
}

TEST_F(HostImport, AnOpenedFileIsNotImportedAgain)
{
    Program(kGood);
    MeetProgress();
    MeetTable("Quorva Devices", kDevices);
    Choose(Qt::Key_I);
    ASSERT_TRUE(mpWindow->Parameters().Open(mFolder.Path("example.params")));
    mUser.Press(QKeySequence(Qt::Key_F5));
    EXPECT_EQ(CFileFolder::Read(mFolder.Path("calls")).count('\n'), 1);
}

TEST_F(HostImport, TheProgramsWordsAreTold)
{
    Program("echo 'quorvawiz: the simulator has failed' >&2\n"
            "echo 'unknown device type' >&2\nexit 1\n");
    MeetProgress();
    MeetBox("the simulator has failed\nunknown device type");
    Choose(Qt::Key_I);
    EXPECT_FALSE(Action("devices").isEnabled());
}

TEST_F(HostImport, TheStagesAreShown)
{
    Program("while [ ! -e go ]; do :; done\necho 'quorvawiz: progress: classes 3/57' >&2\n"
            "while [ ! -e seen ]; do :; done\necho 'progress: classes 57/57' >&2\n"
            "echo 'progress: file' >&2\nwhile [ ! -e over ]; do :; done\n" +
            kGood);
    mUser.Meet([this](QWidget& rProgress) {
        const auto& rBar = *rProgress.findChild<QProgressBar*>();
        const auto& rLabel = *rProgress.findChild<QLabel*>();
        EXPECT_EQ(rBar.maximum(), 0);
        EXPECT_EQ(rLabel.text(), QStringLiteral("ngspice runs on \"filter.cir\"."));
        mFolder.Write("go", "");
        EXPECT_TRUE(QTest::qWaitFor([&] { return rBar.maximum() > 0; }, kLongestWait));
        EXPECT_EQ(rBar.maximum(), 57);
        EXPECT_EQ(rBar.value(), 3);
        EXPECT_EQ(rLabel.text(), QStringLiteral("ngspice tells its models."));
        mFolder.Write("seen", "");
        EXPECT_TRUE(QTest::qWaitFor([&] { return rBar.maximum() == 0; }, kLongestWait));
        EXPECT_TRUE(rProgress.isVisible());
        EXPECT_EQ(rLabel.text(), QStringLiteral("The params file is made."));
        mFolder.Write("over", "");
        CUser::AwaitEnd(rProgress);
    });
    MeetTable("Quorva Devices", kDevices);
    Choose(Qt::Key_I);
    EXPECT_EQ(mpWindow->statusBar()->currentMessage(), QStringLiteral("Parameters read"))
        << "stages are no message";
}

TEST_F(HostImport, WhatASuccessSaysStandsInTheStatusBar)
{
    Program("echo 'quorvawiz: a .control block was left out' >&2\n" + kGood);
    MeetProgress();
    mUser.Meet([this](QWidget&) {
        EXPECT_EQ(mpWindow->statusBar()->currentMessage(),
                  QStringLiteral("a .control block was left out"));
        mUser.Press(QKeySequence(Qt::Key_Escape));
    });
    Choose(Qt::Key_I);
}

TEST_F(HostImport, AProgramThatSaysNothingOrIsNotThereIsToldOf)
{
    Program("exit 3\n");
    MeetProgress();
    MeetBox("The import has failed.");
    Choose(Qt::Key_I);

    Program("kill -9 $$\n");
    MeetProgress();
    MeetBox("The import has failed.");
    Choose(Qt::Key_I);

    Program("");
    MeetProgress();
    MeetBox("File not found"); // and it has written nothing
    Choose(Qt::Key_I);

    mpWindow->Parameters().SetImportProgram(mFolder.Path("nobody"));
    MeetBox("The program that imports isn't there: \"");
    Choose(Qt::Key_I);
    EXPECT_FALSE(Action("devices").isEnabled());
}

/// Begins, and says when it was asked to end.
const QByteArray kLong = "trap 'kill $!; echo >ended; exit 1' TERM\n"
                         "sleep 1000 &\necho >begun\nwait $!\n";

TEST_F(HostImport, CancelEndsTheProgram)
{
    Program(kLong);
    mUser.Meet([this](QWidget&) {
        EXPECT_TRUE(QTest::qWaitFor([this] { return Exists("begun"); }, kLongestWait));
        mUser.Press(QKeySequence(Qt::Key_Escape));
    });
    Choose(Qt::Key_I);
    EXPECT_TRUE(Exists("ended"));
    EXPECT_FALSE(Action("devices").isEnabled());
}

TEST_F(HostImport, ClosingTheHostEndsTheProgramFirst)
{
    Program(kLong);
    mUser.Meet([this](QWidget&) {
        EXPECT_TRUE(QTest::qWaitFor([this] { return Exists("begun"); }, kLongestWait));
        gRequestClose(*mpWindow);
    });
    Choose(Qt::Key_I);
    EXPECT_TRUE(Exists("ended"));
    EXPECT_FALSE(mpWindow->isVisible());
}

TEST_F(HostImport, DeletingTheHostEndsTheProgram)
{
    Program(kLong);
    mUser.Meet([this](QWidget&) {
        EXPECT_TRUE(QTest::qWaitFor([this] { return Exists("begun"); }, kLongestWait));
        mpWindow.reset();
    });
    mUser.Press(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_I));
    EXPECT_TRUE(Exists("ended"));
}

TEST_F(HostImport, ADeviceAtTheCursorIsLookedUpInLowerCase)
{
    gMakeParams(mFolder, "example.params", 300);
    Program(kGood);
    mpWindow->Edit().LoadText(QStringLiteral("title\nXPLL1 a pll\n.end\n"));
    mUser.Press(QKeySequence(Qt::Key_Down));
    MeetProgress();
    MeetTable("Quorva Devices", 300);
    Choose(Qt::Key_I);
    MeetTable("Quorva Devices (xpll1)", 100);
    Choose(Qt::Key_C);
}
} // namespace
} // namespace quorvawiz::host
