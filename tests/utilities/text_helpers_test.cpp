#include <gtest/gtest.h>

#include <cstring>

#include "foundation/utilities.h"

struct PluralRow
{
    const wchar_t* language;
    int count;
    const wchar_t* expected;
};

class PluralKeyTable : public ::testing::TestWithParam<PluralRow>
{
};

TEST_P(PluralKeyTable, ChoosesTheSuffix)
{
    const PluralRow& row = GetParam();
    EXPECT_EQ(PluralKey(row.language, row.count, L"IDS_ITEMS"), std::wstring(L"IDS_ITEMS") + row.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Russian, PluralKeyTable,
    ::testing::Values(PluralRow{L"ru-RU", 1, L"_ONE"}, PluralRow{L"ru-RU", 2, L"_FEW"},
                      PluralRow{L"ru-RU", 3, L"_FEW"}, PluralRow{L"ru-RU", 4, L"_FEW"},
                      PluralRow{L"ru-RU", 5, L"_MANY"}, PluralRow{L"ru-RU", 0, L"_MANY"},
                      PluralRow{L"ru-RU", 11, L"_OTHER"}, PluralRow{L"ru-RU", 12, L"_OTHER"},
                      PluralRow{L"ru-RU", 13, L"_OTHER"}, PluralRow{L"ru-RU", 14, L"_OTHER"},
                      PluralRow{L"ru-RU", 15, L"_MANY"}, PluralRow{L"ru-RU", 21, L"_ONE"},
                      PluralRow{L"ru-RU", 22, L"_FEW"}, PluralRow{L"ru-RU", 111, L"_OTHER"},
                      PluralRow{L"ru-RU", 112, L"_OTHER"}, PluralRow{L"ru-RU", 101, L"_ONE"},
                      PluralRow{L"ru-RU", 1000, L"_MANY"}));

INSTANTIATE_TEST_SUITE_P(OtherLanguages, PluralKeyTable,
                         ::testing::Values(PluralRow{L"en-US", 0, L"_ONE"}, PluralRow{L"en-US", 1, L"_ONE"},
                                           PluralRow{L"en-US", 2, L"_OTHER"},
                                           PluralRow{L"en-US", -3, L"_ONE"},
                                           PluralRow{L"de-DE", 21, L"_OTHER"}, PluralRow{L"", 1, L"_ONE"}));

TEST(PluralKey, RussianElevenTakesOther)
{
    EXPECT_EQ(PluralKey(L"ru-RU", 11, L"K"), L"K_OTHER");
}

TEST(PluralKey, LowerCaseRussianIsNotRussian)
{
    EXPECT_EQ(PluralKey(L"ru-ru", 5, L"K"), L"K_OTHER");
    EXPECT_EQ(PluralKey(L"ru-ru", 1, L"K"), L"K_ONE");
    EXPECT_EQ(PluralKey(L"ru-RU", 5, L"K"), L"K_MANY");
}

TEST(UrlEncode, SpaceBecomesPercent20NeverPlus)
{
    EXPECT_EQ(UrlEncode(" "), "%20");
}

TEST(UrlEncode, TildeIsEncodedInLowerCase)
{
    EXPECT_EQ(UrlEncode("~"), "%7e");
}

TEST(UrlEncode, UnreservedCharactersStayAndOthersAreEscaped)
{
    EXPECT_EQ(UrlEncode("AZaz09*-._"), "AZaz09*-._");
    EXPECT_EQ(UrlEncode("a/b?c=d&e+f"), "a%2fb%3fc%3dd%26e%2bf");
    EXPECT_EQ(UrlEncode("\xE4\xBA\x91"), "%e4%ba%91");
    EXPECT_EQ(UrlEncode(std::string("\0", 1)), "%00");
    EXPECT_EQ(UrlEncode(""), "");
}

TEST(Base64Encode, Rfc4648TestVectors)
{
    const std::pair<const char*, const char*> vectors[] = {
        {"", ""},
        {"f", "Zg=="},
        {"fo", "Zm8="},
        {"foo", "Zm9v"},
        {"foob", "Zm9vYg=="},
        {"fooba", "Zm9vYmE="},
        {"foobar", "Zm9vYmFy"},
    };
    for (const auto& [input, expected] : vectors) {
        EXPECT_EQ(Base64Encode(input, static_cast<int>(std::strlen(input))), expected) << input;
    }
}

TEST(Base64Encode, UsesPlusAndSlashOfTheStandardAlphabet)
{
    const unsigned char bytes[] = {0xFB, 0xFF, 0xBF};
    EXPECT_EQ(Base64Encode(bytes, 3), "+/+/");
    EXPECT_EQ(Base64Encode(bytes, 0), "");
}

TEST(ReplaceNoCase, MatchesIgnoringCaseAndKeepsTheRest)
{
    std::string text = "Token=ABC; token=abc; TOKEN=x";
    ReplaceNoCase("token", "t", text);
    EXPECT_EQ(text, "t=ABC; t=abc; t=x");
}

TEST(ReplaceNoCase, InsertedTextIsNotSearchedAgain)
{
    std::string text = "aXa";
    ReplaceNoCase("a", "aa", text);
    EXPECT_EQ(text, "aaXaa");
    std::string grow = "AbAb";
    ReplaceNoCase("ab", "abab", grow);
    EXPECT_EQ(grow, "ababab"
                    "ab");
}

TEST(ReplaceNoCase, EmptyFromOrTextDoesNothing)
{
    std::string text = "abc";
    ReplaceNoCase("", "x", text);
    EXPECT_EQ(text, "abc");
    std::string empty;
    ReplaceNoCase("a", "x", empty);
    EXPECT_EQ(empty, "");
}

TEST(ReplaceNoCase, ShorterReplacementAndRemoval)
{
    std::string text = "Hello World hello";
    ReplaceNoCase("HELLO", "", text);
    EXPECT_EQ(text, " World ");
}

TEST(ReplaceNoCase, WideTwinTakesTheSameOrderOfArguments)
{
    std::wstring text = L"Bearer TOKEN and bearer token";
    ReplaceNoCase(std::wstring(L"bearer "), std::wstring(L""), text);
    EXPECT_EQ(text, L"TOKEN and token");
}

TEST(SplitByAny, FirstDelimiterOfTheListThatOccursWins)
{
    std::vector<std::string> out = {"stale"};
    SplitByAny("a;b,c;d", {";", ","}, out);
    // ";" occurs, so it is used even though "," occurs before the second ";".
    EXPECT_EQ(out, (std::vector<std::string>{"a", "b,c", "d"}));
}

TEST(SplitByAny, LaterDelimiterUsedOnceTheFirstNoLongerOccurs)
{
    std::vector<std::string> out;
    SplitByAny("a;b,c,d", {";", ","}, out);
    EXPECT_EQ(out, (std::vector<std::string>{"a", "b", "c", "d"}));
}

TEST(SplitByAny, TrailingDelimiterAddsNoEmptyElement)
{
    std::vector<std::string> out;
    SplitByAny("a,b,", {","}, out);
    EXPECT_EQ(out, (std::vector<std::string>{"a", "b"}));
}

TEST(SplitByAny, EmptyDelimiterIsSkippedAndInnerEmptiesStay)
{
    std::vector<std::string> out;
    SplitByAny("a,,b", {"", ","}, out);
    EXPECT_EQ(out, (std::vector<std::string>{"a", "", "b"}));
    SplitByAny("", {","}, out);
    EXPECT_TRUE(out.empty());
    SplitByAny("abc", {}, out);
    EXPECT_EQ(out, (std::vector<std::string>{"abc"}));
}

TEST(SplitList, TokenIsBuiltFromTheRestOfTheText)
{
    EXPECT_EQ(SplitList("ab"), (std::vector<std::string>{"abb"}));
}

TEST(SplitList, SingleDigitComesThroughUnchanged)
{
    EXPECT_EQ(SplitList("  7"), (std::vector<std::string>{"7"}));
    // Trailing blanks belong to the rest of the text and so to the token.
    EXPECT_EQ(SplitList("7  "), (std::vector<std::string>{"7  "}));
    uint32_t value = 0;
    EXPECT_TRUE(ParseDigits(SplitList("7")[0], value));
    EXPECT_EQ(value, 7u);
}

TEST(SplitList, LongerValueDoesNotParse)
{
    const auto tokens = SplitList("12");
    EXPECT_EQ(tokens, (std::vector<std::string>{"122"}));
    const auto listed = SplitList("1, 2");
    EXPECT_EQ(listed, (std::vector<std::string>{"1, 2", "2"}));
    uint32_t value = 0;
    EXPECT_FALSE(ParseDigits(listed[0], value));
}

TEST(SplitList, EmptyTokensAreKept)
{
    EXPECT_EQ(SplitList(","), (std::vector<std::string>{""}));
    EXPECT_EQ(SplitList(""), (std::vector<std::string>{""}));
    EXPECT_EQ(SplitList(", x"), (std::vector<std::string>{"", "x"}));
}

TEST(ParseDigits, ParsesAndStopsAtTheFirstNonDigit)
{
    uint32_t value = 99;
    EXPECT_TRUE(ParseDigits("", value));
    EXPECT_EQ(value, 0u);
    EXPECT_TRUE(ParseDigits("120", value));
    EXPECT_EQ(value, 120u);
    EXPECT_FALSE(ParseDigits("12a3", value));
    EXPECT_EQ(value, 12u);
    EXPECT_FALSE(ParseDigits("-1", value));
    EXPECT_EQ(value, 0u);
}

TEST(ParseDigits, WrapsWithoutAnOverflowCheck)
{
    uint32_t value = 0;
    EXPECT_TRUE(ParseDigits("4294967296", value));
    EXPECT_EQ(value, 0u);
    EXPECT_TRUE(ParseDigits("4294967301", value));
    EXPECT_EQ(value, 5u);
}

TEST(TextHelpers, ToLowerCopyAndContains)
{
    EXPECT_EQ(ToLowerCopy("Retry-After: 5"), "retry-after: 5");
    EXPECT_TRUE(Contains("application/json; charset=utf-8", "json"));
    EXPECT_FALSE(Contains("text/plain", "json"));
    EXPECT_TRUE(Contains("abc", ""));
}

TEST(FindLastOf, FindsTheLastByteOfTheSet)
{
    const char text[] = "a/b\\c/d";
    EXPECT_EQ(FindLastOf(text, 7, "/\\", 2), 5u);
    EXPECT_EQ(FindLastOf(text, 5, "/\\", 2), 3u);
    EXPECT_EQ(FindLastOf(text, 7, "xyz", 3), std::string::npos);
    EXPECT_EQ(FindLastOf(text, 0, "/", 1), std::string::npos);
    EXPECT_EQ(FindLastOf(text, 7, "/", 0), std::string::npos);
    const char high[] = "a\xFF"
                        "b";
    EXPECT_EQ(FindLastOf(high, 3, "\xFF", 1), 1u);
}

TEST(HashString, StartsAtThirteenAndMultipliesBy131)
{
    EXPECT_EQ(HashString(""), 13u);
    EXPECT_EQ(HashString("a"), 13u * 131u + 97u);
    EXPECT_EQ(HashString("ab"), (13u * 131u + 97u) * 131u + 98u);
}

TEST(HashString, BytesAreTakenAsSigned)
{
    EXPECT_EQ(HashString("\xFF"), 13u * 131u - 1u);
}

TEST(UIntToWide, WritesDecimalDigits)
{
    EXPECT_EQ(UIntToWide(0), L"0");
    EXPECT_EQ(UIntToWide(4294967295u), L"4294967295");
}
