#include "cli/import/StopOnSignal.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <system_error>

namespace quorvawiz::cli
{
namespace
{
sigset_t StopSignals()
{
    sigset_t signals;
    ::sigemptyset(&signals);
    for (const int nSignal : {SIGINT, SIGTERM, SIGHUP})
        ::sigaddset(&signals, nSignal);
    return signals;
}
} // namespace

CStopOnSignal::CStopOnSignal()
{
    const sigset_t signals = StopSignals();
    ::pthread_sigmask(SIG_BLOCK, &signals, &mBefore);
    mnSignals = ::signalfd(-1, &signals, SFD_CLOEXEC);
    mnEnd = ::eventfd(0, EFD_CLOEXEC);
    if (mnSignals < 0 || mnEnd < 0)
        throw std::system_error(errno, std::generic_category(), "can't watch for signals");
    mThread = std::thread([this] { Watch(); });
}

CStopOnSignal::~CStopOnSignal()
{
    ::eventfd_write(mnEnd, 1);
    mThread.join();
    ::close(mnEnd);
    ::close(mnSignals);
    ::pthread_sigmask(SIG_SETMASK, &mBefore, nullptr);
}

void CStopOnSignal::Watch()
{
    std::array<pollfd, 2> handles{pollfd{mnSignals, POLLIN, 0}, pollfd{mnEnd, POLLIN, 0}};
    while (handles[1].revents == 0) {
        const int nReady = ::poll(handles.data(), handles.size(), -1);
        if (nReady < 0 && errno != EINTR)
            return;
        if (nReady > 0 && handles[0].revents != 0) {
            signalfd_siginfo taken{};
            if (::read(mnSignals, &taken, sizeof taken) > 0)
                mStop.request_stop();
        }
    }
}

} // namespace quorvawiz::cli
