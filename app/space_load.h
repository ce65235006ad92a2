// One load as the window's load thread runs it: refresh the operations
// configuration, query the quota and build the bar's data, then collect the
// twelve categories.
#pragma once

#include "app/usage_report.h"
#include "space_data/cloud_space_view_model.h"

namespace app {

UsageReport RunUsageLoad(CloudSpaceManagementViewModel& viewModel);

} // namespace app
