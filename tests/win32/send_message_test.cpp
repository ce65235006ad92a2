#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <string>
#include <thread>
#include <vector>

#include "toolkit/win32/message_queue.h"
#include "window_thread.h"

namespace {

constexpr UINT kAsk = WM_USER + 10;
constexpr UINT kAskBack = WM_USER + 11;
constexpr UINT kDestroyYourself = WM_USER + 12;
constexpr UINT kBlockUntilReleased = WM_USER + 13;

} // namespace

TEST(SendMessage, SameThreadIsADirectCall)
{
    int depth = 0;
    HWND hwnd = CreateWindowHandle([&](HWND, UINT msg, WPARAM wParam, LPARAM) -> LRESULT {
        if (msg == kAsk) {
            ++depth;
            return static_cast<LRESULT>(wParam * 2);
        }
        return 0;
    });
    EXPECT_EQ(SendMessageW(hwnd, kAsk, 21, 0), 42);
    EXPECT_EQ(depth, 1) << "the procedure ran before SendMessageW returned";
    MSG msg{};
    EXPECT_FALSE(PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) << "nothing was queued";
    DestroyWindow(hwnd);
}

TEST(SendMessage, CrossThreadRunsOnWindowThreadAndReturnsItsResult)
{
    std::atomic<DWORD> ranOn{0};
    WindowThread window([&](HWND, UINT msg, WPARAM wParam, LPARAM lParam) -> LRESULT {
        if (msg == kAsk) {
            ranOn = GetCurrentThreadId();
            return static_cast<LRESULT>(wParam) + lParam;
        }
        return 0;
    });
    EXPECT_EQ(SendMessageW(window.Hwnd(), kAsk, 40, 2), 42);
    EXPECT_EQ(ranOn.load(), window.ThreadId());
    EXPECT_NE(ranOn.load(), GetCurrentThreadId());
}

TEST(SendMessage, SenderBlocksUntilTheProcedureHasRun)
{
    HANDLE release = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    std::atomic<bool> finished{false};
    WindowThread window([&](HWND, UINT msg, WPARAM, LPARAM) -> LRESULT {
        if (msg == kBlockUntilReleased) {
            WaitForSingleObject(release, INFINITE);
            finished = true;
            return 5;
        }
        return 0;
    });
    auto reply = std::async(std::launch::async,
                            [&] { return SendMessageW(window.Hwnd(), kBlockUntilReleased, 0, 0); });
    EXPECT_EQ(reply.wait_for(std::chrono::milliseconds(50)), std::future_status::timeout);
    SetEvent(release);
    EXPECT_EQ(reply.get(), 5);
    EXPECT_TRUE(finished.load());
    CloseHandle(release);
}

TEST(SendMessage, SendBackWhileSenderWaitsIsRunByTheWaitingSender)
{
    // This thread asks B; B, while answering, asks this thread's window. The
    // sender runs B's send inside its own wait, so both calls complete.
    DWORD askBackRanOn = 0;
    HWND hwndA = CreateWindowHandle([&](HWND, UINT msg, WPARAM, LPARAM) -> LRESULT {
        if (msg == kAskBack) {
            askBackRanOn = GetCurrentThreadId();
            return 7;
        }
        return 0;
    });
    WindowThread threadB([&](HWND, UINT msg, WPARAM, LPARAM) -> LRESULT {
        return msg == kAsk ? SendMessageW(hwndA, kAskBack, 0, 0) * 6 : 0;
    });
    EXPECT_EQ(SendMessageW(threadB.Hwnd(), kAsk, 0, 0), 42);
    EXPECT_EQ(askBackRanOn, GetCurrentThreadId());
    threadB.Stop();
    DestroyWindow(hwndA);
}

TEST(SendMessage, TwoThreadsSendingToEachOtherAtOnceBothGetAnswers)
{
    constexpr UINT kStart = WM_USER + 20;
    constexpr UINT kQuestion = WM_USER + 21;
    std::atomic<HWND> peerOfA{nullptr};
    std::atomic<HWND> peerOfB{nullptr};
    std::promise<LRESULT> answerToA;
    std::promise<LRESULT> answerToB;
    HANDLE bothStarted = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    std::atomic<int> started{0};
    auto procedureFor = [&](std::atomic<HWND>& peer, std::promise<LRESULT>& answer, LRESULT mine) {
        return [&, mine](HWND, UINT msg, WPARAM, LPARAM) -> LRESULT {
            if (msg == kStart) {
                // Both threads reach their send together, so each is blocked
                // in SendMessageW when the other's question arrives.
                if (++started == 2) {
                    SetEvent(bothStarted);
                }
                WaitForSingleObject(bothStarted, INFINITE);
                answer.set_value(SendMessageW(peer.load(), kQuestion, 0, 0));
            }
            return msg == kQuestion ? mine : 0;
        };
    };
    WindowThread a(procedureFor(peerOfA, answerToA, 100));
    WindowThread b(procedureFor(peerOfB, answerToB, 200));
    peerOfA = b.Hwnd();
    peerOfB = a.Hwnd();
    PostMessageW(a.Hwnd(), kStart, 0, 0);
    PostMessageW(b.Hwnd(), kStart, 0, 0);
    auto fromB = answerToA.get_future();
    auto fromA = answerToB.get_future();
    ASSERT_EQ(fromB.wait_for(std::chrono::seconds(2)), std::future_status::ready) << "deadlocked";
    ASSERT_EQ(fromA.wait_for(std::chrono::seconds(2)), std::future_status::ready) << "deadlocked";
    EXPECT_EQ(fromB.get(), 200);
    EXPECT_EQ(fromA.get(), 100);
    a.Stop();
    b.Stop();
    CloseHandle(bothStarted);
}

TEST(SendMessage, ToWindowDestroyedWhileTheCallWaitsReturnsZero)
{
    // The window thread is busy in a posted handler when the send arrives; the
    // handler then destroys the window, so the queued send never runs.
    HANDLE busy = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    HANDLE sendQueued = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    std::atomic<int> asksRun{0};
    WindowThread window([&](HWND self, UINT msg, WPARAM, LPARAM) -> LRESULT {
        if (msg == kDestroyYourself) {
            SetEvent(busy);
            WaitForSingleObject(sendQueued, INFINITE);
            DestroyWindow(self);
        } else if (msg == kAsk) {
            ++asksRun;
            return 99;
        }
        return 0;
    });
    ASSERT_TRUE(PostMessageW(window.Hwnd(), kDestroyYourself, 0, 0));
    ASSERT_EQ(WaitForSingleObject(busy, 2000), WAIT_OBJECT_0);
    auto reply = std::async(std::launch::async, [&] { return SendMessageW(window.Hwnd(), kAsk, 0, 0); });
    // Give the send time to be queued behind the busy handler.
    EXPECT_EQ(reply.wait_for(std::chrono::milliseconds(50)), std::future_status::timeout);
    SetEvent(sendQueued);
    ASSERT_EQ(reply.wait_for(std::chrono::seconds(2)), std::future_status::ready) << "the sender hangs";
    EXPECT_EQ(reply.get(), 0);
    EXPECT_EQ(asksRun.load(), 0);
    window.Stop();
    CloseHandle(busy);
    CloseHandle(sendQueued);
}

TEST(SendMessage, ToWindowWhoseThreadEndsReturnsZero)
{
    HANDLE busy = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    HANDLE sendQueued = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    HWND hwnd = nullptr;
    std::promise<void> ready;
    std::thread owner([&] {
        hwnd = CreateWindowHandle([](HWND, UINT, WPARAM, LPARAM) -> LRESULT { return 1; });
        ready.set_value();
        SetEvent(busy);
        WaitForSingleObject(sendQueued, INFINITE);
        // Ends without pumping and without destroying its window.
    });
    ready.get_future().wait();
    ASSERT_EQ(WaitForSingleObject(busy, 2000), WAIT_OBJECT_0);
    auto reply = std::async(std::launch::async, [&] { return SendMessageW(hwnd, kAsk, 0, 0); });
    EXPECT_EQ(reply.wait_for(std::chrono::milliseconds(50)), std::future_status::timeout);
    SetEvent(sendQueued);
    owner.join();
    ASSERT_EQ(reply.wait_for(std::chrono::seconds(2)), std::future_status::ready) << "the sender hangs";
    EXPECT_EQ(reply.get(), 0);
    EXPECT_FALSE(IsWindow(hwnd));
    CloseHandle(busy);
    CloseHandle(sendQueued);
}

TEST(SendMessage, ToUnknownOrDestroyedWindowReturnsZero)
{
    HWND hwnd = CreateWindowHandle([](HWND, UINT, WPARAM, LPARAM) -> LRESULT { return 5; });
    EXPECT_EQ(SendMessageW(hwnd, kAsk, 0, 0), 5);
    DestroyWindow(hwnd);
    EXPECT_EQ(SendMessageW(hwnd, kAsk, 0, 0), 0);
    EXPECT_EQ(SendMessageW(nullptr, kAsk, 0, 0), 0);
}

TEST(SendMessage, RunsBeforeMessagesPostedEarlier)
{
    std::vector<UINT> order;
    HANDLE sending = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    HWND hwnd = CreateWindowHandle([&](HWND, UINT msg, WPARAM, LPARAM) -> LRESULT {
        if (msg == kAsk || msg == kAskBack) {
            order.push_back(msg);
        }
        return 0;
    });
    ASSERT_TRUE(PostMessageW(hwnd, kAskBack, 0, 0));
    std::thread sender([&] {
        SetEvent(sending);
        SendMessageW(hwnd, kAsk, 0, 0);
    });
    ASSERT_EQ(WaitForSingleObject(sending, 2000), WAIT_OBJECT_0);
    Sleep(100); // lets the sender queue its call behind the posted message
    MSG msg{};
    ASSERT_GT(GetMessageW(&msg, nullptr, 0, 0), 0);
    DispatchMessageW(&msg);
    sender.join();
    EXPECT_EQ(order, (std::vector<UINT>{kAsk, kAskBack}));
    DestroyWindow(hwnd);
    CloseHandle(sending);
}

TEST(SendMessage, WaitingSenderRunsSendsButNotItsPostedMessages)
{
    constexpr UINT kPosted = WM_USER + 30;
    std::vector<UINT> seenHere;
    HWND here = CreateWindowHandle([&](HWND, UINT msg, WPARAM, LPARAM) -> LRESULT {
        if (msg == kAskBack || msg == kPosted) {
            seenHere.push_back(msg);
        }
        return 0;
    });
    WindowThread other([&](HWND, UINT msg, WPARAM, LPARAM) -> LRESULT {
        if (msg == kAsk) {
            PostMessageW(here, kPosted, 0, 0);
            SendMessageW(here, kAskBack, 0, 0);
        }
        return 0;
    });
    SendMessageW(other.Hwnd(), kAsk, 0, 0);
    EXPECT_EQ(seenHere, (std::vector<UINT>{kAskBack})) << "the posted message waits for the loop";
    MSG msg{};
    ASSERT_TRUE(PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(msg.message, kPosted);
    other.Stop();
    DestroyWindow(here);
}

TEST(SendMessage, WorkerAsksHostWindowThenWaitsForItsEvent)
{
    // The backup query's road: a worker sends the event and a string to a
    // window on another thread, which writes the answer and sets the event.
    constexpr UINT kVersionQuestion = WM_USER + 31;
    WindowThread host([](HWND, UINT msg, WPARAM wParam, LPARAM lParam) -> LRESULT {
        if (msg == kVersionQuestion) {
            *reinterpret_cast<std::string*>(lParam) = "v3";
            SetEvent(reinterpret_cast<HANDLE>(wParam));
            return 1;
        }
        return 0;
    });
    std::string answer;
    std::thread worker([&] {
        HANDLE event = CreateEventW(nullptr, FALSE, FALSE, nullptr);
        std::string version;
        SendMessageW(host.Hwnd(), kVersionQuestion, reinterpret_cast<WPARAM>(event),
                     reinterpret_cast<LPARAM>(&version));
        if (WaitForSingleObject(event, 2000) == WAIT_OBJECT_0) {
            answer = version;
        }
        CloseHandle(event);
    });
    worker.join();
    EXPECT_EQ(answer, "v3");
}
