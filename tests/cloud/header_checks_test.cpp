// Each header check refuses a request that has exactly that one header wrong,
// with the service's own error reply, and the request log says why.
#include <gtest/gtest.h>

#include <memory>

#include "cloud_test_client.h"

namespace spacemgm_test {
namespace {

struct Baseline
{
    std::string method;
    std::string path;
    std::string body;
};

Baseline BaselineFor(const std::string& service, const WireSession& s)
{
    if (service == "familyShare")
        return {"POST", "/rest.php",
                QuotaForm(s.accessToken, "collection=photo and (trashed=true or trashed=false)", "10880002")};
    if (service == "nsp")
        return {"POST", "",
                NspForm("nsp.vfs.queryFolder", s.accessToken, {{"paths", ListText({"/RecordBackup"})}})};
    if (service == "cbs")
        return {"POST", "/CloudBackup/ClientServlet",
                R"({"cmd":36,"info":"QueryAllDevicesBackupRecordReq","version":"V3"})"};
    if (service == "pimds")
        return {"GET", "/Statistic/Contact", ""};
    if (service == "cloudSyncDrive")
        return {"GET", "/dataSync/v1/service/1000/about?fields=dataVersion,kinds,maxBatchNumber,status", ""};
    return {
        "GET",
        "/cloudPhoto/v1/about?fields=dataVersion,status,maxBatchNumber,maxFileUploadSize,maxThumbnailSize",
        ""};
}

// True when the body is the service's own error shape.
bool HasServiceErrorShape(const std::string& service, const Json::Value& v)
{
    if (service == "familyShare")
        return v["retCode"].isInt() && v["retCode"].asInt() != 0;
    if (service == "nsp")
        return v["errCode"].isInt();
    if (service == "cbs")
        return v["result"].isInt() && v["result"].asInt() != 0;
    if (service == "pimds")
        return v["result"]["errorNo"].isInt() && v["result"]["errorNo"].asInt() != 0;
    return v["error"]["errorCode"].isString();
}

struct HeaderCase
{
    const char* name;
    const char* service;
    std::function<void(HeaderList&, const WireSession&)> tweak;
    long status;
    const char* verdictMentions;
};

std::ostream& operator<<(std::ostream& out, const HeaderCase& c)
{
    return out << c.name;
}

const std::vector<HeaderCase>& Cases()
{
    static const std::vector<HeaderCase> cases = {
        {"FamilyShareWantsBearerNotComposite", "familyShare",
         [](HeaderList& h, const WireSession& s) {
             SetHeader(h, "Authorization", CompositeAuthorization(s));
         },
         401, "Authorization"},
        {"FamilyShareBearerTokenIsNotEncoded", "familyShare",
         [](HeaderList& h, const WireSession& s) {
             SetHeader(h, "Authorization", "Bearer " + ClientUrlEncode(s.accessToken));
         },
         401, "Authorization"},
        {"FamilyShareMissingTraceId", "familyShare",
         [](HeaderList& h, const WireSession&) { RemoveHeader(h, "x-zp-trace-id"); }, 400, "x-zp-trace-id"},
        {"FamilyShareTraceIdOfAnotherRow", "familyShare",
         [](HeaderList& h, const WireSession&) { SetHeader(h, "x-zp-trace-id", MakeTraceId("05002")); }, 400,
         "x-zp-trace-id"},
        {"FamilyShareVersionOfPimds", "familyShare",
         [](HeaderList& h, const WireSession&) { SetHeader(h, "version", "11.2.4.301"); }, 400, "version"},
        {"FamilyShareWithoutAppVersion", "familyShare",
         [](HeaderList& h, const WireSession&) { RemoveHeader(h, "x-zp-app-version"); }, 400,
         "x-zp-app-version"},
        {"FamilyShareFormContentType", "familyShare",
         [](HeaderList& h, const WireSession&) {
             SetHeader(h, "Content-Type", "application/x-www-form-urlencoded");
         },
         400, "Content-Type"},
        {"FamilyShareWithEncversion", "familyShare",
         [](HeaderList& h, const WireSession&) { SetHeader(h, "encversion", "1"); }, 400, "encversion"},
        {"CommonKeepAliveMissing", "familyShare",
         [](HeaderList& h, const WireSession&) { RemoveHeader(h, "Keep-alive"); }, 400, "Keep-alive"},
        {"CommonAuthTypeWrong", "familyShare",
         [](HeaderList& h, const WireSession&) { SetHeader(h, "AuthType", Base64Of("com.zephra.cloud")); },
         400, "AuthType"},
        {"CommonUserAgentWrong", "familyShare",
         [](HeaderList& h, const WireSession&) { SetHeader(h, "User-Agent", "curl/7.88"); }, 400,
         "User-Agent"},
        {"CommonCountryNotLowerCased", "familyShare",
         [](HeaderList& h, const WireSession& s) { SetHeader(h, "x-zp-country-code", s.country); }, 400,
         "x-zp-country-code"},
        {"CommonUserIdOfAnotherUser", "familyShare",
         [](HeaderList& h, const WireSession&) { SetHeader(h, "userId", "999"); }, 400, "userId"},
        {"CommonDeviceUuidMismatch", "familyShare",
         [](HeaderList& h, const WireSession&) { SetHeader(h, "x-zp-deviceUUID", "another"); }, 400,
         "x-zp-deviceUUID"},
        {"CommonDeviceNameRepeated", "familyShare",
         [](HeaderList& h, const WireSession&) { h.emplace_back("x-zp-device-name", "second"); }, 400,
         "x-zp-device-name"},
        {"NspWantsCompositeNotBearer", "nsp",
         [](HeaderList& h, const WireSession& s) {
             SetHeader(h, "Authorization", "Bearer " + s.accessToken);
         },
         401, "Authorization"},
        {"NspCompositeWithRawToken", "nsp",
         [](HeaderList& h, const WireSession& s) {
             SetHeader(h, "Authorization",
                       Base64Of("6:" + s.deviceUuid + ":com.zephra.cloud.pc::" + s.accessToken));
         },
         401, "Authorization"},
        {"NspCompositeWithOneColon", "nsp",
         [](HeaderList& h, const WireSession& s) {
             SetHeader(
                 h, "Authorization",
                 Base64Of("6:" + s.deviceUuid + ":com.zephra.cloud.pc:" + ClientUrlEncode(s.accessToken)));
         },
         401, "Authorization"},
        {"NspWithVersionHeader", "nsp",
         [](HeaderList& h, const WireSession&) { SetHeader(h, "version", "1122300"); }, 400, "version"},
        {"NspTraceCodeOfQuota", "nsp",
         [](HeaderList& h, const WireSession&) { SetHeader(h, "x-zp-trace-id", MakeTraceId("10004")); }, 400,
         "x-zp-trace-id"},
        {"NspCorrectedContentType", "nsp",
         [](HeaderList& h, const WireSession&) {
             SetHeader(h, "Content-Type", "application/x-www-form-urlencoded");
         },
         400, "Content-Type"},
        {"CbsEncversionNotZero", "cbs",
         [](HeaderList& h, const WireSession&) { SetHeader(h, "encversion", "1"); }, 400, "encversion"},
        {"CbsWithoutBackupVersion", "cbs",
         [](HeaderList& h, const WireSession&) { RemoveHeader(h, "x-zp-backup-version"); }, 400,
         "x-zp-backup-version"},
        {"CbsVersionOfPimds", "cbs",
         [](HeaderList& h, const WireSession&) { SetHeader(h, "version", "11.2.4.301"); }, 400, "version"},
        {"CbsMalformedTraceId", "cbs",
         [](HeaderList& h, const WireSession&) {
             SetHeader(h, "x-zp-trace-id", "10004_12_1700000000_12345678");
         },
         400, "x-zp-trace-id"},
        {"PimdsEncversionOfChinaOutsideChina", "pimds",
         [](HeaderList& h, const WireSession&) { SetHeader(h, "encversion", "0"); }, 400, "encversion"},
        {"PimdsVersionOfCbs", "pimds",
         [](HeaderList& h, const WireSession&) { SetHeader(h, "version", "1122300"); }, 400, "version"},
        {"PimdsWithAppVersion", "pimds",
         [](HeaderList& h, const WireSession&) { SetHeader(h, "x-zp-app-version", "1122300"); }, 400,
         "x-zp-app-version"},
        {"SyncDriveWithoutAuthorization", "cloudSyncDrive",
         [](HeaderList& h, const WireSession&) { RemoveHeader(h, "Authorization"); }, 401, "Authorization"},
        {"SyncDriveEmptyBearer", "cloudSyncDrive",
         [](HeaderList& h, const WireSession&) { SetHeader(h, "Authorization", "Bearer "); }, 401,
         "Authorization"},
        {"PhotoAboutOsBrandIsWindows", "cloudPhoto",
         [](HeaderList& h, const WireSession&) { SetHeader(h, "x-zp-os-brand", "Linux"); }, 400,
         "x-zp-os-brand"},
        {"PhotoAboutTraceCodeOfItsRow", "cloudPhoto",
         [](HeaderList& h, const WireSession&) { SetHeader(h, "x-zp-trace-id", MakeTraceId("04101")); }, 400,
         "x-zp-trace-id"},
        {"PhotoAboutWithoutClientType", "cloudPhoto",
         [](HeaderList& h, const WireSession&) { SetHeader(h, "client-type", "pcClient"); }, 400,
         "client-type"},
    };
    return cases;
}

class HeaderCheck : public ::testing::TestWithParam<HeaderCase>
{
protected:
    static void SetUpTestSuite() { cloud = new CloudEmulator(); }
    static void TearDownTestSuite()
    {
        delete cloud;
        cloud = nullptr;
    }
    static CloudEmulator* cloud;
};
CloudEmulator* HeaderCheck::cloud = nullptr;

TEST_P(HeaderCheck, UnalteredRequestIsServed)
{
    CloudTestClient client(*cloud, "sample");
    Baseline b = BaselineFor(GetParam().service, client.Session());
    CloudReply r = client.Send(GetParam().service, b.method, b.path, b.body);
    EXPECT_EQ(r.status, 200) << r.body;
    EXPECT_FALSE(HasServiceErrorShape(GetParam().service, r.json)) << r.body;
}

TEST_P(HeaderCheck, OneWrongHeaderIsRefused)
{
    const HeaderCase& c = GetParam();
    CloudTestClient client(*cloud, "sample");
    Baseline b = BaselineFor(c.service, client.Session());
    cloud->ClearLog();
    CloudReply r = client.Send(c.service, b.method, b.path, b.body,
                               [&](HeaderList& h) { c.tweak(h, client.Session()); });
    EXPECT_EQ(r.status, c.status) << r.body;
    EXPECT_TRUE(HasServiceErrorShape(c.service, r.json)) << r.body;
    Json::Value log = cloud->RequestLog();
    ASSERT_EQ(log.size(), 1u);
    const std::string verdict = log[0]["verdict"].asString();
    EXPECT_EQ(verdict.rfind("refused: ", 0), 0u) << verdict;
    EXPECT_NE(verdict.find(c.verdictMentions), std::string::npos) << verdict;
    EXPECT_EQ(verdict.find(client.Session().accessToken), std::string::npos)
        << "the token stays out of the log";
}

INSTANTIATE_TEST_SUITE_P(Headers, HeaderCheck, ::testing::ValuesIn(Cases()),
                         [](const ::testing::TestParamInfo<HeaderCase>& info) { return info.param.name; });

TEST(MethodCheck, QuotaQueryByGetIsRefusedWith405)
{
    CloudEmulator cloud;
    CloudTestClient client(cloud, "sample");
    CloudReply r = client.Send("familyShare", "GET", "/rest.php", "");
    EXPECT_EQ(r.status, 405);
    EXPECT_EQ(r.json["retCode"].asInt(), 405);
    CloudReply s = client.Send("pimds", "POST", "/Statistic/Contact", "");
    EXPECT_EQ(s.status, 405);
    EXPECT_EQ(s.json["result"]["errorNo"].asInt(), 405);
}

TEST(MethodCheck, UnknownEndpointGetsTheServiceError)
{
    CloudEmulator cloud;
    CloudTestClient client(cloud, "sample");
    CloudReply r = client.Send("cbs", "POST", "/CloudBackup/Other", "{}");
    EXPECT_EQ(r.status, 404);
    EXPECT_EQ(r.json["result"].asInt(), 404);
}

TEST(CountryCheck, PimdsInChinaWantsEncversionZero)
{
    CloudEmulator::Options options;
    options.fixture = "cn";
    CloudEmulator cloud(options);
    CloudTestClient client(cloud, "cn");
    EXPECT_EQ(client.Send("pimds", "GET", "/Statistic/Wlan", "").status, 200);
    CloudReply wrong = client.Send("pimds", "GET", "/Statistic/Wlan", "",
                                   [](HeaderList& h) { SetHeader(h, "encversion", "1"); });
    EXPECT_EQ(wrong.status, 400);
}

TEST(BodyCheck, QuotaFormWithSnakeCaseTokenKeyIsRefused)
{
    CloudEmulator cloud;
    CloudTestClient client(cloud, "sample");
    std::string form =
        "nsp_svc=nsp.user.getQuotaUsedInfo&access_token=" + ClientUrlEncode(client.Session().accessToken) +
        "&q=" + ClientUrlEncode("collection=photo and (trashed=true or trashed=false)") +
        "&serviceType=10880002";
    CloudReply r = client.Send("familyShare", "POST", "/rest.php", form);
    EXPECT_EQ(r.status, 400);
    EXPECT_NE(r.json["retMsg"].asString().find("accessToken"), std::string::npos) << r.body;
}

TEST(BodyCheck, CountQueryWithLowerCaseCallLogIsRefused)
{
    CloudEmulator cloud;
    CloudTestClient client(cloud, "sample");
    CloudReply r = client.Backup(
        ParseJsonText(R"({"cmd":9,"info":"CountByDeviceReq","type":"calllog","deviceList":[]})"));
    EXPECT_EQ(r.status, 400);
    EXPECT_NE(r.json["result"].asInt(), 0);
}

TEST(BodyCheck, DeletionWithCamelCaseCallLogIsRefused)
{
    CloudEmulator cloud;
    CloudTestClient client(cloud, "sample");
    CloudReply r = client.Backup(ParseJsonText(
        R"({"cmd":5,"info":"DeleteBackupReq","devId":"","deviceType":0,"typeList":["callLog"]})"));
    EXPECT_EQ(r.status, 400);
    EXPECT_NE(r.json["result"].asInt(), 0);
}

} // namespace
} // namespace spacemgm_test
