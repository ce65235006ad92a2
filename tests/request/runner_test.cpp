// The runners: which class a row reaches, which method, the factories, the
// quota query builders, the throttle hook and the V2 about query.
#include <gtest/gtest.h>

#include "foundation/advanced_enum.h"
#include "request/postable_string.h"
#include "request/run_request.h"
#include "request/service/cloud_photo_v2_pc_http_request.h"
#include "tests/request/request_test_env.h"

namespace {

class RunnerTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        host::SetCurrentHostConfig(ConfigFor(server));
        lastThrottleTime.store(0);
        retryAfterSeconds.store(1800);
    }
    CaptureServer server;
};

TEST_F(RunnerTest, OperationEventRowSendsNothingAndGivesADefaultRecord)
{
    server.Reply({200, "{\"result\":5}", {}, {}});
    const auto row = EnumRows<OperateBasicEventType>().front();
    const auto record = RunRequest<BaseRsp>(row, nullptr);
    ASSERT_NE(record, nullptr);
    EXPECT_EQ(record->result, 0);
    EXPECT_EQ(server.Count(), 0u);
}

TEST_F(RunnerTest, NullRowSendsNothingAndGivesADefaultRecord)
{
    EXPECT_NE(RunRequest<StatisticResponse>(nullptr, nullptr), nullptr);
    EXPECT_EQ(server.Count(), 0u);
}

TEST_F(RunnerTest, PimdsRowUsesPostForBaseRspAndGetForStatistics)
{
    RunRequest<BaseRsp>(FindEnumRow<PimdsType>(3), nullptr);
    EXPECT_EQ(server.Last().method, "POST");
    RunRequest<StatisticResponse>(FindEnumRow<PimdsType>(3), nullptr);
    EXPECT_EQ(server.Last().method, "GET");
    EXPECT_EQ(server.Last().path, "/pimds/Statistic/Notepad");
}

TEST_F(RunnerTest, PortalUrlCarriesTraceIdQuery)
{
    auto exchange = std::make_shared<RequestExchange>();
    RunRequest<BaseRsp>(FindEnumRow<PortalInferfaceType>(0), nullptr, exchange);
    EXPECT_EQ(server.Last().target, "/portal/pcclient/querytask?traceId=" + exchange->traceId);
    EXPECT_EQ(exchange->traceId.rfind("000-1_11_", 0), 0u);
}

TEST_F(RunnerTest, NspRequestsGoToTheBareServiceUrlWithTheFormBody)
{
    auto body = MakeNspFiles("tok en", {"/a", "/b"}, "");
    RunRequest<NSPFilesResponse>(FindEnumRow<NspRequestType>(6), body);
    EXPECT_EQ(server.Last().target, "/nsp");
    EXPECT_EQ(server.Last().method, "POST");
    EXPECT_EQ(server.Last().body, body->ToFormString());
    EXPECT_EQ(server.Last().body.rfind("nsp_svc=nsp.vfs.queryFile&access_token=tok%20en&paths=", 0), 0u);
}

TEST_F(RunnerTest, FinishedTextToNspIsLostAndAnEmptyBodyGoesOut)
{
    RunRequest<NSPResponse>(FindEnumRow<NspRequestType>(1), std::make_shared<PostableString>("a=b"));
    EXPECT_EQ(server.Last().body, "");
}

TEST_F(RunnerTest, QuotaFormGoesOutAsFinishedTextOnTheFamilyShareRow)
{
    const std::string form = ToFormText(MakePhotoQuotaQuery("tok"));
    RunRequest<GetQuotaUsedInfoResponse>(FindEnumRow<FamilyShareType>(2),
                                         std::make_shared<PostableString>(form));
    EXPECT_EQ(server.Last().method, "POST");
    EXPECT_EQ(server.Last().path, "/family/rest.php");
    EXPECT_EQ(server.Last().body, form);
}

TEST(QuotaQueries, BuildersFillTheTable)
{
    const QuotaUsedQuery photo = MakePhotoQuotaQuery("T");
    EXPECT_EQ(photo.q, "collection=photo and (trashed=true or trashed=false)");
    EXPECT_EQ(photo.serviceType, "10880002");
    EXPECT_EQ(photo.accessToken, "T");
    EXPECT_EQ(photo.nspSvc, "nsp.user.getQuotaUsedInfo");
    const QuotaUsedQuery drive = MakeDriveQuotaQuery("T");
    EXPECT_EQ(drive.q, "collection=drive and (trashed=true)");
    EXPECT_EQ(drive.serviceType, "10781986");
}

TEST(QuotaQueries, DeviceQueryKeepsTheCaseOfTheDeviceList)
{
    const QuotaUsedQuery query = MakeDeviceQuotaQuery("T", "('DevA','devB')");
    EXPECT_EQ(query.q, "collection=private and deviceId in ('DevA','devB')");
    EXPECT_EQ(query.serviceType, "2000");
}

TEST(QuotaQueries, FormTextEncodesEveryValueAndSpellsAccessToken)
{
    QuotaUsedQuery query = MakeDriveQuotaQuery("a b");
    EXPECT_EQ(ToFormText(query),
              "nsp_svc=nsp.user.getQuotaUsedInfo&accessToken=a%20b&q=collection%3ddrive%20and%20"
              "%28trashed%3dtrue%29&serviceType=10781986");
}

TEST_F(RunnerTest, CloudPhoto803ChangesNothing)
{
    server.Reply({200, "{\"result\":803}", {}, {}});
    const auto record = RunRequest<BaseRsp>(FindEnumRow<CloudPhotoInterfaceType>(5), nullptr);
    ASSERT_NE(record, nullptr);
    EXPECT_EQ(record->result, 803);
    EXPECT_EQ(lastThrottleTime.load(), 0);
}

TEST(ThrottleStamp, HookStampsOnlyA803AfterTheRetryWindow)
{
    lastThrottleTime.store(0);
    retryAfterSeconds.store(1800);
    auto reply = std::make_shared<BaseCloudPhotoResponse>();
    reply->result = 200;
    StampThrottle(reply, 5000);
    EXPECT_EQ(lastThrottleTime.load(), 0);
    reply->result = 803;
    StampThrottle(reply, 5000);
    EXPECT_EQ(lastThrottleTime.load(), 5000);
    StampThrottle(reply, 6000);
    EXPECT_EQ(lastThrottleTime.load(), 5000) << "within the window the stamp stays";
    StampThrottle(std::make_shared<BaseRsp>(), 99999);
    EXPECT_EQ(lastThrottleTime.load(), 5000);
}

TEST_F(RunnerTest, AboutQueryAsksTheV2PathWithTheFieldsQueryAndABearerToken)
{
    server.Reply(
        {200, "{\"dataVersion\":\"v2.0\",\"maxFileUploadSize\":\"1024\",\"status\":{\"v2cut\":0}}", {}, {}});
    std::map<std::string, std::string> status;
    EXPECT_EQ(GetAboutInfo(status), "v2.0");
    const CapturedRequest request = server.Last();
    EXPECT_EQ(request.method, "GET");
    EXPECT_EQ(request.target,
              "/photo/cloudPhoto/v1/"
              "about?fields=dataVersion,status,maxBatchNumber,maxFileUploadSize,maxThumbnailSize");
    EXPECT_EQ(request.Header("Authorization"), "Bearer token+with/slash");
    EXPECT_EQ(request.Header("x-zp-os-brand"), "Windows");
    EXPECT_EQ(request.Header("version"), "11.2.4.301");
    EXPECT_EQ(request.Header("Content-Type"), "application/json");
    EXPECT_EQ(request.Header("AuthType"), "Y29tLnplcGhyYS5jbG91ZC5wYw==");
    EXPECT_EQ(request.Header("x-zp-trace-id").rfind("02116_11_", 0), 0u);
    EXPECT_EQ(request.Header("Keep-alive"), "false");
    EXPECT_EQ(status["v2cut"], "0\n");
    EXPECT_EQ(GetMaxFileUploadSize(), "1024");
}

TEST_F(RunnerTest, PimVersionModeIgnoresStyledV2cutAndReadsTheDataVersion)
{
    server.Reply({200, "{\"dataVersion\":\"v2.0\",\"status\":{\"v2cut\":0}}", {}, {}});
    EXPECT_EQ(GetPimVersionMode(), 2);
    server.Reply({200, "{\"dataVersion\":\"v1.0\",\"status\":{\"v2cut\":0}}", {}, {}});
    EXPECT_EQ(GetPimVersionMode(), 0);
    server.Reply({200, "[]", {}, {}});
    EXPECT_EQ(GetPimVersionMode(), 0);
}

TEST_F(RunnerTest, AboutQueryReadsAnErrorStatusBodyToo)
{
    server.Reply({500, "{\"dataVersion\":\"v1.0\"}", {}, {}});
    std::map<std::string, std::string> status{{"stale", "x"}};
    EXPECT_EQ(GetAboutInfo(status), "v1.0");
    EXPECT_TRUE(status.empty());
}

} // namespace
