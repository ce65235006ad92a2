#pragma once

#include <atomic>
#include <cstdint>

namespace toolkit_win32 {

// Window handles and kernel handles come from one counter and are never
// reused: a handle kept after its object is gone then fails cleanly
// (IsWindow FALSE, WAIT_FAILED) instead of reaching a newer object, and a
// window handle passed where an event is expected never matches one.
inline std::uintptr_t NextHandleValue()
{
    static std::atomic<std::uintptr_t> next{0x1000};
    return next.fetch_add(4, std::memory_order_relaxed);
}

} // namespace toolkit_win32
