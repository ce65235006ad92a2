#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <string>
#include <thread>
#include <vector>

#include "toolkit/win32/message_queue.h"
#include "window_thread.h"

namespace {

constexpr UINT kOpenModal = WM_USER + 40;
constexpr UINT kInModal = WM_USER + 41;
constexpr UINT kEndModal = WM_USER + 42;
constexpr UINT kAsk = WM_USER + 43;

} // namespace

TEST(PostQuitMessage, EndsTheLoopWithItsCode)
{
    PostQuitMessage(17);
    MSG msg{};
    EXPECT_EQ(GetMessageW(&msg, nullptr, 0, 0), 0);
    EXPECT_EQ(msg.message, static_cast<UINT>(WM_QUIT));
    EXPECT_EQ(msg.wParam, 17u);
    EXPECT_FALSE(PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) << "WM_QUIT is taken once";
}

TEST(PostQuitMessage, ComesAfterMessagesAlreadyPosted)
{
    constexpr UINT kWork = WM_USER + 44;
    PostMessageW(nullptr, kWork, 0, 0);
    PostQuitMessage(3);
    PostMessageW(nullptr, kWork, 1, 0);
    MSG msg{};
    std::vector<UINT> order;
    while (GetMessageW(&msg, nullptr, 0, 0) > 0) {
        order.push_back(msg.message);
    }
    EXPECT_EQ(order, (std::vector<UINT>{kWork, kWork}));
    EXPECT_EQ(msg.wParam, 3u);
}

TEST(PostQuitMessage, WakesALoopThatIsWaiting)
{
    std::promise<DWORD> threadId;
    std::atomic<int> exitCode{-1};
    std::thread loop([&] {
        MSG msg{};
        PeekMessageW(&msg, nullptr, 0, 0, PM_NOREMOVE);
        threadId.set_value(GetCurrentThreadId());
        while (GetMessageW(&msg, nullptr, 0, 0) > 0) {
            if (msg.message == kAsk) {
                PostQuitMessage(static_cast<int>(msg.wParam));
            }
        }
        exitCode = static_cast<int>(msg.wParam);
    });
    const DWORD id = threadId.get_future().get();
    Sleep(20);
    PostThreadMessageW(id, kAsk, 9, 0);
    loop.join();
    EXPECT_EQ(exitCode.load(), 9);
}

TEST(PeekMessage, NoRemoveLeavesTheMessage)
{
    PostMessageW(nullptr, kAsk, 5, 0);
    MSG msg{};
    ASSERT_TRUE(PeekMessageW(&msg, nullptr, 0, 0, PM_NOREMOVE));
    ASSERT_TRUE(PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(msg.wParam, 5u);
    EXPECT_FALSE(PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE));
}

TEST(PeekMessage, FiltersByWindowAndRange)
{
    HWND first = CreateWindowHandle([](HWND, UINT, WPARAM, LPARAM) -> LRESULT { return 0; });
    HWND second = CreateWindowHandle([](HWND, UINT, WPARAM, LPARAM) -> LRESULT { return 0; });
    PostMessageW(first, kAsk, 1, 0);
    PostMessageW(second, kAsk, 2, 0);
    PostMessageW(second, kEndModal, 3, 0);
    MSG msg{};
    ASSERT_TRUE(PeekMessageW(&msg, second, 0, 0, PM_REMOVE));
    EXPECT_EQ(msg.wParam, 2u);
    ASSERT_TRUE(PeekMessageW(&msg, nullptr, kEndModal, kEndModal, PM_REMOVE));
    EXPECT_EQ(msg.wParam, 3u);
    EXPECT_FALSE(PeekMessageW(&msg, second, 0, 0, PM_REMOVE));
    ASSERT_TRUE(PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(msg.wParam, 1u);
    DestroyWindow(first);
    DestroyWindow(second);
}

TEST(GetMessage, FilterWindowThatIsNoWindowIsAnError)
{
    MSG msg{};
    EXPECT_EQ(GetMessageW(&msg, reinterpret_cast<HWND>(0x7fff0000), 0, 0), -1);
}

// A modal loop inside a message handler: the queue is the thread's, so the
// inner loop receives what is posted and sent while it runs, and the outer
// loop carries on after it.
TEST(NestedLoop, ModalLoopStillProcessesPostsAndSends)
{
    std::vector<std::string> trace;
    std::promise<void> modalRunning;
    WindowThread window([&](HWND, UINT msg, WPARAM wParam, LPARAM) -> LRESULT {
        switch (msg) {
        case kOpenModal: {
            trace.push_back("modal begins");
            modalRunning.set_value();
            MSG inner{};
            bool open = true;
            while (open && GetMessageW(&inner, nullptr, 0, 0) > 0) {
                if (inner.message == kEndModal) {
                    open = false;
                }
                DispatchMessageW(&inner);
            }
            trace.push_back("modal ends");
            return 0;
        }
        case kInModal:
            trace.push_back("post " + std::to_string(wParam));
            return 0;
        case kAsk:
            trace.push_back("send");
            return 64;
        case kEndModal:
            trace.push_back("end");
            return 0;
        default:
            return 0;
        }
    });
    ASSERT_TRUE(PostMessageW(window.Hwnd(), kOpenModal, 0, 0));
    modalRunning.get_future().wait();
    EXPECT_EQ(SendMessageW(window.Hwnd(), kAsk, 0, 0), 64);
    ASSERT_TRUE(PostMessageW(window.Hwnd(), kInModal, 1, 0));
    ASSERT_TRUE(PostMessageW(window.Hwnd(), kEndModal, 0, 0));
    ASSERT_TRUE(PostMessageW(window.Hwnd(), kInModal, 2, 0)); // handled by the outer loop
    window.Stop();
    EXPECT_EQ(trace,
              (std::vector<std::string>{"modal begins", "send", "post 1", "end", "modal ends", "post 2"}));
}

TEST(NestedLoop, QuitInsideModalLoopIsSeenByIt)
{
    int innerExit = -1;
    int outerExit = -1;
    HWND hwnd = CreateWindowHandle([&](HWND, UINT msg, WPARAM, LPARAM) -> LRESULT {
        if (msg == kOpenModal) {
            PostQuitMessage(4);
            MSG inner{};
            while (GetMessageW(&inner, nullptr, 0, 0) > 0) {
                DispatchMessageW(&inner);
            }
            innerExit = static_cast<int>(inner.wParam);
            // A modal loop that meets WM_QUIT hands it on to the loop around it.
            PostQuitMessage(innerExit + 1);
        }
        return 0;
    });
    PostMessageW(hwnd, kOpenModal, 0, 0);
    MSG msg{};
    while (GetMessageW(&msg, nullptr, 0, 0) > 0) {
        DispatchMessageW(&msg);
    }
    outerExit = static_cast<int>(msg.wParam);
    EXPECT_EQ(innerExit, 4);
    EXPECT_EQ(outerExit, 5);
    DestroyWindow(hwnd);
}

// Removes the calling thread's event source however the test ends, so that
// no later test on this thread calls into a destroyed one.
struct ScopedEventSource
{
    explicit ScopedEventSource(ExternalEventSource source) { SetThreadEventSource(std::move(source)); }
    ~ScopedEventSource() { SetThreadEventSource({}); }
};

// The toolkit waits on SDL2 events and its queue at once through an external
// source: wait() stands for SDL_WaitEventTimeout, wake() for SDL_PushEvent.
class ExternalSource
{
public:
    void Wake()
    {
        wakes_.fetch_add(1);
        SetEvent(event_);
    }
    void Wait(DWORD timeoutMs)
    {
        waits_.fetch_add(1);
        WaitForSingleObject(event_, timeoutMs);
    }
    ExternalEventSource Source()
    {
        return ExternalEventSource{[this](DWORD timeoutMs) { Wait(timeoutMs); }, [this] { Wake(); }};
    }
    ~ExternalSource() { CloseHandle(event_); }

    std::atomic<int> waits_{0};
    std::atomic<int> wakes_{0};

private:
    HANDLE event_ = CreateEventW(nullptr, FALSE, FALSE, nullptr); // remembers a wake
};

TEST(ExternalEventSource, PostFromAnotherThreadWakesTheSourceWait)
{
    ExternalSource source;
    ScopedEventSource installed(source.Source());
    const DWORD self = GetCurrentThreadId();
    std::thread sender([self] {
        Sleep(30);
        PostThreadMessageW(self, kAsk, 11, 0);
    });
    MSG msg{};
    ASSERT_GT(GetMessageW(&msg, nullptr, 0, 0), 0);
    EXPECT_EQ(msg.wParam, 11u);
    EXPECT_GE(source.waits_.load(), 1) << "the idle wait went through the source";
    EXPECT_GE(source.wakes_.load(), 1);
    sender.join();
}

TEST(ExternalEventSource, IdleLoopDoesNotSpin)
{
    ExternalSource source;
    ScopedEventSource installed(source.Source());
    const UINT_PTR timer = SetTimer(nullptr, 0, 150, nullptr);
    MSG msg{};
    ASSERT_GT(GetMessageW(&msg, nullptr, 0, 0), 0);
    EXPECT_EQ(msg.message, static_cast<UINT>(WM_TIMER));
    // One wait until the timer (maybe one more for rounding), not a poll.
    EXPECT_LE(source.waits_.load(), 3);
    EXPECT_EQ(source.wakes_.load(), 0) << "nobody else posted";
    KillTimer(nullptr, timer);
}

TEST(ExternalEventSource, SendIsAnsweredWhileTheLoopWaitsInTheSource)
{
    ExternalSource source;
    ScopedEventSource installed(source.Source());
    HWND hwnd =
        CreateWindowHandle([](HWND, UINT msg, WPARAM, LPARAM) -> LRESULT { return msg == kAsk ? 8 : 0; });
    auto reply = std::async(std::launch::async, [hwnd] {
        Sleep(20);
        const LRESULT answer = SendMessageW(hwnd, kAsk, 0, 0);
        PostMessageW(hwnd, kEndModal, 0, 0);
        return answer;
    });
    MSG msg{};
    ASSERT_GT(GetMessageW(&msg, nullptr, 0, 0), 0);
    EXPECT_EQ(msg.message, kEndModal);
    EXPECT_EQ(reply.get(), 8);
    DestroyWindow(hwnd);
}

TEST(ExternalEventSource, MessagesPostedByTheWaitItselfAreReturned)
{
    // Translated input: the wait reads an event and posts it to its own thread.
    HWND hwnd = CreateWindowHandle([](HWND, UINT, WPARAM, LPARAM) -> LRESULT { return 0; });
    int waits = 0;
    ScopedEventSource installed(ExternalEventSource{[&](DWORD) {
                                                        ++waits;
                                                        PostMessageW(hwnd, WM_LBUTTONDOWN, 0,
                                                                     MAKELPARAM(4, 5));
                                                    },
                                                    [] {}});
    MSG msg{};
    ASSERT_GT(GetMessageW(&msg, nullptr, 0, 0), 0);
    EXPECT_EQ(msg.message, static_cast<UINT>(WM_LBUTTONDOWN));
    EXPECT_EQ(GET_X_LPARAM(msg.lParam), 4);
    EXPECT_EQ(waits, 1);
    DestroyWindow(hwnd);
}

TEST(GetQueueWaitTimeout, ReportsWorkTimersAndArmsTheWake)
{
    std::atomic<int> wakes{0};
    ScopedEventSource installed(ExternalEventSource{{}, [&] { ++wakes; }});
    EXPECT_EQ(GetQueueWaitTimeout(), INFINITE);
    const UINT_PTR timer = SetTimer(nullptr, 0, 100, nullptr);
    const DWORD untilTimer = GetQueueWaitTimeout();
    EXPECT_GT(untilTimer, 50u);
    EXPECT_LE(untilTimer, 100u);
    const DWORD self = GetCurrentThreadId();
    std::thread([self] { PostThreadMessageW(self, kAsk, 0, 0); }).join();
    EXPECT_EQ(wakes.load(), 1);
    EXPECT_EQ(GetQueueWaitTimeout(), 0u) << "a message is waiting";
    MSG msg{};
    EXPECT_TRUE(PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE));
    KillTimer(nullptr, timer);
}
