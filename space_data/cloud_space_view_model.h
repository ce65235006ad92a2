#pragma once
// The spine of the module: collects the usage of every category on twelve
// worker threads, publishes it in the shared model, and performs the
// deletions. The host creates one, sets the three backup messages with
// `SetCloudbackupTipParam`, and hands it to the window.
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "platform/win32.h"
#include "space_data/cloud_space_model.h"
#include "space_data/cloud_space_types.h"

class AdvancedIntEnumType;
class PimdsType;
class StatisticResponse;
class GetQuotaUsedInfoResponseBk;
class QuotaDetailBk;
class BackUpDevice;

class CloudSpaceManagementViewModel
{
public:
    CloudSpaceManagementViewModel();
    ~CloudSpaceManagementViewModel();
    CloudSpaceManagementViewModel(const CloudSpaceManagementViewModel&) = delete;
    CloudSpaceManagementViewModel& operator=(const CloudSpaceManagementViewModel&) = delete;

    // Stores the host window and the three message numbers with which the
    // backup worker and `DeleteBackUp` ask the host. Must precede the first
    // `GetCloudInfo`.
    void SetCloudbackupTipParam(HWND window, unsigned versionMessage, unsigned deviceListMessage,
                                unsigned deleteMessage);

    // Blocks until all twelve categories have answered; runs on a load
    // thread, never on the window thread.
    void GetCloudInfo();

    std::shared_ptr<CloudSpaceItem> GetItemSpace(CloudSpaceType type,
                                                 std::vector<std::shared_ptr<CloudSpaceItem>>& items);
    std::shared_ptr<BackupData> GetBackUpData();

    std::string GetPimDataVersion(const AdvancedIntEnumType& type);
    int GetNumFromPIMDS(const PimdsType& type);
    std::shared_ptr<StatisticResponse> GetContactNumFromPIMDS();
    std::shared_ptr<StatisticResponse> GetBrowserNumFromPIMDS();
    void GetV1ContactData(std::shared_ptr<CloudSpaceItem>& item);
    void GetV1BrowserData(std::shared_ptr<CloudSpaceItem>& item);
    void GetV1NotepadData(std::shared_ptr<CloudSpaceItem>& item, std::string token);
    void GetSpaceFromPim(std::string kinds, std::string serviceId, std::shared_ptr<CloudSpaceItem>& item,
                         std::string token, CloudSpaceType type);
    void GetV2PimData(std::shared_ptr<CloudSpaceItem>& item,
                      std::shared_ptr<GetQuotaUsedInfoResponseBk> reply, CloudSpaceType type,
                      std::string kind);
    void GetV2BrowserData(std::shared_ptr<CloudSpaceItem>& item,
                          std::shared_ptr<GetQuotaUsedInfoResponseBk> reply, CloudSpaceType type);

    std::string CompareDeviceId(std::vector<BackupDevListSt> devices, QuotaDetailBk detail);
    void GetSmdAndCallLogCount(const std::vector<BackUpDevice>& devices, int& count, const std::string& kind);

    DeleteResult DeleteBackUp(const BackUpModel& model);
    DeleteResult DeleteBackItem(const BackUpModel& model);
    void DeleteLIstBK(const BackUpModel& model);
    DeleteResult DeleteMessage(CloudSpaceType type);

    const std::string backupRootPath = "/Backup/CloudBackup/";
    const std::string cloudBackupPath = "/CloudBackup/";
    // Set by the host for its own purposes; this module leaves them null.
    std::shared_ptr<void> reservedA;
    std::shared_ptr<void> reservedB;
    std::shared_ptr<void> reservedC;
    std::shared_ptr<CloudSpaceManagementModel> model;
    // 1 after construction, 5 once a load produced a row; read by the host.
    int32_t defaultType = 1;
    HWND tipWindow = nullptr;
    unsigned tipVersionMessage = 0;
    unsigned tipDeviceListMessage = 0;
    unsigned tipDeleteMessage = 0;
    // Written by the backup worker, read by `DeleteBackUp` after the load.
    bool backupIsV3 = false;
    // From a version 1 record's `backupDeviceId` to its device's own id; only
    // grows, and `DeleteBackItem` reads it.
    std::map<std::string, std::string> backupDeviceIds;
    // Guards only the append of a worker's item to the load's collection.
    std::mutex itemsMutex;
    // Replaced on every version 3 query; the host may still hold a former
    // list, so none is ever released.
    std::vector<BackupDevListSt>* deviceList = nullptr;

private:
    DeleteResult DeleteHarassmentInterception();
};

// Whether `a` is listed before `b`: the cloud backup row first, then rows
// with bytes (largest first), then rows with a count (largest first).
bool CloudSpaceItemComesFirst(const std::shared_ptr<CloudSpaceItem>& a,
                              const std::shared_ptr<CloudSpaceItem>& b);
