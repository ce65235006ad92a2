// The synchronised categories: counts from the statistics service and the
// data version of each category from the sync drive address.
#include "routes.h"
#include "wire_text.h"

namespace cloud {

Reply HandleStatistic(const Call& call, const std::string& category)
{
    if (!call.req.body.empty())
        return Refused(call, 400, "body: the statistics query takes none");
    if (!call.query.empty())
        return Refused(call, 400, "query: the statistics query takes none");
    Json::Value v;
    v["result"]["errorNo"] = 0;
    v["result"]["info"] = "success";
    v["data"] = Json::Value(Json::arrayValue);
    for (const auto& stat : call.account.pim.at(category).statistics) {
        Json::Value d;
        d["source"] = stat.source;
        d["sumNum"] = stat.sumNum;
        v["data"].append(d);
    }
    return JsonReply(v);
}

Reply HandleDataVersion(const Call& call, const std::string& category)
{
    if (call.query != "fields=dataVersion,kinds,maxBatchNumber,status")
        return Refused(call, 400, "query: expected fields=dataVersion,kinds,maxBatchNumber,status");
    if (!call.req.body.empty())
        return Refused(call, 400, "body: the version query takes none");
    const PimCategory& c = call.account.pim.at(category);
    Json::Value v;
    v["dataVersion"] = c.dataVersion;
    v["kinds"] = Json::Value(Json::arrayValue);
    for (const auto& kind : c.kinds)
        v["kinds"].append(kind);
    v["maxBatchNumber"] = c.maxBatchNumber;
    v["status"] = c.status;
    return JsonReply(v);
}

} // namespace cloud
