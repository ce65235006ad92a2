#pragma once

// The window-system side of the Win32 surface: window handles with their
// procedures, and the per-thread message queue that the toolkit's loops pump.
//
// Every thread gets one queue, made on its first call here (or on its first
// PostMessageW/SendMessageW/SetTimer). Queues belong to threads, not to loops,
// so a modal loop nested inside a message handler sees the same messages as
// the loop around it.
//
// What GetMessageW/PeekMessageW deliver, in order:
//   1. messages sent from other threads: run at once, inside the call, never
//      returned;
//   2. posted messages, first in first out;
//   3. WM_QUIT, once PostQuitMessage was called and nothing is posted;
//   4. WM_TIMER for the earliest due timer; its next period starts then.
//
// When a thread ends, its windows are gone without further messages, what was
// posted to it is dropped, and senders still waiting on it get 0.

#include <functional>

#include "platform/win32.h"

struct MSG
{
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    DWORD time;
    POINT pt;
};

constexpr UINT PM_NOREMOVE = 0x0000;
constexpr UINT PM_REMOVE = 0x0001;

using WindowProcedure = std::function<LRESULT(HWND, UINT, WPARAM, LPARAM)>;

// Makes a window owned by the calling thread. As CreateWindowExW does, it
// sends WM_CREATE (lParam = createParam) to the procedure before it returns,
// with the new handle as the procedure's first argument; if the procedure
// answers -1 the window is destroyed again and the result is null. An empty
// procedure gives null.
HWND CreateWindowHandle(WindowProcedure procedure, LPARAM createParam = 0);

// Only the owning thread may destroy a window (FALSE otherwise, or when the
// window is gone). Sends WM_DESTROY, then WM_NCDESTROY; IsWindow is TRUE
// during both and FALSE afterwards. Its timers stop, messages still posted
// to it are dropped, and threads waiting in SendMessageW on it get 0.
BOOL DestroyWindow(HWND hWnd);

// The thread that owns the window, or 0 when it is gone. The process id, if
// asked for, is the calling process's.
DWORD GetWindowThreadProcessId(HWND hWnd, DWORD* processId);

// Filters: a null hWnd takes messages for any window and for the thread;
// msgFilterMin = msgFilterMax = 0 takes every message. Returns >0 for a
// message, 0 for WM_QUIT, -1 for a filter window that is not a window.
BOOL GetMessageW(MSG* msg, HWND hWnd, UINT msgFilterMin, UINT msgFilterMax);
BOOL PeekMessageW(MSG* msg, HWND hWnd, UINT msgFilterMin, UINT msgFilterMax, UINT removeMsg);

// Keyboard translation is done where events are read; kept for loops written
// the Win32 way.
BOOL TranslateMessage(const MSG* msg);

// Calls the procedure of msg->hwnd if the calling thread owns it; 0 for a
// thread message or a window that is gone.
LRESULT DispatchMessageW(const MSG* msg);

void PostQuitMessage(int exitCode);
BOOL PostThreadMessageW(DWORD threadId, UINT msg, WPARAM wParam, LPARAM lParam);

// Blocks until the calling thread's queue has something for GetMessageW
// (running sent messages meanwhile). Always TRUE.
BOOL WaitMessage();

// An event source that the calling thread's loop waits on besides its queue
// (the toolkit's SDL2 events). While one is installed, GetMessageW and
// WaitMessage do their idle waiting through `wait` instead of sleeping on the
// queue, so the thread keeps reading that source and still wakes for
// messages and timers without polling.
//
// - wait(timeoutMs): runs on the owning thread when its queue is empty. It
//   must return once timeoutMs have passed (INFINITE: no limit), or as soon as
//   wake() was called, including a wake() that came before wait() began (the
//   wake must be remembered, as SDL_PushEvent is by SDL_WaitEventTimeout). It
//   may post messages to its own thread, for instance translated input.
// - wake(): called from other threads after they queue something for this
//   thread (post, send, timer change, quit), at most once per idle wait. It
//   may run shortly after the source is replaced, and must be thread-safe.
//
// A thread blocked in SendMessageW still waits on its queue alone: like
// Windows, it runs only sent messages while it waits.
struct ExternalEventSource
{
    std::function<void(DWORD timeoutMs)> wait;
    std::function<void()> wake;
};

// Installs the source for the calling thread; an empty source removes it.
void SetThreadEventSource(ExternalEventSource source);

// For loops that wait by themselves (with only `wake` installed): runs the
// messages sent to the calling thread, then says how long it may sleep before
// its queue needs it: 0 when something is waiting already, the time to the
// next timer otherwise, INFINITE with no timer. A result other than 0 arms
// the wake, so a post from another thread after this call calls wake().
DWORD GetQueueWaitTimeout();
