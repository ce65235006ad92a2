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
        return r;
    }();
    return routes;
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

Reply JsonReply(const Json::Value& value)
{
    Reply reply;
    reply.body = WriteCompactJson(value);
    return reply;
}

} // namespace cloud
