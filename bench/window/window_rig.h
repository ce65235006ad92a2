#pragma once
// What the window benchmarks share: the space window wired to spacemgm-cloud
// as the host wires it (host configuration, network probe, the host's backup
// window, a view model), shown on the offscreen surface, and a message loop
// that runs as the modal loop does and says when a frame was painted.
//
// The loop blocks in GetMessageW and never polls, so a measured span holds
// the window's work and the wait for its messages, nothing of ours.
#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include "host/backup_host_window.h"
#include "host/host_config.h"
#include "host/network_probe.h"
#include "space_data/cloud_space_view_model.h"
#include "window/space_mgm_wnd.h"

namespace window_bench {

using Clock = std::chrono::steady_clock;

double MillisecondsBetween(Clock::time_point from, Clock::time_point to);

// The emulator's host configuration with data and log folders under `workDir`
// and the network probe in `networkMode` ("online", "system", ...).
host::HostConfig ConfigFor(const std::string& configPath, const std::string& workDir,
                           const std::string& networkMode);

// New windows go to the offscreen surface, take their resources from
// `resourceRoot` (the folder holding Res/), and are drawn in en-US at `dpi`.
void UseOffscreenWindows(const std::string& resourceRoot, int dpi);

// The host's side for the life of a benchmark: its configuration in force,
// the network probe, and the host window that answers the backup messages.
class HostRig
{
public:
    explicit HostRig(const host::HostConfig& config);
    HostRig(const HostRig&) = delete;
    HostRig& operator=(const HostRig&) = delete;

    // A view model as the host makes one before it opens the window.
    std::shared_ptr<CloudSpaceManagementViewModel> NewViewModel();

private:
    host::ScopedNetworkProbe probe_;
    host::BackupHostWindow backupWindow_;
};

// A window frame that has just been painted, and what it showed.
struct PaintedFrame
{
    Clock::time_point paintedAt;
    int page = -1; // tab_switch's page (PageType)
    int rows = 0;  // rows of SpaceList
};

// The window's page and rows as they are now.
PaintedFrame CurrentView(SpaceMgmWnd& window);

// Runs the calling thread's messages and calls `onPaint` after each frame of
// `window` was painted, until it returns true (true) or `timeoutMs` passed
// or the window is gone (false).
bool PumpUntilPainted(SpaceMgmWnd& window, const std::function<bool(const PaintedFrame&)>& onPaint,
                      int timeoutMs);

// Runs the calling thread's messages, calling `observe` before each is
// dispatched and `after` once it was, until `done` holds (true) or
// `timeoutMs` passed (false). `done` is checked after each message and every
// `wakeEveryMs` (at least 10 ms, the surface's shortest timer): a wake-up
// costs CPU, so a measurement of an idle window wakes only at its end.
bool PumpObserving(const std::function<void(const MSG&)>& observe,
                   const std::function<void(const MSG&)>& after, const std::function<bool()>& done,
                   int timeoutMs, int wakeEveryMs = 10);

// Pumps until the window is still: every load ended and was taken, the bar
// animation is over and the loading page has gone.
bool PumpUntilStill(SpaceMgmWnd& window, int timeoutMs);

// Closes the window as its close button does, and pumps until it is gone
// and no load is left running.
void CloseAndDrain(SpaceMgmWnd& window);

// CPU time of the whole process, all threads, in seconds.
double ProcessCpuSeconds();
// A "Vm..." line of /proc/self/status in KiB, or -1.
long StatusKilobytes(const std::string& field);

} // namespace window_bench
