// CreateThread, _beginthreadex, GetExitCodeThread and TerminateThread.
//
// Every thread starts in ThreadEntry, which owns what the thread was given
// and catches ThreadTerminated. TerminateThread only marks the thread and
// wakes its wait; the thread itself throws from inside the surface wait
// (waits.cpp) and unwinds to ThreadEntry, which ends it. Nothing is cancelled
// or signalled from outside (no pthread_cancel, no pthread_kill), so no
// thread is ever stopped halfway through the C library or a lock of its own.

#include <pthread.h>

#include <algorithm>
#include <functional>
#include <future>
#include <limits>
#include <memory>
#include <mutex>

#include "toolkit/win32/kernel_objects.h"

namespace toolkit_win32 {
namespace {

class ThreadObject : public KernelObject
{
public:
    bool IsSignalledLocked() const override { return ended_; }

    ThreadWaitState& WaitState() { return waitState_; }

    // False when the thread has ended already. The first code given wins.
    bool RequestTerminationLocked(DWORD exitCode)
    {
        if (ended_) {
            return false;
        }
        if (!waitState_.terminateRequested) {
            waitState_.terminateRequested = true;
            terminationCode_ = exitCode;
        }
        waitState_.wake.notify_one();
        return true;
    }

    // A thread that was terminated ends with the termination's code, even if
    // it returned before it reached a wait.
    void FinishLocked(DWORD returnedCode)
    {
        exitCode_ = waitState_.terminateRequested ? terminationCode_ : returnedCode;
        ended_ = true;
        WakeWaitersLocked();
    }

    DWORD ExitCodeLocked() const { return ended_ ? exitCode_ : STILL_ACTIVE; }

private:
    ThreadWaitState waitState_;
    bool ended_ = false;
    DWORD exitCode_ = STILL_ACTIVE;
    DWORD terminationCode_ = 0;
};

// The calling thread's object, for threads started here.
thread_local ThreadObject* currentThread = nullptr;

struct ThreadStart
{
    std::shared_ptr<ThreadObject> thread;
    std::function<DWORD()> run;
    std::promise<DWORD> threadId;
};

void* ThreadEntry(void* raw)
{
    std::unique_ptr<ThreadStart> start(static_cast<ThreadStart*>(raw));
    currentThread = start->thread.get();
    start->threadId.set_value(GetCurrentThreadId());
    DWORD code = 0;
    try {
        code = start->run();
    } catch (const ThreadTerminated&) {
        // The code given to TerminateThread replaces this in FinishLocked.
    }
    // Any other exception leaves the entry and ends the process, as an
    // unhandled exception does on Windows.
    {
        std::lock_guard<std::mutex> lock(DispatcherMutex());
        start->thread->FinishLocked(code);
    }
    currentThread = nullptr;
    return nullptr;
}

class ThreadAttributes
{
public:
    explicit ThreadAttributes(std::size_t stackSize)
    {
        pthread_attr_init(&attributes_);
        pthread_attr_setdetachstate(&attributes_, PTHREAD_CREATE_DETACHED);
        if (stackSize != 0) {
            pthread_attr_setstacksize(&attributes_, std::max<std::size_t>(stackSize, PTHREAD_STACK_MIN));
        }
    }
    ThreadAttributes(const ThreadAttributes&) = delete;
    ThreadAttributes& operator=(const ThreadAttributes&) = delete;
    ~ThreadAttributes() { pthread_attr_destroy(&attributes_); }

    const pthread_attr_t* Get() const { return &attributes_; }

private:
    pthread_attr_t attributes_;
};

// The handle, or null; `threadId` (if not null) receives the new thread's id.
HANDLE StartThread(std::size_t stackSize, std::function<DWORD()> run, DWORD creationFlags, DWORD* threadId)
{
    if ((creationFlags & CREATE_SUSPENDED) != 0) {
        return nullptr;
    }
    auto start = std::make_unique<ThreadStart>();
    start->thread = std::make_shared<ThreadObject>();
    start->run = std::move(run);
    auto id = start->threadId.get_future();
    auto thread = start->thread;
    const ThreadAttributes attributes(stackSize);
    pthread_t pthread;
    if (pthread_create(&pthread, attributes.Get(), ThreadEntry, start.get()) != 0) {
        return nullptr;
    }
    start.release(); // owned by ThreadEntry from here
    const HANDLE handle = HandleTable::Instance().Add(std::move(thread));
    if (threadId != nullptr) {
        *threadId = id.get();
    }
    return handle;
}

} // namespace

ThreadWaitState& CurrentWaitState()
{
    if (currentThread != nullptr) {
        return currentThread->WaitState();
    }
    thread_local ThreadWaitState own;
    return own;
}

bool IsSurfaceThread()
{
    return currentThread != nullptr;
}

} // namespace toolkit_win32

using toolkit_win32::DispatcherMutex;
using toolkit_win32::HandleTable;
using toolkit_win32::ThreadObject;

HANDLE CreateThread(void* /*threadAttributes*/, std::size_t stackSize, LPTHREAD_START_ROUTINE startAddress,
                    LPVOID parameter, DWORD creationFlags, LPDWORD threadId)
{
    if (startAddress == nullptr) {
        return nullptr;
    }
    return toolkit_win32::StartThread(
        stackSize, [startAddress, parameter] { return startAddress(parameter); }, creationFlags, threadId);
}

std::uintptr_t _beginthreadex(void* /*security*/, unsigned stackSize, unsigned (*startAddress)(void*),
                              void* argList, unsigned initFlag, unsigned* threadAddress)
{
    if (startAddress == nullptr) {
        return 0;
    }
    DWORD threadId = 0;
    const HANDLE handle = toolkit_win32::StartThread(
        stackSize, [startAddress, argList] { return static_cast<DWORD>(startAddress(argList)); }, initFlag,
        threadAddress != nullptr ? &threadId : nullptr);
    if (handle != nullptr && threadAddress != nullptr) {
        *threadAddress = threadId;
    }
    return reinterpret_cast<std::uintptr_t>(handle);
}

BOOL GetExitCodeThread(HANDLE thread, LPDWORD exitCode)
{
    auto object = HandleTable::Instance().FindAs<ThreadObject>(thread);
    if (!object || exitCode == nullptr) {
        return FALSE;
    }
    std::lock_guard<std::mutex> lock(DispatcherMutex());
    *exitCode = object->ExitCodeLocked();
    return TRUE;
}

BOOL TerminateThread(HANDLE thread, DWORD exitCode)
{
    auto object = HandleTable::Instance().FindAs<ThreadObject>(thread);
    if (!object) {
        return FALSE;
    }
    {
        std::lock_guard<std::mutex> lock(DispatcherMutex());
        if (!object->RequestTerminationLocked(exitCode)) {
            return FALSE;
        }
    }
    // A thread that terminates itself ends here, as it would on Windows.
    if (object.get() == toolkit_win32::currentThread) {
        throw toolkit_win32::ThreadTerminated();
    }
    return TRUE;
}
