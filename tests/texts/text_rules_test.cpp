// Each rule on texts accepts a text that fits and names what is wrong with
// one that does not.
#include <gtest/gtest.h>

#include "text_rules.h"

using namespace texts;

TEST(TextRules, PlainBlanksBetweenWordsAreFine)
{
    EXPECT_EQ(WhitespaceProblem(L"Delete all"), L"");
    EXPECT_EQ(WhitespaceProblem(L"ใช้ไป %1$s จาก %2$s"), L"");
    EXPECT_EQ(WhitespaceProblem(L""), L"");
}

TEST(TextRules, StrayWhitespaceIsFound)
{
    EXPECT_EQ(WhitespaceProblem(L" Delete"), L"starts or ends with a blank");
    EXPECT_EQ(WhitespaceProblem(L"Delete "), L"starts or ends with a blank");
    EXPECT_EQ(WhitespaceProblem(L"Delete  all"), L"holds two blanks in a row");
    EXPECT_EQ(WhitespaceProblem(L"Delete\tall"), L"holds a space character other than the plain blank");
    EXPECT_EQ(WhitespaceProblem(L"Delete\u00A0all"), L"holds a space character other than the plain blank");
    EXPECT_EQ(WhitespaceProblem(L"Delete\u200Ball"), L"holds a space character other than the plain blank");
    EXPECT_EQ(WhitespaceProblem(L"Delete\nall"), L"holds a space character other than the plain blank");
    EXPECT_EQ(WhitespaceProblem(L"Delete\x01"
                                L"all"),
              L"holds a control character");
}

TEST(TextRules, TheQuotaLineNeedsTheUsedSizeBeforeTheTotal)
{
    EXPECT_EQ(UsedOfTotalProblem(L"%1$s of %2$s used"), L"");
    EXPECT_NE(UsedOfTotalProblem(L"%2$s total, %1$s used"), L"");
    EXPECT_NE(UsedOfTotalProblem(L"%s of %s used"), L"");
    EXPECT_NE(UsedOfTotalProblem(L"%1$s used"), L"");
}

TEST(TextRules, TheQuotaLineHoldsNothingTheWindowWouldRewrite)
{
    EXPECT_NE(UsedOfTotalProblem(L"%1$s of %2$s used (100%%)"), L"");
    EXPECT_NE(UsedOfTotalProblem(L"%1$s of %2$s used, 1$ a month"), L"");
    EXPECT_NE(UsedOfTotalProblem(L"%1$s of %2$s used."), L"");
}

TEST(TextRules, TheBackupDetailNeedsExactlyOneStringPlaceholder)
{
    EXPECT_EQ(SingleStringPlaceholderProblem(L"The backup of %s will be deleted."), L"");
    EXPECT_NE(SingleStringPlaceholderProblem(L"The backup will be deleted."), L"");
    EXPECT_NE(SingleStringPlaceholderProblem(L"%s: the backup of %s will be deleted."), L"");
    EXPECT_NE(SingleStringPlaceholderProblem(L"The backup of %d will be deleted."), L"");
    EXPECT_NE(SingleStringPlaceholderProblem(L"The backup of %s (100%) will be deleted."), L"");
}

TEST(TextRules, AUnitStartsWithItsCountAndNamesAWord)
{
    EXPECT_EQ(UnitProblem(L"%d items"), L"");
    EXPECT_EQ(UnitProblem(L"%d 条"), L"");
    EXPECT_EQ(UnitProblem(L"%d条"), L"");
    EXPECT_NE(UnitProblem(L"items"), L"");
    EXPECT_NE(UnitProblem(L"共%d条"), L"");
    EXPECT_NE(UnitProblem(L"%d"), L"");
    EXPECT_NE(UnitProblem(L"%d  items"), L"");
    EXPECT_NE(UnitProblem(L"%d items of %d"), L"");
    EXPECT_NE(UnitProblem(L"%d%% items"), L"");
}

TEST(TextRules, ATitleBeforeAValueHasNoColon)
{
    EXPECT_EQ(TitleProblem(L"In the cloud"), L"");
    EXPECT_NE(TitleProblem(L"In the cloud:"), L"");
    EXPECT_NE(TitleProblem(L"云端已存："), L"");
    EXPECT_NE(TitleProblem(L"In the cloud %s"), L"");
}

TEST(TextRules, APlainTextHoldsNoPercentSign)
{
    EXPECT_EQ(PlainTextProblem(L"Delete all"), L"");
    EXPECT_NE(PlainTextProblem(L"Delete %d items"), L"");
}

TEST(TextRules, TheLegendOffsetIsEmptyOrASmallWholeNumber)
{
    EXPECT_EQ(LegendOffsetProblem(L""), L"");
    EXPECT_EQ(LegendOffsetProblem(L"0"), L"");
    EXPECT_EQ(LegendOffsetProblem(L"12"), L"");
    EXPECT_EQ(LegendOffsetProblem(L"-4"), L"");
    EXPECT_NE(LegendOffsetProblem(L"-"), L"");
    EXPECT_NE(LegendOffsetProblem(L"120"), L"");
    EXPECT_NE(LegendOffsetProblem(L"4px"), L"");
    EXPECT_NE(LegendOffsetProblem(L" 4"), L"");
}
