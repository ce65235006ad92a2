#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/win32.h"
#include "tests/win32/task_count.h"

namespace {

using Clock = std::chrono::steady_clock;

// What a test thread shares with the test. The thread holds heap memory on
// its stack and a std::mutex while it waits, so that sanitizers and the
// test can see both released when it is terminated.
struct Victim
{
    HANDLE stop = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    HANDLE fire = CreateSemaphoreW(nullptr, 0, 65535, nullptr);
    std::mutex held;
    std::atomic<bool> waiting{false};
    std::atomic<bool> release{false};
    std::atomic<bool> passedTheWait{false};
    std::atomic<bool> stackUnwound{false};
    ~Victim()
    {
        CloseHandle(stop);
        CloseHandle(fire);
    }
};

struct SetsFlagWhenDestroyed
{
    std::atomic<bool>& flag;
    ~SetsFlagWhenDestroyed() { flag = true; }
};

DWORD WaitOnStopAndFire(LPVOID parameter)
{
    auto& v = *static_cast<Victim*>(parameter);
    SetsFlagWhenDestroyed unwound{v.stackUnwound};
    auto buffer = std::make_unique<std::vector<std::string>>(100, std::string(1000, 'x'));
    std::lock_guard<std::mutex> lock(v.held);
    HANDLE both[2] = {v.stop, v.fire};
    v.waiting = true;
    WaitForMultipleObjects(2, both, FALSE, INFINITE);
    v.passedTheWait = true;
    return 0;
}

DWORD SpinThenWait(LPVOID parameter)
{
    auto& v = *static_cast<Victim*>(parameter);
    SetsFlagWhenDestroyed unwound{v.stackUnwound};
    v.waiting = true; // here: "running its own code"
    while (!v.release) {
    }
    WaitForSingleObject(v.stop, 0); // the first surface wait after the mark
    v.passedTheWait = true;
    return 0;
}

void WaitUntil(const std::atomic<bool>& flag)
{
    while (!flag) {
        Sleep(1);
    }
}

// Each round starts a thread with `body`, lets it settle in its wait,
// terminates it and measures how long until its handle is signalled. On an
// idle machine that is well under a millisecond; on a loaded one a round
// may wait for a processor now and then, so the tests below ask 4 rounds of
// 5 to be within 50 ms rather than every one.
template <typename Check>
std::vector<Clock::duration> TerminationTimes(LPTHREAD_START_ROUTINE body, Check check)
{
    std::vector<Clock::duration> times;
    for (int round = 0; round < 5; ++round) {
        Victim v;
        HANDLE thread = CreateThread(nullptr, 0, body, &v, 0, nullptr);
        EXPECT_NE(thread, nullptr);
        WaitUntil(v.waiting);
        Sleep(20); // well inside the wait
        const auto start = Clock::now();
        EXPECT_TRUE(TerminateThread(thread, 42));
        EXPECT_EQ(WaitForSingleObject(thread, 5000), WAIT_OBJECT_0);
        times.push_back(Clock::now() - start);
        check(v, thread);
        CloseHandle(thread);
    }
    return times;
}

long WithinMs(const std::vector<Clock::duration>& times, int limitMs)
{
    return std::count_if(times.begin(), times.end(),
                         [limitMs](Clock::duration t) { return t <= std::chrono::milliseconds(limitMs); });
}

DWORD SleepForEver(LPVOID parameter)
{
    auto& v = *static_cast<Victim*>(parameter);
    SetsFlagWhenDestroyed unwound{v.stackUnwound};
    v.waiting = true;
    Sleep(INFINITE);
    v.passedTheWait = true;
    return 0;
}

void ExpectEndedInsideTheWait(const Victim& v, HANDLE thread)
{
    EXPECT_FALSE(v.passedTheWait.load()) << "the thread ended inside the wait";
    EXPECT_TRUE(v.stackUnwound.load());
    DWORD code = 0;
    EXPECT_TRUE(GetExitCodeThread(thread, &code));
    EXPECT_EQ(code, 42u);
}

} // namespace

TEST(TerminateThread, ThreadWaitingInWaitForMultipleObjectsEndsWithin50ms)
{
    const int before = SettledThreadCount();
    const auto times = TerminationTimes(WaitOnStopAndFire, ExpectEndedInsideTheWait);
    EXPECT_GE(WithinMs(times, 50), 4);
    EXPECT_EQ(WithinMs(times, 1000), 5);
    EXPECT_LE(WaitForThreadCount(before), before);
}

TEST(TerminateThread, ThreadSleepingEndsWithin50ms)
{
    const auto times = TerminationTimes(SleepForEver, ExpectEndedInsideTheWait);
    EXPECT_GE(WithinMs(times, 50), 4);
    EXPECT_EQ(WithinMs(times, 1000), 5);
}

TEST(TerminateThread, TerminatedThreadHoldsNoLock)
{
    Victim v;
    HANDLE thread = CreateThread(nullptr, 0, WaitOnStopAndFire, &v, 0, nullptr);
    WaitUntil(v.waiting);
    ASSERT_TRUE(TerminateThread(thread, 1));
    ASSERT_EQ(WaitForSingleObject(thread, 2000), WAIT_OBJECT_0);
    // The mutex its stack held, and the surface's own, are free again.
    EXPECT_TRUE(v.held.try_lock());
    v.held.unlock();
    EXPECT_TRUE(ReleaseSemaphore(v.fire, 1, nullptr));
    EXPECT_EQ(WaitForSingleObject(v.fire, 0), WAIT_OBJECT_0);
    EXPECT_TRUE(SetEvent(v.stop));
    EXPECT_EQ(WaitForSingleObject(v.stop, 0), WAIT_OBJECT_0) << "the signal was not taken by the dead wait";
    CloseHandle(thread);
}

TEST(TerminateThread, ThreadRunningItsOwnCodeEndsAtItsNextWait)
{
    Victim v;
    HANDLE thread = CreateThread(nullptr, 0, SpinThenWait, &v, 0, nullptr);
    WaitUntil(v.waiting);
    ASSERT_TRUE(TerminateThread(thread, 5));
    EXPECT_EQ(WaitForSingleObject(thread, 50), WAIT_TIMEOUT) << "still running its own code";
    DWORD code = 0;
    GetExitCodeThread(thread, &code);
    EXPECT_EQ(code, STILL_ACTIVE);
    v.release = true;
    EXPECT_EQ(WaitForSingleObject(thread, 2000), WAIT_OBJECT_0);
    EXPECT_FALSE(v.passedTheWait.load());
    GetExitCodeThread(thread, &code);
    EXPECT_EQ(code, 5u);
    CloseHandle(thread);
}

TEST(TerminateThread, CatchingStdExceptionDoesNotStopTheEnd)
{
    Victim v;
    struct Context
    {
        Victim* victim;
        std::atomic<bool> caught{false};
    } context{&v};
    HANDLE thread = CreateThread(
        nullptr, 0,
        [](LPVOID p) -> DWORD {
            auto& c = *static_cast<Context*>(p);
            try {
                c.victim->waiting = true;
                WaitForSingleObject(c.victim->stop, INFINITE);
            } catch (const std::exception&) {
                c.caught = true;
            }
            c.victim->passedTheWait = true;
            return 0;
        },
        &context, 0, nullptr);
    WaitUntil(v.waiting);
    TerminateThread(thread, 0);
    EXPECT_EQ(WaitForSingleObject(thread, 2000), WAIT_OBJECT_0);
    EXPECT_FALSE(context.caught.load());
    EXPECT_FALSE(v.passedTheWait.load());
    CloseHandle(thread);
}

TEST(TerminateThread, SwallowedEndComesBackAtTheNextWait)
{
    Victim v;
    struct Context
    {
        Victim* victim;
        std::atomic<int> swallowed{0};
    } context{&v};
    HANDLE thread = CreateThread(
        nullptr, 0,
        [](LPVOID p) -> DWORD {
            auto& c = *static_cast<Context*>(p);
            try {
                c.victim->waiting = true;
                WaitForSingleObject(c.victim->stop, INFINITE);
            } catch (...) {
                ++c.swallowed;
            }
            WaitForSingleObject(c.victim->stop, INFINITE);
            c.victim->passedTheWait = true;
            return 0;
        },
        &context, 0, nullptr);
    WaitUntil(v.waiting);
    TerminateThread(thread, 0);
    EXPECT_EQ(WaitForSingleObject(thread, 2000), WAIT_OBJECT_0);
    EXPECT_EQ(context.swallowed.load(), 1);
    EXPECT_FALSE(v.passedTheWait.load());
    CloseHandle(thread);
}

TEST(TerminateThread, ThreadTerminatingItselfDoesNotReturn)
{
    struct Context
    {
        HANDLE self = nullptr;
        HANDLE ready = CreateEventW(nullptr, TRUE, FALSE, nullptr);
        std::atomic<bool> returned{false};
    } context;
    HANDLE thread = CreateThread(
        nullptr, 0,
        [](LPVOID p) -> DWORD {
            auto& c = *static_cast<Context*>(p);
            WaitForSingleObject(c.ready, INFINITE);
            TerminateThread(c.self, 9);
            c.returned = true;
            return 0;
        },
        &context, 0, nullptr);
    context.self = thread;
    SetEvent(context.ready);
    ASSERT_EQ(WaitForSingleObject(thread, 2000), WAIT_OBJECT_0);
    EXPECT_FALSE(context.returned.load());
    DWORD code = 0;
    GetExitCodeThread(thread, &code);
    EXPECT_EQ(code, 9u);
    CloseHandle(thread);
    CloseHandle(context.ready);
}

TEST(TerminateThread, FailsForAnEndedThreadAndForHandlesThatAreNoThread)
{
    HANDLE thread = CreateThread(
        nullptr, 0, [](LPVOID) -> DWORD { return 4; }, nullptr, 0, nullptr);
    ASSERT_EQ(WaitForSingleObject(thread, 2000), WAIT_OBJECT_0);
    EXPECT_FALSE(TerminateThread(thread, 1));
    DWORD code = 0;
    GetExitCodeThread(thread, &code);
    EXPECT_EQ(code, 4u) << "the exit code of an ended thread stays";
    CloseHandle(thread);
    HANDLE event = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    EXPECT_FALSE(TerminateThread(event, 1));
    CloseHandle(event);
    EXPECT_FALSE(TerminateThread(nullptr, 1));
}
