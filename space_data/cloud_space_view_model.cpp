#include "space_data/cloud_space_view_model.h"

#include <cstdlib>

CloudSpaceManagementViewModel::CloudSpaceManagementViewModel()
    : model(std::make_shared<CloudSpaceManagementModel>())
{
}

CloudSpaceManagementViewModel::~CloudSpaceManagementViewModel() = default;

void CloudSpaceManagementViewModel::SetCloudbackupTipParam(HWND window, unsigned versionMessage,
                                                           unsigned deviceListMessage, unsigned deleteMessage)
{
    tipWindow = window;
    tipVersionMessage = versionMessage;
    tipDeviceListMessage = deviceListMessage;
    tipDeleteMessage = deleteMessage;
}

bool CloudSpaceItemComesFirst(const std::shared_ptr<CloudSpaceItem>& a,
                              const std::shared_ptr<CloudSpaceItem>& b)
{
    // An item never precedes itself; the sort may compare an element with
    // itself, and the backup rule below would otherwise say it does.
    if (a == b) {
        return false;
    }
    if (a->sortType == CloudBackUp) {
        return true;
    }
    if (b->sortType == CloudBackUp) {
        return false;
    }
    if (a->space > 0) {
        return b->space > 0 ? a->space - b->space > 0 : true;
    }
    if (b->space > 0) {
        return false;
    }
    return static_cast<long long>(std::atoi(a->count.c_str())) - std::atoi(b->count.c_str()) > 0;
}
