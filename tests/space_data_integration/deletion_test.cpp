// Every deletion against spacemgm-cloud, and the backup roads with rows.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "host/host_config.h"
#include "host/logger_sink.h"
#include "space_fixture.h"

namespace {

using spacemgm_test::CloudEmulator;

std::vector<std::string> BackupLines(const Logger::ScopedMemorySink& sink)
{
    std::vector<std::string> lines;
    for (const Logger::Record& record : sink.Records()) {
        if (record.function == "CloudSpaceManagementViewModel::GetBackUpData") {
            EXPECT_EQ(record.module, 7);
            EXPECT_TRUE(record.flush);
            lines.push_back(record.message);
        }
    }
    return lines;
}

std::vector<std::string> FilePaths(const CloudEmulator& cloud)
{
    std::vector<std::string> paths;
    const Json::Value account = cloud.Account();
    for (const Json::Value& file : account["files"]) {
        paths.push_back(file["path"].asString());
    }
    return paths;
}

bool Holds(const std::vector<std::string>& paths, const std::string& path)
{
    return std::find(paths.begin(), paths.end(), path) != paths.end();
}

// Requests the module sent to the backup servlet with `info`, as bodies.
std::vector<Json::Value> ServletBodies(const CloudEmulator& cloud, const std::string& info)
{
    std::vector<Json::Value> bodies;
    for (const Json::Value& request : cloud.RequestLog()) {
        Json::Value body;
        Json::CharReaderBuilder reader;
        std::string errors;
        const std::string text = request["body"].asString();
        std::unique_ptr<Json::CharReader> parser(reader.newCharReader());
        if (request["service"].asString() == "cbs" &&
            parser->parse(text.data(), text.data() + text.size(), &body, &errors) && body["info"] == info) {
            bodies.push_back(body);
        }
    }
    return bodies;
}

// An NSP removal reply as the test wants it, in place of the service's.
void AnswerRemoval(CloudEmulator& cloud, const std::string& body)
{
    Json::Value rule;
    rule["kind"] = "status";
    rule["status"] = 200;
    rule["endpoint"] = "/nsp";
    rule["bodyContains"] = "nsp.vfs.rmfile";
    rule["body"] = body;
    cloud.AddFault(rule);
}

} // namespace

TEST(BackupRoadV3, RowsComeFromTheHostListAndTheQuotaLineCarriesCodeAndUsed)
{
    CloudEmulator cloud(CloudEmulator::Options::ForFixture("v2"));
    host::SetCurrentHostConfig(space_test::ConfigFor(cloud));
    space_test::WiredViewModel wired;
    Logger::ScopedMemorySink sink;
    const auto result = wired.viewModel.GetBackUpData();
    ASSERT_NE(result->item, nullptr);
    EXPECT_EQ(result->item->type, CloudBackUp);
    EXPECT_EQ(result->item->sortType, CloudBackUp);
    EXPECT_EQ(result->item->count, "2");
    EXPECT_EQ(result->item->space, 36507222016);
    ASSERT_EQ(result->models.size(), 2u);
    EXPECT_EQ(result->models[0].deviceId, "dev-0001");
    EXPECT_EQ(result->models[0].deviceName, "Nuvo P60 Pro");
    EXPECT_EQ(result->models[0].size, 30064771072);
    EXPECT_EQ(result->models[1].deviceName, "Nuvo Pad 11");
    EXPECT_TRUE(wired.viewModel.backupIsV3);
    // The quota line spells out the code and the bytes; the two size lines
    // around it carry no number.
    EXPECT_EQ(BackupLines(sink),
              (std::vector<std::string>{
                  "v3 query backupData start.",
                  "v3 query backupData listDev Size:", "v3 query backupData retCode0 used Size:36507222016",
                  "v3 query backupData lstBackUpModel Size:", "v3 query backupData end."}));
}

TEST(BackupRoadV3, DeviceTheHostDoesNotKnowGetsAnEmptyName)
{
    CloudEmulator cloud(CloudEmulator::Options::ForFixture("v2"));
    host::HostConfig config = space_test::ConfigFor(cloud);
    config.backupDevices = {{"dev-0002", "Pad"}, {"dev-9999", "Ghost"}};
    host::SetCurrentHostConfig(config);
    space_test::WiredViewModel wired;
    const auto result = wired.viewModel.GetBackUpData();
    ASSERT_NE(result->item, nullptr);
    // The service knows one of the two, so one row, named by the host.
    ASSERT_EQ(result->models.size(), 1u);
    EXPECT_EQ(result->models[0].deviceName, "Pad");
    EXPECT_EQ(result->item->space, 6442450944);
}

TEST(BackupRoadV1, RowsAreNamedByTheRecordsAndTheDeviceIdsAreRemembered)
{
    CloudEmulator cloud;
    host::SetCurrentHostConfig(space_test::ConfigFor(cloud));
    space_test::WiredViewModel wired;
    wired.viewModel.backupIsV3 = true;
    Logger::ScopedMemorySink sink;
    const auto result = wired.viewModel.GetBackUpData();
    ASSERT_NE(result->item, nullptr);
    EXPECT_EQ(result->item->count, "2");
    EXPECT_EQ(result->item->space, 36507222016);
    EXPECT_FALSE(wired.viewModel.backupIsV3);
    ASSERT_EQ(result->models.size(), 2u);
    for (const BackUpModel& model : result->models) {
        EXPECT_EQ(model.deviceName, model.deviceId == "bk-0001-a1f3" ? "Nuvo P60 Pro" : "Nuvo Pad 11");
    }
    EXPECT_EQ(
        wired.viewModel.backupDeviceIds,
        (std::map<std::string, std::string>{{"bk-0001-a1f3", "dev-0001"}, {"bk-0002-a1f3", "dev-0002"}}));
    // The first device has two backups: its id goes into the quota query once.
    bool askedOnce = false;
    for (const Json::Value& request : cloud.RequestLog()) {
        const std::string body = request["body"].asString();
        if (body.find("deviceId%20in") != std::string::npos) {
            const auto first = body.find("bk-0001-a1f3");
            askedOnce =
                first != std::string::npos && body.find("bk-0001-a1f3", first + 1) == std::string::npos;
        }
    }
    EXPECT_TRUE(askedOnce);
    EXPECT_EQ(BackupLines(sink),
              (std::vector<std::string>{
                  "v1 query backupData start.", "v1 query backupData QueryAllDevicesBackupRecord Size:",
                  "v1 query backupData deviceIdCount Size:", "v1 query backupData GetQuotaUsedInfo reCode:",
                  "v1 query backupData lstBackUpModel Size:", "v1 query backupData start."}));
}

TEST(BackupRoad, FailedQueryAfterAGoodLoadKeepsTheBackupRows)
{
    CloudEmulator cloud;
    host::SetCurrentHostConfig(space_test::ConfigFor(cloud));
    space_test::WiredViewModel wired;
    wired.viewModel.GetCloudInfo();
    ASSERT_EQ(wired.viewModel.model->backups.size(), 2u);
    ASSERT_EQ(wired.viewModel.model->items.front()->type, CloudBackUp);

    Json::Value rule;
    rule["kind"] = "cut";
    rule["endpoint"] = "/family/rest.php";
    rule["bodyContains"] = "deviceId%20in";
    cloud.AddFault(rule);
    wired.viewModel.GetCloudInfo();
    EXPECT_EQ(wired.viewModel.model->backups.size(), 2u);
    for (const auto& item : wired.viewModel.model->items) {
        EXPECT_NE(item->type, CloudBackUp);
    }
}

TEST(DeleteBackItem, VersionOneDeletesByTheDevicesOwnIdAndRemovesTheRow)
{
    CloudEmulator cloud;
    host::SetCurrentHostConfig(space_test::ConfigFor(cloud));
    space_test::WiredViewModel wired;
    wired.viewModel.GetCloudInfo();
    auto& backups = wired.viewModel.model->backups;
    ASSERT_EQ(backups.size(), 2u);
    const BackUpModel taken = backups[0];
    cloud.ClearLog();
    EXPECT_EQ(wired.viewModel.DeleteBackUp(backups[0]), DeleteSuccess);
    ASSERT_EQ(backups.size(), 1u);
    EXPECT_NE(backups[0].deviceId, taken.deviceId);
    const auto bodies = ServletBodies(cloud, "DeleteDeviceBackupRecordReq");
    ASSERT_EQ(bodies.size(), 1u);
    EXPECT_EQ(bodies[0]["deviceId"].asString(), wired.viewModel.backupDeviceIds.at(taken.deviceId));
    EXPECT_EQ(bodies[0]["cmd"].asInt(), 27);

    // A row that another deletion already took: the request still goes out
    // and the service's good answer is a success.
    EXPECT_EQ(wired.viewModel.DeleteBackUp(taken), DeleteSuccess);
    EXPECT_EQ(ServletBodies(cloud, "DeleteDeviceBackupRecordReq").size(), 2u);
    EXPECT_EQ(backups.size(), 1u);
}

TEST(DeleteBackItem, UnknownRowSendsAnEmptyIdAndFails)
{
    CloudEmulator cloud;
    host::SetCurrentHostConfig(space_test::ConfigFor(cloud));
    space_test::WiredViewModel wired;
    BackUpModel stranger;
    stranger.deviceId = "bk-unknown";
    wired.viewModel.model->backups = {stranger};
    EXPECT_EQ(wired.viewModel.DeleteBackUp(stranger), DeleteFailed);
    EXPECT_EQ(wired.viewModel.model->backups.size(), 1u);
    ASSERT_EQ(wired.viewModel.backupDeviceIds.count("bk-unknown"), 1u);
    EXPECT_EQ(wired.viewModel.backupDeviceIds.at("bk-unknown"), "");
}

TEST(DeleteBackItem, NoReplyIsAFailure)
{
    CloudEmulator cloud;
    host::SetCurrentHostConfig(space_test::ConfigFor(cloud));
    space_test::WiredViewModel wired;
    wired.viewModel.GetCloudInfo();
    ASSERT_FALSE(wired.viewModel.model->backups.empty());
    Json::Value rule;
    rule["kind"] = "empty";
    rule["bodyContains"] = "DeleteDeviceBackupRecordReq";
    cloud.AddFault(rule);
    const size_t before = wired.viewModel.model->backups.size();
    EXPECT_EQ(wired.viewModel.DeleteBackUp(wired.viewModel.model->backups[0]), DeleteFailed);
    EXPECT_EQ(wired.viewModel.model->backups.size(), before);
}

TEST(DeleteBackUp, VersionThreeGoesThroughTheHostToTheBackupService)
{
    CloudEmulator cloud(CloudEmulator::Options::ForFixture("v2"));
    host::SetCurrentHostConfig(space_test::ConfigFor(cloud));
    space_test::WiredViewModel wired;
    wired.viewModel.GetCloudInfo();
    ASSERT_TRUE(wired.viewModel.backupIsV3);
    auto& backups = wired.viewModel.model->backups;
    ASSERT_EQ(backups.size(), 2u);
    EXPECT_EQ(wired.viewModel.DeleteBackUp(backups[0]), DeleteSuccess);
    ASSERT_EQ(backups.size(), 1u);
    EXPECT_EQ(backups[0].deviceId, "dev-0002");
    const Json::Value account = cloud.Account();
    for (const Json::Value& device : account["backup"]["devices"]) {
        if (device["device"]["deviceId"] == "dev-0001") {
            EXPECT_EQ(device["backups"].size(), 0u);
        }
    }
}

TEST(DeleteMessage, MessagesAndCallRecordsAreOneCommandEach)
{
    struct Case
    {
        CloudSpaceType type;
        const char* kind;
    };
    for (const Case& each : {Case{Message, "sms"}, Case{Phone, "calllog"}}) {
        CloudEmulator cloud;
        host::SetCurrentHostConfig(space_test::ConfigFor(cloud));
        space_test::WiredViewModel wired;
        EXPECT_EQ(wired.viewModel.DeleteMessage(each.type), DeleteSuccess) << each.kind;
        const auto bodies = ServletBodies(cloud, "DeleteBackupReq");
        ASSERT_EQ(bodies.size(), 1u);
        EXPECT_EQ(bodies[0]["cmd"].asInt(), 5);
        ASSERT_EQ(bodies[0]["typeList"].size(), 1u);
        EXPECT_EQ(bodies[0]["typeList"][0].asString(), each.kind);
        // The category is gone from the next count.
        std::vector<std::shared_ptr<CloudSpaceItem>> items;
        EXPECT_EQ(wired.viewModel.GetItemSpace(each.type, items), nullptr) << each.kind;
    }
}

TEST(DeleteMessage, RefusedOrMissingReplyIsAFailure)
{
    CloudEmulator cloud;
    host::SetCurrentHostConfig(space_test::ConfigFor(cloud));
    space_test::WiredViewModel wired;
    for (const char* kind : {"status", "empty", "emptyArray", "cut"}) {
        cloud.ClearFaults();
        Json::Value rule;
        rule["kind"] = kind;
        rule["status"] = 500;
        rule["bodyContains"] = "DeleteBackupReq";
        cloud.AddFault(rule);
        EXPECT_EQ(wired.viewModel.DeleteMessage(Message), DeleteFailed) << kind;
        EXPECT_EQ(wired.viewModel.DeleteMessage(Phone), DeleteFailed) << kind;
    }
}

TEST(DeleteHarassment, EveryOtherTypeRemovesOnlyThePhoneManagerFiles)
{
    CloudEmulator cloud;
    host::SetCurrentHostConfig(space_test::ConfigFor(cloud));
    space_test::WiredViewModel wired;
    EXPECT_EQ(wired.viewModel.DeleteMessage(Contact), DeleteSuccess);
    const auto paths = FilePaths(cloud);
    EXPECT_FALSE(Holds(paths, "/BlockedBackup/Nuvo P60 Pro/PhoneManager_intercept_0.db"));
    EXPECT_FALSE(Holds(paths, "/BlockedBackup/Nuvo P60 Pro/phonemanager_calls_0.db"));
    EXPECT_FALSE(Holds(paths, "/BlockedBackup/Nuvo Pad 11/PhoneManager_intercept_1.db"));
    EXPECT_TRUE(Holds(paths, "/BlockedBackup/Nuvo P60 Pro/settings_0.xml"));
    EXPECT_TRUE(Holds(paths, "/BlockedBackup/Nuvo Pad 11/settings_1.xml"));
    EXPECT_TRUE(Holds(paths, "/RecordBackup/Nuvo P60 Pro/Recording 001.m4a"));
    // Nothing left to delete is a failure, on purpose.
    EXPECT_EQ(wired.viewModel.DeleteMessage(HarassmentInterception), DeleteFailed);
    for (int type : {2, 8, 11, 99}) {
        EXPECT_EQ(wired.viewModel.DeleteMessage(static_cast<CloudSpaceType>(type)), DeleteFailed) << type;
    }
}

TEST(DeleteHarassment, EmptyAccountHasNothingToDelete)
{
    CloudEmulator cloud(CloudEmulator::Options::ForFixture("empty"));
    host::SetCurrentHostConfig(space_test::ConfigFor(cloud));
    space_test::WiredViewModel wired;
    cloud.ClearLog();
    EXPECT_EQ(wired.viewModel.DeleteMessage(HarassmentInterception), DeleteFailed);
    for (const Json::Value& request : cloud.RequestLog()) {
        EXPECT_EQ(request["body"].asString().find("rmfile"), std::string::npos);
    }
}

TEST(DeleteHarassment, ResultTableOfTheRemovalReply)
{
    struct Case
    {
        const char* name;
        const char* reply; // null: no reply at all
        DeleteResult result;
    };
    const Case cases[] = {
        {"absent", nullptr, DeleteFailed},
        {"successes only", R"({"successList":[{"name":"a"}],"failList":[]})", DeleteSuccess},
        {"successes and failures",
         R"({"successList":[{"name":"a"}],"failList":[{"name":"b","errCode":403}]})", DeletePartFailed},
        {"failures only", R"({"successList":[],"failList":[{"name":"b","errCode":403}]})", DeleteFailed},
        {"neither", R"({"successList":[],"failList":[]})", DeletePartFailed},
    };
    CloudEmulator cloud;
    host::SetCurrentHostConfig(space_test::ConfigFor(cloud));
    space_test::WiredViewModel wired;
    for (const Case& each : cases) {
        cloud.ClearFaults();
        if (each.reply) {
            AnswerRemoval(cloud, each.reply);
        } else {
            Json::Value rule;
            rule["kind"] = "cut";
            rule["bodyContains"] = "nsp.vfs.rmfile";
            cloud.AddFault(rule);
        }
        EXPECT_EQ(wired.viewModel.DeleteMessage(HarassmentInterception), each.result) << each.name;
        EXPECT_EQ(cloud.Hits()["rules"][0]["hits"].asInt(), 1) << each.name;
    }
}

TEST(DeleteHarassment, OneFileRemovedAndOneRefusedIsAPartialFailure)
{
    CloudEmulator cloud;
    host::SetCurrentHostConfig(space_test::ConfigFor(cloud));
    space_test::WiredViewModel wired;
    // The listing names a file that is gone by the time of the removal: the
    // service removes the others and refuses that one.
    Json::Value rule;
    rule["kind"] = "status";
    rule["status"] = 200;
    rule["bodyContains"] = "nsp.vfs.queryFile&";
    rule["limit"] = 1;
    rule["body"] =
        R"({"fileList":[)"
        R"({"name":"/BlockedBackup/Nuvo P60 Pro/PhoneManager_intercept_0.db","type":"File","size":"524288"},)"
        R"({"name":"/BlockedBackup/Nuvo P60 Pro/phonemanager_gone.db","type":"File","size":"1"}]})";
    cloud.AddFault(rule);
    EXPECT_EQ(wired.viewModel.DeleteMessage(HarassmentInterception), DeletePartFailed);
    EXPECT_FALSE(Holds(FilePaths(cloud), "/BlockedBackup/Nuvo P60 Pro/PhoneManager_intercept_0.db"));
    EXPECT_TRUE(Holds(FilePaths(cloud), "/BlockedBackup/Nuvo P60 Pro/phonemanager_calls_0.db"));
}
