// Frame cost: layout and paint of a 600x400 window holding a list of 100
// rows (goal: under 4 ms a frame at scale 1). Idle CPU: a shown window
// whose message loop has nothing to do, over the first second after its
// first paint and over the second after that (goal: under 1 % of a core in
// both).
//
// Run: toolkit_bench [--benchmark_filter=...]. SPACEMGM_TOOLKIT_BACKEND
// chooses the surface of the idle window (offscreen by default here).

#include <benchmark/benchmark.h>
#include <cairo.h>

#include <chrono>
#include <ctime>
#include <memory>

#include "toolkit/duilib.h"
#include "toolkit/window/native_surface.h"

using namespace DuiLib;

namespace {

constexpr const wchar_t* kWindowSkin = LR"(<Window size="600,400">
  <Font id="0" name="Noto Sans" size="14" />
  <Font id="1" name="Noto Sans" size="12" />
  <VerticalLayout bkcolor="#FFF7F8FA" inset="16,16,16,16" childpadding="8">
    <HorizontalLayout height="12" bkcolor="#FFE9EBEF" borderround="12,12">
      <Progress width="200" max="200" value="200" forecolor="#FF0A59F7" rounddirection="1" borderround="12,12" />
      <Progress width="100" max="100" value="100" forecolor="#FF00B578" />
    </HorizontalLayout>
    <List name="list" bkcolor="#FFFFFFFF" borderround="12,12" itemselectedbkcolor="#FFE8F0FF" itemlinecolor="#FFEEEEEE" />
  </VerticalLayout></Window>)";

constexpr const wchar_t* kRowSkin = LR"(<ListContainerElement height="48" inset="12,0,12,0">
  <HorizontalLayout childvalign="vcenter" childpadding="12">
    <Control name="itemPic" width="28" height="28" bkimage="Gallery/Toolkit/icon_cloud.svg" />
    <VerticalLayout childvalign="vcenter">
      <Label name="itemName" height="20" font="0" />
      <Label name="itemRemark" height="16" font="1" textcolor="#FF888888" />
    </VerticalLayout>
    <Label name="itemSize" width="90" align="right" font="0" />
  </HorizontalLayout>
</ListContainerElement>)";

class BenchWindow : public WindowImplBaseEx
{
public:
    CPaintManagerUI& pm() { return m_pm; }

protected:
    LPCTSTR GetWindowClassName() const override { return L"BenchWindow"; }
    CDuiString GetSkinFolder() override { return CDuiString(); }
    CDuiString GetSkinFile() override { return kWindowSkin; }
    void InitWindow() override
    {
        auto* list = dynamic_cast<CListUI*>(m_pm.FindControl(L"list"));
        for (int i = 0; i < 100; ++i) {
            CDialogBuilder builder;
            CControlUI* row = builder.Create(kRowSkin, nullptr, nullptr, &m_pm);
            CDuiString text;
            text.Format(L"Category %d", i);
            m_pm.FindSubControlByName(row, L"itemName")->SetText(text);
            m_pm.FindSubControlByName(row, L"itemRemark")->SetText(L"1 234 items");
            m_pm.FindSubControlByName(row, L"itemSize")->SetText(L"12.5 GB");
            list->Add(row);
        }
        list->SelectItem(0);
    }
};

void Setup()
{
    CPaintManagerUI::SetInstancePath(attr::Widen(SPACEMGM_SOURCE_DIR).c_str());
}

void BM_LayoutAndPaintListWindow(benchmark::State& state)
{
    Setup();
    SetDefaultSurfaceKind(SurfaceKind::Offscreen);
    BenchWindow window;
    if (window.Create(nullptr, L"bench", 0, 0, 0, 0, 0, 0) == nullptr) {
        state.SkipWithError("window not created");
        return;
    }
    cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 600, 400);
    auto* list = dynamic_cast<CListUI*>(window.pm().FindControl(L"list"));
    int frame = 0;
    for (auto _ : state) {
        // A full frame: the whole tree laid out again and painted, with the
        // list scrolled so that different rows show.
        list->SetScrollPos((frame++ % 10) * 200);
        window.pm().NeedUpdate();
        window.pm().UpdateLayoutIfNeeded();
        cairo_t* cr = cairo_create(surface);
        window.pm().Render(cr);
        cairo_destroy(cr);
        cairo_surface_flush(surface);
    }
    cairo_surface_destroy(surface);
    ::DestroyWindow(window.GetHWND());
}
BENCHMARK(BM_LayoutAndPaintListWindow)->Unit(benchmark::kMillisecond);

double ProcessCpuSeconds()
{
    timespec ts{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &ts);
    return static_cast<double>(ts.tv_sec) + static_cast<double>(ts.tv_nsec) / 1e9;
}

constexpr UINT_PTR kPumpTimer = 1;

// Runs the real modal loop until the window's first WM_PAINT has been
// dispatched; false when none came within five seconds.
bool PumpUntilFirstPaint(HWND hwnd)
{
    ::SetTimer(hwnd, kPumpTimer, 5000, nullptr);
    MSG msg{};
    bool painted = false;
    while (!painted && ::GetMessageW(&msg, nullptr, 0, 0) > 0) {
        if (msg.message == WM_TIMER && msg.hwnd == hwnd && msg.wParam == kPumpTimer)
            break;
        ::DispatchMessageW(&msg);
        painted = msg.message == WM_PAINT && msg.hwnd == hwnd;
    }
    ::KillTimer(hwnd, kPumpTimer);
    return painted;
}

// Runs the loop for one second, ended by a timer; returns the share of a core
// the process used meanwhile, in percent.
double CpuPercentOverOneSecond(HWND hwnd)
{
    ::SetTimer(hwnd, kPumpTimer, 1000, nullptr);
    const double cpuBefore = ProcessCpuSeconds();
    const auto wallBefore = std::chrono::steady_clock::now();
    MSG msg{};
    while (::GetMessageW(&msg, nullptr, 0, 0) > 0) {
        if (msg.message == WM_TIMER && msg.hwnd == hwnd && msg.wParam == kPumpTimer)
            break;
        ::DispatchMessageW(&msg);
    }
    ::KillTimer(hwnd, kPumpTimer);
    const double wall = std::chrono::duration<double>(std::chrono::steady_clock::now() - wallBefore).count();
    return 100.0 * (ProcessCpuSeconds() - cpuBefore) / wall;
}

// A shown window whose loop has nothing to do. Each iteration opens a new
// window, waits for its first paint, then measures two seconds of the loop:
// the first second after the first paint (anything the window still does
// once it is up shows here) and the second after it.
void BM_IdleWindowCpu(benchmark::State& state)
{
    Setup();
    double firstSecond = 0;
    double later = 0;
    for (auto _ : state) {
        BenchWindow window;
        if (window.Create(nullptr, L"idle", 0, 0, 0, 0, 0, 0) == nullptr) {
            state.SkipWithError("window not created");
            return;
        }
        window.ShowWindow(true);
        const HWND hwnd = window.GetHWND();
        if (!PumpUntilFirstPaint(hwnd)) {
            state.SkipWithError("the window was never painted");
            ::DestroyWindow(hwnd);
            return;
        }
        const auto start = std::chrono::steady_clock::now();
        firstSecond += CpuPercentOverOneSecond(hwnd);
        later += CpuPercentOverOneSecond(hwnd);
        state.SetIterationTime(
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
        ::DestroyWindow(hwnd);
    }
    const double iterations = static_cast<double>(state.iterations());
    state.counters["first_second_cpu_percent"] = firstSecond / iterations;
    state.counters["idle_cpu_percent"] = later / iterations;
}
BENCHMARK(BM_IdleWindowCpu)->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
