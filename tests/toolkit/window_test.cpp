#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "harness/ui_harness.h"

using namespace uitest;

namespace {

constexpr const wchar_t* kTwoButtons = LR"(<Window size="300,120">
  <HorizontalLayout name="root">
    <Button name="ok" text="OK" width="100" />
    <Button name="other" text="Other" width="100" virtualwnd="Page" />
  </HorizontalLayout></Window>)";

class WindowTest : public ::testing::Test
{
protected:
    void SetUp() override { UseOffscreenToolkit(); }
};

constexpr UINT_PTR kDriveTimer = 41;

} // namespace

TEST_F(WindowTest, ShowModalReturnsTheCodeGivenToClose)
{
    SkinWindow w(kTwoButtons);
    ASSERT_NE(w.Create(nullptr, L"modal", 0, 0, 0, 0, 0, 0), nullptr);
    w.onMessage = [&w](UINT msg, WPARAM wParam, LPARAM, bool&) -> LRESULT {
        if (msg == WM_TIMER && wParam == kDriveTimer) {
            ::KillTimer(w.GetHWND(), kDriveTimer);
            Click(w.pm(), L"ok");
        }
        return 0;
    };
    w.onNotify = [&w](TNotifyUI& msg) {
        if (msg.sType == L"click" && msg.pSender->GetName() == L"ok")
            w.Close(7);
    };
    ::SetTimer(w.GetHWND(), kDriveTimer, 20, nullptr);
    EXPECT_EQ(w.ShowModal(), 7u);
    EXPECT_TRUE(w.finalMessageSeen);
    EXPECT_EQ(w.GetHWND(), nullptr);
    EXPECT_EQ(w.CountNotify(L"windowinit"), 1);
}

TEST_F(WindowTest, CloseFromAnotherThreadEndsTheModalLoop)
{
    SkinWindow w(kTwoButtons);
    ASSERT_NE(w.Create(nullptr, L"modal", 0, 0, 0, 0, 0, 0), nullptr);
    std::thread closer([&w] {
        std::this_thread::sleep_for(std::chrono::milliseconds(30));
        w.Close(2);
    });
    EXPECT_EQ(w.ShowModal(), 2u);
    closer.join();
}

TEST_F(WindowTest, MessageBoxOverAWindowReturnsOneForTheFirstButton)
{
    SkinWindow parent(kTwoButtons);
    ASSERT_TRUE(Open(parent));
    parent.CenterWindow();
    RECT boxRect{};
    parent.onMessage = [&](UINT msg, WPARAM wParam, LPARAM, bool&) -> LRESULT {
        if (msg == WM_TIMER && wParam == kDriveTimer) {
            ::KillTimer(parent.GetHWND(), kDriveTimer);
            HWND box = UIIMessageBox::GetActiveBox();
            if (box != nullptr) {
                ::GetWindowRect(box, &boxRect);
                auto* wnd = dynamic_cast<WindowImplBase*>(CWindowWnd::FromHandle(box));
                Click(wnd->GetPaintManager(), L"mb_first");
            }
        }
        return 0;
    };
    ::SetTimer(parent.GetHWND(), kDriveTimer, 20, nullptr);
    const int result =
        UIIMessageBox::PopMessageBox(parent.GetHWND(), L"Delete?", L"The backup of this device", L"Delete",
                                     L"Cancel", 2, nullptr, true, true, false);
    EXPECT_EQ(result, 1);
    EXPECT_EQ(UIIMessageBox::GetActiveBox(), nullptr);
    // Centred over the parent.
    const RECT p = parent.GetWindowRect();
    EXPECT_EQ((boxRect.left + boxRect.right) / 2, (p.left + p.right) / 2);
    EXPECT_EQ((boxRect.top + boxRect.bottom) / 2, (p.top + p.bottom) / 2);
    parent.Close(0);
    Pump(10);
}

TEST_F(WindowTest, MessageBoxKeyboardTabThenEnterPressesTheSecondButton)
{
    SkinWindow parent(kTwoButtons);
    ASSERT_TRUE(Open(parent));
    parent.onMessage = [&](UINT msg, WPARAM wParam, LPARAM, bool&) -> LRESULT {
        if (msg == WM_TIMER && wParam == kDriveTimer) {
            ::KillTimer(parent.GetHWND(), kDriveTimer);
            if (HWND box = UIIMessageBox::GetActiveBox()) {
                PressKey(box, VK_TAB);
                PressKey(box, VK_RETURN);
            }
        }
        return 0;
    };
    ::SetTimer(parent.GetHWND(), kDriveTimer, 20, nullptr);
    EXPECT_EQ(UIIMessageBox::PopMessageBox(parent.GetHWND(), L"t", L"d", L"Delete", L"Cancel"), 2);
    parent.Close(0);
    Pump(10);
}

TEST_F(WindowTest, MessageBoxSpacePressesTheFocusedFirstButton)
{
    SkinWindow parent(kTwoButtons);
    ASSERT_TRUE(Open(parent));
    parent.onMessage = [&](UINT msg, WPARAM wParam, LPARAM, bool&) -> LRESULT {
        if (msg == WM_TIMER && wParam == kDriveTimer) {
            ::KillTimer(parent.GetHWND(), kDriveTimer);
            if (HWND box = UIIMessageBox::GetActiveBox())
                PressKey(box, VK_SPACE);
        }
        return 0;
    };
    ::SetTimer(parent.GetHWND(), kDriveTimer, 20, nullptr);
    EXPECT_EQ(UIIMessageBox::PopMessageBox(parent.GetHWND(), L"t", L"d", L"Delete", L"Cancel"), 1);
    parent.Close(0);
    Pump(10);
}

TEST_F(WindowTest, EscapeCancelsAMessageBox)
{
    SkinWindow parent(kTwoButtons);
    ASSERT_TRUE(Open(parent));
    parent.onMessage = [&](UINT msg, WPARAM wParam, LPARAM, bool&) -> LRESULT {
        if (msg == WM_TIMER && wParam == kDriveTimer) {
            ::KillTimer(parent.GetHWND(), kDriveTimer);
            if (HWND box = UIIMessageBox::GetActiveBox())
                PressKey(box, VK_ESCAPE);
        }
        return 0;
    };
    ::SetTimer(parent.GetHWND(), kDriveTimer, 20, nullptr);
    EXPECT_EQ(UIIMessageBox::PopMessageBox(parent.GetHWND(), L"t", L"d", L"Delete", L"Cancel"), 0);
    parent.Close(0);
    Pump(10);
}

TEST_F(WindowTest, ParentIgnoresClicksWhileTheBoxIsUp)
{
    SkinWindow parent(kTwoButtons);
    ASSERT_TRUE(Open(parent));
    parent.onMessage = [&](UINT msg, WPARAM wParam, LPARAM, bool&) -> LRESULT {
        if (msg == WM_TIMER && wParam == kDriveTimer) {
            ::KillTimer(parent.GetHWND(), kDriveTimer);
            const POINT p = CentreOf(parent.pm(), parent.pm().FindControl(L"ok"));
            ::PostMessageW(parent.GetHWND(), WM_LBUTTONDOWN, 0, MAKELPARAM(p.x, p.y));
            ::PostMessageW(parent.GetHWND(), WM_LBUTTONUP, 0, MAKELPARAM(p.x, p.y));
            if (HWND box = UIIMessageBox::GetActiveBox())
                ::PostMessageW(box, WM_KEYDOWN, VK_ESCAPE, 0);
        }
        return 0;
    };
    ::SetTimer(parent.GetHWND(), kDriveTimer, 20, nullptr);
    UIIMessageBox::PopMessageBox(parent.GetHWND(), L"t", L"d", L"Delete", L"Cancel");
    EXPECT_EQ(parent.CountNotify(L"click"), 0);
    parent.Close(0);
    Pump(10);
}

TEST_F(WindowTest, TimersFireUntilKilled)
{
    SkinWindow w(kTwoButtons);
    ASSERT_TRUE(Open(w));
    int ticks = 0;
    w.onMessage = [&ticks](UINT msg, WPARAM wParam, LPARAM, bool& handled) -> LRESULT {
        if (msg == WM_TIMER && wParam == 102) {
            ++ticks;
            handled = true;
        }
        return 0;
    };
    ASSERT_NE(::SetTimer(w.GetHWND(), 102, 10, nullptr), 0u);
    EXPECT_TRUE(PumpUntil([&ticks] { return ticks >= 3; }, 1000));
    ::KillTimer(w.GetHWND(), 102);
    const int atKill = ticks;
    Pump(60);
    EXPECT_EQ(ticks, atKill);
    w.Close(0);
    Pump(10);
}

TEST_F(WindowTest, ControlTimerReachesTheControlAsAnEvent)
{
    struct Counter : CControlUI
    {
        int ticks = 0;
        void DoEvent(TEventUI& e) override
        {
            if (e.Type == UIEVENT_TIMER && e.wParam == 9)
                ++ticks;
            else
                CControlUI::DoEvent(e);
        }
    };
    SkinWindow w(LR"(<Window size="100,100"><HorizontalLayout name="root" /></Window>)");
    ASSERT_TRUE(Open(w));
    auto* counter = new Counter;
    Find<CContainerUI>(w.pm(), L"root")->Add(counter);
    ASSERT_TRUE(w.pm().SetTimer(counter, 9, 10));
    EXPECT_TRUE(PumpUntil([counter] { return counter->ticks >= 2; }, 1000));
    EXPECT_TRUE(w.pm().KillTimer(counter, 9));
    w.Close(0);
    Pump(10);
}

TEST_F(WindowTest, SendMessageFromAnotherThreadRunsOnTheWindowThread)
{
    SkinWindow w(kTwoButtons);
    ASSERT_TRUE(Open(w));
    const DWORD windowThread = ::GetCurrentThreadId();
    std::atomic<DWORD> ranOn{0};
    w.onMessage = [&ranOn](UINT msg, WPARAM wParam, LPARAM, bool& handled) -> LRESULT {
        if (msg != WM_USER + 7)
            return 0;
        ranOn = ::GetCurrentThreadId();
        handled = true;
        return static_cast<LRESULT>(wParam * 2);
    };
    std::atomic<LRESULT> result{0};
    std::atomic<bool> done{false};
    std::thread sender([&] {
        result = ::SendMessageW(w.GetHWND(), WM_USER + 7, 21, 0);
        done = true;
    });
    EXPECT_TRUE(PumpUntil([&done] { return done.load(); }, 2000));
    sender.join();
    EXPECT_EQ(result.load(), 42);
    EXPECT_EQ(ranOn.load(), windowThread);
    w.Close(0);
    Pump(10);
}

namespace {

class PagePump : public CNotifyPump
{
public:
    int clicks = 0;
    std::wstring lastSender;
    DUI_DECLARE_MESSAGE_MAP()
    virtual void OnClick(TNotifyUI& msg)
    {
        ++clicks;
        lastSender = msg.pSender->GetName().str();
    }
};

DUI_BEGIN_MESSAGE_MAP(PagePump)
DUI_ON_MSGTYPE(DUI_MSGTYPE_CLICK, PagePump::OnClick)
DUI_END_MESSAGE_MAP()

} // namespace

TEST_F(WindowTest, VirtualWindowReceivesClicksOfItsControls)
{
    SkinWindow w(kTwoButtons);
    PagePump page;
    ASSERT_TRUE(w.AddVirtualWnd(L"Page", &page));
    EXPECT_FALSE(w.AddVirtualWnd(L"Page", &page));
    ASSERT_TRUE(Open(w));
    Click(w.pm(), L"other");
    EXPECT_EQ(page.clicks, 1);
    EXPECT_EQ(page.lastSender, L"other");
    Click(w.pm(), L"ok");
    EXPECT_EQ(page.clicks, 1);
    EXPECT_TRUE(w.RemoveVirtualWnd(L"Page"));
    Click(w.pm(), L"other");
    EXPECT_EQ(page.clicks, 1);
    EXPECT_EQ(w.CountNotify(L"click"), 3);
    w.Close(0);
    Pump(10);
}

TEST_F(WindowTest, PressAndReleaseOutsideTheButtonIsNoClick)
{
    SkinWindow w(kTwoButtons);
    ASSERT_TRUE(Open(w));
    w.pm().UpdateLayoutIfNeeded();
    const POINT p = CentreOf(w.pm(), w.pm().FindControl(L"ok"));
    ::SendMessageW(w.GetHWND(), WM_LBUTTONDOWN, 0, MAKELPARAM(p.x, p.y));
    auto* ok = Find<CButtonUI>(w.pm(), L"ok");
    EXPECT_TRUE(ok->GetButtonState() & UISTATE_PUSHED);
    ::SendMessageW(w.GetHWND(), WM_MOUSEMOVE, 0, MAKELPARAM(280, 60));
    EXPECT_FALSE(ok->GetButtonState() & UISTATE_PUSHED);
    ::SendMessageW(w.GetHWND(), WM_LBUTTONUP, 0, MAKELPARAM(280, 60));
    EXPECT_EQ(w.CountNotify(L"click"), 0);
    w.Close(0);
    Pump(10);
}

TEST_F(WindowTest, PreMessageFilterCanTakeAMessage)
{
    struct Filter : IMessageFilterUI
    {
        int seen = 0;
        LRESULT MessageHandler(UINT uMsg, WPARAM, LPARAM, bool& bHandled) override
        {
            if (uMsg == WM_USER + 3) {
                ++seen;
                bHandled = true;
                return 5;
            }
            return 0;
        }
    } filter;
    SkinWindow w(kTwoButtons);
    ASSERT_TRUE(Open(w));
    w.pm().AddPreMessageFilter(&filter);
    LRESULT result = 0;
    EXPECT_TRUE(w.pm().PreMessageHandler(WM_USER + 3, 0, 0, result));
    EXPECT_EQ(result, 5);
    EXPECT_FALSE(w.pm().PreMessageHandler(WM_USER + 4, 0, 0, result));
    EXPECT_EQ(filter.seen, 1);
    w.pm().RemovePreMessageFilter(&filter);
    w.Close(0);
    Pump(10);
}

TEST_F(WindowTest, TabSelectionFromAnotherThreadRunsOnTheWindowThread)
{
    SkinWindow w(
        LR"(<Window size="100,50"><TabLayout name="tabs"><Control /><Control /></TabLayout></Window>)");
    ASSERT_TRUE(Open(w));
    const DWORD windowThread = ::GetCurrentThreadId();
    DWORD notifiedOn = 0;
    w.onNotify = [&notifiedOn](TNotifyUI& msg) {
        if (msg.sType == L"tabselect")
            notifiedOn = ::GetCurrentThreadId();
    };
    auto* tabs = Find<CTabLayoutUI>(w.pm(), L"tabs");
    std::atomic<bool> done{false};
    std::atomic<bool> selected{false};
    std::thread watcher([&] {
        selected = tabs->SelectItem(1);
        done = true;
    });
    EXPECT_TRUE(PumpUntil([&done] { return done.load(); }, 2000));
    watcher.join();
    EXPECT_TRUE(selected.load());
    EXPECT_EQ(tabs->GetCurSel(), 1);
    EXPECT_EQ(notifiedOn, windowThread);
    w.Close(0);
    Pump(10);
}
