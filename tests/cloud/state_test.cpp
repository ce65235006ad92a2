// Deletions change the account; with a state file the change outlives the
// process, and a kill -9 at any moment leaves a state file that loads.
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <thread>
#include <unistd.h>

#include "cloud_test_client.h"

namespace spacemgm_test {
namespace {

Json::Value Cmd(const std::string& text)
{
    return ParseJsonText(text);
}

int64_t BackupGroup(const CloudEmulator& cloud)
{
    return cloud.Account()["groups"]["backup"].asInt64();
}

TEST(Deletion, DeviceBackupDisappearsFromListQuotaAndAccount)
{
    CloudEmulator cloud;
    CloudTestClient client(cloud, "sample");
    const int64_t before = BackupGroup(cloud);
    CloudReply del = client.Backup(
        Cmd(R"({"cmd":27,"info":"DeleteDeviceBackupRecordReq","deviceId":"dev-0001","deviceType":1})"));
    ASSERT_EQ(del.status, 200) << del.body;
    EXPECT_EQ(del.json["result"].asInt(), 0);

    CloudReply all =
        client.Backup(Cmd(R"({"cmd":36,"info":"QueryAllDevicesBackupRecordReq","version":"V3"})"));
    for (const auto& rec : all.json["backupRecords"])
        EXPECT_NE(rec["device"]["deviceId"].asString(), "dev-0001");
    EXPECT_EQ(all.json["backupRecords"].size(), 1u);
    CloudReply quota =
        client.QuotaQuery("collection=private and deviceId in [bk-0001-a1f3,bk-0002-a1f3]", "2000");
    ASSERT_EQ(quota.json["quotaDetails"].size(), 1u);
    EXPECT_EQ(quota.json["quotaDetails"][0]["deviceId"].asString(), "bk-0002-a1f3");
    EXPECT_EQ(before - BackupGroup(cloud), 28LL * 1024 * 1024 * 1024);
}

TEST(Deletion, EmptyDeviceIdIsAnError)
{
    CloudEmulator cloud;
    CloudTestClient client(cloud, "sample");
    CloudReply del =
        client.Backup(Cmd(R"({"cmd":27,"info":"DeleteDeviceBackupRecordReq","deviceId":"","deviceType":0})"));
    EXPECT_NE(del.json["result"].asInt(), 0);
}

TEST(Deletion, MessagesClearedCallRecordsKept)
{
    CloudEmulator cloud;
    CloudTestClient client(cloud, "sample");
    CloudReply del = client.Backup(
        Cmd(R"({"cmd":5,"info":"DeleteBackupReq","devId":"","deviceType":0,"typeList":["sms"]})"));
    EXPECT_EQ(del.json["result"].asInt(), 0);
    Json::Value account = cloud.Account();
    for (const auto& d : account["messages"]["devices"]) {
        EXPECT_EQ(d["sms"].asInt(), 0);
        EXPECT_GT(d["callLog"].asInt(), 0);
    }
    CloudReply calls = client.Backup(
        Cmd(R"({"cmd":5,"info":"DeleteBackupReq","devId":"","deviceType":0,"typeList":["calllog"]})"));
    EXPECT_EQ(calls.json["result"].asInt(), 0);
    const Json::Value cleared = cloud.Account();
    for (const auto& d : cleared["messages"]["devices"])
        EXPECT_EQ(d["callLog"].asInt(), 0);
}

TEST(Deletion, RemovedFileGoneMissingFileInFailList)
{
    CloudEmulator cloud;
    CloudTestClient client(cloud, "sample");
    const std::string folder = "/BlockedBackup/Nuvo P60 Pro";
    const std::string file = folder + "/PhoneManager_intercept_0.db";
    CloudReply r =
        client.Nsp("nsp.vfs.rmfile",
                   {{"files", ListText({file, folder + "/nothing.db", folder + "/PhoneManager_cache"})},
                    {"reserve", "False"}});
    ASSERT_EQ(r.status, 200) << r.body;
    ASSERT_EQ(r.json["successList"].size(), 1u);
    EXPECT_EQ(r.json["successList"][0]["name"].asString(), file);
    EXPECT_EQ(r.json["failList"].size(), 2u) << "a missing file and a folder are refused";
    CloudReply list = client.Nsp("nsp.vfs.queryFile", {{"paths", ListText({folder})}});
    for (const auto& e : list.json["fileList"])
        EXPECT_NE(e["name"].asString(), file);
}

TEST(Deletion, ResetRestoresTheFixture)
{
    CloudEmulator cloud;
    CloudTestClient client(cloud, "sample");
    const int64_t before = BackupGroup(cloud);
    client.Backup(
        Cmd(R"({"cmd":27,"info":"DeleteDeviceBackupRecordReq","deviceId":"dev-0002","deviceType":2})"));
    EXPECT_LT(BackupGroup(cloud), before);
    cloud.Reset();
    EXPECT_EQ(BackupGroup(cloud), before);
}

class StateFile : public ::testing::Test
{
protected:
    void SetUp() override
    {
        char pattern[] = "/tmp/spacemgm-cloud-state-XXXXXX";
        ASSERT_NE(mkdtemp(pattern), nullptr);
        dir = pattern;
        statePath = dir + "/state.json";
    }
    void TearDown() override
    {
        std::string command = "rm -rf '" + dir + "'";
        EXPECT_EQ(std::system(command.c_str()), 0);
    }
    std::string dir;
    std::string statePath;
};

TEST_F(StateFile, DeletionSurvivesARestart)
{
    CloudEmulator::Options options;
    options.stateFile = statePath;
    int64_t after = 0;
    {
        CloudEmulator cloud(options);
        CloudTestClient client(cloud, "sample");
        client.Backup(
            Cmd(R"({"cmd":27,"info":"DeleteDeviceBackupRecordReq","deviceId":"dev-0001","deviceType":1})"));
        after = BackupGroup(cloud);
        EXPECT_EQ(cloud.Stop(), 0) << "SIGTERM ends the emulator cleanly";
    }
    CloudEmulator again(options);
    EXPECT_EQ(BackupGroup(again), after);
    CloudTestClient client(again, "sample");
    CloudReply all =
        client.Backup(Cmd(R"({"cmd":36,"info":"QueryAllDevicesBackupRecordReq","version":"V3"})"));
    EXPECT_EQ(all.json["backupRecords"].size(), 1u);
}

TEST_F(StateFile, KillNineDuringAStreamOfDeletionsNeverLeavesABrokenFile)
{
    CloudEmulator::Options options;
    options.stateFile = statePath;
    std::mt19937 random(12345);
    int deletionsSeen = 0;
    for (int round = 0; round < 50; ++round) {
        // The constructor fails if the state file left by the last kill does not load.
        CloudEmulator cloud(options);
        CloudTestClient client(cloud, "sample");
        std::atomic<bool> stop{false};
        std::atomic<int> done{0};
        std::thread stream([&] {
            const std::string folder = "/Sync/note/";
            for (int k = 0; !stop; ++k) {
                if (k % 20 == 19) {
                    HttpExchange("POST", cloud.Root() + "/_admin/reset", {}, "", "", 2000);
                    continue;
                }
                char name[32];
                std::snprintf(name, sizeof name, "note_%03d.json", k % 57);
                CloudReply r = client.Nsp("nsp.vfs.rmfile",
                                          {{"files", ListText({folder + name})}, {"reserve", "False"}});
                if (r.curlCode != 0)
                    break;
                ++done;
            }
        });
        // The kill lands a random moment after the first deletion: on a slow
        // build (ThreadSanitizer) the first one alone takes longer than the window.
        const auto firstDeadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
        while (done == 0 && std::chrono::steady_clock::now() < firstDeadline)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        std::this_thread::sleep_for(std::chrono::milliseconds(5 + random() % 40));
        cloud.Kill9();
        stop = true;
        stream.join();
        deletionsSeen += done;

        std::ifstream in(statePath);
        ASSERT_TRUE(in.good()) << "round " << round;
        std::stringstream text;
        text << in.rdbuf();
        Json::Value state = ParseJsonText(text.str());
        ASSERT_TRUE(state.isObject()) << "round " << round << ": the state file is not whole JSON";
        ASSERT_TRUE(state["files"].isArray());
    }
    EXPECT_GT(deletionsSeen, 50) << "the kills must land among deletions, not before them";
    CloudEmulator last(options);
    EXPECT_TRUE(last.Account()["files"].isArray());
}

// CI runs as root, so permissions cannot stop a write: removing the state's
// folder while the emulator runs does. Each change below must then be
// refused in the service's own error shape and leave the account as the
// state file had it; once the folder is back, the next change is kept.
class UnwritableState : public StateFile
{
protected:
    void SetUp() override
    {
        StateFile::SetUp();
        CloudEmulator::Options options;
        options.stateFile = statePath;
        cloud = std::make_unique<CloudEmulator>(options);
        client = std::make_unique<CloudTestClient>(*cloud, "sample");
        before = cloud->Account();
        ASSERT_TRUE(std::filesystem::remove_all(dir) > 0);
    }
    void TearDown() override
    {
        client.reset();
        cloud.reset();
        StateFile::TearDown();
    }
    void ExpectAccountAsBefore() const
    {
        Json::Value now = cloud->Account();
        EXPECT_EQ(now["groups"], before["groups"]);
        EXPECT_EQ(now["backup"], before["backup"]);
        EXPECT_EQ(now["messages"], before["messages"]);
        EXPECT_EQ(now["files"], before["files"]);
    }
    std::unique_ptr<CloudEmulator> cloud;
    std::unique_ptr<CloudTestClient> client;
    Json::Value before;
};

TEST_F(UnwritableState, DeviceBackupDeletionIsRefusedAndNotMade)
{
    CloudReply del = client->Backup(
        Cmd(R"({"cmd":27,"info":"DeleteDeviceBackupRecordReq","deviceId":"dev-0001","deviceType":1})"));
    EXPECT_EQ(del.status, 500) << del.body;
    EXPECT_NE(del.json["result"].asInt(), 0) << del.body;
    EXPECT_NE(del.json["info"].asString().find("state"), std::string::npos) << del.body;
    ExpectAccountAsBefore();

    ASSERT_TRUE(std::filesystem::create_directories(dir));
    CloudReply again = client->Backup(
        Cmd(R"({"cmd":27,"info":"DeleteDeviceBackupRecordReq","deviceId":"dev-0002","deviceType":2})"));
    EXPECT_EQ(again.json["result"].asInt(), 0) << again.body;
    ASSERT_EQ(cloud->Stop(), 0);
    CloudEmulator::Options options;
    options.stateFile = statePath;
    CloudEmulator restarted(options);
    const Json::Value devices = restarted.Account()["backup"]["devices"];
    ASSERT_EQ(devices.size(), 1u)
        << "the refused deletion must not come back as done, nor the kept one undone";
    EXPECT_EQ(devices[0]["device"]["deviceId"].asString(), "dev-0001");
}

TEST_F(UnwritableState, MessageDeletionIsRefusedAndNotMade)
{
    CloudReply del = client->Backup(
        Cmd(R"({"cmd":5,"info":"DeleteBackupReq","devId":"","deviceType":0,"typeList":["sms","calllog"]})"));
    EXPECT_EQ(del.status, 500) << del.body;
    EXPECT_NE(del.json["result"].asInt(), 0) << del.body;
    ExpectAccountAsBefore();
}

TEST_F(UnwritableState, FileRemovalIsRefusedAndNotMade)
{
    const std::string file = "/BlockedBackup/Nuvo P60 Pro/PhoneManager_intercept_0.db";
    CloudReply r = client->Nsp("nsp.vfs.rmfile", {{"files", ListText({file})}, {"reserve", "False"}});
    EXPECT_EQ(r.status, 500) << r.body;
    EXPECT_FALSE(r.json.isMember("successList")) << r.body;
    EXPECT_TRUE(r.json.isMember("errCode")) << r.body;
    ExpectAccountAsBefore();
}

TEST_F(UnwritableState, ResetIsRefusedAndNotMade)
{
    ASSERT_TRUE(std::filesystem::create_directories(dir));
    client->Backup(
        Cmd(R"({"cmd":27,"info":"DeleteDeviceBackupRecordReq","deviceId":"dev-0001","deviceType":1})"));
    before = cloud->Account();
    ASSERT_TRUE(std::filesystem::remove_all(dir) > 0);
    HttpResult r = HttpExchange("POST", cloud->Root() + "/_admin/reset", {}, "");
    EXPECT_EQ(r.status, 500) << r.body;
    ExpectAccountAsBefore();
}

} // namespace
} // namespace spacemgm_test
