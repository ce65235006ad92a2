// Frames of the space window on the offscreen surface, against spacemgm-cloud
// (sample account: all twelve category rows, the backup panel).
//
// BM_ContentPageFrame/<dpi>/<relayout>: one frame of the still content page,
// painted as WM_PAINT paints it (CPaintManagerUI::Paint into the window's
// surface); with relayout 1 the whole tree is laid out again first, as after
// a size or text change. Goal: under 4 ms at dpi 96 (scale 1); scale 2 is
// dpi 192. Counters: width, height (device pixels).
//
// BM_BarAnimation: a new window each iteration, its bar animation watched
// from the message loop: each SPACE_BAR_TIMER tick from the moment its
// WM_TIMER is dispatched to the end of the WM_PAINT that follows it. Goal:
// 31 ticks, each painted within 10 ms. Counters: ticks (per window),
// median_tick_to_paint_ms, worst_tick_to_paint_ms, ticks_over_10ms,
// unpainted_ticks (a tick whose frame changed nothing on screen),
// over_10ms_after_other_messages (slow ticks whose frame waited for other
// messages of the window, such as the load's end building the list),
// worst_tick_cpu_ms (the window thread's CPU time from a tick to its frame:
// above it, the tick waited for a core), and
// median_tick_interval_ms / worst_tick_interval_ms between two ticks. The
// manual time is the animation from its first tick to its last frame.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <memory>
#include <vector>

#include "cloud_emulator.h"
#include "window/space_window_types.h"
#include "window/usage_bar.h"
#include "window_rig.h"

namespace {

using namespace window_bench;
using spacemgm_test::CloudEmulator;

constexpr int kCategoryRows = 12;
constexpr double kTickPeriodMs = 10;

// CPU time of the calling thread in milliseconds: what a tick cost the
// window thread, apart from time the machine gave to others.
double ThreadCpuMs()
{
    timespec spent{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &spent);
    return static_cast<double>(spent.tv_sec) * 1e3 + static_cast<double>(spent.tv_nsec) / 1e6;
}

double Median(std::vector<double> values)
{
    if (values.empty())
        return -1;
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void BM_ContentPageFrame(benchmark::State& state)
{
    CloudEmulator cloud;
    UseOffscreenWindows(SPACEMGM_SOURCE_DIR "/", static_cast<int>(state.range(0)));
    const bool relayout = state.range(1) != 0;
    {
        HostRig rig(ConfigFor(cloud.ConfigPath(), cloud.WorkDir(), "online"));
        SpaceMgmWnd window(nullptr, rig.NewViewModel());
        if (window.Create(nullptr, L"SpaceMgmWnd", 0, 0, 0, 0, 0, 0) == nullptr) {
            state.SkipWithError(window.GetCreateError().c_str());
            return;
        }
        window.ShowWindow(true);
        if (!PumpUntilStill(window, 30000) || CurrentView(window).page != PageContent ||
            CurrentView(window).rows != kCategoryRows) {
            state.SkipWithError("the window did not show the content page with twelve rows");
            CloseAndDrain(window);
            return;
        }
        DuiLib::CPaintManagerUI& pm = window.GetPaintManager();
        for (auto _ : state) {
            if (relayout)
                pm.NeedUpdate();
            pm.Paint();
        }
        const DuiLib::CDPI* dpi = pm.GetDPIObj();
        state.counters["width"] = dpi->Scale(pm.GetClientSize().cx);
        state.counters["height"] = dpi->Scale(pm.GetClientSize().cy);
        CloseAndDrain(window);
    }
    UseOffscreenWindows(SPACEMGM_SOURCE_DIR "/", 96);
}
BENCHMARK(BM_ContentPageFrame)
    ->ArgNames({"dpi", "relayout"})
    ->Args({96, 1})
    ->Args({96, 0})
    ->Args({192, 1})
    ->Args({192, 0})
    ->Unit(benchmark::kMillisecond);

// What the message loop saw of one window's animation.
struct AnimationWatch
{
    HWND hwnd = nullptr;
    bool tickPending = false;
    Clock::time_point tickAt;
    Clock::time_point firstTick;
    Clock::time_point lastPaint;
    int ticks = 0;
    int unpainted = 0;
    // Messages the window handled between a tick and its frame (a load's
    // end building the list lands there sometimes).
    int messagesSinceTick = 0;
    int slowAfterOtherMessages = 0;
    double tickCpuMs = 0;
    double worstTickCpuMs = 0;
    std::vector<double> tickToPaintMs;
    std::vector<double> intervalMs;

    void Before(const MSG& msg)
    {
        const bool tick = msg.hwnd == hwnd && msg.message == WM_TIMER && msg.wParam == SPACE_BAR_TIMER;
        if (!tick && tickPending && msg.message != WM_PAINT)
            ++messagesSinceTick;
        if (!tick)
            return;
        const Clock::time_point now = Clock::now();
        if (ticks == 0)
            firstTick = now;
        else
            intervalMs.push_back(MillisecondsBetween(tickAt, now));
        if (tickPending)
            ++unpainted;
        tickPending = true;
        tickCpuMs = ThreadCpuMs();
        messagesSinceTick = 0;
        tickAt = now;
        ++ticks;
    }
    void After(const MSG& msg)
    {
        if (msg.hwnd != hwnd || msg.message != WM_PAINT || !tickPending)
            return;
        lastPaint = Clock::now();
        tickToPaintMs.push_back(MillisecondsBetween(tickAt, lastPaint));
        worstTickCpuMs = std::max(worstTickCpuMs, ThreadCpuMs() - tickCpuMs);
        if (tickToPaintMs.back() > kTickPeriodMs && messagesSinceTick > 0)
            ++slowAfterOtherMessages;
        tickPending = false;
    }
    // The last tick has been painted, or has had 100 ms to be.
    bool LastTickSettled() const { return !tickPending || MillisecondsBetween(tickAt, Clock::now()) > 100; }
};

// Opens a window and watches its animation; false when it did not end.
bool WatchAnimation(HostRig& rig, AnimationWatch& watch)
{
    SpaceMgmWnd window(nullptr, rig.NewViewModel());
    if (window.Create(nullptr, L"SpaceMgmWnd", 0, 0, 0, 0, 0, 0) == nullptr)
        return false;
    watch.hwnd = window.GetHWND();
    window.ShowWindow(true);
    const bool ended = PumpObserving(
        [&watch](const MSG& msg) { watch.Before(msg); }, [&watch](const MSG& msg) { watch.After(msg); },
        [&] { return watch.ticks > 0 && !window.IsBarAnimating() && watch.LastTickSettled(); }, 30000);
    if (watch.tickPending)
        ++watch.unpainted;
    const bool still = ended && PumpUntilStill(window, 30000);
    CloseAndDrain(window);
    return still;
}

void BM_BarAnimation(benchmark::State& state)
{
    CloudEmulator cloud;
    UseOffscreenWindows(SPACEMGM_SOURCE_DIR "/", 96);
    HostRig rig(ConfigFor(cloud.ConfigPath(), cloud.WorkDir(), "online"));
    std::vector<double> tickToPaint, intervals;
    int ticks = 0, unpainted = 0, slowAfterOtherMessages = 0;
    double worstTickCpuMs = 0;
    for (auto _ : state) {
        // The frame counter is process-wide; a window closed mid-animation
        // would have this one start part-way.
        if (BarAnimationFrame().load() != 0) {
            state.SkipWithError("the bar's frame counter did not stand at 0");
            return;
        }
        AnimationWatch watch;
        if (!WatchAnimation(rig, watch)) {
            state.SkipWithError("the bar animation did not end");
            return;
        }
        ticks += watch.ticks;
        unpainted += watch.unpainted;
        slowAfterOtherMessages += watch.slowAfterOtherMessages;
        worstTickCpuMs = std::max(worstTickCpuMs, watch.worstTickCpuMs);
        tickToPaint.insert(tickToPaint.end(), watch.tickToPaintMs.begin(), watch.tickToPaintMs.end());
        intervals.insert(intervals.end(), watch.intervalMs.begin(), watch.intervalMs.end());
        state.SetIterationTime(MillisecondsBetween(watch.firstTick, watch.lastPaint) / 1000.0);
    }
    state.counters["ticks"] = static_cast<double>(ticks) / static_cast<double>(state.iterations());
    state.counters["unpainted_ticks"] = unpainted;
    state.counters["median_tick_to_paint_ms"] = Median(tickToPaint);
    state.counters["worst_tick_to_paint_ms"] =
        tickToPaint.empty() ? -1 : *std::max_element(tickToPaint.begin(), tickToPaint.end());
    state.counters["ticks_over_10ms"] = static_cast<double>(
        std::count_if(tickToPaint.begin(), tickToPaint.end(), [](double ms) { return ms > kTickPeriodMs; }));
    state.counters["over_10ms_after_other_messages"] = slowAfterOtherMessages;
    state.counters["worst_tick_cpu_ms"] = worstTickCpuMs;
    state.counters["median_tick_interval_ms"] = Median(intervals);
    state.counters["worst_tick_interval_ms"] =
        intervals.empty() ? -1 : *std::max_element(intervals.begin(), intervals.end());
}
BENCHMARK(BM_BarAnimation)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

} // namespace
