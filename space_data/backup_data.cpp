// The cloud backup worker: the host names the backup generation, and the
// devices' bytes come from the backup quota query of that generation.
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <unordered_set>
#include <vector>

#include "foundation/request_catalogue.h"
#include "foundation/utilities.h"
#include "request/postable_string.h"
#include "request/run_request.h"
#include "space_data/category_item.h"
#include "space_data/cloud_space_view_model.h"
#include "space_data/host_answer_event.h"
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
    auto item = NewCategoryItem(CloudBackUp);
    item->count = std::to_string(models.size());
    item->space = total;
    return item;
}

// The device ids as the quota query takes them: bare, between brackets.
std::string BareIdList(const std::vector<std::string>& ids)
{
    std::string text = "[";
    for (const std::string& id : ids) {
        text += id + ",";
    }
    text.pop_back();
    return text + "]";
}

// The log lines of one generation's end; the end itself is shared.
struct GenerationTail
{
    const char* deviceCountLine;
    std::string (*quotaLine)(const GetQuotaUsedInfoResponseBk& reply);
    const char* modelCountLine;
    const char* endLine;
};

std::string VersionThreeQuotaLine(const GetQuotaUsedInfoResponseBk& reply)
{
    return "v3 query backupData retCode" + std::to_string(reply.retCode) +
           " used Size:" + std::to_string(reply.used);
}

std::string VersionOneQuotaLine(const GetQuotaUsedInfoResponseBk&)
{
    return "v1 query backupData GetQuotaUsedInfo reCode:";
}

const GenerationTail kVersionThreeTail{
    "v3 query backupData listDev Size:", VersionThreeQuotaLine,
    "v3 query backupData lstBackUpModel Size:", "v3 query backupData end."};
// The closing line repeats the opening one; log readers expect it.
const GenerationTail kVersionOneTail{
    "v1 query backupData deviceIdCount Size:", VersionOneQuotaLine,
    "v1 query backupData lstBackUpModel Size:", "v1 query backupData start."};

std::shared_ptr<GetQuotaUsedInfoResponseBk> QueryDeviceQuota(const std::string& deviceText,
                                                             const std::string& token)
{
    return RunRequest<GetQuotaUsedInfoResponseBk>(
        &kFamilyShareType0,
        std::make_shared<PostableString>(ToFormText(MakeDeviceQuotaQuery(token, deviceText))));
}

// The end both generations share: one quota query for the named devices,
// a row per device with bytes, and the category's item when any row is left.
void FinishFromDeviceQuota(const GenerationTail& tail, const std::vector<std::string>& deviceIds,
                           const std::string& token,
                           const std::function<std::string(const QuotaDetailBk&)>& deviceNameOf,
                           BackupData& result)
{
    SPACE_LOG_INFO(kFunction, tail.deviceCountLine);
    std::vector<BackUpModel> models;
    int64_t total = 0;
    if (!deviceIds.empty()) {
        const auto reply = QueryDeviceQuota(BareIdList(deviceIds), token);
        if (reply && reply->retCode == 0 && reply->used > 0) {
            SPACE_LOG_INFO(kFunction, tail.quotaLine(*reply));
            total = reply->used;
            for (const QuotaDetailBk& detail : reply->quotaDetails) {
                BackUpModel model;
                if (MakeBackUpModel(detail, deviceNameOf(detail), model)) {
                    models.push_back(model);
                }
            }
        }
    }
    SPACE_LOG_INFO(kFunction, tail.modelCountLine);
    if (!models.empty()) {
        result.item = MakeBackupItem(models, total);
    }
    result.models = models;
    SPACE_LOG_INFO(kFunction, tail.endLine);
}

// Version 3: the host names the devices, and a later deletion goes back
// through the host.
void QueryVersionThree(CloudSpaceManagementViewModel& viewModel, HostAnswerEvent& event, BackupData& result)
{
    viewModel.deviceList = NewRetainedDeviceList();
    viewModel.backupIsV3 = true;
    SPACE_LOG_INFO(kFunction, "v3 query backupData start.");
    event.Ask(viewModel.tipWindow, viewModel.tipDeviceListMessage, viewModel.deviceList);
    const std::string token = CurrentAccessTokenUtf8();
    if (viewModel.deviceList == nullptr) {
        SPACE_LOG_ERROR(kFunction, "get v3 list failed.");
        return;
    }
    const std::vector<BackupDevListSt>& devices = *viewModel.deviceList;
    std::vector<std::string> deviceIds;
    for (const BackupDevListSt& device : devices) {
        deviceIds.push_back(device.deviceId);
    }
    FinishFromDeviceQuota(
        kVersionThreeTail, deviceIds, token,
        [&viewModel, &devices](const QuotaDetailBk& detail) {
            return viewModel.CompareDeviceId(devices, detail);
        },
        result);
}

// Version 1: the backup service names the devices, and `backupDeviceIds`
// keeps what a later deletion by request needs.
void QueryVersionOne(CloudSpaceManagementViewModel& viewModel, BackupData& result)
{
    viewModel.backupIsV3 = false;
    SPACE_LOG_INFO(kFunction, "v1 query backupData start.");
    const auto records =
        RunRequest<QueryAllBackUpResponse>(&kCbsType0, MakeQueryAllDevicesBackupRecordReqRequest());
    std::unordered_set<std::string> deviceIdSet;
    std::map<std::string, std::string> names;
    if (records && !records->backupRecords.empty()) {
        SPACE_LOG_INFO(kFunction, "v1 query backupData QueryAllDevicesBackupRecord Size:");
        // Insertion keeps an existing key: a device's first record wins, and
        // ids from earlier loads stay.
        for (const BackupRecord& record : records->backupRecords) {
            deviceIdSet.insert(record.backupDeviceId);
            names.emplace(record.backupDeviceId, record.device.devDisplayName);
            viewModel.backupDeviceIds.emplace(record.backupDeviceId, record.device.deviceId);
        }
    }
    const std::string token = CurrentAccessTokenUtf8();
    // The set's own order: the service takes the ids in any order.
    const std::vector<std::string> deviceIds(deviceIdSet.begin(), deviceIdSet.end());
    FinishFromDeviceQuota(
        kVersionOneTail, deviceIds, token,
        [&names](const QuotaDetailBk& detail) { return names[detail.deviceId]; }, result);
}

} // namespace

std::shared_ptr<BackupData> CloudSpaceManagementViewModel::GetBackUpData()
{
    auto result = std::make_shared<BackupData>();
    HostAnswerEvent event;
    std::string version;
    event.Ask(tipWindow, tipVersionMessage, &version);
    if (version == "v3queryfailed") {
        SPACE_LOG_ERROR(kFunction, "v3 query failed.");
    } else if (version == "v3") {
        QueryVersionThree(*this, event, *result);
    } else if (version == "v1") {
        QueryVersionOne(*this, *result);
    }
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
