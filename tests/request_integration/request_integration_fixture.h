// Runs spacemgm-cloud for one test, points the host configuration at it, and
// reads back what the emulator logged of the module's requests.
#pragma once

#include <algorithm>
#include <cctype>
#include <initializer_list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "cloud_emulator.h"
#include "foundation/advanced_enum.h"
#include "foundation/device_identity.h"
#include "host/host_config.h"
#include "request/body_factories.h"
#include "request/postable_string.h"
#include "request/run_request.h"

namespace request_integration {

using spacemgm_test::CloudEmulator;
using HeaderValues = std::vector<std::pair<std::string, std::string>>;

// The emulator shows the session token as "<token>" wherever it appears, and
// a Base64 authorization decoded.
inline const char* const kLoggedToken = "<token>";
inline const char* const kAuthTypeOfTheApp = "Y29tLnplcGhyYS5jbG91ZC5wYw==";

inline CloudEmulator::Options CloudOptions(bool tls, const std::string& fixture = "sample")
{
    CloudEmulator::Options options = CloudEmulator::Options::ForFixture(fixture);
    options.tls = tls;
    return options;
}

inline std::string LoggedComposite()
{
    return "base64(6:" + host::CurrentHostConfig().deviceUuid.value_or("") +
           ":com.zephra.cloud.pc::" + kLoggedToken + ")";
}

class RequestIntegration : public ::testing::Test
{
protected:
    explicit RequestIntegration(CloudEmulator::Options options = {}) : cloud(options)
    {
        host::SetCurrentHostConfig(host::LoadHostConfigFile(cloud.ConfigPath()));
    }

    std::string Token() const { return host::CurrentHostConfig().session.accessToken; }

    Json::Value LastLogged() const
    {
        const Json::Value log = cloud.RequestLog();
        return log.empty() ? Json::Value() : log[log.size() - 1];
    }

    std::shared_ptr<GetQuotaUsedInfoResponse> QueryPhotoQuota()
    {
        return RunRequest<GetQuotaUsedInfoResponse>(
            FindEnumRow<FamilyShareType>(2),
            std::make_shared<PostableString>(ToFormText(MakePhotoQuotaQuery(Token()))));
    }

    void AddFault(const std::string& service, const std::string& kind, int status = 0,
                  const std::string& body = "")
    {
        Json::Value rule;
        rule["service"] = service;
        rule["kind"] = kind;
        if (status != 0) {
            rule["status"] = status;
        }
        if (!body.empty()) {
            rule["body"] = body;
        }
        cloud.AddFault(rule);
    }

    CloudEmulator cloud;
};

// Each header with exactly this value, as the emulator saw it.
inline void ExpectHeaders(const Json::Value& logged, const HeaderValues& expected)
{
    const Json::Value& headers = logged["headers"];
    for (const auto& [name, value] : expected) {
        ASSERT_TRUE(headers.isMember(name)) << name << " is missing from\n" << logged.toStyledString();
        EXPECT_EQ(headers[name].asString(), value) << name;
    }
}

inline void ExpectAbsent(const Json::Value& logged, std::initializer_list<const char*> names)
{
    for (const char* name : names) {
        EXPECT_FALSE(logged["headers"].isMember(name)) << name << " was sent:\n" << logged.toStyledString();
    }
}

inline void ExpectTraceCode(const Json::Value& logged, const std::string& code)
{
    const std::string traceId = logged["headers"]["x-zp-trace-id"].asString();
    EXPECT_EQ(traceId.rfind(code + "_11_", 0), 0u) << traceId;
    EXPECT_EQ(traceId.size(), code.size() + 4 + 10 + 1 + 8) << traceId;
}

// The common headers every service gets, with the connection option and the
// application fallback of the send step; libcurl adds none of its own.
inline void ExpectCommonHeaders(const Json::Value& logged)
{
    const host::HostConfig& config = host::CurrentHostConfig();
    std::string country = config.session.country;
    std::transform(country.begin(), country.end(), country.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    const std::string uuid = config.deviceUuid.value_or("");
    ASSERT_FALSE(uuid.empty());
    // The device name goes out URL-encoded and the emulator's HTTP library
    // decodes header values, so it logs the model as it is; a machine that
    // reports no model sends the header empty.
    ExpectHeaders(logged, {{"User-Agent", "NuvoraPC/11.2.4.301"},
                           {"x-zp-source-agent", "NuvoraPC"},
                           {"Accept-Language", "zh-CN"},
                           {"x-zp-device-id", uuid},
                           {"x-zp-deviceUUID", uuid},
                           {"x-zp-device-type", "6"},
                           {"x-zp-terminal", "PC"},
                           {"x-zp-device-name", GetDeviceModel()},
                           {"x-zp-auth-version", "1"},
                           {"userId", config.session.userId},
                           {"x-zp-country-code", country},
                           {"Keep-alive", "false"},
                           {"AuthType", kAuthTypeOfTheApp}});
    ExpectAbsent(logged, {"Accept", "Expect"});
}

} // namespace request_integration
