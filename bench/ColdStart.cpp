// What a script pays for one command: a cold `quorvawiz compose` against `/bin/true`, turn by turn,
// so that both see the same machine. Counters: milliseconds of each, their difference and their
// ratio.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <stdexcept>
#include <vector>

namespace
{
using TClock = std::chrono::steady_clock;

/// Runs a program with its output thrown away. Result: wall time in seconds.
double RunOnce(std::vector<const char*> arguments)
{
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);

    const auto start = TClock::now();
    pid_t child = 0;
    const int nError = posix_spawn(&child, arguments[0], &actions, nullptr,
                                   const_cast<char* const*>(arguments.data()), environ);
    int nStatus = -1;
    if (nError == 0)
        waitpid(child, &nStatus, 0);
    const std::chrono::duration<double> taken = TClock::now() - start;
    posix_spawn_file_actions_destroy(&actions);
    if (nStatus != 0)
        throw std::runtime_error("the program failed");
    return taken.count();
}

void BM_ColdCompose(benchmark::State& rState)
{
    double composeSeconds = 0;
    double trueSeconds = 0;
    for ([[maybe_unused]] const auto turn : rState) {
        composeSeconds += RunOnce(
            {QUORVAWIZ_CLI_PATH, "compose", "Settings/Temperature", "temperature-list=0 27 85"});
        trueSeconds += RunOnce({"/bin/true"});
    }
    const auto perTurn = [&rState](double value) {
        return benchmark::Counter(1000 * value / static_cast<double>(rState.iterations()));
    };
    rState.counters["compose_ms"] = perTurn(composeSeconds);
    rState.counters["true_ms"] = perTurn(trueSeconds);
    rState.counters["difference_ms"] = perTurn(composeSeconds - trueSeconds);
    rState.counters["ratio"] = composeSeconds / trueSeconds;
}
BENCHMARK(BM_ColdCompose)->Iterations(200)->Unit(benchmark::kMillisecond);
} // namespace
