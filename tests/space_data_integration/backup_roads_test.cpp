#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <vector>

#include "host/logger_sink.h"
#include "request/records/quota_records.h"
#include "space_fixture.h"

namespace {

using spacemgm_test::CloudEmulator;

std::vector<std::string> Messages(const Logger::ScopedMemorySink& sink, const std::string& function)
{
    std::vector<std::string> messages;
    for (const Logger::Record& record : sink.Records()) {
        if (record.function == function) {
            messages.push_back(record.message);
        }
    }
    return messages;
}

void UseGeneration(const CloudEmulator& cloud, const std::string& generation,
                   std::vector<host::BackupDevice> devices = {})
{
    host::HostConfig config = space_test::ConfigFor(cloud);
    config.backupGeneration = generation;
    config.backupDevices = std::move(devices);
    host::SetCurrentHostConfig(config);
}

BackUpModel Row(const std::string& deviceId)
{
    BackUpModel row;
    row.deviceId = deviceId;
    row.size = 10;
    return row;
}

constexpr const char* kBackupFunction = "CloudSpaceManagementViewModel::GetBackUpData";

} // namespace

TEST(GetBackUpData, V3QueryFailedLogsAnErrorAndAsksNoService)
{
    CloudEmulator cloud;
    UseGeneration(cloud, "v3queryfailed");
    space_test::WiredViewModel wired;
    wired.viewModel.backupIsV3 = true;
    cloud.ClearLog();
    Logger::ScopedMemorySink sink;
    const auto result = wired.viewModel.GetBackUpData();
    ASSERT_NE(result, nullptr);
    EXPECT_EQ(result->item, nullptr);
    EXPECT_TRUE(result->models.empty());
    EXPECT_TRUE(wired.viewModel.backupIsV3);
    const auto records = sink.Records();
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0].message, "v3 query failed.");
    EXPECT_EQ(records[0].severity, 5);
    EXPECT_EQ(records[0].module, 7);
    EXPECT_EQ(records[0].function, kBackupFunction);
    EXPECT_TRUE(records[0].flush);
    EXPECT_EQ(cloud.RequestLog().size(), 0u);
}

TEST(GetBackUpData, UnknownAnswerShowsNothingAndLogsNothing)
{
    CloudEmulator cloud;
    UseGeneration(cloud, "V3");
    space_test::WiredViewModel wired;
    cloud.ClearLog();
    Logger::ScopedMemorySink sink;
    const auto result = wired.viewModel.GetBackUpData();
    EXPECT_EQ(result->item, nullptr);
    EXPECT_TRUE(result->models.empty());
    EXPECT_FALSE(wired.viewModel.backupIsV3);
    EXPECT_TRUE(sink.Records().empty());
    EXPECT_EQ(cloud.RequestLog().size(), 0u);
}

TEST(GetBackUpData, V3WithEmptyDeviceListSendsNoQuotaRequest)
{
    CloudEmulator cloud;
    UseGeneration(cloud, "v3");
    space_test::WiredViewModel wired;
    cloud.ClearLog();
    Logger::ScopedMemorySink sink;
    const auto result = wired.viewModel.GetBackUpData();
    EXPECT_EQ(result->item, nullptr);
    EXPECT_TRUE(result->models.empty());
    EXPECT_TRUE(wired.viewModel.backupIsV3);
    ASSERT_NE(wired.viewModel.deviceList, nullptr);
    EXPECT_TRUE(wired.viewModel.deviceList->empty());
    EXPECT_EQ(cloud.RequestLog().size(), 0u);
    EXPECT_EQ(
        Messages(sink, kBackupFunction),
        (std::vector<std::string>{"v3 query backupData start.", "v3 query backupData listDev Size:",
                                  "v3 query backupData lstBackUpModel Size:", "v3 query backupData end."}));
}

TEST(GetBackUpData, V3DeviceListComesFromTheHostAndIsReplacedEachQuery)
{
    CloudEmulator cloud;
    UseGeneration(cloud, "v3", {{"dev-0001", "Phone"}, {"dev-0002", "Pad"}});
    space_test::WiredViewModel wired;
    wired.viewModel.GetBackUpData();
    std::vector<BackupDevListSt>* first = wired.viewModel.deviceList;
    ASSERT_NE(first, nullptr);
    ASSERT_EQ(first->size(), 2u);
    EXPECT_EQ((*first)[1].deviceName, "Pad");
    wired.viewModel.GetBackUpData();
    EXPECT_NE(wired.viewModel.deviceList, first);
    // The former list is still there for a host that kept it.
    EXPECT_EQ((*first)[0].deviceId, "dev-0001");
}

TEST(GetBackUpData, V1AsksTheBackupServiceAndClearsTheV3Mark)
{
    CloudEmulator cloud;
    UseGeneration(cloud, "v1");
    space_test::WiredViewModel wired;
    wired.viewModel.backupIsV3 = true;
    cloud.ClearLog();
    Logger::ScopedMemorySink sink;
    wired.viewModel.GetBackUpData();
    EXPECT_FALSE(wired.viewModel.backupIsV3);
    const auto messages = Messages(sink, kBackupFunction);
    ASSERT_GE(messages.size(), 2u);
    EXPECT_EQ(messages.front(), "v1 query backupData start.");
    EXPECT_EQ(messages.back(), "v1 query backupData start.");
    bool askedForRecords = false;
    for (const Json::Value& request : cloud.RequestLog()) {
        askedForRecords |=
            request["service"].asString() == "cbs" &&
            request["body"].asString().find("QueryAllDevicesBackupRecordReq") != std::string::npos;
    }
    EXPECT_TRUE(askedForRecords);
}

TEST(CompareDeviceId, FirstMatchingDeviceNamesTheRow)
{
    CloudSpaceManagementViewModel viewModel;
    std::vector<BackupDevListSt> devices(3);
    devices[0].deviceId = "a";
    devices[0].deviceName = "first";
    devices[1].deviceId = "b";
    devices[1].deviceName = "second";
    devices[2].deviceId = "b";
    devices[2].deviceName = "third";
    QuotaDetailBk detail;
    detail.deviceId = "b";
    EXPECT_EQ(viewModel.CompareDeviceId(devices, detail), "second");
    detail.deviceId = "B";
    EXPECT_EQ(viewModel.CompareDeviceId(devices, detail), "");
}

TEST(DeleteBackUp, V3SuccessGoesThroughTheHostAndRemovesTheRow)
{
    CloudEmulator cloud;
    UseGeneration(cloud, "v3");
    std::string askedFor;
    space_test::WiredViewModel wired([&askedFor](const std::string& deviceId) {
        askedFor = deviceId;
        return std::string("success");
    });
    wired.viewModel.backupIsV3 = true;
    wired.viewModel.model->backups = {Row("d1"), Row("d2")};
    // The window passes a reference into the same vector.
    EXPECT_EQ(wired.viewModel.DeleteBackUp(wired.viewModel.model->backups[0]), DeleteSuccess);
    EXPECT_EQ(askedFor, "d1");
    ASSERT_EQ(wired.viewModel.model->backups.size(), 1u);
    EXPECT_EQ(wired.viewModel.model->backups[0].deviceId, "d2");
}

TEST(DeleteBackUp, V3OutcomeMustBeExactlySuccess)
{
    CloudEmulator cloud;
    UseGeneration(cloud, "v3");
    for (const char* outcome : {"Success", "success ", "succes", "", "failed"}) {
        space_test::WiredViewModel wired([outcome](const std::string&) { return std::string(outcome); });
        wired.viewModel.backupIsV3 = true;
        wired.viewModel.model->backups = {Row("d1")};
        EXPECT_EQ(wired.viewModel.DeleteBackUp(Row("d1")), DeleteFailed) << outcome;
        EXPECT_EQ(wired.viewModel.model->backups.size(), 1u) << outcome;
    }
}

TEST(DeleteLIstBK, RemovesOnlyTheFirstMatchingRow)
{
    CloudSpaceManagementViewModel viewModel;
    viewModel.model->backups = {Row("x"), Row("y"), Row("x")};
    viewModel.DeleteLIstBK(Row("x"));
    ASSERT_EQ(viewModel.model->backups.size(), 2u);
    EXPECT_EQ(viewModel.model->backups[0].deviceId, "y");
    viewModel.DeleteLIstBK(Row("none"));
    EXPECT_EQ(viewModel.model->backups.size(), 2u);
}

TEST(GetCloudInfo, FailedBackupQueryKeepsTheRowsOfTheLoadBefore)
{
    CloudEmulator cloud(CloudEmulator::Options::ForFixture("empty"));
    UseGeneration(cloud, "v3queryfailed");
    space_test::WiredViewModel wired;
    wired.viewModel.model->backups = {Row("kept")};
    wired.viewModel.GetCloudInfo();
    ASSERT_EQ(wired.viewModel.model->backups.size(), 1u);
    EXPECT_EQ(wired.viewModel.model->backups[0].deviceId, "kept");
    for (const auto& item : wired.viewModel.model->items) {
        EXPECT_NE(item->type, CloudBackUp);
    }
}

TEST(GetCloudInfo, EmptyAccountLeavesItemsEmptyAndDefaultTypeOne)
{
    CloudEmulator cloud(CloudEmulator::Options::ForFixture("empty"));
    UseGeneration(cloud, "v1");
    space_test::WiredViewModel wired;
    Logger::ScopedMemorySink sink;
    wired.viewModel.GetCloudInfo();
    EXPECT_TRUE(wired.viewModel.model->items.empty());
    EXPECT_EQ(wired.viewModel.defaultType, 1);
    const auto records = sink.Records();
    ASSERT_FALSE(records.empty());
    bool sawStart = false;
    bool sawEnd = false;
    for (const Logger::Record& record : records) {
        if (record.function != "CloudSpaceManagementViewModel::GetCloudInfo") {
            continue;
        }
        EXPECT_EQ(record.severity, 1);
        EXPECT_FALSE(record.flush);
        sawStart |= record.message == "Getting cloud info starts.";
        sawEnd |= record.message == "Getting cloud info ends.";
    }
    EXPECT_TRUE(sawStart);
    EXPECT_TRUE(sawEnd);
    EXPECT_EQ(records.back().message, "Getting cloud info ends.");
}

TEST(GetCloudInfo, EveryRequestFailingStillReturnsWithoutNegativeSizes)
{
    for (const char* kind : {"cut", "wrongTypes", "hang", "notJson", "emptyArray"}) {
        CloudEmulator cloud;
        UseGeneration(cloud, "v1");
        Json::Value rule;
        rule["kind"] = kind;
        if (std::string(kind) == "hang") {
            rule["hangMs"] = 5000;
        }
        cloud.AddFault(rule);
        space_test::WiredViewModel wired;
        wired.viewModel.GetCloudInfo();
        for (const auto& item : wired.viewModel.model->items) {
            EXPECT_GE(item->space, 0) << kind;
            EXPECT_GE(item->recycle, 0) << kind;
        }
        for (const BackUpModel& row : wired.viewModel.model->backups) {
            EXPECT_GT(row.size, 0) << kind;
        }
    }
}
