#include <gtest/gtest.h>

#include "harness/ui_harness.h"

using namespace uitest;

namespace {

constexpr const wchar_t* kListSkin = LR"(<Window size="300,200">
  <VerticalLayout>
    <List name="list" itemselectedbkcolor="#FFE8F0FF" />
  </VerticalLayout></Window>)";

constexpr const wchar_t* kRowSkin = LR"(<ListContainerElement height="40">
  <HorizontalLayout><Label name="itemName" /><Button name="btn_del" width="40" text="x" /></HorizontalLayout>
</ListContainerElement>)";

class ListTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        UseOffscreenToolkit();
        ASSERT_TRUE(Open(window));
        list = Find<CListUI>(window.pm(), L"list");
        ASSERT_NE(list, nullptr);
    }
    void TearDown() override
    {
        window.Close(0);
        Pump(10);
    }

    CControlUI* AddRow(const wchar_t* name)
    {
        CDialogBuilder builder;
        CControlUI* row = builder.Create(kRowSkin, nullptr, nullptr, &window.pm());
        EXPECT_NE(row, nullptr);
        if (row == nullptr)
            return nullptr;
        window.pm().FindSubControlByName(row, L"itemName")->SetText(name);
        EXPECT_TRUE(list->Add(row));
        return row;
    }

    std::vector<SeenNotify> Selections() const
    {
        std::vector<SeenNotify> out;
        for (const auto& n : window.notifications) {
            if (n.type == L"itemselect")
                out.push_back(n);
        }
        return out;
    }

    SkinWindow window{kListSkin};
    CListUI* list = nullptr;
};

} // namespace

TEST_F(ListTest, AddCountsAndIndexesRows)
{
    CControlUI* a = AddRow(L"a");
    CControlUI* b = AddRow(L"b");
    EXPECT_EQ(list->GetCount(), 2);
    EXPECT_EQ(list->GetItemAt(0), a);
    EXPECT_EQ(list->GetItemIndex(b), 1);
    EXPECT_EQ(list->GetItemAt(2), nullptr);
    EXPECT_EQ(list->GetCurSel(), -1);
    auto* container = static_cast<IContainerUI*>(list->GetInterface(L"IContainer"));
    ASSERT_NE(container, nullptr);
    EXPECT_EQ(container->GetCount(), 2);
}

TEST_F(ListTest, SelectItemNotifiesWithNewAndOldIndex)
{
    AddRow(L"a");
    AddRow(L"b");
    ASSERT_TRUE(list->SelectItem(0, true));
    ASSERT_TRUE(list->SelectItem(1, false));
    const auto seen = Selections();
    ASSERT_EQ(seen.size(), 2u);
    EXPECT_EQ(seen[0].sender, L"list");
    EXPECT_EQ(seen[0].wParam, 0u);
    EXPECT_EQ(seen[0].lParam, -1);
    EXPECT_EQ(seen[1].wParam, 1u);
    EXPECT_EQ(seen[1].lParam, 0);
    EXPECT_EQ(list->GetCurSel(), 1);
    auto* row = static_cast<IListItemUI*>(list->GetItemAt(1)->GetInterface(L"ListItem"));
    EXPECT_TRUE(row->IsSelected());
}

TEST_F(ListTest, SelectingTheSelectedRowAgainRaisesNothing)
{
    AddRow(L"a");
    list->SelectItem(0, true);
    list->SelectItem(0, true);
    EXPECT_EQ(Selections().size(), 1u);
}

TEST_F(ListTest, UnSelectAllThenSelectFirstNotifiesAgain)
{
    AddRow(L"a");
    AddRow(L"b");
    list->SelectItem(0, true);
    list->UnSelectAllItems();
    EXPECT_EQ(list->GetCurSel(), -1);
    EXPECT_EQ(Selections().size(), 1u);
    list->SelectItem(0, false);
    EXPECT_EQ(Selections().size(), 2u);
    EXPECT_EQ(list->GetCurSel(), 0);
}

TEST_F(ListTest, RemovingTheSelectedRowLeavesNoSelectionAndRaisesNothing)
{
    AddRow(L"a");
    AddRow(L"b");
    AddRow(L"c");
    list->SelectItem(1);
    ASSERT_TRUE(list->RemoveAt(1));
    EXPECT_EQ(list->GetCurSel(), -1);
    EXPECT_EQ(Selections().size(), 1u);
    EXPECT_EQ(list->GetCount(), 2);
    auto* last = static_cast<IListItemUI*>(list->GetItemAt(1)->GetInterface(L"ListItem"));
    EXPECT_EQ(last->GetIndex(), 1);
}

TEST_F(ListTest, RemovingARowAboveTheSelectionKeepsTheSameRowSelected)
{
    AddRow(L"a");
    CControlUI* b = AddRow(L"b");
    list->SelectItem(1);
    ASSERT_TRUE(list->RemoveAt(0));
    EXPECT_EQ(list->GetCurSel(), 0);
    EXPECT_EQ(list->GetItemAt(0), b);
    EXPECT_FALSE(list->RemoveAt(5));
}

TEST_F(ListTest, RemoveAllEmptiesTheList)
{
    AddRow(L"a");
    AddRow(L"b");
    list->SelectItem(0);
    list->RemoveAll();
    EXPECT_EQ(list->GetCount(), 0);
    EXPECT_EQ(list->GetCurSel(), -1);
    EXPECT_FALSE(list->SelectItem(0));
}

TEST_F(ListTest, ClickingARowSelectsIt)
{
    AddRow(L"a");
    AddRow(L"b");
    window.pm().UpdateLayoutIfNeeded();
    CControlUI* second = list->GetItemAt(1);
    // Click on the row's label (not its button): the row gets the click.
    CControlUI* label = window.pm().FindSubControlByName(second, L"itemName");
    ClickAt(window.GetHWND(), CentreOf(window.pm(), label));
    EXPECT_EQ(list->GetCurSel(), 1);
    ASSERT_EQ(Selections().size(), 1u);
    EXPECT_EQ(Selections()[0].wParam, 1u);
    EXPECT_EQ(window.CountNotify(L"itemclick"), 1);
}

TEST_F(ListTest, AButtonInARowClicksWithoutSelectingTheRow)
{
    AddRow(L"a");
    window.pm().UpdateLayoutIfNeeded();
    CControlUI* button = window.pm().FindSubControlByName(list->GetItemAt(0), L"btn_del");
    ClickAt(window.GetHWND(), CentreOf(window.pm(), button));
    EXPECT_EQ(window.CountNotify(L"click"), 1);
    EXPECT_EQ(list->GetCurSel(), -1);
    // The row is the button's parent's parent, and the list finds its index.
    EXPECT_EQ(list->GetItemIndex(button->GetParent()->GetParent()), 0);
}

TEST_F(ListTest, AButtonMayRemoveItsOwnRowFromItsClick)
{
    AddRow(L"a");
    AddRow(L"b");
    window.onNotify = [this](TNotifyUI& msg) {
        if (msg.sType == L"click" && msg.pSender->GetName() == L"btn_del") {
            list->Remove(msg.pSender->GetParent()->GetParent());
        }
    };
    window.pm().UpdateLayoutIfNeeded();
    CControlUI* button = window.pm().FindSubControlByName(list->GetItemAt(0), L"btn_del");
    ClickAt(window.GetHWND(), CentreOf(window.pm(), button));
    EXPECT_EQ(list->GetCount(), 1);
    Pump(10);
    Snapshot shot(window.pm());
    EXPECT_GT(shot.width(), 0);
}

TEST_F(ListTest, WheelScrollsAndSelectionScrollsIntoView)
{
    for (int i = 0; i < 20; ++i)
        AddRow(L"row");
    window.pm().UpdateLayoutIfNeeded();
    EXPECT_EQ(list->GetScrollPos(), 0);
    EXPECT_EQ(list->GetScrollRange(), 20 * 40 - 200);
    Wheel(window.GetHWND(), POINT{100, 100}, -2);
    EXPECT_EQ(list->GetScrollPos(), 80);
    EXPECT_EQ(list->GetItemAt(2)->GetPos().top, 0);
    Wheel(window.GetHWND(), POINT{100, 100}, 5);
    EXPECT_EQ(list->GetScrollPos(), 0);
    list->SelectItem(19);
    EXPECT_EQ(list->GetScrollPos(), list->GetScrollRange());
    EXPECT_EQ(list->GetItemAt(19)->GetPos().bottom, 200);
    // The scroll bar takes the right edge once the rows overflow.
    EXPECT_EQ(list->GetItemAt(0)->GetPos().right, 300 - kScrollBarWidth);
}

TEST_F(ListTest, KeyboardArrowsMoveTheSelection)
{
    AddRow(L"a");
    AddRow(L"b");
    window.pm().UpdateLayoutIfNeeded();
    ClickAt(window.GetHWND(), CentreOf(window.pm(), list->GetItemAt(0)));
    list->GetItemAt(0)->SetFocus();
    PressKey(window.GetHWND(), VK_DOWN);
    EXPECT_EQ(list->GetCurSel(), 1);
    PressKey(window.GetHWND(), VK_UP);
    EXPECT_EQ(list->GetCurSel(), 0);
}
