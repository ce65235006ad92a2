#include "request/records/backup_records.h"

#include "request/records/record_fields.h"

using record_fields::AppendRecords;
using record_fields::AppendStrings;
using record_fields::CheckKeys;
using record_fields::RecordArray;
using record_fields::StringArray;
using record_fields::StringObject;

std::int32_t BackUpDevice::FromJson(const Json::Value& value)
{
    deviceId = value["deviceId"].asString();
    deviceType = value["deviceType"].asInt();
    terminalType = value["terminalType"].asString();
    aliasName = value["aliasName"].asString();
    devDisplayName = value["devDisplayName"].asString();
    return CheckKeys(value, {"deviceId", "deviceType", "terminalType", "aliasName", "devDisplayName"});
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
    name = value["name"].asString();
    sig = value["sig"].asString();
    size = value["size"].asString();
    url = value["url"].asString();
    ts = value["ts"].asString();
    extParams.clear();
    ObjectToStringMap(value["extParams"], extParams);
    needRun = value["needRun"].asBool();
    return CheckKeys(value, {"name", "sig", "size", "url", "ts", "extParams", "needRun"});
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
    hash = value["hash"].asString();
    fileName = value["fileName"].asString();
    mkFile.FromJson(value["mkFile"]);
    isApkOrIcon = value["isApkOrIcon"].asInt();
    expand = value["expand"].asString();
    return CheckKeys(value, {"hash", "fileName", "mkFile", "isApkOrIcon", "expand"});
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
    appId = value["appId"].asString();
    status = value["status"].asInt();
    size = value["size"].asInt64();
    createTime = value["createTime"].asInt64();
    apkType = value["apkType"].asInt();
    apkPath = value["apkPath"].asString();
    iconPath = value["iconPath"].asString();
    apkUrl = value["apkUrl"].asString();
    iconUrl = value["iconUrl"].asString();
    extend = value["extend"].asString();
    AppendRecords(value["fileInfos"], fileInfos);
    cursor = value["cursor"].asInt();
    return CheckKeys(value, {"appId", "status", "size", "createTime", "apkType", "apkPath", "iconPath",
                             "apkUrl", "iconUrl", "extend", "fileInfos", "cursor"});
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
    device.FromJson(value["device"]);
    status = value["status"].asInt();
    type = value["type"].asInt();
    size = value["size"].asInt64();
    backupId = value["backupId"].asString();
    backupDeviceId = value["backupDeviceId"].asString();
    startTime = value["startTime"].asInt64();
    endTime = value["endTime"].asInt64();
    extend = value["extend"].asString();
    AppendRecords(value["appIdInfos"], appIdInfos);
    return CheckKeys(value, {"device", "status", "type", "size", "backupId", "startTime", "endTime",
                             "extend", "appIdInfos"});
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
    cmd = value["appId"].asInt();
    info = value["info"].asString();
    version = value["version"].asString();
    return CheckKeys(value, {"cmd", "info"});
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
    result = value["result"].asInt();
    info = value["info"].asString();
    AppendRecords(value["backupRecords"], backupRecords);
    return CheckKeys(value, {"result", "info", "backupRecords"});
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
    cmd = value["cmd"].asInt();
    info = value["info"].asString();
    deviceId = value["deviceId"].asString();
    deviceType = value["deviceType"].asInt();
    return CheckKeys(value, {"cmd", "info", "deviceId", "deviceType"});
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
    cmd = value["cmd"].asInt();
    info = value["info"].asString();
    devId = value["devId"].asString();
    deviceType = value["deviceType"].asInt();
    AppendStrings(value["typeList"], typeList);
    return CheckKeys(value, {"cmd", "info", "devId", "deviceType", "typeList"});
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
    cmd = value["cmd"].asInt();
    info = value["info"].asString();
    type = value["type"].asString();
    AppendRecords(value["deviceList"], deviceList);
    return CheckKeys(value, {"cmd", "info", "type", "deviceList"});
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
    device.FromJson(value["device"]);
    count = value["count"].asInt();
    return CheckKeys(value, {"device", "count"});
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
    result = value["result"].asInt();
    info = value["info"].asString();
    AppendRecords(value["countRet"], countRet);
    AppendRecords(value["deviceList"], deviceList);
    return CheckKeys(value, {"result", "info", "countRet", "deviceList"});
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
