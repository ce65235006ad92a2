// The stand-alone host's main job. `spacemgm window`, or `spacemgm` alone,
// shows the space window (app/window_command.h). `spacemgm usage` runs
// one load the way the window's load thread does and prints what it found;
// `spacemgm delete` runs one deletion and checks it with a reload. Every
// exchange with a service is watched, so that a failed load is reported as
// such instead of as an empty account. `spacemgm --help` has the details,
// the exit codes among them.
#include <cstdio>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "app/category_names.h"
#include "app/cbs_backup_deleter.h"
#include "app/command_line.h"
#include "app/exchange_log.h"
#include "app/failure_lines.h"
#include "app/progress_line.h"
#include "app/progress_text.h"
#include "app/service_check.h"
#include "app/space_load.h"
#include "app/verified_delete.h"
#include "app/window_command.h"
#include "host/backup_host_window.h"
#include "host/exchange_observer.h"
#include "host/host_config.h"
#include "space_data/cloud_space_view_model.h"

namespace {

// Reads the configuration in force; returns false after saying why it
// cannot be used.
bool SetUpConfiguration(const app::CommandLine& line)
{
    host::HostConfig config;
    try {
        const auto path = host::ResolveHostConfigPath(line.configPath);
        config = path ? host::LoadHostConfigFile(*path) : host::DefaultHostConfig();
    } catch (const host::ConfigError& error) {
        std::fprintf(stderr, "spacemgm: %s\n", error.what());
        return false;
    }
    if (const auto problem = app::NoServiceProblem(config)) {
        std::fprintf(stderr, "spacemgm: %s\n", problem->c_str());
        return false;
    }
    if (line.timeoutSeconds) {
        config.timeoutSeconds = line.timeoutSeconds;
    }
    host::SetCurrentHostConfig(std::move(config));
    return true;
}

void ReportFailures(const std::vector<app::FailedExchange>& failures)
{
    for (const std::string& line : app::FailureLines(failures)) {
        std::fprintf(stderr, "%s\n", line.c_str());
    }
}

int RunUsage(CloudSpaceManagementViewModel& viewModel, const app::CommandLine& line,
             const app::ExchangeLog& log)
{
    const int threadsBefore = log.ThreadsEnded();
    app::ProgressLine progress(!line.json, [&] { return app::LoadProgressText(log, threadsBefore); });
    app::UsageReport report = app::RunUsageLoad(viewModel);
    progress.Stop();
    report.failures = log.Failures();
    if (line.json) {
        std::cout << app::FormatUsageJson(report);
    } else {
        const app::CategoryTexts texts(app::ResourceRoot(), host::CurrentHostConfig().language);
        std::cout << app::FormatUsageText(report, texts);
    }
    std::cout.flush();
    ReportFailures(report.failures);
    return report.failures.empty() ? app::kExitOk : app::kExitExchangeFailed;
}

int RunDelete(CloudSpaceManagementViewModel& viewModel, const app::CommandLine& line,
              const app::ExchangeLog& log)
{
    app::ProgressLine progress(true, [&] { return app::DeleteProgressText(log); });
    const app::DeleteOutcome outcome = app::RunVerifiedDelete(viewModel, line, log);
    progress.Stop();
    std::cout << app::DeleteResultName(outcome.result) << "\n" << outcome.finding << "\n";
    std::cout.flush();
    ReportFailures(log.Failures());
    return app::ExitCodeOf(outcome);
}

// The window's command line, "window" left out; null when the arguments ask
// for another subcommand, --help or --version.
std::optional<std::vector<std::string>> WindowArguments(const std::vector<std::string>& arguments)
{
    std::vector<std::string> words;
    bool subcommandSeen = false;
    for (size_t i = 0; i < arguments.size(); ++i) {
        const std::string& arg = arguments[i];
        if (arg == "--help" || arg == "-h" || arg == "--version") {
            return std::nullopt;
        }
        if (app::WindowOptionTakesValue(arg) && i + 1 < arguments.size()) {
            words.push_back(arg);
            words.push_back(arguments[++i]);
        } else if (!subcommandSeen && !arg.empty() && arg[0] != '-') {
            if (arg != "window") {
                return std::nullopt;
            }
            subcommandSeen = true;
        } else {
            words.push_back(arg);
        }
    }
    return words;
}

int RunWindow(const std::vector<std::string>& words)
{
    app::WindowOptions options;
    options.resourceRoot = app::ResourceRoot();
    if (auto problem = app::ParseWindowOptions(words, options)) {
        std::fprintf(stderr, "spacemgm: %s\n%s", problem->c_str(), app::ShortUsage());
        return app::kExitBadUsage;
    }
    return app::RunWindowCommand(options);
}

} // namespace

int main(int argc, char** argv)
{
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (const auto windowWords = WindowArguments(arguments)) {
        return RunWindow(*windowWords);
    }
    app::CommandLine line;
    try {
        line = app::ParseCommandLine(arguments);
    } catch (const app::UsageError& error) {
        std::fprintf(stderr, "spacemgm: %s\n%s", error.what(), app::ShortUsage());
        return app::kExitBadUsage;
    }
    if (line.command == app::Command::Help || line.command == app::Command::Version) {
        std::cout << (line.command == app::Command::Help ? app::HelpText() : app::VersionText());
        return app::kExitOk;
    }
    if (!SetUpConfiguration(line)) {
        return app::kExitBadUsage;
    }

    app::ExchangeLog log;
    const host::ScopedExchangeObserver watch(log);
    host::BackupHostWindow hostWindow(app::DeleteDeviceBackup);
    CloudSpaceManagementViewModel viewModel;
    viewModel.SetCloudbackupTipParam(hostWindow.Window(), host::kBackupVersionMessage,
                                     host::kBackupDeviceListMessage, host::kBackupDeleteMessage);
    if (line.command == app::Command::Usage) {
        return RunUsage(viewModel, line, log);
    }
    return RunDelete(viewModel, line, log);
}
