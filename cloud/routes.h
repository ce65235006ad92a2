#pragma once
// The route table: one row per endpoint of every service and of the admin
// API, read like the API.
#include <functional>
#include <string>
#include <vector>

#include <httplib.h>

#include "account_store.h"
#include "faults.h"
#include "request_log.h"
#include "service_profiles.h"

namespace cloud {

// What a handler sees of one request and of the emulator.
struct Call
{
    const httplib::Request& req;
    const ServiceProfile& profile;
    const AccountData& account; // the account as the request found it
    AccountStore& store;
    FaultTable& faults;
    RequestLog& log;
    std::string query; // the raw query text, without '?'
};

struct Reply
{
    int status = 200;
    std::string body;
    std::string contentType = "application/json";
    std::string refusal;  // why the request was refused; empty when served
    std::string endpoint; // set by handlers that serve several operations on one path
};

using Handler = std::function<Reply(const Call&)>;

struct Route
{
    std::string service; // profile name; "admin" for the admin API
    std::string method;
    std::string path; // below the service prefix; "" is the bare service URL
    Handler handler;
};

const std::vector<Route>& Routes();

// The route for a request below a service's prefix; `pathKnown` says whether
// any method is served on that path.
const Route* FindRoute(const std::string& service, const std::string& method, const std::string& path,
                       bool& pathKnown);

// The path a route serves, as requests and fault rules name it.
std::string EndpointPath(const Route& route);
// Why a fault rule aimed at `service` and `endpoint` (either may be empty:
// any) could never match a request; empty when it can.
std::string FaultTargetProblem(const std::string& service, const std::string& endpoint);

// A refusal in the service's own error shape.
Reply Refused(const Call& call, int status, const std::string& reason);
// The reply to a change that could not be written to the state file.
Reply NotKept(const Call& call, const std::string& why);
Reply JsonReply(const Json::Value& value);

// Handlers, one file per service.
Reply HandleNspForm(const Call& call);
Reply HandleQuotaUsed(const Call& call);
Reply HandleDriveQuota(const Call& call);
Reply HandleBackupServlet(const Call& call);
Reply HandleStatistic(const Call& call, const std::string& category);
Reply HandleDataVersion(const Call& call, const std::string& category);
Reply HandlePhotoAbout(const Call& call);
Reply HandleAccountQuota(const Call& call);
Reply HandleOmConfig(const Call& call);

// The rows of the admin API (admin_api.cpp).
std::vector<Route> AdminRoutes();

} // namespace cloud
