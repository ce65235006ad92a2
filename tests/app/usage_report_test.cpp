// The report of `spacemgm usage`, from a report made by hand.
#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include <json/json.h>

#include "app/usage_report.h"
#include "utilities/text_lines.h"

namespace {

std::shared_ptr<CloudSpaceItem> Item(CloudSpaceType type, int64_t space, const std::string& count)
{
    auto item = std::make_shared<CloudSpaceItem>();
    item->type = type;
    item->sortType = type;
    item->space = space;
    item->count = count;
    return item;
}

BackUpModel Device(const std::string& id, const std::string& name)
{
    BackUpModel model;
    model.deviceId = id;
    model.deviceName = name;
    model.size = 1024;
    model.sizeText = "1.00 KB";
    return model;
}

app::UsageReport Report()
{
    app::UsageReport report;
    report.usedText = "1.50 KB";
    report.totalText = "2 GB";
    report.storage = {{"backup", 1024}, {"drive", 512}, {"photos", 0}, {"other", 0}, {"family", 0}};
    report.items = {Item(CloudBackUp, 1024, "1"), Item(Message, 0, "12"), Item(Gallery, 2048, "")};
    report.backups = {Device("bk-1", "Phone")};
    return report;
}

const app::CategoryTexts& English()
{
    static const app::CategoryTexts texts(SPACEMGM_SOURCE_DIR, "en-US");
    return texts;
}

} // namespace

TEST(UsageText, GroupsInWordsAndEveryCategoryWithNoDataForThoseWithoutARow)
{
    const auto lines = Lines(app::FormatUsageText(Report(), English()));
    const std::vector<std::string> expected = {
        "Used 1.50 KB of 2 GB",
        "Groups:",
        "  Cloud backup: 1.00 KB",
        "  Cloud drive: 512.00 B",
        "  Gallery: 0.00 B",
        "  Other: 0.00 B",
        "  Family sharing: 0.00 B",
        "Categories:",
        "  Cloud backup: 1.00 KB, 1 device",
        "  Messages: 12 items",
        "  Gallery: 2.00 KB",
        "  Wi-Fi networks: no data",
        "  Call records: no data",
        "  Browser data: no data",
        "  Calendar: no data",
        "  Contacts: no data",
        "  Cloud drive: no data",
        "  Notes: no data",
        "  Recordings: no data",
        "  Spam & blocked: no data",
        "Backups:",
        "  Phone: 1.00 KB, device bk-1",
    };
    EXPECT_EQ(lines, expected);
}

TEST(UsageText, NoRawBytesOrColoursInTheText)
{
    app::UsageReport report = Report();
    report.colors = {{"backup", 0xFF00BFC9ULL}};
    report.lengths = {{"backup", 90}};
    const std::string text = app::FormatUsageText(report, English());
    EXPECT_EQ(text.find("0xFF"), std::string::npos);
    EXPECT_EQ(text.find("bytes"), std::string::npos);
    EXPECT_EQ(text.find("bar"), std::string::npos);
}

TEST(UsageText, AFullAccountSaysSo)
{
    app::UsageReport report = Report();
    report.lengths = {{"full", 530}};
    const auto lines = Lines(app::FormatUsageText(report, English()));
    ASSERT_GE(lines.size(), 2u);
    EXPECT_EQ(lines[1], "The account is full.");
}

TEST(UsageText, HostileDeviceNamesAreEscaped)
{
    app::UsageReport report = Report();
    report.backups = {Device("bk-\x1B]0;x\x07", "\x1B[2J\x1B[31mPhone\xE2\x80\xAEgpj.exe\nfake line"),
                      Device("bk-3", "")};
    const std::string text = app::FormatUsageText(report, English());
    EXPECT_EQ(text.find('\x1B'), std::string::npos);
    EXPECT_EQ(text.find("\xE2\x80\xAE"), std::string::npos);
    const auto lines = Lines(text);
    ASSERT_GE(lines.size(), 2u);
    EXPECT_EQ(lines[lines.size() - 2],
              "  \\x1B[2J\\x1B[31mPhone\\u202Egpj.exe\\x0Afake line: 1.00 KB, device bk-\\x1B]0;x\\x07");
    EXPECT_EQ(lines.back(), "  (unnamed device): 1.00 KB, device bk-3");
}

TEST(UsageJson, KeepsRawFiguresAndAddsTheErrors)
{
    app::UsageReport report = Report();
    report.colors = {{"backup", 0xFF00BFC9ULL}};
    app::FailedExchange failure;
    failure.service = "accountQuota";
    failure.status = 401;
    failure.problem = "HTTP 401";
    report.failures = {failure};
    Json::Value root;
    std::istringstream in(app::FormatUsageJson(report));
    std::string errors;
    ASSERT_TRUE(Json::parseFromStream(Json::CharReaderBuilder(), in, &root, &errors)) << errors;
    EXPECT_EQ(root["groups"][0]["bytes"].asUInt64(), 1024u);
    EXPECT_EQ(root["groups"][0]["color"].asString(), "0xFF00BFC9");
    EXPECT_EQ(root["categories"].size(), 3u);
    EXPECT_EQ(root["categories"][1]["name"].asString(), "Message");
    ASSERT_EQ(root["errors"].size(), 1u);
    EXPECT_EQ(root["errors"][0]["message"].asString(), "account quota: HTTP 401");
    EXPECT_EQ(root["errors"][0]["service"].asString(), "accountQuota");
    EXPECT_EQ(root["errors"][0]["status"].asInt(), 401);
}

TEST(UsageJson, DeviceNamesStayAsTheServiceSentThem)
{
    app::UsageReport report = Report();
    report.backups = {Device("bk-1", "a\x1B[31mb")};
    Json::Value root;
    std::istringstream in(app::FormatUsageJson(report));
    std::string errors;
    ASSERT_TRUE(Json::parseFromStream(Json::CharReaderBuilder(), in, &root, &errors)) << errors;
    EXPECT_EQ(root["backups"][0]["deviceName"].asString(), "a\x1B[31mb");
}

TEST(UsageText, CountsTakeTheUnitsOfTheWindowsListInTheReportsLanguage)
{
    const app::CategoryTexts russian(SPACEMGM_SOURCE_DIR, "ru-RU");
    EXPECT_EQ(russian.CountText(CloudBackUp, "2"), "2 устройства");
    EXPECT_EQ(russian.CountText(Message, "3621"), "3621 элемент");
    EXPECT_EQ(russian.CountText(Message, "12"), "12 элементов");
    EXPECT_EQ(English().CountText(CloudBackUp, "1"), "1 device");
    EXPECT_EQ(English().CountText(Notepad, "57"), "57 items");
}
