#pragma once

#include <benchmark/benchmark.h>

#include <ctime>

/// Runs ours and the obvious other way turn by turn, so that both see the same machine. Counters:
/// nanoseconds of processor time per call of each, and their ratio, below 1 where ours is the
/// faster.
/// @param rState the benchmark's
/// @param rOurs, rTheirs what one turn does; each returns something that depends on all of its work
template <class TOurs, class TTheirs>
void gRunBoth(benchmark::State& rState, const TOurs& rOurs, const TTheirs& rTheirs)
{
    const auto now = [] {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return 1e9 * static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec);
    };
    const auto timed = [now](const auto& rCall) {
        const double start = now();
        benchmark::DoNotOptimize(rCall());
        return now() - start;
    };
    double ours = 0;
    double theirs = 0;
    for ([[maybe_unused]] const auto turn : rState) {
        ours += timed(rOurs);
        theirs += timed(rTheirs);
    }
    const auto turns = static_cast<double>(rState.iterations());
    rState.counters["ours_ns"] = ours / turns;
    rState.counters["theirs_ns"] = theirs / turns;
    rState.counters["ratio"] = ours / theirs;
}

/// A call made so often that reading the clock doesn't count.
/// @param rCall returns something that depends on all of its work
template <class TCall> auto gRepeated(const TCall& rCall)
{
    return [rCall] {
        constexpr int repeats = 100;
        for (int i = 1; i < repeats; ++i) {
            benchmark::DoNotOptimize(rCall());
        }
        return rCall();
    };
}
