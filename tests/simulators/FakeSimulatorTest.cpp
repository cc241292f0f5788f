// The runner, and imports from programs that only look like a simulator.

#include "simulators/ngspice/Import.h"
#include "simulators/ngspice/listings/OwnWords.h"
#include "simulators/ngspice/process/ChildProcess.h"
#include "simulators/ngspice/process/ImportError.h"
#include "simulators/ngspice/process/PrivateFolder.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <stop_token>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace quorvawiz::ngspice
{
namespace
{

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

constexpr std::chrono::seconds kLong{60};

class ChildProcess : public ::testing::Test
{
protected:
    TChildResult Run(const std::string& rsScript, std::stop_token stop = {},
                     std::chrono::milliseconds timeout = kLong)
    {
        TChildRequest request;
        request.sProgram = "/bin/sh";
        request.arguments = {"-c", rsScript};
        request.environment = {"PATH=/usr/bin:/bin", "A=b c"};
        request.folder = mFolder.GetPath();
        request.sOut = "out";
        request.sError = "error";
        request.deadline = std::chrono::steady_clock::now() + timeout;
        request.nMostBytes = 1U << 20U;
        return gRunChild(request, stop);
    }

    CPrivateFolder mFolder;
};

TEST_F(ChildProcess, WorksInItsFolder)
{
    const TChildResult result = Run("echo $A; pwd >&2; exit 3");
    EXPECT_EQ(result.eEnd, EChildEnd::Exited);
    EXPECT_EQ(result.nCode, 3);
    EXPECT_EQ(mFolder.Read("out"), "b c\n");
    EXPECT_EQ(mFolder.Read("error"), mFolder.GetPath().string() + "\n");
}

TEST_F(ChildProcess, HasAnEmptyInput)
{
    EXPECT_EQ(Run("read line || echo nothing").nCode, 0);
    EXPECT_EQ(mFolder.Read("out"), "nothing\n");
}

TEST_F(ChildProcess, CantStartAnotherProgram)
{
    EXPECT_NE(Run("/bin/echo started; echo behind").nCode, 0);
    EXPECT_THAT(mFolder.Read("out"), Not(HasSubstr("started")));
}

TEST_F(ChildProcess, TellsASignal)
{
    const TChildResult result = Run("kill -ABRT $$");
    EXPECT_EQ(result.eEnd, EChildEnd::Killed);
    EXPECT_EQ(result.nCode, SIGABRT);
}

TEST_F(ChildProcess, MayNotWriteTooMuch)
{
    const TChildResult result = Run("exec yes");
    EXPECT_EQ(result.eEnd, EChildEnd::Killed);
    EXPECT_EQ(result.nCode, SIGXFSZ);
    EXPECT_EQ(mFolder.Read("out").size(), 1U << 20U);
}

TEST_F(ChildProcess, MayWriteNoMoreThanItsUser)
{
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    // The limit that can't be raised any more belongs to a process of its own.
    const pid_t child = ::fork();
    if (child == 0) {
        constexpr rlim_t least = 1U << 16U;
        const rlimit few{least, least};
        ::signal(SIGXFSZ, SIG_IGN);
        const bool bLess = ::setrlimit(RLIMIT_FSIZE, &few) == 0;
        const TChildResult result = Run("ulimit -H -f");
        ::_exit(bLess && result.eEnd == EChildEnd::Exited && result.nCode == 0 ? 0 : 1);
    }
    int nStatus = 0;
    ASSERT_EQ(::waitpid(child, &nStatus, 0), child);
    EXPECT_TRUE(WIFEXITED(nStatus) && WEXITSTATUS(nStatus) == 0);
    // In blocks of 512 bytes.
    EXPECT_EQ(mFolder.Read("out"), "128\n");
}

TEST_F(ChildProcess, IsKilledAtTheDeadline)
{
    EXPECT_EQ(Run("while :; do :; done", {}, std::chrono::milliseconds(50)).eEnd,
              EChildEnd::TimedOut);
    EXPECT_EQ(
        Run("trap '' TERM INT HUP; while :; do :; done", {}, std::chrono::milliseconds(0)).eEnd,
        EChildEnd::TimedOut);
}

TEST_F(ChildProcess, IsKilledByItsUser)
{
    std::stop_source stop;
    std::jthread user([&] {
        // As soon as the program runs.
        while (mFolder.Read("out").empty()) {
            std::this_thread::yield();
        }
        stop.request_stop();
    });
    EXPECT_EQ(Run("echo here; while :; do :; done", stop.get_token()).eEnd, EChildEnd::Cancelled);
    EXPECT_EQ(Run("echo never", stop.get_token()).eEnd, EChildEnd::Cancelled);
}

TEST_F(ChildProcess, TellsWhatCantBeRun)
{
    TChildRequest request;
    request.sProgram = "/no/such/program";
    request.folder = mFolder.GetPath();
    request.sOut = "out";
    request.sError = "error";
    request.deadline = std::chrono::steady_clock::now() + kLong;
    EXPECT_THROW(static_cast<void>(gRunChild(request, {})), CImportError);
}

TEST(PrivateFolder, IsGoneInTheEnd)
{
    std::filesystem::path path;
    {
        const CPrivateFolder folder;
        path = folder.GetPath();
        folder.Write("file", "bytes");
        EXPECT_EQ(folder.Read("file"), "bytes");
        EXPECT_EQ(folder.Read("other"), "");
        EXPECT_EQ(std::filesystem::status(path).permissions(), std::filesystem::perms::owner_all);
        EXPECT_THROW(folder.Write("no/file", ""), CImportError);
    }
    EXPECT_FALSE(std::filesystem::exists(path));
}

struct TWordsCase {
    const char* pName;
    const char* pError;
    const char* pOut;
    const char* pWords;
};

TEST(OwnWords, AreTheLinesThatTellOfErrors)
{
    constexpr TWordsCase cases[] = {
        {"nothing", "", "", ""},
        {"an error with its card", "Note: x\n\nError on line 2:\n  r1 a\nmore\n", "out\n",
         "\n  Error on line 2:\n  r1 a"},
        {"an error in the output", "Note: x\n", "a\nfatal: b\nc\nd\n", "\n  fatal: b\n  c"},
        {"no error", "a\r\nb\n", "c\n", "\n  a\n  b"},
        {"steps towards an operating point",
         "Warning: singular matrix:  check node v1#branch\n\nNote: Starting dynamic gmin stepping\n"
         "Trying gmin =   1.0000E-03 Warning: singular matrix:  check node v1#branch\n\n"
         "Warning: Further gmin increment\nWarning: singular matrix:  check node v1#branch\n"
         "Trying gmin =   9.9996E-03 Warning: Last gmin step failed\n"
         "Warning: Dynamic gmin stepping failed\nSupplies reduced to   0.0000% \n"
         "op simulation(s) aborted\n",
         "",
         "\n  Warning: singular matrix:  check node v1#branch"
         "\n  Warning: Dynamic gmin stepping failed\n  op simulation(s) aborted"},
        {"no command to a terminal", "error \033[2J\a\tb\n", "", "\n  error ?[2J??b"},
        {"no error and only an output", "", "c\n", "\n  c"},
    };
    for (const TWordsCase& rCase : cases) {
        EXPECT_EQ(gOwnWords(rCase.pError, rCase.pOut), rCase.pWords) << rCase.pName;
    }
}

TEST(OwnWords, AreFew)
{
    std::string sMany;
    for (int n = 0; n < 100; ++n) {
        sMany += "error " + std::to_string(n) + " " + std::string(1000, 'x') + "\n";
    }
    const std::string sWords = gOwnWords(sMany, "");
    EXPECT_LT(sWords.size(), 12U * 210U);
    for (const char* const pWord : {"error 0 ", "error 5 ", "error 94 ", "error 99 "}) {
        EXPECT_THAT(sWords, HasSubstr(pWord));
    }
    EXPECT_THAT(sWords, Not(HasSubstr("error 6 ")));
    EXPECT_THAT(sWords, Not(HasSubstr("error 93 ")));
}

/// A program of a shell's script in the place of the simulator.
class FakeSimulator : public ::testing::Test
{
protected:
    FakeSimulator() { mOptions.netlist = mFolder.Write("netlist.cir", "title\nr1 a 0 1\n"); }

    std::string ImportFrom(const std::string& rsScript)
    {
        mOptions.sSimulator = mFolder.Write("simulator", "#!/bin/sh\n" + rsScript);
        std::filesystem::permissions(mOptions.sSimulator, std::filesystem::perms::owner_all);
        return ErrorOf();
    }

    std::string ErrorOf(std::stop_token stop = {})
    {
        try {
            static_cast<void>(gImport(mOptions, stop));
        } catch (const CImportError& rError) {
            return rError.what();
        }
        return "no error";
    }

    CTempFolder mFolder;
    TImportOptions mOptions;
};

TEST_F(FakeSimulator, ThatIsMissing)
{
    mOptions.sSimulator = "no-such-simulator";
    EXPECT_EQ(ErrorOf(), "there is no simulator 'no-such-simulator'; on Debian the package "
                         "ngspice has it");
    mOptions.sSimulator = mFolder.Write("file", "not to be run");
    EXPECT_THAT(ErrorOf(), StartsWith("there is no simulator '"));
}

TEST_F(FakeSimulator, ThatSaysNothing)
{
    EXPECT_THAT(ImportFrom("exit 0\n"), HasSubstr("isn't understood; is it ngspice?"));
}

TEST_F(FakeSimulator, ThatIsOlder)
{
    EXPECT_EQ(ImportFrom("echo '** ngspice-38' > version.txt; exit 1\n"),
              "the simulator is ngspice-38; ngspice-39 or later is needed");
}

TEST_F(FakeSimulator, ThatFails)
{
    EXPECT_EQ(ImportFrom("echo '** ngspice-39' > version.txt; echo 'Error: why' >&2; exit 4\n"),
              "the simulator fails at the netlist: it ended with exit code 4\n  Error: why");
    EXPECT_THAT(ImportFrom("kill -SEGV $$\n"),
                StartsWith("the simulator fails at the netlist: it crashed with signal 11"));
}

TEST_F(FakeSimulator, ThatFindsNoOperatingPoint)
{
    EXPECT_EQ(ImportFrom("echo '** ngspice-39' > version.txt; echo const > plot.txt\n"
                         "echo 'singular matrix' >&2\n"),
              "the simulator finds no operating point of the netlist\n  singular matrix");
    EXPECT_EQ(ImportFrom("echo '** ngspice-39' > version.txt; echo op1 > plot.txt\n"
                         "echo 'op simulation(s) aborted' >&2\n"),
              "the simulator finds no operating point of the netlist\n"
              "  op simulation(s) aborted");
}

TEST_F(FakeSimulator, ThatShowsRubbish)
{
    EXPECT_EQ(ImportFrom("echo '** ngspice-39' > version.txt; echo op1 > plot.txt\n"
                         "echo rubbish > show.txt\n"),
              "the simulator doesn't tell its classes");
    EXPECT_EQ(ImportFrom("echo '** ngspice-39' > version.txt; echo op1 > plot.txt\n"
                         "for f in show showmod expand types tables; do echo : > $f.txt; done\n"),
              "what the simulator tells about its classes isn't understood");
    EXPECT_EQ(ImportFrom("echo '** ngspice-39' > version.txt; echo op1 > plot.txt\n"
                         "echo 'A - a' > tables.txt; echo x > types.txt\n"),
              "the output of ngspice-39 isn't understood: it shows no device");
}

TEST_F(FakeSimulator, ThatListsANetlistWithoutADevice)
{
    EXPECT_EQ(ImportFrom("echo '** ngspice-39' > version.txt; echo op1 > plot.txt\n"
                         "echo '     4 : .end' > expand.txt\n"),
              "the netlist has no device");
}

TEST_F(FakeSimulator, ThatNeverEnds)
{
    mOptions.timeout = std::chrono::milliseconds(50);
    EXPECT_EQ(ImportFrom("while :; do :; done\n"), "the simulator took longer than 50 ms");
    mOptions.timeout = std::chrono::seconds(1);
    EXPECT_EQ(ErrorOf(), "the simulator took longer than 1 s");
}

TEST_F(FakeSimulator, ThatItsUserEnds)
{
    std::stop_source stop;
    stop.request_stop();
    mOptions.sSimulator = "/bin/true";
    EXPECT_EQ(ErrorOf(stop.get_token()), "the import was cancelled");
}

TEST_F(FakeSimulator, ThatIsEndedWhileItRuns)
{
    mOptions.sSimulator = mFolder.Write("simulator", "#!/bin/sh\nwhile :; do :; done\n");
    std::filesystem::permissions(mOptions.sSimulator, std::filesystem::perms::owner_all);
    std::stop_source stop;
    const auto endIt = [&](const TImportProgress& rProgress) {
        if (rProgress.eStage == EImportStage::Simulating) {
            stop.request_stop();
        }
    };
    EXPECT_THROW(static_cast<void>(gImport(mOptions, stop.get_token(), endIt)), CImportCancelled);
}

TEST_F(FakeSimulator, NothingOfTheUsersEnvironmentReachesIt)
{
    EXPECT_THAT(ImportFrom("echo \"error: home $HOME, $0 $*\" >&2; exit 1\n"),
                AllOf(HasSubstr("/quorvawiz-import-"), HasSubstr("-n -b netlist.cir")));
}

} // namespace
} // namespace quorvawiz::ngspice
