// Accounts with thousands of backup devices: the quota query that names
// every device, and the list of every backup, are answered whole. The query
// text grows with the account, so nothing that reads it may take stack or
// time in proportion to its length more than once.
#include <gtest/gtest.h>

#include <cstdio>

#include "cloud_test_client.h"
#include "scratch_folder.h"

namespace spacemgm_test {
namespace {

std::string Numbered(const char* prefix, int i)
{
    char text[32];
    std::snprintf(text, sizeof text, "%s-%05d", prefix, i);
    return text;
}

// Backup device ids as long as the service's own.
std::string BackupDeviceId(int i)
{
    return Numbered("bk", i) + "-a1f3c9d2e7b4";
}

// The empty account with `count` backup devices of one backup each. The
// device list is written as text: building it as a JSON tree costs minutes
// under ThreadSanitizer.
std::string FixtureWithDevices(const ScratchFolder& dir, int count)
{
    Json::Value fixture = ReadFixture("empty");
    fixture["backup"]["generation"] = "v3";
    fixture["backup"]["devices"] = "@devices@";
    std::string devices = "[";
    for (int i = 0; i < count; ++i) {
        devices += std::string(i ? "," : "") + R"({"device":{"deviceId":")" + Numbered("dev", i) +
                   R"(","devDisplayName":")" + Numbered("Phone", i) + R"("},"backupDeviceId":")" +
                   BackupDeviceId(i) + R"(","backups":[{"backupId":")" + Numbered("b", i) + R"(","size":)" +
                   std::to_string(1000 + i) + "}]}";
    }
    std::string text = CompactJson(fixture);
    const std::string placeholder = "\"@devices@\"";
    text.replace(text.find(placeholder), placeholder.size(), devices + "]");
    return dir.Write("many-devices.json", text);
}

class ManyBackupDevices : public ::testing::TestWithParam<int>
{
};

TEST_P(ManyBackupDevices, QuotaOfEveryDeviceAndTheListOfEveryBackupAreAnswered)
{
    const int count = GetParam();
    ScratchFolder dir;
    CloudEmulator::Options options;
    options.fixture = FixtureWithDevices(dir, count);
    CloudEmulator cloud(options);
    CloudTestClient client(cloud, options.fixture);

    std::string ids;
    int64_t expectedBytes = 0;
    for (int i = 0; i < count; ++i) {
        ids += (i ? "," : "") + BackupDeviceId(i);
        expectedBytes += 1000 + i;
    }
    // Replies of megabytes, made and read under a sanitizer on a busy machine, take their time.
    const long patientMs = 120000;
    CloudReply quota = client.Send(
        "familyShare", "POST", "/rest.php",
        QuotaForm(client.Session().accessToken, "collection=private and deviceId in [" + ids + "]", "2000"),
        nullptr, patientMs);
    ASSERT_EQ(quota.status, 200) << "curl " << quota.curlCode << ": " << quota.body.substr(0, 300);
    EXPECT_EQ(quota.json["quotaDetails"].size(), static_cast<Json::ArrayIndex>(count));
    EXPECT_EQ(quota.json["used"].asInt64(), expectedBytes);
    EXPECT_EQ(quota.json["quotaDetails"][count - 1]["deviceId"].asString(), BackupDeviceId(count - 1));

    CloudReply all = client.Send("cbs", "POST", "/CloudBackup/ClientServlet",
                                 R"({"cmd":36,"info":"QueryAllDevicesBackupRecordReq","version":"V3"})",
                                 nullptr, patientMs);
    ASSERT_EQ(all.status, 200) << "curl " << all.curlCode;
    EXPECT_EQ(all.json["backupRecords"].size(), static_cast<Json::ArrayIndex>(count));
    CloudReply accountQuota = client.Send("accountQuota", "GET", "", "", nullptr, patientMs);
    EXPECT_EQ(accountQuota.json["backup"].asInt64(), expectedBytes);
}

INSTANTIATE_TEST_SUITE_P(Counts, ManyBackupDevices, ::testing::Values(3000, 50000),
                         [](const ::testing::TestParamInfo<int>& info) {
                             return std::to_string(info.param) + "Devices";
                         });

} // namespace
} // namespace spacemgm_test
