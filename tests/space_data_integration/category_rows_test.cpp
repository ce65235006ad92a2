#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <fstream>
#include <map>

#include "host/logger_sink.h"
#include "space_fixture.h"

namespace {

using spacemgm_test::CloudEmulator;

Json::Value Fixture(const std::string& name)
{
    std::ifstream in(CloudEmulator::FixturePath(name));
    Json::Value value;
    Json::CharReaderBuilder builder;
    std::string errors;
    Json::parseFromStream(builder, in, &value, &errors);
    return value;
}

std::map<CloudSpaceType, std::shared_ptr<CloudSpaceItem>> LoadRows(CloudEmulator& cloud)
{
    host::SetCurrentHostConfig(space_test::ConfigFor(cloud));
    space_test::WiredViewModel wired;
    wired.viewModel.GetCloudInfo();
    std::map<CloudSpaceType, std::shared_ptr<CloudSpaceItem>> rows;
    for (const auto& item : wired.viewModel.model->items) {
        rows[item->type] = item;
    }
    return rows;
}

int SumOfStatistics(const Json::Value& category, const std::string& source)
{
    int sum = 0;
    for (const Json::Value& entry : category["statistics"]) {
        if (source.empty() || entry["source"].asString() == source) {
            sum += entry["sumNum"].asInt();
        }
    }
    return sum;
}

} // namespace

// Expected rows are read from the fixture file itself, by the meaning of
// its keys, not from what the emulator answers.
TEST(SampleAccount, EveryCategoryYieldsItsRow)
{
    const Json::Value fixture = Fixture("sample");
    CloudEmulator cloud;
    const auto rows = LoadRows(cloud);

    ASSERT_TRUE(rows.count(Gallery));
    EXPECT_EQ(rows.at(Gallery)->space,
              fixture["gallery"]["bytes"].asInt64() + fixture["gallery"]["recycleBytes"].asInt64());
    EXPECT_EQ(rows.at(Gallery)->recycle, fixture["gallery"]["recycleBytes"].asInt64());

    ASSERT_TRUE(rows.count(CloudDisk));
    EXPECT_EQ(rows.at(CloudDisk)->space, fixture["drive"]["used"].asInt64());
    EXPECT_EQ(rows.at(CloudDisk)->recycle, fixture["drive"]["recycleBytes"].asInt64());

    ASSERT_TRUE(rows.count(Contact));
    EXPECT_EQ(rows.at(Contact)->count, std::to_string(SumOfStatistics(fixture["pim"]["contact"], "contact")));
    EXPECT_EQ(rows.at(Contact)->recycle, SumOfStatistics(fixture["pim"]["contact"], "recycleContact"));

    ASSERT_TRUE(rows.count(Calendar));
    EXPECT_EQ(rows.at(Calendar)->count, std::to_string(SumOfStatistics(fixture["pim"]["calendar"], "")));

    int sms = 0;
    int calls = 0;
    for (const Json::Value& device : fixture["messages"]["devices"]) {
        sms += device["sms"].asInt();
        calls += device["callLog"].asInt();
    }
    ASSERT_TRUE(rows.count(Message));
    EXPECT_EQ(rows.at(Message)->count, std::to_string(sms));
    ASSERT_TRUE(rows.count(Phone));
    EXPECT_EQ(rows.at(Phone)->count, std::to_string(calls));

    int64_t recordings = 0;
    int recordingFiles = 0;
    int64_t harassment = 0;
    for (const Json::Value& file : fixture["files"]) {
        const std::string path = file["path"].asString();
        std::string name = path.substr(path.rfind('/') + 1);
        std::transform(name.begin(), name.end(), name.begin(),
                       [](unsigned char c) { return std::tolower(c); });
        if (path.rfind("/RecordBackup/", 0) == 0) {
            recordings += file["size"].asInt64();
            ++recordingFiles;
        }
        if (path.rfind("/BlockedBackup/", 0) == 0 && name.find("phonemanager") != std::string::npos) {
            harassment += file["size"].asInt64();
        }
    }
    ASSERT_TRUE(rows.count(Recorder));
    EXPECT_EQ(rows.at(Recorder)->space, recordings);
    EXPECT_EQ(rows.at(Recorder)->count, std::to_string(recordingFiles));
    ASSERT_TRUE(rows.count(HarassmentInterception));
    EXPECT_EQ(rows.at(HarassmentInterception)->space, harassment);
}

TEST(EmptyAccount, YieldsNoRowAtAll)
{
    CloudEmulator cloud(CloudEmulator::Options::ForFixture("empty"));
    EXPECT_TRUE(LoadRows(cloud).empty());
}

TEST(ItemSpace, TypesFiveAndSevenAndAboveTwelveDoNothing)
{
    CloudEmulator cloud;
    host::SetCurrentHostConfig(space_test::ConfigFor(cloud));
    CloudSpaceManagementViewModel viewModel;
    std::vector<std::shared_ptr<CloudSpaceItem>> items;
    cloud.ClearLog();
    Logger::ScopedMemorySink sink;
    for (int type : {5, 7, 13, 40}) {
        EXPECT_EQ(viewModel.GetItemSpace(static_cast<CloudSpaceType>(type), items), nullptr) << type;
    }
    EXPECT_TRUE(items.empty());
    EXPECT_TRUE(sink.Records().empty());
    EXPECT_EQ(cloud.RequestLog().size(), 0u);
}

TEST(ItemSpace, FailedVersionQueryLogsTheCategoryErrorLine)
{
    struct Row
    {
        CloudSpaceType type;
        const char* endpointPart;
        const char* errorLine;
    };
    const Row rows[] = {
        {Contact, "/service/1000/", "Getting Contact Version Error."},
        {Notepad, "/service/1001/", "Getting Notepad Version Error."},
        {Calendar, "/service/1002/", "Getting Calendar Version Error."},
        {Wlan, "/service/1004/", "Getting Wlan Version Error."},
        {Browser, "/service/1005/", "Getting Browser Version Error."},
    };
    CloudEmulator cloud;
    host::SetCurrentHostConfig(space_test::ConfigFor(cloud));
    Json::Value rule;
    rule["service"] = "cloudSyncDrive";
    rule["kind"] = "empty";
    cloud.AddFault(rule);
    CloudSpaceManagementViewModel viewModel;
    for (const Row& row : rows) {
        std::vector<std::shared_ptr<CloudSpaceItem>> items;
        Logger::ScopedMemorySink sink;
        EXPECT_EQ(viewModel.GetItemSpace(row.type, items), nullptr);
        EXPECT_TRUE(items.empty());
        const auto records = sink.Records();
        ASSERT_EQ(records.size(), 2u) << row.errorLine;
        EXPECT_EQ(records[1].message, row.errorLine);
        EXPECT_EQ(records[1].severity, 5);
        EXPECT_EQ(records[1].function, "CloudSpaceManagementViewModel::GetItemSpace");
        EXPECT_TRUE(records[1].flush);
    }
}
