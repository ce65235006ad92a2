#include "account.h"

#include <algorithm>

namespace cloud {

const std::vector<PimService>& PimServices()
{
    static const std::vector<PimService> services = {
        {"contact", "1000", "/Statistic/Contact"},   {"notepad", "1001", "/Statistic/Notepad"},
        {"calendar", "1002", "/Statistic/Calendar"}, {"wlan", "1004", "/Statistic/Wlan"},
        {"browser", "1005", "/Statistic/Browser"},
    };
    return services;
}

int64_t BackupOwner::TotalSize() const
{
    int64_t total = 0;
    for (const auto& entry : backups)
        total += entry.size;
    return total;
}

QuotaGroups AccountData::Groups() const
{
    QuotaGroups groups;
    for (const auto& owner : backups)
        groups.backup += owner.TotalSize();
    groups.drive = drive.used;
    groups.photos = gallery.bytes + gallery.recycleBytes;
    groups.family = quota.family;
    groups.other = quota.otherExtra;
    for (const auto& [name, category] : pim)
        for (const auto& record : category.records)
            groups.other += record.assetsQuotadSpace;
    for (const auto& file : files)
        groups.other += file.size;
    return groups;
}

bool AccountData::FolderExists(const std::string& path) const
{
    return folders.count(path) > 0;
}

const NspFile* AccountData::FindFile(const std::string& path) const
{
    auto it = std::lower_bound(files.begin(), files.end(), path,
                               [](const NspFile& file, const std::string& key) { return file.path < key; });
    if (it != files.end() && it->path == path)
        return &*it;
    return nullptr;
}

Json::Value DeviceToJson(const DeviceInfo& d)
{
    Json::Value v;
    v["deviceId"] = d.deviceId;
    v["deviceType"] = d.deviceType;
    v["terminalType"] = d.terminalType;
    v["aliasName"] = d.aliasName;
    v["devDisplayName"] = d.devDisplayName;
    return v;
}

} // namespace cloud
