#include <gtest/gtest.h>

#include <atomic>
#include <chrono>

#include "platform/win32.h"

namespace {

struct Gate
{
    HANDLE open = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    ~Gate() { CloseHandle(open); }
};

DWORD WaitAtGateThenReturn7(LPVOID parameter)
{
    WaitForSingleObject(static_cast<Gate*>(parameter)->open, INFINITE);
    return 7;
}

unsigned RecordThreadId(void* parameter)
{
    static_cast<std::atomic<DWORD>*>(parameter)->store(GetCurrentThreadId());
    return 0;
}

} // namespace

TEST(CreateThread, HandleIsSignalledWhenTheThreadEndsAndKeepsItsExitCode)
{
    Gate gate;
    HANDLE thread = CreateThread(nullptr, 0, WaitAtGateThenReturn7, &gate, 0, nullptr);
    ASSERT_NE(thread, nullptr);
    DWORD code = 0;
    EXPECT_EQ(WaitForSingleObject(thread, 30), WAIT_TIMEOUT);
    ASSERT_TRUE(GetExitCodeThread(thread, &code));
    EXPECT_EQ(code, STILL_ACTIVE);
    SetEvent(gate.open);
    EXPECT_EQ(WaitForSingleObject(thread, 5000), WAIT_OBJECT_0);
    EXPECT_EQ(WaitForSingleObject(thread, 0), WAIT_OBJECT_0) << "an ended thread stays signalled";
    ASSERT_TRUE(GetExitCodeThread(thread, &code));
    EXPECT_EQ(code, 7u);
    CloseHandle(thread);
}

TEST(CreateThread, ReportsTheIdTheThreadSeesForItself)
{
    std::atomic<DWORD> seen{0};
    DWORD id = 0;
    HANDLE thread = CreateThread(
        nullptr, 0, [](LPVOID p) -> DWORD { return RecordThreadId(p); }, &seen, 0, &id);
    ASSERT_NE(thread, nullptr);
    ASSERT_EQ(WaitForSingleObject(thread, 5000), WAIT_OBJECT_0);
    EXPECT_NE(id, 0u);
    EXPECT_EQ(id, seen.load());
    EXPECT_NE(id, GetCurrentThreadId());
    CloseHandle(thread);
}

TEST(BeginThreadEx, StartsAWaitableThreadWithTheGivenStack)
{
    std::atomic<DWORD> seen{0};
    unsigned id = 0;
    const std::uintptr_t raw = _beginthreadex(nullptr, 256 * 1024, RecordThreadId, &seen, 0, &id);
    ASSERT_NE(raw, 0u);
    HANDLE thread = reinterpret_cast<HANDLE>(raw);
    ASSERT_EQ(WaitForSingleObject(thread, 5000), WAIT_OBJECT_0);
    EXPECT_EQ(id, seen.load());
    DWORD code = 99;
    ASSERT_TRUE(GetExitCodeThread(thread, &code));
    EXPECT_EQ(code, 0u);
    CloseHandle(thread);
}

TEST(CreateThread, ClosingTheHandleDoesNotStopTheThread)
{
    Gate gate;
    std::atomic<bool> finished{false};
    struct Work
    {
        Gate* gate;
        std::atomic<bool>* finished;
    } work{&gate, &finished};
    HANDLE thread = CreateThread(
        nullptr, 0,
        [](LPVOID p) -> DWORD {
            auto* w = static_cast<Work*>(p);
            WaitForSingleObject(w->gate->open, INFINITE);
            *w->finished = true;
            return 0;
        },
        &work, 0, nullptr);
    ASSERT_NE(thread, nullptr);
    EXPECT_TRUE(CloseHandle(thread));
    EXPECT_EQ(WaitForSingleObject(thread, 0), WAIT_FAILED);
    Sleep(20);
    EXPECT_FALSE(finished.load());
    SetEvent(gate.open); // only a thread that still runs can see this
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(2);
    while (!finished && std::chrono::steady_clock::now() < deadline) {
        Sleep(1);
    }
    EXPECT_TRUE(finished.load());
}

TEST(CreateThread, RefusesToStartSuspendedOrWithoutAFunction)
{
    Gate gate;
    EXPECT_EQ(CreateThread(nullptr, 0, WaitAtGateThenReturn7, &gate, CREATE_SUSPENDED, nullptr), nullptr);
    EXPECT_EQ(CreateThread(nullptr, 0, nullptr, nullptr, 0, nullptr), nullptr);
    EXPECT_EQ(_beginthreadex(nullptr, 0, nullptr, nullptr, 0, nullptr), 0u);
}

TEST(GetExitCodeThread, FailsForAHandleThatIsNoThread)
{
    HANDLE event = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    DWORD code = 0;
    EXPECT_FALSE(GetExitCodeThread(event, &code));
    CloseHandle(event);
}
