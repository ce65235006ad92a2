#include "fault_replies.h"

#include "wire_text.h"

namespace cloud {

bool EndsConnection(FaultKind kind)
{
    return kind == FaultKind::Cut || kind == FaultKind::Hang;
}

bool ReplacesService(FaultKind kind)
{
    return kind != FaultKind::WrongTypes && kind != FaultKind::Truncated && !EndsConnection(kind) &&
           kind != FaultKind::Latency;
}

Reply ReplacementReply(const FaultRule& rule, const ServiceProfile& profile)
{
    Reply reply;
    reply.status = rule.status ? rule.status : 200;
    switch (rule.kind) {
    case FaultKind::Status:
        reply.body = rule.body ? *rule.body : ErrorBody(profile.errors, rule.status, "injected fault");
        reply.contentType = rule.body ? "application/json" : ErrorContentType(profile.errors);
        break;
    case FaultKind::Empty:
        reply.body = "";
        break;
    case FaultKind::EmptyArray:
        reply.body = "[]";
        break;
    default:
        reply.body = rule.body ? *rule.body : "<html><body>Service Unavailable</body></html>";
        reply.contentType = "text/html";
        break;
    }
    return reply;
}

void AlterReply(const FaultRule& rule, Reply& reply)
{
    if (rule.kind == FaultKind::WrongTypes) {
        if (auto parsed = ParseJson(reply.body))
            reply.body = WriteCompactJson(WithWrongTypes(*parsed));
    } else if (rule.kind == FaultKind::Truncated) {
        reply.body = reply.body.substr(0, reply.body.size() / 2);
    }
    if (rule.status)
        reply.status = rule.status;
}

Json::Value WithWrongTypes(const Json::Value& v)
{
    if (v.isObject()) {
        Json::Value out(Json::objectValue);
        for (const auto& name : v.getMemberNames())
            out[name] = WithWrongTypes(v[name]);
        return out;
    }
    if (v.isArray()) {
        Json::Value out(Json::arrayValue);
        for (const auto& item : v)
            out.append(WithWrongTypes(item));
        return out;
    }
    if (v.isString()) {
        Json::Value out(Json::objectValue);
        out["text"] = v;
        return out;
    }
    if (v.isNull())
        return Json::Value(0);
    return Json::Value(v.asString());
}

} // namespace cloud
