// The arithmetic of the usage bar.
#include <gtest/gtest.h>

#include "window/usage_bar.h"

TEST(UsageBar, SegmentsOwnTheirControlsInLegendOrder)
{
    const auto& segments = BarSegments();
    ASSERT_EQ(segments.size(), 5u);
    EXPECT_STREQ(segments[0].key, "backup");
    EXPECT_STREQ(segments[0].bar, L"pro_space_cloud_backup");
    EXPECT_STREQ(segments[0].swatch, L"control_cloud_backup");
    EXPECT_STREQ(segments[0].legendRow, L"hor_backup");
    EXPECT_STREQ(segments[0].legendText, L"text_cloud_backup");
    EXPECT_STREQ(segments[1].key, "drive");
    EXPECT_STREQ(segments[1].bar, L"pro_space_cloud_disk");
    EXPECT_STREQ(segments[1].legendRow, L"hor_disk");
    EXPECT_STREQ(segments[2].key, "photos");
    EXPECT_STREQ(segments[2].bar, L"pro_space_gallery");
    EXPECT_STREQ(segments[2].legendRow, L"hor_gallery");
    EXPECT_STREQ(segments[3].key, "other");
    EXPECT_STREQ(segments[3].bar, L"pro_space_app_data");
    EXPECT_STREQ(segments[3].legendRow, L"hor_app");
    EXPECT_STREQ(segments[4].key, "family");
    EXPECT_STREQ(segments[4].bar, L"pro_space_home");
    EXPECT_STREQ(segments[4].swatch, L"control_home");
    EXPECT_STREQ(segments[4].legendText, L"text_home");
    EXPECT_EQ(FindBarSegment("full"), nullptr);
    EXPECT_EQ(FindBarSegment("bkcolor"), nullptr);
    EXPECT_EQ(FindBarSegment("photos"), &segments[2]);
}

TEST(UsageBar, BackupLengthOneWidensToTwoAndRoundsByTwo)
{
    SIZE round{5, 5};
    EXPECT_EQ(ApplyFirstSegment(1, 2, 5, round), 2);
    EXPECT_EQ(round.cx, 2);
    EXPECT_EQ(round.cy, 5);
}

TEST(UsageBar, BackupLengthTwoKeepsItsWidthAndTheRound)
{
    SIZE round{4, 5};
    EXPECT_EQ(ApplyFirstSegment(2, 2, 5, round), 2);
    EXPECT_EQ(round.cx, 4);
}

TEST(UsageBar, BackupLengthThreeRoundsByThree)
{
    SIZE round{5, 5};
    EXPECT_EQ(ApplyFirstSegment(3, 2, 5, round), 3);
    EXPECT_EQ(round.cx, 3);
}

TEST(UsageBar, BackupLengthFiveOrMoreLeavesTheRoundOfAnEarlierLoad)
{
    SIZE round{3, 5};
    EXPECT_EQ(ApplyFirstSegment(5, 2, 5, round), 5);
    EXPECT_EQ(round.cx, 3);
    EXPECT_EQ(ApplyFirstSegment(300, 2, 5, round), 300);
    EXPECT_EQ(round.cx, 3);
}

TEST(UsageBar, BackupIsAlwaysTriedAsTheFirstSegment)
{
    EXPECT_TRUE(IsFirstSegment("backup", 3, 1.0f, false));
    EXPECT_TRUE(IsFirstSegment("backup", 3, 1.0f, true));
    EXPECT_FALSE(IsFirstSegment("backup", 0, 1.0f, false));
}

TEST(UsageBar, OtherGroupsAreFirstOnlyUntilAFirstSegmentWasChosen)
{
    EXPECT_TRUE(IsFirstSegment("family", 7, 1.0f, false));
    EXPECT_FALSE(IsFirstSegment("family", 7, 1.0f, true));
    EXPECT_FALSE(IsFirstSegment("photos", 0, 1.0f, false));
}

TEST(UsageBar, TheAlphabeticalWalkMakesFamilyFirstBeforePhotos)
{
    // Ascending keys as the window walks them: with no backup and no drive,
    // "family" is met before "photos" and takes the rounded corners.
    const std::map<std::string, long> lengths = {
        {"backup", 0}, {"drive", 0}, {"family", 10}, {"other", 4}, {"photos", 100}};
    bool set = false;
    std::string first;
    for (const auto& entry : lengths) {
        if (IsFirstSegment(entry.first, entry.second, 1.0f, set)) {
            if (first.empty())
                first = entry.first;
            set = true;
        }
    }
    EXPECT_EQ(first, "family");
}

TEST(UsageBar, TheAnimationHasThirtyOneFramesEndingAtTheWidth)
{
    EXPECT_EQ(AnimationValue(300, 1.0f, 0), 0);
    EXPECT_EQ(AnimationValue(300, 1.0f, 15), 150);
    EXPECT_EQ(AnimationValue(300, 1.0f, 30), 300);
}

TEST(UsageBar, SinglePrecisionStopsLengths63And125APixelShort)
{
    EXPECT_EQ(AnimationValue(63, 1.0f, 30), 62);
    EXPECT_EQ(AnimationValue(125, 1.0f, 30), 124);
    EXPECT_EQ(SegmentWidth(63, 1.0f), 63);
}

TEST(UsageBar, TheFrameCounterRunsThirtyOneTicksThenStartsOver)
{
    BarAnimationFrame().store(0);
    int ticks = 0;
    bool ended = false;
    while (!ended && ticks < 100) {
        ended = AdvanceBarFrame();
        ++ticks;
    }
    EXPECT_EQ(ticks, 31);
    EXPECT_EQ(BarAnimationFrame().load(), 0);
}

TEST(UsageBar, TheLegendTestReadsOnlyTheLow32Bits)
{
    EXPECT_FALSE(LegendRowVisible(0));
    EXPECT_TRUE(LegendRowVisible(1));
    EXPECT_FALSE(LegendRowVisible(4294967296ULL));
    EXPECT_FALSE(LegendRowVisible(3 * 4294967296ULL));
    EXPECT_TRUE(LegendRowVisible(4294967297ULL));
}

TEST(UsageBar, EveryLoadStartsTheAnimationUnlessOneRuns)
{
    EXPECT_TRUE(StartsAnimation({{"backup", 0}, {"bkcolor", 530}}, false));
    EXPECT_FALSE(StartsAnimation({{"backup", 0}, {"bkcolor", 530}}, true));
    EXPECT_FALSE(StartsAnimation({{"backup", 0}, {"bkcolor", 0}}, false));
}

TEST(UsageBar, ThaiSizesLoseEveryBlank)
{
    EXPECT_EQ(WithoutBlanks("1.5 GB"), "1.5GB");
    EXPECT_EQ(WithoutBlanks(" 2 0 0 GB "), "200GB");
}

TEST(UsageBar, Str2ClrSkipsOneHashAndReadsHex)
{
    EXPECT_EQ(ColorFromText(L"#FFE8F0FF"), 0xFFE8F0FFul);
    EXPECT_EQ(ColorFromText(L"FA2A2D"), 0xFA2A2Dul);
    EXPECT_EQ(ColorFromText(L"#226BFF"), 0x226BFFul);
    EXPECT_EQ(ColorFromText(L""), 0ul);
}

TEST(UsageBar, TheQuotaLinePutsUsedThenTotalIntoPositionalPlaceholders)
{
    EXPECT_EQ(QuotaLineText(L"%1$s of %2$s used", L"1.5 GB", L"50 GB"), L"1.5 GB of 50 GB used");
    // The order of the two values is fixed, whatever the template says.
    EXPECT_EQ(QuotaLineText(L"%2$s total, %1$s used", L"1.5 GB", L"50 GB"), L"1.5 GB total, 50 GB used");
    EXPECT_EQ(QuotaLineText(L"Used %s / %s (100%%)", L"", L""), L"Used  /  (100%)");
}

TEST(UsageBar, TheQuotaLineFitsItsBufferOf260Characters)
{
    const std::wstring line = QuotaLineText(std::wstring(300, L'x') + L"%1$s", L"a", L"b");
    EXPECT_EQ(line.size(), 259u);
}
