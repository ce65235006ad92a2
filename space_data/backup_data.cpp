// The cloud backup worker: the host names the backup generation, and the
// devices' bytes come from the backup quota query of that generation.
#include <memory>
#include <mutex>
#include <string>
#include <unordered_set>
#include <vector>

#include "foundation/request_catalogue.h"
#include "foundation/utilities.h"
#include "request/postable_string.h"
#include "request/run_request.h"
#include "space_data/cloud_space_view_model.h"
#include "space_data/session_token.h"
#include "space_data/space_log.h"

namespace {

constexpr const char* kFunction = "CloudSpaceManagementViewModel::GetBackUpData";

// The host may keep using a device list it was handed after the query that
// made it has ended, so no list is ever released. They are parked here,
// reachable, for the life of the process.
std::vector<BackupDevListSt>* NewRetainedDeviceList()
{
    static std::mutex mutex;
    static std::vector<std::unique_ptr<std::vector<BackupDevListSt>>> lists;
    std::lock_guard<std::mutex> guard(mutex);
    lists.push_back(std::make_unique<std::vector<BackupDevListSt>>());
    return lists.back().get();
}

// A row per device with bytes; a device with none is left out.
bool MakeBackUpModel(const QuotaDetailBk& detail, const std::string& deviceName, BackUpModel& model)
{
    if (detail.assetsQuotadSpace <= 0) {
        return false;
    }
    model = BackUpModel();
    model.size = detail.assetsQuotadSpace;
    model.sizeText = FormatSizeGrouped(static_cast<double>(model.size));
    model.deviceId = detail.deviceId;
    model.deviceName = deviceName;
    return true;
}

// The category's bytes are the reply's total, not the sum of the rows, so
// devices that were dropped still count.
std::shared_ptr<CloudSpaceItem> MakeBackupItem(const std::vector<BackUpModel>& models, int64_t total)
{
    auto item = std::make_shared<CloudSpaceItem>();
    item->type = CloudBackUp;
    item->sortType = CloudBackUp;
    item->count = std::to_string(models.size());
    item->space = total;
    return item;
}

std::shared_ptr<GetQuotaUsedInfoResponseBk> QueryDeviceQuota(const std::string& deviceText,
                                                             const std::string& token)
{
    return RunRequest<GetQuotaUsedInfoResponseBk>(
        &kFamilyShareType0,
        std::make_shared<PostableString>(ToFormText(MakeDeviceQuotaQuery(token, deviceText))));
}

} // namespace

std::shared_ptr<BackupData> CloudSpaceManagementViewModel::GetBackUpData()
{
    auto result = std::make_shared<BackupData>();
    const HANDLE event = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    std::string version;
    SendMessageW(tipWindow, tipVersionMessage, reinterpret_cast<WPARAM>(event),
                 reinterpret_cast<LPARAM>(&version));
    WaitForSingleObject(event, INFINITE);

    if (version == "v3queryfailed") {
        CloseHandle(event);
        SPACE_LOG_ERROR(kFunction, "v3 query failed.");
        return result;
    }

    std::vector<BackUpModel> models;
    int64_t total = 0;
    if (version == "v3") {
        deviceList = NewRetainedDeviceList();
        backupIsV3 = true;
        SPACE_LOG_INFO(kFunction, "v3 query backupData start.");
        SendMessageW(tipWindow, tipDeviceListMessage, reinterpret_cast<WPARAM>(event),
                     reinterpret_cast<LPARAM>(deviceList));
        WaitForSingleObject(event, INFINITE);
        const std::string token = CurrentAccessTokenUtf8();
        if (deviceList == nullptr) {
            CloseHandle(event);
            SPACE_LOG_ERROR(kFunction, "get v3 list failed.");
            return result;
        }
        // The ids stand bare between the brackets, as the service takes them.
        std::string deviceText = "[";
        for (const BackupDevListSt& device : *deviceList) {
            deviceText += device.deviceId + ",";
        }
        deviceText.pop_back();
        deviceText += "]";
        SPACE_LOG_INFO(kFunction, "v3 query backupData listDev Size:");
        if (!deviceList->empty()) {
            const auto reply = QueryDeviceQuota(deviceText, token);
            if (reply && reply->retCode == 0 && reply->used > 0) {
                SPACE_LOG_INFO(kFunction, "v3 query backupData retCode" + std::to_string(reply->retCode) +
                                              " used Size:" + std::to_string(reply->used));
                total = reply->used;
                for (const QuotaDetailBk& detail : reply->quotaDetails) {
                    BackUpModel model;
                    if (MakeBackUpModel(detail, CompareDeviceId(*deviceList, detail), model)) {
                        models.push_back(model);
                    }
                }
            }
        }
        SPACE_LOG_INFO(kFunction, "v3 query backupData lstBackUpModel Size:");
        if (!models.empty()) {
            result->item = MakeBackupItem(models, total);
        }
        result->models = models;
        SPACE_LOG_INFO(kFunction, "v3 query backupData end.");
    } else if (version == "v1") {
        backupIsV3 = false;
        SPACE_LOG_INFO(kFunction, "v1 query backupData start.");
        const auto records =
            RunRequest<QueryAllBackUpResponse>(&kCbsType0, MakeQueryAllDevicesBackupRecordReqRequest());
        std::unordered_set<std::string> deviceIds;
        std::map<std::string, std::string> names;
        std::string deviceText = "[";
        if (records && !records->backupRecords.empty()) {
            SPACE_LOG_INFO(kFunction, "v1 query backupData QueryAllDevicesBackupRecord Size:");
            // Insertion keeps an existing key: a device's first record wins,
            // and ids from earlier loads stay.
            for (const BackupRecord& record : records->backupRecords) {
                deviceIds.insert(record.backupDeviceId);
                names.emplace(record.backupDeviceId, record.device.devDisplayName);
                backupDeviceIds.emplace(record.backupDeviceId, record.device.deviceId);
            }
            for (const std::string& id : deviceIds) {
                deviceText += id + ",";
            }
            deviceText.pop_back();
            deviceText += "]";
        }
        const std::string token = CurrentAccessTokenUtf8();
        SPACE_LOG_INFO(kFunction, "v1 query backupData deviceIdCount Size:");
        if (!deviceIds.empty()) {
            const auto reply = QueryDeviceQuota(deviceText, token);
            if (reply && reply->retCode == 0 && reply->used > 0) {
                SPACE_LOG_INFO(kFunction, "v1 query backupData GetQuotaUsedInfo reCode:");
                total = reply->used;
                for (const QuotaDetailBk& detail : reply->quotaDetails) {
                    BackUpModel model;
                    if (MakeBackUpModel(detail, names[detail.deviceId], model)) {
                        models.push_back(model);
                    }
                }
            }
        }
        SPACE_LOG_INFO(kFunction, "v1 query backupData lstBackUpModel Size:");
        if (!models.empty()) {
            result->item = MakeBackupItem(models, total);
        }
        result->models = models;
        // The closing line repeats the opening one; log readers expect it.
        SPACE_LOG_INFO(kFunction, "v1 query backupData start.");
    }
    CloseHandle(event);
    return result;
}

std::string CloudSpaceManagementViewModel::CompareDeviceId(std::vector<BackupDevListSt> devices,
                                                           QuotaDetailBk detail)
{
    for (const BackupDevListSt& device : devices) {
        if (device.deviceId == detail.deviceId) {
            return device.deviceName;
        }
    }
    return std::string();
}

void CloudSpaceManagementViewModel::GetSmdAndCallLogCount(const std::vector<BackUpDevice>& devices,
                                                          int& count, const std::string& kind)
{
    constexpr const char* kCountFunction = "CloudSpaceManagementViewModel::GetSmdAndCallLogCount";
    auto request = std::make_shared<QueryBackUpSmsAndCallLogRequest>();
    request->cmd = 9;
    request->info = "CountByDeviceReq";
    request->type = kind;
    request->deviceList = devices;
    const auto reply = RunRequest<QueryBackUpSmsAndCallLogResponse>(&kCbsType1, request);
    if (reply && reply->result == 0 && !reply->countRet.empty()) {
        SPACE_LOG_DEBUG(kCountFunction, "Querying BackUpSmsAndCallLog Response successfully.");
        for (const BackUpSmsAndCallLogRecord& record : reply->countRet) {
            count += record.count;
        }
        // The service pages by device: a reply that names more devices is
        // asked again with them, until one names none.
        if (!reply->deviceList.empty()) {
            GetSmdAndCallLogCount(reply->deviceList, count, kind);
        }
    } else if (reply && reply->result != 0) {
        SPACE_LOG_INFO(kCountFunction,
                       "Querying BackUpSmsAndCallLog->result is " + std::to_string(reply->result));
    }
}
