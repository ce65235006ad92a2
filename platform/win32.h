#pragma once

// The small Win32 surface the module is written against: window messages,
// timers, events and waits, ticks and thread ids. On Windows these are the
// system's own; on Linux the toolkit implements them (toolkit/win32/) with the
// same semantics, so window code and the view model behave alike on both.
//
// Everything here is in the global namespace under the Win32 names, because
// that is how the module's code spells them.

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <mutex>

using BOOL = int;
using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using LONG = std::int32_t;
using UINT = unsigned int;
using UINT_PTR = std::uintptr_t;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;
using HANDLE = void*;
using LPVOID = void*;
using LPDWORD = DWORD*;
using LPLONG = LONG*;

// A window handle is opaque: a distinct pointer type so that it cannot be
// mixed up with a HANDLE, never dereferenced. Handles are not reused, so a
// stale one is reliably reported as gone by IsWindow.
struct HWND__;
using HWND = HWND__*;

// Macros, as in Win32: GLib (under pango and cairo) defines the same two
// names as macros when they are not defined yet, with the same values.
#ifndef FALSE
#define FALSE 0
#endif
#ifndef TRUE
#define TRUE 1
#endif

struct POINT
{
    LONG x;
    LONG y;
};

struct SIZE
{
    LONG cx;
    LONG cy;
};

struct RECT
{
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};

// Window messages, with their Win32 values.
constexpr UINT WM_NULL = 0x0000;
constexpr UINT WM_CREATE = 0x0001;
constexpr UINT WM_DESTROY = 0x0002;
constexpr UINT WM_MOVE = 0x0003;
constexpr UINT WM_SIZE = 0x0005;
constexpr UINT WM_ACTIVATE = 0x0006;
constexpr UINT WM_SETFOCUS = 0x0007;
constexpr UINT WM_KILLFOCUS = 0x0008;
constexpr UINT WM_PAINT = 0x000F;
constexpr UINT WM_CLOSE = 0x0010;
constexpr UINT WM_QUIT = 0x0012;
constexpr UINT WM_ERASEBKGND = 0x0014;
constexpr UINT WM_SHOWWINDOW = 0x0018;
constexpr UINT WM_SETCURSOR = 0x0020;
constexpr UINT WM_NCCREATE = 0x0081;
constexpr UINT WM_NCDESTROY = 0x0082;
constexpr UINT WM_KEYDOWN = 0x0100;
constexpr UINT WM_KEYUP = 0x0101;
constexpr UINT WM_CHAR = 0x0102;
constexpr UINT WM_SYSKEYDOWN = 0x0104;
constexpr UINT WM_SYSKEYUP = 0x0105;
constexpr UINT WM_TIMER = 0x0113;
constexpr UINT WM_MOUSEMOVE = 0x0200;
constexpr UINT WM_LBUTTONDOWN = 0x0201;
constexpr UINT WM_LBUTTONUP = 0x0202;
constexpr UINT WM_LBUTTONDBLCLK = 0x0203;
constexpr UINT WM_RBUTTONDOWN = 0x0204;
constexpr UINT WM_RBUTTONUP = 0x0205;
constexpr UINT WM_MOUSEWHEEL = 0x020A;
constexpr UINT WM_MOUSEHOVER = 0x02A1;
constexpr UINT WM_MOUSELEAVE = 0x02A3;
constexpr UINT WM_USER = 0x0400;
constexpr UINT WM_APP = 0x8000;

// Virtual key codes carried by WM_KEYDOWN / WM_KEYUP.
constexpr UINT VK_BACK = 0x08;
constexpr UINT VK_TAB = 0x09;
constexpr UINT VK_RETURN = 0x0D;
constexpr UINT VK_ESCAPE = 0x1B;
constexpr UINT VK_SPACE = 0x20;
constexpr UINT VK_PRIOR = 0x21;
constexpr UINT VK_NEXT = 0x22;
constexpr UINT VK_END = 0x23;
constexpr UINT VK_HOME = 0x24;
constexpr UINT VK_LEFT = 0x25;
constexpr UINT VK_UP = 0x26;
constexpr UINT VK_RIGHT = 0x27;
constexpr UINT VK_DOWN = 0x28;
constexpr UINT VK_DELETE = 0x2E;

constexpr int WHEEL_DELTA = 120;

// Waits.
constexpr DWORD INFINITE = 0xFFFFFFFFu;
constexpr DWORD WAIT_OBJECT_0 = 0x00000000u;
constexpr DWORD WAIT_ABANDONED = 0x00000080u;
constexpr DWORD WAIT_TIMEOUT = 0x00000102u;
constexpr DWORD WAIT_FAILED = 0xFFFFFFFFu;
constexpr DWORD MAXIMUM_WAIT_OBJECTS = 64;

// Threads.
constexpr DWORD STILL_ACTIVE = 0x00000103u;
constexpr DWORD CREATE_SUSPENDED = 0x00000004u;
constexpr DWORD STACK_SIZE_PARAM_IS_A_RESERVATION = 0x00010000u;

// The network probe's flags.
constexpr DWORD NETWORK_ALIVE_LAN = 0x00000001u;
constexpr DWORD NETWORK_ALIVE_WAN = 0x00000002u;
constexpr DWORD INTERNET_CONNECTION_MODEM = 0x00000001u;
constexpr DWORD INTERNET_CONNECTION_LAN = 0x00000002u;
constexpr DWORD INTERNET_CONNECTION_PROXY = 0x00000004u;
constexpr DWORD INTERNET_CONNECTION_OFFLINE = 0x00000020u;
constexpr DWORD INTERNET_CONNECTION_CONFIGURED = 0x00000040u;

// Packing helpers. Functions rather than macros, with the macros' results:
// MAKELPARAM goes through a 32-bit value, so a high word with its top bit set
// gives a positive LPARAM, as on 64-bit Windows; GET_X_LPARAM/GET_Y_LPARAM
// sign-extend so that coordinates left of or above a window stay negative.
constexpr WORD LOWORD(std::uintptr_t value)
{
    return static_cast<WORD>(value & 0xFFFFu);
}
constexpr WORD HIWORD(std::uintptr_t value)
{
    return static_cast<WORD>((value >> 16) & 0xFFFFu);
}
constexpr DWORD MAKELONG(std::uintptr_t low, std::uintptr_t high)
{
    return static_cast<DWORD>((low & 0xFFFFu) | ((high & 0xFFFFu) << 16));
}
constexpr LPARAM MAKELPARAM(std::uintptr_t low, std::uintptr_t high)
{
    return static_cast<LPARAM>(MAKELONG(low, high));
}
constexpr WPARAM MAKEWPARAM(std::uintptr_t low, std::uintptr_t high)
{
    return static_cast<WPARAM>(MAKELONG(low, high));
}
constexpr int GET_X_LPARAM(LPARAM lParam)
{
    return static_cast<std::int16_t>(LOWORD(static_cast<std::uintptr_t>(lParam)));
}
constexpr int GET_Y_LPARAM(LPARAM lParam)
{
    return static_cast<std::int16_t>(HIWORD(static_cast<std::uintptr_t>(lParam)));
}
constexpr short GET_WHEEL_DELTA_WPARAM(WPARAM wParam)
{
    return static_cast<short>(HIWORD(wParam));
}

// Messages. Posting is thread-safe and ordered per receiving thread. A post
// to a destroyed or unknown window returns FALSE, and the caller keeps any
// heap pointer it meant to hand over. A null window posts to the calling
// thread's own queue.
BOOL PostMessageW(HWND hWnd, UINT msg, WPARAM wParam, LPARAM lParam);

// On the window's own thread: calls its procedure directly. From another
// thread: queues the call, runs messages sent to the caller while it waits
// (so two threads sending to each other do not deadlock), and returns the
// procedure's result; 0 when the window is gone, or goes before the call runs.
LRESULT SendMessageW(HWND hWnd, UINT msg, WPARAM wParam, LPARAM lParam);

BOOL IsWindow(HWND hWnd);

// WM_TIMER arrives through the message loop of the window's thread when that
// queue has nothing else to deliver and the timer is due; a late timer yields
// one WM_TIMER, not a backlog. Setting an id that exists restarts its period.
// The fourth argument stands for Win32's TIMERPROC, which this surface does
// not support: it must be null, or SetTimer fails and returns 0. Intervals
// below 10 ms are raised to 10 ms, as on Windows. A null window makes a
// thread timer with a fresh id, which is returned.
UINT_PTR SetTimer(HWND hWnd, UINT_PTR idEvent, UINT elapseMs, void* timerProc);
BOOL KillTimer(HWND hWnd, UINT_PTR idEvent);

// Events. The security attributes and the name are accepted and ignored.
HANDLE CreateEventW(void* securityAttributes, BOOL manualReset, BOOL initialState, const wchar_t* name);
BOOL SetEvent(HANDLE event);
BOOL ResetEvent(HANDLE event);

// WAIT_OBJECT_0 once signalled (consuming the signal of an auto-reset event),
// WAIT_TIMEOUT after timeoutMs (0 only tests, INFINITE never times out),
// WAIT_FAILED for a handle that is not open. Does not run window messages.
DWORD WaitForSingleObject(HANDLE handle, DWORD timeoutMs);
BOOL CloseHandle(HANDLE handle);

// Milliseconds from a monotonic clock, wrapping every 49.7 days.
DWORD GetTickCount();
void Sleep(DWORD milliseconds);
DWORD GetCurrentThreadId();

// Kernel objects: events, semaphores and threads share one handle space, and
// every wait below works on any of them. An event is signalled while set, a
// semaphore while its count is above 0 (a wait takes one), a thread once it
// has ended (for good).

// Semaphores. Fails (null) unless 0 <= initialCount <= maximumCount and
// maximumCount > 0. The attributes and the name are accepted and ignored.
HANDLE CreateSemaphoreW(void* securityAttributes, LONG initialCount, LONG maximumCount, const wchar_t* name);
// Adds releaseCount; FALSE, leaving the count as it was, when that would pass
// the maximum or releaseCount is not positive. previousCount may be null.
BOOL ReleaseSemaphore(HANDLE semaphore, LONG releaseCount, LPLONG previousCount);

// Waits for any (waitAll FALSE) or all (TRUE) of `count` handles, 1 to
// MAXIMUM_WAIT_OBJECTS of them, none twice. Wait-any returns
// WAIT_OBJECT_0 + i for the lowest ready index i and takes only that object's
// signal; wait-all returns WAIT_OBJECT_0 once all are ready at one moment and
// takes all their signals together. WAIT_TIMEOUT and WAIT_FAILED as for
// WaitForSingleObject.
DWORD WaitForMultipleObjects(DWORD count, const HANDLE* handles, BOOL waitAll, DWORD timeoutMs);

// Threads. The handle is signalled when the thread ends; closing it does not
// stop the thread. dwStackSize 0 means the default stack; CREATE_SUSPENDED is
// not supported and gives null. The thread id, if asked for, is the same
// number GetCurrentThreadId returns on that thread.
using LPTHREAD_START_ROUTINE = DWORD (*)(LPVOID parameter);
HANDLE CreateThread(void* threadAttributes, std::size_t stackSize, LPTHREAD_START_ROUTINE startAddress,
                    LPVOID parameter, DWORD creationFlags, LPDWORD threadId);
// The C runtime's way to the same thing: 0 on failure, else a HANDLE.
std::uintptr_t _beginthreadex(void* security, unsigned stackSize, unsigned (*startAddress)(void*),
                              void* argList, unsigned initFlag, unsigned* threadAddress);
// STILL_ACTIVE while the thread runs, then what its function returned or the
// code given to TerminateThread.
BOOL GetExitCodeThread(HANDLE thread, LPDWORD exitCode);

// Ends a thread made by CreateThread or _beginthreadex. Linux cannot stop a
// thread at an arbitrary instruction safely, so the end comes at the next
// point where the thread is inside this surface:
//  - a thread waiting in WaitForSingleObject, WaitForMultipleObjects or Sleep
//    leaves that wait at once and ends;
//  - a thread running its own code is marked, and ends when it next enters
//    one of those calls (a call made on itself ends it there and then).
//    Other blocking calls (GetMessageW, SendMessageW, EnterCriticalSection,
//    file and socket I/O) count as its own code.
// The thread ends by unwinding its stack up to the entry the surface gave it,
// so destructors run and nothing it owns leaks; a lock it took with
// EnterCriticalSection and did not leave stays taken, as on Windows. Code
// that catches every exception (catch (...)) without rethrowing delays the
// end to the next wait; a wait inside a noexcept function would end the
// process instead, so threads that may be terminated must not wait there.
// FALSE for a handle that is no thread, or a thread that has ended already.
BOOL TerminateThread(HANDLE thread, DWORD exitCode);

// Critical sections: recursive locks owned by a thread, as on Windows. A
// thread that enters n times leaves n times; a leave by another thread is
// ignored. The lock is part of the structure from its construction, so
// InitializeCriticalSection and DeleteCriticalSection only bracket the span
// in which Win32 allows its use; a second initialisation or a deletion while
// another thread is still inside (undefined on Windows) is harmless here.
// Entering is not a point where a terminated thread ends.
struct CRITICAL_SECTION
{
    std::mutex lock;
    std::atomic<DWORD> owningThread{0};
    LONG recursionCount = 0; // touched only by the owning thread
};
void InitializeCriticalSection(CRITICAL_SECTION* section);
void EnterCriticalSection(CRITICAL_SECTION* section);
void LeaveCriticalSection(CRITICAL_SECTION* section);
void DeleteCriticalSection(CRITICAL_SECTION* section);

// The network probe. IsNetworkAlive: TRUE when the machine is on a network
// (flags: NETWORK_ALIVE_LAN). InternetGetConnectedState: TRUE when it has a
// way to the internet (flags: INTERNET_CONNECTION_LAN |
// INTERNET_CONNECTION_CONFIGURED; INTERNET_CONNECTION_OFFLINE when FALSE);
// `reserved` is 0, as Win32 asks, and is not looked at. A null `flags` is
// allowed and left alone. On Linux the host answers both (its configuration's
// "network.mode"); with no host attached both fail. Either call reads state
// that is kept current elsewhere, so it is cheap enough to poll.
BOOL IsNetworkAlive(LPDWORD flags);
BOOL InternetGetConnectedState(LPDWORD flags, DWORD reserved);
