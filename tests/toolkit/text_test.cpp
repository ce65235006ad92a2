#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "harness/ui_harness.h"

using namespace uitest;

namespace {

class TextTest : public ::testing::Test
{
protected:
    void SetUp() override { UseOffscreenToolkit(); }
};

} // namespace

TEST_F(TextTest, LongerTextMeasuresWider)
{
    HDC dc = ::GetDC(nullptr);
    SIZE shortText{};
    SIZE longText{};
    ASSERT_TRUE(::GetTextExtentPoint32W(dc, L"Gallery", 7, &shortText));
    ASSERT_TRUE(::GetTextExtentPoint32W(dc, L"Gallery and cloud drive", 23, &longText));
    EXPECT_GT(shortText.cx, 20);
    EXPECT_GT(longText.cx, shortText.cx * 2);
    EXPECT_EQ(longText.cy, shortText.cy);
    SIZE empty{};
    ASSERT_TRUE(::GetTextExtentPoint32W(dc, L"", 0, &empty));
    EXPECT_EQ(empty.cx, 0);
    EXPECT_GT(empty.cy, 0);
}

TEST_F(TextTest, SelectedFontDecidesTheExtentAndSelectObjectReturnsThePrevious)
{
    CPaintManagerUI pm;
    HFONT small = pm.AddFont(0, L"Noto Sans", 10, false, false, false);
    HFONT big = pm.AddFont(1, L"Noto Sans", 30, false, false, false);
    HDC dc = pm.GetPaintDC();
    HGDIOBJ original = ::SelectObject(dc, small);
    ASSERT_NE(original, nullptr);
    SIZE a{};
    ::GetTextExtentPoint32W(dc, L"Storage", 7, &a);
    EXPECT_EQ(::SelectObject(dc, big), small);
    SIZE b{};
    ::GetTextExtentPoint32W(dc, L"Storage", 7, &b);
    EXPECT_GT(b.cx, a.cx * 2);
    EXPECT_EQ(::SelectObject(dc, original), big);
    // Only `count` characters are measured.
    SIZE part{};
    ::GetTextExtentPoint32W(dc, L"Storage", 3, &part);
    SIZE whole{};
    ::GetTextExtentPoint32W(dc, L"Storage", 7, &whole);
    EXPECT_LT(part.cx, whole.cx);
}

TEST_F(TextTest, GetDcStartsWithTheDefaultFontEveryTime)
{
    CPaintManagerUI pm;
    HFONT big = pm.AddFont(1, L"Noto Sans", 40, false, false, false);
    HDC first = ::GetDC(nullptr);
    SIZE normal{};
    ::GetTextExtentPoint32W(first, L"abc", 3, &normal);
    ::SelectObject(first, big);
    HDC second = ::GetDC(nullptr);
    SIZE again{};
    ::GetTextExtentPoint32W(second, L"abc", 3, &again);
    EXPECT_EQ(again.cx, normal.cx);
}

TEST_F(TextTest, FontsScaleWithTheDpi)
{
    CPaintManagerUI pm;
    pm.AddFont(0, L"Noto Sans", 14, false, false, false);
    HDC dc = pm.GetPaintDC();
    ::SelectObject(dc, pm.GetFont(0));
    SIZE at96{};
    ::GetTextExtentPoint32W(dc, L"Used 12.5 GB of 50 GB", 21, &at96);
    pm.SetDPI(192);
    dc = pm.GetPaintDC();
    ::SelectObject(dc, pm.GetFont(0));
    SIZE at192{};
    ::GetTextExtentPoint32W(dc, L"Used 12.5 GB of 50 GB", 21, &at192);
    EXPECT_NEAR(at192.cx, at96.cx * 2, 3);
    EXPECT_EQ(pm.GetDPIObj()->Scale(100), 200);
    EXPECT_EQ(pm.GetDPIObj()->ScaleBack(200), 100);
}

TEST_F(TextTest, ResourceManagerScaleAndRestoreFollowTheProcessDpi)
{
    EXPECT_EQ(CResourceManagerEx::Scale(100), 100);
    CDPI::SetProcessDPI(144);
    EXPECT_EQ(CResourceManagerEx::Scale(100), 150);
    EXPECT_EQ(CResourceManagerEx::GetInstance()->RestoreScale(150), 100);
    CDPI::SetProcessDPI(96);
}

TEST_F(TextTest, FormatTakesWideStringsForPercentS)
{
    CDuiString text;
    text.Format(L"Delete the backup of %s?", L"Mate 60");
    EXPECT_EQ(text, L"Delete the backup of Mate 60?");
    text.Format(L"%d%% of %ls, %c", 42, L"quota", L'x');
    EXPECT_EQ(text, L"42% of quota, x");
    text.Format(L"narrow %S", "bytes");
    EXPECT_EQ(text, L"narrow bytes");
}

TEST_F(TextTest, DuiStringHelpers)
{
    CDuiString s(L"ListViewS");
    EXPECT_EQ(s.CompareNoCase(L"listviews"), 0);
    EXPECT_EQ(s.GetLength(), 9);
    EXPECT_EQ(s.Left(4), L"List");
    EXPECT_EQ(s.Mid(4, 4), L"View");
    EXPECT_EQ(s.Find(L"View"), 4);
    s.Replace(L"View", L"");
    EXPECT_EQ(s, L"ListS");
}

TEST_F(TextTest, GetTextFallsBackToEnglishThenToTheKey)
{
    CPaintManagerUI::SetInstancePath(
        attr::Widen(std::string(SPACEMGM_SOURCE_DIR) + "/tests/toolkit/fixtures").c_str());
    auto* res = CResourceManager::GetInstance();
    res->ReloadText();
    res->SetLanguage(L"ru-RU");
    EXPECT_STREQ(res->GetLanguage(), L"ru-RU");
    EXPECT_STREQ(res->GetText(L"IDS_FIXTURE_GREETING"), L"Привет");
    EXPECT_STREQ(res->GetText(L"IDS_FIXTURE_ONLY_ENGLISH"), L"Only in English");
    EXPECT_STREQ(res->GetText(L"IDS_FIXTURE_MISSING"), L"IDS_FIXTURE_MISSING");
    res->SetLanguage(L"xx-XX");
    EXPECT_STREQ(res->GetText(L"IDS_FIXTURE_GREETING"), L"Hello");
    res->SetLanguage(L"en-US");
    res->ReloadText();
    UseOffscreenToolkit();
}

TEST_F(TextTest, ALanguageFileNestedPastTheParsersLimitGivesNoTextsAndNoCrash)
{
    const std::string root = std::string(SPACEMGM_BINARY_DIR) + "/deep-language/";
    std::filesystem::create_directories(root + "Res/lang");
    std::ofstream(root + "Res/lang/en-US.json", std::ios::trunc)
        << "{\"IDS_FIXTURE_GREETING\": " << std::string(200000, '[') << std::string(200000, ']') << "}";
    CPaintManagerUI::SetInstancePath(attr::Widen(root).c_str());
    auto* res = CResourceManager::GetInstance();
    res->SetLanguage(L"en-US");
    res->ReloadText();
    EXPECT_STREQ(res->GetText(L"IDS_FIXTURE_GREETING"), L"IDS_FIXTURE_GREETING");
    UseOffscreenToolkit();
    res->ReloadText();
}

TEST_F(TextTest, SkinTextsWithKeysAreLookedUp)
{
    CPaintManagerUI::SetInstancePath(
        attr::Widen(std::string(SPACEMGM_SOURCE_DIR) + "/tests/toolkit/fixtures").c_str());
    CResourceManager::GetInstance()->ReloadText();
    CResourceManager::GetInstance()->SetLanguage(L"en-US");
    CDialogBuilder builder;
    CPaintManagerUI pm;
    std::unique_ptr<CControlUI> label(
        builder.Create(L"<Label text=\"%[IDS_FIXTURE_GREETING]\" />", nullptr, nullptr, &pm));
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->GetText(), L"Hello");
    CResourceManager::GetInstance()->ReloadText();
    UseOffscreenToolkit();
}
