#include <gtest/gtest.h>

#include <stdexcept>

#include "window/size_texts.h"
#include "window_test_texts.h"

using window_test::Texts;

TEST(FormatSize, DropsTrailingZerosAfterThePoint)
{
    EXPECT_EQ(TidySizeText("1.50 GB", L"en-US"), "1.5 GB");
    EXPECT_EQ(TidySizeText("10.00 KB", L"en-US"), "10 KB");
    EXPECT_EQ(TidySizeText("0.88 KB", L"en-US"), "0.88 KB");
}

TEST(FormatSize, DropsThePointWhenNothingFollowsIt)
{
    EXPECT_EQ(TidySizeText("2.00 GB", L"en-US"), "2 GB");
    EXPECT_EQ(TidySizeText("0.00 B", L"en-US"), "0 B");
}

TEST(FormatSize, LeavesATextWithoutAPointAsItIs)
{
    EXPECT_EQ(TidySizeText("900 B", L"en-US"), "900 B");
    EXPECT_EQ(TidySizeText("", L"en-US"), "");
}

TEST(FormatSize, KeepsTheZerosOfADecimalComma)
{
    EXPECT_EQ(TidySizeText("1,50 GB", L"ru-RU"), "1,50 GB");
}

TEST(FormatSize, ThaiJoinsNumberAndUnitWithoutABlank)
{
    EXPECT_EQ(TidySizeText("1.50 GB", L"th-TH"), "1.5GB");
    EXPECT_EQ(TidySizeText("2.00 MB", L"th-TH"), "2MB");
}

TEST(FormatSize, ThaiStripsControlCharactersAtTheEnds)
{
    EXPECT_EQ(TidySizeText("\x01"
                           "1.50 GB\x1d",
                           L"th-TH"),
              "1.5GB");
    // Other languages keep them.
    EXPECT_EQ(TidySizeText("1.50 GB\x1d", L"en-US"), "1.5 GB\x1d");
}

TEST(FormatSize, APointWithoutABlankIsAnOutOfRangeError)
{
    EXPECT_THROW(TidySizeText("1.50GB", L"en-US"), std::out_of_range);
}

TEST(SizeDisplayText, FormatsBytesTheWayTheListShowsThem)
{
    EXPECT_EQ(SizeDisplayText(0, L"en-US"), L"0 B");
    EXPECT_EQ(SizeDisplayText(900, L"en-US"), L"900 B");
    EXPECT_EQ(SizeDisplayText(1.5 * 1024 * 1024 * 1024, L"en-US"), L"1.5 GB");
    EXPECT_EQ(SizeDisplayText(2.0 * 1024 * 1024, L"th-TH"), L"2MB");
}

TEST(UnitTexts, DeleteEveryPlaceholderFromThePluralText)
{
    const auto texts = Texts({{L"IDS_SPACEMANAGEMENT_UNIT_STRIPES_OTHER", L"%d items (%d)"}});
    EXPECT_EQ(StripesUnit(texts, 5), L" items ()");
}

TEST(UnitTexts, RussianTakesTheOneFormFor21AndTheOtherFormFor11)
{
    const auto texts = Texts({{L"IDS_SPACEMANAGEMENT_UNIT_STRIPES_ONE", L" запись"},
                              {L"IDS_SPACEMANAGEMENT_UNIT_STRIPES_OTHER", L" записей"}},
                             L"ru-RU");
    EXPECT_EQ(StripesUnit(texts, 21), L" запись");
    EXPECT_EQ(StripesUnit(texts, 11), L" записей");
}

TEST(UnitTexts, EnglishAndThaiTakeTheOneFormForZero)
{
    EXPECT_EQ(StripesUnit(Texts({}, L"en-US"), 0), L"<IDS_SPACEMANAGEMENT_UNIT_STRIPES_ONE>");
    EXPECT_EQ(StripesUnit(Texts({}, L"th-TH"), 0), L"<IDS_SPACEMANAGEMENT_UNIT_STRIPES_ONE>");
    EXPECT_EQ(StripesUnit(Texts({}, L"zh-CN"), 2), L"<IDS_SPACEMANAGEMENT_UNIT_STRIPES_OTHER>");
}

TEST(UnitTexts, TheCloudBackupRowCountsWithNumUnitsAndTheOthersWithCloudBackNumUnits)
{
    // The key names read the wrong way round, and stay so.
    EXPECT_EQ(ItemUnit(Texts(), CloudBackUp, 3), L"<IDS_SPACEMANAGEMENT_NUMUNITS_OTHER>");
    EXPECT_EQ(ItemUnit(Texts(), Message, 3), L"<IDS_SPACEMANAGEMENT_CLOUDBACKNUMUNITS_OTHER>");
    EXPECT_EQ(ItemUnit(Texts(), Recorder, 1), L"<IDS_SPACEMANAGEMENT_CLOUDBACKNUMUNITS_ONE>");
}
