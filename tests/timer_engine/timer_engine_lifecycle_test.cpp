// Start, Stop and the engine's threads.

#include "tests/timer_engine/timer_engine_support.h"
#include "tests/win32/task_count.h"

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

TEST(TimerEngineInstance, IsOneObjectAndMakingItStartsNothing)
{
    const int before = SettledThreadCount();
    TimerEngine* first = TimerEngine::GetInstance();
    EXPECT_EQ(TimerEngine::GetInstance(), first);
    EXPECT_EQ(CountProcessThreads(), before);
    EXPECT_EQ(TimerEngineTestPeer::Threads(*first).first, nullptr);
}

TEST_F(TimerEngineTest, StartRunsTwoThreads)
{
    const int before = SettledThreadCount();
    StartEngine();
    EXPECT_EQ(CountProcessThreads(), before + 2);
    const auto threads = TimerEngineTestPeer::Threads(*engine);
    EXPECT_EQ(WaitForSingleObject(threads.first, 0), WAIT_TIMEOUT);
    EXPECT_EQ(WaitForSingleObject(threads.second, 0), WAIT_TIMEOUT);
}

TEST_F(TimerEngineTest, StopWithNoTimerPendingReturnsAfterAboutOneSecondAndLeavesNoThreads)
{
    const int before = SettledThreadCount();
    StartEngine();
    const auto start = Clock::now();
    StopEngine();
    const auto took = Clock::now() - start;
    // One thread takes the auto-reset signal; the wait for the other runs out.
    EXPECT_GE(took, milliseconds(1000));
    EXPECT_LT(took, milliseconds(1000 + kSlackMs));
    EXPECT_LE(WaitForThreadCount(before), before);
    EXPECT_EQ(TimerEngineTestPeer::Threads(*engine).first, nullptr);
}

TEST_F(TimerEngineTest, StopEndsAThreadStuckInACallbackAtItsNextWait)
{
    // The dispatch thread sits in a callback that waits without limit; Stop
    // ends it there.
    class StuckCallback : public ITimerEngineCallBack
    {
    public:
        bool OnTimerCallBack(uint32_t, uint32_t) override
        {
            entered = true;
            WaitForSingleObject(never, INFINITE);
            returned = true;
            return true;
        }
        HANDLE never = CreateEventW(nullptr, TRUE, FALSE, nullptr);
        std::atomic<bool> entered{false};
        std::atomic<bool> returned{false};
    } stuck;
    const int before = SettledThreadCount();
    StartEngine();
    engine->AddTimer(&stuck, 1, 0, 1, 0);
    while (!stuck.entered) {
        Sleep(5);
    }
    StopEngine();
    EXPECT_LE(WaitForThreadCount(before), before);
    EXPECT_FALSE(stuck.returned.load());
    CloseHandle(stuck.never);
}

TEST_F(TimerEngineTest, StopDropsTimersAndQueuedRecords)
{
    RecordingCallback callback(log);
    StartEngine();
    engine->AddTimer(&callback, 1, 60000, 1, 0);
    StopEngine();
    EXPECT_EQ(TimerEngineTestPeer::TimerCount(*engine), 0u);
    EXPECT_EQ(TimerEngineTestPeer::QueuedRecords(*engine), 0u);
}

TEST_F(TimerEngineTest, StartsAgainAfterStopAsEachErrorToastDoes)
{
    RecordingCallback callback(log);
    StartEngine();
    StopEngine();
    StartEngine();
    engine->AddTimer(&callback, 1, 200, 1, 0);
    EXPECT_TRUE(log.WaitForCount(1, milliseconds(200 + kPassMs + kSlackMs + 1000)));
}

TEST_F(TimerEngineTest, StopCalledFiftyTimesInARowAfterStartLeavesNoThreadBehind)
{
    const int before = SettledThreadCount();
    for (int round = 0; round < 50; ++round) {
        StartEngine();
        StopEngine();
        ASSERT_LE(WaitForThreadCount(before), before) << "round " << round;
    }
}

TEST_F(TimerEngineTest, SecondStartWithoutStopLeavesTheFirstThreadsRunning)
{
    RecordingCallback callback(log);
    const int before = SettledThreadCount();
    StartEngine();
    const auto first = TimerEngineTestPeer::Threads(*engine);
    const HANDLE firstStop = TimerEngineTestPeer::StopEvent(*engine);
    const HANDLE firstSemaphore = TimerEngineTestPeer::FireSemaphore(*engine);
    StartEngine();
    EXPECT_EQ(CountProcessThreads(), before + 4);
    EXPECT_NE(TimerEngineTestPeer::StopEvent(*engine), firstStop) << "the handles were made again";

    engine->AddTimer(&callback, 1, 0, 1, 0);
    ASSERT_TRUE(log.WaitForCount(1, milliseconds(kPassMs + kSlackMs + 1000)));
    Sleep(3 * kPassMs);
    EXPECT_EQ(log.Count(), 1u) << "two timer threads still fire a one-shot timer once";

    StopEngine();
    EXPECT_EQ(WaitForSingleObject(first.first, 0), WAIT_TIMEOUT) << "Stop knows only the second pair";
    EXPECT_EQ(WaitForSingleObject(first.second, 0), WAIT_TIMEOUT);

    // The test's own clean-up of what the engine leaves behind.
    TerminateThread(first.first, 0);
    TerminateThread(first.second, 0);
    const HANDLE firstPair[2] = {first.first, first.second};
    EXPECT_EQ(WaitForMultipleObjects(2, firstPair, TRUE, 2000), WAIT_OBJECT_0);
    for (HANDLE handle : {first.first, first.second, firstStop, firstSemaphore}) {
        CloseHandle(handle);
    }
    EXPECT_LE(WaitForThreadCount(before), before);
}
