#pragma once
// The route table: one row per endpoint of every service, read like the API.
#include <functional>
#include <string>
#include <vector>

#include <httplib.h>

#include "account_store.h"
#include "service_profiles.h"

namespace cloud {

struct Call
{
    const httplib::Request& req;
    const ServiceProfile& profile;
    const AccountData& account;
    AccountStore& store;
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
    std::string service; // profile name
    std::string method;
    std::string path; // below the service prefix; "" is the bare service URL
    Handler handler;
};

const std::vector<Route>& Routes();

// A refusal in the service's own error shape.
Reply Refused(const Call& call, int status, const std::string& reason);
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

} // namespace cloud
