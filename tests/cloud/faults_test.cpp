// Every fault kind, observed from a plain libcurl client, and the ways a rule
// picks its requests.
#include <gtest/gtest.h>

#include <chrono>
#include <fstream>

#include <curl/curl.h>

#include "cloud_test_client.h"

namespace spacemgm_test {
namespace {

const char* const kPhotoQ = "collection=photo and (trashed=true or trashed=false)";

Json::Value Rule(const std::string& text)
{
    Json::Value rule = ParseJsonText(text);
    EXPECT_TRUE(rule.isObject()) << text;
    return rule;
}

class Faults : public ::testing::Test
{
protected:
    static void SetUpTestSuite() { cloud = new CloudEmulator(); }
    static void TearDownTestSuite()
    {
        delete cloud;
        cloud = nullptr;
    }
    void SetUp() override
    {
        cloud->ClearFaults();
        cloud->Reset();
        client = std::make_unique<CloudTestClient>(*cloud, "sample");
    }
    CloudReply Photo() const { return client->QuotaQuery(kPhotoQ, "10880002"); }
    uint64_t HitsOf(const std::string& id) const
    {
        const Json::Value hits = cloud->Hits();
        for (const auto& r : hits["rules"])
            if (r["id"].asString() == id)
                return r["hits"].asUInt64();
        ADD_FAILURE() << "no rule " << id;
        return 0;
    }

    static CloudEmulator* cloud;
    std::unique_ptr<CloudTestClient> client;
};
CloudEmulator* Faults::cloud = nullptr;

TEST_F(Faults, FixedLatencyDelaysTheReply)
{
    std::string id =
        cloud->AddFault(Rule(R"({"endpoint":"/family/rest.php","kind":"latency","latencyMs":300})"));
    auto start = std::chrono::steady_clock::now();
    CloudReply r = Photo();
    auto elapsed = std::chrono::steady_clock::now() - start;
    EXPECT_EQ(r.status, 200);
    EXPECT_EQ(r.json["retCode"].asInt(), 0) << "latency alone leaves the reply intact";
    EXPECT_GE(elapsed, std::chrono::milliseconds(300));
    EXPECT_EQ(HitsOf(id), 1u);
}

TEST_F(Faults, LatencyRangeStaysWithinItsBounds)
{
    cloud->AddFault(Rule(R"({"service":"familyShare","kind":"latency","latencyMs":[100,200]})"));
    for (int i = 0; i < 3; ++i) {
        auto start = std::chrono::steady_clock::now();
        Photo();
        auto ms =
            std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start);
        EXPECT_GE(ms.count(), 100);
        EXPECT_LT(ms.count(), 1000);
    }
}

TEST_F(Faults, StatusCodeComesWithTheServiceErrorBody)
{
    cloud->AddFault(Rule(R"({"service":"familyShare","kind":"status","status":503})"));
    CloudReply r = Photo();
    EXPECT_EQ(r.status, 503);
    EXPECT_EQ(r.json["retCode"].asInt(), 503);
}

TEST_F(Faults, StatusCodeWithAGivenBody)
{
    cloud->AddFault(Rule(R"({"service":"cbs","kind":"status","status":429,"body":"{\"result\":429}"})"));
    CloudReply r =
        client->Backup(ParseJsonText(R"({"cmd":36,"info":"QueryAllDevicesBackupRecordReq","version":"V3"})"));
    EXPECT_EQ(r.status, 429);
    EXPECT_EQ(r.body, "{\"result\":429}");
}

TEST_F(Faults, EmptyBody)
{
    cloud->AddFault(Rule(R"({"service":"familyShare","kind":"empty"})"));
    CloudReply r = Photo();
    EXPECT_EQ(r.status, 200);
    EXPECT_EQ(r.body, "");
}

TEST_F(Faults, EmptyArrayBody)
{
    cloud->AddFault(Rule(R"({"service":"familyShare","kind":"emptyArray"})"));
    CloudReply r = Photo();
    EXPECT_EQ(r.status, 200);
    EXPECT_EQ(r.body, "[]");
}

TEST_F(Faults, BodyThatIsNoJson)
{
    cloud->AddFault(Rule(R"({"service":"familyShare","kind":"notJson"})"));
    CloudReply r = Photo();
    EXPECT_EQ(r.status, 200);
    EXPECT_FALSE(r.body.empty());
    EXPECT_TRUE(r.json.isNull()) << r.body;
}

TEST_F(Faults, RecordWithWrongTypes)
{
    cloud->AddFault(Rule(R"({"service":"familyShare","kind":"wrongTypes"})"));
    CloudReply r = Photo();
    EXPECT_EQ(r.status, 200);
    ASSERT_TRUE(r.json.isObject()) << r.body;
    EXPECT_TRUE(r.json["retCode"].isString());
    EXPECT_TRUE(r.json["used"].isString());
    EXPECT_TRUE(r.json["quotaDetails"][0]["trashed"].isString());
    EXPECT_TRUE(r.json["quotaDetails"][0]["collection"].isObject());
}

TEST_F(Faults, TruncatedBody)
{
    std::string whole = Photo().body;
    cloud->AddFault(Rule(R"({"service":"familyShare","kind":"truncated"})"));
    CloudReply r = Photo();
    EXPECT_EQ(r.status, 200);
    EXPECT_EQ(r.curlCode, 0) << "the cut body arrives whole, with its own length";
    EXPECT_EQ(r.body, whole.substr(0, whole.size() / 2));
    EXPECT_TRUE(r.json.isNull());
}

TEST_F(Faults, CutConnection)
{
    cloud->AddFault(Rule(R"({"service":"familyShare","kind":"cut"})"));
    CloudReply r = Photo();
    EXPECT_NE(r.curlCode, CURLE_OK);
    EXPECT_TRUE(r.body.empty());
}

TEST_F(Faults, HangOutlastsTheClientTimeout)
{
    cloud->AddFault(Rule(R"({"service":"pimds","kind":"hang","hangMs":1500})"));
    auto headers = ModuleHeaders("pimds", client->Session());
    auto start = std::chrono::steady_clock::now();
    HttpResult r = HttpExchange("GET", cloud->BaseUrl("pimds") + "/Statistic/Wlan", headers, "", "", 400);
    auto elapsed = std::chrono::steady_clock::now() - start;
    EXPECT_EQ(r.curlCode, CURLE_OPERATION_TIMEDOUT);
    EXPECT_LT(elapsed, std::chrono::milliseconds(1400));
}

TEST_F(Faults, HangEndsAtItsLimitWithACut)
{
    cloud->AddFault(Rule(R"({"service":"pimds","kind":"hang","hangMs":300})"));
    auto start = std::chrono::steady_clock::now();
    CloudReply r = client->Send("pimds", "GET", "/Statistic/Wlan", "");
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(300));
    EXPECT_NE(r.curlCode, CURLE_OK);
}

TEST_F(Faults, EveryThirdRequestFires)
{
    std::string id = cloud->AddFault(Rule(R"({"service":"familyShare","everyNth":3,"kind":"emptyArray"})"));
    std::vector<bool> faulted;
    for (int i = 0; i < 6; ++i)
        faulted.push_back(Photo().body == "[]");
    EXPECT_EQ(faulted, (std::vector<bool>{false, false, true, false, false, true}));
    const Json::Value hits = cloud->Hits();
    for (const auto& r : hits["rules"])
        if (r["id"].asString() == id) {
            EXPECT_EQ(r["matched"].asUInt64(), 6u);
            EXPECT_EQ(r["hits"].asUInt64(), 2u);
        }
}

TEST_F(Faults, ProbabilityFiresForAShare)
{
    std::string never = cloud->AddFault(Rule(R"({"service":"cbs","probability":0,"kind":"empty"})"));
    std::string half = cloud->AddFault(Rule(R"({"service":"pimds","probability":0.5,"kind":"empty"})"));
    for (int i = 0; i < 120; ++i) {
        client->Send("pimds", "GET", "/Statistic/Calendar", "");
    }
    client->Backup(ParseJsonText(R"({"cmd":36,"info":"QueryAllDevicesBackupRecordReq","version":"V3"})"));
    EXPECT_EQ(HitsOf(never), 0u);
    EXPECT_GT(HitsOf(half), 30u);
    EXPECT_LT(HitsOf(half), 90u);
}

TEST_F(Faults, LimitStopsARuleAfterItsHits)
{
    std::string id = cloud->AddFault(Rule(R"({"service":"familyShare","limit":2,"kind":"empty"})"));
    int empty = 0;
    for (int i = 0; i < 5; ++i)
        empty += Photo().body.empty() ? 1 : 0;
    EXPECT_EQ(empty, 2);
    EXPECT_EQ(HitsOf(id), 2u);
}

TEST_F(Faults, ServiceRuleLeavesOtherServicesAlone)
{
    cloud->AddFault(Rule(R"({"service":"pimds","kind":"status","status":500})"));
    EXPECT_EQ(client->Send("pimds", "GET", "/Statistic/Contact", "").status, 500);
    EXPECT_EQ(client->Send("pimds", "GET", "/Statistic/Browser", "").status, 500);
    EXPECT_EQ(Photo().status, 200);
}

TEST_F(Faults, BodyMatchTargetsOneQueryOnASharedPath)
{
    cloud->AddFault(
        Rule(R"({"endpoint":"/family/rest.php","bodyContains":"collection%3ddrive","kind":"empty"})"));
    EXPECT_EQ(client->QuotaQuery("collection=drive and (trashed=true)", "10781986").body, "");
    EXPECT_EQ(Photo().json["retCode"].asInt(), 0);
}

TEST_F(Faults, FaultedDeletionLeavesTheAccountAlone)
{
    cloud->AddFault(Rule(R"({"service":"nsp","bodyContains":"rmfile","kind":"status","status":503})"));
    const std::string path = "/BlockedBackup/Nuvo P60 Pro/phonemanager_calls_0.db";
    CloudReply r = client->Nsp("nsp.vfs.rmfile", {{"files", ListText({path})}, {"reserve", "False"}});
    EXPECT_EQ(r.status, 503);
    bool present = false;
    const Json::Value account = cloud->Account();
    for (const auto& f : account["files"])
        present = present || f["path"].asString() == path;
    EXPECT_TRUE(present);
}

TEST_F(Faults, RequestLogNamesTheFiredRule)
{
    std::string id = cloud->AddFault(Rule(R"({"id":"photo-empty","service":"familyShare","kind":"empty"})"));
    EXPECT_EQ(id, "photo-empty");
    cloud->ClearLog();
    Photo();
    Json::Value log = cloud->RequestLog();
    ASSERT_EQ(log.size(), 1u);
    EXPECT_EQ(log[0]["faults"][0].asString(), "photo-empty");
}

TEST_F(Faults, BadRuleIsRefusedByTheAdminEndpoint)
{
    HttpResult r = HttpExchange("POST", cloud->Root() + "/_admin/faults",
                                {{"Content-Type", "application/json"}}, R"({"kind":"explode"})");
    EXPECT_EQ(r.status, 400);
    EXPECT_NE(r.body.find("kind"), std::string::npos);
}

// A rule that names what the emulator does not serve could never fire; a
// test relying on it would pass for the wrong reason.
TEST_F(Faults, RuleNamingAnUnknownTargetIsRefusedByTheAdminEndpoint)
{
    const std::pair<const char*, const char*> refused[] = {
        {R"({"service":"family","kind":"empty"})", R"(no service named \"family\")"},
        {R"({"endpoint":"/family/rest","kind":"empty"})", R"(no endpoint at \"/family/rest\")"},
        {R"({"service":"cbs","endpoint":"/family/rest.php","kind":"empty"})",
         "/family/rest.php belongs to familyShare, not cbs"},
        {R"([{"kind":"empty"},{"endpoint":"/nsp/rest.php","kind":"empty"}])", "rule 1: "},
    };
    for (const auto& [rule, reason] : refused) {
        HttpResult r = HttpExchange("POST", cloud->Root() + "/_admin/faults",
                                    {{"Content-Type", "application/json"}}, rule);
        EXPECT_EQ(r.status, 400) << rule;
        EXPECT_NE(r.body.find(reason), std::string::npos) << rule << " -> " << r.body;
    }
    EXPECT_EQ(cloud->Hits()["rules"].size(), 0u) << "a refused batch adds none of its rules";
}

TEST_F(Faults, RuleNamingAServedEndpointOfItsServiceIsTaken)
{
    for (const char* endpoint :
         {"/nsp", "/family/user/v1/quota/drive", "/account/quota", "/om/SpaceOMConfig.json",
          "/syncdrive/dataSync/v1/service/1005/about", "/pimds/Statistic/Wlan"}) {
        Json::Value rule;
        rule["endpoint"] = endpoint;
        rule["kind"] = "empty";
        EXPECT_NO_THROW(cloud->AddFault(rule)) << endpoint;
    }
    EXPECT_NO_THROW(cloud->AddFault(Rule(R"({"service":"basic","kind":"empty"})")));
}

TEST(FaultSources, RulesFromTheFaultsFile)
{
    char dir[] = "/tmp/spacemgm-cloud-faults-XXXXXX";
    ASSERT_NE(mkdtemp(dir), nullptr);
    std::string path = std::string(dir) + "/faults.json";
    std::ofstream(path) << R"([{"id":"from-file","service":"cbs","kind":"emptyArray"}])";
    CloudEmulator::Options options;
    options.faultsFile = path;
    {
        CloudEmulator cloud(options);
        CloudTestClient client(cloud, "sample");
        CloudReply r = client.Backup(
            ParseJsonText(R"({"cmd":36,"info":"QueryAllDevicesBackupRecordReq","version":"V3"})"));
        EXPECT_EQ(r.body, "[]");
    }
    std::remove(path.c_str());
    rmdir(dir);
}

TEST(FaultSources, RulesFromTheFixture)
{
    char dir[] = "/tmp/spacemgm-cloud-fixture-XXXXXX";
    ASSERT_NE(mkdtemp(dir), nullptr);
    Json::Value fixture = ReadFixture("empty");
    fixture["faults"] =
        ParseJsonText(R"([{"id":"fixture-rule","endpoint":"/pimds/Statistic/Wlan","kind":"notJson"}])");
    std::string path = std::string(dir) + "/faulty.json";
    std::ofstream(path) << CompactJson(fixture);
    CloudEmulator::Options options;
    options.fixture = path;
    {
        CloudEmulator cloud(options);
        CloudTestClient client(cloud, path);
        EXPECT_TRUE(client.Send("pimds", "GET", "/Statistic/Wlan", "").json.isNull());
        EXPECT_TRUE(client.Send("pimds", "GET", "/Statistic/Calendar", "").json.isObject());
    }
    std::remove(path.c_str());
    rmdir(dir);
}

} // namespace
} // namespace spacemgm_test
