#pragma once
// Two sides of a comparison measured in turns: A then B in one iteration, B
// then A in the next. Running all of one side first lets a change in the
// machine's load (another build starting, a CPU clocking down) fall on one
// side only; in turns, both sides meet it alike.
//
// The benchmark reports the mean time of one call of each side and their
// ratio, as counters "<a>_us", "<b>_us" and "<b>_vs_<a>". Use it with
// UseManualTime(): the iteration's time is the two calls together.
#include <benchmark/benchmark.h>

#include <chrono>
#include <string>

namespace bench_support {

// Each side is a callable that measures itself: it returns the seconds of
// the span that counts (work before and after it, such as closing a window,
// stays out), or a negative value when its call failed, which ends the
// benchmark with an error.
template <class SideA, class SideB>
void RunInterleavedMeasured(benchmark::State& state, const std::string& nameA, SideA&& sideA,
                            const std::string& nameB, SideB&& sideB)
{
    double seconds[2] = {0, 0};
    long long iteration = 0;
    for (auto _ : state) {
        double iterationSeconds = 0;
        for (int turn = 0; turn < 2; ++turn) {
            const int which = static_cast<int>((iteration + turn) % 2);
            const double elapsed = which == 0 ? sideA() : sideB();
            if (elapsed < 0) {
                state.SkipWithError(("a call of " + (which == 0 ? nameA : nameB) + " failed").c_str());
                return;
            }
            seconds[which] += elapsed;
            iterationSeconds += elapsed;
        }
        ++iteration;
        state.SetIterationTime(iterationSeconds);
    }
    const double calls = static_cast<double>(state.iterations());
    state.counters[nameA + "_us"] = seconds[0] / calls * 1e6;
    state.counters[nameB + "_us"] = seconds[1] / calls * 1e6;
    state.counters[nameB + "_vs_" + nameA] = seconds[1] / seconds[0];
}

// Each side is a callable returning true when its call succeeded; the whole
// call is timed.
template <class SideA, class SideB>
void RunInterleaved(benchmark::State& state, const std::string& nameA, SideA&& sideA,
                    const std::string& nameB, SideB&& sideB)
{
    const auto timed = [](auto& side) {
        return [&side]() {
            using Clock = std::chrono::steady_clock;
            const auto start = Clock::now();
            const bool ok = side();
            return ok ? std::chrono::duration<double>(Clock::now() - start).count() : -1.0;
        };
    };
    RunInterleavedMeasured(state, nameA, timed(sideA), nameB, timed(sideB));
}

} // namespace bench_support
