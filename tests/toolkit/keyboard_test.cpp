// Keyboard and focus through the toolkit's base classes: list navigation,
// Tab order, the focus ring, Enter/Space on buttons and Escape on the close
// button, driven through real WM_KEYDOWN messages.

#include <gtest/gtest.h>

#include "harness/ui_harness.h"

using namespace uitest;

namespace {

constexpr DWORD kRing = 0xFF0A59F7;

// A small settings window: a title bar with its close button, a list on the
// left, a panel with buttons (one disabled, one hidden, one kept out of the
// keyboard) and a second list whose rows hold buttons, and a tab layout
// whose hidden page holds a button.
constexpr const wchar_t* kSkin = LR"(<Window size="400,300">
  <VerticalLayout name="root" bkcolor="#FFFFFFFF">
    <HorizontalLayout height="40">
      <Label name="title" text="Settings" />
      <Button name="btn_close" width="40" text="x" bordersize="2" focusbordercolor="#FF0A59F7" />
    </HorizontalLayout>
    <HorizontalLayout>
      <List name="SpaceList" width="200" inset="4,4,4,4" bordersize="2" bordercolor="#00000000"
            focusbordercolor="#FF0A59F7" itemselectedbkcolor="#FFE8F0FF" />
      <VerticalLayout>
        <Button name="opr_btn" height="30" text="Go" bordersize="2" focusbordercolor="#FF0A59F7" />
        <Button name="disabled_btn" height="30" enabled="false" />
        <Button name="hidden_btn" height="30" visible="false" />
        <Button name="nokey_btn" height="30" keyboard="false" />
        <List name="BackupList" height="80" virtualwnd="BackupPage" />
        <TabLayout name="tabs" height="30"><Button name="page0_btn" /><Button name="page1_btn" /></TabLayout>
      </VerticalLayout>
    </HorizontalLayout>
  </VerticalLayout></Window>)";

constexpr const wchar_t* kSpaceRow =
    LR"(<ListContainerElement height="30"><Label name="itemName" /></ListContainerElement>)";
constexpr const wchar_t* kBackupRow = LR"(<ListContainerElement height="30">
  <HorizontalLayout><Label name="itemName" /><Button name="btn_del" width="40" text="x" /></HorizontalLayout>
</ListContainerElement>)";

class KeyboardTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        UseOffscreenToolkit();
        ASSERT_TRUE(Open(window));
        spaceList = Find<CListUI>(window.pm(), L"SpaceList");
        backupList = Find<CListUI>(window.pm(), L"BackupList");
        ASSERT_NE(spaceList, nullptr);
        ASSERT_NE(backupList, nullptr);
        for (int i = 0; i < 4; ++i)
            AddRow(spaceList, kSpaceRow);
        for (int i = 0; i < 2; ++i)
            AddRow(backupList, kBackupRow);
        window.pm().UpdateLayoutIfNeeded();
    }
    void TearDown() override
    {
        window.Close(0);
        Pump(10);
    }

    void AddRow(CListUI* list, const wchar_t* skin)
    {
        CDialogBuilder builder;
        CControlUI* row = builder.Create(skin, nullptr, nullptr, &window.pm());
        ASSERT_NE(row, nullptr);
        ASSERT_TRUE(list->Add(row));
    }

    void Key(UINT vk, bool shift = false) { PressKey(window.GetHWND(), vk, shift); }

    std::wstring FocusName() const
    {
        CControlUI* focus = window.pm().GetFocus();
        return focus != nullptr ? focus->GetName().str() : L"(none)";
    }

    std::vector<SeenNotify> Seen(const std::wstring& type) const
    {
        std::vector<SeenNotify> out;
        for (const auto& n : window.notifications) {
            if (n.type == type)
                out.push_back(n);
        }
        return out;
    }

    void FocusSpaceList()
    {
        spaceList->SetFocus();
        ASSERT_EQ(FocusName(), L"SpaceList");
    }

    mutable SkinWindow window{kSkin};
    CListUI* spaceList = nullptr;
    CListUI* backupList = nullptr;
};

bool SameNotify(const SeenNotify& a, const SeenNotify& b)
{
    return a.type == b.type && a.sender == b.sender && a.wParam == b.wParam && a.lParam == b.lParam &&
           a.virtualWnd == b.virtualWnd;
}

} // namespace

TEST_F(KeyboardTest, DownUpHomeAndEndMoveTheSelectionAndRaiseItemSelect)
{
    FocusSpaceList();
    Key(VK_DOWN);
    EXPECT_EQ(spaceList->GetCurSel(), 0);
    Key(VK_DOWN);
    EXPECT_EQ(spaceList->GetCurSel(), 1);
    Key(VK_END);
    EXPECT_EQ(spaceList->GetCurSel(), 3);
    Key(VK_UP);
    EXPECT_EQ(spaceList->GetCurSel(), 2);
    Key(VK_HOME);
    EXPECT_EQ(spaceList->GetCurSel(), 0);
    const auto seen = Seen(L"itemselect");
    ASSERT_EQ(seen.size(), 5u);
    const int expected[][2] = {{0, -1}, {1, 0}, {3, 1}, {2, 3}, {0, 2}};
    for (std::size_t i = 0; i < seen.size(); ++i) {
        EXPECT_EQ(seen[i].sender, L"SpaceList");
        EXPECT_EQ(static_cast<int>(seen[i].wParam), expected[i][0]) << i;
        EXPECT_EQ(static_cast<int>(seen[i].lParam), expected[i][1]) << i;
    }
}

TEST_F(KeyboardTest, AKeyRaisesTheSameItemSelectAsAClickOnThatRow)
{
    FocusSpaceList();
    Key(VK_DOWN);
    Key(VK_DOWN);
    const SeenNotify byKey = Seen(L"itemselect").back();
    spaceList->SelectItem(0);
    window.notifications.clear();
    ClickAt(window.GetHWND(), CentreOf(window.pm(), spaceList->GetItemAt(1)));
    ASSERT_EQ(Seen(L"itemselect").size(), 1u);
    EXPECT_TRUE(SameNotify(Seen(L"itemselect")[0], byKey));
}

TEST_F(KeyboardTest, ArrowsAtTheEndsKeepTheSelectionAndRaiseNothing)
{
    FocusSpaceList();
    Key(VK_HOME);
    Key(VK_UP);
    EXPECT_EQ(spaceList->GetCurSel(), 0);
    Key(VK_END);
    Key(VK_DOWN);
    Key(VK_END);
    EXPECT_EQ(spaceList->GetCurSel(), 3);
    EXPECT_EQ(Seen(L"itemselect").size(), 2u);
}

TEST_F(KeyboardTest, UpWithNoSelectionSelectsTheFirstRow)
{
    FocusSpaceList();
    Key(VK_UP);
    EXPECT_EQ(spaceList->GetCurSel(), 0);
    ASSERT_EQ(Seen(L"itemselect").size(), 1u);
}

TEST_F(KeyboardTest, ArrowsPassOverRowsThatCannotBeSelected)
{
    spaceList->GetItemAt(1)->SetEnabled(false);
    spaceList->GetItemAt(3)->SetVisible(false);
    FocusSpaceList();
    Key(VK_HOME);
    Key(VK_DOWN);
    EXPECT_EQ(spaceList->GetCurSel(), 2);
    Key(VK_DOWN);
    EXPECT_EQ(spaceList->GetCurSel(), 2);
    Key(VK_END);
    EXPECT_EQ(spaceList->GetCurSel(), 2);
    Key(VK_UP);
    EXPECT_EQ(spaceList->GetCurSel(), 0);
}

TEST_F(KeyboardTest, KeysReachTheListWhenAClickedRowHasTheFocus)
{
    ClickAt(window.GetHWND(), CentreOf(window.pm(), spaceList->GetItemAt(1)));
    ASSERT_EQ(spaceList->GetCurSel(), 1);
    Key(VK_DOWN);
    EXPECT_EQ(spaceList->GetCurSel(), 2);
    Key(VK_HOME);
    EXPECT_EQ(spaceList->GetCurSel(), 0);
}

TEST_F(KeyboardTest, TabVisitsListsAndEnabledVisibleButtonsInTreeOrderAndWraps)
{
    const std::vector<std::wstring> order = {L"btn_close", L"SpaceList", L"opr_btn",  L"BackupList",
                                             L"btn_del",   L"btn_del",   L"page0_btn"};
    std::vector<std::wstring> visited;
    for (std::size_t i = 0; i < order.size() + 1; ++i) {
        Key(VK_TAB);
        visited.push_back(FocusName());
    }
    std::vector<std::wstring> expected = order;
    expected.push_back(L"btn_close");
    EXPECT_EQ(visited, expected);
    // The two btn_del stops are the buttons of the two rows, in row order.
    Key(VK_TAB);
    Key(VK_TAB);
    Key(VK_TAB);
    Key(VK_TAB);
    EXPECT_EQ(window.pm().GetFocus()->GetParent()->GetParent(), backupList->GetItemAt(0));
    Key(VK_TAB);
    EXPECT_EQ(window.pm().GetFocus()->GetParent()->GetParent(), backupList->GetItemAt(1));
}

TEST_F(KeyboardTest, ShiftTabGoesBackwardsAndWraps)
{
    Key(VK_TAB, true);
    EXPECT_EQ(FocusName(), L"page0_btn");
    Key(VK_TAB, true);
    EXPECT_EQ(FocusName(), L"btn_del");
    window.pm().FindControl(L"btn_close")->SetFocus();
    Key(VK_TAB, true);
    EXPECT_EQ(FocusName(), L"page0_btn");
}

TEST_F(KeyboardTest, TabFromAFocusedRowGoesOnFromItsList)
{
    ClickAt(window.GetHWND(), CentreOf(window.pm(), spaceList->GetItemAt(2)));
    ASSERT_EQ(window.pm().GetFocus(), spaceList->GetItemAt(2));
    Key(VK_TAB);
    EXPECT_EQ(FocusName(), L"opr_btn");
    ClickAt(window.GetHWND(), CentreOf(window.pm(), spaceList->GetItemAt(2)));
    Key(VK_TAB, true);
    EXPECT_EQ(FocusName(), L"btn_close");
}

TEST_F(KeyboardTest, HiddenPagesAndKeyboardFalseAreLeftOut)
{
    auto* tabs = Find<CTabLayoutUI>(window.pm(), L"tabs");
    tabs->SelectItem(1);
    window.pm().FindControl(L"btn_close")->SetFocus();
    Key(VK_TAB, true);
    EXPECT_EQ(FocusName(), L"page1_btn");
    for (int i = 0; i < 10; ++i) {
        Key(VK_TAB);
        EXPECT_NE(FocusName(), L"page0_btn");
        EXPECT_NE(FocusName(), L"nokey_btn");
        EXPECT_NE(FocusName(), L"disabled_btn");
        EXPECT_NE(FocusName(), L"hidden_btn");
    }
}

TEST_F(KeyboardTest, EnterAndSpacePressTheFocusedButtonAsAClickDoes)
{
    Click(window.pm(), L"opr_btn");
    ASSERT_EQ(Seen(L"click").size(), 1u);
    const SeenNotify byMouse = Seen(L"click")[0];
    window.notifications.clear();
    ASSERT_EQ(FocusName(), L"opr_btn");
    Key(VK_RETURN);
    Key(VK_SPACE);
    const auto seen = Seen(L"click");
    ASSERT_EQ(seen.size(), 2u);
    EXPECT_TRUE(SameNotify(seen[0], byMouse));
    EXPECT_TRUE(SameNotify(seen[1], byMouse));
}

TEST_F(KeyboardTest, EnterOnAFocusedRowButtonCarriesItsVirtualWindow)
{
    for (int i = 0; i < 5; ++i)
        Key(VK_TAB);
    ASSERT_EQ(FocusName(), L"btn_del");
    Key(VK_RETURN);
    const auto seen = Seen(L"click");
    ASSERT_EQ(seen.size(), 1u);
    EXPECT_EQ(seen[0].sender, L"btn_del");
    EXPECT_EQ(seen[0].virtualWnd, L"BackupPage");
}

TEST_F(KeyboardTest, EscapeRaisesTheClickOfTheCloseButton)
{
    Click(window.pm(), L"btn_close");
    const SeenNotify byMouse = Seen(L"click").at(0);
    window.notifications.clear();
    FocusSpaceList();
    Key(VK_ESCAPE);
    const auto seen = Seen(L"click");
    ASSERT_EQ(seen.size(), 1u);
    EXPECT_TRUE(SameNotify(seen[0], byMouse));
}

TEST_F(KeyboardTest, EscapeDoesNothingWhenTheCloseButtonCannotBeClicked)
{
    window.pm().FindControl(L"btn_close")->SetEnabled(false);
    Key(VK_ESCAPE);
    window.pm().FindControl(L"btn_close")->SetEnabled(true);
    window.pm().FindControl(L"btn_close")->GetParent()->SetVisible(false);
    Key(VK_ESCAPE);
    EXPECT_EQ(Seen(L"click").size(), 0u);
}

TEST(KeyboardEscape, EscapeUsesDuiLibsCloseBtnNameAndIgnoresOtherButtons)
{
    UseOffscreenToolkit();
    SkinWindow w(LR"(<Window size="200,60"><HorizontalLayout>
        <Button name="ok" /><Button name="closebtn" /></HorizontalLayout></Window>)");
    ASSERT_TRUE(Open(w));
    PressKey(w.GetHWND(), VK_ESCAPE);
    ASSERT_EQ(w.CountNotify(L"click"), 1);
    EXPECT_EQ(w.notifications.back().sender, L"closebtn");
    w.Close(0);
    Pump(10);

    SkinWindow none(
        LR"(<Window size="200,60"><HorizontalLayout><Button name="ok" /></HorizontalLayout></Window>)");
    ASSERT_TRUE(Open(none));
    PressKey(none.GetHWND(), VK_ESCAPE);
    EXPECT_EQ(none.CountNotify(L"click"), 0);
    none.Close(0);
    Pump(10);
}

TEST_F(KeyboardTest, AWindowThatRunsThePreFilterItselfClicksOnce)
{
    // The module's window offers every message to PreMessageHandler before
    // the base: Escape and Enter must still click exactly once.
    window.onMessage = [this](UINT msg, WPARAM wParam, LPARAM lParam, bool& handled) -> LRESULT {
        LRESULT result = 0;
        handled = window.pm().PreMessageHandler(msg, wParam, lParam, result);
        return result;
    };
    Key(VK_ESCAPE);
    EXPECT_EQ(Seen(L"click").size(), 1u);
    window.pm().FindControl(L"opr_btn")->SetFocus();
    Key(VK_RETURN);
    ASSERT_EQ(Seen(L"click").size(), 2u);
    EXPECT_EQ(Seen(L"click")[1].sender, L"opr_btn");
}

TEST_F(KeyboardTest, FocusRingIsDrawnOnTheFocusedButtonOnly)
{
    CControlUI* button = window.pm().FindControl(L"opr_btn");
    const RECT r = button->GetPos();
    const int midY = (r.top + r.bottom) / 2;
    {
        Snapshot before(window.pm());
        EXPECT_NE(before.Pixel(r.left, midY), kRing);
    }
    for (int i = 0; i < 3; ++i)
        Key(VK_TAB);
    ASSERT_EQ(FocusName(), L"opr_btn");
    Snapshot focused(window.pm());
    ASSERT_TRUE(focused.WritePng(OutputPath("focus_ring_button.png")));
    EXPECT_EQ(focused.Pixel(r.left, midY), kRing);
    EXPECT_EQ(focused.Pixel(r.left + 1, midY), kRing);
    EXPECT_EQ(focused.Pixel(r.right - 1, midY), kRing);
    EXPECT_NE(focused.Pixel(r.left + 4, midY), kRing);
    Key(VK_TAB);
    Snapshot moved(window.pm());
    EXPECT_NE(moved.Pixel(r.left, midY), kRing);
}

TEST_F(KeyboardTest, FocusedListShowsTheRingAlsoWhileARowHasTheFocus)
{
    const RECT r = spaceList->GetPos();
    const int midY = (r.top + r.bottom) / 2;
    EXPECT_NE(Snapshot(window.pm()).Pixel(r.left, midY), kRing);
    Key(VK_TAB);
    Key(VK_TAB);
    ASSERT_EQ(FocusName(), L"SpaceList");
    {
        Snapshot shot(window.pm());
        ASSERT_TRUE(shot.WritePng(OutputPath("focus_ring_list.png")));
        EXPECT_EQ(shot.Pixel(r.left, midY), kRing);
        EXPECT_EQ(shot.Pixel(r.right - 1, midY), kRing);
        EXPECT_EQ(shot.Pixel((r.left + r.right) / 2, r.bottom - 1), kRing);
    }
    Key(VK_DOWN); // the row takes the focus
    ASSERT_EQ(window.pm().GetFocus(), spaceList->GetItemAt(0));
    EXPECT_EQ(Snapshot(window.pm()).Pixel(r.left, midY), kRing);
    Key(VK_TAB);
    EXPECT_NE(Snapshot(window.pm()).Pixel(r.left, midY), kRing);
}

TEST(KeyboardScale, FocusRingScalesWithTheDpi)
{
    UseOffscreenToolkit();
    CDPI::SetProcessDPI(192);
    SkinWindow w(LR"(<Window size="200,60"><HorizontalLayout bkcolor="#FFFFFFFF" inset="10,10,10,10">
        <Button name="b" width="100" bordersize="2" focusbordercolor="#FF0A59F7" /></HorizontalLayout></Window>)");
    const bool opened = Open(w);
    CDPI::SetProcessDPI(96);
    ASSERT_TRUE(opened);
    PressKey(w.GetHWND(), VK_TAB);
    Snapshot shot(w.pm());
    ASSERT_TRUE(shot.WritePng(OutputPath("focus_ring_scale2.png")));
    // Two logical pixels are four device pixels at 200 %.
    for (int x = 20; x < 24; ++x)
        EXPECT_EQ(shot.Pixel(x, 60), kRing) << x;
    EXPECT_NE(shot.Pixel(24, 60), kRing);
    w.Close(0);
    Pump(10);
}
