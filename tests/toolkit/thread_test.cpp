// What other threads may do to a toolkit window: select a tab page, centre
// the window, post to it, while the window runs and while it closes.

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <thread>

#include "harness/ui_harness.h"

using namespace uitest;

namespace {

constexpr const wchar_t* kTabs =
    LR"(<Window size="200,100"><TabLayout name="tabs"><Control /><Control /></TabLayout></Window>)";

// Like the module's window: a watcher thread switches pages from its own
// thread, and the window stops and joins it in OnFinalMessage.
class WatchedWindow : public SkinWindow
{
public:
    WatchedWindow() : SkinWindow(kTabs) {}

    void StartWatcher()
    {
        auto* tabs = dynamic_cast<CTabLayoutUI*>(m_pm.FindControl(L"tabs"));
        m_watcher = std::thread([this, tabs] {
            for (int i = 0; !m_stop.load(); ++i) {
                if (tabs->SelectItem(i % 2))
                    m_selections.fetch_add(1);
            }
        });
    }

    int Selections() const { return m_selections.load(); }
    bool joinedWithoutPumping = false;

protected:
    void OnFinalMessage(HWND hWnd) override
    {
        // By now the watcher, still switching pages, is in the middle of a
        // call, as a real watcher may be when the window closes.
        std::this_thread::sleep_for(std::chrono::milliseconds(30));
        m_stop = true;
        auto joined = std::async(std::launch::async, [this] { m_watcher.join(); });
        joinedWithoutPumping = joined.wait_for(std::chrono::seconds(5)) == std::future_status::ready;
        // Should the watcher be stuck in a send to this thread, answer it so
        // that the test can report instead of hanging.
        while (joined.wait_for(std::chrono::milliseconds(1)) != std::future_status::ready) {
            MSG msg{};
            ::PeekMessageW(&msg, nullptr, 0, 0, PM_NOREMOVE);
        }
        SkinWindow::OnFinalMessage(hWnd);
    }

private:
    std::thread m_watcher;
    std::atomic<bool> m_stop{false};
    std::atomic<int> m_selections{0};
};

class ThreadTest : public ::testing::Test
{
protected:
    void SetUp() override { UseOffscreenToolkit(); }
};

} // namespace

TEST_F(ThreadTest, AWindowJoiningAThreadThatSelectsTabsClosesWithoutDeadlock)
{
    for (int round = 0; round < 5; ++round) {
        WatchedWindow w;
        ASSERT_TRUE(Open(w));
        w.StartWatcher();
        EXPECT_TRUE(PumpUntil([&w] { return w.Selections() >= 20; }, 5000));
        w.Close(0);
        EXPECT_TRUE(PumpUntil([&w] { return w.finalMessageSeen; }, 10000));
        EXPECT_TRUE(w.joinedWithoutPumping) << "round " << round;
    }
}

TEST_F(ThreadTest, TabSelectionAskedAfterTheWindowIsGoneRunsNothing)
{
    SkinWindow w(kTabs);
    ASSERT_TRUE(Open(w));
    auto* tabs = Find<CTabLayoutUI>(w.pm(), L"tabs");
    ::DestroyWindow(w.GetHWND());
    std::atomic<int> result{-1};
    std::thread other([&] { result = tabs->SelectItem(1) ? 1 : 0; });
    other.join();
    EXPECT_EQ(result.load(), 0);
    EXPECT_EQ(tabs->GetCurSel(), 0);
}

TEST_F(ThreadTest, CenterWindowFromAnotherThreadRunsOnTheWindowThread)
{
    SkinWindow w(kTabs);
    ASSERT_TRUE(Open(w));
    ::MoveWindow(w.GetHWND(), 10, 20, 200, 100, TRUE);
    std::thread other([&w] { w.CenterWindow(); });
    other.join();
    // Not moved by the other thread itself: the request waits in the queue.
    EXPECT_EQ(w.GetWindowRect().left, 10);
    PumpPending();
    const RECT r = w.GetWindowRect();
    EXPECT_EQ(r.left, (1920 - 200) / 2);
    EXPECT_EQ(r.top, (1080 - 100) / 2);
    w.Close(0);
    Pump(10);
}

TEST_F(ThreadTest, PostsFromLoadThreadsArriveInOrderAndStopWithTheWindow)
{
    constexpr UINT kProgress = WM_USER + 40;
    SkinWindow w(kTabs);
    ASSERT_TRUE(Open(w));
    std::vector<WPARAM> seen[2];
    w.onMessage = [&seen](UINT msg, WPARAM wParam, LPARAM lParam, bool& handled) -> LRESULT {
        if (msg == kProgress) {
            seen[lParam].push_back(wParam);
            handled = true;
        }
        return 0;
    };
    const HWND hwnd = w.GetHWND();
    std::thread loads[2];
    for (LPARAM t = 0; t < 2; ++t) {
        loads[t] = std::thread([hwnd, t] {
            for (WPARAM i = 0; i < 200; ++i)
                ::PostMessageW(hwnd, kProgress, i, t);
        });
    }
    for (auto& load : loads)
        load.join();
    PumpPending();
    for (const auto& one : seen) {
        ASSERT_EQ(one.size(), 200u);
        for (WPARAM i = 0; i < 200; ++i)
            EXPECT_EQ(one[i], i);
    }
    w.Close(0);
    Pump(10);
    EXPECT_EQ(::PostMessageW(hwnd, kProgress, 0, 0), FALSE);
}
