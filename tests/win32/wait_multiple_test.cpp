#include <gtest/gtest.h>

#include <chrono>
#include <thread>
#include <vector>

#include "platform/win32.h"

namespace {

struct Handles
{
    std::vector<HANDLE> list;
    ~Handles()
    {
        for (HANDLE handle : list) {
            CloseHandle(handle);
        }
    }
    HANDLE AutoEvent() { return Keep(CreateEventW(nullptr, FALSE, FALSE, nullptr)); }
    HANDLE ManualEvent() { return Keep(CreateEventW(nullptr, TRUE, FALSE, nullptr)); }
    HANDLE Semaphore(LONG initial, LONG maximum)
    {
        return Keep(CreateSemaphoreW(nullptr, initial, maximum, nullptr));
    }
    HANDLE Keep(HANDLE handle)
    {
        list.push_back(handle);
        return handle;
    }
};

using Clock = std::chrono::steady_clock;

} // namespace

TEST(WaitForMultipleObjects, LowestReadyIndexWinsAndOnlyItsSignalIsTaken)
{
    Handles h;
    HANDLE events[3] = {h.AutoEvent(), h.AutoEvent(), h.AutoEvent()};
    SetEvent(events[2]);
    SetEvent(events[1]);
    EXPECT_EQ(WaitForMultipleObjects(3, events, FALSE, 0), WAIT_OBJECT_0 + 1);
    EXPECT_EQ(WaitForSingleObject(events[1], 0), WAIT_TIMEOUT) << "the winner's signal was taken";
    EXPECT_EQ(WaitForMultipleObjects(3, events, FALSE, 0), WAIT_OBJECT_0 + 2) << "the other one kept its";
}

TEST(WaitForMultipleObjects, EventFirstInTheListBeatsAReadySemaphore)
{
    Handles h;
    HANDLE stopThenFire[2] = {h.AutoEvent(), h.Semaphore(0, 65535)};
    ReleaseSemaphore(stopThenFire[1], 5, nullptr);
    SetEvent(stopThenFire[0]);
    EXPECT_EQ(WaitForMultipleObjects(2, stopThenFire, FALSE, INFINITE), WAIT_OBJECT_0);
    EXPECT_EQ(WaitForMultipleObjects(2, stopThenFire, FALSE, INFINITE), WAIT_OBJECT_0 + 1);
    LONG previous = 0;
    ReleaseSemaphore(stopThenFire[1], 1, &previous);
    EXPECT_EQ(previous, 4) << "the semaphore gave exactly one count";
}

TEST(WaitForMultipleObjects, TimesOutWithWaitTimeoutAfterTheFullTime)
{
    Handles h;
    HANDLE pair[2] = {h.AutoEvent(), h.Semaphore(0, 1)};
    const auto start = Clock::now();
    EXPECT_EQ(WaitForMultipleObjects(2, pair, FALSE, 60), WAIT_TIMEOUT);
    EXPECT_GE(Clock::now() - start, std::chrono::milliseconds(60));
    EXPECT_EQ(WaitForMultipleObjects(2, pair, FALSE, 0), WAIT_TIMEOUT);
}

TEST(WaitForMultipleObjects, WakesWhenALaterObjectIsSignalledElsewhere)
{
    Handles h;
    HANDLE pair[2] = {h.AutoEvent(), h.Semaphore(0, 1)};
    std::thread releaser([&] {
        Sleep(30);
        ReleaseSemaphore(pair[1], 1, nullptr);
    });
    EXPECT_EQ(WaitForMultipleObjects(2, pair, FALSE, INFINITE), WAIT_OBJECT_0 + 1);
    releaser.join();
}

TEST(WaitForMultipleObjects, WaitAllEndsOnlyWhenEveryObjectIsReady)
{
    Handles h;
    HANDLE both[2] = {h.AutoEvent(), h.ManualEvent()};
    SetEvent(both[0]);
    EXPECT_EQ(WaitForMultipleObjects(2, both, TRUE, 20), WAIT_TIMEOUT);
    EXPECT_EQ(WaitForSingleObject(both[0], 0), WAIT_OBJECT_0) << "a failed wait-all took no signal";
    SetEvent(both[0]);
    std::thread setter([&] {
        Sleep(30);
        SetEvent(both[1]);
    });
    EXPECT_EQ(WaitForMultipleObjects(2, both, TRUE, INFINITE), WAIT_OBJECT_0);
    setter.join();
    EXPECT_EQ(WaitForSingleObject(both[0], 0), WAIT_TIMEOUT) << "the auto-reset signal was taken";
    EXPECT_EQ(WaitForSingleObject(both[1], 0), WAIT_OBJECT_0) << "the manual event stays set";
}

TEST(WaitForMultipleObjects, FailsForBadArguments)
{
    Handles h;
    HANDLE event = h.AutoEvent();
    SetEvent(event);
    HANDLE twice[2] = {event, event};
    EXPECT_EQ(WaitForMultipleObjects(2, twice, FALSE, 0), WAIT_FAILED);
    EXPECT_EQ(WaitForMultipleObjects(0, twice, FALSE, 0), WAIT_FAILED);
    EXPECT_EQ(WaitForMultipleObjects(1, nullptr, FALSE, 0), WAIT_FAILED);
    HANDLE closed = CreateEventW(nullptr, TRUE, TRUE, nullptr);
    CloseHandle(closed);
    HANDLE withClosed[2] = {event, closed};
    EXPECT_EQ(WaitForMultipleObjects(2, withClosed, FALSE, 0), WAIT_FAILED);
    std::vector<HANDLE> tooMany;
    for (DWORD i = 0; i <= MAXIMUM_WAIT_OBJECTS; ++i) {
        tooMany.push_back(h.ManualEvent());
    }
    EXPECT_EQ(WaitForMultipleObjects(MAXIMUM_WAIT_OBJECTS + 1, tooMany.data(), FALSE, 0), WAIT_FAILED);
    EXPECT_EQ(WaitForMultipleObjects(MAXIMUM_WAIT_OBJECTS, tooMany.data(), FALSE, 0), WAIT_TIMEOUT);
    EXPECT_EQ(WaitForSingleObject(event, 0), WAIT_OBJECT_0) << "failed waits took nothing";
}
