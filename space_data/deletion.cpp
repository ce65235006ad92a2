// Deletions: one device's cloud backup (through the host on version 3, by
// the module's own request on version 1), all messages or call records, and
// all harassment filter records. Each blocks the window thread until the
// service or the host answers, and writes no log line.
#include <algorithm>
#include <string>
#include <vector>

#include "foundation/request_catalogue.h"
#include "request/run_request.h"
#include "space_data/category_folders.h"
#include "space_data/cloud_space_view_model.h"
#include "space_data/host_answer_event.h"
#include "space_data/session_token.h"

namespace {

bool Succeeded(const std::shared_ptr<BaseRsp>& reply)
{
    return reply && reply->result == 0;
}

} // namespace

DeleteResult CloudSpaceManagementViewModel::DeleteBackUp(const BackUpModel& model)
{
    auto request = MakeBackUpDeleteRequest();
    request->deviceId = model.deviceId;
    if (!backupIsV3) {
        return DeleteBackItem(model);
    }
    // The host replaces the device id by the outcome.
    std::string outcome = request->deviceId;
    {
        HostAnswerEvent event;
        event.Ask(tipWindow, tipDeleteMessage, &outcome);
    }
    if (outcome == "success") {
        DeleteLIstBK(model);
        return DeleteSuccess;
    }
    return DeleteFailed;
}

DeleteResult CloudSpaceManagementViewModel::DeleteBackItem(const BackUpModel& model)
{
    auto request = MakeBackUpDeleteRequest();
    // The row holds the record's backup id; the service wants the device's
    // own id. An unknown row sends an empty id (and the map learns the key).
    request->deviceId = backupDeviceIds[model.deviceId];
    const auto reply = RunRequest<BaseRsp>(&kCbsType1, request);
    if (!Succeeded(reply)) {
        return DeleteFailed;
    }
    // A row that another deletion already took is a success all the same.
    DeleteLIstBK(model);
    return DeleteSuccess;
}

void CloudSpaceManagementViewModel::DeleteLIstBK(const BackUpModel& model)
{
    // `model` may be a row of the same vector: copy the id before erasing.
    const std::string deviceId = model.deviceId;
    auto& backups = this->model->backups;
    const auto row = std::find_if(backups.begin(), backups.end(), [&deviceId](const BackUpModel& candidate) {
        return candidate.deviceId == deviceId;
    });
    if (row != backups.end()) {
        backups.erase(row);
    }
}

DeleteResult CloudSpaceManagementViewModel::DeleteMessage(CloudSpaceType type)
{
    std::vector<std::string> typeList;
    if (type == Message) {
        typeList = {"sms"};
    } else if (type == Phone) {
        // "calllog" in lower case: the delete command spells it so, unlike
        // the count query's "callLog".
        typeList = {"calllog"};
    } else {
        return DeleteHarassmentInterception();
    }
    auto request = std::make_shared<DeleteSmsAndCallLogRequest>();
    request->cmd = 5;
    request->info = "DeleteBackupReq";
    request->typeList = typeList;
    return Succeeded(RunRequest<BaseRsp>(&kCbsType1, request)) ? DeleteSuccess : DeleteFailed;
}

DeleteResult CloudSpaceManagementViewModel::DeleteHarassmentInterception()
{
    // The same folders and files as the category's space road.
    const std::vector<std::string> paths =
        FolderPaths(ListCategoryRoot(CurrentAccessTokenUtf8(), kHarassmentFolders), kHarassmentFolders);

    std::vector<std::string> deleteList;
    if (!paths.empty()) {
        const auto files = RunRequest<NSPFilesResponse>(&kNspRequestType6,
                                                        MakeNspFiles(CurrentAccessTokenUtf8(), paths, ""));
        if (files && files->fileList) {
            for (const auto& file : *files->fileList) {
                if (IsHarassmentRecord(file)) {
                    deleteList.push_back(file->name);
                }
            }
        }
    }
    // Nothing left to delete is reported as a failure on purpose: the window
    // offers this only for a row with bytes.
    if (deleteList.empty()) {
        return DeleteFailed;
    }

    const auto reply =
        RunRequest<NSPResponse>(&kNspRequestType6, MakeNspDelFiles(CurrentAccessTokenUtf8(), deleteList));
    if (!reply) {
        return DeleteFailed;
    }
    const bool removed = !reply->successList.empty();
    const bool refused = !reply->failList.empty();
    if (removed && !refused) {
        return DeleteSuccess;
    }
    if (!removed && refused) {
        return DeleteFailed;
    }
    // Both lists filled, or both empty: a reply that reports nothing is not
    // taken for a success.
    return DeletePartFailed;
}
