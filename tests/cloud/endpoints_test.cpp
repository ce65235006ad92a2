// Every endpoint, answered from every fixture, checked against the fixture's
// own numbers (read here from the fixture file, not from the emulator).
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <set>

#include "cloud_test_client.h"

namespace spacemgm_test {
namespace {

const std::map<std::string, std::pair<std::string, std::string>> kPimServices = {
    {"contact", {"1000", "/Statistic/Contact"}},   {"notepad", {"1001", "/Statistic/Notepad"}},
    {"calendar", {"1002", "/Statistic/Calendar"}}, {"wlan", {"1004", "/Statistic/Wlan"}},
    {"browser", {"1005", "/Statistic/Browser"}},
};

class EveryEndpoint : public ::testing::TestWithParam<std::string>
{
protected:
    static std::map<std::string, std::unique_ptr<CloudEmulator>>& Emulators()
    {
        static std::map<std::string, std::unique_ptr<CloudEmulator>> emulators;
        return emulators;
    }
    static void TearDownTestSuite() { Emulators().clear(); }

    void SetUp() override
    {
        auto& slot = Emulators()[GetParam()];
        if (!slot) {
            CloudEmulator::Options options;
            options.fixture = GetParam();
            slot = std::make_unique<CloudEmulator>(options);
        }
        cloud = slot.get();
        client = std::make_unique<CloudTestClient>(*cloud, GetParam());
        fixture = ReadFixture(GetParam());
        ASSERT_TRUE(fixture.isObject());
    }

    int64_t FileBytesUnder(const std::string& prefix) const
    {
        int64_t total = 0;
        for (const auto& f : fixture["files"])
            if (f["path"].asString().rfind(prefix, 0) == 0)
                total += f["size"].asInt64();
        return total;
    }

    CloudEmulator* cloud = nullptr;
    std::unique_ptr<CloudTestClient> client;
    Json::Value fixture;
};

TEST_P(EveryEndpoint, PhotoQuotaReportsGalleryBytesAndBin)
{
    CloudReply r = client->QuotaQuery("collection=photo and (trashed=true or trashed=false)", "10880002");
    ASSERT_EQ(r.status, 200) << r.body;
    const int64_t bytes = fixture["gallery"]["bytes"].asInt64();
    const int64_t bin = fixture["gallery"]["recycleBytes"].asInt64();
    EXPECT_EQ(r.json["retCode"].asInt(), 0);
    EXPECT_EQ(r.json["used"].asInt64(), bytes + bin);
    ASSERT_EQ(r.json["quotaDetails"].size(), 2u);
    for (const auto& d : r.json["quotaDetails"]) {
        ASSERT_TRUE(d["trashed"].isBool());
        EXPECT_EQ(d["assetsQuotadSpace"].asInt64(), d["trashed"].asBool() ? bin : bytes);
        EXPECT_EQ(d["collection"].asString(), "photo");
        for (const char* key : {"statistics", "serviceType", "recordsQuotadSpace", "appId", "parentId"})
            EXPECT_TRUE(d.isMember(key)) << key;
    }
}

TEST_P(EveryEndpoint, DriveQuotaAndDriveBinQuery)
{
    CloudReply used = client->Send("familyShare", "GET", "/user/v1/quota/drive", "");
    ASSERT_EQ(used.status, 200) << used.body;
    EXPECT_EQ(used.json["retCode"].asInt(), 0);
    EXPECT_EQ(used.json["used"].asInt64(), fixture["drive"]["used"].asInt64());

    CloudReply bin = client->QuotaQuery("collection=drive and (trashed=true)", "10781986");
    ASSERT_EQ(bin.status, 200) << bin.body;
    EXPECT_EQ(bin.json["retCode"].asInt(), 0);
    EXPECT_EQ(bin.json["used"].asInt64(), fixture["drive"]["recycleBytes"].asInt64());
}

TEST_P(EveryEndpoint, DeviceQuotaAnswersEveryBackupDevice)
{
    std::string ids;
    int64_t total = 0;
    std::map<std::string, int64_t> expected;
    for (const auto& d : fixture["backup"]["devices"]) {
        int64_t size = 0;
        for (const auto& b : d["backups"])
            size += b["size"].asInt64();
        expected[d["backupDeviceId"].asString()] = size;
        total += size;
        ids += (ids.empty() ? "" : ",") + d["backupDeviceId"].asString();
    }
    CloudReply r = client->QuotaQuery("collection=private and deviceId in [" + ids + "]", "2000");
    ASSERT_EQ(r.status, 200) << r.body;
    EXPECT_EQ(r.json["retCode"].asInt(), 0);
    EXPECT_EQ(r.json["used"].asInt64(), total);
    ASSERT_EQ(r.json["quotaDetails"].size(), expected.size());
    for (const auto& d : r.json["quotaDetails"]) {
        ASSERT_TRUE(d["trashed"].isString()) << "backup details carry trashed as text";
        EXPECT_EQ(d["assetsQuotadSpace"].asInt64(), expected.at(d["deviceId"].asString()));
    }
}

TEST_P(EveryEndpoint, KindQuotaAnswersOnlyVersion2Stores)
{
    for (const auto& [name, service] : kPimServices) {
        const Json::Value& category = fixture["pim"][name];
        std::string kinds;
        for (const auto& k : category["kinds"])
            kinds += (kinds.empty() ? "" : ",") + k.asString();
        CloudReply r = client->QuotaQuery("collection=private and kind in [" + kinds +
                                              "] and (trashed=true or trashed=false)",
                                          service.first);
        ASSERT_EQ(r.status, 200) << name << ": " << r.body;
        ASSERT_EQ(r.json["quotaDetails"].size(), category["records"].size()) << name;
        int64_t used = 0;
        for (Json::ArrayIndex i = 0; i < category["records"].size(); ++i) {
            const Json::Value& want = category["records"][i];
            const Json::Value& got = r.json["quotaDetails"][i];
            used += want["assetsQuotadSpace"].asInt64();
            EXPECT_EQ(got["kind"].asString(), want["kind"].asString());
            EXPECT_EQ(got["trashed"].asString(), want["trashed"].asBool() ? "true" : "false");
            EXPECT_EQ(got["recordsCount"].asInt64(), want["recordsCount"].asInt64());
            EXPECT_EQ(got["assetsQuotadSpace"].asInt64(), want["assetsQuotadSpace"].asInt64());
        }
        EXPECT_EQ(r.json["used"].asInt64(), used) << name;
    }
}

TEST_P(EveryEndpoint, StatisticsAnswerVersion1Counts)
{
    for (const auto& [name, service] : kPimServices) {
        CloudReply r = client->Send("pimds", "GET", service.second, "");
        ASSERT_EQ(r.status, 200) << name << ": " << r.body;
        EXPECT_EQ(r.json["result"]["errorNo"].asInt(), 0);
        const Json::Value& want = fixture["pim"][name]["statistics"];
        ASSERT_EQ(r.json["data"].size(), want.size()) << name;
        for (Json::ArrayIndex i = 0; i < want.size(); ++i) {
            EXPECT_EQ(r.json["data"][i]["source"].asString(), want[i]["source"].asString());
            EXPECT_EQ(r.json["data"][i]["sumNum"].asInt(), want[i]["sumNum"].asInt());
        }
    }
}

TEST_P(EveryEndpoint, DataVersionOfEachCategory)
{
    for (const auto& [name, service] : kPimServices) {
        CloudReply r = client->Send("cloudSyncDrive", "GET",
                                    "/dataSync/v1/service/" + service.first +
                                        "/about?fields=dataVersion,kinds,maxBatchNumber,status",
                                    "");
        ASSERT_EQ(r.status, 200) << name << ": " << r.body;
        EXPECT_EQ(r.json["dataVersion"].asString(), fixture["pim"][name]["dataVersion"].asString()) << name;
        EXPECT_EQ(r.json["status"], fixture["pim"][name]["status"]) << name;
        EXPECT_EQ(r.json["kinds"], fixture["pim"][name]["kinds"]) << name;
        EXPECT_TRUE(r.json["maxBatchNumber"].isInt());
    }
}

TEST_P(EveryEndpoint, PhotoAboutAnswersTheAskedFields)
{
    CloudReply r = client->Send(
        "cloudPhoto", "GET",
        "/cloudPhoto/v1/about?fields=dataVersion,status,maxBatchNumber,maxFileUploadSize,maxThumbnailSize",
        "");
    ASSERT_EQ(r.status, 200) << r.body;
    EXPECT_EQ(r.json["dataVersion"].asString(), fixture["about"]["dataVersion"].asString());
    EXPECT_EQ(r.json["status"], fixture["about"]["status"]);
    EXPECT_TRUE(r.json["maxFileUploadSize"].isString());
    EXPECT_TRUE(r.json["maxThumbnailSize"].isInt64());
    EXPECT_FALSE(r.json.isMember("domain")) << "only the asked fields come back";
}

TEST_P(EveryEndpoint, AllBackupsListEveryRecordOfEveryDevice)
{
    Json::Value body;
    body["cmd"] = 36;
    body["info"] = "QueryAllDevicesBackupRecordReq";
    body["version"] = "V3";
    CloudReply r = client->Backup(body);
    ASSERT_EQ(r.status, 200) << r.body;
    EXPECT_EQ(r.json["result"].asInt(), 0);
    std::map<std::string, int64_t> want, got;
    size_t records = 0;
    for (const auto& d : fixture["backup"]["devices"])
        for (const auto& b : d["backups"]) {
            want[d["backupDeviceId"].asString()] += b["size"].asInt64();
            ++records;
        }
    ASSERT_EQ(r.json["backupRecords"].size(), records);
    for (const auto& rec : r.json["backupRecords"]) {
        got[rec["backupDeviceId"].asString()] += rec["size"].asInt64();
        EXPECT_FALSE(rec["device"]["deviceId"].asString().empty());
        EXPECT_TRUE(rec.isMember("extend") && rec.isMember("appIdInfos"));
    }
    EXPECT_EQ(got, want);
}

TEST_P(EveryEndpoint, MessageAndCallCountsArePagedUntilAnEmptyList)
{
    const Json::Value& devices = fixture["messages"]["devices"];
    const size_t page = fixture["messages"]["pageSize"].asUInt();
    for (const std::string kind : {"sms", "callLog"}) {
        int64_t want = 0;
        for (const auto& d : devices)
            want += d[kind].asInt64();
        Json::Value body;
        body["cmd"] = 9;
        body["info"] = "CountByDeviceReq";
        body["type"] = kind;
        body["deviceList"] = Json::Value(Json::arrayValue);
        int64_t sum = 0;
        size_t replies = 0;
        while (true) {
            CloudReply r = client->Backup(body);
            ASSERT_EQ(r.status, 200) << r.body;
            ASSERT_EQ(r.json["result"].asInt(), 0);
            ++replies;
            ASSERT_LT(replies, 1000u) << "the paging must end";
            for (const auto& c : r.json["countRet"])
                sum += c["count"].asInt64();
            if (r.json["deviceList"].empty())
                break;
            body["deviceList"] = r.json["deviceList"];
        }
        EXPECT_EQ(sum, want) << kind;
        size_t pages = devices.empty() ? 1 : (devices.size() + page - 1) / page;
        EXPECT_EQ(replies, pages) << kind;
    }
}

TEST_P(EveryEndpoint, RecordingFoldersWalkedAsTheRecorderDoes)
{
    const bool cn = fixture["session"]["country"].asString() == "CN";
    const std::string root = cn ? "/Nuvora" : "/RecordBackup";
    CloudReply list = client->Nsp("nsp.vfs.queryFolder", {{"paths", ListText({root})}});
    ASSERT_EQ(list.status, 200) << list.body;
    std::vector<std::string> paths;
    for (const auto& entry : list.json["fileList"]) {
        EXPECT_EQ(entry["type"].asString(), "Directory");
        EXPECT_TRUE(entry["size"].isString()) << "NSP numbers arrive as text";
        paths.push_back(entry["name"].asString() + (cn ? "/media/recording" : ""));
    }
    if (paths.empty()) {
        EXPECT_EQ(FileBytesUnder(root + "/"), 0);
        return;
    }
    CloudReply attrs = client->Nsp("nsp.vfs.getattr", {{"fields", ListText({"name", "space", "fileCount"})},
                                                       {"files", ListText(paths)}});
    ASSERT_EQ(attrs.status, 200) << attrs.body;
    int64_t space = 0, count = 0, want = 0, wantCount = 0;
    for (const auto& e : attrs.json["successList"]) {
        EXPECT_EQ(e["type"].asString(), "Directory");
        space += std::stoll(e["space"].asString());
        count += e["fileCount"].asInt();
    }
    for (const auto& f : fixture["files"]) {
        std::string p = f["path"].asString();
        if (p.rfind(root + "/", 0) == 0 && p.find(".m4a") != std::string::npos) {
            want += f["size"].asInt64();
            ++wantCount;
        }
    }
    EXPECT_EQ(space, want);
    EXPECT_EQ(count, wantCount);
}

TEST_P(EveryEndpoint, BlockedFilesListedWithTheirTypes)
{
    const bool cn = fixture["session"]["country"].asString() == "CN";
    const std::string root = cn ? "/Nuvora" : "/BlockedBackup";
    CloudReply list = client->Nsp("nsp.vfs.queryFolder", {{"paths", ListText({root})}});
    ASSERT_EQ(list.status, 200) << list.body;
    std::vector<std::string> paths;
    for (const auto& entry : list.json["fileList"])
        paths.push_back(entry["name"].asString() + (cn ? "/sysdata" : ""));
    if (paths.empty())
        return;
    CloudReply files = client->Nsp("nsp.vfs.queryFile", {{"paths", ListText(paths)}});
    ASSERT_EQ(files.status, 200) << files.body;
    int64_t got = 0, want = 0;
    bool sawFolder = false;
    for (const auto& e : files.json["fileList"]) {
        if (e["type"].asString() == "File")
            got += std::stoll(e["size"].asString());
        sawFolder = sawFolder || e["type"].asString() == "Directory";
    }
    for (const auto& f : fixture["files"]) {
        std::string p = f["path"].asString();
        for (const auto& folder : paths)
            if (p.rfind(folder + "/", 0) == 0 && p.find('/', folder.size() + 1) == std::string::npos)
                want += f["size"].asInt64();
    }
    EXPECT_EQ(got, want);
    EXPECT_TRUE(sawFolder) << "the fixtures keep a folder beside the files";
}

TEST_P(EveryEndpoint, NotepadFolderAttributes)
{
    CloudReply r = client->Nsp(
        "nsp.vfs.getattr", {{"fields", ListText({"name", "space"})}, {"files", ListText({"/Sync/note"})}});
    ASSERT_EQ(r.status, 200) << r.body;
    ASSERT_EQ(r.json["successList"].size(), 1u);
    EXPECT_EQ(std::stoll(r.json["successList"][0]["space"].asString()), FileBytesUnder("/Sync/note/"));
}

TEST_P(EveryEndpoint, AccountQuotaGroupsAddUpToUsed)
{
    CloudReply r = client->Send("accountQuota", "GET", "", "");
    ASSERT_EQ(r.status, 200) << r.body;
    const Json::Value& q = r.json;
    EXPECT_EQ(q["retCode"].asInt(), 0);
    int64_t sum = 0;
    for (const char* group : {"backup", "drive", "photos", "other", "family"})
        sum += q[group].asInt64();
    EXPECT_EQ(q["used"].asInt64(), sum);
    EXPECT_EQ(q["total"].asInt64(), fixture["quota"]["total"].asInt64());
    EXPECT_EQ(q["drive"].asInt64(), fixture["drive"]["used"].asInt64());
    EXPECT_EQ(q["photos"].asInt64(),
              fixture["gallery"]["bytes"].asInt64() + fixture["gallery"]["recycleBytes"].asInt64());
    const double freeMb = static_cast<double>(q["total"].asInt64() - q["used"].asInt64()) / 1024 / 1024;
    if (GetParam() == "full")
        EXPECT_LT(freeMb, 15.36);
    else
        EXPECT_GT(freeMb, 15.36);
    if (GetParam() == "sample") {
        double share = static_cast<double>(q["used"].asInt64()) / static_cast<double>(q["total"].asInt64());
        EXPECT_NEAR(share, 0.6, 0.02);
        EXPECT_EQ(q["total"].asInt64(), 200LL * 1024 * 1024 * 1024);
    }
}

TEST_P(EveryEndpoint, ConfigurationFileDownload)
{
    HttpResult r = HttpExchange("GET", cloud->BaseUrl("omConfig"), {}, "", cloud->CaFile());
    if (fixture["omConfig"].isNull()) {
        EXPECT_EQ(r.status, 404);
        return;
    }
    ASSERT_EQ(r.status, 200);
    Json::Value config = ParseJsonText(r.body);
    EXPECT_EQ(config, fixture["omConfig"]);
    EXPECT_EQ(config["cloud_space_usage"]["items"].size(), 5u);
}

INSTANTIATE_TEST_SUITE_P(Fixtures, EveryEndpoint,
                         ::testing::Values("sample", "empty", "full", "v2", "many", "cn"));

TEST(FixtureShapes, SampleHasDataInEveryCategoryAndTwoBackupDevices)
{
    Json::Value f = ReadFixture("sample");
    EXPECT_EQ(f["backup"]["devices"].size(), 2u);
    for (const auto& [name, service] : kPimServices) {
        const Json::Value& c = f["pim"][name];
        EXPECT_FALSE(c["statistics"].empty() && c["records"].empty()) << name;
    }
    EXPECT_GT(f["gallery"]["bytes"].asInt64(), 0);
    EXPECT_GT(f["drive"]["used"].asInt64(), 0);
}

TEST(FixtureShapes, ManyHasHundredsOfDevicesAndThousandsOfFiles)
{
    Json::Value f = ReadFixture("many");
    EXPECT_GE(f["backup"]["devices"].size(), 200u);
    EXPECT_GE(f["files"].size(), 2000u);
    EXPECT_GE(f["messages"]["devices"].size() / f["messages"]["pageSize"].asUInt(), 3u);
}

TEST(FixtureShapes, V2KeepsEveryPimCategoryOnDataVersion2)
{
    Json::Value f = ReadFixture("v2");
    for (const auto& [name, service] : kPimServices) {
        EXPECT_EQ(f["pim"][name]["dataVersion"].asString(), "v2.0") << name;
        EXPECT_TRUE(f["pim"][name]["statistics"].empty()) << name;
    }
}

} // namespace
} // namespace spacemgm_test
