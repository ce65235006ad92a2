// The handle table, the dispatcher mutex and the waiter lists shared by
// every kernel object.

#include "toolkit/win32/kernel_objects.h"

#include <algorithm>

#include "toolkit/win32/handle_values.h"

namespace toolkit_win32 {

std::mutex& DispatcherMutex()
{
    // Never destroyed: detached threads may still wait or signal while the
    // process exits.
    static std::mutex* mutex = new std::mutex;
    return *mutex;
}

void KernelObject::AddWaiterLocked(ThreadWaitState* waiter)
{
    waiters_.push_back(waiter);
}

void KernelObject::RemoveWaiterLocked(ThreadWaitState* waiter)
{
    waiters_.erase(std::remove(waiters_.begin(), waiters_.end(), waiter), waiters_.end());
}

void KernelObject::WakeWaitersLocked()
{
    // Every waiter rechecks under the mutex; the ones that lose the race for
    // an auto-reset signal or a count go back to sleep.
    for (ThreadWaitState* waiter : waiters_) {
        waiter->wake.notify_one();
    }
}

HandleTable& HandleTable::Instance()
{
    // Never destroyed, for the same reason as the dispatcher mutex.
    static HandleTable* table = new HandleTable;
    return *table;
}

HANDLE HandleTable::Add(std::shared_ptr<KernelObject> object)
{
    HANDLE handle = reinterpret_cast<HANDLE>(NextHandleValue());
    std::lock_guard<std::mutex> lock(mutex_);
    objects_.emplace(handle, std::move(object));
    return handle;
}

std::shared_ptr<KernelObject> HandleTable::Find(HANDLE handle) const
{
    std::lock_guard<std::mutex> lock(mutex_);
    auto found = objects_.find(handle);
    return found == objects_.end() ? nullptr : found->second;
}

bool HandleTable::Remove(HANDLE handle)
{
    std::shared_ptr<KernelObject> removed;
    {
        std::lock_guard<std::mutex> lock(mutex_);
        auto found = objects_.find(handle);
        if (found == objects_.end()) {
            return false;
        }
        removed = std::move(found->second);
        objects_.erase(found);
    }
    // `removed` may be the last reference; it goes outside the table's lock.
    return true;
}

} // namespace toolkit_win32

BOOL CloseHandle(HANDLE handle)
{
    return toolkit_win32::HandleTable::Instance().Remove(handle) ? TRUE : FALSE;
}
