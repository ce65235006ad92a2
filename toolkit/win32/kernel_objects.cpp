// Events, waits, ticks and thread ids of the Win32 surface.

#include <sys/syscall.h>
#include <unistd.h>

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>
#include <unordered_map>

#include "platform/win32.h"
#include "toolkit/win32/handle_values.h"

namespace toolkit_win32 {
namespace {

class EventObject
{
public:
    EventObject(bool manualReset, bool signalled) : manualReset_(manualReset), signalled_(signalled) {}

    void Set()
    {
        {
            std::lock_guard<std::mutex> lock(mutex_);
            signalled_ = true;
        }
        // An auto-reset event releases one waiter per signal; a manual one
        // releases them all until it is reset.
        if (manualReset_) {
            changed_.notify_all();
        } else {
            changed_.notify_one();
        }
    }

    void Reset()
    {
        std::lock_guard<std::mutex> lock(mutex_);
        signalled_ = false;
    }

    DWORD Wait(DWORD timeoutMs)
    {
        std::unique_lock<std::mutex> lock(mutex_);
        auto isSignalled = [this] { return signalled_; };
        if (timeoutMs == INFINITE) {
            changed_.wait(lock, isSignalled);
        } else if (!changed_.wait_for(lock, std::chrono::milliseconds(timeoutMs), isSignalled)) {
            return WAIT_TIMEOUT;
        }
        if (!manualReset_) {
            signalled_ = false;
        }
        return WAIT_OBJECT_0;
    }

private:
    const bool manualReset_;
    std::mutex mutex_;
    std::condition_variable changed_;
    bool signalled_;
};

// Open handles. A wait holds its own reference, so closing a handle while
// another thread waits on it does not pull the object from under that wait.
class HandleTable
{
public:
    static HandleTable& Instance()
    {
        // Never destroyed: detached threads may still close handles while the
        // process exits.
        static HandleTable* table = new HandleTable;
        return *table;
    }

    HANDLE Add(std::shared_ptr<EventObject> object)
    {
        HANDLE handle = reinterpret_cast<HANDLE>(NextHandleValue());
        std::lock_guard<std::mutex> lock(mutex_);
        objects_.emplace(handle, std::move(object));
        return handle;
    }

    std::shared_ptr<EventObject> Find(HANDLE handle) const
    {
        std::lock_guard<std::mutex> lock(mutex_);
        auto found = objects_.find(handle);
        return found == objects_.end() ? nullptr : found->second;
    }

    bool Remove(HANDLE handle)
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return objects_.erase(handle) > 0;
    }

private:
    mutable std::mutex mutex_;
    std::unordered_map<HANDLE, std::shared_ptr<EventObject>> objects_;
};

} // namespace
} // namespace toolkit_win32

using toolkit_win32::EventObject;
using toolkit_win32::HandleTable;

HANDLE CreateEventW(void* /*securityAttributes*/, BOOL manualReset, BOOL initialState,
                    const wchar_t* /*name*/)
{
    return HandleTable::Instance().Add(
        std::make_shared<EventObject>(manualReset != FALSE, initialState != FALSE));
}

BOOL SetEvent(HANDLE event)
{
    auto object = HandleTable::Instance().Find(event);
    if (!object) {
        return FALSE;
    }
    object->Set();
    return TRUE;
}

BOOL ResetEvent(HANDLE event)
{
    auto object = HandleTable::Instance().Find(event);
    if (!object) {
        return FALSE;
    }
    object->Reset();
    return TRUE;
}

DWORD WaitForSingleObject(HANDLE handle, DWORD timeoutMs)
{
    auto object = HandleTable::Instance().Find(handle);
    if (!object) {
        return WAIT_FAILED;
    }
    return object->Wait(timeoutMs);
}

BOOL CloseHandle(HANDLE handle)
{
    return HandleTable::Instance().Remove(handle) ? TRUE : FALSE;
}

DWORD GetTickCount()
{
    // steady_clock is CLOCK_MONOTONIC here: time since boot, like the Windows
    // tick count, truncated to 32 bits so that it wraps the same way.
    const auto sinceEpoch = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<DWORD>(std::chrono::duration_cast<std::chrono::milliseconds>(sinceEpoch).count());
}

void Sleep(DWORD milliseconds)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

DWORD GetCurrentThreadId()
{
    // The kernel's thread id: unique among live threads and the same number
    // that debuggers and logs show.
    thread_local const DWORD id = static_cast<DWORD>(::syscall(SYS_gettid));
    return id;
}
