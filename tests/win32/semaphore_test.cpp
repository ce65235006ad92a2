#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "platform/win32.h"

namespace {

struct Semaphore
{
    HANDLE handle;
    Semaphore(LONG initial, LONG maximum) : handle(CreateSemaphoreW(nullptr, initial, maximum, nullptr)) {}
    ~Semaphore() { CloseHandle(handle); }
};

} // namespace

TEST(CreateSemaphore, RefusesCountsOutsideZeroToMaximum)
{
    EXPECT_EQ(CreateSemaphoreW(nullptr, 0, 0, nullptr), nullptr);
    EXPECT_EQ(CreateSemaphoreW(nullptr, 2, 1, nullptr), nullptr);
    EXPECT_EQ(CreateSemaphoreW(nullptr, -1, 5, nullptr), nullptr);
    EXPECT_EQ(CreateSemaphoreW(nullptr, 0, -3, nullptr), nullptr);
}

TEST(Semaphore, EachWaitTakesOneCount)
{
    Semaphore s(2, 10);
    ASSERT_NE(s.handle, nullptr);
    EXPECT_EQ(WaitForSingleObject(s.handle, 0), WAIT_OBJECT_0);
    EXPECT_EQ(WaitForSingleObject(s.handle, 0), WAIT_OBJECT_0);
    EXPECT_EQ(WaitForSingleObject(s.handle, 20), WAIT_TIMEOUT);
}

TEST(ReleaseSemaphore, ReportsThePreviousCount)
{
    Semaphore s(1, 10);
    LONG previous = -1;
    ASSERT_TRUE(ReleaseSemaphore(s.handle, 3, &previous));
    EXPECT_EQ(previous, 1);
    ASSERT_TRUE(ReleaseSemaphore(s.handle, 1, &previous));
    EXPECT_EQ(previous, 4);
}

TEST(ReleaseSemaphore, RefusesToPassTheMaximumAndKeepsTheCount)
{
    Semaphore s(0, 3);
    EXPECT_TRUE(ReleaseSemaphore(s.handle, 2, nullptr));
    LONG previous = -1;
    EXPECT_FALSE(ReleaseSemaphore(s.handle, 2, &previous)) << "2 + 2 passes 3";
    EXPECT_EQ(previous, -1) << "a refused release reports nothing";
    EXPECT_TRUE(ReleaseSemaphore(s.handle, 1, &previous));
    EXPECT_EQ(previous, 2);
    EXPECT_FALSE(ReleaseSemaphore(s.handle, 1, nullptr));
    int taken = 0;
    while (WaitForSingleObject(s.handle, 0) == WAIT_OBJECT_0) {
        ++taken;
    }
    EXPECT_EQ(taken, 3);
}

TEST(ReleaseSemaphore, RefusesANonPositiveRelease)
{
    Semaphore s(0, 3);
    EXPECT_FALSE(ReleaseSemaphore(s.handle, 0, nullptr));
    EXPECT_FALSE(ReleaseSemaphore(s.handle, -1, nullptr));
    EXPECT_EQ(WaitForSingleObject(s.handle, 0), WAIT_TIMEOUT);
}

TEST(ReleaseSemaphore, CountStopsAt65535ReleasesOfOne)
{
    Semaphore s(0, 65535);
    int accepted = 0;
    for (int i = 0; i < 65540; ++i) {
        accepted += ReleaseSemaphore(s.handle, 1, nullptr) ? 1 : 0;
    }
    EXPECT_EQ(accepted, 65535);
}

TEST(ReleaseSemaphore, WakesAThreadWaitingWithoutLimit)
{
    Semaphore s(0, 1);
    std::thread releaser([&] {
        Sleep(30);
        ReleaseSemaphore(s.handle, 1, nullptr);
    });
    EXPECT_EQ(WaitForSingleObject(s.handle, INFINITE), WAIT_OBJECT_0);
    releaser.join();
}

TEST(ReleaseSemaphore, RefusesAHandleThatIsNoSemaphore)
{
    HANDLE event = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    EXPECT_FALSE(ReleaseSemaphore(event, 1, nullptr));
    Semaphore s(0, 1);
    EXPECT_FALSE(SetEvent(s.handle));
    CloseHandle(event);
}
