#include "host/quota_reply.h"

#include <cstdint>

#include <json/value.h>

#include "foundation/utilities.h"

namespace host {
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

} // namespace

bool ParseQuotaReply(const std::string& body, NS::Drive::UserSpaceInfo& info)
{
    Json::Value reply;
    if (!ParseJson(body, reply) || !reply.isObject()) {
        return false;
    }
    // A reply that carries a result code must carry success.
    if (reply.isMember("retCode") && !(reply["retCode"].isInt() && reply["retCode"].asInt() == 0)) {
        return false;
    }
    NS::Drive::UserSpaceInfo parsed;
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

} // namespace host
