#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <string>

#include "space_data/cloud_space_query.h"
#include "space_data/quota_size_text.h"

namespace {

constexpr unsigned long long kMiB = 1024ULL * 1024ULL;
constexpr unsigned long long kTiB = 1ULL << 40;

// An instance of its own for each test: the copy constructor is public, the
// singleton stays untouched.
CloudSpaceQuery FreshQuery(unsigned long long used, unsigned long long total)
{
    CloudSpaceQuery query = *CloudSpaceQuery::GetInstance();
    query.GetSpaceInfo() = NS::Drive::UserSpaceInfo();
    query.GetSpaceInfo().used = used;
    query.GetSpaceInfo().total = total;
    query.InitColorType();
    query.GetItemsColor(Json::Value(Json::arrayValue));
    return query;
}

Json::Value Items(const std::string& json)
{
    Json::Value value;
    CloudSpaceQuery query = *CloudSpaceQuery::GetInstance();
    EXPECT_TRUE(query.StringToJson(json, value));
    return value;
}

std::string WriteTemp(const std::string& name, const std::string& text)
{
    const std::string path = std::string(SPACEMGM_BINARY_DIR) + "/" + name;
    std::ofstream(path) << text;
    return path;
}

} // namespace

TEST(QuotaSizeText, FormatsTheTableOfBoundaries)
{
    struct Row
    {
        double bytes;
        const char* text;
    };
    const Row rows[] = {
        {0.0, "0 B"},
        {1023.0, "1023 B"},
        {1024.0, "1 KB"},
        {1536.0, "1.50 KB"},
        {2.0 * 1024 * 1024 * 1024, "2 GB"},
        {2.5 * 1024 * 1024 * 1024, "2.50 GB"},
        {static_cast<double>(kTiB), "1024 GB"},
        {2048.0 * 1024 * 1024 * 1024, "2048 GB"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(FormatQuotaSize(row.bytes), row.text) << row.bytes;
    }
}

TEST(QuotaSizeText, EraseFirstZeroFractionRemovesOnlyTheFirst)
{
    std::string text = "2.00 GB of 3.00 GB";
    EraseFirstZeroFraction(text);
    EXPECT_EQ(text, "2 GB of 3.00 GB");
    std::string plain = "2.50 GB";
    EraseFirstZeroFraction(plain);
    EXPECT_EQ(plain, "2.50 GB");
}

TEST(CloudSpaceQuery, Delete00AndDotKeepsTextWithoutZeroFraction)
{
    CloudSpaceQuery query = FreshQuery(0, 0);
    std::string text = "7.00 MB";
    query.Delete00AndDot(text);
    EXPECT_EQ(text, "7 MB");
    std::string other = "7.10 MB";
    query.Delete00AndDot(other);
    EXPECT_EQ(other, "7.10 MB");
}

TEST(CloudSpaceQuery, UpdateDisplayDataFormatsUsedAndTotal)
{
    CloudSpaceQuery query = FreshQuery(1536, kTiB);
    std::string used;
    std::string total;
    query.UpdateDisplayData(used, total);
    EXPECT_EQ(used, "1.50 KB");
    EXPECT_EQ(total, "1024 GB");
}

TEST(CloudSpaceQuery, BarIsOneRedSegmentAtExactlyTheFullThreshold)
{
    // 16106127 bytes is 15.36 MB as a 32-bit float: the comparison includes
    // equality, so the account counts as full.
    const unsigned long long total = 1024 * kMiB;
    CloudSpaceQuery query = FreshQuery(total - 16106127ULL, total);
    query.GetSpaceInfo().drive = total / 2;
    const auto lengths = query.GetLengthOfItems(1.0f);
    EXPECT_GT(lengths.at("full"), 0);
    EXPECT_EQ(lengths.at("drive"), 0);
    EXPECT_EQ(lengths.at("backup"), 0);
    EXPECT_EQ(lengths.at("bkcolor"), 530);
}

TEST(CloudSpaceQuery, BarShowsGroupsWithALittleMoreThanTheThreshold)
{
    const unsigned long long total = 1024 * kMiB;
    CloudSpaceQuery query = FreshQuery(total - 16106128ULL, total);
    query.GetSpaceInfo().drive = total / 2;
    const auto lengths = query.GetLengthOfItems(1.0f);
    EXPECT_EQ(lengths.at("full"), 0);
    EXPECT_EQ(lengths.at("drive"), 265);
}

TEST(CloudSpaceQuery, UsedAboveTotalShowsTheWholeBarRed)
{
    CloudSpaceQuery query = FreshQuery(3 * kMiB * 1024, 2 * kMiB * 1024);
    const auto lengths = query.GetLengthOfItems(1.0f);
    EXPECT_EQ(lengths.at("full"), 530);
    EXPECT_EQ(lengths.at("bkcolor"), 530);
}

TEST(CloudSpaceQuery, OneByteGroupInATerabyteIsOnePixelAndEmptyGroupIsZero)
{
    CloudSpaceQuery query = FreshQuery(1, kTiB);
    query.GetSpaceInfo().photos = 1;
    const auto lengths = query.GetLengthOfItems(1.0f);
    EXPECT_EQ(lengths.at("photos"), 1);
    EXPECT_EQ(lengths.at("family"), 0);
    EXPECT_EQ(lengths.at("full"), 0);
    EXPECT_EQ(lengths.size(), 7u);
}

TEST(CloudSpaceQuery, ZeroTotalLeavesOnlyTheBackgroundScaled)
{
    CloudSpaceQuery query = FreshQuery(0, 0);
    const auto lengths = query.GetLengthOfItems(2.0f);
    EXPECT_EQ(lengths.at("bkcolor"), 1060);
    for (const char* key : {"full", "backup", "drive", "photos", "other", "family"}) {
        EXPECT_EQ(lengths.at(key), 0) << key;
    }
    EXPECT_EQ(query.GetUsedValue(), 0);
}

TEST(CloudSpaceQuery, UsedValueOfOneByteInATerabyteIsOne)
{
    EXPECT_EQ(FreshQuery(1, kTiB).GetUsedValue(), 1);
    EXPECT_EQ(FreshQuery(kTiB / 4, kTiB).GetUsedValue(), 2500);
    EXPECT_EQ(FreshQuery(0, kTiB).GetUsedValue(), 0);
    // Not clamped above the whole.
    EXPECT_EQ(FreshQuery(2 * kTiB, kTiB).GetUsedValue(), 20000);
}

TEST(CloudSpaceQuery, DefaultColoursWithoutConfiguration)
{
    CloudSpaceQuery query = FreshQuery(0, 0);
    const auto colors = query.GetColorInfo();
    const std::map<std::string, unsigned long long> expected = {
        {"backup", 0xFF00BFC9ULL},  {"drive", 0xFF007DFFULL},  {"photos", 0xFF47CC47ULL},
        {"other", 0xFFFFBF00ULL},   {"family", 0xFFFF7500ULL}, {"full", 0xFFFA2A2DULL},
        {"bkcolor", 0xFFF2F2F2ULL},
    };
    EXPECT_EQ(colors, expected);
}

TEST(CloudSpaceQuery, ConfigurationListingOnlyDriveGivesDriveFullAndBackground)
{
    CloudSpaceQuery query = FreshQuery(0, 0);
    query.GetItemsColor(Items(R"([{"key":"drive","color":"#123456"}])"));
    const auto colors = query.GetColorInfo();
    const std::map<std::string, unsigned long long> expected = {
        {"drive", 0xFF123456ULL}, {"full", 0xFFFA2A2DULL}, {"bkcolor", 0xFFF2F2F2ULL}};
    EXPECT_EQ(colors, expected);
}

TEST(CloudSpaceQuery, SameKeyTwiceLaterColourWins)
{
    CloudSpaceQuery query = FreshQuery(0, 0);
    query.GetItemsColor(Items(R"([{"key":"backup","color":"#111111"},{"key":"backup","color":"#222222"}])"));
    EXPECT_EQ(query.GetColorInfo().at("backup"), 0xFF222222ULL);
}

TEST(CloudSpaceQuery, UnknownKeyIsSkippedAndColourWithoutHashLosesADigit)
{
    CloudSpaceQuery query = FreshQuery(0, 0);
    query.GetItemsColor(Items(R"([{"key":"bkcolor","color":"#000000"},{"key":"other","color":"ABCDEF"}])"));
    const auto colors = query.GetColorInfo();
    EXPECT_EQ(colors.at("bkcolor"), 0xFFF2F2F2ULL);
    EXPECT_EQ(colors.at("other"), 0xFFBCDEFULL);
    EXPECT_EQ(colors.count("backup"), 0u);
}

TEST(CloudSpaceQuery, ConfigFileIsReadAcrossLines)
{
    const std::string path =
        WriteTemp("space_om_config_lines.json",
                  "{\n \"cloud_space_usage\": {\n  \"items\": [\n"
                  "   {\"key\": \"photos\", \"color\": \"#010203\", \"extra\": 1}\n  ]\n }\n}\n");
    CloudSpaceQuery query = FreshQuery(0, 0);
    const Json::Value items = query.GetConfigFromFile(path);
    ASSERT_TRUE(items.isArray());
    query.GetItemsColor(items);
    EXPECT_EQ(query.GetColorInfo().at("photos"), 0xFF010203ULL);
    std::remove(path.c_str());
}

TEST(CloudSpaceQuery, ConfigFileThatIsNotJsonGivesNoItems)
{
    for (const char* text : {"", "not json at all", "[1,2,3]", "{\"cloud_space_usage\": 5}"}) {
        const std::string path = WriteTemp("space_om_config_bad.json", text);
        CloudSpaceQuery query = FreshQuery(0, 0);
        const Json::Value items = query.GetConfigFromFile(path);
        EXPECT_EQ(items.size(), 0u) << text;
        query.GetItemsColor(items);
        EXPECT_EQ(query.GetColorInfo().size(), 7u) << text;
        std::remove(path.c_str());
    }
}

TEST(CloudSpaceQuery, StringToJsonRefusesEmptyText)
{
    CloudSpaceQuery query = FreshQuery(0, 0);
    Json::Value out;
    EXPECT_FALSE(query.StringToJson("", out));
    EXPECT_FALSE(query.StringToJson("{", out));
    EXPECT_TRUE(query.StringToJson("{\"a\":1}", out));
    EXPECT_EQ(out["a"].asInt(), 1);
}

TEST(CloudSpaceQuery, StorageOfTypeReturnsTheFiveGroups)
{
    CloudSpaceQuery query = FreshQuery(0, 0);
    auto& info = query.GetSpaceInfo();
    info.backup = 1;
    info.drive = 2;
    info.photos = 3;
    info.other = 4;
    info.family = 5;
    const std::map<std::string, unsigned long long> expected = {
        {"backup", 1}, {"drive", 2}, {"photos", 3}, {"other", 4}, {"family", 5}};
    EXPECT_EQ(query.GetStorageOfType(), expected);
    unsigned long long used = 9;
    unsigned long long total = 9;
    query.GetUsedAndTotalValue(used, total);
    EXPECT_EQ(used, 0u);
    EXPECT_EQ(total, 0u);
}

TEST(CloudSpaceQuery, LongDateTimeIsMillisecondsSinceTheEpoch)
{
    CloudSpaceQuery query = FreshQuery(0, 0);
    const long long now = query.GetLongDateTime();
    // After 2020-01-01 and before 2100-01-01, in milliseconds.
    EXPECT_GT(now, 1577836800000LL);
    EXPECT_LT(now, 4102444800000LL);
}
