// The DuiLib elements and attributes a settings window is written with, with
// DuiLib's meanings: a skin that uses them all builds, and each does what
// DuiLib does with it.

#include <gtest/gtest.h>

#include "harness/ui_harness.h"

using namespace uitest;

namespace {

// Every element and attribute a modern settings window needs, by DuiLib's
// names only.
constexpr const wchar_t* kSettingsSkin = LR"(<?xml version="1.0" encoding="UTF-8"?>
<Window size="640,480" mininfo="480,360" caption="0,0,0,48" roundcorner="8,8">
  <Font id="0" name="Noto Sans" size="14" default="true" />
  <Font id="1" name="Noto Sans" size="18" bold="true" />
  <Default name="Button" value="height=&quot;32&quot; bordersize=&quot;2&quot; focusbordercolor=&quot;#FF0A59F7&quot;" />
  <VerticalLayout name="root" bkcolor="#FFFFFFFF" bordercolor="#FFD5D9DF" bordersize="1" borderround="8,8" inset="16,0,16,16">
    <HorizontalLayout name="caption" height="48" childpadding="8">
      <Control name="logo" width="24" height="24" padding="0,12,0,12" bkimage="Gallery/Toolkit/logo.svg" mouse="false" />
      <Label name="title" font="1" text="Cloud space" textcolor="#FF1A1A1A" valign="vcenter" endellipsis="true" />
      <Button name="btn_close" width="32" text="x" tooltip="Close" hotbkcolor="#FFE9EBEF" pushedbkcolor="#FFDADDE2" hottextcolor="#FF000000" />
    </HorizontalLayout>
    <Progress name="bar" height="8" min="0" max="530" value="200" forecolor="#FF0A59F7" bkcolor="#FFE9EBEF" />
    <TabLayout name="tab_switch" selectedid="1">
      <Label name="loading" text="Loading" align="center" />
      <HorizontalLayout name="content" childpadding="12" padding="0,12,0,0">
        <List name="SpaceList" width="240" minwidth="200" maxwidth="300" vscrollbar="true" header="hidden"
              itemselectedbkcolor="#FFE8F0FF" itemhotbkcolor="#FFF2F3F5" itemlinecolor="#FFEEEEEE"
              bordersize="2" focusbordercolor="#FF0A59F7" />
        <VerticalLayout name="panel" virtualwnd="SpacePage">
          <Text name="itemInfo1" text="Two lines of detail" textcolor="#FF4D4D4D" />
          <Button name="opr_btn" width="120" text="Open" enabled="false" disabledtextcolor="#FFA0A4AA" keyboard="false" />
          <Control name="badge" float="true" pos="-40,8,-8,40" bkcolor="#FFFA2A2D" />
        </VerticalLayout>
      </HorizontalLayout>
      <Label name="empty" text="Nothing here" visible="false" />
    </TabLayout>
  </VerticalLayout>
</Window>)";

constexpr const wchar_t* kRow = LR"(<ListContainerElement height="48">
  <Label name="itemName" /><Label name="itemSize" width="80" align="right" /></ListContainerElement>)";

class DuiLibSkinTest : public ::testing::Test
{
protected:
    void SetUp() override { UseOffscreenToolkit(); }
};

} // namespace

TEST_F(DuiLibSkinTest, ASettingsWindowWrittenWithDuiLibNamesOnlyBuilds)
{
    CDialogBuilder builder;
    builder.SetDuiLibOnly(true);
    CPaintManagerUI pm;
    std::unique_ptr<CControlUI> root(builder.Create(kSettingsSkin, nullptr, nullptr, &pm));
    ASSERT_NE(root, nullptr) << builder.GetError()->ToString();
    EXPECT_EQ(pm.GetInitSize().cx, 640);
    EXPECT_EQ(pm.GetMinInfo().cx, 480);
    EXPECT_EQ(pm.GetCaptionRect().bottom, 48);
    EXPECT_EQ(pm.GetRoundCorner().cx, 8);
}

TEST_F(DuiLibSkinTest, EachAttributeDoesWhatDuiLibDoesWithIt)
{
    SkinWindow w(kSettingsSkin);
    ASSERT_TRUE(Open(w));
    auto& pm = w.pm();
    pm.UpdateLayoutIfNeeded();
    // The default attributes reach every button; the button's own win.
    auto* close = Find<CButtonUI>(pm, L"btn_close");
    EXPECT_EQ(close->GetFixedHeight(), 32);
    EXPECT_EQ(close->GetFocusBorderColor(), 0xFF0A59F7u);
    EXPECT_EQ(close->GetHotBkColor(), 0xFFE9EBEFu);
    EXPECT_EQ(close->GetToolTip(), L"Close");
    auto* title = Find<CLabelUI>(pm, L"title");
    EXPECT_EQ(title->GetFont(), 1);
    EXPECT_NE(title->GetTextStyle() & DT_END_ELLIPSIS, 0u);
    EXPECT_NE(title->GetTextStyle() & DT_VCENTER, 0u);
    EXPECT_NE(Find<CLabelUI>(pm, L"loading")->GetTextStyle() & DT_CENTER, 0u);
    EXPECT_NE(Find<CTextUI>(pm, L"itemInfo1")->GetTextStyle() & DT_WORDBREAK, 0u);
    EXPECT_FALSE(pm.FindControl(L"logo")->IsMouseEnabled());
    auto* tabs = Find<CTabLayoutUI>(pm, L"tab_switch");
    EXPECT_EQ(tabs->GetCurSel(), 1);
    EXPECT_FALSE(pm.FindControl(L"empty")->IsVisible());
    auto* list = Find<CListUI>(pm, L"SpaceList");
    EXPECT_EQ(list->GetListInfo()->dwSelectedBkColor, 0xFFE8F0FFu);
    EXPECT_EQ(list->GetListInfo()->dwLineColor, 0xFFEEEEEEu);
    EXPECT_TRUE(list->IsVScrollEnabled());
    EXPECT_EQ(list->GetMinWidth(), 200);
    EXPECT_EQ(list->GetMaxWidth(), 300);
    auto* opr = Find<CButtonUI>(pm, L"opr_btn");
    EXPECT_FALSE(opr->IsEnabled());
    EXPECT_FALSE(opr->IsKeyboardEnabled());
    EXPECT_EQ(opr->GetDisabledTextColor(), 0xFFA0A4AAu);
    EXPECT_EQ(pm.FindControl(L"itemInfo1")->GetVirtualWnd(), L"SpacePage");
    auto* bar = Find<CProgressUI>(pm, L"bar");
    EXPECT_EQ(bar->GetMaxValue(), 530);
    EXPECT_EQ(bar->GetValue(), 200);
    // Layout: inset, padding, childpadding and the fixed widths.
    const RECT caption = pm.FindControl(L"caption")->GetPos();
    EXPECT_EQ(caption.left, 16);
    EXPECT_EQ(caption.bottom, 48);
    EXPECT_EQ(pm.FindControl(L"logo")->GetPos().top, 12);
    const RECT listRect = list->GetPos();
    EXPECT_EQ(listRect.right - listRect.left, 240);
    EXPECT_EQ(pm.FindControl(L"panel")->GetPos().left, listRect.right + 12);
    EXPECT_EQ(pm.FindControl(L"content")->GetPos().top, 48 + 8 + 12);
    w.Close(0);
    Pump(10);
}

TEST_F(DuiLibSkinTest, AFloatingControlStandsAtItsPosOutOfTheLayout)
{
    SkinWindow w(LR"(<Window size="300,200"><VerticalLayout name="root" inset="10,10,10,10">
        <Control name="a" height="50" />
        <Control name="tl" float="true" pos="20,30,60,50" />
        <Control name="br" float="true" pos="-30,-20,-10,-5" />
        <Control name="b" height="50" />
      </VerticalLayout></Window>)");
    ASSERT_TRUE(Open(w));
    auto& pm = w.pm();
    pm.UpdateLayoutIfNeeded();
    // The floating controls take no room: b follows a directly.
    EXPECT_EQ(pm.FindControl(L"b")->GetPos().top, 60);
    // From the container's own rectangle, not its inset.
    const RECT tl = pm.FindControl(L"tl")->GetPos();
    EXPECT_EQ(tl.left, 20);
    EXPECT_EQ(tl.top, 30);
    EXPECT_EQ(tl.right, 60);
    EXPECT_EQ(tl.bottom, 50);
    // Negative: from the right and bottom edges.
    const RECT br = pm.FindControl(L"br")->GetPos();
    EXPECT_EQ(br.right, 300 - 10);
    EXPECT_EQ(br.left, 300 - 10 - 20);
    EXPECT_EQ(br.bottom, 200 - 5);
    EXPECT_EQ(br.top, 200 - 5 - 15);
    EXPECT_EQ(pm.FindControl(L"br")->GetFixedXY().cx, -10);
    // Topmost where it overlaps the flow.
    EXPECT_EQ(pm.FindControl(POINT{30, 40}), pm.FindControl(L"tl"));
    w.Close(0);
    Pump(10);
}

TEST_F(DuiLibSkinTest, PosWithoutFloatOnlyGivesTheSize)
{
    SkinWindow w(LR"(<Window size="300,100"><HorizontalLayout>
        <Control name="a" pos="100,10,160,40" /><Control name="b" /></HorizontalLayout></Window>)");
    ASSERT_TRUE(Open(w));
    w.pm().UpdateLayoutIfNeeded();
    const RECT a = w.pm().FindControl(L"a")->GetPos();
    EXPECT_EQ(a.left, 0);
    EXPECT_EQ(a.right - a.left, 60);
    EXPECT_EQ(a.bottom - a.top, 30);
    EXPECT_EQ(w.pm().FindControl(L"b")->GetPos().left, 60);
    w.Close(0);
    Pump(10);
}

TEST_F(DuiLibSkinTest, SixDigitColoursHaveNoAlphaAsInDuiLib)
{
    SkinWindow w(LR"(<Window size="200,40"><HorizontalLayout bkcolor="#FFFFFFFF">
        <Label name="l" width="100" bkcolor="#00FF00" textcolor="#FF0000" text="WWWW" font="0" />
        <Control name="c" bkcolor="0xFF0000FF" /></HorizontalLayout></Window>)");
    ASSERT_TRUE(Open(w));
    auto* label = Find<CLabelUI>(w.pm(), L"l");
    EXPECT_EQ(label->GetBkColor(), 0x0000FF00u);
    EXPECT_EQ(label->GetTextColor(), 0x00FF0000u);
    Snapshot shot(w.pm());
    // The fill with no alpha paints nothing; the text ignores alpha.
    EXPECT_EQ(shot.CountNear(RECT{0, 0, 100, 40}, 0x00FF00, 10), 0);
    EXPECT_GT(shot.CountNear(RECT{0, 0, 100, 40}, 0xFF0000, 40), 20);
    EXPECT_EQ(shot.Pixel(150, 20), 0xFF0000FFu);
    w.Close(0);
    Pump(10);
}

TEST_F(DuiLibSkinTest, ListHeaderCanOnlyBeHidden)
{
    CDialogBuilder builder;
    CPaintManagerUI pm;
    std::unique_ptr<CControlUI> bad(builder.Create(L"<List header=\"visible\" />", nullptr, nullptr, &pm));
    EXPECT_EQ(bad, nullptr);
    ASSERT_TRUE(builder.GetError().has_value());
    EXPECT_EQ(builder.GetError()->name, L"header");
}

TEST_F(DuiLibSkinTest, ADuiLibOnlyBuildRefusesTheToolkitsOwnAttributes)
{
    CPaintManagerUI pm;
    {
        CDialogBuilder builder;
        builder.SetDuiLibOnly(true);
        std::unique_ptr<CControlUI> root(builder.Create(
            L"<Window>\n<Progress name=\"p\" rounddirection=\"1\" />\n</Window>", nullptr, nullptr, &pm));
        EXPECT_EQ(root, nullptr);
        ASSERT_TRUE(builder.GetError().has_value());
        EXPECT_EQ(builder.GetError()->line, 2);
        EXPECT_EQ(builder.GetError()->name, L"rounddirection");
        EXPECT_NE(builder.GetError()->message.find("not a DuiLib attribute"), std::string::npos);
    }
    {
        CDialogBuilder builder;
        builder.SetDuiLibOnly(true);
        std::unique_ptr<CControlUI> root(
            builder.Create(L"<Window><Default name=\"Progress\" value=\"rounddirection=&quot;2&quot;\" "
                           L"/><Progress /></Window>",
                           nullptr, nullptr, &pm));
        EXPECT_EQ(root, nullptr);
        ASSERT_TRUE(builder.GetError().has_value());
        EXPECT_EQ(builder.GetError()->name, L"rounddirection");
    }
    // Without the flag the toolkit reads its own attribute.
    CDialogBuilder builder;
    std::unique_ptr<CControlUI> root(
        builder.Create(L"<Progress rounddirection=\"1\" />", nullptr, nullptr, &pm));
    ASSERT_NE(root, nullptr);
    EXPECT_EQ(static_cast<CProgressUI*>(root.get())->GetRoundRectDirection(), 1);
    EXPECT_TRUE(IsToolkitExtension(L"rounddirection"));
    EXPECT_FALSE(IsToolkitExtension(L"focusbordercolor"));
}

TEST_F(DuiLibSkinTest, RowsOfTheListBuildFromTheirOwnSkin)
{
    SkinWindow w(kSettingsSkin);
    ASSERT_TRUE(Open(w));
    auto* list = Find<CListUI>(w.pm(), L"SpaceList");
    for (int i = 0; i < 3; ++i) {
        CDialogBuilder builder;
        builder.SetDuiLibOnly(true);
        CControlUI* row = builder.Create(kRow, nullptr, nullptr, &w.pm());
        ASSERT_NE(row, nullptr);
        list->Add(row);
    }
    w.pm().UpdateLayoutIfNeeded();
    EXPECT_EQ(list->GetItemAt(1)->GetPos().top - list->GetItemAt(0)->GetPos().top, 48);
    w.Close(0);
    Pump(10);
}
