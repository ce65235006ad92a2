// The stand-alone host's main job, without a window:
//
//   spacemgm usage [--json] [--config FILE]
//   spacemgm delete backup DEVICE | messages | calls | harassment [--config FILE]
//
// `usage` runs one load the way the window's load thread does and prints the
// quota, the bar's groups, the category rows and the backup devices.
// `delete` runs one deletion and prints its result; the exit code is 0 only
// for DeleteSuccess.
#include <cstdio>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "app/cbs_backup_deleter.h"
#include "app/space_load.h"
#include "host/backup_host_window.h"
#include "host/host_config.h"
#include "space_data/cloud_space_view_model.h"

namespace {

constexpr int kExitUsage = 2;

void PrintUsage()
{
    std::fprintf(stderr,
                 "usage: spacemgm usage [--json] [--config FILE]\n"
                 "       spacemgm delete backup DEVICE | messages | calls | harassment [--config FILE]\n");
}

struct CommandLine
{
    std::vector<std::string> words;
    std::optional<std::string> configPath;
    bool json = false;
};

bool Parse(int argc, char** argv, CommandLine& line)
{
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        if (arg == "--config") {
            if (i + 1 >= argc) {
                return false;
            }
            line.configPath = argv[++i];
        } else if (arg == "--json") {
            line.json = true;
        } else if (!arg.empty() && arg[0] == '-') {
            return false;
        } else {
            line.words.push_back(arg);
        }
    }
    return !line.words.empty();
}

const char* ResultName(DeleteResult result)
{
    switch (result) {
    case DeleteSuccess:
        return "DeleteSuccess";
    case DeleteFailed:
        return "DeleteFailed";
    case DeletePartFailed:
        return "DeletePartFailed";
    }
    return "unknown";
}

int RunUsage(CloudSpaceManagementViewModel& viewModel, bool json)
{
    const app::UsageReport report = app::RunUsageLoad(viewModel);
    std::cout << (json ? app::FormatUsageJson(report) : app::FormatUsageText(report));
    return 0;
}

int RunDelete(CloudSpaceManagementViewModel& viewModel, const std::vector<std::string>& words)
{
    DeleteResult result = DeleteFailed;
    if (words.size() == 3 && words[1] == "backup") {
        // The backup road needs what a load leaves: the generation, the
        // version 1 id map and the rows.
        const auto backup = viewModel.GetBackUpData();
        if (backup->item && !backup->models.empty()) {
            viewModel.model->backups = backup->models;
        }
        BackUpModel target;
        target.deviceId = words[2];
        for (const BackUpModel& row : viewModel.model->backups) {
            if (row.deviceId == words[2]) {
                target = row;
            }
        }
        result = viewModel.DeleteBackUp(target);
    } else if (words.size() == 2 && words[1] == "messages") {
        result = viewModel.DeleteMessage(Message);
    } else if (words.size() == 2 && words[1] == "calls") {
        result = viewModel.DeleteMessage(Phone);
    } else if (words.size() == 2 && words[1] == "harassment") {
        result = viewModel.DeleteMessage(HarassmentInterception);
    } else {
        PrintUsage();
        return kExitUsage;
    }
    std::cout << ResultName(result) << "\n";
    return result == DeleteSuccess ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    CommandLine line;
    if (!Parse(argc, argv, line) || (line.words[0] != "usage" && line.words[0] != "delete") ||
        (line.words[0] == "usage" && line.words.size() != 1)) {
        PrintUsage();
        return kExitUsage;
    }
    try {
        const auto path = host::ResolveHostConfigPath(line.configPath);
        host::SetCurrentHostConfig(path ? host::LoadHostConfigFile(*path) : host::DefaultHostConfig());
    } catch (const host::ConfigError& error) {
        std::fprintf(stderr, "spacemgm: %s\n", error.what());
        return kExitUsage;
    }

    host::BackupHostWindow hostWindow(app::DeleteDeviceBackup);
    CloudSpaceManagementViewModel viewModel;
    viewModel.SetCloudbackupTipParam(hostWindow.Window(), host::kBackupVersionMessage,
                                     host::kBackupDeviceListMessage, host::kBackupDeleteMessage);
    if (line.words[0] == "usage") {
        return RunUsage(viewModel, line.json);
    }
    return RunDelete(viewModel, line.words);
}
