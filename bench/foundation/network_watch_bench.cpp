// The network watch in "system" mode: what the 10 ms loop costs over ten
// seconds (goal: under 0.5 % of one core) against a loop that only sleeps,
// and what one probe costs in each mode.
#include <benchmark/benchmark.h>

#include <pthread.h>
#include <sys/resource.h>

#include <atomic>
#include <chrono>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <thread>

#include "foundation/network_checker.h"
#include "host/network_probe.h"
#include "platform/win32.h"

namespace {

double ThreadCpuSeconds(std::thread& thread)
{
    clockid_t clock;
    timespec spent{};
    if (pthread_getcpuclockid(thread.native_handle(), &clock) != 0 || clock_gettime(clock, &spent) != 0) {
        return -1;
    }
    return static_cast<double>(spent.tv_sec) + static_cast<double>(spent.tv_nsec) / 1e9;
}

double ProcessCpuSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& t) {
        return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

host::HostConfig ConfigWithMode(const std::string& mode, const std::string& file = "")
{
    host::HostConfig config = host::DefaultHostConfig();
    config.networkMode = mode;
    config.networkFile = file;
    return config;
}

// Runs `body` on a thread of its own for `slice`, then `stop`, and returns
// that thread's CPU time in seconds.
template <typename Body, typename Stop> double ThreadCpuOver(std::chrono::seconds slice, Body body, Stop stop)
{
    std::thread thread(body);
    std::this_thread::sleep_for(slice);
    const double cpu = ThreadCpuSeconds(thread);
    stop();
    thread.join();
    return cpu;
}

// The loop the window runs, in "system" mode, for 10 s in all; beside it,
// interleaved in slices of 2 s, a loop that only sleeps 10 ms at a time: the
// floor that a 10 ms period costs on this machine whatever the loop does.
// "loop_cpu_%" and "sleep_only_cpu_%" are each thread's CPU time over its
// wall time; "process_cpu_%" is the whole process over the whole run,
// including the host's netlink thread.
void BM_NetworkWatchLoopSystemMode(benchmark::State& state)
{
    const host::ScopedNetworkProbe probe(ConfigWithMode("system"));
    NetworkChecker::networkAlive = NetworkChecker::ProbeNetwork();
    constexpr std::chrono::seconds kSlice{2};
    constexpr int kSlices = 5;
    for (auto _ : state) {
        const double processBefore = ProcessCpuSeconds();
        const auto start = std::chrono::steady_clock::now();
        double loopCpu = 0;
        double sleepOnlyCpu = 0;
        for (int slice = 0; slice < kSlices; ++slice) {
            loopCpu += ThreadCpuOver(
                kSlice, [] { NetworkChecker::CheckNetwork([] {}, [] {}); },
                [] { NetworkChecker::stopChecking = true; });
            std::atomic<bool> stop{false};
            sleepOnlyCpu += ThreadCpuOver(
                kSlice,
                [&stop] {
                    while (!stop) {
                        Sleep(10);
                    }
                },
                [&stop] { stop = true; });
        }
        const double wall = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        const double sideSeconds = static_cast<double>(kSlices * kSlice.count());
        state.counters["loop_cpu_%"] = 100.0 * loopCpu / sideSeconds;
        state.counters["sleep_only_cpu_%"] = 100.0 * sleepOnlyCpu / sideSeconds;
        state.counters["process_cpu_%"] = 100.0 * (ProcessCpuSeconds() - processBefore) / wall;
    }
}
BENCHMARK(BM_NetworkWatchLoopSystemMode)->Iterations(1)->Unit(benchmark::kSecond);

void ProbeLoop(benchmark::State& state)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(NetworkChecker::ProbeNetwork());
    }
}

void BM_ProbeSystemMode(benchmark::State& state)
{
    const host::ScopedNetworkProbe probe(ConfigWithMode("system"));
    ProbeLoop(state);
}
BENCHMARK(BM_ProbeSystemMode);

// An unchanged file: one empty read of the inotify queue per call.
void BM_ProbeFileModeUnchanged(benchmark::State& state)
{
    const auto file = std::filesystem::temp_directory_path() / "spacemgm-bench-network";
    std::ofstream(file) << "online";
    {
        const host::ScopedNetworkProbe probe(ConfigWithMode("file", file.string()));
        ProbeLoop(state);
    }
    std::filesystem::remove(file);
}
BENCHMARK(BM_ProbeFileModeUnchanged);

// From the moment a writer has closed the file to the first probe that
// reports the new word (manual time: only that span is counted).
void BM_FileModeChangeSeenByProbe(benchmark::State& state)
{
    const auto file = std::filesystem::temp_directory_path() / "spacemgm-bench-network-flip";
    std::ofstream(file) << "lan";
    {
        const host::ScopedNetworkProbe probe(ConfigWithMode("file", file.string()));
        bool lan = true;
        for (auto _ : state) {
            lan = !lan;
            std::ofstream(file, std::ios::trunc) << (lan ? "lan" : "wan");
            const auto start = std::chrono::steady_clock::now();
            while ((IsNetworkAlive(nullptr) != FALSE) != lan) {
            }
            state.SetIterationTime(
                std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
        }
    }
    std::filesystem::remove(file);
}
BENCHMARK(BM_FileModeChangeSeenByProbe)->UseManualTime()->Unit(benchmark::kMicrosecond);

void BM_ProbeOnlineMode(benchmark::State& state)
{
    const host::ScopedNetworkProbe probe(ConfigWithMode("online"));
    ProbeLoop(state);
}
BENCHMARK(BM_ProbeOnlineMode);

} // namespace
