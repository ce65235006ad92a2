// The window from a real process start: window_start_probe is spawned against
// spacemgm-cloud (sample account, no added latency, network "online") and
// reports, on a pipe, when it reached each step on CLOCK_MONOTONIC, which the
// spawn is timed on too.
//
// BM_ProcessStartToFirstFrame: spawn to the first painted frame, which must be
// the loading page (goal: under 100 ms). Counters: first_frame_ms (mean),
// worst_first_frame_ms, and its parts: spawn_to_main_ms (exec, the dynamic
// loader, static constructors), main_to_created_ms (host set-up, skin,
// InitWindow), created_to_first_frame_ms; content_page_ms: spawn to the
// first painted frame of the content page with its rows; main_thread_cpu_ms
// and process_cpu_ms: CPU used from exec to the first frame by the thread
// that paints and by the whole process (the gap to first_frame_ms is time
// spent waiting: for a core, the disk, or other threads).
//
// BM_OpenWindowIdle/<network mode>: a still window (load ended, bar animation
// over) left alone for 3 s with the network watch running. Counters:
// idle_cpu_percent (the whole process: window thread, watcher, host threads;
// goal: under 1 %), vm_rss_mib and vm_hwm_mib measured after the idle
// stretch, page (1: content; "system" reads the machine's real network).
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <map>
#include <sstream>
#include <vector>

#include "bench/support/interleaved_pair.h"
#include "cloud_emulator.h"
#include "window/space_window_types.h"

extern char** environ;

namespace {

using spacemgm_test::CloudEmulator;

constexpr int kReportFd = 100;

long long MonotonicNanoseconds()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<long long>(now.tv_sec) * 1000000000LL + now.tv_nsec;
}

// The probe's report: its lines by first word, the rest of each line.
struct ProbeRun
{
    long long spawnNs = 0;
    std::map<std::string, std::string> lines;
    std::string error;

    // Milliseconds from the spawn, or from the time in the line `fromKey`,
    // to the time in the line `toKey`; -1 when a line is missing.
    double MsAfterSpawn(const std::string& key) const { return MsBetween("", key); }
    double MsBetween(const std::string& fromKey, const std::string& toKey) const
    {
        const double to = Number(toKey, 0);
        const double from = fromKey.empty() ? static_cast<double>(spawnNs) : Number(fromKey, 0);
        return to < 0 || from < 0 ? -1 : (to - from) / 1e6;
    }
    // The word at `index` of the line `key` as a number, or -1.
    double Number(const std::string& key, int index) const
    {
        const auto found = lines.find(key);
        std::istringstream words(found == lines.end() ? "" : found->second);
        double value = 0;
        for (int i = 0; i <= index; ++i) {
            if (!(words >> value))
                return -1;
        }
        return value;
    }
};

// Reads the probe's lines until `lastKey` or an error came, the pipe closed
// or 60 s passed.
void ReadReport(int fd, const std::string& lastKey, ProbeRun& run)
{
    std::string pending;
    const long long deadline = MonotonicNanoseconds() + 60'000'000'000LL;
    while (!run.lines.count(lastKey) && run.error.empty()) {
        const long long left = (deadline - MonotonicNanoseconds()) / 1'000'000;
        pollfd watch{fd, POLLIN, 0};
        if (left <= 0 || ::poll(&watch, 1, static_cast<int>(left)) <= 0) {
            run.error = "no report from the probe within 60 s";
            return;
        }
        char buffer[512];
        const ssize_t got = ::read(fd, buffer, sizeof buffer);
        if (got <= 0) {
            run.error = "the probe ended before it reported " + lastKey;
            return;
        }
        pending.append(buffer, static_cast<std::size_t>(got));
        for (std::size_t end = pending.find('\n'); end != std::string::npos; end = pending.find('\n')) {
            const std::string line = pending.substr(0, end);
            pending.erase(0, end + 1);
            const std::size_t space = line.find(' ');
            const std::string key = line.substr(0, space);
            const std::string rest = space == std::string::npos ? "" : line.substr(space + 1);
            if (key == "error")
                run.error = "the probe: " + rest;
            run.lines[key] = rest;
        }
    }
}

ProbeRun RunProbe(const CloudEmulator& cloud, const std::string& networkMode, int idleMs,
                  const std::string& program = WINDOW_START_PROBE)
{
    ProbeRun run;
    const std::string workDir = cloud.WorkDir() + "/probe";
    std::filesystem::create_directories(workDir);
    int fds[2];
    if (::pipe2(fds, O_CLOEXEC) != 0) {
        run.error = "no pipe";
        return run;
    }
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, fds[1], kReportFd);
    std::vector<std::string> args = {
        program,     cloud.ConfigPath(),    workDir, SPACEMGM_SOURCE_DIR "/", std::to_string(kReportFd),
        networkMode, std::to_string(idleMs)};
    std::vector<char*> argv;
    for (std::string& arg : args)
        argv.push_back(arg.data());
    argv.push_back(nullptr);
    pid_t pid = -1;
    run.spawnNs = MonotonicNanoseconds();
    const int spawned = posix_spawn(&pid, program.c_str(), &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    ::close(fds[1]);
    if (spawned != 0) {
        run.error = "cannot start " + program;
    } else {
        ReadReport(fds[0], idleMs > 0 ? "memory" : "content_paint", run);
        int status = 0;
        ::waitpid(pid, &status, 0);
        if (run.error.empty() && !(WIFEXITED(status) && WEXITSTATUS(status) == 0))
            run.error = "the probe did not exit 0";
    }
    ::close(fds[0]);
    return run;
}

void BM_ProcessStartToFirstFrame(benchmark::State& state)
{
    CloudEmulator cloud;
    // The first start after a build reads the program and its libraries
    // from disk; a window opened by a user meets them cached.
    RunProbe(cloud, "online", 0);
    std::vector<double> firstFrame;
    double main = 0, created = 0, painted = 0, content = 0, threadCpu = 0, processCpu = 0;
    for (auto _ : state) {
        const ProbeRun run = RunProbe(cloud, "online", 0);
        if (!run.error.empty()) {
            state.SkipWithError(run.error.c_str());
            return;
        }
        if (static_cast<int>(run.Number("first_paint", 1)) != PageLoading) {
            state.SkipWithError("the first frame was not the loading page");
            return;
        }
        firstFrame.push_back(run.MsAfterSpawn("first_paint"));
        main += run.MsAfterSpawn("main");
        created += run.MsBetween("main", "created");
        painted += run.MsBetween("created", "first_paint");
        content += run.MsAfterSpawn("content_paint");
        threadCpu += run.Number("first_paint", 2);
        processCpu += run.Number("first_paint", 3);
        state.SetIterationTime(firstFrame.back() / 1000.0);
    }
    const double n = static_cast<double>(firstFrame.size());
    double sum = 0;
    for (double ms : firstFrame)
        sum += ms;
    state.counters["first_frame_ms"] = sum / n;
    state.counters["worst_first_frame_ms"] = *std::max_element(firstFrame.begin(), firstFrame.end());
    state.counters["spawn_to_main_ms"] = main / n;
    state.counters["main_to_created_ms"] = created / n;
    state.counters["created_to_first_frame_ms"] = painted / n;
    state.counters["content_page_ms"] = content / n;
    state.counters["main_thread_cpu_ms"] = threadCpu / n;
    state.counters["process_cpu_ms"] = processCpu / n;
}
BENCHMARK(BM_ProcessStartToFirstFrame)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);

// BM_ProcessStartAgainstBaseline: the same span, spawn to the first painted
// frame, for this build's probe and for another build's, in turns, so that
// a change to what a process start costs is measured against the load of
// the moment. WINDOW_START_BASELINE_PROBE names the other probe (built from
// the commit to compare with, in a build folder of its own); without it the
// benchmark is skipped. Counters: baseline_us, this_build_us and
// this_build_vs_baseline for the first frame; baseline_spawn_to_main_ms and
// this_build_spawn_to_main_ms for the part before main.
void BM_ProcessStartAgainstBaseline(benchmark::State& state)
{
    const char* baseline = std::getenv("WINDOW_START_BASELINE_PROBE");
    if (baseline == nullptr || *baseline == 0) {
        state.SkipWithError("set WINDOW_START_BASELINE_PROBE to another build's window_start_probe");
        return;
    }
    CloudEmulator cloud;
    // Spawn to main, summed per program: the dynamic loader's share.
    std::map<std::string, double> toMainMs;
    const auto firstFrameSeconds = [&cloud, &toMainMs](const std::string& program) {
        const ProbeRun run = RunProbe(cloud, "online", 0, program);
        if (!run.error.empty() || static_cast<int>(run.Number("first_paint", 1)) != PageLoading)
            return -1.0;
        toMainMs[program] += run.MsAfterSpawn("main");
        return run.MsAfterSpawn("first_paint") / 1000.0;
    };
    // Both programs' files are read from disk once before the timed turns.
    if (firstFrameSeconds(baseline) < 0 || firstFrameSeconds(WINDOW_START_PROBE) < 0) {
        state.SkipWithError("a probe did not reach its first frame");
        return;
    }
    toMainMs.clear();
    bench_support::RunInterleavedMeasured(
        state, "baseline", [&] { return firstFrameSeconds(baseline); }, "this_build",
        [&] { return firstFrameSeconds(WINDOW_START_PROBE); });
    const double n = static_cast<double>(state.iterations());
    state.counters["baseline_spawn_to_main_ms"] = toMainMs[baseline] / n;
    state.counters["this_build_spawn_to_main_ms"] = toMainMs[WINDOW_START_PROBE] / n;
}
BENCHMARK(BM_ProcessStartAgainstBaseline)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);

void BM_OpenWindowIdle(benchmark::State& state, const std::string& networkMode)
{
    CloudEmulator cloud;
    constexpr int kIdleMs = 3000;
    double cpu = 0, rss = 0, hwm = 0;
    int page = -1;
    for (auto _ : state) {
        const ProbeRun run = RunProbe(cloud, networkMode, kIdleMs);
        if (!run.error.empty()) {
            state.SkipWithError(run.error.c_str());
            return;
        }
        cpu += run.Number("idle", 0);
        page = static_cast<int>(run.Number("idle", 1));
        rss += run.Number("memory", 0) / 1024.0;
        hwm += run.Number("memory", 1) / 1024.0;
        state.SetIterationTime(kIdleMs / 1000.0);
    }
    const double n = static_cast<double>(state.iterations());
    state.counters["idle_cpu_percent"] = cpu / n;
    state.counters["vm_rss_mib"] = rss / n;
    state.counters["vm_hwm_mib"] = hwm / n;
    state.counters["page"] = page;
}
BENCHMARK_CAPTURE(BM_OpenWindowIdle, online, std::string("online"))
    ->UseManualTime()
    ->Unit(benchmark::kSecond)
    ->Iterations(3);
BENCHMARK_CAPTURE(BM_OpenWindowIdle, system, std::string("system"))
    ->UseManualTime()
    ->Unit(benchmark::kSecond)
    ->Iterations(3);

} // namespace
