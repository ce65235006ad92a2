// The account quota of the stand-alone host: one GET to the address
// `services.accountQuota`, answered with a JSON object of byte counts.
#include "platform/user_space.h"

#include <json/json.h>

#include <memory>
#include <string>

#include "host/host_config.h"
#include "host/session_get.h"

namespace NS {
namespace Drive {

namespace {

bool ReadBytes(const Json::Value& reply, const char* key, uint64_t& out)
{
    const Json::Value& value = reply[key];
    if (value.isUInt64()) {
        out = value.asUInt64();
        return true;
    }
    return false;
}

bool ParseQuotaReply(const std::string& body, UserSpaceInfo& info)
{
    Json::CharReaderBuilder builder;
    std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    Json::Value reply;
    if (body.empty() || !reader->parse(body.data(), body.data() + body.size(), &reply, nullptr) ||
        !reply.isObject()) {
        return false;
    }
    // A reply that carries a result code must carry success.
    if (reply.isMember("retCode") && !(reply["retCode"].isInt() && reply["retCode"].asInt() == 0)) {
        return false;
    }
    UserSpaceInfo parsed;
    // "used" and "total" are required; a group the service leaves out is 0.
    if (!ReadBytes(reply, "used", parsed.used) || !ReadBytes(reply, "total", parsed.total)) {
        return false;
    }
    ReadBytes(reply, "backup", parsed.backup);
    ReadBytes(reply, "drive", parsed.drive);
    ReadBytes(reply, "photos", parsed.photos);
    ReadBytes(reply, "other", parsed.other);
    ReadBytes(reply, "family", parsed.family);
    info = parsed;
    return true;
}

} // namespace

bool UserSpace::QueryUserSpace(UserSpaceInfo& info, bool /*force*/)
{
    const std::string url = host::CurrentHostConfig().services.accountQuota;
    if (url.empty()) {
        return false;
    }
    std::string body;
    if (host::GetAsSignedInUser(url, body) != 200) {
        return false;
    }
    return ParseQuotaReply(body, info);
}

} // namespace Drive
} // namespace NS
