#pragma once

// The kernel objects behind HANDLE (events, semaphores, threads) and what
// every wait on them shares.
//
// Locking: one process-wide mutex, the dispatcher mutex, guards every signal
// state, count and waiter list. A wait on several objects therefore sees them
// all at one moment, wait-all takes its signals together, and no lock order
// between objects exists to get wrong. Nothing slow runs under it: a waiting
// thread sleeps on its own condition variable, which the mutex protects.

#include <condition_variable>
#include <memory>
#include <mutex>
#include <unordered_map>
#include <vector>

#include "platform/win32.h"

namespace toolkit_win32 {

std::mutex& DispatcherMutex();

// What one thread waits with. Each waiting thread sleeps on its own
// condition variable, so a signal wakes only the threads waiting for that
// object.
struct ThreadWaitState
{
    std::condition_variable wake;
    bool terminateRequested = false; // guarded by the dispatcher mutex
};

// The calling thread's wait state: the one of its thread object for a thread
// the surface started (which TerminateThread can reach), else its own.
ThreadWaitState& CurrentWaitState();
// True on a thread started by CreateThread or _beginthreadex.
bool IsSurfaceThread();

// Thrown from inside a surface wait on a thread that TerminateThread marked,
// and caught only by that thread's entry (threads.cpp). It deliberately
// derives from nothing, so that `catch (const std::exception&)` in the
// thread's own code does not stop it.
class ThreadTerminated
{
};

class KernelObject
{
public:
    KernelObject() = default;
    KernelObject(const KernelObject&) = delete;
    KernelObject& operator=(const KernelObject&) = delete;
    virtual ~KernelObject() = default;

    // Everything below runs under the dispatcher mutex.
    virtual bool IsSignalledLocked() const = 0;
    // What a satisfied wait takes: an auto-reset event's signal, one count of
    // a semaphore; nothing for a manual-reset event or an ended thread.
    virtual void TakeSignalLocked() {}

    void AddWaiterLocked(ThreadWaitState* waiter);
    void RemoveWaiterLocked(ThreadWaitState* waiter);

protected:
    void WakeWaitersLocked();

private:
    std::vector<ThreadWaitState*> waiters_;
};

// Open handles. A wait holds its own reference, so closing a handle while
// another thread waits on it does not pull the object from under that wait.
class HandleTable
{
public:
    static HandleTable& Instance();

    HANDLE Add(std::shared_ptr<KernelObject> object);
    std::shared_ptr<KernelObject> Find(HANDLE handle) const;
    bool Remove(HANDLE handle);

    template <typename T> std::shared_ptr<T> FindAs(HANDLE handle) const
    {
        return std::dynamic_pointer_cast<T>(Find(handle));
    }

private:
    HandleTable() = default;

    mutable std::mutex mutex_;
    std::unordered_map<HANDLE, std::shared_ptr<KernelObject>> objects_;
};

} // namespace toolkit_win32
