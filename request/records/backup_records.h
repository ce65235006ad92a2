#pragma once

// Records of the cloud backup service. Every request to it is a JSON body
// with a command number in "cmd" and the command's name in "info"; every
// reply carries "result" and "info". Fields default to 0 or empty.

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "request/serializable_object.h"

class BackUpDevice : public SerializableObject
{
public:
    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::string deviceId;
    std::int32_t deviceType = 0;
    std::string terminalType;
    std::string aliasName;
    std::string devDisplayName;
};

// A stored file. "sig" is read but never written back; "extParams" is
// flattened to strings (ObjectToStringMap) after clearing the map.
class MkFile : public SerializableObject
{
public:
    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::string name;
    std::string sig;
    std::string size;
    std::string url;
    std::string ts;
    std::map<std::string, std::string> extParams;
    bool needRun = false;
};

// A file of an application inside a backup.
class FileInfo : public SerializableObject
{
public:
    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::string hash;
    std::string fileName;
    MkFile mkFile;
    std::int32_t isApkOrIcon = 0;
    std::string expand;
};

// One application inside a backup.
class AppIdInfo : public SerializableObject
{
public:
    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::string appId;
    std::int32_t status = 0;
    std::int64_t size = 0;
    std::int64_t createTime = 0;
    std::int32_t apkType = 0;
    std::string apkPath;
    std::string iconPath;
    std::string apkUrl;
    std::string iconUrl;
    std::string extend;
    std::vector<FileInfo> fileInfos;
    std::int32_t cursor = 0;
};

// One backup of one device. "backupDeviceId" is read but not checked.
class BackupRecord : public SerializableObject
{
public:
    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    BackUpDevice device;
    std::int32_t status = 0;
    std::int32_t type = 0;
    std::int64_t size = 0;
    std::string backupId;
    std::string backupDeviceId;
    std::int64_t startTime = 0;
    std::int64_t endTime = 0;
    std::string extend;
    std::vector<AppIdInfo> appIdInfos;
};

// Request for the list of all backups (cmd 36, "QueryAllDevicesBackupRecordReq",
// version "V3", filled by the body factory). Its reading side is never used:
// it reads "appId" into `cmd`, and that asymmetry is kept as it stands.
class QueryAllDevicesBackupRecordReqRequest : public SerializableObject
{
public:
    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::int32_t cmd = 0;
    std::string info;
    std::string version;
};

class QueryAllBackUpResponse : public SerializableObject
{
public:
    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::int32_t result = 0;
    std::string info;
    std::vector<BackupRecord> backupRecords;
};

// Removal of one device's backup (cmd 27, "DeleteDeviceBackupRecordReq").
class BackUpDeleteRequest : public SerializableObject
{
public:
    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::int32_t cmd = 0;
    std::string info;
    std::string deviceId;
    std::int32_t deviceType = 0;
};

// Removal of messages or call records. The device key is "devId" here.
class DeleteSmsAndCallLogRequest : public SerializableObject
{
public:
    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::int32_t cmd = 0;
    std::string info;
    std::string devId;
    std::int32_t deviceType = 0;
    std::vector<std::string> typeList;
};

// Count query for messages and call records. With no devices the key
// "deviceList" is still written, as an empty array.
class QueryBackUpSmsAndCallLogRequest : public SerializableObject
{
public:
    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::int32_t cmd = 0;
    std::string info;
    std::string type;
    std::vector<BackUpDevice> deviceList;
};

class BackUpSmsAndCallLogRecord : public SerializableObject
{
public:
    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    BackUpDevice device;
    std::int32_t count = 0;
};

class QueryBackUpSmsAndCallLogResponse : public SerializableObject
{
public:
    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::int32_t result = 0;
    std::string info;
    std::vector<BackUpSmsAndCallLogRecord> countRet;
    std::vector<BackUpDevice> deviceList;
};
