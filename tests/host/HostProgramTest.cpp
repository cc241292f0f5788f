#include "host/FileFolder.h"
#include "host/PrintQt.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QProcess>
#include <string>
#include <utility>
#include <vector>

// The programs as a shell sees them: what they print and how they end.

namespace quorvawiz::host
{
namespace
{
using ::testing::HasSubstr;
using ::testing::Not;

constexpr int kCrashed = -1;

struct TOutcome {
    std::string sOutput; ///< and what comes on standard error
    int nExitCode = kCrashed;
};

/// Runs a shell's line without any display in the environment, but for what the line sets.
TOutcome InShell(const QString& rsLine)
{
    QProcess process;
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const char* const pName : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QString::fromLatin1(pName));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), rsLine});
    EXPECT_TRUE(process.waitForFinished(-1));
    return {process.readAll().toStdString(),
            process.exitStatus() == QProcess::NormalExit ? process.exitCode() : kCrashed};
}

const QString kHost = QStringLiteral(QUORVAWIZ_HOST_PATH);
const QString kTour = QStringLiteral(QUORVAWIZ_TOUR_PATH);

TEST(HostProgram, SaysThatThereIsNoDisplay)
{
    const CFileFolder folder;
    const QString sTour = kTour + QStringLiteral(" a.cir ") + folder.Path();
    const std::vector<std::pair<QString, const char*>> lines{
        {kHost, "quorvahost: there is no display"},
        {kHost + " --wizard", "quorvahost: there is no display"},
        {"QT_QPA_PLATFORM= exec " + kHost, "quorvahost: there is no display"},
        {"QT_QPA_PLATFORM=xcb exec " + kHost, "quorvahost: could not connect to display"},
        {"DISPLAY=:77 exec " + kHost, "quorvahost: could not connect to display :77"},
        {"QT_QPA_PLATFORM=nonsense exec " + kHost, "quorvahost: Could not find the Qt platform"},
        {"QT_QPA_PLATFORM= exec " + sTour, "quorvahost-tour: there is no display"},
        {"DISPLAY=:77 exec " + sTour, "quorvahost-tour: could not connect to display :77"},
    };
    for (const auto& [sLine, pMessage] : lines) {
        const TOutcome outcome = InShell(sLine);
        EXPECT_EQ(outcome.nExitCode, 1) << sLine.toStdString();
        EXPECT_THAT(outcome.sOutput, HasSubstr(pMessage)) << sLine.toStdString();
        EXPECT_THAT(outcome.sOutput, Not(HasSubstr("Reinstalling"))) << sLine.toStdString();
    }
}

TEST(HostProgram, AnOutputThatCanNotBeWrittenIsNoSuccess)
{
    for (const char* const pOption : {" --help", " --version"}) {
        const TOutcome full = InShell(kHost + pOption + " >/dev/full");
        EXPECT_EQ(full.nExitCode, 1) << pOption;
        EXPECT_EQ(full.sOutput,
                  "quorvahost: can't write to standard output: No space left on device\n");
        const TOutcome closed = InShell(kHost + pOption + " >&-");
        EXPECT_EQ(closed.nExitCode, 1) << pOption;
        EXPECT_EQ(closed.sOutput,
                  "quorvahost: can't write to standard output: Bad file descriptor\n");
        EXPECT_EQ(InShell(kHost + pOption).nExitCode, 0) << pOption;
    }
}
} // namespace
} // namespace quorvawiz::host
