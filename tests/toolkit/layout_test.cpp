#include <gtest/gtest.h>

#include "harness/ui_harness.h"

using namespace uitest;

namespace {

class LayoutTest : public ::testing::Test
{
protected:
    void SetUp() override { UseOffscreenToolkit(); }
};

void ExpectRect(CControlUI* c, int l, int t, int r, int b)
{
    ASSERT_NE(c, nullptr);
    const RECT& pos = c->GetPos();
    EXPECT_EQ(pos.left, l) << attr::Narrow(c->GetName().str());
    EXPECT_EQ(pos.top, t) << attr::Narrow(c->GetName().str());
    EXPECT_EQ(pos.right, r) << attr::Narrow(c->GetName().str());
    EXPECT_EQ(pos.bottom, b) << attr::Narrow(c->GetName().str());
}

} // namespace

TEST_F(LayoutTest, FixedAndAutomaticSizesInNestedContainers)
{
    SkinWindow w(LR"(<Window size="400,300">
      <VerticalLayout name="root" inset="10,10,10,10" childpadding="5">
        <HorizontalLayout name="top" height="50">
          <Control name="a" width="100" />
          <Control name="b" />
          <Control name="c" width="60" padding="4,5,6,7" />
        </HorizontalLayout>
        <Control name="flex1" />
        <Control name="fixed" height="40" width="200" />
        <Control name="flex2" />
      </VerticalLayout></Window>)");
    ASSERT_TRUE(Open(w));
    auto& pm = w.pm();
    pm.UpdateLayoutIfNeeded();
    ExpectRect(pm.FindControl(L"root"), 0, 0, 400, 300);
    ExpectRect(pm.FindControl(L"top"), 10, 10, 390, 60);
    // 380 wide: a 100, c 60 + 10 padding, b takes the remaining 210.
    ExpectRect(pm.FindControl(L"a"), 10, 10, 110, 60);
    ExpectRect(pm.FindControl(L"b"), 110, 10, 320, 60);
    ExpectRect(pm.FindControl(L"c"), 324, 15, 384, 53);
    // Height 280: 50 + 40 + three gaps of 5 = 105 fixed; the two flexible
    // controls share 175 as 87 and 88.
    ExpectRect(pm.FindControl(L"flex1"), 10, 65, 390, 152);
    ExpectRect(pm.FindControl(L"fixed"), 10, 157, 210, 197);
    ExpectRect(pm.FindControl(L"flex2"), 10, 202, 390, 290);
    w.Close(0);
    Pump(10);
}

TEST_F(LayoutTest, HiddenChildGivesItsSpaceToTheOthers)
{
    SkinWindow w(LR"(<Window size="300,100"><HorizontalLayout>
        <Control name="a" /><Control name="b" width="100" /><Control name="c" /></HorizontalLayout></Window>)");
    ASSERT_TRUE(Open(w));
    auto& pm = w.pm();
    pm.UpdateLayoutIfNeeded();
    ExpectRect(pm.FindControl(L"a"), 0, 0, 100, 100);
    pm.FindControl(L"b")->SetVisible(false);
    pm.UpdateLayoutIfNeeded();
    ExpectRect(pm.FindControl(L"a"), 0, 0, 150, 100);
    ExpectRect(pm.FindControl(L"c"), 150, 0, 300, 100);
    w.Close(0);
    Pump(10);
}

TEST_F(LayoutTest, SetFixedWidthFromCodeRelaysOutTheRow)
{
    SkinWindow w(LR"(<Window size="300,40"><HorizontalLayout>
        <Control name="seg1" width="50" /><Control name="seg2" width="50" /><Control /></HorizontalLayout></Window>)");
    ASSERT_TRUE(Open(w));
    auto& pm = w.pm();
    pm.FindControl(L"seg1")->SetFixedWidth(120);
    pm.UpdateLayoutIfNeeded();
    EXPECT_EQ(pm.FindControl(L"seg1")->GetFixedWidth(), 120);
    ExpectRect(pm.FindControl(L"seg2"), 120, 0, 170, 40);
    w.Close(0);
    Pump(10);
}

TEST_F(LayoutTest, ChildAlignCentresFixedChildren)
{
    SkinWindow w(LR"(<Window size="300,100"><HorizontalLayout childalign="center" childvalign="vcenter">
        <Control name="a" width="100" height="20" /></HorizontalLayout></Window>)");
    ASSERT_TRUE(Open(w));
    w.pm().UpdateLayoutIfNeeded();
    ExpectRect(w.pm().FindControl(L"a"), 100, 40, 200, 60);
    w.Close(0);
    Pump(10);
}

TEST_F(LayoutTest, AutoCalcWidthLabelGrowsWithItsText)
{
    SkinWindow w(LR"(<Window size="400,40"><HorizontalLayout>
        <Label name="l" autocalcwidth="true" text="ab" textpadding="4,0,4,0" /><Control name="rest" /></HorizontalLayout></Window>)");
    ASSERT_TRUE(Open(w));
    auto& pm = w.pm();
    pm.UpdateLayoutIfNeeded();
    const int narrow = pm.FindControl(L"l")->GetWidth();
    pm.FindControl(L"l")->SetText(L"a much longer label text");
    pm.UpdateLayoutIfNeeded();
    const int wide = pm.FindControl(L"l")->GetWidth();
    EXPECT_GT(narrow, 8);
    EXPECT_GT(wide, narrow * 3);
    EXPECT_EQ(pm.FindControl(L"rest")->GetPos().left, wide);
    w.Close(0);
    Pump(10);
}

TEST_F(LayoutTest, TabLayoutShowsOnlyTheSelectedPage)
{
    SkinWindow w(LR"(<Window size="200,100"><TabLayout name="tabs">
        <Control name="p0" /><Control name="p1" /><Control name="p2" /></TabLayout></Window>)");
    ASSERT_TRUE(Open(w));
    auto& pm = w.pm();
    auto* tabs = Find<CTabLayoutUI>(pm, L"tabs");
    ASSERT_NE(tabs, nullptr);
    EXPECT_EQ(tabs->GetCurSel(), 0);
    EXPECT_TRUE(pm.FindControl(L"p0")->IsVisible());
    EXPECT_FALSE(pm.FindControl(L"p1")->IsVisible());

    EXPECT_TRUE(tabs->SelectItem(2));
    EXPECT_EQ(tabs->GetCurSel(), 2);
    EXPECT_FALSE(pm.FindControl(L"p0")->IsVisible());
    EXPECT_TRUE(pm.FindControl(L"p2")->IsVisible());
    EXPECT_EQ(w.CountNotify(L"tabselect"), 1);
    EXPECT_FALSE(tabs->SelectItem(3));
    EXPECT_EQ(tabs->GetCurSel(), 2);
    pm.UpdateLayoutIfNeeded();
    ExpectRect(pm.FindControl(L"p2"), 0, 0, 200, 100);
    // The visible page is what a click hits.
    EXPECT_EQ(pm.FindControl(POINT{50, 50}), pm.FindControl(L"p2"));
    w.Close(0);
    Pump(10);
}

TEST_F(LayoutTest, SelectedIdPicksTheFirstPage)
{
    SkinWindow w(LR"(<Window size="200,100"><TabLayout name="tabs" selectedid="1">
        <Control name="p0" /><Control name="p1" /></TabLayout></Window>)");
    ASSERT_TRUE(Open(w));
    EXPECT_EQ(Find<CTabLayoutUI>(w.pm(), L"tabs")->GetCurSel(), 1);
    EXPECT_TRUE(w.pm().FindControl(L"p1")->IsVisible());
    EXPECT_FALSE(w.pm().FindControl(L"p0")->IsVisible());
    w.Close(0);
    Pump(10);
}

TEST_F(LayoutTest, FindControlByPointTakesTheDeepestVisibleControl)
{
    SkinWindow w(LR"(<Window size="200,100"><HorizontalLayout name="row">
        <VerticalLayout name="left" width="100"><Button name="btn" height="30" /></VerticalLayout>
        <Label name="right" mouse="false" /></HorizontalLayout></Window>)");
    ASSERT_TRUE(Open(w));
    auto& pm = w.pm();
    pm.UpdateLayoutIfNeeded();
    EXPECT_EQ(pm.FindControl(POINT{10, 10}), pm.FindControl(L"btn"));
    EXPECT_EQ(pm.FindControl(POINT{10, 50}), pm.FindControl(L"left"));
    // A control with mouse="false" lets the point fall to its parent.
    EXPECT_EQ(pm.FindControl(POINT{150, 50}), pm.FindControl(L"row"));
    EXPECT_EQ(pm.FindSubControlByName(pm.FindControl(L"left"), L"btn"), pm.FindControl(L"btn"));
    EXPECT_EQ(pm.FindSubControlByName(pm.FindControl(L"left"), L"right"), nullptr);
    w.Close(0);
    Pump(10);
}

TEST_F(LayoutTest, MoveWindowResizesTheClientAndRelaysOut)
{
    SkinWindow w(
        LR"(<Window size="200,100"><HorizontalLayout name="root"><Control name="a" /></HorizontalLayout></Window>)");
    ASSERT_TRUE(Open(w));
    ASSERT_TRUE(::MoveWindow(w.GetHWND(), 0, 0, 320, 90, TRUE));
    RECT client{};
    ASSERT_TRUE(::GetClientRect(w.GetHWND(), &client));
    EXPECT_EQ(client.right, 320);
    EXPECT_EQ(client.bottom, 90);
    w.pm().UpdateLayoutIfNeeded();
    ExpectRect(w.pm().FindControl(L"a"), 0, 0, 320, 90);
    w.Close(0);
    Pump(10);
}

TEST_F(LayoutTest, CenterWindowCentresOnTheScreen)
{
    SkinWindow w(LR"(<Window size="200,100"><Control /></Window>)");
    ASSERT_TRUE(Open(w));
    w.CenterWindow();
    const RECT r = w.GetWindowRect();
    EXPECT_EQ(r.left, (1920 - 200) / 2);
    EXPECT_EQ(r.top, (1080 - 100) / 2);
    w.Close(0);
    Pump(10);
}
