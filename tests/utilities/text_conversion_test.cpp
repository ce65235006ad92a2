#include <gtest/gtest.h>

#include "foundation/utilities.h"

namespace {

std::string Utf8Of(uint32_t cp)
{
    std::string s;
    if (cp < 0x80) {
        s.push_back(static_cast<char>(cp));
    } else if (cp < 0x800) {
        s.push_back(static_cast<char>(0xC0 | (cp >> 6)));
        s.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
    } else if (cp < 0x10000) {
        s.push_back(static_cast<char>(0xE0 | (cp >> 12)));
        s.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
        s.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
    } else {
        s.push_back(static_cast<char>(0xF0 | (cp >> 18)));
        s.push_back(static_cast<char>(0x80 | ((cp >> 12) & 0x3F)));
        s.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
        s.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
    }
    return s;
}

} // namespace

TEST(TextConversion, EveryPlaneRoundTripsThroughUtf8)
{
    std::vector<uint32_t> samples = {0x41,   0x7F,   0x80,   0x7FF,   0x800,   0xD7FF,
                                     0xE000, 0xFFFD, 0xFFFF, 0x10000, 0x10FFFF};
    for (uint32_t plane = 1; plane <= 16; ++plane) {
        samples.push_back(plane << 16);
        samples.push_back((plane << 16) | 0x1234);
        samples.push_back((plane << 16) | 0xFFFF);
    }
    for (uint32_t cp : samples) {
        SCOPED_TRACE(cp);
        const std::wstring wide(1, static_cast<wchar_t>(cp));
        std::string narrow;
        ASSERT_TRUE(WideToNarrow(wide, narrow, kCodePageUtf8));
        EXPECT_EQ(narrow, Utf8Of(cp));
        std::wstring back;
        ASSERT_TRUE(NarrowToWide(narrow, back, kCodePageUtf8));
        EXPECT_EQ(back, wide);
    }
}

TEST(TextConversion, MixedTextRoundTrips)
{
    const std::wstring text = L"Gr\u00fc\u00dfe \u4e91\u7a7a\u95f4 \U0001F600!";
    const std::string utf8 = WideToUtf8(text);
    EXPECT_EQ(utf8, "Gr\xC3\xBC\xC3\x9F"
                    "e \xE4\xBA\x91\xE7\xA9\xBA\xE9\x97\xB4 \xF0\x9F\x98\x80!");
    std::wstring back;
    ASSERT_TRUE(NarrowToWide(utf8, back, kCodePageUtf8));
    EXPECT_EQ(back, text);
}

TEST(TextConversion, SystemCodePageIsUtf8)
{
    std::wstring wide;
    ASSERT_TRUE(NarrowToWide("/tmp/\xE4\xBA\x91", wide, kCodePageSystem));
    EXPECT_EQ(wide, L"/tmp/\u4e91");
    EXPECT_EQ(WideToNarrowCopy(L"/tmp/\u4e91", kCodePageSystem), "/tmp/\xE4\xBA\x91");
}

TEST(TextConversion, EmptyInputFailsAndLeavesOutputAlone)
{
    std::wstring wide = L"keep";
    EXPECT_FALSE(NarrowToWide("", wide, kCodePageUtf8));
    EXPECT_EQ(wide, L"keep");
    std::string narrow = "keep";
    EXPECT_FALSE(WideToNarrow(L"", narrow, kCodePageUtf8));
    EXPECT_EQ(narrow, "keep");
    EXPECT_EQ(WideToNarrowCopy(L"", kCodePageUtf8), "");
}

TEST(TextConversion, MalformedUtf8IsRejected)
{
    const std::vector<std::string> malformed = {
        "\x80",                 // continuation without a lead
        "\xC3",                 // truncated two-byte sequence
        "a\xE4\xBA",            // truncated three-byte sequence
        "\xC0\xAF",             // overlong '/'
        "\xE0\x80\xAF",         // overlong '/' in three bytes
        "\xF0\x80\x80\xAF",     // overlong '/' in four bytes
        "\xED\xA0\x80",         // encoded high surrogate U+D800
        "\xED\xBF\xBF",         // encoded low surrogate U+DFFF
        "\xF4\x90\x80\x80",     // U+110000
        "\xF8\x88\x80\x80\x80", // five-byte form
        "\xFF",
        "\xC3\x28", // lead followed by a non-continuation
    };
    for (const auto& text : malformed) {
        SCOPED_TRACE(::testing::PrintToString(text));
        std::wstring wide = L"keep";
        EXPECT_FALSE(NarrowToWide(text, wide, kCodePageUtf8));
        EXPECT_EQ(wide, L"keep");
    }
}

TEST(TextConversion, LoneSurrogatesAndOutOfRangeWideValuesAreRejected)
{
    for (uint32_t bad : {0xD800u, 0xDBFFu, 0xDC00u, 0xDFFFu, 0x110000u, 0x7FFFFFFFu}) {
        SCOPED_TRACE(bad);
        std::wstring wide = L"a";
        wide.push_back(static_cast<wchar_t>(bad));
        std::string narrow = "keep";
        EXPECT_FALSE(WideToNarrow(wide, narrow, kCodePageUtf8));
        EXPECT_EQ(narrow, "keep");
        EXPECT_EQ(WideToUtf8(wide), "");
    }
}

TEST(TextConversion, GbkCodePageRoundTrips)
{
    // "程序启动" in GBK.
    const std::string gbk = "\xB3\xCC\xD0\xF2\xC6\xF4\xB6\xAF";
    std::wstring wide;
    ASSERT_TRUE(NarrowToWide(gbk, wide, kCodePageGbk));
    EXPECT_EQ(wide, L"\u7a0b\u5e8f\u542f\u52a8");
    EXPECT_EQ(WideToNarrowCopy(wide, kCodePageGbk), gbk);
}

TEST(TextConversion, InvalidGbkIsRejected)
{
    std::wstring wide = L"keep";
    EXPECT_FALSE(NarrowToWide("\xB3", wide, kCodePageGbk));
    EXPECT_EQ(wide, L"keep");
}

TEST(TextConversion, TextOutsideGbkCannotBeNarrowedToIt)
{
    std::string narrow = "keep";
    EXPECT_FALSE(WideToNarrow(L"\U0001F600", narrow, kCodePageGbk));
    EXPECT_EQ(narrow, "keep");
}
