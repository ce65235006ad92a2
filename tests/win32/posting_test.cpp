#include <gtest/gtest.h>

#include <atomic>
#include <mutex>
#include <thread>
#include <vector>

#include "toolkit/win32/message_queue.h"
#include "window_thread.h"

namespace {

constexpr UINT kNumbered = WM_USER + 1;
constexpr UINT kDone = WM_USER + 2;

// Drains the calling thread's queue without waiting.
std::vector<MSG> DrainQueue()
{
    std::vector<MSG> taken;
    MSG msg{};
    while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
        taken.push_back(msg);
    }
    return taken;
}

} // namespace

TEST(PostMessage, MessagesArriveInPostingOrder)
{
    std::vector<WPARAM> seen;
    HWND hwnd = CreateWindowHandle([&](HWND, UINT msg, WPARAM wParam, LPARAM) -> LRESULT {
        if (msg == kNumbered) {
            seen.push_back(wParam);
        }
        return 0;
    });
    ASSERT_NE(hwnd, nullptr);
    for (WPARAM i = 0; i < 50; ++i) {
        ASSERT_TRUE(PostMessageW(hwnd, kNumbered, i, 0));
    }
    for (const MSG& msg : DrainQueue()) {
        DispatchMessageW(&msg);
    }
    ASSERT_EQ(seen.size(), 50u);
    for (WPARAM i = 0; i < 50; ++i) {
        EXPECT_EQ(seen[i], i);
    }
    DestroyWindow(hwnd);
}

TEST(PostMessage, CarriesWindowMessageAndParameters)
{
    HWND hwnd = CreateWindowHandle([](HWND, UINT, WPARAM, LPARAM) -> LRESULT { return 0; });
    ASSERT_TRUE(PostMessageW(hwnd, kNumbered, 7, -9));
    MSG msg{};
    ASSERT_TRUE(PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(msg.hwnd, hwnd);
    EXPECT_EQ(msg.message, kNumbered);
    EXPECT_EQ(msg.wParam, 7u);
    EXPECT_EQ(msg.lParam, -9);
    DestroyWindow(hwnd);
}

TEST(PostMessage, ToDestroyedWindowFails)
{
    HWND hwnd = CreateWindowHandle([](HWND, UINT, WPARAM, LPARAM) -> LRESULT { return 0; });
    ASSERT_TRUE(IsWindow(hwnd));
    ASSERT_TRUE(DestroyWindow(hwnd));
    EXPECT_FALSE(IsWindow(hwnd));
    EXPECT_FALSE(PostMessageW(hwnd, kNumbered, 0, 0));
    EXPECT_TRUE(DrainQueue().empty());
}

TEST(PostMessage, ToWindowDestroyedOnItsThreadFailsFromAnotherThread)
{
    WindowThread window([](HWND, UINT, WPARAM, LPARAM) -> LRESULT { return 0; });
    const HWND hwnd = window.Hwnd();
    window.Stop(); // the loop destroys the window before its thread ends
    EXPECT_FALSE(IsWindow(hwnd));
    EXPECT_FALSE(PostMessageW(hwnd, kNumbered, 0, 0));
}

TEST(PostMessage, ToUnknownHandleFails)
{
    EXPECT_FALSE(PostMessageW(reinterpret_cast<HWND>(0x7fff0000), kNumbered, 0, 0));
    EXPECT_FALSE(IsWindow(reinterpret_cast<HWND>(0x7fff0000)));
    EXPECT_FALSE(IsWindow(nullptr));
}

TEST(PostMessage, PendingMessagesOfDestroyedWindowAreDropped)
{
    HWND hwnd = CreateWindowHandle([](HWND, UINT, WPARAM, LPARAM) -> LRESULT { return 0; });
    HWND other = CreateWindowHandle([](HWND, UINT, WPARAM, LPARAM) -> LRESULT { return 0; });
    ASSERT_TRUE(PostMessageW(hwnd, kNumbered, 1, 0));
    ASSERT_TRUE(PostMessageW(other, kNumbered, 2, 0));
    DestroyWindow(hwnd);
    auto left = DrainQueue();
    ASSERT_EQ(left.size(), 1u);
    EXPECT_EQ(left[0].hwnd, other);
    DestroyWindow(other);
}

TEST(PostMessage, NullWindowPostsToCallingThread)
{
    ASSERT_TRUE(PostMessageW(nullptr, kNumbered, 3, 0));
    auto taken = DrainQueue();
    ASSERT_EQ(taken.size(), 1u);
    EXPECT_EQ(taken[0].hwnd, nullptr);
    EXPECT_EQ(taken[0].wParam, 3u);
}

TEST(PostThreadMessage, ReachesTheThreadLoop)
{
    std::atomic<DWORD> threadId{0};
    std::atomic<WPARAM> received{0};
    std::promise<void> ready;
    std::thread loop([&] {
        MSG msg{};
        PeekMessageW(&msg, nullptr, 0, 0, PM_NOREMOVE); // makes the queue
        threadId = GetCurrentThreadId();
        ready.set_value();
        while (GetMessageW(&msg, nullptr, 0, 0) > 0) {
            if (msg.message == kDone) {
                received = msg.wParam;
                PostQuitMessage(0);
            }
        }
    });
    ready.get_future().wait();
    EXPECT_TRUE(PostThreadMessageW(threadId, kDone, 42, 0));
    loop.join();
    EXPECT_EQ(received.load(), 42u);
    EXPECT_FALSE(PostThreadMessageW(threadId, kDone, 43, 0)) << "the thread has ended";
}

TEST(PostMessage, ManyThreadsPostingConcurrentlyLoseNothing)
{
    constexpr int kPosters = 8;
    constexpr int kPerPoster = 2000;
    std::vector<std::vector<LPARAM>> perPoster(kPosters);
    int total = 0;
    WindowThread window([&](HWND, UINT msg, WPARAM wParam, LPARAM lParam) -> LRESULT {
        if (msg == kNumbered) {
            perPoster[wParam].push_back(lParam);
            ++total;
        }
        return 0;
    });
    std::vector<std::thread> posters;
    std::atomic<int> failures{0};
    for (int p = 0; p < kPosters; ++p) {
        posters.emplace_back([&, p] {
            for (int i = 0; i < kPerPoster; ++i) {
                if (!PostMessageW(window.Hwnd(), kNumbered, static_cast<WPARAM>(p), i)) {
                    ++failures;
                }
            }
        });
    }
    for (auto& poster : posters) {
        poster.join();
    }
    window.Stop(); // the stop message comes after every post, so all are dispatched
    EXPECT_EQ(failures.load(), 0);
    EXPECT_EQ(total, kPosters * kPerPoster);
    for (int p = 0; p < kPosters; ++p) {
        ASSERT_EQ(perPoster[p].size(), static_cast<size_t>(kPerPoster));
        for (int i = 0; i < kPerPoster; ++i) {
            ASSERT_EQ(perPoster[p][i], i) << "one poster's messages keep their order";
        }
    }
}

TEST(DestroyWindow, SendsDestroyThenNcDestroyWhileStillAWindow)
{
    std::vector<UINT> seen;
    std::vector<BOOL> aliveDuring;
    HWND hwnd = CreateWindowHandle([&](HWND self, UINT msg, WPARAM, LPARAM) -> LRESULT {
        seen.push_back(msg);
        aliveDuring.push_back(IsWindow(self));
        return 0;
    });
    ASSERT_TRUE(DestroyWindow(hwnd));
    EXPECT_EQ(seen, (std::vector<UINT>{WM_CREATE, WM_DESTROY, WM_NCDESTROY}));
    EXPECT_EQ(aliveDuring, (std::vector<BOOL>{TRUE, TRUE, TRUE}));
    EXPECT_FALSE(IsWindow(hwnd));
    EXPECT_FALSE(DestroyWindow(hwnd)) << "a second destroy finds nothing";
}

TEST(DestroyWindow, FromAnotherThreadIsRefused)
{
    WindowThread window([](HWND, UINT, WPARAM, LPARAM) -> LRESULT { return 0; });
    EXPECT_FALSE(DestroyWindow(window.Hwnd()));
    EXPECT_TRUE(IsWindow(window.Hwnd()));
}

TEST(CreateWindowHandle, CreateAnsweringMinusOneGivesNoWindow)
{
    std::vector<UINT> seen;
    HWND hwnd = CreateWindowHandle(
        [&](HWND, UINT msg, WPARAM, LPARAM lParam) -> LRESULT {
            seen.push_back(msg);
            return msg == WM_CREATE && lParam == 5 ? -1 : 0;
        },
        5);
    EXPECT_EQ(hwnd, nullptr);
    EXPECT_EQ(seen, (std::vector<UINT>{WM_CREATE, WM_DESTROY, WM_NCDESTROY}));
}

TEST(CreateWindowHandle, EmptyProcedureGivesNoWindow)
{
    EXPECT_EQ(CreateWindowHandle(WindowProcedure{}), nullptr);
}

TEST(DispatchMessage, OnlyRunsWindowsOfTheCallingThread)
{
    std::atomic<int> calls{0};
    WindowThread window([&](HWND, UINT msg, WPARAM, LPARAM) -> LRESULT {
        if (msg == kNumbered) {
            ++calls;
        }
        return 1;
    });
    MSG foreign{window.Hwnd(), kNumbered, 0, 0, 0, POINT{0, 0}};
    EXPECT_EQ(DispatchMessageW(&foreign), 0);
    MSG threadMessage{nullptr, kNumbered, 0, 0, 0, POINT{0, 0}};
    EXPECT_EQ(DispatchMessageW(&threadMessage), 0);
    window.Stop();
    EXPECT_EQ(calls.load(), 0);
}

TEST(GetWindowThreadProcessId, NamesTheOwningThread)
{
    WindowThread window([](HWND, UINT, WPARAM, LPARAM) -> LRESULT { return 0; });
    DWORD processId = 0;
    EXPECT_EQ(GetWindowThreadProcessId(window.Hwnd(), &processId), window.ThreadId());
    EXPECT_NE(processId, 0u);
    EXPECT_NE(window.ThreadId(), GetCurrentThreadId());
}
