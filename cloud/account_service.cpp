// The host's own requests: the account quota behind QueryUserSpace and the
// operations configuration file.
#include "routes.h"
#include "wire_text.h"

namespace cloud {

Reply HandleAccountQuota(const Call& call)
{
    if (!call.req.body.empty())
        return Refused(call, 400, "body: the account quota takes none");
    const QuotaGroups groups = call.account.Groups();
    const int64_t total = call.account.quota.total;
    Json::Value v;
    v["retCode"] = 0;
    v["used"] = Json::Int64(groups.Used());
    v["available"] = Json::Int64(total > groups.Used() ? total - groups.Used() : 0);
    v["total"] = Json::Int64(total);
    v["backup"] = Json::Int64(groups.backup);
    v["drive"] = Json::Int64(groups.drive);
    v["photos"] = Json::Int64(groups.photos);
    v["other"] = Json::Int64(groups.other);
    v["family"] = Json::Int64(groups.family);
    return JsonReply(v);
}

Reply HandleOmConfig(const Call& call)
{
    if (call.account.omConfig.isNull())
        return Refused(call, 404, "this account has no configuration file");
    Reply reply;
    reply.body = WriteStyledJson(call.account.omConfig);
    return reply;
}

} // namespace cloud
