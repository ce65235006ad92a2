#pragma once
// A category's row as every road starts it: `type` and `sortType` both set
// to the category, everything else at its default.
#include <memory>

#include "space_data/cloud_space_types.h"

inline std::shared_ptr<CloudSpaceItem> NewCategoryItem(CloudSpaceType type)
{
    auto item = std::make_shared<CloudSpaceItem>();
    item->type = type;
    item->sortType = type;
    return item;
}
