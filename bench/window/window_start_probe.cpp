// The program that window_bench starts to time a window from a real process
// start: it opens the space window on the offscreen surface against the
// emulator and writes what happened, as lines of "key value...", to a file
// descriptor it inherited. Times are CLOCK_MONOTONIC nanoseconds, the clock
// the parent reads too, so the parent can place them after its spawn.
//
//   window_start_probe CONFIG WORKDIR RESOURCES REPORT_FD NETWORK_MODE IDLE_MS
//
// Lines, in order (<cpu> is two numbers: the CPU milliseconds this thread and
// the whole process have used since exec, to tell work from waiting):
//   main <ns> <cpu>                 main() entered
//   created <ns> <cpu>              Create returned and the window is shown
//   first_paint <ns> <page> <cpu>   first frame painted, and its page
//   content_paint <ns> <rows>       first frame of the content page with rows
//   idle <cpu_percent> <page>       with IDLE_MS > 0: the still window's CPU
//   memory <VmRSS kB> <VmHWM kB>    with IDLE_MS > 0: measured after the idle
//   error <text>                    instead of what could not be reached
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>

#include "window/space_window_types.h"
#include "window_rig.h"

namespace {

using namespace window_bench;

long long MonotonicNanoseconds()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<long long>(now.tv_sec) * 1000000000LL + now.tv_nsec;
}

// This thread's and the process's CPU time since exec, in milliseconds.
std::string CpuSpent()
{
    const auto ms = [](clockid_t clock) {
        timespec spent{};
        clock_gettime(clock, &spent);
        return std::to_string(static_cast<double>(spent.tv_sec) * 1e3 +
                              static_cast<double>(spent.tv_nsec) / 1e6);
    };
    return ms(CLOCK_THREAD_CPUTIME_ID) + " " + ms(CLOCK_PROCESS_CPUTIME_ID);
}

class Report
{
public:
    explicit Report(int fd) : fd_(fd) {}
    void Line(const std::string& text) const
    {
        const std::string line = text + "\n";
        // A pipe write of this size is atomic; the parent reads whole lines.
        if (::write(fd_, line.data(), line.size()) != static_cast<ssize_t>(line.size()))
            std::_Exit(3);
    }

private:
    int fd_;
};

// Pumps a still window for `idleMs`; the process's CPU share in percent.
double IdleCpuPercent(int idleMs)
{
    const double cpuBefore = ProcessCpuSeconds();
    const auto wallBefore = Clock::now();
    const auto until = wallBefore + std::chrono::milliseconds(idleMs);
    const auto nothing = [](const MSG&) {};
    PumpObserving(
        nothing, nothing, [until] { return Clock::now() >= until; }, idleMs + 1000, idleMs);
    const double wall = MillisecondsBetween(wallBefore, Clock::now()) / 1000.0;
    return 100.0 * (ProcessCpuSeconds() - cpuBefore) / wall;
}

int Run(int argc, char** argv, long long mainNs)
{
    if (argc != 7) {
        std::fprintf(stderr, "usage: %s CONFIG WORKDIR RESOURCES REPORT_FD NETWORK_MODE IDLE_MS\n", argv[0]);
        return 2;
    }
    const Report report(std::atoi(argv[4]));
    report.Line("main " + std::to_string(mainNs) + " " + CpuSpent());
    const int idleMs = std::atoi(argv[6]);

    UseOffscreenWindows(argv[3], 96);
    HostRig rig(ConfigFor(argv[1], argv[2], argv[5]));
    SpaceMgmWnd window(nullptr, rig.NewViewModel());
    if (window.Create(nullptr, L"SpaceMgmWnd", 0, 0, 0, 0, 0, 0) == nullptr) {
        report.Line("error the window was not created: " + window.GetCreateError());
        return 1;
    }
    window.ShowWindow(true);
    report.Line("created " + std::to_string(MonotonicNanoseconds()) + " " + CpuSpent());

    bool first = true;
    const bool content = PumpUntilPainted(
        window,
        [&](const PaintedFrame& frame) {
            if (first) {
                report.Line("first_paint " + std::to_string(MonotonicNanoseconds()) + " " +
                            std::to_string(frame.page) + " " + CpuSpent());
                first = false;
            }
            if (frame.page != PageContent || frame.rows == 0)
                return false;
            report.Line("content_paint " + std::to_string(MonotonicNanoseconds()) + " " +
                        std::to_string(frame.rows));
            return true;
        },
        30000);
    if (!content) {
        report.Line("error no frame of the content page within 30 s; page " +
                    std::to_string(CurrentView(window).page));
    } else if (idleMs > 0) {
        if (!PumpUntilStill(window, 30000)) {
            report.Line("error the window did not become still within 30 s");
        } else {
            const double cpu = IdleCpuPercent(idleMs);
            report.Line("idle " + std::to_string(cpu) + " " + std::to_string(CurrentView(window).page));
            report.Line("memory " + std::to_string(StatusKilobytes("VmRSS")) + " " +
                        std::to_string(StatusKilobytes("VmHWM")));
        }
    }
    CloseAndDrain(window);
    return content ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    const long long mainNs = MonotonicNanoseconds();
    return Run(argc, argv, mainNs);
}
