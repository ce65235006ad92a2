#pragma once
// What each service expects of a request's headers, and how each one says no.
// The tables follow the client's header sets service by service.
#include <string>
#include <utility>
#include <vector>

#include <httplib.h>

#include "account.h"

namespace cloud {

enum class AuthForm
{
    Unchecked,
    Composite, // Base64 of "6:<uuid>:<app id>::<url-encoded token>"
    Bearer,    // "Bearer " then the token as it is
};

enum class ErrorShape
{
    Nsp,       // {"errCode": n, "errMsg": "..."}
    RetCode,   // {"retCode": n, "retMsg": "..."}
    Result,    // {"result": n, "info": "..."}
    Statistic, // {"result": {"errorNo": n, "info": "..."}}
    Error,     // {"error": {"errorCode": "n", "errorMessage": "..."}}
    Text,      // plain text
    Admin,     // {"error": "..."}, the admin API's
};

struct ServiceProfile
{
    std::string name;   // the host configuration's name, e.g. "familyShare"
    std::string prefix; // path prefix on the emulator's port
    bool commonHeaders = false;
    AuthForm auth = AuthForm::Unchecked;
    std::string traceCode; // empty: no trace id expected
    std::vector<std::pair<std::string, std::string>> exact;
    std::vector<std::string> absent;
    bool countryEncversion = false; // "encversion": "0" for country CN, else "1"
    ErrorShape errors = ErrorShape::Text;
};

// The services, in the order the host configuration lists them.
const std::vector<ServiceProfile>& ServiceProfiles();
const ServiceProfile* FindProfile(const std::string& name);
// The admin API under "/_admin": no checks, no faults, not logged.
const ServiceProfile& AdminProfile();

struct Refusal
{
    int status = 0; // 0: accepted
    std::string reason;
    explicit operator bool() const { return status != 0; }
};

Refusal CheckHeaders(const ServiceProfile& profile, const httplib::Request& req, const Session& session);

// The service's own error reply.
std::string ErrorBody(ErrorShape shape, int code, const std::string& reason);
std::string ErrorContentType(ErrorShape shape);

// The value the client puts in a composite "Authorization" header.
std::string CompositeAuthorization(const std::string& uuid, const std::string& token);
extern const char* const kAppId;

} // namespace cloud
