#include "window_rig.h"

#include <ctime>
#include <fstream>

#include "app/cbs_backup_deleter.h"
#include "toolkit/window/native_surface.h"
#include "window/load_sequence.h"
#include "window/operation_records.h"

namespace window_bench {

using namespace DuiLib;

double MillisecondsBetween(Clock::time_point from, Clock::time_point to)
{
    return std::chrono::duration<double, std::milli>(to - from).count();
}

host::HostConfig ConfigFor(const std::string& configPath, const std::string& workDir,
                           const std::string& networkMode)
{
    host::HostConfig config = host::LoadHostConfigFile(configPath);
    config.dataDir = workDir + "/data";
    config.logDir = workDir + "/log";
    config.timeoutSeconds = 5;
    config.networkMode = networkMode;
    return config;
}

void UseOffscreenWindows(const std::string& resourceRoot, int dpi)
{
    SetDefaultSurfaceKind(SurfaceKind::Offscreen);
    CPaintManagerUI::SetInstancePath(attr::Widen(resourceRoot).c_str());
    CResourceManager::GetInstance()->SetLanguage(L"en-US");
    CDPI::SetProcessDPI(dpi);
}

namespace {

const host::HostConfig& InForce(const host::HostConfig& config)
{
    host::SetCurrentHostConfig(config);
    return config;
}

} // namespace

HostRig::HostRig(const host::HostConfig& config)
    : probe_(InForce(config)), backupWindow_(app::DeleteDeviceBackup)
{
}

std::shared_ptr<CloudSpaceManagementViewModel> HostRig::NewViewModel()
{
    auto viewModel = std::make_shared<CloudSpaceManagementViewModel>();
    viewModel->SetCloudbackupTipParam(backupWindow_.Window(), host::kBackupVersionMessage,
                                      host::kBackupDeviceListMessage, host::kBackupDeleteMessage);
    return viewModel;
}

PaintedFrame CurrentView(SpaceMgmWnd& window)
{
    PaintedFrame view;
    view.paintedAt = Clock::now();
    CPaintManagerUI& pm = window.GetPaintManager();
    if (auto* tab = dynamic_cast<CTabLayoutUI*>(pm.FindControl(L"tab_switch")))
        view.page = tab->GetCurSel();
    if (auto* list = dynamic_cast<CListUI*>(pm.FindControl(L"SpaceList")))
        view.rows = list->GetCount();
    return view;
}

bool PumpObserving(const std::function<void(const MSG&)>& observe,
                   const std::function<void(const MSG&)>& after, const std::function<bool()>& done,
                   int timeoutMs, int wakeEveryMs)
{
    const auto deadline = Clock::now() + std::chrono::milliseconds(timeoutMs);
    // A thread timer only wakes the loop to look at `done` and the clock; it
    // is never dispatched.
    const UINT_PTR wake = ::SetTimer(nullptr, 0, static_cast<UINT>(wakeEveryMs), nullptr);
    bool finished = done();
    MSG msg{};
    while (!finished && Clock::now() < deadline && ::GetMessageW(&msg, nullptr, 0, 0) > 0) {
        if (msg.hwnd == nullptr && msg.message == WM_TIMER && msg.wParam == wake) {
            finished = done();
            continue;
        }
        observe(msg);
        ::DispatchMessageW(&msg);
        after(msg);
        finished = done();
    }
    ::KillTimer(nullptr, wake);
    return finished;
}

bool PumpUntilPainted(SpaceMgmWnd& window, const std::function<bool(const PaintedFrame&)>& onPaint,
                      int timeoutMs)
{
    const HWND hwnd = window.GetHWND();
    const auto deadline = Clock::now() + std::chrono::milliseconds(timeoutMs);
    // Here the timer only marks the deadline: the loop sleeps until the
    // window has a message, as the modal loop does.
    const UINT_PTR wake = ::SetTimer(nullptr, 0, static_cast<UINT>(timeoutMs), nullptr);
    bool satisfied = false;
    MSG msg{};
    while (!satisfied && ::IsWindow(hwnd) && Clock::now() < deadline &&
           ::GetMessageW(&msg, nullptr, 0, 0) > 0) {
        if (msg.hwnd == nullptr && msg.message == WM_TIMER && msg.wParam == wake)
            continue;
        ::DispatchMessageW(&msg);
        if (msg.message == WM_PAINT && msg.hwnd == hwnd && ::IsWindow(hwnd))
            satisfied = onPaint(CurrentView(window));
    }
    ::KillTimer(nullptr, wake);
    return satisfied;
}

bool PumpUntilStill(SpaceMgmWnd& window, int timeoutMs)
{
    const auto nothing = [](const MSG&) {};
    return PumpObserving(
        nothing, nothing,
        [&window] {
            return LoadSequence::Instance().Idle() && !window.IsBarAnimating() &&
                   CurrentView(window).page != PageLoading;
        },
        timeoutMs);
}

void CloseAndDrain(SpaceMgmWnd& window)
{
    const HWND hwnd = window.GetHWND();
    if (hwnd != nullptr && ::IsWindow(hwnd))
        window.Close(kExitClosed);
    const auto nothing = [](const MSG&) {};
    PumpObserving(
        nothing, nothing,
        [hwnd] { return (hwnd == nullptr || !::IsWindow(hwnd)) && LoadSequence::Instance().Idle(); }, 20000);
}

double ProcessCpuSeconds()
{
    timespec spent{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &spent);
    return static_cast<double>(spent.tv_sec) + static_cast<double>(spent.tv_nsec) / 1e9;
}

long StatusKilobytes(const std::string& field)
{
    std::ifstream status("/proc/self/status");
    std::string line;
    const std::string prefix = field + ":";
    while (std::getline(status, line)) {
        if (line.compare(0, prefix.size(), prefix) == 0)
            return std::stol(line.substr(prefix.size()));
    }
    return -1;
}

} // namespace window_bench
