// The admin API under /_admin/: readiness, the request log, the fault
// rules, the account. Its replies are JSON, its refusals {"error": "why"}.
#include <cstdlib>

#include "fixture.h"
#include "routes.h"
#include "wire_text.h"

namespace cloud {

namespace {

// {"<key>": value}
Reply Field(const char* key, Json::Value value)
{
    Json::Value v(Json::objectValue);
    v[key] = std::move(value);
    return JsonReply(v);
}

Reply Done()
{
    return JsonReply(Json::Value(Json::objectValue));
}

Json::Value GroupsToJson(const QuotaGroups& groups)
{
    Json::Value v;
    v["backup"] = Json::Int64(groups.backup);
    v["drive"] = Json::Int64(groups.drive);
    v["photos"] = Json::Int64(groups.photos);
    v["other"] = Json::Int64(groups.other);
    v["family"] = Json::Int64(groups.family);
    v["used"] = Json::Int64(groups.Used());
    return v;
}

Reply Log(const Call& call)
{
    uint64_t since = 0;
    if (call.req.has_param("since"))
        since = std::strtoull(call.req.get_param_value("since").c_str(), nullptr, 10);
    return Field("requests", call.log.ToJson(since));
}

// One rule or an array of them; none is added unless all of them are good.
Reply AddFaults(const Call& call)
{
    auto body = ParseJson(call.req.body);
    if (!body)
        return Refused(call, 400, "body is not JSON");
    std::vector<FaultRule> parsed;
    std::string why;
    Json::ArrayIndex at = 0;
    if (!ParseFaultRules(*body, parsed, why, at))
        return Refused(call, 400, "rule " + std::to_string(at) + ": " + why);
    Json::Value ids(Json::arrayValue);
    for (auto& rule : parsed)
        ids.append(call.faults.Add(rule));
    return Field("ids", ids);
}

// Each rule's counts, and how often each endpoint was asked.
Reply Hits(const Call& call)
{
    Json::Value v;
    v["rules"] = Json::Value(Json::arrayValue);
    for (const auto& rule : call.faults.ToJson()) {
        Json::Value r;
        r["id"] = rule["id"];
        r["matched"] = rule["matched"];
        r["hits"] = rule["hits"];
        v["rules"].append(r);
    }
    v["endpoints"] = Json::Value(Json::objectValue);
    for (const auto& [endpoint, count] : call.log.EndpointCounts())
        v["endpoints"][endpoint] = Json::UInt64(count);
    return JsonReply(v);
}

Reply Reset(const Call& call)
{
    const ChangeOutcome outcome = call.store.Reset();
    return outcome.notKept.empty() ? Done() : NotKept(call, outcome.notKept);
}

// The account in the fixture schema, plus the quota groups it adds up to.
Reply Account(const Call& call)
{
    Json::Value v = AccountToJson(call.account);
    v["groups"] = GroupsToJson(call.account.Groups());
    return JsonReply(v);
}

} // namespace

std::vector<Route> AdminRoutes()
{
    const std::string admin = AdminProfile().name;
    return {
        {admin, "GET", "/ready", [](const Call&) { return Field("ok", true); }},
        {admin, "GET", "/log", Log},
        {admin, "DELETE", "/log",
         [](const Call& call) {
             call.log.Clear();
             return Done();
         }},
        {admin, "GET", "/faults", [](const Call& call) { return Field("rules", call.faults.ToJson()); }},
        {admin, "POST", "/faults", AddFaults},
        {admin, "DELETE", "/faults",
         [](const Call& call) {
             call.faults.Clear();
             return Done();
         }},
        {admin, "GET", "/hits", Hits},
        {admin, "POST", "/reset", Reset},
        {admin, "GET", "/account", Account},
    };
}

} // namespace cloud
