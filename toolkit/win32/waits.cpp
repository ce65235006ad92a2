// WaitForSingleObject, WaitForMultipleObjects and Sleep: the points where a
// thread marked by TerminateThread ends.

#include <algorithm>
#include <chrono>
#include <memory>
#include <optional>
#include <thread>
#include <vector>

#include "toolkit/win32/kernel_objects.h"

namespace toolkit_win32 {
namespace {

using Objects = std::vector<std::shared_ptr<KernelObject>>;
using Clock = std::chrono::steady_clock;

// Takes the signals and names the result when the wait can end now.
std::optional<DWORD> TrySatisfyLocked(const Objects& objects, bool waitAll)
{
    if (waitAll) {
        const bool allReady = std::all_of(objects.begin(), objects.end(),
                                          [](const auto& object) { return object->IsSignalledLocked(); });
        if (!allReady || objects.empty()) {
            return std::nullopt;
        }
        for (const auto& object : objects) {
            object->TakeSignalLocked();
        }
        return WAIT_OBJECT_0;
    }
    for (size_t i = 0; i < objects.size(); ++i) {
        if (objects[i]->IsSignalledLocked()) {
            objects[i]->TakeSignalLocked();
            return WAIT_OBJECT_0 + static_cast<DWORD>(i);
        }
    }
    return std::nullopt;
}

// Registers the waiter on every object for as long as it sleeps; always
// destroyed under the dispatcher mutex.
class WaiterRegistration
{
public:
    WaiterRegistration(const Objects& objects, ThreadWaitState& waiter) : objects_(objects), waiter_(waiter)
    {
    }
    WaiterRegistration(const WaiterRegistration&) = delete;
    WaiterRegistration& operator=(const WaiterRegistration&) = delete;
    ~WaiterRegistration()
    {
        if (registered_) {
            for (const auto& object : objects_) {
                object->RemoveWaiterLocked(&waiter_);
            }
        }
    }

    void EnsureRegisteredLocked()
    {
        if (!registered_) {
            for (const auto& object : objects_) {
                object->AddWaiterLocked(&waiter_);
            }
            registered_ = true;
        }
    }

private:
    const Objects& objects_;
    ThreadWaitState& waiter_;
    bool registered_ = false;
};

DWORD WaitOn(const Objects& objects, bool waitAll, DWORD timeoutMs)
{
    ThreadWaitState& self = CurrentWaitState();
    const auto deadline = Clock::now() + std::chrono::milliseconds(timeoutMs);
    std::unique_lock<std::mutex> lock(DispatcherMutex());
    // Declared after the lock, so it unregisters before the lock is released,
    // on every way out including the throw.
    WaiterRegistration registration(objects, self);
    for (;;) {
        if (self.terminateRequested) {
            throw ThreadTerminated();
        }
        if (const auto result = TrySatisfyLocked(objects, waitAll)) {
            return *result;
        }
        if (timeoutMs != INFINITE && Clock::now() >= deadline) {
            return WAIT_TIMEOUT;
        }
        registration.EnsureRegisteredLocked();
        if (timeoutMs == INFINITE) {
            self.wake.wait(lock);
        } else {
            self.wake.wait_until(lock, deadline);
        }
    }
}

bool HasDuplicates(const HANDLE* handles, DWORD count)
{
    std::vector<HANDLE> sorted(handles, handles + count);
    std::sort(sorted.begin(), sorted.end());
    return std::adjacent_find(sorted.begin(), sorted.end()) != sorted.end();
}

} // namespace
} // namespace toolkit_win32

using toolkit_win32::HandleTable;
using toolkit_win32::KernelObject;

DWORD WaitForSingleObject(HANDLE handle, DWORD timeoutMs)
{
    auto object = HandleTable::Instance().Find(handle);
    if (!object) {
        return WAIT_FAILED;
    }
    return toolkit_win32::WaitOn({std::move(object)}, false, timeoutMs);
}

DWORD WaitForMultipleObjects(DWORD count, const HANDLE* handles, BOOL waitAll, DWORD timeoutMs)
{
    if (count == 0 || count > MAXIMUM_WAIT_OBJECTS || handles == nullptr ||
        toolkit_win32::HasDuplicates(handles, count)) {
        return WAIT_FAILED;
    }
    std::vector<std::shared_ptr<KernelObject>> objects;
    objects.reserve(count);
    for (DWORD i = 0; i < count; ++i) {
        auto object = HandleTable::Instance().Find(handles[i]);
        if (!object) {
            return WAIT_FAILED;
        }
        objects.push_back(std::move(object));
    }
    return toolkit_win32::WaitOn(objects, waitAll != FALSE, timeoutMs);
}

void Sleep(DWORD milliseconds)
{
    // Only a thread the surface started can be terminated, so only its sleep
    // needs to be a wait that TerminateThread can cut short.
    if (!toolkit_win32::IsSurfaceThread()) {
        std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
        return;
    }
    toolkit_win32::WaitOn({}, false, milliseconds);
}
