#include "routes.h"

#include "wire_text.h"

namespace cloud {

const std::vector<Route>& Routes()
{
    static const std::vector<Route> routes = [] {
        std::vector<Route> r = {
            {"nsp", "POST", "", HandleNspForm},
            {"familyShare", "POST", "/rest.php", HandleQuotaUsed},
            {"familyShare", "GET", "/user/v1/quota/drive", HandleDriveQuota},
            {"cbs", "POST", "/CloudBackup/ClientServlet", HandleBackupServlet},
            {"cloudPhoto", "GET", "/cloudPhoto/v1/about", HandlePhotoAbout},
            {"accountQuota", "GET", "/quota", HandleAccountQuota},
            {"omConfig", "GET", "/SpaceOMConfig.json", HandleOmConfig},
        };
        for (const auto& pim : PimServices()) {
            std::string category = pim.name;
            r.push_back({"pimds", "GET", pim.statisticPath,
                         [category](const Call& call) { return HandleStatistic(call, category); }});
            r.push_back({"cloudSyncDrive", "GET",
                         std::string("/dataSync/v1/service/") + pim.serviceId + "/about",
                         [category](const Call& call) { return HandleDataVersion(call, category); }});
        }
        for (auto& admin : AdminRoutes())
            r.push_back(std::move(admin));
        return r;
    }();
    return routes;
}

const Route* FindRoute(const std::string& service, const std::string& method, const std::string& path,
                       bool& pathKnown)
{
    const Route* found = nullptr;
    pathKnown = false;
    for (const auto& route : Routes()) {
        if (route.service == service && route.path == path) {
            pathKnown = true;
            if (route.method == method)
                found = &route;
        }
    }
    return found;
}

std::string EndpointPath(const Route& route)
{
    const ServiceProfile* profile =
        route.service == AdminProfile().name ? &AdminProfile() : FindProfile(route.service);
    return profile->prefix + route.path;
}

std::string FaultTargetProblem(const std::string& service, const std::string& endpoint)
{
    if (!service.empty() && !FindProfile(service))
        return "\"service\": no service named \"" + service + "\"";
    if (endpoint.empty())
        return "";
    for (const auto& route : Routes()) {
        if (route.service == AdminProfile().name || EndpointPath(route) != endpoint)
            continue;
        if (!service.empty() && route.service != service)
            return "\"endpoint\": " + endpoint + " belongs to " + route.service + ", not " + service;
        return "";
    }
    return "\"endpoint\": no endpoint at \"" + endpoint + "\"";
}

Reply Refused(const Call& call, int status, const std::string& reason)
{
    Reply reply;
    reply.status = status;
    reply.body = ErrorBody(call.profile.errors, status, reason);
    reply.contentType = ErrorContentType(call.profile.errors);
    reply.refusal = reason;
    return reply;
}

Reply NotKept(const Call& call, const std::string& why)
{
    return Refused(call, 500, "state: the change could not be kept: " + why);
}

Reply JsonReply(const Json::Value& value)
{
    Reply reply;
    reply.body = WriteCompactJson(value);
    return reply;
}

} // namespace cloud
