// The header table of every service, observed on a loopback capture, header
// by header; and the row-dependent headers.
#include <gtest/gtest.h>

#include "foundation/advanced_enum.h"
#include "request/run_request.h"
#include "request/service/family_share_pc_request.h"
#include "tests/request/request_test_env.h"

namespace {

const char kAbsent[] = "<absent>";
const char kAuth[] = "AUTH";   // BuildAuthorization with the client's id
const char kTrace[] = "TRACE"; // the request's own trace id
const char kAny[] = "ANY";     // present, value checked elsewhere

struct ServiceRow
{
    const char* name;
    const AdvancedIntEnumType* (*row)();
    const char* pathPrefix;
    const char* method;
    std::map<std::string, std::string> expected;
};

template <class E, int Id> const AdvancedIntEnumType* Row()
{
    return FindEnumRow<E>(Id);
}

std::string ExpectedAuth()
{
    return "6:uuid-of-test-machine:com.zephra.cloud.pc::token%2bwith%2fslash";
}

const std::vector<ServiceRow>& Table()
{
    static const std::vector<ServiceRow> table = {
        {"Nsp",
         Row<NspRequestType, 6>,
         "/nsp",
         "POST",
         {{"Authorization", kAuth},
          {"x-zp-trace-id", kTrace},
          {"Content-Type", "application/json"},
          {"version", kAbsent},
          {"x-zp-app-version", kAbsent},
          {"x-zp-backup-version", kAbsent},
          {"encversion", kAbsent},
          {"x-zp-device-category", kAbsent}}},
        {"Basic",
         Row<BasicType, 10206>,
         "/basic/getUserDeviceInfo",
         "POST",
         {{"Authorization", kAuth},
          {"x-zp-trace-id", kAny},
          {"Content-Type", kAbsent},
          {"version", kAny},
          {"x-zp-app-version", kAbsent},
          {"x-zp-backup-version", kAbsent},
          {"encversion", kAbsent},
          {"x-zp-device-category", "pc"},
          {"x-zp-active-method", kAbsent}}},
        {"Portal",
         Row<PortalInferfaceType, 1>,
         "/portal/pcclient/getproperties",
         "POST",
         {{"Authorization", kAny},
          {"x-zp-trace-id", kTrace},
          {"Content-Type", "application/json"},
          {"version", kAbsent},
          {"x-zp-app-version", kAbsent},
          {"x-zp-backup-version", kAbsent},
          {"encversion", kAbsent},
          {"x-zp-device-category", kAbsent},
          {"Cookie", kAbsent}}},
        {"Cbs",
         Row<CbsType, 0>,
         "/cbs/CloudBackup/ClientServlet",
         "POST",
         {{"Authorization", kAuth},
          {"x-zp-trace-id", kTrace},
          {"Content-Type", "application/json"},
          {"version", "1122300"},
          {"x-zp-app-version", "1122300"},
          {"x-zp-backup-version", "1"},
          {"encversion", "0"},
          {"x-zp-device-category", kAbsent}}},
        {"Pimds",
         Row<PimdsType, 1>,
         "/pimds/Statistic/Calendar",
         "POST",
         {{"Authorization", kAuth},
          {"x-zp-trace-id", kTrace},
          {"Content-Type", "application/json"},
          {"version", "11.2.4.301"},
          {"x-zp-app-version", kAbsent},
          {"x-zp-backup-version", kAbsent},
          {"encversion", "1"},
          {"x-zp-device-category", kAbsent}}},
        {"FamilyShare",
         Row<FamilyShareType, 1>,
         "/family/user/v1/quota/drive",
         "POST",
         {{"Authorization", "Bearer token+with/slash"},
          {"x-zp-trace-id", kTrace},
          {"Content-Type", "application/json"},
          {"version", "1122300"},
          {"x-zp-app-version", "1122300"},
          {"x-zp-backup-version", kAbsent},
          {"encversion", kAbsent},
          {"x-zp-device-category", kAbsent}}},
        {"PimDataVersion",
         Row<PimDataVerionType, 0>,
         "/syncdrive/dataSync/v1/service/1000/about",
         "POST",
         {{"Authorization", "Bearer token+with/slash"},
          {"x-zp-trace-id", kTrace},
          {"Content-Type", "application/json"},
          {"version", "1122300"},
          {"x-zp-app-version", "1122300"},
          {"x-zp-backup-version", kAbsent},
          {"encversion", kAbsent},
          {"x-zp-device-category", kAbsent}}},
        // The first cloud photo interface computes its headers into a map that
        // is never sent: the wire shows the common set and the fallbacks only.
        {"CloudPhoto",
         Row<CloudPhotoInterfaceType, 10>,
         "/photo/JPJX/CloudPhoto",
         "POST",
         {{"Authorization", kAuth},
          {"x-zp-trace-id", kAbsent},
          {"Content-Type", kAbsent},
          {"version", kAbsent},
          {"x-zp-os", kAbsent},
          {"x-zp-os-brand", kAbsent},
          {"client-type", kAbsent},
          {"Cflg", kAbsent}}},
    };
    return table;
}

class ServiceHeadersTest : public ::testing::TestWithParam<size_t>
{
protected:
    void SetUp() override { host::SetCurrentHostConfig(ConfigFor(server)); }
    CaptureServer server;
};

TEST_P(ServiceHeadersTest, WireMatchesTheServiceTable)
{
    const ServiceRow& service = Table()[GetParam()];
    SCOPED_TRACE(service.name);
    auto exchange = std::make_shared<RequestExchange>();
    RunRequest<BaseRsp>(service.row(), nullptr, exchange);
    ASSERT_EQ(server.Count(), 1u);
    const CapturedRequest request = server.Last();
    EXPECT_EQ(request.method, service.method);
    EXPECT_EQ(request.path, service.pathPrefix);

    for (const auto& [name, expected] : service.expected) {
        SCOPED_TRACE(name);
        if (expected == kAuth) {
            EXPECT_EQ(DecodeBase64(request.Header(name)), ExpectedAuth());
        } else if (expected == kTrace) {
            EXPECT_EQ(request.Header(name), exchange->traceId);
            EXPECT_FALSE(exchange->traceId.empty());
        } else if (expected != kAny) {
            EXPECT_EQ(request.Header(name), expected);
        }
    }
    // Common headers, the fixed AuthType and Keep-alive go out for every service.
    EXPECT_EQ(request.Header("AuthType"), "Y29tLnplcGhyYS5jbG91ZC5wYw==");
    EXPECT_EQ(request.Header("Keep-alive"), "false");
    EXPECT_EQ(request.Header("User-Agent"), "NuvoraPC/11.2.4.301");
    EXPECT_EQ(request.Header("x-zp-source-agent"), "NuvoraPC");
    EXPECT_EQ(request.Header("x-zp-device-id"), "uuid-of-test-machine");
    EXPECT_EQ(request.Header("x-zp-deviceUUID"), "uuid-of-test-machine");
    EXPECT_EQ(request.Header("x-zp-device-type"), "6");
    EXPECT_EQ(request.Header("x-zp-terminal"), "PC");
    // cpp-httplib URL-decodes header values; the encoded text is checked on
    // the raw wire below.
    EXPECT_EQ(request.Header("x-zp-device-name"), "Test Model");
    EXPECT_EQ(request.Header("x-zp-auth-version"), "1");
    EXPECT_EQ(request.Header("Accept-Language"), "zh-CN");
    EXPECT_FALSE(request.Has("Accept"));
    EXPECT_FALSE(request.Has("Expect"));
    EXPECT_NE(request.Header("userId"), kAbsent);
    EXPECT_NE(request.Header("x-zp-country-code"), kAbsent);
}

INSTANTIATE_TEST_SUITE_P(EveryService, ServiceHeadersTest, ::testing::Range<size_t>(0, 8),
                         [](const ::testing::TestParamInfo<size_t>& info) {
                             return std::string(Table()[info.param].name);
                         });

class RowHeadersTest : public ::testing::Test
{
protected:
    void SetUp() override { host::SetCurrentHostConfig(ConfigFor(server)); }
    void UseCountry(const std::string& country)
    {
        host::HostConfig config = ConfigFor(server);
        config.session.country = country;
        host::SetCurrentHostConfig(config);
    }
    CaptureServer server;
};

TEST_F(RowHeadersTest, BasicTraceIdHeaderIsPresentAndEmpty)
{
    RawCaptureServer raw;
    host::HostConfig config = ConfigFor(server);
    config.services.basic = raw.Url("/basic");
    host::SetCurrentHostConfig(config);
    RunRequest<BaseRsp>(FindEnumRow<BasicType>(10207), nullptr);
    const std::string head = raw.LastHead();
    EXPECT_NE(head.find("\r\nx-zp-trace-id:\r\n"), std::string::npos) << head;
    EXPECT_NE(head.find("\r\nversion:\r\n"), std::string::npos) << head;
    EXPECT_NE(head.find("\r\nAccept-Language: zh-CN\r\n"), std::string::npos) << head;
}

TEST_F(RowHeadersTest, PortalTokenAndDeviceNameTravelUrlEncoded)
{
    RawCaptureServer raw;
    host::HostConfig config = ConfigFor(server);
    config.services.portal = raw.Url("/portal");
    host::SetCurrentHostConfig(config);
    RunRequest<BaseRsp>(FindEnumRow<PortalInferfaceType>(1), nullptr);
    EXPECT_NE(raw.LastHead().find("\r\nAuthorization: token%2bwith%2fslash\r\n"), std::string::npos)
        << raw.LastHead();
    EXPECT_NE(raw.LastHead().find("\r\nx-zp-device-name: Test%20Model\r\n"), std::string::npos);
}

TEST_F(RowHeadersTest, BasicSystemConfigurationRowIsManual)
{
    RunRequest<BaseRsp>(FindEnumRow<BasicType>(10209), nullptr);
    EXPECT_EQ(server.Last().Header("x-zp-active-method"), "manual");
    RunRequest<BaseRsp>(FindEnumRow<BasicType>(10210), nullptr);
    EXPECT_EQ(server.Last().Header("x-zp-active-method"), kAbsent);
}

TEST_F(RowHeadersTest, PimdsEncversionIsZeroOnlyForUpperCaseCN)
{
    UseCountry("cn");
    RunRequest<BaseRsp>(FindEnumRow<PimdsType>(0), nullptr);
    EXPECT_EQ(server.Last().Header("encversion"), "1");
    UseCountry("");
    RunRequest<BaseRsp>(FindEnumRow<PimdsType>(0), nullptr);
    EXPECT_EQ(server.Last().Header("encversion"), "1");
    UseCountry("CN");
    RunRequest<BaseRsp>(FindEnumRow<PimdsType>(0), nullptr);
    EXPECT_EQ(server.Last().Header("encversion"), "0");
}

TEST_F(RowHeadersTest, FamilyShareWithEmptyTokenSendsBearerWithTrailingBlank)
{
    host::HostConfig config = ConfigFor(server);
    config.session.accessToken = "";
    host::SetCurrentHostConfig(config);
    FamilySharePCRequest request;
    request.AddHeaders();
    EXPECT_EQ(request.requestHeaders["Authorization"], "Bearer ");

    RawCaptureServer raw;
    config.services.familyShare = raw.Url("/family");
    host::SetCurrentHostConfig(config);
    RunRequest<BaseRsp>(FindEnumRow<FamilyShareType>(0), nullptr);
    EXPECT_NE(raw.LastHead().find("\r\nAuthorization: Bearer \r\n"), std::string::npos) << raw.LastHead();
}

TEST_F(RowHeadersTest, PortalTokenByCodeSendsAnEmptyCookie)
{
    RawCaptureServer raw;
    host::HostConfig config = ConfigFor(server);
    config.services.portal = raw.Url("/portal");
    host::SetCurrentHostConfig(config);
    RunRequest<BaseRsp>(FindEnumRow<PortalInferfaceType>(6), nullptr);
    EXPECT_NE(raw.LastHead().find("\r\nCookie:\r\n"), std::string::npos) << raw.LastHead();
    EXPECT_EQ(raw.LastHead().rfind("POST /portal/pcclient/getAccessTokenByCode?traceId=10007_11_", 0), 0u);
}

TEST_F(RowHeadersTest, CloudPhotoSendsNoTraceIdAlthoughItComputesOne)
{
    auto exchange = std::make_shared<RequestExchange>();
    RunRequest<BaseRsp>(FindEnumRow<CloudPhotoInterfaceType>(4), nullptr, exchange);
    EXPECT_FALSE(exchange->traceId.empty());
    EXPECT_FALSE(server.Last().Has("x-zp-trace-id"));
}

TEST_F(RowHeadersTest, PimDataVersionUsesTheSyncDriveAddressAndFamilyShareHeaders)
{
    RunRequest<GetPimDataVersionResponse>(FindEnumRow<PimDataVerionType>(2), nullptr);
    EXPECT_EQ(server.Last().target,
              "/syncdrive/dataSync/v1/service/1002/about?fields=dataVersion,kinds,maxBatchNumber,status");
    EXPECT_EQ(server.Last().Header("Authorization"), "Bearer token+with/slash");
    EXPECT_EQ(server.Last().Header("version"), "1122300");
    EXPECT_EQ(server.Last().method, "GET");
}

} // namespace
