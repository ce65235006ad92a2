#include "request/records/backup_records.h"

#include "request/records/record_fields.h"

using record_fields::AppendRecords;
using record_fields::AppendStrings;
using record_fields::JsonFields;
using record_fields::ReadBool;
using record_fields::RecordArray;
using record_fields::StringArray;
using record_fields::StringObject;

std::int32_t BackUpDevice::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    deviceId = in["deviceId"].asString();
    deviceType = in["deviceType"].asInt();
    terminalType = in["terminalType"].asString();
    aliasName = in["aliasName"].asString();
    devDisplayName = in["devDisplayName"].asString();
    return in.Check({"deviceId", "deviceType", "terminalType", "aliasName", "devDisplayName"});
}

Json::Value BackUpDevice::ToJson() const
{
    Json::Value value;
    value["deviceId"] = deviceId;
    value["deviceType"] = deviceType;
    value["terminalType"] = terminalType;
    value["aliasName"] = aliasName;
    value["devDisplayName"] = devDisplayName;
    return value;
}

std::int32_t MkFile::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    name = in["name"].asString();
    sig = in["sig"].asString();
    size = in["size"].asString();
    url = in["url"].asString();
    ts = in["ts"].asString();
    extParams.clear();
    ObjectToStringMap(in["extParams"], extParams);
    needRun = ReadBool(in["needRun"]);
    return in.Check({"name", "sig", "size", "url", "ts", "extParams", "needRun"});
}

Json::Value MkFile::ToJson() const
{
    Json::Value value;
    value["name"] = name;
    value["size"] = size;
    value["url"] = url;
    value["ts"] = ts;
    value["needRun"] = needRun;
    value["extParams"] = StringObject(extParams);
    return value;
}

std::int32_t FileInfo::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    hash = in["hash"].asString();
    fileName = in["fileName"].asString();
    mkFile.FromJson(in["mkFile"]);
    isApkOrIcon = in["isApkOrIcon"].asInt();
    expand = in["expand"].asString();
    return in.Check({"hash", "fileName", "mkFile", "isApkOrIcon", "expand"});
}

Json::Value FileInfo::ToJson() const
{
    Json::Value value;
    value["hash"] = hash;
    value["fileName"] = fileName;
    value["mkFile"] = mkFile.ToJson();
    value["isApkOrIcon"] = isApkOrIcon;
    value["expand"] = expand;
    return value;
}

std::int32_t AppIdInfo::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    appId = in["appId"].asString();
    status = in["status"].asInt();
    size = in["size"].asInt64();
    createTime = in["createTime"].asInt64();
    apkType = in["apkType"].asInt();
    apkPath = in["apkPath"].asString();
    iconPath = in["iconPath"].asString();
    apkUrl = in["apkUrl"].asString();
    iconUrl = in["iconUrl"].asString();
    extend = in["extend"].asString();
    AppendRecords(in["fileInfos"], fileInfos);
    cursor = in["cursor"].asInt();
    return in.Check({"appId", "status", "size", "createTime", "apkType", "apkPath", "iconPath", "apkUrl",
                     "iconUrl", "extend", "fileInfos", "cursor"});
}

Json::Value AppIdInfo::ToJson() const
{
    Json::Value value;
    value["appId"] = appId;
    value["status"] = status;
    value["size"] = Json::Int64(size);
    value["createTime"] = Json::Int64(createTime);
    value["apkType"] = apkType;
    value["apkPath"] = apkPath;
    value["iconPath"] = iconPath;
    value["apkUrl"] = apkUrl;
    value["iconUrl"] = iconUrl;
    value["extend"] = extend;
    value["fileInfos"] = RecordArray(fileInfos);
    value["cursor"] = cursor;
    return value;
}

std::int32_t BackupRecord::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    device.FromJson(in["device"]);
    status = in["status"].asInt();
    type = in["type"].asInt();
    size = in["size"].asInt64();
    backupId = in["backupId"].asString();
    backupDeviceId = in["backupDeviceId"].asString();
    startTime = in["startTime"].asInt64();
    endTime = in["endTime"].asInt64();
    extend = in["extend"].asString();
    AppendRecords(in["appIdInfos"], appIdInfos);
    return in.Check(
        {"device", "status", "type", "size", "backupId", "startTime", "endTime", "extend", "appIdInfos"});
}

Json::Value BackupRecord::ToJson() const
{
    Json::Value value;
    value["device"] = device.ToJson();
    value["status"] = status;
    value["type"] = type;
    value["size"] = Json::Int64(size);
    value["backupId"] = backupId;
    value["backupDeviceId"] = backupDeviceId;
    value["startTime"] = Json::Int64(startTime);
    value["endTime"] = Json::Int64(endTime);
    value["extend"] = extend;
    value["appIdInfos"] = RecordArray(appIdInfos);
    return value;
}

std::int32_t QueryAllDevicesBackupRecordReqRequest::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    cmd = in["appId"].asInt();
    info = in["info"].asString();
    version = in["version"].asString();
    return in.Check({"cmd", "info"});
}

Json::Value QueryAllDevicesBackupRecordReqRequest::ToJson() const
{
    Json::Value value;
    value["cmd"] = cmd;
    value["info"] = info;
    value["version"] = version;
    return value;
}

std::int32_t QueryAllBackUpResponse::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    result = in["result"].asInt();
    info = in["info"].asString();
    AppendRecords(in["backupRecords"], backupRecords);
    return in.Check({"result", "info", "backupRecords"});
}

Json::Value QueryAllBackUpResponse::ToJson() const
{
    Json::Value value;
    value["result"] = result;
    value["info"] = info;
    value["backupRecords"] = RecordArray(backupRecords);
    return value;
}

std::int32_t BackUpDeleteRequest::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    cmd = in["cmd"].asInt();
    info = in["info"].asString();
    deviceId = in["deviceId"].asString();
    deviceType = in["deviceType"].asInt();
    return in.Check({"cmd", "info", "deviceId", "deviceType"});
}

Json::Value BackUpDeleteRequest::ToJson() const
{
    Json::Value value;
    value["cmd"] = cmd;
    value["info"] = info;
    value["deviceId"] = deviceId;
    value["deviceType"] = deviceType;
    return value;
}

std::int32_t DeleteSmsAndCallLogRequest::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    cmd = in["cmd"].asInt();
    info = in["info"].asString();
    devId = in["devId"].asString();
    deviceType = in["deviceType"].asInt();
    AppendStrings(in["typeList"], typeList);
    return in.Check({"cmd", "info", "devId", "deviceType", "typeList"});
}

Json::Value DeleteSmsAndCallLogRequest::ToJson() const
{
    Json::Value value;
    value["cmd"] = cmd;
    value["info"] = info;
    value["devId"] = devId;
    value["deviceType"] = deviceType;
    value["typeList"] = StringArray(typeList);
    return value;
}

std::int32_t QueryBackUpSmsAndCallLogRequest::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    cmd = in["cmd"].asInt();
    info = in["info"].asString();
    type = in["type"].asString();
    AppendRecords(in["deviceList"], deviceList);
    return in.Check({"cmd", "info", "type", "deviceList"});
}

Json::Value QueryBackUpSmsAndCallLogRequest::ToJson() const
{
    Json::Value value;
    value["cmd"] = cmd;
    value["info"] = info;
    value["type"] = type;
    value["deviceList"] = RecordArray(deviceList);
    return value;
}

std::int32_t BackUpSmsAndCallLogRecord::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    device.FromJson(in["device"]);
    count = in["count"].asInt();
    return in.Check({"device", "count"});
}

Json::Value BackUpSmsAndCallLogRecord::ToJson() const
{
    Json::Value value;
    value["device"] = device.ToJson();
    value["count"] = count;
    return value;
}

std::int32_t QueryBackUpSmsAndCallLogResponse::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    result = in["result"].asInt();
    info = in["info"].asString();
    AppendRecords(in["countRet"], countRet);
    AppendRecords(in["deviceList"], deviceList);
    return in.Check({"result", "info", "countRet", "deviceList"});
}

Json::Value QueryBackUpSmsAndCallLogResponse::ToJson() const
{
    Json::Value value;
    value["result"] = result;
    value["info"] = info;
    value["countRet"] = RecordArray(countRet);
    value["deviceList"] = RecordArray(deviceList);
    return value;
}
