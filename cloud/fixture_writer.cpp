// Writes an account in the fixture schema: the state file and the admin
// API's view of the account.
#include "fixture.h"

namespace cloud {

namespace {

// A JSON array of the items, each written by `toJson`.
template <class Item, class ToJson> Json::Value ArrayOf(const std::vector<Item>& items, ToJson toJson)
{
    Json::Value array(Json::arrayValue);
    for (const auto& item : items)
        array.append(toJson(item));
    return array;
}

Json::Value SessionToJson(const Session& session)
{
    Json::Value s;
    s["accessToken"] = session.accessToken;
    s["userId"] = session.userId;
    s["country"] = session.country;
    if (!session.deviceUuid.empty())
        s["deviceUuid"] = session.deviceUuid;
    return s;
}

void WriteFigures(const AccountData& account, Json::Value& root)
{
    root["quota"]["total"] = Json::Int64(account.quota.total);
    root["quota"]["family"] = Json::Int64(account.quota.family);
    root["quota"]["otherExtra"] = Json::Int64(account.quota.otherExtra);
    root["gallery"]["bytes"] = Json::Int64(account.gallery.bytes);
    root["gallery"]["recycleBytes"] = Json::Int64(account.gallery.recycleBytes);
    root["drive"]["used"] = Json::Int64(account.drive.used);
    root["drive"]["recycleBytes"] = Json::Int64(account.drive.recycleBytes);
}

Json::Value AboutToJson(const PhotoAbout& about)
{
    Json::Value a;
    a["category"] = about.category;
    a["dataVersion"] = about.dataVersion;
    a["domain"] = about.domain;
    a["maxBatchNumber"] = about.maxBatchNumber;
    a["maxFileUploadSize"] = about.maxFileUploadSize;
    a["maxThumbnailSize"] = Json::Int64(about.maxThumbnailSize);
    a["status"] = about.status;
    return a;
}

Json::Value PimRecordToJson(const PimRecord& record)
{
    Json::Value e;
    e["kind"] = record.kind;
    e["trashed"] = record.trashed;
    e["recordsCount"] = Json::Int64(record.recordsCount);
    e["assetsQuotadSpace"] = Json::Int64(record.assetsQuotadSpace);
    e["recordsQuotadSpace"] = Json::Int64(record.recordsQuotadSpace);
    return e;
}

Json::Value PimCategoryToJson(const PimCategory& category)
{
    Json::Value c;
    c["dataVersion"] = category.dataVersion;
    c["status"] = category.status;
    c["kinds"] = ArrayOf(category.kinds, [](const std::string& kind) { return Json::Value(kind); });
    c["maxBatchNumber"] = category.maxBatchNumber;
    c["statistics"] = ArrayOf(category.statistics, [](const PimStatistic& stat) {
        Json::Value e;
        e["source"] = stat.source;
        e["sumNum"] = stat.sumNum;
        return e;
    });
    c["records"] = ArrayOf(category.records, PimRecordToJson);
    return c;
}

Json::Value BackupEntryToJson(const BackupEntry& entry)
{
    Json::Value e;
    e["backupId"] = entry.backupId;
    e["status"] = entry.status;
    e["type"] = entry.type;
    e["size"] = Json::Int64(entry.size);
    e["startTime"] = Json::Int64(entry.startTime);
    e["endTime"] = Json::Int64(entry.endTime);
    e["extend"] = entry.extend;
    return e;
}

Json::Value BackupOwnerToJson(const BackupOwner& owner)
{
    Json::Value d;
    d["device"] = DeviceToJson(owner.device);
    d["backupDeviceId"] = owner.backupDeviceId;
    d["backups"] = ArrayOf(owner.backups, BackupEntryToJson);
    return d;
}

Json::Value MessageDeviceToJson(const MessageDevice& device)
{
    Json::Value d;
    d["device"] = DeviceToJson(device.device);
    d["sms"] = device.sms;
    d["callLog"] = device.callLog;
    return d;
}

Json::Value NspFileToJson(const NspFile& file)
{
    Json::Value f;
    f["path"] = file.path;
    f["size"] = Json::Int64(file.size);
    f["createTime"] = Json::Int64(file.createTime);
    f["modifyTime"] = Json::Int64(file.modifyTime);
    return f;
}

} // namespace

Json::Value AccountToJson(const AccountData& account)
{
    Json::Value root;
    root["name"] = account.name;
    root["session"] = SessionToJson(account.session);
    WriteFigures(account, root);
    root["about"] = AboutToJson(account.about);
    for (const auto& [name, category] : account.pim)
        root["pim"][name] = PimCategoryToJson(category);
    root["backup"]["generation"] = account.backupGeneration;
    root["backup"]["devices"] = ArrayOf(account.backups, BackupOwnerToJson);
    root["messages"]["pageSize"] = account.messagePageSize;
    root["messages"]["devices"] = ArrayOf(account.messageDevices, MessageDeviceToJson);
    root["files"] = ArrayOf(account.files, NspFileToJson);
    root["folders"] = Json::Value(Json::arrayValue);
    for (const auto& folder : account.folders)
        root["folders"].append(folder);
    root["omConfig"] = account.omConfig;
    root["faults"] = account.faults;
    return root;
}

} // namespace cloud
