#include "simulators/ngspice/process/ChildProcess.h"

#include "simulators/ngspice/process/ForkBan.h"
#include "simulators/ngspice/process/ImportError.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/eventfd.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <limits>
#include <memory>

namespace quorvawiz::ngspice
{
namespace
{

/// An open file of this process, closed in the end.
class CHandle
{
public:
    /// @param nHandle below 0 where it couldn't be opened; errno says why
    /// @param pWhat what the user is told then
    CHandle(int nHandle, const char* pWhat) : mnHandle(nHandle)
    {
        // The first three numbers, which may be free here, are given to the child.
        if (nHandle >= 0 && nHandle <= STDERR_FILENO) {
            mnHandle = ::fcntl(nHandle, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
            ::close(nHandle);
        }
        if (mnHandle < 0) {
            throw CImportError(std::string(pWhat) + ": " + std::strerror(errno));
        }
    }
    ~CHandle() { ::close(mnHandle); }
    CHandle(const CHandle&) = delete;
    CHandle& operator=(const CHandle&) = delete;

    int Get() const noexcept { return mnHandle; }

private:
    int mnHandle;
};

/// All that the child needs, made before the fork: behind it nothing may ask for memory.
struct TChildPlan {
    std::vector<char*> arguments;
    std::vector<char*> environment;
    const char* pFolder = nullptr;
    int nIn = -1;
    int nOut = -1;
    int nError = -1;
    int nReport = -1; ///< where the number of the system error goes
    rlimit fileSize{};
    pid_t parent = 0;
};

bool Redirect(const TChildPlan& rPlan) noexcept
{
    return ::dup2(rPlan.nIn, STDIN_FILENO) >= 0 && ::dup2(rPlan.nOut, STDOUT_FILENO) >= 0 &&
           ::dup2(rPlan.nError, STDERR_FILENO) >= 0;
}

/// Signals as a program finds them that a shell started.
void ResetSignals() noexcept
{
    for (int nSignal = 1; nSignal < NSIG; ++nSignal) {
        ::signal(nSignal, SIG_DFL);
    }
    sigset_t none;
    ::sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

[[noreturn]] void BecomeProgram(TChildPlan& rPlan) noexcept
{
    ::setpgid(0, 0);
    ResetSignals();
    const rlimit noCore{0, 0};
    ::setrlimit(RLIMIT_CORE, &noCore);
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    const bool bReady = ::getppid() == rPlan.parent && Redirect(rPlan) &&
                        ::setrlimit(RLIMIT_FSIZE, &rPlan.fileSize) == 0 &&
                        ::chdir(rPlan.pFolder) == 0;
    if (bReady) {
        gBanFork();
        // The report stays open until the program begins.
        ::close_range(STDERR_FILENO + 1, ~0U, CLOSE_RANGE_CLOEXEC);
        ::execve(rPlan.arguments[0], rPlan.arguments.data(), rPlan.environment.data());
    }
    const int nFailure = errno;
    static_cast<void>(!::write(rPlan.nReport, &nFailure, sizeof nFailure));
    ::_exit(127);
}

std::vector<char*> Pointers(std::vector<std::string>& rTexts)
{
    std::vector<char*> pointers;
    for (std::string& rsText : rTexts) {
        pointers.push_back(rsText.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

/// A started program, which is killed and waited for, whatever happens.
class CChild
{
public:
    CChild(pid_t child) noexcept : mChild(child) {}
    ~CChild()
    {
        if (mChild > 0) {
            Kill();
            Reap();
        }
    }
    CChild(const CChild&) = delete;
    CChild& operator=(const CChild&) = delete;

    void Kill() const noexcept
    {
        ::kill(-mChild, SIGKILL);
        ::kill(mChild, SIGKILL); // where it hasn't made its group yet
    }

    /// Waits for the end. Result: the status.
    int Reap() noexcept
    {
        int nStatus = 0;
        while (::waitpid(mChild, &nStatus, 0) < 0 && errno == EINTR) {
        }
        mChild = 0;
        return nStatus;
    }

private:
    pid_t mChild;
};

CHandle OpenFor(const std::filesystem::path& rFile)
{
    return CHandle(::open(rFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600),
                   "can't write a temporary file");
}

int MillisecondsUntil(std::chrono::steady_clock::time_point deadline)
{
    const auto left =
        std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
    constexpr std::int64_t most = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp<std::int64_t>(left.count(), 0, most));
}

/// Waits for the child's end, the deadline or the user.
EChildEnd Wait(int nChild, int nStop, std::chrono::steady_clock::time_point deadline)
{
    std::array<pollfd, 2> handles{pollfd{nChild, POLLIN, 0}, pollfd{nStop, POLLIN, 0}};
    while (true) {
        const int nReady = ::poll(handles.data(), handles.size(), MillisecondsUntil(deadline));
        if (nReady < 0 && errno == EINTR) {
            continue;
        }
        if (nReady < 0) {
            throw CImportError(std::string("can't wait for the simulator: ") +
                               std::strerror(errno));
        }
        if (handles[0].revents != 0) {
            return EChildEnd::Exited;
        }
        if (handles[1].revents != 0) {
            return EChildEnd::Cancelled;
        }
        if (MillisecondsUntil(deadline) == 0) {
            return EChildEnd::TimedOut;
        }
    }
}

} // namespace

TChildResult gRunChild(const TChildRequest& rRequest, const std::stop_token& stop)
{
    if (stop.stop_requested()) {
        return {EChildEnd::Cancelled, 0};
    }
    const CHandle in(::open("/dev/null", O_RDONLY | O_CLOEXEC), "can't open /dev/null");
    const CHandle out = OpenFor(rRequest.folder / rRequest.sOut);
    const CHandle error = OpenFor(rRequest.folder / rRequest.sError);
    std::array<int, 2> ends{-1, -1};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw CImportError(std::string("can't make a pipe: ") + std::strerror(errno));
    }
    const CHandle reportEnd(ends[0], "");
    auto pReport = std::make_unique<CHandle>(ends[1], "");

    std::vector<std::string> arguments{rRequest.sProgram};
    arguments.insert(arguments.end(), rRequest.arguments.begin(), rRequest.arguments.end());
    std::vector<std::string> environment = rRequest.environment;
    TChildPlan plan;
    plan.arguments = Pointers(arguments);
    plan.environment = Pointers(environment);
    plan.pFolder = rRequest.folder.c_str();
    plan.nIn = in.Get();
    plan.nOut = out.Get();
    plan.nError = error.Get();
    plan.nReport = pReport->Get();
    // Nobody but the administrator may allow more than is allowed already.
    ::getrlimit(RLIMIT_FSIZE, &plan.fileSize);
    const rlim_t nMost = std::min<rlim_t>(rRequest.nMostBytes, plan.fileSize.rlim_max);
    plan.fileSize = {nMost, nMost};
    plan.parent = ::getpid();

    const pid_t started = ::fork();
    if (started == 0) {
        BecomeProgram(plan);
    }
    if (started < 0) {
        throw CImportError(std::string("can't start the simulator: ") + std::strerror(errno));
    }
    CChild child(started);
    pReport.reset();
    int nFailure = 0;
    ssize_t nReported = 0;
    while ((nReported = ::read(reportEnd.Get(), &nFailure, sizeof nFailure)) < 0 &&
           errno == EINTR) {
    }
    if (nReported == static_cast<ssize_t>(sizeof nFailure)) {
        throw CImportError("can't run '" + rRequest.sProgram + "': " + std::strerror(nFailure));
    }

    const CHandle ended(static_cast<int>(::syscall(SYS_pidfd_open, started, 0)),
                        "can't watch the simulator");
    const CHandle stopped(::eventfd(0, EFD_CLOEXEC), "can't make an event");
    const std::stop_callback onStop(stop, [nEvent = stopped.Get()] { ::eventfd_write(nEvent, 1); });
    const EChildEnd eEnd = Wait(ended.Get(), stopped.Get(), rRequest.deadline);
    if (eEnd != EChildEnd::Exited) {
        child.Kill();
        child.Reap();
        return {eEnd, SIGKILL};
    }
    const int nStatus = child.Reap();
    if (WIFEXITED(nStatus)) {
        return {EChildEnd::Exited, WEXITSTATUS(nStatus)};
    }
    return {EChildEnd::Killed, WTERMSIG(nStatus)};
}

} // namespace quorvawiz::ngspice
