#include "foundation/timer_engine.h"

namespace {

constexpr DWORD kTimerPassMs = 100;
constexpr LONG kMaximumQueuedFirings = 65535;
constexpr DWORD kStopWaitMs = 1000;
constexpr uint32_t kRepeatForever = 0xFFFFFFFFu;

// What one of the engine's threads works with. The handles are copied when
// the thread starts: a second Start replaces the engine's own, and the first
// threads then keep theirs instead of reading fields that another thread is
// writing.
struct ThreadContext
{
    TimerEngine* engine;
    HANDLE stopEvent;
    HANDLE fireSemaphore;
};

// Frees the context on every way out of the thread, including its forced end.
std::unique_ptr<ThreadContext> TakeContext(void* raw)
{
    return std::unique_ptr<ThreadContext>(static_cast<ThreadContext*>(raw));
}

HANDLE StartEngineThread(unsigned (*body)(void*), const ThreadContext& context)
{
    auto owned = std::make_unique<ThreadContext>(context);
    const std::uintptr_t thread = _beginthreadex(nullptr, 0, body, owned.get(), 0, nullptr);
    if (thread != 0) {
        owned.release(); // the thread's own now
    }
    return reinterpret_cast<HANDLE>(thread);
}

} // namespace

TimerEngine* TimerEngine::GetInstance()
{
    static TimerEngine engine;
    return &engine;
}

TimerEngine::~TimerEngine()
{
    EnterCriticalSection(&timerLock);
    timers.clear();
    LeaveCriticalSection(&timerLock);
    EnterCriticalSection(&queueLock);
    fireQueue.clear();
    LeaveCriticalSection(&queueLock);
}

void TimerEngine::Start()
{
    InitializeCriticalSection(&timerLock);
    InitializeCriticalSection(&queueLock);
    stopEvent = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    fireSemaphore = CreateSemaphoreW(nullptr, 0, kMaximumQueuedFirings, nullptr);
    if (stopEvent == nullptr || fireSemaphore == nullptr) {
        return;
    }
    threads = std::make_unique<std::pair<HANDLE, HANDLE>>();
    const ThreadContext context{this, stopEvent, fireSemaphore};
    threads->first = StartEngineThread(&TimerEngine::TimerThread, context);
    threads->second = StartEngineThread(&TimerEngine::DispatchThread, context);
}

bool TimerEngine::AddTimer(ITimerEngineCallBack* callback, uint32_t id, uint32_t interval, uint32_t repeat,
                           uint32_t param)
{
    if (callback == nullptr) {
        return false;
    }
    const DWORD now = GetTickCount();
    EnterCriticalSection(&timerLock);
    auto [first, last] = timers.equal_range(callback);
    bool restarted = false;
    for (auto entry = first; entry != last && !restarted; ++entry) {
        TimerItem& item = entry->second;
        if (item.id == id) {
            item = TimerItem{id, interval, repeat, param, now};
            restarted = true;
        }
    }
    if (!restarted) {
        timers.emplace(callback, TimerItem{id, interval, repeat, param, now});
    }
    LeaveCriticalSection(&timerLock);
    return true;
}

void TimerEngine::Stop()
{
    SetEvent(stopEvent);
    if (threads && stopEvent != nullptr) {
        const HANDLE both[2] = {threads->first, threads->second};
        // One signal wakes one thread; the other normally misses it, so this
        // is where Stop spends its second.
        if (WaitForMultipleObjects(2, both, TRUE, kStopWaitMs) == WAIT_TIMEOUT) {
            TerminateThread(both[0], 0);
            TerminateThread(both[1], 0);
        }
    }
    if (threads) {
        CloseHandle(threads->first);
        CloseHandle(threads->second);
    }
    CloseHandle(fireSemaphore);
    CloseHandle(stopEvent);
    threads.reset();
    // Under the locks: a thread ended by force may still be on its way to its
    // next wait, where it ends.
    EnterCriticalSection(&timerLock);
    timers.clear();
    LeaveCriticalSection(&timerLock);
    EnterCriticalSection(&queueLock);
    fireQueue.clear();
    LeaveCriticalSection(&queueLock);
    DeleteCriticalSection(&timerLock);
    DeleteCriticalSection(&queueLock);
}

unsigned TimerEngine::TimerThread(void* raw)
{
    const auto context = TakeContext(raw);
    while (WaitForSingleObject(context->stopEvent, kTimerPassMs) == WAIT_TIMEOUT) {
        EnterCriticalSection(&context->engine->timerLock);
        context->engine->FireDueTimers(context->fireSemaphore);
        LeaveCriticalSection(&context->engine->timerLock);
    }
    return 0;
}

void TimerEngine::FireDueTimers(HANDLE fireCounter)
{
    for (auto entry = timers.begin(); entry != timers.end();) {
        TimerItem& item = entry->second;
        // Unsigned, so that the test stays right across the wrap of the tick
        // count.
        if (GetTickCount() - item.lastTick < item.interval) {
            ++entry;
            continue;
        }
        EnterCriticalSection(&queueLock);
        fireQueue.push_back(FireRecord{entry->first, item.id, item.param});
        LeaveCriticalSection(&queueLock);
        // At the maximum the release fails and the record waits in the queue
        // without a count.
        ReleaseSemaphore(fireCounter, 1, nullptr);
        item.lastTick = GetTickCount();
        if (item.repeat == kRepeatForever) {
            ++entry;
        } else if (item.repeat-- == 1) {
            entry = timers.erase(entry);
        } else {
            ++entry;
        }
    }
}

unsigned TimerEngine::DispatchThread(void* raw)
{
    const auto context = TakeContext(raw);
    TimerEngine& engine = *context->engine;
    // The stop event first: when both are ready, stopping wins.
    const HANDLE waitList[2] = {context->stopEvent, context->fireSemaphore};
    while (WaitForMultipleObjects(2, waitList, FALSE, INFINITE) == WAIT_OBJECT_0 + 1) {
        EnterCriticalSection(&engine.queueLock);
        if (engine.fireQueue.empty()) {
            // A count without a record: Stop dropped the queue under a thread
            // it ended by force, or a second Start left two dispatch threads
            // taking from one queue.
            LeaveCriticalSection(&engine.queueLock);
            continue;
        }
        const FireRecord record = engine.fireQueue.front();
        engine.fireQueue.pop_front();
        LeaveCriticalSection(&engine.queueLock);
        record.callback->OnTimerCallBack(record.id, record.param);
    }
    return 0;
}
