#pragma once

// What the timer engine's tests share: a callback that records its firings,
// a look inside the engine, and a fixture that stops the engine after each
// test.

#include <gtest/gtest.h>

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

#include "foundation/timer_engine.h"

struct TimerEngineTestPeer
{
    static std::size_t TimerCount(TimerEngine& engine)
    {
        EnterCriticalSection(&engine.timerLock);
        const std::size_t count = engine.timers.size();
        LeaveCriticalSection(&engine.timerLock);
        return count;
    }

    static std::size_t QueuedRecords(TimerEngine& engine)
    {
        EnterCriticalSection(&engine.queueLock);
        const std::size_t count = engine.fireQueue.size();
        LeaveCriticalSection(&engine.queueLock);
        return count;
    }

    static std::optional<TimerItem> Find(TimerEngine& engine, ITimerEngineCallBack* callback, uint32_t id)
    {
        std::optional<TimerItem> found;
        EnterCriticalSection(&engine.timerLock);
        auto [first, last] = engine.timers.equal_range(callback);
        for (auto entry = first; entry != last; ++entry) {
            if (entry->second.id == id) {
                found = entry->second;
            }
        }
        LeaveCriticalSection(&engine.timerLock);
        return found;
    }

    static void SetLastTick(TimerEngine& engine, ITimerEngineCallBack* callback, uint32_t id, uint32_t tick)
    {
        EnterCriticalSection(&engine.timerLock);
        auto [first, last] = engine.timers.equal_range(callback);
        for (auto entry = first; entry != last; ++entry) {
            if (entry->second.id == id) {
                entry->second.lastTick = tick;
            }
        }
        LeaveCriticalSection(&engine.timerLock);
    }

    // The timer thread walks only while it holds this lock.
    static CRITICAL_SECTION& TimerLock(TimerEngine& engine) { return engine.timerLock; }

    static std::pair<HANDLE, HANDLE> Threads(TimerEngine& engine)
    {
        return engine.threads ? *engine.threads : std::pair<HANDLE, HANDLE>{nullptr, nullptr};
    }
    static HANDLE StopEvent(TimerEngine& engine) { return engine.stopEvent; }
    static HANDLE FireSemaphore(TimerEngine& engine) { return engine.fireSemaphore; }
};

// Every firing of every RecordingCallback, in delivery order.
class FiringLog
{
public:
    struct Firing
    {
        const ITimerEngineCallBack* callback;
        uint32_t id;
        uint32_t param;
        DWORD tick;
        DWORD thread;
    };

    void Add(const Firing& firing)
    {
        {
            std::lock_guard<std::mutex> lock(mutex_);
            firings_.push_back(firing);
        }
        changed_.notify_all();
    }

    std::vector<Firing> Firings() const
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return firings_;
    }

    std::size_t Count() const
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return firings_.size();
    }

    // True once at least `count` firings arrived, waiting up to `limit`.
    bool WaitForCount(std::size_t count, std::chrono::milliseconds limit)
    {
        std::unique_lock<std::mutex> lock(mutex_);
        return changed_.wait_for(lock, limit, [&] { return firings_.size() >= count; });
    }

private:
    mutable std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<Firing> firings_;
};

class RecordingCallback : public ITimerEngineCallBack
{
public:
    explicit RecordingCallback(FiringLog& log) : log_(log) {}

    bool OnTimerCallBack(uint32_t id, uint32_t param) override
    {
        log_.Add(FiringLog::Firing{this, id, param, GetTickCount(), GetCurrentThreadId()});
        return true;
    }

private:
    FiringLog& log_;
};

// Starts nothing by itself; stops the engine after a test that started it.
class TimerEngineTest : public ::testing::Test
{
protected:
    void StartEngine()
    {
        engine->Start();
        started_ = true;
    }
    void StopEngine()
    {
        engine->Stop();
        started_ = false;
    }
    void TearDown() override
    {
        if (started_) {
            engine->Stop();
        }
    }

    TimerEngine* engine = TimerEngine::GetInstance();
    FiringLog log;

private:
    bool started_ = false;
};

// The timer thread passes every 100 ms; the slack covers a pass, the walk and
// the dispatch on a loaded two-core machine.
constexpr DWORD kPassMs = 100;
constexpr DWORD kSlackMs = 400;
