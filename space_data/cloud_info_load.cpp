// One load: twelve workers, one per category, all at once, then the join,
// the ordering and the publication in the shared model.
#include <algorithm>
#include <thread>
#include <vector>

#include "space_data/cloud_space_view_model.h"
#include "space_data/space_log.h"

void CloudSpaceManagementViewModel::GetCloudInfo()
{
    constexpr const char* kFunction = "CloudSpaceManagementViewModel::GetCloudInfo";
    SpaceLog(Logger::_DEBUG, __LINE__, kFunction, "Getting cloud info starts.", false);

    std::vector<std::shared_ptr<CloudSpaceItem>> collected;
    std::shared_ptr<BackupData> backup;
    std::vector<std::thread> workers;
    workers.emplace_back([this, &backup] { backup = GetBackUpData(); });
    // One thread per category, none pooled, so a load lasts as long as its
    // slowest category rather than their sum.
    for (const CloudSpaceType type : {Browser, Calendar, CloudDisk, Contact, Gallery, HarassmentInterception,
                                      Message, Notepad, Phone, Recorder, Wlan}) {
        workers.emplace_back([this, type, &collected] { GetItemSpace(type, collected); });
    }
    for (std::thread& worker : workers) {
        worker.join();
    }

    // A failed backup query keeps the rows of the load before.
    if (backup && backup->item && !backup->models.empty()) {
        collected.push_back(backup->item);
        ModelWriteGuard guard(model->backupsLock);
        model->backups = backup->models;
    }
    std::sort(collected.begin(), collected.end(), CloudSpaceItemComesFirst);
    {
        ModelWriteGuard guard(model->itemsLock);
        model->items = collected;
        if (!model->items.empty()) {
            defaultType = 5;
        }
    }
    SpaceLog(Logger::_DEBUG, __LINE__, kFunction, "Getting cloud info ends.", false);
}
