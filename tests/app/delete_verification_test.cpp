// `spacemgm delete` prints what the module returned, reloads the category
// and says whether the service still holds what was deleted. Exit codes: 0
// confirmed, 1 a failure the module reported, 3 the reload failed, 4 the
// reload contradicts a reported success.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cloud_program.h"

namespace {

using app_test::Lines;
using app_test::Rule;
using app_test::RunAgainst;
using app_test::StatusRule;
using spacemgm_test::CloudEmulator;

// Fault on the backup servlet's requests whose body names `info`.
Json::Value ServletRule(const std::string& kind, const std::string& info)
{
    Json::Value rule = Rule("cbs", kind);
    rule["bodyContains"] = info;
    return rule;
}

std::vector<std::string> Expected(const char* result, const char* finding)
{
    return {result, finding};
}

} // namespace

TEST(DeleteVerification, DeletedMessagesAreConfirmedByTheReload)
{
    CloudEmulator cloud;
    const auto run = RunAgainst(cloud, {"delete", "messages"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(Lines(run.out), Expected("DeleteSuccess", "No messages remain on the service."));
    EXPECT_EQ(run.err, "");
}

TEST(DeleteVerification, AReplyThatIsNoJsonPassesForSuccessAndTheReloadContradictsIt)
{
    CloudEmulator cloud;
    cloud.AddFault(ServletRule("notJson", "DeleteBackupReq"));
    const auto run = RunAgainst(cloud, {"delete", "messages"});
    EXPECT_EQ(run.exitCode, 4);
    EXPECT_EQ(Lines(run.out), Expected("DeleteSuccess", "3621 messages remain on the service."));
    EXPECT_EQ(run.err, "cloud backup: /CloudBackup/ClientServlet: the reply is not JSON\n");
}

TEST(DeleteVerification, ASuccessReplyTheServiceDidNotActOnIsContradicted)
{
    CloudEmulator cloud;
    Json::Value rule = StatusRule("cbs", 200, R"({"result":0,"info":"DeleteBackupRsp"})");
    rule["bodyContains"] = "DeleteBackupReq";
    cloud.AddFault(rule);
    const auto run = RunAgainst(cloud, {"delete", "calls"});
    EXPECT_EQ(run.exitCode, 4);
    EXPECT_EQ(Lines(run.out), Expected("DeleteSuccess", "1029 call records remain on the service."));
    EXPECT_EQ(run.err, "");
}

TEST(DeleteVerification, AFailureTheModuleReportsExitsOne)
{
    const std::pair<Json::Value, const char*> faults[] = {
        {ServletRule("empty", "DeleteBackupReq"), "cloud backup: /CloudBackup/ClientServlet: empty reply\n"},
        {ServletRule("cut", "DeleteBackupReq"),
         "cloud backup: /CloudBackup/ClientServlet: the connection closed before the reply was complete\n"},
    };
    for (const auto& [rule, line] : faults) {
        CloudEmulator cloud;
        cloud.AddFault(rule);
        const auto run = RunAgainst(cloud, {"delete", "messages"});
        EXPECT_EQ(run.exitCode, 1) << rule["kind"];
        EXPECT_EQ(Lines(run.out), Expected("DeleteFailed", "3621 messages remain on the service."))
            << rule["kind"];
        EXPECT_EQ(run.err, line);
    }
    CloudEmulator cloud;
    Json::Value status = StatusRule("cbs", 500);
    status["bodyContains"] = "DeleteBackupReq";
    cloud.AddFault(status);
    const auto run = RunAgainst(cloud, {"delete", "messages"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(Lines(run.out)[0], "DeleteFailed");
    EXPECT_EQ(run.err, "cloud backup: /CloudBackup/ClientServlet: HTTP 500\n");
}

TEST(DeleteVerification, AFailedReloadLeavesTheDeletionUnchecked)
{
    CloudEmulator cloud;
    Json::Value rule = StatusRule("cbs", 503);
    rule["bodyContains"] = "CountByDeviceReq";
    cloud.AddFault(rule);
    const auto run = RunAgainst(cloud, {"delete", "messages"});
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(Lines(run.out), Expected("DeleteSuccess", "Could not check the service: the reload failed."));
    EXPECT_EQ(run.err, "cloud backup: /CloudBackup/ClientServlet: HTTP 503\n");
}

TEST(DeleteVerification, HarassmentRecordsDeletedAndARemovalThatDidNotHappen)
{
    {
        CloudEmulator cloud;
        const auto run = RunAgainst(cloud, {"delete", "harassment"});
        EXPECT_EQ(run.exitCode, 0) << run.err;
        EXPECT_EQ(Lines(run.out),
                  Expected("DeleteSuccess", "No harassment filter records remain on the service."));
    }
    CloudEmulator cloud;
    Json::Value rule = StatusRule("nsp", 200, R"({"successList":[{"name":"/x"}],"failList":[]})");
    rule["bodyContains"] = "nsp.vfs.rmfile";
    cloud.AddFault(rule);
    const auto run = RunAgainst(cloud, {"delete", "harassment"});
    EXPECT_EQ(run.exitCode, 4);
    EXPECT_EQ(Lines(run.out),
              Expected("DeleteSuccess", "1.25 MB of harassment filter records remain on the service."));
}

TEST(DeleteVerification, AVersionOneBackupDeletedAndOneThatStayed)
{
    {
        CloudEmulator cloud;
        const auto run = RunAgainst(cloud, {"delete", "backup", "bk-0001-a1f3"});
        EXPECT_EQ(run.exitCode, 0) << run.err;
        EXPECT_EQ(Lines(run.out),
                  Expected("DeleteSuccess", "No backup of device bk-0001-a1f3 remains on the service."));
    }
    CloudEmulator cloud;
    cloud.AddFault(ServletRule("notJson", "DeleteDeviceBackupRecordReq"));
    const auto run = RunAgainst(cloud, {"delete", "backup", "bk-0001-a1f3"});
    EXPECT_EQ(run.exitCode, 4);
    EXPECT_EQ(Lines(run.out),
              Expected("DeleteSuccess",
                       "The backup of device bk-0001-a1f3 (Nuvo P60 Pro) remains on the service: 28.00 GB."));
}

TEST(DeleteVerification, AnUnknownVersionOneDeviceIsAFailure)
{
    CloudEmulator cloud;
    const auto run = RunAgainst(cloud, {"delete", "backup", "no-such-device"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(Lines(run.out),
              Expected("DeleteFailed", "No backup of device no-such-device remains on the service."));
}

TEST(DeleteVerification, AVersionThreeBackupIsDeletedThroughTheHost)
{
    CloudEmulator cloud(CloudEmulator::Options::ForFixture("v2"));
    const auto run = RunAgainst(cloud, {"delete", "backup", "dev-0001"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(Lines(run.out),
              Expected("DeleteSuccess", "No backup of device dev-0001 remains on the service."));
    const Json::Value devices = cloud.Account()["backup"]["devices"];
    for (const Json::Value& device : devices) {
        if (device["device"]["deviceId"].asString() == "dev-0001") {
            EXPECT_EQ(device["backups"].size(), 0u);
        }
    }
}

TEST(DeleteVerification, AnUnknownVersionThreeDeviceIsAFailure)
{
    CloudEmulator cloud(CloudEmulator::Options::ForFixture("v2"));
    const auto run = RunAgainst(cloud, {"delete", "backup", "no-such-device"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(Lines(run.out),
              Expected("DeleteFailed", "No backup of device no-such-device remains on the service."));
}

TEST(DeleteVerification, AVersionThreeDeviceWithNothingLeftIsAFailure)
{
    CloudEmulator cloud(CloudEmulator::Options::ForFixture("v2"));
    ASSERT_EQ(RunAgainst(cloud, {"delete", "backup", "dev-0002"}).exitCode, 0);
    const auto again = RunAgainst(cloud, {"delete", "backup", "dev-0002"});
    EXPECT_EQ(again.exitCode, 1);
    EXPECT_EQ(Lines(again.out)[0], "DeleteFailed");
}
