#pragma once
// A plain libcurl client for the emulator's tests: sends what the module
// would send to a service, with the header set of that service.
#include <functional>
#include <memory>
#include <string>

#include <json/json.h>

#include "cloud_emulator.h"
#include "cloud_wire_client.h"

namespace spacemgm_test {

struct CloudReply
{
    long status = 0;
    std::string body;
    int curlCode = 0;
    Json::Value json; // null when the body is not JSON
};

class CloudTestClient
{
public:
    explicit CloudTestClient(const CloudEmulator& cloud, const std::string& fixture);

    // `tweak` may change the headers before sending.
    CloudReply Send(const std::string& service, const std::string& method, const std::string& pathAndQuery,
                    const std::string& body, const std::function<void(HeaderList&)>& tweak = nullptr,
                    long timeoutMs = 10000) const;

    CloudReply QuotaQuery(const std::string& q, const std::string& serviceType) const;
    CloudReply Nsp(const std::string& op, const std::vector<std::pair<std::string, std::string>>& rest) const;
    CloudReply Backup(const Json::Value& body) const;

    const WireSession& Session() const { return session_; }

private:
    const CloudEmulator& cloud_;
    WireSession session_;
};

Json::Value ReadFixture(const std::string& name);
Json::Value ParseJsonText(const std::string& text);
std::string CompactJson(const Json::Value& value);

} // namespace spacemgm_test
