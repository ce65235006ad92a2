// Semaphores: CreateSemaphoreW, ReleaseSemaphore.

#include <memory>

#include "toolkit/win32/kernel_objects.h"

namespace toolkit_win32 {
namespace {

class SemaphoreObject : public KernelObject
{
public:
    SemaphoreObject(LONG initialCount, LONG maximumCount) : count_(initialCount), maximum_(maximumCount) {}

    bool IsSignalledLocked() const override { return count_ > 0; }
    void TakeSignalLocked() override { --count_; }

    // Refuses, changing nothing, a release that would pass the maximum.
    bool ReleaseLocked(LONG releaseCount, LONG* previousCount)
    {
        if (releaseCount <= 0 || releaseCount > maximum_ - count_) {
            return false;
        }
        if (previousCount != nullptr) {
            *previousCount = count_;
        }
        count_ += releaseCount;
        WakeWaitersLocked();
        return true;
    }

private:
    LONG count_;
    const LONG maximum_;
};

} // namespace
} // namespace toolkit_win32

using toolkit_win32::DispatcherMutex;
using toolkit_win32::HandleTable;
using toolkit_win32::SemaphoreObject;

HANDLE CreateSemaphoreW(void* /*securityAttributes*/, LONG initialCount, LONG maximumCount,
                        const wchar_t* /*name*/)
{
    if (maximumCount <= 0 || initialCount < 0 || initialCount > maximumCount) {
        return nullptr;
    }
    return HandleTable::Instance().Add(std::make_shared<SemaphoreObject>(initialCount, maximumCount));
}

BOOL ReleaseSemaphore(HANDLE semaphore, LONG releaseCount, LPLONG previousCount)
{
    auto object = HandleTable::Instance().FindAs<SemaphoreObject>(semaphore);
    if (!object) {
        return FALSE;
    }
    std::lock_guard<std::mutex> lock(DispatcherMutex());
    return object->ReleaseLocked(releaseCount, previousCount) ? TRUE : FALSE;
}
