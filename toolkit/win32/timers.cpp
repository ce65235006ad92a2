// SetTimer and KillTimer: timers live in the queue of the window's thread and
// surface there as WM_TIMER (see ThreadQueue::Take).

#include <chrono>

#include "toolkit/win32/window_registry.h"

using toolkit_win32::CurrentThreadQueue;
using toolkit_win32::WindowRegistry;

UINT_PTR SetTimer(HWND hWnd, UINT_PTR idEvent, UINT elapseMs, void* timerProc)
{
    // Timer callbacks would run outside any window procedure; the module
    // never uses them, so they are refused rather than half supported.
    if (timerProc != nullptr) {
        return 0;
    }
    const std::chrono::milliseconds interval(elapseMs);
    if (hWnd == nullptr) {
        return CurrentThreadQueue()->SetThreadTimer(idEvent, interval);
    }
    auto window = WindowRegistry::Instance().FindWindowRecord(hWnd);
    if (!window || !window->owner->SetWindowTimer(*window, idEvent, interval)) {
        return 0;
    }
    return idEvent != 0 ? idEvent : 1;
}

BOOL KillTimer(HWND hWnd, UINT_PTR idEvent)
{
    if (hWnd == nullptr) {
        return CurrentThreadQueue()->KillTimer(nullptr, idEvent) ? TRUE : FALSE;
    }
    auto window = WindowRegistry::Instance().FindWindowRecord(hWnd);
    if (!window) {
        return FALSE;
    }
    return window->owner->KillTimer(hWnd, idEvent) ? TRUE : FALSE;
}
