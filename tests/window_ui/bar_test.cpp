// The usage bar and its legend in the window: the numbers of a load, as
// spacemgm-cloud gives them or as a load thread would post them.
#include <gtest/gtest.h>

#include "space_window_session.h"
#include "window/usage_bar.h"

namespace {

using namespace window_ui;

constexpr unsigned long long kGiB = 1024ULL * 1024 * 1024;

std::map<std::string, unsigned long long> DefaultColors()
{
    return {{"backup", 0xFF00BFC9}, {"drive", 0xFF007DFF}, {"photos", 0xFF47CC47}, {"other", 0xFFFFBF00},
            {"family", 0xFFFF7500}, {"full", 0xFFFA2A2D},  {"bkcolor", 0xFFF2F2F2}};
}

// What a load thread posts, with every group at `length` unless given.
struct Display
{
    std::map<std::string, long> lengths{{"backup", 0}, {"drive", 0}, {"photos", 0},   {"other", 0},
                                        {"family", 0}, {"full", 0},  {"bkcolor", 530}};
    std::map<std::string, unsigned long long> storage{
        {"backup", 0}, {"drive", 0}, {"photos", 0}, {"other", 0}, {"family", 0}};
    std::map<std::string, unsigned long long> colors = DefaultColors();
    std::string used = "0 B";
    std::string total = "50 GB";
};

// Posts the numbers as a load thread does and waits for the animation's end.
void Post(SpaceWindowSession& session, const Display& display)
{
    auto data = std::make_unique<SpaceDisplayData>();
    data->lengthOfItems = display.lengths;
    data->storageOfType = display.storage;
    data->colorInfo = display.colors;
    data->used = display.used;
    data->total = display.total;
    ASSERT_TRUE(::PostMessageW(session.hwnd(), WM_SPACE_SHOW_CLOUD, 0, reinterpret_cast<LPARAM>(data.get())));
    data.release();
    uitest::PumpPending();
    ASSERT_TRUE(uitest::PumpUntil([&] { return !session.window().IsBarAnimating(); }, 3000));
}

CProgressUI* Bar(SpaceWindowSession& session, const wchar_t* name)
{
    return session.Find<CProgressUI>(name);
}

// An account with no backup and no drive: photos and family only.
std::string PhotosAndFamilyAccount()
{
    return MakeFixture("photos-and-family", [](Json::Value& account) {
        account["quota"]["total"] = Json::UInt64(200 * kGiB);
        account["quota"]["family"] = Json::UInt64(10 * kGiB);
        account["gallery"]["bytes"] = Json::UInt64(60 * kGiB);
    });
}

} // namespace

TEST(UsageBar, AllGroupLengthsZeroShowNoSegmentNoSwatchButStillTheQuotaLine)
{
    SpaceWindowSession session;
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    Display display;
    display.used = "0 B";
    display.total = "50 GB";
    Post(session, display);
    for (const BarSegment& segment : BarSegments()) {
        EXPECT_FALSE(session.Shown(segment.bar)) << segment.key;
        EXPECT_FALSE(session.Shown(segment.swatch)) << segment.key;
    }
    EXPECT_FALSE(session.Shown(kFullBar));
    const std::wstring line = session.TextOf(L"lb_space_info");
    EXPECT_NE(line.find(L"0 B"), std::wstring::npos);
    EXPECT_NE(line.find(L"50 GB"), std::wstring::npos);
    // The timer ran its 31 ticks and stopped.
    EXPECT_EQ(BarAnimationFrame().load(), 0);
}

TEST(UsageBar, TheAnimationTakesThirtyOneTicks)
{
    SpaceWindowSession session;
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    int ticks = 0;
    struct TickCounter : IMessageFilterUI
    {
        int* ticks;
        LRESULT MessageHandler(UINT uMsg, WPARAM wParam, LPARAM, bool&) override
        {
            if (uMsg == WM_TIMER && wParam == SPACE_BAR_TIMER)
                ++*ticks;
            return 0;
        }
    } counter;
    counter.ticks = &ticks;
    session.pm().AddPreMessageFilter(&counter);
    Display display;
    display.lengths["backup"] = 63;
    Post(session, display);
    session.pm().RemovePreMessageFilter(&counter);
    EXPECT_EQ(ticks, 31);
    // The last frame stops a pixel short of 63, and nothing corrects it.
    EXPECT_EQ(Bar(session, L"pro_space_cloud_backup")->GetFixedWidth(), 63);
    EXPECT_EQ(Bar(session, L"pro_space_cloud_backup")->GetValue(), 62);
}

TEST(UsageBar, TheFullAccountShowsOnlyTheFullSegmentAndTheWarning)
{
    SpaceWindowSession session(SessionOptions::Fixture("full"));
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    EXPECT_TRUE(session.Shown(kFullBar));
    // 10 MiB short of the quota: 529.96 pixels, cut to 529.
    EXPECT_EQ(Bar(session, kFullBar)->GetFixedWidth(), 529);
    EXPECT_EQ(Bar(session, kFullBar)->GetValue(), 529);
    EXPECT_EQ(Bar(session, kFullBar)->GetForeColor(), 0xFFFA2A2Du);
    for (const BarSegment& segment : BarSegments())
        EXPECT_FALSE(session.Shown(segment.bar)) << segment.key;
    EXPECT_TRUE(session.Shown(L"spaceFullTips"));
    EXPECT_FALSE(session.Shown(L"hor_block_display"));
}

TEST(UsageBar, AFullLengthWithTheOtherGroupsAtZeroShowsTheWarningInsteadOfTheLegend)
{
    SpaceWindowSession session;
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    Display display;
    display.lengths["full"] = 530;
    Post(session, display);
    EXPECT_TRUE(session.Shown(kFullBar));
    EXPECT_TRUE(session.Shown(L"spaceFullTips"));
    EXPECT_FALSE(session.Shown(L"hor_block_display"));
    EXPECT_EQ(Bar(session, kFullBar)->GetBorderRound().cx, 5);
}

TEST(UsageBar, AFullColourWithoutAFullLengthHidesTheFullSegmentAndShowsTheLegend)
{
    SpaceWindowSession session(SessionOptions::Fixture("full"));
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    ASSERT_TRUE(session.Shown(kFullBar));
    Display display;
    display.lengths.erase("full");
    display.lengths["drive"] = 40;
    Post(session, display);
    EXPECT_FALSE(session.Shown(kFullBar));
    EXPECT_FALSE(session.Shown(L"spaceFullTips"));
    EXPECT_TRUE(session.Shown(L"hor_block_display"));
}

TEST(UsageBar, BackupLengthOneWidensToTwoAndRoundsByTwo)
{
    SpaceWindowSession session;
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    Display display;
    display.lengths["backup"] = 1;
    Post(session, display);
    CProgressUI* backup = Bar(session, L"pro_space_cloud_backup");
    EXPECT_EQ(backup->GetFixedWidth(), 2);
    EXPECT_EQ(backup->GetValue(), 2);
    EXPECT_EQ(backup->GetBorderRound().cx, 2);
    EXPECT_EQ(backup->GetRoundRectDirection(), 1);
}

TEST(UsageBar, BackupLengthTwoKeepsItsWidthAndTheRoundOfTheLoadBefore)
{
    SpaceWindowSession session;
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    Display display;
    display.lengths["backup"] = 3;
    Post(session, display);
    display.lengths["backup"] = 2;
    Post(session, display);
    CProgressUI* backup = Bar(session, L"pro_space_cloud_backup");
    EXPECT_EQ(backup->GetFixedWidth(), 2);
    EXPECT_EQ(backup->GetBorderRound().cx, 3);
}

TEST(UsageBar, BackupLengthThreeRoundsByThree)
{
    SpaceWindowSession session;
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    Display display;
    display.lengths["backup"] = 3;
    Post(session, display);
    CProgressUI* backup = Bar(session, L"pro_space_cloud_backup");
    EXPECT_EQ(backup->GetFixedWidth(), 3);
    EXPECT_EQ(backup->GetBorderRound().cx, 3);
}

TEST(UsageBar, BackupLengthFiveOrMoreLeavesTheRoundAsItWas)
{
    SpaceWindowSession session;
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    // The sample account's own backup segment is wide: the round stays 5.
    EXPECT_EQ(Bar(session, L"pro_space_cloud_backup")->GetBorderRound().cx, 5);
    Display display;
    display.lengths["backup"] = 4;
    Post(session, display);
    display.lengths["backup"] = 5;
    Post(session, display);
    EXPECT_EQ(Bar(session, L"pro_space_cloud_backup")->GetBorderRound().cx, 4);
    display.lengths["backup"] = 200;
    Post(session, display);
    EXPECT_EQ(Bar(session, L"pro_space_cloud_backup")->GetFixedWidth(), 200);
    EXPECT_EQ(Bar(session, L"pro_space_cloud_backup")->GetBorderRound().cx, 4);
}

TEST(UsageBar, WithNoBackupAndNoDriveTheFamilySegmentIsRoundedEvenRightOfPhotos)
{
    SessionOptions options;
    options.fixture = PhotosAndFamilyAccount();
    SpaceWindowSession session(options);
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    CProgressUI* family = Bar(session, L"pro_space_home");
    CProgressUI* photos = Bar(session, L"pro_space_gallery");
    ASSERT_TRUE(session.Shown(L"pro_space_home"));
    ASSERT_TRUE(session.Shown(L"pro_space_gallery"));
    EXPECT_EQ(family->GetRoundRectDirection(), 1);
    EXPECT_EQ(family->GetBorderRound().cx, 5);
    EXPECT_EQ(photos->GetRoundRectDirection(), 0);
    EXPECT_EQ(photos->GetBorderRound().cx, 0);
    // The bar runs left to right backup, drive, photos, other, family.
    EXPECT_LT(photos->GetX(), family->GetX());
}

TEST(UsageBar, OnceAFirstSegmentWasChosenOnlyBackupIsRoundedAgain)
{
    SpaceWindowSession session;
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    Display display;
    display.lengths["photos"] = 100;
    Post(session, display);
    EXPECT_EQ(Bar(session, L"pro_space_gallery")->GetRoundRectDirection(), 0);
}

TEST(UsageBar, ThaiShowsTheSizesOfTheQuotaLineWithoutBlanks)
{
    SessionOptions options;
    options.language = L"th-TH";
    SpaceWindowSession session(options);
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    Display display;
    display.used = "1.50 GB";
    display.total = "50 GB";
    display.lengths["backup"] = 16;
    Post(session, display);
    const std::wstring line = session.TextOf(L"lb_space_info");
    EXPECT_NE(line.find(L"1.50GB"), std::wstring::npos) << attr::Narrow(line);
    EXPECT_NE(line.find(L"50GB"), std::wstring::npos) << attr::Narrow(line);
    EXPECT_EQ(line.find(L"1.50 GB"), std::wstring::npos);
}

TEST(UsageBar, AGroupOfExactly4GiBHidesItsLegendRow)
{
    SessionOptions options;
    options.fixture = MakeFixture("family-4gib", [](Json::Value& account) {
        account["quota"]["total"] = Json::UInt64(200 * kGiB);
        account["quota"]["family"] = Json::UInt64(4 * kGiB);
        account["gallery"]["bytes"] = Json::UInt64(kGiB);
    });
    SpaceWindowSession session(options);
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    // 4 GiB reads as empty in the 32-bit test; the bar still shows it.
    EXPECT_FALSE(session.Shown(L"hor_home"));
    EXPECT_TRUE(session.Shown(L"pro_space_home"));
    EXPECT_TRUE(session.Shown(L"hor_gallery"));
    EXPECT_FALSE(session.Shown(L"hor_backup"));
}

TEST(UsageBar, AGroupMissingFromTheColoursIsNotTouchedByTheLoad)
{
    SpaceWindowSession session;
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    CProgressUI* backup = Bar(session, L"pro_space_cloud_backup");
    const int width = backup->GetFixedWidth();
    const DWORD color = backup->GetForeColor();
    ASSERT_GT(width, 0);
    Display display;
    display.colors.erase("backup");
    display.lengths["backup"] = width + 50;
    display.lengths["drive"] = 30;
    Post(session, display);
    EXPECT_EQ(backup->GetFixedWidth(), width);
    EXPECT_EQ(backup->GetForeColor(), color);
    EXPECT_TRUE(session.Shown(L"pro_space_cloud_backup"));
    EXPECT_EQ(Bar(session, L"pro_space_cloud_disk")->GetFixedWidth(), 30);
}

TEST(UsageBar, SegmentsTakeTheColoursOfTheOperationsConfiguration)
{
    SpaceWindowSession session;
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    // The sample account's "SpaceOMConfig.json" recolours every group.
    EXPECT_EQ(Bar(session, L"pro_space_cloud_backup")->GetForeColor(), 0xFF0A9BD4u);
    EXPECT_EQ(session.Control(L"control_cloud_backup")->GetBkColor(), 0xFF0A9BD4u);
    EXPECT_EQ(Bar(session, L"pro_space_home")->GetForeColor(), 0xFFE8643Au);
    int total = 0;
    for (const BarSegment& segment : BarSegments())
        total += Bar(session, segment.bar)->IsVisible() ? Bar(session, segment.bar)->GetFixedWidth() : 0;
    EXPECT_GT(total, 300);
    EXPECT_LE(total, 530);
}

TEST(UsageBar, TheFrameCounterOutlivesAWindowAndTheNextAnimationStartsThere)
{
    SpaceWindowSession session;
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    auto data = std::make_unique<SpaceDisplayData>();
    data->lengthOfItems = {{"backup", 300}, {"bkcolor", 530}};
    data->colorInfo = DefaultColors();
    data->total = "50 GB";
    ::PostMessageW(session.hwnd(), WM_SPACE_SHOW_CLOUD, 0, reinterpret_cast<LPARAM>(data.release()));
    ASSERT_TRUE(uitest::PumpUntil([] { return BarAnimationFrame().load() >= 10; }, 2000));
    session.CloseWindow();
    const int left = BarAnimationFrame().load();
    EXPECT_GE(left, 10);
    uitest::Pump(50);
    EXPECT_EQ(BarAnimationFrame().load(), left);

    // A second window over the same view model: its first tick draws frame `left`.
    SpaceMgmWnd second(nullptr, session.sharedViewModel());
    struct FirstTick : IMessageFilterUI
    {
        CPaintManagerUI* pm;
        int value = -1;
        LRESULT MessageHandler(UINT uMsg, WPARAM wParam, LPARAM, bool&) override
        {
            if (uMsg == WM_TIMER && wParam == SPACE_BAR_TIMER && value < 0) {
                auto* bar = dynamic_cast<CProgressUI*>(pm->FindControl(L"pro_space_cloud_backup"));
                value = bar != nullptr ? bar->GetValue() : -2;
            }
            return 0;
        }
    } firstTick;
    ASSERT_NE(second.Create(nullptr, L"second", 0, 0, 0, 0, 0, 0), nullptr);
    firstTick.pm = &second.GetPaintManager();
    second.GetPaintManager().AddPreMessageFilter(&firstTick);
    ASSERT_TRUE(uitest::PumpUntil([&] { return firstTick.value >= 0; }, 20000));
    auto* bar = dynamic_cast<CProgressUI*>(second.GetPaintManager().FindControl(L"pro_space_cloud_backup"));
    const int width = bar->GetFixedWidth();
    EXPECT_EQ(firstTick.value, AnimationValue(width, 1.0f, left));
    second.GetPaintManager().RemovePreMessageFilter(&firstTick);
    second.Close(1);
    uitest::PumpUntil([&] { return second.GetHWND() == nullptr; }, 5000);
}
