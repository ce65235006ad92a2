#include "app/window_headless.h"

#include <cairo.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <thread>
#include <vector>

#include "app/category_names.h"
#include "window/load_sequence.h"
#include "window/space_list_ui.h"

using namespace DuiLib;

namespace app {

namespace {

// Handles the window's messages (timers included) until `done` holds or the
// deadline passes.
template <class Done> bool PumpUntil(Done done, std::chrono::steady_clock::time_point deadline)
{
    while (!done()) {
        if (std::chrono::steady_clock::now() >= deadline)
            return false;
        MSG msg{};
        if (::PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE))
            ::DispatchMessageW(&msg);
        else
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return true;
}

// Every announced load has ended and been shown, and the bar has stopped.
bool IsStill(SpaceMgmWnd& window)
{
    auto* tab = dynamic_cast<CTabLayoutUI*>(window.GetPaintManager().FindControl(L"tab_switch"));
    return LoadSequence::Instance().Idle() && !window.IsBarAnimating() && tab != nullptr &&
           tab->GetCurSel() != PageLoading;
}

CListUI* SpaceList(SpaceMgmWnd& window)
{
    return dynamic_cast<CListUI*>(window.GetPaintManager().FindControl(L"SpaceList"));
}

std::string RowNames(CListUI* list)
{
    std::string names;
    for (int i = 0; list != nullptr && i < list->GetCount(); ++i) {
        if (auto* row = dynamic_cast<CSpaceItemUI*>(list->GetItemAt(i)))
            names += (names.empty() ? "" : ", ") + CategoryName(row->GetSpaceInfo().type);
    }
    return names;
}

int RowOf(CListUI* list, CloudSpaceType type)
{
    for (int i = 0; list != nullptr && i < list->GetCount(); ++i) {
        auto* row = dynamic_cast<CSpaceItemUI*>(list->GetItemAt(i));
        if (row != nullptr && row->GetSpaceInfo().type == type)
            return i;
    }
    return -1;
}

// Clicks the category's row the way the mouse would, then moves the pointer
// off the list so that the picture shows the selection, not the hover.
// An error line when the list has no such row.
std::optional<std::string> ClickRow(SpaceMgmWnd& window, CloudSpaceType type)
{
    CListUI* list = SpaceList(window);
    const int index = RowOf(list, type);
    if (index < 0) {
        const std::string rows = RowNames(list);
        return "no row for " + CategoryName(type) + " (" + std::to_string(type) + "); " +
               (rows.empty() ? std::string("the window shows no rows") : "the rows are " + rows);
    }
    CPaintManagerUI& pm = window.GetPaintManager();
    list->EnsureVisible(index);
    pm.UpdateLayoutIfNeeded();
    const RECT& r = list->GetItemAt(index)->GetPos();
    const CDPI* dpi = pm.GetDPIObj();
    const LPARAM at = MAKELPARAM(dpi->Scale((r.left + r.right) / 2), dpi->Scale((r.top + r.bottom) / 2));
    const HWND hwnd = window.GetHWND();
    ::SendMessageW(hwnd, WM_MOUSEMOVE, 0, at);
    ::SendMessageW(hwnd, WM_LBUTTONDOWN, 0, at);
    ::SendMessageW(hwnd, WM_LBUTTONUP, 0, at);
    ::SendMessageW(hwnd, WM_MOUSEMOVE, 0, MAKELPARAM(0, 0));
    return std::nullopt;
}

bool WritePng(CPaintManagerUI& pm, const std::string& path)
{
    pm.UpdateLayoutIfNeeded();
    const SIZE client = pm.GetClientSize();
    const CDPI* dpi = pm.GetDPIObj();
    cairo_surface_t* surface = cairo_image_surface_create(
        CAIRO_FORMAT_ARGB32, std::max(1, dpi->Scale(client.cx)), std::max(1, dpi->Scale(client.cy)));
    cairo_t* cr = cairo_create(surface);
    pm.Render(cr);
    cairo_destroy(cr);
    const bool written = cairo_surface_write_to_png(surface, path.c_str()) == CAIRO_STATUS_SUCCESS;
    cairo_surface_destroy(surface);
    return written;
}

// Writes the picture and the dump of what the window shows now; false after
// saying on stderr which could not be written.
bool WriteFiles(CPaintManagerUI& pm, const WindowOptions& options)
{
    if (!WritePng(pm, options.png)) {
        std::fprintf(stderr, "spacemgm: cannot write %s\n", options.png.c_str());
        return false;
    }
    std::string error;
    if (!options.dump.empty() && !WriteFileWhole(options.dump, ControlTreeText(pm), &error)) {
        std::fprintf(stderr, "spacemgm: %s\n", error.c_str());
        return false;
    }
    return true;
}

int Finish(SpaceMgmWnd& window, int code)
{
    ::DestroyWindow(window.GetHWND());
    MSG msg{};
    while (::PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE))
        ::DispatchMessageW(&msg);
    return code;
}

} // namespace

int RunHeadless(SpaceMgmWnd& window, const WindowOptions& options)
{
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(options.timeoutSeconds);
    window.ShowWindow(true);
    CPaintManagerUI& pm = window.GetPaintManager();
    if (!PumpUntil([&window] { return IsStill(window); }, deadline)) {
        const bool written = WriteFiles(pm, options);
        std::fprintf(stderr, "spacemgm: the load has not ended after %d s; %s shows the window as it is\n",
                     options.timeoutSeconds, options.png.c_str());
        return Finish(window, written ? kWindowExitTimeout : kWindowExitCannotWrite);
    }
    if (options.select) {
        if (auto problem = ClickRow(window, *options.select)) {
            std::fprintf(stderr, "spacemgm: --select: %s\n", problem->c_str());
            return Finish(window, kWindowExitBadInput);
        }
        // A click starts nothing that takes long; what it does is done when
        // the window is still again.
        PumpUntil([&window] { return IsStill(window); }, deadline);
    }
    return Finish(window, WriteFiles(pm, options) ? kWindowExitDone : kWindowExitCannotWrite);
}

} // namespace app
