// The gallery's second interface: only the about query is served.
#include <chrono>
#include <set>

#include "routes.h"
#include "wire_text.h"

namespace cloud {

Reply HandlePhotoAbout(const Call& call)
{
    if (!StartsWith(call.query, "fields=") || call.query.find('&') != std::string::npos)
        return Refused(call, 400, "query: expected fields=<names>");
    if (!call.req.body.empty())
        return Refused(call, 400, "body: the about query takes none");
    const PhotoAbout& about = call.account.about;
    Json::Value v(Json::objectValue);
    std::string list = call.query.substr(7);
    size_t start = 0;
    while (true) {
        size_t comma = list.find(',', start);
        std::string field = list.substr(start, comma - start);
        if (field == "category")
            v["category"] = about.category;
        else if (field == "dataVersion")
            v["dataVersion"] = about.dataVersion;
        else if (field == "domain")
            v["domain"] = about.domain;
        else if (field == "maxBatchNumber")
            v["maxBatchNumber"] = about.maxBatchNumber;
        else if (field == "maxFileUploadSize")
            v["maxFileUploadSize"] = about.maxFileUploadSize;
        else if (field == "maxThumbnailSize")
            v["maxThumbnailSize"] = Json::Int64(about.maxThumbnailSize);
        else if (field == "serverTime")
            v["serverTime"] = Json::Int64(std::chrono::duration_cast<std::chrono::milliseconds>(
                                              std::chrono::system_clock::now().time_since_epoch())
                                              .count());
        else if (field == "status")
            v["status"] = about.status;
        else
            return Refused(call, 400, "fields: unknown field \"" + field + "\"");
        if (comma == std::string::npos)
            break;
        start = comma + 1;
    }
    return JsonReply(v);
}

} // namespace cloud
