#include <gtest/gtest.h>

#include <cmath>

#include "foundation/utilities.h"
#include "host/host_config.h"

namespace {

// Sets the decimal-comma rule for one test and restores the defaults after.
class CommaCountry
{
public:
    explicit CommaCountry(bool replace)
    {
        host::HostConfig config = host::DefaultHostConfig();
        config.replaceCommaCountry = replace;
        host::SetCurrentHostConfig(config);
    }
    ~CommaCountry() { host::SetCurrentHostConfig(host::DefaultHostConfig()); }
};

} // namespace

TEST(FormatFixed2, TwoDecimals)
{
    EXPECT_EQ(FormatFixed2(0), "0.00");
    EXPECT_EQ(FormatFixed2(1.005), "1.00"); // 1.005 is stored just below
    EXPECT_EQ(FormatFixed2(2.675), "2.67");
    EXPECT_EQ(FormatFixed2(1234.5), "1234.50");
    EXPECT_EQ(FormatFixed2(-0.125), "-0.12");
}

TEST(FormatFixed2, TooLongForTheBufferIsCut)
{
    // 2^200 has 61 integer digits; the buffer holds 49 and the terminator.
    const std::string text = FormatFixed2(std::ldexp(1.0, 200));
    EXPECT_EQ(text, "1606938044258990275541962092341162602522202993782");
}

TEST(GroupThousands, BelowAThousandKeepsSixDecimals)
{
    EXPECT_EQ(GroupThousands(999.5), "999.500000");
    EXPECT_EQ(GroupThousands(0), "0.000000");
    EXPECT_EQ(GroupThousands(-999.25), "-999.250000");
}

TEST(GroupThousands, OneCommaAndTwoDecimals)
{
    EXPECT_EQ(GroupThousands(1000), "1,000.00");
    EXPECT_EQ(GroupThousands(1023), "1,023.00");
    EXPECT_EQ(GroupThousands(12345.678), "12,345.67");
}

TEST(GroupThousands, GroupingStopsAtOneComma)
{
    EXPECT_EQ(GroupThousands(1234567.25), "1234,567.25");
}

TEST(GroupThousands, NegativeValuesKeepTheirSign)
{
    EXPECT_EQ(GroupThousands(-1234.5), "-1,234.50");
}

TEST(FormatSizeGrouped, UnderAThousandBytes)
{
    EXPECT_EQ(FormatSizeGrouped(0), "0.00 B");
    EXPECT_EQ(FormatSizeGrouped(999), "999.00 B");
}

TEST(FormatSizeGrouped, ThousandTwentyThreeBytesIsGrouped)
{
    EXPECT_EQ(FormatSizeGrouped(1023), "1,023.00 B");
}

TEST(FormatSizeGrouped, StepsOf1024)
{
    EXPECT_EQ(FormatSizeGrouped(1024), "1.00 KB");
    EXPECT_EQ(FormatSizeGrouped(1536.0 * 1024), "1.50 MB");
    EXPECT_EQ(FormatSizeGrouped(3.0 * 1024 * 1024 * 1024), "3.00 GB");
}

TEST(FormatSizeGrouped, GigabytesAreTheLargestUnit)
{
    EXPECT_EQ(FormatSizeGrouped(2048.0 * 1024 * 1024 * 1024), "2,048.00 GB");
}

TEST(FormatSizeGrouped, BetweenNineHundredNinetyNineAndAThousandKeepsSixDecimals)
{
    EXPECT_EQ(FormatSizeGrouped(999.5 * 1024), "999.500000 KB");
}

TEST(FormatSizeGrouped, DecimalPointIsNotLocalised)
{
    CommaCountry comma(true);
    EXPECT_EQ(FormatSizeGrouped(1536), "1.50 KB");
}

TEST(FormatSizeText, ExactlyNineHundredStaysInBytes)
{
    EXPECT_EQ(FormatSizeText(900), "900.00 B");
}

TEST(FormatSizeText, NineHundredAndOneBytesReadsKilobytes)
{
    EXPECT_EQ(FormatSizeText(901), "0.88 KB");
}

TEST(FormatSizeText, AtMostThreeSteps)
{
    EXPECT_EQ(FormatSizeText(901.0 * 1024), "0.88 MB");
    EXPECT_EQ(FormatSizeText(5000.0 * 1024 * 1024 * 1024), "5000.00 GB");
}

TEST(FormatSizeText, CommaCountryWritesADecimalComma)
{
    CommaCountry comma(true);
    EXPECT_EQ(FormatSizeText(1536), "1,50 KB");
}

TEST(FormatSizeText, WithoutConfigurationThePointStays)
{
    CommaCountry comma(false);
    EXPECT_EQ(FormatSizeText(1536), "1.50 KB");
}
