#pragma once
// What one account holds, in the terms its services report it. Loaded from a
// fixture or a state file (same schema, see README.md), changed by deletions.
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <json/json.h>

namespace cloud {

struct Session
{
    std::string accessToken;
    std::string userId;
    std::string country;
    std::string deviceUuid; // empty: any UUID is accepted, as long as it is consistent
};

struct QuotaFigures
{
    int64_t total = 0;
    int64_t family = 0;     // family share usage, not broken down further
    int64_t otherExtra = 0; // "other" bytes that no service below accounts for
};

struct GalleryFigures
{
    int64_t bytes = 0;        // outside the bin
    int64_t recycleBytes = 0; // in the bin
};

struct DriveFigures
{
    int64_t used = 0;         // what "/user/v1/quota/drive" reports, bin included
    int64_t recycleBytes = 0; // what the trashed drive quota query reports
};

struct PhotoAbout
{
    std::string category = "cloudPhoto";
    std::string dataVersion = "v2.0";
    std::string domain;
    int maxBatchNumber = 100;
    std::string maxFileUploadSize = "53687091200";
    int64_t maxThumbnailSize = 0;
    Json::Value status{Json::objectValue};
};

struct PimStatistic
{
    std::string source;
    int sumNum = 0;
};

struct PimRecord
{
    std::string kind;
    bool trashed = false;
    int64_t recordsCount = 0;
    int64_t assetsQuotadSpace = 0;
    int64_t recordsQuotadSpace = 0;
};

// One synchronised category. Only the store of its data version holds data:
// "statistics" answers the statistics service (version 1), "records" the
// quota service (version 2).
struct PimCategory
{
    std::string dataVersion;
    Json::Value status{Json::objectValue}; // e.g. {"v2cut": 0}
    std::vector<std::string> kinds;
    int maxBatchNumber = 0;
    std::vector<PimStatistic> statistics;
    std::vector<PimRecord> records;
};

struct DeviceInfo
{
    std::string deviceId;
    int deviceType = 0;
    std::string terminalType;
    std::string aliasName;
    std::string devDisplayName;
};

// A device as the backup servlet and the account files write it.
Json::Value DeviceToJson(const DeviceInfo& device);

struct BackupEntry
{
    std::string backupId;
    int status = 0;
    int type = 0;
    int64_t size = 0;
    int64_t startTime = 0;
    int64_t endTime = 0;
    std::string extend;
};

// A device with cloud backups. The quota service keys its bytes by
// backupDeviceId; the backup service deletes by device.deviceId.
struct BackupOwner
{
    DeviceInfo device;
    std::string backupDeviceId;
    std::vector<BackupEntry> backups;
    int64_t TotalSize() const;
};

struct MessageDevice
{
    DeviceInfo device;
    int sms = 0;
    int callLog = 0;
};

struct NspFile
{
    std::string path;
    int64_t size = 0;
    int64_t createTime = 0;
    int64_t modifyTime = 0;
};

// The pim categories by their service number on the data version service.
struct PimService
{
    const char* name;
    const char* serviceId;
    const char* statisticPath;
};
const std::vector<PimService>& PimServices();

struct QuotaGroups
{
    int64_t backup = 0, drive = 0, photos = 0, other = 0, family = 0;
    int64_t Used() const { return backup + drive + photos + other + family; }
};

struct AccountData
{
    std::string name;
    Session session;
    QuotaFigures quota;
    GalleryFigures gallery;
    DriveFigures drive;
    PhotoAbout about;
    std::map<std::string, PimCategory> pim; // "contact", "notepad", "calendar", "wlan", "browser"
    std::string backupGeneration = "v1";
    std::vector<BackupOwner> backups;
    int messagePageSize = 50;
    std::vector<MessageDevice> messageDevices;
    std::vector<NspFile> files;    // sorted by path
    std::set<std::string> folders; // every folder, including the parents of files
    Json::Value omConfig;          // null: no configuration file to download
    Json::Value faults{Json::arrayValue};

    QuotaGroups Groups() const;
    bool FolderExists(const std::string& path) const;
    const NspFile* FindFile(const std::string& path) const;
};

} // namespace cloud
