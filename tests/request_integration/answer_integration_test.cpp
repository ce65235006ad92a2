// Every way a caller of RunRequest gets its answer from spacemgm-cloud, and
// the same exchange over TLS with the emulator's own CA.
#include "request_integration_fixture.h"

namespace request_integration {
namespace {

TEST_F(RequestIntegration, EmptyBodyGivesNull)
{
    AddFault("familyShare", "empty");
    EXPECT_EQ(QueryPhotoQuota(), nullptr);
    EXPECT_EQ(cloud.RequestLog().size(), 1u);
}

TEST_F(RequestIntegration, EmptyArrayGivesNull)
{
    AddFault("familyShare", "emptyArray");
    EXPECT_EQ(QueryPhotoQuota(), nullptr);
    EXPECT_EQ(cloud.RequestLog().size(), 1u);
}

TEST_F(RequestIntegration, CutConnectionGivesNull)
{
    AddFault("familyShare", "cut");
    EXPECT_EQ(QueryPhotoQuota(), nullptr);
    EXPECT_EQ(LastLogged()["verdict"].asString(), "fault: connection cut");
}

TEST_F(RequestIntegration, RefusedConnectionGivesNull)
{
    ASSERT_EQ(cloud.Stop(), 0);
    EXPECT_EQ(QueryPhotoQuota(), nullptr);
}

TEST_F(RequestIntegration, TextThatIsNoJsonGivesADefaultRecord)
{
    AddFault("familyShare", "notJson");
    const auto reply = QueryPhotoQuota();
    ASSERT_NE(reply, nullptr);
    EXPECT_EQ(reply->retCode, 0);
    EXPECT_EQ(reply->used, 0);
    EXPECT_TRUE(reply->quotaDetails.empty());
}

TEST_F(RequestIntegration, WrongTypeGivesARecordFilledUpToThatField)
{
    // "used" comes as text: the code before it is read, the reading stops
    // there and the details after it stay empty.
    AddFault("familyShare", "status", 200,
             R"({"retCode":7,"used":"lots","quotaDetails":[{"serviceType":2000,"deviceId":"a"}]})");
    const auto reply = QueryPhotoQuota();
    ASSERT_NE(reply, nullptr);
    EXPECT_EQ(reply->retCode, 7);
    EXPECT_EQ(reply->used, 0);
    EXPECT_TRUE(reply->quotaDetails.empty());
}

TEST_F(RequestIntegration, EveryScalarOfTheWrongTypeGivesARecordThatIsNotNull)
{
    AddFault("familyShare", "wrongTypes");
    const auto reply = QueryPhotoQuota();
    ASSERT_NE(reply, nullptr);
    EXPECT_EQ(reply->used, 0);
    EXPECT_TRUE(reply->quotaDetails.empty());
}

TEST_F(RequestIntegration, ServiceErrorStatusGivesItsErrorRecord)
{
    AddFault("familyShare", "status", 401);
    const auto reply = QueryPhotoQuota();
    ASSERT_NE(reply, nullptr);
    EXPECT_EQ(reply->retCode, 401);
}

TEST_F(RequestIntegration, ServiceErrorInASuccessfulReplyGivesItsErrorRecord)
{
    // Deleting the backups of no device is the backup service's own error 1.
    const auto reply = RunRequest<BaseRsp>(FindEnumRow<CbsType>(0), MakeBackUpDeleteRequest());
    ASSERT_NE(reply, nullptr);
    EXPECT_EQ(LastLogged()["status"].asInt(), 200);
    EXPECT_EQ(reply->result, 1);
    EXPECT_FALSE(reply->info.empty());
}

TEST_F(RequestIntegration, ErrorBodyWithoutTheRecordsKeysGivesADefaultRecord)
{
    // The gallery's error reply has neither "result" nor "info": a default
    // record, which a caller cannot tell from an empty success.
    const auto reply = RunRequest<BaseRsp>(FindEnumRow<CloudPhotoInterfaceType>(1), nullptr);
    ASSERT_NE(reply, nullptr);
    EXPECT_EQ(LastLogged()["status"].asInt(), 404);
    EXPECT_EQ(reply->result, 0);
    EXPECT_TRUE(reply->info.empty());
}

class RequestIntegrationTls : public RequestIntegration
{
protected:
    RequestIntegrationTls() : RequestIntegration(CloudOptions(true)) {}
};

TEST_F(RequestIntegrationTls, SameExchangeOverTlsWithTheGeneratedCa)
{
    ASSERT_EQ(host::CurrentHostConfig().caFile.value_or(""), cloud.CaFile());
    ASSERT_EQ(host::CurrentHostConfig().services.familyShare.rfind("https://127.0.0.1:", 0), 0u);
    const auto reply = QueryPhotoQuota();
    ASSERT_NE(reply, nullptr);
    EXPECT_EQ(LastLogged()["verdict"].asString(), "ok");
    EXPECT_EQ(reply->retCode, 0);
    EXPECT_EQ(reply->quotaDetails.size(), 2u);
    ExpectCommonHeaders(LastLogged());
}

TEST_F(RequestIntegrationTls, NspRequestAsksForHttp2AndIsServedOverTls)
{
    // The emulator speaks HTTP/1.1 only: libcurl offers h2 in the handshake
    // and settles on 1.1, and the request goes out unchanged.
    const auto reply = RunRequest<NSPFilesResponse>(FindEnumRow<NspRequestType>(6),
                                                    MakeNspFolders(Token(), {"/RecordBackup"}, ""));
    ASSERT_NE(reply, nullptr);
    const Json::Value logged = LastLogged();
    EXPECT_EQ(logged["verdict"].asString(), "ok") << logged.toStyledString();
    ExpectHeaders(logged, {{"Authorization", LoggedComposite()}, {"Content-Type", "application/json"}});
    ASSERT_NE(reply->fileList, nullptr);
    EXPECT_FALSE(reply->fileList->empty());
}

TEST_F(RequestIntegrationTls, ForeignCaRefusesTheConnection)
{
    CloudEmulator other(CloudOptions(true));
    host::HostConfig config = host::CurrentHostConfig();
    config.caFile = other.CaFile();
    host::SetCurrentHostConfig(config);
    EXPECT_EQ(QueryPhotoQuota(), nullptr);
    EXPECT_EQ(cloud.RequestLog().size(), 0u);
}

TEST_F(RequestIntegrationTls, SystemCaStoreDoesNotTrustTheEmulator)
{
    host::HostConfig config = host::CurrentHostConfig();
    config.caFile.reset();
    host::SetCurrentHostConfig(config);
    EXPECT_EQ(QueryPhotoQuota(), nullptr);
    EXPECT_EQ(cloud.RequestLog().size(), 0u);
}

} // namespace
} // namespace request_integration
