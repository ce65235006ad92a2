#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>
#include <vector>

#include "platform/win32.h"

namespace {

// Closes the handle when the test ends, whatever it asserted.
struct EventHandle
{
    HANDLE handle;
    explicit EventHandle(BOOL manualReset, BOOL initialState = FALSE)
        : handle(CreateEventW(nullptr, manualReset, initialState, nullptr))
    {
    }
    ~EventHandle() { CloseHandle(handle); }
};

} // namespace

TEST(WaitForSingleObject, TimesOutOnAnUnsignalledEvent)
{
    EventHandle event(FALSE);
    ASSERT_NE(event.handle, nullptr);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(WaitForSingleObject(event.handle, 50), WAIT_TIMEOUT);
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(50));
}

TEST(WaitForSingleObject, ZeroTimeoutOnlyTests)
{
    EventHandle event(TRUE);
    EXPECT_EQ(WaitForSingleObject(event.handle, 0), WAIT_TIMEOUT);
    SetEvent(event.handle);
    EXPECT_EQ(WaitForSingleObject(event.handle, 0), WAIT_OBJECT_0);
}

TEST(WaitForSingleObject, InfiniteWaitEndsWhenAnotherThreadSets)
{
    EventHandle event(FALSE);
    std::thread setter([&] {
        Sleep(30);
        SetEvent(event.handle);
    });
    EXPECT_EQ(WaitForSingleObject(event.handle, INFINITE), WAIT_OBJECT_0);
    setter.join();
}

TEST(WaitForSingleObject, SignalledBeforeTheWaitIsNotLost)
{
    EventHandle event(FALSE);
    SetEvent(event.handle);
    EXPECT_EQ(WaitForSingleObject(event.handle, INFINITE), WAIT_OBJECT_0);
}

TEST(CreateEvent, InitiallySignalled)
{
    EventHandle event(FALSE, TRUE);
    EXPECT_EQ(WaitForSingleObject(event.handle, 0), WAIT_OBJECT_0);
    EXPECT_EQ(WaitForSingleObject(event.handle, 0), WAIT_TIMEOUT);
}

TEST(AutoResetEvent, OneSignalReleasesOneWait)
{
    EventHandle event(FALSE);
    SetEvent(event.handle);
    SetEvent(event.handle); // signals do not add up
    EXPECT_EQ(WaitForSingleObject(event.handle, 0), WAIT_OBJECT_0);
    EXPECT_EQ(WaitForSingleObject(event.handle, 20), WAIT_TIMEOUT);
}

TEST(AutoResetEvent, OneSignalWakesOnlyOneOfTwoWaiters)
{
    EventHandle event(FALSE);
    std::atomic<int> released{0};
    std::vector<std::thread> waiters;
    for (int i = 0; i < 2; ++i) {
        waiters.emplace_back([&] {
            if (WaitForSingleObject(event.handle, 150) == WAIT_OBJECT_0) {
                ++released;
            }
        });
    }
    Sleep(20);
    SetEvent(event.handle);
    for (auto& waiter : waiters) {
        waiter.join();
    }
    EXPECT_EQ(released.load(), 1);
}

TEST(ManualResetEvent, StaysSignalledForEveryWaitUntilReset)
{
    EventHandle event(TRUE);
    SetEvent(event.handle);
    EXPECT_EQ(WaitForSingleObject(event.handle, 0), WAIT_OBJECT_0);
    EXPECT_EQ(WaitForSingleObject(event.handle, 0), WAIT_OBJECT_0);
    ResetEvent(event.handle);
    EXPECT_EQ(WaitForSingleObject(event.handle, 20), WAIT_TIMEOUT);
}

TEST(ManualResetEvent, OneSignalReleasesAllWaiters)
{
    EventHandle event(TRUE);
    std::atomic<int> released{0};
    std::vector<std::thread> waiters;
    for (int i = 0; i < 4; ++i) {
        waiters.emplace_back([&] {
            if (WaitForSingleObject(event.handle, 2000) == WAIT_OBJECT_0) {
                ++released;
            }
        });
    }
    Sleep(20);
    SetEvent(event.handle);
    for (auto& waiter : waiters) {
        waiter.join();
    }
    EXPECT_EQ(released.load(), 4);
}

TEST(CloseHandle, ClosedHandleFailsEveryCall)
{
    HANDLE event = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    EXPECT_TRUE(CloseHandle(event));
    EXPECT_EQ(WaitForSingleObject(event, 0), WAIT_FAILED);
    EXPECT_FALSE(SetEvent(event));
    EXPECT_FALSE(ResetEvent(event));
    EXPECT_FALSE(CloseHandle(event));
    EXPECT_EQ(WaitForSingleObject(nullptr, 0), WAIT_FAILED);
}

TEST(CreateEvent, EachCallMakesADistinctEvent)
{
    EventHandle first(FALSE);
    EventHandle second(FALSE);
    EXPECT_NE(first.handle, second.handle);
    SetEvent(first.handle);
    EXPECT_EQ(WaitForSingleObject(second.handle, 0), WAIT_TIMEOUT);
}

TEST(GetTickCount, AdvancesWithSleep)
{
    const DWORD start = GetTickCount();
    Sleep(30);
    const DWORD elapsed = GetTickCount() - start;
    EXPECT_GE(elapsed, 30u);
    EXPECT_LT(elapsed, 1000u);
}

TEST(GetCurrentThreadId, DiffersBetweenThreadsAndIsStable)
{
    const DWORD mine = GetCurrentThreadId();
    EXPECT_EQ(GetCurrentThreadId(), mine);
    DWORD other = 0;
    std::thread([&] { other = GetCurrentThreadId(); }).join();
    EXPECT_NE(other, 0u);
    EXPECT_NE(other, mine);
}
