#pragma once
// The header sets and bodies the module sends, written out from the wire
// formats, so that tests and benchmarks can talk to spacemgm-cloud with plain
// libcurl. Independent of the module's own code on purpose: each side is a
// check on the other.
#include <string>
#include <utility>
#include <vector>

namespace spacemgm_test {

using HeaderList = std::vector<std::pair<std::string, std::string>>;

struct WireSession
{
    std::string accessToken;
    std::string userId;
    std::string country;
    std::string deviceUuid;
    std::string deviceName = "Test%20Box";
};

// The session of a fixture file (its "session" object).
WireSession SessionOfFixture(const std::string& fixturePath);

// Letters, digits and "*-._" stay; any other byte is %xx in lower case.
std::string ClientUrlEncode(const std::string& text);
std::string Base64Of(const std::string& bytes);
// "<code>_11_<seconds>_<eight digits>"
std::string MakeTraceId(const std::string& code);
// Base64 of "6:<uuid>:com.zephra.cloud.pc::<url-encoded token>"
std::string CompositeAuthorization(const WireSession& session);

// Every header the module sends to `service` (host configuration names:
// "nsp", "cbs", "pimds", "familyShare", "cloudSyncDrive", "cloudPhoto"; and
// "accountQuota", which only carries the bearer token).
HeaderList ModuleHeaders(const std::string& service, const WireSession& session);

void SetHeader(HeaderList& headers, const std::string& name, const std::string& value);
void RemoveHeader(HeaderList& headers, const std::string& name);

// The quota-used form: nsp_svc, accessToken, q, serviceType, each encoded.
std::string QuotaForm(const std::string& token, const std::string& q, const std::string& serviceType);
// The NSP list text: ["a","b"]
std::string ListText(const std::vector<std::string>& items);
// "nsp_svc=...&access_token=...&<key>=<value>..." in the given order, encoded.
std::string NspForm(const std::string& op, const std::string& token,
                    const std::vector<std::pair<std::string, std::string>>& rest);

} // namespace spacemgm_test
