// The exchange of PCHttpRequest: fallbacks, the shape of a reply, the trace
// id, Retry-After, the common headers and the body rules.
#include <gtest/gtest.h>

#include "foundation/advanced_enum.h"
#include "request/pc_http_request.h"
#include "request/postable_string.h"
#include "request/run_request.h"
#include "request/service/cloud_photo_pc_request.h"
#include "request/service/pimds_pc_request.h"
#include "tests/request/request_test_env.h"

namespace {

class ExchangeTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        host::SetCurrentHostConfig(ConfigFor(server));
        retryAfterSeconds.store(1800);
    }

    CaptureServer server;
};

const AdvancedIntEnumType* Pimds(int id)
{
    return FindEnumRow<PimdsType>(id);
}

TEST_F(ExchangeTest, PresentAuthorizationIsKeptAndOnlyAGapIsFilled)
{
    PCHttpRequest request(server.Url("/base"));
    request.requestHeaders["Authorization"] = "mine";
    request.SendTyped<BaseRsp>(*Pimds(0), AnyHttpPost, nullptr, nullptr, false);
    EXPECT_EQ(server.Last().Header("Authorization"), "mine");
    EXPECT_EQ(server.Last().Header("AuthType"), "Y29tLnplcGhyYS5jbG91ZC5wYw==");

    PCHttpRequest bare(server.Url("/base"));
    bare.SendTyped<BaseRsp>(*Pimds(0), AnyHttpPost, nullptr, nullptr, false);
    EXPECT_EQ(DecodeBase64(server.Last().Header("Authorization")),
              "6:uuid-of-test-machine:com.zephra.cloud.pc::token%2bwith%2fslash");
}

TEST_F(ExchangeTest, EmptyArrayReplyGivesNullAndEmptyObjectGivesADefaultRecord)
{
    server.Reply({200, "[]", {}, {}});
    EXPECT_EQ(RunRequest<BaseRsp>(Pimds(0), nullptr), nullptr);

    server.Reply({200, "", {}, {}});
    EXPECT_EQ(RunRequest<BaseRsp>(Pimds(0), nullptr), nullptr);

    server.Reply({200, "{}", {}, {}});
    const auto record = RunRequest<BaseRsp>(Pimds(0), nullptr);
    ASSERT_NE(record, nullptr);
    EXPECT_EQ(record->result, 0);
    EXPECT_EQ(record->info, "");
}

TEST_F(ExchangeTest, TypeWithoutLogRowCarriesTraceCode000Minus1)
{
    RunRequest<NSPResponse>(FindEnumRow<NspRequestType>(3), nullptr);
    EXPECT_EQ(server.Last().Header("x-zp-trace-id").rfind("000-1_11_", 0), 0u)
        << server.Last().Header("x-zp-trace-id");
}

TEST_F(ExchangeTest, RetryAfterFromCloudPhotoRepeatsTheLastDigit)
{
    server.Reply({200, "{}", {{"Retry-After", "60"}}, {}});
    RunRequest<BaseRsp>(FindEnumRow<CloudPhotoInterfaceType>(4), nullptr);
    EXPECT_EQ(retryAfterSeconds.load(), 600);
}

TEST_F(ExchangeTest, RetryAfterFromAnotherServiceIsIgnored)
{
    server.Reply({200, "{}", {{"Retry-After", "60"}}, {}});
    RunRequest<BaseRsp>(Pimds(0), nullptr);
    EXPECT_EQ(retryAfterSeconds.load(), 1800);
}

TEST_F(ExchangeTest, RetryAfterDateIsIgnoredEvenFromCloudPhoto)
{
    server.Reply({200, "{}", {{"Retry-After", "Wed, 21 Oct 2015 07:28:00 GMT"}}, {}});
    RunRequest<BaseRsp>(FindEnumRow<CloudPhotoInterfaceType>(4), nullptr);
    EXPECT_EQ(retryAfterSeconds.load(), 1800);
}

TEST(RetryAfter, SingleDigitPassesUnchangedAndThreeDigitsGrow)
{
    retryAfterSeconds.store(1800);
    AcceptRetryAfter("7");
    EXPECT_EQ(retryAfterSeconds.load(), 7);
    AcceptRetryAfter("120");
    EXPECT_EQ(retryAfterSeconds.load(), 120200) << "the token is 120, then 20, then 0, run together";
}

TEST_F(ExchangeTest, FirstUserIdStaysWhileTheNewTokenIsUsed)
{
    RunRequest<BaseRsp>(Pimds(0), nullptr);
    const std::string firstUser = server.Last().Header("userId");
    ASSERT_NE(firstUser, "<absent>");

    host::HostConfig config = ConfigFor(server);
    config.session.userId = "another-user";
    config.session.accessToken = "second-token";
    host::SetCurrentHostConfig(config);
    RunRequest<BaseRsp>(Pimds(0), nullptr);
    EXPECT_EQ(server.Last().Header("userId"), firstUser);
    EXPECT_NE(server.Last().Header("userId"), "another-user");
    EXPECT_EQ(DecodeBase64(server.Last().Header("Authorization")),
              "6:uuid-of-test-machine:com.zephra.cloud.pc::second-token");
}

TEST_F(ExchangeTest, BodyRecordWithMethodGetSendsAnEmptyBody)
{
    PIMDSPCRequest request;
    auto body = std::make_shared<BaseRsp>();
    body->info = "should not travel";
    request.SendTyped<BaseRsp>(*Pimds(0), AnyHttpGet, body, nullptr, false);
    EXPECT_EQ(server.Last().method, "GET");
    EXPECT_EQ(server.Last().body, "");
}

TEST_F(ExchangeTest, BodyRecordWithMethodPostTravelsAsCompactJson)
{
    auto body = std::make_shared<BaseRsp>();
    body->info = "x";
    RunRequest<BaseRsp>(Pimds(0), body);
    EXPECT_EQ(server.Last().method, "POST");
    EXPECT_EQ(server.Last().body, "{\"info\":\"x\",\"result\":0}");
}

TEST_F(ExchangeTest, ErrorStatusBodyStillFillsTheRecord)
{
    server.Reply({401, "{\"result\":401,\"info\":\"unauthorised\"}", {}, {}});
    const auto record = RunRequest<BaseRsp>(Pimds(0), nullptr);
    ASSERT_NE(record, nullptr);
    EXPECT_EQ(record->result, 401);
    EXPECT_EQ(record->info, "unauthorised");
}

TEST_F(ExchangeTest, WrongTypeLeavesARecordFilledUpToTheFault)
{
    server.Reply({200, "{\"result\":\"0\",\"info\":\"kept?\"}", {}, {}});
    const auto record = RunRequest<BaseRsp>(Pimds(0), nullptr);
    ASSERT_NE(record, nullptr);
    EXPECT_EQ(record->result, 0);
    EXPECT_EQ(record->info, "");
}

TEST_F(ExchangeTest, TextThatIsNoJsonGivesADefaultRecord)
{
    server.Reply({200, "<html>oops</html>", {}, {}});
    const auto record = RunRequest<BaseRsp>(Pimds(0), nullptr);
    ASSERT_NE(record, nullptr);
    EXPECT_EQ(record->result, 0);
}

TEST_F(ExchangeTest, FailedSendGivesNull)
{
    host::HostConfig config = ConfigFor(server);
    config.services.pimds = "http://127.0.0.1:1/pimds";
    host::SetCurrentHostConfig(config);
    EXPECT_EQ(RunRequest<BaseRsp>(Pimds(0), nullptr), nullptr);
}

TEST_F(ExchangeTest, ExchangeRecordReceivesTheTraceId)
{
    auto exchange = std::make_shared<RequestExchange>();
    RunRequest<BaseRsp>(Pimds(0), nullptr, exchange);
    EXPECT_EQ(exchange->traceId, server.Last().Header("x-zp-trace-id"));
    EXPECT_EQ(exchange->traceId.rfind("10004_11_", 0), 0u);
}

TEST(RequestTimeout, QuotaUrlStillRunsWith100)
{
    EXPECT_EQ(
        RequestTimeoutFor("http://127.0.0.1:1/user/v1/getQuotaInfo?attrs=quota.summary&attrs=quota.details"),
        100);
    EXPECT_EQ(RequestTimeoutFor("http://127.0.0.1:1/Statistic/Contact"), 100);
}

TEST(RequestTimeout, TestMatchesOnlyWhenTheLastSetCharacterSitsWhereThePathWouldStart)
{
    // 62 characters of path; a URL whose only character from the set is its
    // first one, with 61 characters of filler not in the set, passes the test.
    const std::string path = "/user/v1/getQuotaInfo?attrs=quota.summary&attrs=quota.details";
    EXPECT_EQ(RequestTimeoutFor("/" + std::string(path.size() - 1, 'Z') + std::string(path.size() - 1, 'Z')),
              100);
    EXPECT_EQ(RequestTimeoutFor(std::string(path.size() - 1, 'Z') + "/" + std::string(path.size() - 1, 'Z')),
              30000);
}

} // namespace
