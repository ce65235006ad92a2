// The request layer against spacemgm-cloud over real sockets: the headers the
// emulator logs for each service, every way a caller gets its answer, and the
// same exchange over TLS with the emulator's CA.
#include <gtest/gtest.h>

#include "cloud_emulator.h"
#include "foundation/advanced_enum.h"
#include "host/host_config.h"
#include "request/postable_string.h"
#include "request/run_request.h"

namespace {

using spacemgm_test::CloudEmulator;

class RequestIntegration : public ::testing::Test
{
protected:
    explicit RequestIntegration(CloudEmulator::Options options = {}) : cloud(options)
    {
        host::SetCurrentHostConfig(host::LoadHostConfigFile(cloud.ConfigPath()));
    }

    Json::Value LastLogged() const
    {
        const Json::Value log = cloud.RequestLog();
        return log.empty() ? Json::Value() : log[log.size() - 1];
    }

    std::shared_ptr<GetQuotaUsedInfoResponse> QueryPhotoQuota()
    {
        const std::string token = host::CurrentHostConfig().session.accessToken;
        return RunRequest<GetQuotaUsedInfoResponse>(
            FindEnumRow<FamilyShareType>(2),
            std::make_shared<PostableString>(ToFormText(MakePhotoQuotaQuery(token))));
    }

    CloudEmulator cloud;
};

TEST_F(RequestIntegration, FamilyShareQuotaQueryIsAcceptedWithItsHeaders)
{
    const auto reply = QueryPhotoQuota();
    ASSERT_NE(reply, nullptr);
    EXPECT_EQ(reply->retCode, 0);
    const Json::Value logged = LastLogged();
    const Json::Value& headers = logged["headers"];
    EXPECT_EQ(logged["method"].asString(), "POST");
    EXPECT_EQ(headers["Authorization"].asString(), "Bearer " + host::CurrentHostConfig().session.accessToken);
    EXPECT_EQ(headers["version"].asString(), "1122300");
    EXPECT_EQ(headers["x-zp-app-version"].asString(), "1122300");
    EXPECT_EQ(headers["Content-Type"].asString(), "application/json");
    EXPECT_EQ(headers["Keep-alive"].asString(), "false");
    EXPECT_EQ(headers["x-zp-trace-id"].asString().rfind("10004_11_", 0), 0u);
    EXPECT_EQ(headers["User-Agent"].asString(), "NuvoraPC/11.2.4.301");
    EXPECT_FALSE(headers.isMember("Accept"));
    EXPECT_FALSE(headers.isMember("Expect"));
}

TEST_F(RequestIntegration, CbsPimdsAndDataVersionAreAcceptedWithTheirHeaders)
{
    auto backups = RunRequest<QueryAllBackUpResponse>(FindEnumRow<CbsType>(0),
                                                      MakeQueryAllDevicesBackupRecordReqRequest());
    ASSERT_NE(backups, nullptr);
    Json::Value headers = LastLogged()["headers"];
    EXPECT_EQ(headers["x-zp-backup-version"].asString(), "1");
    EXPECT_EQ(headers["encversion"].asString(), "0");

    auto statistic = RunRequest<StatisticResponse>(FindEnumRow<PimdsType>(1), nullptr);
    ASSERT_NE(statistic, nullptr);
    headers = LastLogged()["headers"];
    EXPECT_EQ(headers["version"].asString(), "11.2.4.301");
    EXPECT_EQ(LastLogged()["method"].asString(), "GET");

    auto version = RunRequest<GetPimDataVersionResponse>(FindEnumRow<PimDataVerionType>(0), nullptr);
    ASSERT_NE(version, nullptr);
    EXPECT_EQ(LastLogged()["query"].asString().find("fields=dataVersion"), 0u) << LastLogged()["query"];
    for (const Json::Value& entry : cloud.RequestLog()) {
        EXPECT_NE(entry["verdict"].asString(), "refused") << entry.toStyledString();
    }
}

TEST_F(RequestIntegration, AboutQueryOfTheV2Service)
{
    std::map<std::string, std::string> status;
    const std::string dataVersion = GetAboutInfo(status);
    EXPECT_FALSE(dataVersion.empty());
    const Json::Value logged = LastLogged();
    EXPECT_EQ(logged["query"].asString(),
              "fields=dataVersion,status,maxBatchNumber,maxFileUploadSize,maxThumbnailSize");
    EXPECT_EQ(logged["headers"]["Authorization"].asString(),
              "Bearer " + host::CurrentHostConfig().session.accessToken);
}

TEST_F(RequestIntegration, EmptyBodyGivesNull)
{
    cloud.AddFault([] { Json::Value r; r["service"] = "familyShare"; r["kind"] = "empty"; return r; }());
    EXPECT_EQ(QueryPhotoQuota(), nullptr);
}

TEST_F(RequestIntegration, EmptyArrayGivesNull)
{
    cloud.AddFault([] { Json::Value r; r["service"] = "familyShare"; r["kind"] = "emptyArray"; return r; }());
    EXPECT_EQ(QueryPhotoQuota(), nullptr);
}

TEST_F(RequestIntegration, CutConnectionGivesNull)
{
    cloud.AddFault([] { Json::Value r; r["service"] = "familyShare"; r["kind"] = "cut"; return r; }());
    EXPECT_EQ(QueryPhotoQuota(), nullptr);
}

TEST_F(RequestIntegration, TextThatIsNoJsonGivesADefaultRecord)
{
    cloud.AddFault([] { Json::Value r; r["service"] = "familyShare"; r["kind"] = "notJson"; return r; }());
    const auto reply = QueryPhotoQuota();
    ASSERT_NE(reply, nullptr);
    EXPECT_EQ(reply->retCode, 0);
    EXPECT_EQ(reply->used, 0);
    EXPECT_TRUE(reply->quotaDetails.empty());
}

TEST_F(RequestIntegration, WrongTypesGiveARecordThatIsNotNull)
{
    cloud.AddFault([] { Json::Value r; r["service"] = "familyShare"; r["kind"] = "wrongTypes"; return r; }());
    const auto reply = QueryPhotoQuota();
    ASSERT_NE(reply, nullptr);
    EXPECT_TRUE(reply->quotaDetails.empty());
}

TEST_F(RequestIntegration, ServiceErrorGivesAnErrorRecord)
{
    cloud.AddFault([] { Json::Value r; r["service"] = "familyShare"; r["kind"] = "status"; r["status"] = 401; return r; }());
    const auto reply = QueryPhotoQuota();
    ASSERT_NE(reply, nullptr);
    EXPECT_NE(reply->retCode, 0);
}

class RequestIntegrationTls : public RequestIntegration
{
protected:
    RequestIntegrationTls() : RequestIntegration(TlsOptions()) {}
    static CloudEmulator::Options TlsOptions()
    {
        CloudEmulator::Options options;
        options.tls = true;
        return options;
    }
};

TEST_F(RequestIntegrationTls, SameExchangeOverTlsWithTheGeneratedCa)
{
    ASSERT_EQ(host::CurrentHostConfig().caFile.value_or(""), cloud.CaFile());
    const auto reply = QueryPhotoQuota();
    ASSERT_NE(reply, nullptr);
    EXPECT_EQ(reply->retCode, 0);
}

TEST_F(RequestIntegrationTls, ForeignCaRefusesTheConnection)
{
    CloudEmulator other(TlsOptions());
    host::HostConfig config = host::CurrentHostConfig();
    config.caFile = other.CaFile();
    host::SetCurrentHostConfig(config);
    EXPECT_EQ(QueryPhotoQuota(), nullptr);
    EXPECT_EQ(cloud.RequestLog().size(), 0u);
}

} // namespace
