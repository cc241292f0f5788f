#include "host/FileFolder.h"
#include "host/PrintQt.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <string>

// ./run.sh in a tree of its own whose build does nothing and whose programs say how they were
// started.

namespace quorvawiz::host
{
namespace
{
using ::testing::HasSubstr;

class RunScript : public testing::Test
{
protected:
    RunScript()
    {
        for (const char* const pFolder :
             {"tree/examples", "tree/scripts", "tree/build/dev/bin", "bin", "tmp", "else"})
            EXPECT_TRUE(QDir(mFolder.Path()).mkpath(QString::fromLatin1(pFolder)));
        EXPECT_TRUE(QFile::copy(QStringLiteral(QUORVAWIZ_SOURCE_DIR "/run.sh"),
                                mFolder.Path("tree/run.sh")));
        mFolder.Write("tree/examples/rc-filter.cir", "example\n");
        mFolder.Write("else/rc-filter.cir", "another\n");
        Program("tree/scripts/setup", "");
        Program("bin/cmake", "");
        Program("tree/build/dev/bin/quorvawiz", "echo \"$@\" >\"$2\"\n");
        Program("tree/build/dev/bin/quorvahost", "echo editor; cat \"$1\"\n");
        Program("tree/build/dev/bin/quorvahost-tour",
                "echo tour; cat \"$1\" \"$3\"; echo .op >>\"$1\"; touch \"$2/picture.png\"\n"
                "echo R1 >\"$2/devices.csv\"; shift 3; cd \"$(dirname \"$1\")\"; ls -x\n");
    }

    void Program(const char* pName, const QByteArray& rsBody) const
    {
        QFile file(mFolder.Write(pName, "#!/bin/sh\n" + rsBody));
        EXPECT_TRUE(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }

    /// Runs it from a folder beside the tree. `rsBefore`: assignments.
    std::string Run(const QString& rsBefore, const QString& rsArguments)
    {
        QProcess process;
        process.setWorkingDirectory(mFolder.Path("else"));
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(QStringLiteral("/bin/sh"),
                      {QStringLiteral("-c"),
                       QStringLiteral("unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM; "
                                      "PATH=%1:$PATH TMPDIR=%2 %3 bash ../tree/run.sh %4")
                           .arg(mFolder.Path("bin"), mFolder.Path("tmp"), rsBefore, rsArguments)});
        EXPECT_TRUE(process.waitForFinished(-1));
        mnExitCode = process.exitCode();
        return process.readAll().toStdString();
    }

    /// What is left over in the folder for passing things.
    QStringList Leftovers() const
    {
        return QDir(mFolder.Path("tmp")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }

    CFileFolder mFolder;
    int mnExitCode = -1;
};

const QString kDisplay = QStringLiteral("DISPLAY=:0");

TEST_F(RunScript, OpensTheExampleAndLeavesNothing)
{
    EXPECT_THAT(Run(kDisplay, {}), HasSubstr("editor\nexample\n"));
    EXPECT_EQ(mnExitCode, 0);
    EXPECT_THAT(Run(kDisplay, QStringLiteral("rc-filter")), HasSubstr("editor\nexample\n"));
    EXPECT_THAT(Run(kDisplay, QStringLiteral("rc-filter.cir")), HasSubstr("editor\nexample\n"));
    EXPECT_EQ(Leftovers(), QStringList());
}

TEST_F(RunScript, ImportsTheExampleWhereTheSimulatorIs)
{
    Program("tree/build/dev/bin/quorvahost", "shift; echo \"editor $*.\"\n");
    Program("bin/ngspice", "");
    EXPECT_THAT(Run(kDisplay, {}), HasSubstr("editor --import.\n"));
}

TEST_F(RunScript, KeepsACopyThatWasChanged)
{
    Program("tree/build/dev/bin/quorvahost", "echo .op >>\"$1\"; exit 3\n");
    EXPECT_THAT(Run(kDisplay, {}),
                HasSubstr("the copy with the changes is " + mFolder.Path("tmp").toStdString()));
    EXPECT_EQ(mnExitCode, 3);
    EXPECT_EQ(Leftovers().size(), 1);
    EXPECT_EQ(CFileFolder::Read(mFolder.Path("tree/examples/rc-filter.cir")), "example\n");
}

TEST_F(RunScript, APathIsThatFileAndNoExampleOfItsName)
{
    EXPECT_THAT(Run(kDisplay, QStringLiteral("./rc-filter.cir")), HasSubstr("another\n"));
    EXPECT_THAT(Run(kDisplay, mFolder.Path("else/rc-filter.cir")), HasSubstr("another\n"));
    EXPECT_THAT(Run(kDisplay, QStringLiteral("/any/where/rc-filter.cir")),
                HasSubstr("there is no netlist /any/where/rc-filter.cir"));
    EXPECT_EQ(mnExitCode, 2);
    EXPECT_THAT(Run(kDisplay, QStringLiteral("nothing")), HasSubstr("there is no netlist nothing"));
    EXPECT_EQ(Leftovers(), QStringList());
}

TEST_F(RunScript, TakesTheTourWhereNoWindowWouldBeSeen)
{
    for (const char* const pBefore : {"", "DISPLAY=:0 QT_QPA_PLATFORM=offscreen"}) {
        EXPECT_THAT(
            Run(QString::fromLatin1(pBefore), {}),
            testing::AllOf(testing::ContainsRegex("tour\nexample\nmake-example /.*example.params"
                                                  " --devices 2000\nrc-filter.cir\n"),
                           testing::EndsWith("devices.csv\nR1\n")))
            << pBefore;
        EXPECT_EQ(mnExitCode, 0);
        ASSERT_EQ(Leftovers().size(), 1) << "the pictures";
        QDir pictures(mFolder.Path("tmp") + QLatin1Char('/') + Leftovers().first());
        EXPECT_EQ(pictures.entryList(QDir::Files), (QStringList{"devices.csv", "picture.png"}));
        EXPECT_TRUE(pictures.removeRecursively());
    }
}
} // namespace
} // namespace quorvawiz::host
