#pragma once

#include <signal.h>

#include <stop_token>
#include <thread>

namespace quorvawiz::cli
{

/// While it lives, SIGINT, SIGTERM and SIGHUP ask to stop instead of ending the program. It is made
/// before other threads are, as they inherit which signals are held back.
class CStopOnSignal
{
public:
    /// @throws std::system_error if the system refuses what it needs
    CStopOnSignal();
    ~CStopOnSignal();
    CStopOnSignal(const CStopOnSignal&) = delete;
    CStopOnSignal& operator=(const CStopOnSignal&) = delete;

    /// Tells that such a signal came.
    [[nodiscard]] std::stop_token GetToken() const noexcept { return mStop.get_token(); }

private:
    void Watch();

    sigset_t mBefore{};
    std::stop_source mStop;
    int mnSignals = -1; // a file that can be read when a signal came
    int mnEnd = -1;     // and one, when this ends
    std::thread mThread;
};

} // namespace quorvawiz::cli
