#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "toolkit/win32/message_queue.h"

namespace {

constexpr UINT_PTR kBarTimer = 102;

// Runs the calling thread's loop for `durationMs`, counting WM_TIMER per id.
struct TimerLog
{
    std::vector<UINT_PTR> ids;
    std::vector<DWORD> ticks;
};

HWND MakeTimerWindow(TimerLog& log)
{
    return CreateWindowHandle([&log](HWND, UINT msg, WPARAM wParam, LPARAM) -> LRESULT {
        if (msg == WM_TIMER) {
            log.ids.push_back(wParam);
            log.ticks.push_back(GetTickCount());
        }
        return 0;
    });
}

void PumpFor(DWORD durationMs)
{
    const UINT_PTR id = SetTimer(nullptr, 0, durationMs, nullptr);
    MSG msg{};
    while (GetMessageW(&msg, nullptr, 0, 0) > 0) {
        if (msg.hwnd == nullptr && msg.message == WM_TIMER && msg.wParam == id) {
            KillTimer(nullptr, id);
            return;
        }
        DispatchMessageW(&msg);
    }
}

} // namespace

TEST(SetTimer, FiresRepeatedlyThroughTheLoop)
{
    TimerLog log;
    HWND hwnd = MakeTimerWindow(log);
    ASSERT_EQ(SetTimer(hwnd, kBarTimer, 10, nullptr), kBarTimer);
    PumpFor(150);
    EXPECT_GE(log.ids.size(), 5u);
    EXPECT_LE(log.ids.size(), 16u) << "a 10 ms timer fires at most once per period";
    for (UINT_PTR id : log.ids) {
        EXPECT_EQ(id, kBarTimer);
    }
    DestroyWindow(hwnd);
}

TEST(KillTimer, StopsTheTimer)
{
    TimerLog log;
    HWND hwnd = MakeTimerWindow(log);
    SetTimer(hwnd, kBarTimer, 10, nullptr);
    PumpFor(60);
    ASSERT_GE(log.ids.size(), 1u);
    EXPECT_TRUE(KillTimer(hwnd, kBarTimer));
    const size_t before = log.ids.size();
    PumpFor(60);
    EXPECT_EQ(log.ids.size(), before);
    EXPECT_FALSE(KillTimer(hwnd, kBarTimer)) << "already gone";
    DestroyWindow(hwnd);
}

TEST(KillTimer, FromInsideTheTimerMessageStopsAfterThatTick)
{
    int ticks = 0;
    HWND hwnd = CreateWindowHandle([&](HWND self, UINT msg, WPARAM wParam, LPARAM) -> LRESULT {
        if (msg == WM_TIMER && ++ticks == 3) {
            KillTimer(self, wParam);
        }
        return 0;
    });
    SetTimer(hwnd, kBarTimer, 10, nullptr);
    PumpFor(120);
    EXPECT_EQ(ticks, 3);
    DestroyWindow(hwnd);
}

TEST(SetTimer, SameIdRestartsThePeriod)
{
    TimerLog log;
    HWND hwnd = MakeTimerWindow(log);
    SetTimer(hwnd, kBarTimer, 60, nullptr);
    // Keep restarting it before it is due; it must never fire.
    for (int i = 0; i < 4; ++i) {
        PumpFor(30);
        ASSERT_EQ(SetTimer(hwnd, kBarTimer, 60, nullptr), kBarTimer);
    }
    EXPECT_TRUE(log.ids.empty()) << "each SetTimer restarted the 60 ms period";
    // Reset with a shorter period: one timer, the new period.
    SetTimer(hwnd, kBarTimer, 10, nullptr);
    PumpFor(100);
    EXPECT_GE(log.ids.size(), 3u);
    DestroyWindow(hwnd);
}

TEST(SetTimer, LateTimerGivesOneMessageNotABacklog)
{
    TimerLog log;
    HWND hwnd = MakeTimerWindow(log);
    SetTimer(hwnd, kBarTimer, 10, nullptr);
    Sleep(100); // ten periods pass without a loop
    MSG msg{};
    int timerMessages = 0;
    while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
        if (msg.message == WM_TIMER) {
            ++timerMessages;
        }
    }
    EXPECT_EQ(timerMessages, 1);
    DestroyWindow(hwnd);
}

TEST(SetTimer, TimerMessageComesOnlyWhenNothingIsPosted)
{
    constexpr UINT kWork = WM_USER + 30;
    HWND hwnd = CreateWindowHandle([](HWND, UINT, WPARAM, LPARAM) -> LRESULT { return 0; });
    SetTimer(hwnd, kBarTimer, 10, nullptr);
    Sleep(20);
    PostMessageW(hwnd, kWork, 0, 0);
    PostMessageW(hwnd, kWork, 1, 0);
    MSG msg{};
    std::vector<UINT> order;
    while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
        order.push_back(msg.message);
    }
    EXPECT_EQ(order, (std::vector<UINT>{kWork, kWork, WM_TIMER}));
    DestroyWindow(hwnd);
}

TEST(SetTimer, CarriesWindowAndIdAndStopsWithTheWindow)
{
    HWND hwnd = CreateWindowHandle([](HWND, UINT, WPARAM, LPARAM) -> LRESULT { return 0; });
    SetTimer(hwnd, kBarTimer, 10, nullptr);
    Sleep(15);
    MSG msg{};
    ASSERT_TRUE(PeekMessageW(&msg, nullptr, 0, 0, PM_NOREMOVE));
    EXPECT_EQ(msg.hwnd, hwnd);
    EXPECT_EQ(msg.message, static_cast<UINT>(WM_TIMER));
    EXPECT_EQ(msg.wParam, kBarTimer);
    DestroyWindow(hwnd);
    EXPECT_FALSE(PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) << "a destroyed window's timer is gone";
    EXPECT_EQ(SetTimer(hwnd, kBarTimer, 10, nullptr), 0u);
}

TEST(SetTimer, TimerProcedureIsRefused)
{
    HWND hwnd = CreateWindowHandle([](HWND, UINT, WPARAM, LPARAM) -> LRESULT { return 0; });
    int dummy = 0;
    EXPECT_EQ(SetTimer(hwnd, kBarTimer, 10, &dummy), 0u);
    EXPECT_FALSE(KillTimer(hwnd, kBarTimer));
    DestroyWindow(hwnd);
}

TEST(SetTimer, SetFromAnotherThreadWakesTheIdleLoop)
{
    TimerLog log;
    HWND hwnd = MakeTimerWindow(log);
    std::thread setter([hwnd] {
        Sleep(20);
        SetTimer(hwnd, kBarTimer, 10, nullptr);
    });
    // GetMessageW sleeps with no timer at first; it must notice the new one.
    MSG msg{};
    const DWORD start = GetTickCount();
    ASSERT_GT(GetMessageW(&msg, hwnd, WM_TIMER, WM_TIMER), 0);
    EXPECT_EQ(msg.wParam, kBarTimer);
    EXPECT_LT(GetTickCount() - start, 1000u);
    setter.join();
    DestroyWindow(hwnd);
}
