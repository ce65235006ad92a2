#include "app/space_load.h"

#include "platform/operation_manage_service.h"
#include "space_data/cloud_space_query.h"

namespace app {

UsageReport RunUsageLoad(CloudSpaceManagementViewModel& viewModel)
{
    UsageReport report;
    COperationManageService::GetInstance()->GetSpaceOMConfig();
    CloudSpaceQuery* query = CloudSpaceQuery::GetInstance();
    query->Task();
    report.colors = query->GetColorInfo();
    report.lengths = query->GetLengthOfItems(1.0f);
    report.storage = query->GetStorageOfType();
    query->UpdateDisplayData(report.usedText, report.totalText);
    query->GetUsedAndTotalValue(report.usedBytes, report.totalBytes);

    viewModel.GetCloudInfo();
    report.items = viewModel.model->items;
    report.backups = viewModel.model->backups;
    return report;
}

} // namespace app
