#pragma once
// A view model wired the way the stand-alone host wires it: the host
// configuration that spacemgm-cloud wrote, a private data folder, and the
// host's backup window answering the three messages.
#include <memory>
#include <string>

#include "app/cbs_backup_deleter.h"
#include "cloud_emulator.h"
#include "host/backup_host_window.h"
#include "host/host_config.h"
#include "space_data/cloud_space_view_model.h"

namespace space_test {

inline host::HostConfig ConfigFor(const spacemgm_test::CloudEmulator& cloud)
{
    host::HostConfig config = host::LoadHostConfigFile(cloud.ConfigPath());
    config.dataDir = cloud.WorkDir() + "/data";
    config.logDir = cloud.WorkDir() + "/log";
    config.timeoutSeconds = 3; // a hanging request ends the test quickly
    return config;
}

struct WiredViewModel
{
    explicit WiredViewModel(host::BackupDeleter deleter = app::DeleteDeviceBackup)
        : hostWindow(std::move(deleter))
    {
        viewModel.SetCloudbackupTipParam(hostWindow.Window(), host::kBackupVersionMessage,
                                         host::kBackupDeviceListMessage, host::kBackupDeleteMessage);
    }
    host::BackupHostWindow hostWindow;
    CloudSpaceManagementViewModel viewModel;
};

} // namespace space_test
