#include "harness/ui_harness.h"

#include <cairo.h>

#include <chrono>
#include <filesystem>
#include <sstream>
#include <thread>

#include <json/reader.h>

#include "toolkit/window/native_surface.h"

namespace uitest {

SkinWindow::SkinWindow(std::wstring skin, std::wstring folder) : m_skin(skin), m_folder(folder) {}

int SkinWindow::CountNotify(const std::wstring& type) const
{
    int count = 0;
    for (const auto& seen : notifications)
        count += seen.type == type ? 1 : 0;
    return count;
}

CControlUI* SkinWindow::CreateControl(LPCTSTR pstrClass)
{
    return onCreateControl ? onCreateControl(pstrClass) : nullptr;
}

void SkinWindow::Notify(TNotifyUI& msg)
{
    notifications.push_back(SeenNotify{msg.sType.str(), msg.pSender ? msg.pSender->GetName().str() : L"",
                                       msg.wParam, msg.lParam, msg.sVirtualWnd.str()});
    if (onNotify)
        onNotify(msg);
    WindowImplBaseEx::Notify(msg);
}

LRESULT SkinWindow::HandleMessage(UINT uMsg, WPARAM wParam, LPARAM lParam)
{
    if (onMessage) {
        bool handled = false;
        const LRESULT result = onMessage(uMsg, wParam, lParam, handled);
        if (handled)
            return result;
    }
    return WindowImplBaseEx::HandleMessage(uMsg, wParam, lParam);
}

void SkinWindow::OnFinalMessage(HWND hWnd)
{
    finalMessageSeen = true;
    WindowImplBaseEx::OnFinalMessage(hWnd);
}

void UseOffscreenToolkit()
{
    SetDefaultSurfaceKind(SurfaceKind::Offscreen);
    CPaintManagerUI::SetInstancePath(attr::Widen(SPACEMGM_SOURCE_DIR).c_str());
}

bool Open(SkinWindow& window, HWND parent)
{
    if (window.Create(parent, L"test", 0, 0, 0, 0, 0, 0) == nullptr)
        return false;
    window.ShowWindow(true);
    PumpPending();
    return true;
}

void PumpPending()
{
    MSG msg{};
    while (::PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
        if (msg.message == WM_QUIT) {
            ::PostQuitMessage(static_cast<int>(msg.wParam));
            return;
        }
        ::DispatchMessageW(&msg);
    }
}

void Pump(int ms)
{
    PumpUntil([] { return false; }, ms);
}

bool PumpUntil(const std::function<bool()>& done, int timeoutMs)
{
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(timeoutMs);
    while (!done()) {
        if (std::chrono::steady_clock::now() >= deadline)
            return false;
        MSG msg{};
        if (::PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
            ::DispatchMessageW(&msg);
        } else {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    }
    return true;
}

POINT CentreOf(CPaintManagerUI& pm, CControlUI* control)
{
    const RECT& r = control->GetPos();
    const CDPI* dpi = pm.GetDPIObj();
    return POINT{dpi->Scale((r.left + r.right) / 2), dpi->Scale((r.top + r.bottom) / 2)};
}

bool ClickAt(HWND hwnd, POINT p)
{
    ::SendMessageW(hwnd, WM_MOUSEMOVE, 0, MAKELPARAM(p.x, p.y));
    ::SendMessageW(hwnd, WM_LBUTTONDOWN, 0, MAKELPARAM(p.x, p.y));
    ::SendMessageW(hwnd, WM_LBUTTONUP, 0, MAKELPARAM(p.x, p.y));
    return true;
}

bool Click(CPaintManagerUI& pm, const wchar_t* name)
{
    pm.UpdateLayoutIfNeeded();
    CControlUI* control = pm.FindControl(name);
    if (control == nullptr || !control->IsVisible())
        return false;
    return ClickAt(pm.GetPaintWindow(), CentreOf(pm, control));
}

void MoveMouse(HWND hwnd, POINT p)
{
    ::SendMessageW(hwnd, WM_MOUSEMOVE, 0, MAKELPARAM(p.x, p.y));
}

void PressKey(HWND hwnd, UINT vk, bool shift)
{
    ::SendMessageW(hwnd, WM_KEYDOWN, vk, shift ? 1 : 0);
}

void Wheel(HWND hwnd, POINT p, int notches)
{
    ::SendMessageW(hwnd, WM_MOUSEWHEEL,
                   MAKEWPARAM(0, static_cast<WORD>(static_cast<short>(notches * WHEEL_DELTA))),
                   MAKELPARAM(p.x, p.y));
}

Snapshot::Snapshot(CPaintManagerUI& pm)
{
    pm.UpdateLayoutIfNeeded();
    const SIZE client = pm.GetClientSize();
    const CDPI* dpi = pm.GetDPIObj();
    m_surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, std::max(1, dpi->Scale(client.cx)),
                                           std::max(1, dpi->Scale(client.cy)));
    cairo_t* cr = cairo_create(m_surface);
    pm.Render(cr);
    cairo_destroy(cr);
    cairo_surface_flush(m_surface);
}

Snapshot::~Snapshot()
{
    cairo_surface_destroy(m_surface);
}

int Snapshot::width() const
{
    return cairo_image_surface_get_width(m_surface);
}

int Snapshot::height() const
{
    return cairo_image_surface_get_height(m_surface);
}

std::uint32_t Snapshot::Pixel(int x, int y) const
{
    if (x < 0 || y < 0 || x >= width() || y >= height())
        return 0;
    const unsigned char* data = cairo_image_surface_get_data(m_surface);
    const int stride = cairo_image_surface_get_stride(m_surface);
    const std::uint32_t p = *reinterpret_cast<const std::uint32_t*>(data + y * stride + x * 4);
    const std::uint32_t a = p >> 24;
    if (a == 0)
        return 0;
    auto un = [a](std::uint32_t c) { return std::min<std::uint32_t>(255, (c * 255 + a / 2) / a); };
    return (a << 24) | (un((p >> 16) & 0xFF) << 16) | (un((p >> 8) & 0xFF) << 8) | un(p & 0xFF);
}

bool Snapshot::WritePng(const std::string& path) const
{
    return cairo_surface_write_to_png(m_surface, path.c_str()) == CAIRO_STATUS_SUCCESS;
}

int Snapshot::CountNear(const RECT& rect, std::uint32_t rgb, int tolerance) const
{
    int count = 0;
    for (int y = rect.top; y < rect.bottom; ++y) {
        for (int x = rect.left; x < rect.right; ++x) {
            const std::uint32_t p = Pixel(x, y);
            bool near = true;
            for (int shift = 0; shift <= 16; shift += 8) {
                const int a = static_cast<int>((p >> shift) & 0xFF);
                const int b = static_cast<int>((rgb >> shift) & 0xFF);
                if (std::abs(a - b) > tolerance)
                    near = false;
            }
            count += near ? 1 : 0;
        }
    }
    return count;
}

int Snapshot::CountDark(const RECT& rect, int maxLuma) const
{
    int count = 0;
    for (int y = rect.top; y < rect.bottom; ++y) {
        for (int x = rect.left; x < rect.right; ++x) {
            const std::uint32_t p = Pixel(x, y);
            if ((p >> 24) < 128)
                continue;
            const int luma = static_cast<int>(
                (((p >> 16) & 0xFF) * 299 + ((p >> 8) & 0xFF) * 587 + (p & 0xFF) * 114) / 1000);
            count += luma <= maxLuma ? 1 : 0;
        }
    }
    return count;
}

bool ParseControlDump(const std::string& text, Json::Value& dump)
{
    Json::CharReaderBuilder builder;
    std::string errors;
    std::istringstream in(text);
    return Json::parseFromStream(builder, in, &dump, &errors) && dump.isObject();
}

const Json::Value* FindInControlDump(const Json::Value& node, const std::string& name)
{
    if (node["name"].asString() == name)
        return &node;
    for (const auto& child : node["children"]) {
        if (const Json::Value* found = FindInControlDump(child, name))
            return found;
    }
    return nullptr;
}

std::string OutputPath(const std::string& fileName)
{
    const std::filesystem::path dir = std::filesystem::path(SPACEMGM_BINARY_DIR) / "test-output" / "toolkit";
    std::filesystem::create_directories(dir);
    return (dir / fileName).string();
}

} // namespace uitest

// fontconfig keeps its font caches until the process ends and hides the
// pointers to them, so LeakSanitizer reports them as leaked; they are not
// ours to free.
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libfontconfig.so\n";
}

// fontconfig, under pango, shares its caches between threads with its own
// atomics, which ThreadSanitizer cannot see in an uninstrumented library.
extern "C" const char* __tsan_default_suppressions()
{
    return "called_from_lib:libfontconfig.so\nrace:libfontconfig.so\n";
}
