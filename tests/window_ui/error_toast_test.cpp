// The error toast: as wide as its text, 60 units high, gone by itself after
// about three seconds, one at a time.
#include <gtest/gtest.h>

#include <chrono>

#include "harness/ui_harness.h"
#include "window/error_wnd.h"

namespace {

using namespace DuiLib;
using Clock = std::chrono::steady_clock;

struct SeenToast
{
    HWND hwnd = nullptr;
    RECT rect{0, 0, 0, 0};
    std::wstring text;
    UINT textStyle = 0;
    int textWidth = 0; // device pixels, in the label's font
    Clock::time_point firstSeen;
    Clock::time_point lastSeen;
};

// Watches the toasts of this thread from a probe window's timer, which runs
// inside the toast's modal loop.
class ToastWatcher
{
public:
    ToastWatcher() : probe_(L"<Window size=\"4,4\"><Control /></Window>")
    {
        probe_.Create(nullptr, L"watcher", 0, 0, 0, 0, 0, 0);
        probe_.onMessage = [this](UINT msg, WPARAM, LPARAM, bool&) -> LRESULT {
            if (msg == WM_TIMER)
                Look();
            return 0;
        };
        ::SetTimer(probe_.GetHWND(), 1, 15, nullptr);
    }
    ~ToastWatcher()
    {
        ::KillTimer(probe_.GetHWND(), 1);
        ::DestroyWindow(probe_.GetHWND());
    }
    std::vector<SeenToast> toasts;
    int overlapping = 0;

private:
    void Look()
    {
        const HWND toast = ErrorWnd::GetActiveToast();
        if (toast == nullptr)
            return;
        if (toasts.empty() || toasts.back().hwnd != toast) {
            if (!toasts.empty() && ::IsWindow(toasts.back().hwnd))
                ++overlapping;
            SeenToast seen;
            seen.hwnd = toast;
            seen.firstSeen = Clock::now();
            ::GetWindowRect(toast, &seen.rect);
            auto* window = dynamic_cast<WindowImplBase*>(CWindowWnd::FromHandle(toast));
            auto* label = window != nullptr
                              ? dynamic_cast<CLabelUI*>(window->GetPaintManager().FindControl(L"label"))
                              : nullptr;
            if (label != nullptr) {
                seen.text = label->GetText().str();
                seen.textStyle = label->GetTextStyle();
                HDC dc = window->GetPaintManager().GetPaintDC();
                ::SelectObject(dc, window->GetPaintManager().GetFont(label->GetFont()));
                SIZE extent{0, 0};
                ::GetTextExtentPoint32W(dc, seen.text.c_str(), static_cast<int>(seen.text.size()), &extent);
                seen.textWidth = extent.cx;
            }
            toasts.push_back(seen);
        }
        toasts.back().lastSeen = Clock::now();
    }

    uitest::SkinWindow probe_;
};

class ErrorToast : public ::testing::Test
{
protected:
    void SetUp() override { uitest::UseOffscreenToolkit(); }
    void TearDown() override { CDPI::SetProcessDPI(96); }
};

} // namespace

TEST_F(ErrorToast, ALongMessageGivesAWideWindowOnOneLine)
{
    const std::wstring text(L"This deletion could not be finished because the cloud did not answer in time, "
                            L"so nothing was removed and every file is still where it was before");
    ToastWatcher watcher;
    const auto start = Clock::now();
    ShowErrorWnd(nullptr, text);
    const auto took = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start).count();
    ASSERT_EQ(watcher.toasts.size(), 1u);
    const SeenToast& toast = watcher.toasts[0];
    EXPECT_EQ(toast.text, text);
    EXPECT_EQ(toast.rect.right - toast.rect.left, 100 + toast.textWidth);
    EXPECT_GT(toast.rect.right - toast.rect.left, 900);
    EXPECT_EQ(toast.rect.bottom - toast.rect.top, 60);
    EXPECT_NE(toast.textStyle & DT_SINGLELINE, 0u);
    EXPECT_EQ(toast.textStyle & DT_WORDBREAK, 0u);
    // Closed by itself: three seconds, and about one more to stop the engine.
    const auto shown =
        std::chrono::duration_cast<std::chrono::milliseconds>(toast.lastSeen - toast.firstSeen);
    EXPECT_GE(shown.count(), 2800);
    EXPECT_LT(shown.count(), 3600);
    EXPECT_LT(took, 5500);
    EXPECT_EQ(ErrorWnd::GetActiveToast(), nullptr);
}

TEST_F(ErrorToast, AnEmptyMessageGivesAWindowOf100By60Units)
{
    ToastWatcher watcher;
    ShowErrorWnd(nullptr, L"");
    ASSERT_EQ(watcher.toasts.size(), 1u);
    EXPECT_EQ(watcher.toasts[0].rect.right - watcher.toasts[0].rect.left, 100);
    EXPECT_EQ(watcher.toasts[0].rect.bottom - watcher.toasts[0].rect.top, 60);
}

TEST_F(ErrorToast, AtOneAndAHalfTheMarginAndHeightAreScaledButNotTheText)
{
    CDPI::SetProcessDPI(144);
    ToastWatcher watcher;
    ShowErrorWnd(nullptr, L"Couldn’t delete");
    ASSERT_EQ(watcher.toasts.size(), 1u);
    const SeenToast& toast = watcher.toasts[0];
    EXPECT_EQ(toast.rect.right - toast.rect.left, 150 + toast.textWidth);
    EXPECT_EQ(toast.rect.bottom - toast.rect.top, 90);
}

TEST_F(ErrorToast, TwoFailuresInARowShowTwoToastsOneAfterTheOther)
{
    ToastWatcher watcher;
    ShowErrorWnd(nullptr, L"first");
    ShowErrorWnd(nullptr, L"second");
    ASSERT_EQ(watcher.toasts.size(), 2u);
    EXPECT_EQ(watcher.toasts[0].text, L"first");
    EXPECT_EQ(watcher.toasts[1].text, L"second");
    EXPECT_NE(watcher.toasts[0].hwnd, watcher.toasts[1].hwnd);
    EXPECT_EQ(watcher.overlapping, 0);
    EXPECT_GE(watcher.toasts[1].firstSeen, watcher.toasts[0].lastSeen);
}
