// The cloud backup servlet: one path, JSON bodies, the command in "cmd".
#include <algorithm>
#include <set>

#include "routes.h"
#include "wire_text.h"

namespace cloud {

namespace {

Json::Value Result(int code, const std::string& info)
{
    Json::Value v;
    v["result"] = code;
    v["info"] = info;
    return v;
}

// Refusal text for a body whose keys are not exactly `keys`.
std::string CheckKeys(const Json::Value& body, std::initializer_list<const char*> keys)
{
    for (const char* key : keys)
        if (!body.isMember(key))
            return std::string("body: \"") + key + "\" missing";
    for (const auto& name : body.getMemberNames()) {
        bool known = false;
        for (const char* key : keys)
            known = known || name == key;
        if (!known)
            return "body: unexpected key \"" + name + "\"";
    }
    return "";
}

Reply QueryAllBackups(const Call& call, const Json::Value& body)
{
    if (!body["version"].isString() || body["version"].asString() != "V3")
        return Refused(call, 400, "version: expected \"V3\"");
    Json::Value reply = Result(0, "QueryAllDevicesBackupRecordRsp");
    reply["backupRecords"] = Json::Value(Json::arrayValue);
    for (const auto& owner : call.account.backups) {
        for (const auto& entry : owner.backups) {
            Json::Value r;
            r["device"] = DeviceToJson(owner.device);
            r["status"] = entry.status;
            r["type"] = entry.type;
            r["size"] = Json::Int64(entry.size);
            r["backupId"] = entry.backupId;
            r["backupDeviceId"] = owner.backupDeviceId;
            r["startTime"] = Json::Int64(entry.startTime);
            r["endTime"] = Json::Int64(entry.endTime);
            r["extend"] = entry.extend;
            r["appIdInfos"] = Json::Value(Json::arrayValue);
            reply["backupRecords"].append(r);
        }
    }
    return JsonReply(reply);
}

Reply DeleteDeviceBackup(const Call& call, const Json::Value& body)
{
    if (!body["deviceId"].isString() || !body["deviceType"].isInt())
        return Refused(call, 400, "body: deviceId must be a string and deviceType an integer");
    const std::string deviceId = body["deviceId"].asString();
    if (deviceId.empty()) {
        Reply reply = JsonReply(Result(1, "deviceId is empty"));
        reply.refusal = "deviceId: empty";
        return reply;
    }
    // Deleting what is already gone is not an error: the outcome is the same.
    const ChangeOutcome outcome = call.store.DeleteDeviceBackup(deviceId);
    if (!outcome.notKept.empty())
        return NotKept(call, outcome.notKept);
    return JsonReply(
        Result(0, outcome.found ? "DeleteDeviceBackupRecordRsp" : "no backup left for this device"));
}

// Counts are paged: a request without devices gets the first page and the
// devices of the next page to ask for; a request naming devices gets their
// counts and the page after the last of them; an empty list ends the walk.
Reply CountByDevice(const Call& call, const Json::Value& body)
{
    if (!body["type"].isString())
        return Refused(call, 400, "type: must be a string");
    const std::string type = body["type"].asString();
    if (type != "sms" && type != "callLog")
        return Refused(call, 400, "type: expected \"sms\" or \"callLog\", got \"" + type + "\"");
    if (!body["deviceList"].isArray())
        return Refused(call, 400, "deviceList: must be an array");
    const auto& devices = call.account.messageDevices;
    const size_t page = static_cast<size_t>(call.account.messagePageSize);
    std::vector<size_t> asked;
    if (body["deviceList"].empty()) {
        for (size_t i = 0; i < std::min(page, devices.size()); ++i)
            asked.push_back(i);
    } else {
        for (const auto& d : body["deviceList"]) {
            if (!d.isObject() || !d["deviceId"].isString())
                return Refused(call, 400, "deviceList: every device needs a string deviceId");
            auto it = std::find_if(devices.begin(), devices.end(), [&](const MessageDevice& m) {
                return m.device.deviceId == d["deviceId"].asString();
            });
            if (it == devices.end())
                return Refused(call, 400, "deviceList: unknown device " + d["deviceId"].asString());
            asked.push_back(static_cast<size_t>(it - devices.begin()));
        }
    }
    Json::Value reply = Result(0, "CountByDeviceRsp");
    reply["countRet"] = Json::Value(Json::arrayValue);
    reply["deviceList"] = Json::Value(Json::arrayValue);
    size_t last = 0;
    for (size_t index : asked) {
        Json::Value c;
        c["device"] = DeviceToJson(devices[index].device);
        c["count"] = type == "sms" ? devices[index].sms : devices[index].callLog;
        reply["countRet"].append(c);
        last = std::max(last, index + 1);
    }
    for (size_t i = last; i < std::min(last + page, devices.size()) && !asked.empty(); ++i)
        reply["deviceList"].append(DeviceToJson(devices[i].device));
    return JsonReply(reply);
}

Reply DeleteMessages(const Call& call, const Json::Value& body)
{
    if (!body["devId"].isString() || !body["deviceType"].isInt() || !body["typeList"].isArray())
        return Refused(call, 400, "body: devId must be a string, deviceType an integer, typeList an array");
    if (body["typeList"].empty())
        return Refused(call, 400, "typeList: empty");
    std::vector<std::string> kinds;
    for (const auto& t : body["typeList"]) {
        if (!t.isString() || (t.asString() != "sms" && t.asString() != "calllog"))
            return Refused(call, 400, "typeList: expected \"sms\" or \"calllog\"");
        kinds.push_back(t.asString());
    }
    const ChangeOutcome outcome = call.store.ClearMessages(kinds, body["devId"].asString());
    if (!outcome.found) {
        Reply reply = JsonReply(Result(2, "unknown devId"));
        reply.refusal = "devId: unknown device";
        return reply;
    }
    if (!outcome.notKept.empty())
        return NotKept(call, outcome.notKept);
    return JsonReply(Result(0, "DeleteBackupRsp"));
}

} // namespace

Reply HandleBackupServlet(const Call& call)
{
    std::string parseError;
    auto body = ParseJson(call.req.body, &parseError);
    if (!body || !body->isObject())
        return Refused(call, 400, "body: not a JSON object");
    if (!(*body)["cmd"].isInt() || !(*body)["info"].isString())
        return Refused(call, 400, "body: cmd must be an integer and info a string");
    const int cmd = (*body)["cmd"].asInt();
    const std::string info = (*body)["info"].asString();
    struct Command
    {
        int cmd;
        const char* info;
        std::initializer_list<const char*> keys;
        Reply (*handler)(const Call&, const Json::Value&);
    };
    static const Command commands[] = {
        {36, "QueryAllDevicesBackupRecordReq", {"cmd", "info", "version"}, QueryAllBackups},
        {27, "DeleteDeviceBackupRecordReq", {"cmd", "info", "deviceId", "deviceType"}, DeleteDeviceBackup},
        {9, "CountByDeviceReq", {"cmd", "info", "type", "deviceList"}, CountByDevice},
        {5, "DeleteBackupReq", {"cmd", "info", "devId", "deviceType", "typeList"}, DeleteMessages},
    };
    for (const auto& command : commands) {
        if (command.cmd != cmd)
            continue;
        Reply reply;
        if (info != command.info)
            reply = Refused(call, 400, "info: \"" + info + "\" does not name command " + std::to_string(cmd));
        else if (std::string problem = CheckKeys(*body, command.keys); !problem.empty())
            reply = Refused(call, 400, problem);
        else
            reply = command.handler(call, *body);
        reply.endpoint = "cmd " + std::to_string(cmd);
        return reply;
    }
    return Refused(call, 400, "cmd: unknown command " + std::to_string(cmd));
}

} // namespace cloud
