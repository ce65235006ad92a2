// The quota service at the family share address: the quota-used query with
// its filters, and the drive's used bytes.
#include <algorithm>
#include <cctype>
#include <set>
#include <unordered_map>

#include "routes.h"
#include "wire_text.h"

namespace cloud {

namespace {

Json::Value PhotoOrDriveDetail(const std::string& collection, int64_t serviceType, bool trashed,
                               int64_t bytes)
{
    Json::Value v;
    v["statistics"] = collection;
    v["serviceType"] = Json::Int64(serviceType);
    v["recordsQuotadSpace"] = Json::Int64(0);
    v["assetsQuotadSpace"] = Json::Int64(bytes);
    v["appId"] = collection == "photo" ? "com.zephra.photos" : "com.zephra.drive";
    v["collection"] = collection;
    v["trashed"] = trashed;
    v["parentId"] = "";
    return v;
}

Json::Value PrivateDetail(int64_t serviceType, const std::string& deviceId, const std::string& kind,
                          bool trashed, int64_t records, int64_t recordsSpace, int64_t assets)
{
    Json::Value v;
    v["serviceType"] = Json::Int64(serviceType);
    v["snapShotType"] = Json::Int64(0);
    v["collection"] = "private";
    v["statisticsType"] = Json::Int64(1);
    v["deviceId"] = deviceId;
    v["recordsCount"] = Json::Int64(records);
    v["recordsQuotadSpace"] = Json::Int64(recordsSpace);
    v["assetsQuotadSpace"] = Json::Int64(assets);
    v["statistics"] = kind.empty() ? "backup" : kind;
    v["trashed"] = trashed ? "true" : "false";
    v["kind"] = kind;
    return v;
}

Json::Value Success(int64_t used)
{
    Json::Value v;
    v["retCode"] = 0;
    v["used"] = Json::Int64(used);
    v["quotaDetails"] = Json::Value(Json::arrayValue);
    return v;
}

std::vector<std::string> SplitComma(const std::string& text)
{
    std::vector<std::string> out;
    size_t start = 0;
    while (true) {
        size_t comma = text.find(',', start);
        out.push_back(text.substr(start, comma - start));
        if (comma == std::string::npos)
            break;
        start = comma + 1;
    }
    return out;
}

// Each device by both of its ids; the first device that holds an id keeps it.
std::unordered_map<std::string, const BackupOwner*> OwnersById(const AccountData& account)
{
    std::unordered_map<std::string, const BackupOwner*> owners;
    for (const auto& owner : account.backups) {
        owners.emplace(owner.backupDeviceId, &owner);
        owners.emplace(owner.device.deviceId, &owner);
    }
    return owners;
}

Reply DeviceQuota(const Call& call, const std::string& list)
{
    Json::Value reply = Success(0);
    int64_t used = 0;
    std::set<std::string> answered;
    const auto owners = OwnersById(call.account);
    for (const auto& id : SplitComma(list)) {
        if (id.empty() || !answered.insert(id).second)
            continue;
        auto found = owners.find(id);
        if (found == owners.end())
            continue;
        const BackupOwner& owner = *found->second;
        int64_t size = owner.TotalSize();
        used += size;
        reply["quotaDetails"].append(
            PrivateDetail(2000, id, "", false, static_cast<int64_t>(owner.backups.size()), 0, size));
    }
    reply["used"] = Json::Int64(used);
    return JsonReply(reply);
}

Reply KindQuota(const Call& call, const std::string& kindList, const std::string& serviceType)
{
    const PimService* service = nullptr;
    for (const auto& s : PimServices())
        if (serviceType == s.serviceId)
            service = &s;
    if (!service)
        return Refused(call, 400, "serviceType " + serviceType + " serves no synchronised category");
    const PimCategory& category = call.account.pim.at(service->name);
    std::vector<std::string> kinds = SplitComma(kindList);
    for (const auto& kind : kinds)
        if (std::find(category.kinds.begin(), category.kinds.end(), kind) == category.kinds.end())
            return Refused(call, 400, "kind \"" + kind + "\" is not kept by service " + serviceType);
    Json::Value reply = Success(0);
    int64_t used = 0;
    for (const auto& record : category.records) {
        if (std::find(kinds.begin(), kinds.end(), record.kind) == kinds.end())
            continue;
        used += record.assetsQuotadSpace;
        reply["quotaDetails"].append(PrivateDetail(std::stoll(serviceType), "", record.kind, record.trashed,
                                                   record.recordsCount, record.recordsQuotadSpace,
                                                   record.assetsQuotadSpace));
    }
    reply["used"] = Json::Int64(used);
    return JsonReply(reply);
}

bool IsKindList(const std::string& text)
{
    return !text.empty() && std::all_of(text.begin(), text.end(), [](unsigned char c) {
        return std::isalnum(c) || c == '_' || c == ',';
    });
}

Reply Named(Reply reply, const char* endpoint)
{
    reply.endpoint = endpoint;
    return reply;
}

// The whole `q` must be one of the filters the client writes.
Reply AnswerFilter(const Call& call, const std::string& q, const std::string& serviceType)
{
    if (q == "collection=photo and (trashed=true or trashed=false)") {
        if (serviceType != "10880002")
            return Refused(call, 400, "serviceType " + serviceType + " does not keep photos");
        const auto& g = call.account.gallery;
        Json::Value v = Success(g.bytes + g.recycleBytes);
        v["quotaDetails"].append(PhotoOrDriveDetail("photo", 10880002, false, g.bytes));
        v["quotaDetails"].append(PhotoOrDriveDetail("photo", 10880002, true, g.recycleBytes));
        return Named(JsonReply(v), "quota.photo");
    }
    if (q == "collection=drive and (trashed=true)") {
        if (serviceType != "10781986")
            return Refused(call, 400, "serviceType " + serviceType + " does not keep the drive");
        Json::Value v = Success(call.account.drive.recycleBytes);
        v["quotaDetails"].append(
            PhotoOrDriveDetail("drive", 10781986, true, call.account.drive.recycleBytes));
        return Named(JsonReply(v), "quota.drive");
    }
    auto devices = Between(q, "collection=private and deviceId in [", "]");
    if (devices && devices->find(']') == std::string::npos) {
        if (serviceType != "2000")
            return Refused(call, 400, "serviceType " + serviceType + " does not keep device backups");
        return Named(DeviceQuota(call, *devices), "quota.devices");
    }
    auto kinds = Between(q, "collection=private and kind in [", "] and (trashed=true or trashed=false)");
    if (kinds && IsKindList(*kinds))
        return Named(KindQuota(call, *kinds, serviceType), "quota.kinds");
    return Refused(call, 400, "q: unknown filter \"" + q + "\"");
}

} // namespace

Reply HandleQuotaUsed(const Call& call)
{
    FormBody form = ParseForm(call.req.body);
    if (!form.ok())
        return Refused(call, 400, form.error);
    if (std::string problem = CheckFormKeys(form, {"nsp_svc", "accessToken", "q", "serviceType"});
        !problem.empty())
        return Refused(call, 400, problem);
    if (form.fields.at("nsp_svc") != "nsp.user.getQuotaUsedInfo")
        return Refused(call, 400, "nsp_svc: expected nsp.user.getQuotaUsedInfo");
    if (form.fields.at("accessToken") != call.account.session.accessToken)
        return Refused(call, 401, "form: accessToken is not the session's token");
    return AnswerFilter(call, form.fields.at("q"), form.fields.at("serviceType"));
}

Reply HandleDriveQuota(const Call& call)
{
    if (!call.req.body.empty())
        return Refused(call, 400, "body: the drive quota takes none");
    Json::Value v;
    v["retCode"] = 0;
    v["used"] = Json::Int64(call.account.drive.used);
    return JsonReply(v);
}

} // namespace cloud
