#pragma once
// The data that the view model publishes and the window reads: the rows of
// the space page, the rows of the backup page and the open detail page.
#include <memory>
#include <vector>

#include "space_data/cloud_space_detail_show.h"
#include "space_data/cloud_space_types.h"
#include "space_data/model_write_lock.h"

struct CloudSpaceManagementModel
{
    std::vector<std::shared_ptr<CloudSpaceItem>> items; // display order
    ModelWriteLock itemsLock;                           // held while `items` is replaced
    std::vector<BackUpModel> backups;
    ModelWriteLock backupsLock; // held while `backups` is replaced
    std::shared_ptr<CloudSpaceDetailShow> detail = std::make_shared<CloudSpaceDetailShow>();
};
