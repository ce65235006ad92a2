// GetTickCount and GetCurrentThreadId.

#include <sys/syscall.h>
#include <unistd.h>

#include <chrono>

#include "platform/win32.h"

DWORD GetTickCount()
{
    // steady_clock is CLOCK_MONOTONIC here: time since boot, like the Windows
    // tick count, truncated to 32 bits so that it wraps the same way.
    const auto sinceEpoch = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<DWORD>(std::chrono::duration_cast<std::chrono::milliseconds>(sinceEpoch).count());
}

DWORD GetCurrentThreadId()
{
    // The kernel's thread id: unique among live threads and the same number
    // that debuggers and logs show.
    thread_local const DWORD id = static_cast<DWORD>(::syscall(SYS_gettid));
    return id;
}
