// Every service's header set as spacemgm-cloud saw it on the wire, header by
// header: the common headers, the two fallbacks of the send step, the
// portal's "?traceId=", Basic's present and empty trace id, and the about
// query of the V2 gallery interface.
#include "request_integration_fixture.h"

#include "foundation/utilities.h"

namespace request_integration {
namespace {

TEST_F(RequestIntegration, FamilyShareQuotaQueryIsAcceptedWithItsHeaders)
{
    const auto reply = QueryPhotoQuota();
    ASSERT_NE(reply, nullptr);
    const Json::Value logged = LastLogged();
    // "ok" means the emulator compared the bearer token with the session's.
    EXPECT_EQ(logged["verdict"].asString(), "ok") << logged.toStyledString();
    EXPECT_EQ(reply->retCode, 0);
    EXPECT_GT(reply->used, 0);
    EXPECT_EQ(reply->quotaDetails.size(), 2u);
    EXPECT_EQ(logged["method"].asString(), "POST");
    EXPECT_EQ(logged["path"].asString(), "/family/rest.php");
    ExpectCommonHeaders(logged);
    ExpectHeaders(logged, {{"Authorization", std::string("Bearer ") + kLoggedToken},
                           {"version", "1122300"},
                           {"x-zp-app-version", "1122300"},
                           {"Content-Type", "application/json"}});
    ExpectTraceCode(logged, "10004");
    ExpectAbsent(logged, {"x-zp-backup-version", "encversion", "x-zp-device-category"});
}

TEST_F(RequestIntegration, QuotaFormCarriesTheTokenEncoded)
{
    ASSERT_NE(QueryPhotoQuota(), nullptr);
    const Json::Value logged = LastLogged();
    EXPECT_EQ(logged["verdict"].asString(), "ok");
    EXPECT_EQ(logged["body"].asString(), "nsp_svc=nsp.user.getQuotaUsedInfo&accessToken=<token>&q=collection%"
                                         "3dphoto%20and%20%28trashed%3dtrue%20or%"
                                         "20trashed%3dfalse%29&serviceType=10880002");
}

TEST_F(RequestIntegration, NspQueryCarriesTheCompositeTokenFromTheFallback)
{
    const auto reply = RunRequest<NSPFilesResponse>(FindEnumRow<NspRequestType>(6),
                                                    MakeNspFolders(Token(), {"/RecordBackup"}, ""));
    ASSERT_NE(reply, nullptr);
    const Json::Value logged = LastLogged();
    EXPECT_EQ(logged["verdict"].asString(), "ok") << logged.toStyledString();
    EXPECT_EQ(logged["method"].asString(), "POST");
    EXPECT_EQ(logged["path"].asString(), "/nsp");
    EXPECT_EQ(logged["body"].asString().rfind("nsp_svc=nsp.vfs.queryFolder&", 0), 0u) << logged["body"];
    ExpectCommonHeaders(logged);
    // The body is a form, yet the service is addressed with a JSON type.
    ExpectHeaders(logged, {{"Authorization", LoggedComposite()}, {"Content-Type", "application/json"}});
    ExpectTraceCode(logged, "05002");
    ExpectAbsent(
        logged, {"version", "x-zp-app-version", "x-zp-backup-version", "encversion", "x-zp-device-category"});
    ASSERT_NE(reply->fileList, nullptr);
    EXPECT_FALSE(reply->fileList->empty());
}

TEST_F(RequestIntegration, CbsQueryIsAcceptedWithItsHeaders)
{
    const auto backups = RunRequest<QueryAllBackUpResponse>(FindEnumRow<CbsType>(0),
                                                            MakeQueryAllDevicesBackupRecordReqRequest());
    ASSERT_NE(backups, nullptr);
    const Json::Value logged = LastLogged();
    EXPECT_EQ(logged["verdict"].asString(), "ok") << logged.toStyledString();
    EXPECT_EQ(backups->result, 0);
    EXPECT_FALSE(backups->backupRecords.empty());
    EXPECT_EQ(logged["method"].asString(), "POST");
    ExpectCommonHeaders(logged);
    ExpectHeaders(logged, {{"Authorization", LoggedComposite()},
                           {"Content-Type", "application/json"},
                           {"version", "1122300"},
                           {"x-zp-app-version", "1122300"},
                           {"x-zp-backup-version", "1"},
                           {"encversion", "0"}});
    ExpectTraceCode(logged, "10004");
    ExpectAbsent(logged, {"x-zp-device-category"});
}

TEST_F(RequestIntegration, PimdsStatisticIsAGetWithItsHeaders)
{
    const auto statistic = RunRequest<StatisticResponse>(FindEnumRow<PimdsType>(1), nullptr);
    ASSERT_NE(statistic, nullptr);
    const Json::Value logged = LastLogged();
    EXPECT_EQ(logged["verdict"].asString(), "ok") << logged.toStyledString();
    EXPECT_EQ(logged["method"].asString(), "GET");
    EXPECT_EQ(logged["path"].asString(), "/pimds/Statistic/Calendar");
    EXPECT_EQ(logged["body"].asString(), "");
    ExpectCommonHeaders(logged);
    // The sample account lives in GB, so the data is not encrypted the Chinese way.
    ExpectHeaders(logged, {{"Authorization", LoggedComposite()},
                           {"Content-Type", "application/json"},
                           {"version", "11.2.4.301"},
                           {"encversion", "1"}});
    ExpectTraceCode(logged, "10004");
    ExpectAbsent(logged, {"x-zp-app-version", "x-zp-backup-version", "x-zp-device-category"});
    ASSERT_NE(statistic->result, nullptr);
}

TEST_F(RequestIntegration, PimDataVersionTakesTheSyncDriveAddressAndTheFamilyHeaders)
{
    const auto version = RunRequest<GetPimDataVersionResponse>(FindEnumRow<PimDataVerionType>(0), nullptr);
    ASSERT_NE(version, nullptr);
    const Json::Value logged = LastLogged();
    EXPECT_EQ(logged["verdict"].asString(), "ok") << logged.toStyledString();
    EXPECT_EQ(logged["method"].asString(), "GET");
    EXPECT_EQ(logged["path"].asString(), "/syncdrive/dataSync/v1/service/1000/about");
    EXPECT_EQ(logged["query"].asString(), "fields=dataVersion,kinds,maxBatchNumber,status");
    ExpectCommonHeaders(logged);
    ExpectHeaders(logged, {{"Authorization", std::string("Bearer ") + kLoggedToken},
                           {"version", "1122300"},
                           {"x-zp-app-version", "1122300"},
                           {"Content-Type", "application/json"}});
    ExpectTraceCode(logged, "10004");
    EXPECT_FALSE(version->dataVersion.empty());
}

TEST_F(RequestIntegration, BasicSendsItsTraceIdAndVersionPresentAndEmpty)
{
    // The emulator serves nothing under /basic, so its reply is text that is
    // no JSON, and the caller gets a default record.
    const auto reply = RunRequest<BaseRsp>(FindEnumRow<BasicType>(10209), nullptr);
    ASSERT_NE(reply, nullptr);
    EXPECT_EQ(reply->result, 0);
    const Json::Value logged = LastLogged();
    EXPECT_EQ(logged["service"].asString(), "basic");
    EXPECT_EQ(logged["path"].asString(), "/basic/sysConfInit");
    EXPECT_EQ(logged["method"].asString(), "POST");
    ExpectCommonHeaders(logged);
    ExpectHeaders(logged, {{"Authorization", LoggedComposite()},
                           {"x-zp-trace-id", ""},
                           {"version", ""},
                           {"x-zp-device-category", "pc"},
                           {"x-zp-active-method", "manual"}});
    ExpectAbsent(logged, {"Content-Type", "x-zp-app-version", "encversion"});
}

TEST_F(RequestIntegration, BasicRowOfTheLastOperationKeepsTheLanguage)
{
    ASSERT_NE(RunRequest<BaseRsp>(FindEnumRow<BasicType>(10207), nullptr), nullptr);
    const Json::Value logged = LastLogged();
    EXPECT_EQ(logged["path"].asString(), "/basic/getLastOperationRecord");
    ExpectHeaders(logged, {{"Accept-Language", "zh-CN"}, {"x-zp-trace-id", ""}});
    ExpectAbsent(logged, {"x-zp-active-method"});
}

TEST_F(RequestIntegration, PortalAppendsTheTraceIdToItsUrlAndSendsTheBareToken)
{
    ASSERT_NE(RunRequest<BaseRsp>(FindEnumRow<PortalInferfaceType>(6), nullptr), nullptr);
    const Json::Value logged = LastLogged();
    EXPECT_EQ(logged["service"].asString(), "portal");
    EXPECT_EQ(logged["path"].asString(), "/portal/pcclient/getAccessTokenByCode");
    const std::string traceId = logged["headers"]["x-zp-trace-id"].asString();
    ExpectTraceCode(logged, "10007");
    EXPECT_EQ(logged["query"].asString(), "traceId=" + traceId);
    ExpectCommonHeaders(logged);
    // No scheme word: the token alone (URL-encoded; the emulator's HTTP
    // library decodes header values before it logs them).
    ExpectHeaders(logged,
                  {{"Authorization", kLoggedToken}, {"Content-Type", "application/json"}, {"Cookie", ""}});
    ExpectAbsent(logged, {"version", "x-zp-app-version", "encversion", "x-zp-device-category"});
}

TEST_F(RequestIntegration, GalleryRequestSendsOnlyTheCommonSetAndTheFallbacks)
{
    ASSERT_NE(RunRequest<BaseRsp>(FindEnumRow<CloudPhotoInterfaceType>(1), nullptr), nullptr);
    const Json::Value logged = LastLogged();
    EXPECT_EQ(logged["service"].asString(), "cloudPhoto");
    EXPECT_EQ(logged["path"].asString(), "/cloudphoto/JPJX/CloudPhoto");
    ExpectCommonHeaders(logged);
    // The class writes its own headers into a map that is never sent: what
    // reaches the wire is the composite token of the send step's fallback.
    ExpectHeaders(logged, {{"Authorization", LoggedComposite()}});
    ExpectAbsent(logged, {"x-zp-trace-id", "Content-Type", "version", "x-zp-os", "x-zp-os-brand",
                          "client-type", "Cflg"});
    // The emulator serves only the about query of the gallery.
    EXPECT_EQ(logged["status"].asInt(), 404);
}

TEST_F(RequestIntegration, AboutQueryOfTheV2Service)
{
    std::map<std::string, std::string> status;
    const std::string dataVersion = GetAboutInfo(status);
    const Json::Value logged = LastLogged();
    EXPECT_EQ(logged["verdict"].asString(), "ok") << logged.toStyledString();
    EXPECT_EQ(dataVersion, cloud.Account()["about"]["dataVersion"].asString());
    EXPECT_EQ(dataVersion, "v2.0");
    EXPECT_EQ(logged["method"].asString(), "GET");
    EXPECT_EQ(logged["path"].asString(), "/cloudphoto/cloudPhoto/v1/about");
    EXPECT_EQ(logged["query"].asString(),
              "fields=dataVersion,status,maxBatchNumber,maxFileUploadSize,maxThumbnailSize");
    ExpectCommonHeaders(logged);
    ExpectHeaders(logged, {{"Authorization", std::string("Bearer ") + kLoggedToken},
                           {"Content-Type", "application/json"},
                           {"version", "11.2.4.301"},
                           {"x-zp-os", WideToUtf8(GetOsName())},
                           {"x-zp-os-brand", "Windows"}});
    ExpectTraceCode(logged, "02116");
    ExpectAbsent(logged, {"client-type", "Cflg", "x-zp-app-version", "x-zp-backup-version", "encversion"});
    // The status values are the styled text of each member.
    ASSERT_EQ(status.count("v2cut"), 1u);
    EXPECT_EQ(status["v2cut"], "0\n");
}

TEST_F(RequestIntegration, UnknownRowClassSendsNothing)
{
    const auto reply = RunRequest<BaseRsp>(FindEnumRow<OperateBasicEventType>(0), nullptr);
    ASSERT_NE(reply, nullptr);
    EXPECT_EQ(reply->result, 0);
    EXPECT_EQ(cloud.RequestLog().size(), 0u);
}

class RequestIntegrationCn : public RequestIntegration
{
protected:
    RequestIntegrationCn() : RequestIntegration(CloudOptions(false, "cn")) {}
};

// The common headers keep the country of the process's first request, so
// only the country-dependent header itself is looked at here.
TEST_F(RequestIntegrationCn, PimdsSendsEncversionZeroForChina)
{
    ASSERT_EQ(host::CurrentHostConfig().session.country, "CN");
    ASSERT_NE(RunRequest<StatisticResponse>(FindEnumRow<PimdsType>(0), nullptr), nullptr);
    const Json::Value logged = LastLogged();
    ExpectHeaders(logged, {{"encversion", "0"}, {"version", "11.2.4.301"}});
    EXPECT_EQ(logged["verdict"].asString().find("encversion"), std::string::npos) << logged["verdict"];
}

} // namespace
} // namespace request_integration
