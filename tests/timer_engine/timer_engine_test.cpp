// What the engine fires, when, and in which order.

#include <atomic>
#include <thread>

#include "tests/timer_engine/timer_engine_support.h"

using std::chrono::milliseconds;

TEST_F(TimerEngineTest, OneShotOf3000msFiresOnceBetween3000And3100msAndItsItemIsGone)
{
    RecordingCallback window(log);
    StartEngine();
    const DWORD added = GetTickCount();
    ASSERT_TRUE(engine->AddTimer(&window, 1, 3000, 1, 0));
    ASSERT_TRUE(log.WaitForCount(1, milliseconds(3000 + kPassMs + kSlackMs + 1000)));
    const DWORD elapsed = log.Firings()[0].tick - added;
    EXPECT_GE(elapsed, 3000u);
    EXPECT_LT(elapsed, 3000u + kPassMs + kSlackMs);
    EXPECT_EQ(TimerEngineTestPeer::TimerCount(*engine), 0u);
    Sleep(3 * kPassMs);
    EXPECT_EQ(log.Count(), 1u);
    EXPECT_EQ(log.Firings()[0].id, 1u);
    EXPECT_EQ(log.Firings()[0].param, 0u);
}

TEST_F(TimerEngineTest, AddingTheSameCallbackAndIdAgainRestartsTheIntervalWithoutASecondItem)
{
    RecordingCallback callback(log);
    StartEngine();
    engine->AddTimer(&callback, 1, 400, 1, 7);
    Sleep(250);
    const DWORD readded = GetTickCount();
    engine->AddTimer(&callback, 1, 400, 1, 8);
    EXPECT_EQ(TimerEngineTestPeer::TimerCount(*engine), 1u);
    ASSERT_TRUE(log.WaitForCount(1, milliseconds(400 + kPassMs + kSlackMs + 1000)));
    EXPECT_GE(log.Firings()[0].tick - readded, 400u) << "the interval started again at the second add";
    EXPECT_EQ(log.Firings()[0].param, 8u) << "the second add's values replaced the first's";
    Sleep(3 * kPassMs);
    EXPECT_EQ(log.Count(), 1u);
}

TEST_F(TimerEngineTest, TheSameCallbackWithAnotherIdRunsASecondTimer)
{
    RecordingCallback callback(log);
    StartEngine();
    engine->AddTimer(&callback, 1, 200, 1, 0);
    engine->AddTimer(&callback, 2, 200, 1, 0);
    EXPECT_EQ(TimerEngineTestPeer::TimerCount(*engine), 2u);
    ASSERT_TRUE(log.WaitForCount(2, milliseconds(200 + kPassMs + kSlackMs + 1000)));
    Sleep(3 * kPassMs);
    const auto firings = log.Firings();
    ASSERT_EQ(firings.size(), 2u);
    EXPECT_NE(firings[0].id, firings[1].id);
}

TEST_F(TimerEngineTest, TwoRecordsDueInOnePassAreDeliveredInTheOrderOfTheWalk)
{
    // Elements of one array, so their addresses (the map's keys) are ordered.
    RecordingCallback callbacks[2] = {RecordingCallback(log), RecordingCallback(log)};
    StartEngine();
    // Added under the timer thread's lock, so that one pass sees all three,
    // and in an order that differs from the walk's.
    EnterCriticalSection(&TimerEngineTestPeer::TimerLock(*engine));
    engine->AddTimer(&callbacks[1], 2, 0, 1, 0);
    engine->AddTimer(&callbacks[1], 1, 0, 1, 0);
    engine->AddTimer(&callbacks[0], 1, 0, 1, 0);
    LeaveCriticalSection(&TimerEngineTestPeer::TimerLock(*engine));
    ASSERT_TRUE(log.WaitForCount(3, milliseconds(kPassMs + kSlackMs + 1000)));
    const auto firings = log.Firings();
    // Key order first; one key's timers in the order they were added.
    EXPECT_EQ(firings[0].callback, &callbacks[0]);
    EXPECT_EQ(firings[1].callback, &callbacks[1]);
    EXPECT_EQ(firings[1].id, 2u);
    EXPECT_EQ(firings[2].callback, &callbacks[1]);
    EXPECT_EQ(firings[2].id, 1u);
}

namespace {

// Blocks the dispatch thread in its first call until the gate opens.
class BlockingCallback : public ITimerEngineCallBack
{
public:
    ~BlockingCallback()
    {
        CloseHandle(entered);
        CloseHandle(gate);
    }
    bool OnTimerCallBack(uint32_t, uint32_t) override
    {
        SetEvent(entered);
        WaitForSingleObject(gate, INFINITE);
        return true;
    }
    HANDLE entered = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    HANDLE gate = CreateEventW(nullptr, TRUE, FALSE, nullptr);
};

class CountingCallback : public ITimerEngineCallBack
{
public:
    bool OnTimerCallBack(uint32_t, uint32_t) override
    {
        ++calls;
        return true;
    }
    std::atomic<std::size_t> calls{0};
};

} // namespace

TEST_F(TimerEngineTest, ABlockingCallbackDelaysLaterFiringsWhileRecordsQueueUpToTheSemaphoresMaximum)
{
    constexpr uint32_t kTimers = 70000;
    constexpr std::size_t kMaximum = 65535;
    BlockingCallback blocker;
    CountingCallback counter;
    StartEngine();
    engine->AddTimer(&blocker, 1, 0, 1, 0);
    ASSERT_EQ(WaitForSingleObject(blocker.entered, 5000), WAIT_OBJECT_0);
    for (uint32_t id = 0; id < kTimers; ++id) {
        engine->AddTimer(&counter, id, 0, 1, 0);
    }
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (TimerEngineTestPeer::TimerCount(*engine) > 0 && std::chrono::steady_clock::now() < deadline) {
        Sleep(10);
    }
    ASSERT_EQ(TimerEngineTestPeer::TimerCount(*engine), 0u) << "every timer fired once";
    EXPECT_EQ(counter.calls.load(), 0u) << "nothing is delivered while a callback blocks";
    EXPECT_EQ(TimerEngineTestPeer::QueuedRecords(*engine), std::size_t{kTimers});

    SetEvent(blocker.gate);
    while (counter.calls.load() < kMaximum && std::chrono::steady_clock::now() < deadline) {
        Sleep(10);
    }
    Sleep(3 * kPassMs);
    EXPECT_EQ(counter.calls.load(), kMaximum) << "the semaphore counted no more than its maximum";
    EXPECT_EQ(TimerEngineTestPeer::QueuedRecords(*engine), kTimers - kMaximum);
}

TEST_F(TimerEngineTest, RepeatingTimerLatenessAddsUpInsteadOfBeingCaughtUp)
{
    RecordingCallback callback(log);
    constexpr DWORD kInterval = 150; // not a multiple of the pass
    StartEngine();
    const DWORD added = GetTickCount();
    engine->AddTimer(&callback, 1, kInterval, 4, 0);
    ASSERT_TRUE(log.WaitForCount(4, milliseconds(4 * (kInterval + kPassMs) + kSlackMs + 2000)));
    const auto firings = log.Firings();
    DWORD previous = added;
    for (const auto& firing : firings) {
        // Counted from each firing, a gap is never shorter than the interval;
        // catching up on a schedule would make some gaps one pass long.
        EXPECT_GE(firing.tick - previous, kInterval);
        previous = firing.tick;
    }
    Sleep(3 * kPassMs);
    EXPECT_EQ(log.Count(), 4u);
    EXPECT_EQ(TimerEngineTestPeer::TimerCount(*engine), 0u);
}

TEST_F(TimerEngineTest, RepeatZeroFiresForEver)
{
    RecordingCallback callback(log);
    StartEngine();
    engine->AddTimer(&callback, 1, 0, 0, 0);
    ASSERT_TRUE(log.WaitForCount(6, milliseconds(6 * kPassMs + kSlackMs + 2000)));
    const auto item = TimerEngineTestPeer::Find(*engine, &callback, 1);
    ASSERT_TRUE(item.has_value()) << "the item stays";
    EXPECT_EQ(item->repeat, 0xFFFFFFFFu) << "the first firing wrapped 0 to for ever";
}

TEST_F(TimerEngineTest, TickDifferenceIsUnsignedSoALastTickPastTheWrapCountsAsLongAgo)
{
    RecordingCallback callback(log);
    StartEngine();
    engine->AddTimer(&callback, 1, 60000, 1, 0);
    // A last tick 1000 ms "ahead" is, in 32-bit ticks, 2^32 - 1000 ms ago:
    // what a timer added just before the counter wrapped looks like after it.
    TimerEngineTestPeer::SetLastTick(*engine, &callback, 1, GetTickCount() + 1000u);
    EXPECT_TRUE(log.WaitForCount(1, milliseconds(kPassMs + kSlackMs + 1000)));
}

TEST_F(TimerEngineTest, AddTimerRefusesANullCallbackAndChangesNothing)
{
    EXPECT_FALSE(engine->AddTimer(nullptr, 1, 10, 1, 0));
    EXPECT_EQ(TimerEngineTestPeer::TimerCount(*engine), 0u);
}

namespace {

// Re-arms itself once from inside the callback, under no lock of the engine.
class RearmingCallback : public RecordingCallback
{
public:
    RearmingCallback(FiringLog& log, TimerEngine& engine) : RecordingCallback(log), engine_(engine) {}
    bool OnTimerCallBack(uint32_t id, uint32_t param) override
    {
        RecordingCallback::OnTimerCallBack(id, param);
        if (id == 1) {
            engine_.AddTimer(this, 2, 0, 1, 0);
        }
        return false; // ignored by the engine
    }

private:
    TimerEngine& engine_;
};

} // namespace

TEST_F(TimerEngineTest, CallbackRunsOnTheDispatchThreadAndMayAddTimers)
{
    RearmingCallback callback(log, *engine);
    StartEngine();
    engine->AddTimer(&callback, 1, 0, 1, 0);
    ASSERT_TRUE(log.WaitForCount(2, milliseconds(2 * kPassMs + kSlackMs + 1000)));
    const auto firings = log.Firings();
    EXPECT_EQ(firings[1].id, 2u);
    EXPECT_NE(firings[0].thread, GetCurrentThreadId());
    EXPECT_EQ(firings[0].thread, firings[1].thread);
}

TEST_F(TimerEngineTest, AddTimerFromSeveralThreadsWhileRunningKeepsEveryTimer)
{
    CountingCallback callbacks[4];
    StartEngine();
    std::vector<std::thread> adders;
    for (auto& callback : callbacks) {
        adders.emplace_back([this, &callback] {
            for (uint32_t id = 0; id < 1000; ++id) {
                engine->AddTimer(&callback, id, 600000, 1, 0);
            }
        });
    }
    for (auto& adder : adders) {
        adder.join();
    }
    EXPECT_EQ(TimerEngineTestPeer::TimerCount(*engine), 4000u);
}
