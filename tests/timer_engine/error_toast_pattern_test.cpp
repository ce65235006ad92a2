// The engine used the way the error toast uses it: Start and AddTimer(this,
// 1, 3000, 1, 0) when it opens, the callback asking the window (on its own
// thread) to close, and Stop from the window's final message.

#include <future>
#include <thread>

#include "tests/timer_engine/timer_engine_support.h"
#include "tests/win32/task_count.h"
#include "toolkit/win32/message_queue.h"

namespace {

class ToastWindow : public ITimerEngineCallBack
{
public:
    // Runs on the window's thread until the window is gone.
    void Run(std::promise<DWORD>& opened)
    {
        hwnd_ = CreateWindowHandle([this](HWND hwnd, UINT message, WPARAM, LPARAM) -> LRESULT {
            if (message == WM_CLOSE) {
                DestroyWindow(hwnd);
            } else if (message == WM_NCDESTROY) {
                TimerEngine::GetInstance()->Stop(); // the final message
                PostQuitMessage(0);
            }
            return 0;
        });
        TimerEngine::GetInstance()->Start();
        const DWORD openedAt = GetTickCount();
        TimerEngine::GetInstance()->AddTimer(this, 1, 3000, 1, 0);
        opened.set_value(openedAt);
        MSG msg{};
        while (GetMessageW(&msg, nullptr, 0, 0) > 0) {
            DispatchMessageW(&msg);
        }
        closedAt = GetTickCount();
    }

    bool OnTimerCallBack(uint32_t, uint32_t) override
    {
        callbackThread = GetCurrentThreadId();
        PostMessageW(hwnd_, WM_CLOSE, 0, 0);
        return true;
    }

    std::atomic<DWORD> callbackThread{0};
    DWORD closedAt = 0;

private:
    std::atomic<HWND> hwnd_{nullptr};
};

} // namespace

TEST(TimerEngineErrorToastUse, ClosesItsWindowAfterThreeSecondsAndStopsTheEngine)
{
    const int before = SettledThreadCount();
    ToastWindow toast;
    std::promise<DWORD> opened;
    auto openedAt = opened.get_future();
    DWORD windowThread = 0;
    std::thread window([&] {
        windowThread = GetCurrentThreadId();
        toast.Run(opened);
    });
    const DWORD start = openedAt.get();
    window.join();
    EXPECT_GE(toast.closedAt - start, 3000u + 1000u) << "3 s to the firing, then about 1 s of Stop";
    EXPECT_LT(toast.closedAt - start, 3000u + kPassMs + 1000u + kSlackMs);
    EXPECT_NE(toast.callbackThread.load(), 0u);
    EXPECT_NE(toast.callbackThread.load(), windowThread);
    EXPECT_LE(WaitForThreadCount(before), before);
    EXPECT_EQ(TimerEngineTestPeer::Threads(*TimerEngine::GetInstance()).first, nullptr);
}
