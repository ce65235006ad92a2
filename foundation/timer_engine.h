#pragma once

// Delayed and repeating calls without a window message loop.
//
// Two threads do the work while the engine runs:
//
//   timer thread:    every 100 ms (a wait on stopEvent that times out), walks
//                    `timers` in key order under timerLock; each item due
//                    (now - lastTick >= interval, in unsigned 32-bit ticks)
//                    queues a FireRecord under queueLock, adds one to
//                    fireSemaphore, and restarts from the tick of its firing.
//   dispatch thread: waits for {stopEvent, fireSemaphore} and calls the
//                    front record's callback outside every lock.
//
// So a timer fires on the first pass at or after its time (up to one pass
// late), and the lateness of a repeating timer adds up rather than being
// caught up. A slow callback delays the other callbacks, never the clock;
// records keep queuing meanwhile, the semaphore counting at most 65535.
//
//   Idle --Start--> Running --Stop--> Idle
//
// Stop signals the auto-reset stopEvent once, which wakes one of the two
// threads; it waits 1000 ms for both and then ends the other by force, so it
// normally takes about a second. Start has no guard: a second Start without
// Stop initialises the locks again, makes new handles and threads, and
// leaves the first threads running. Lock order: timerLock, then queueLock.

#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <utility>

#include "platform/win32.h"

class ITimerEngineCallBack
{
public:
    virtual ~ITimerEngineCallBack() = default;
    // Runs on the engine's dispatch thread, holding no lock of the engine
    // (so it may call AddTimer). The result is ignored.
    virtual bool OnTimerCallBack(uint32_t id, uint32_t param) = 0;
};

struct TimerItem
{
    uint32_t id;
    uint32_t interval; // milliseconds
    uint32_t repeat;   // firings left; 0xFFFFFFFF for ever
    uint32_t param;
    uint32_t lastTick; // GetTickCount of the last firing, or of the add
};

struct FireRecord
{
    ITimerEngineCallBack* callback;
    uint32_t id;
    uint32_t param;
};

class TimerEngine
{
public:
    // The process-wide engine, made on first use; making it starts nothing.
    // It lives to process exit, and its destructor stops nothing.
    static TimerEngine* GetInstance();

    virtual ~TimerEngine();
    TimerEngine(const TimerEngine&) = delete;
    TimerEngine& operator=(const TimerEngine&) = delete;

    // Makes the locks' state, the event and the semaphore, and starts the
    // timer thread, then the dispatch thread. Reports nothing; if a handle
    // cannot be made, no thread starts and added timers never fire.
    void Start();
    // Adds a timer, or restarts the callback's timer with the same id with
    // the new values. False (and nothing changed) only for a null callback.
    // A repeat of 0 is not refused: it wraps to 0xFFFFFFFF at the first
    // firing, so such a timer fires for ever. Any thread, any time.
    bool AddTimer(ITimerEngineCallBack* callback, uint32_t id, uint32_t interval, uint32_t repeat,
                  uint32_t param);
    // Ends both threads (see above), closes the handles, drops every timer
    // and every queued record. Must not be called from a callback.
    void Stop();

private:
    friend struct TimerEngineTestPeer;

    TimerEngine() = default;

    static unsigned TimerThread(void* context);
    static unsigned DispatchThread(void* context);
    // One pass of the timer thread, under timerLock.
    void FireDueTimers(HANDLE fireCounter);

    std::multimap<ITimerEngineCallBack*, TimerItem> timers;
    CRITICAL_SECTION timerLock;
    HANDLE stopEvent = nullptr;
    HANDLE fireSemaphore = nullptr;
    std::deque<FireRecord> fireQueue;
    CRITICAL_SECTION queueLock;
    // Timer thread first, dispatch thread second; null while stopped.
    std::unique_ptr<std::pair<HANDLE, HANDLE>> threads;
};
