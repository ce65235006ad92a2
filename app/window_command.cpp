#include "app/window_command.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "app/cbs_backup_deleter.h"
#include "app/exchange_log.h"
#include "app/failure_lines.h"
#include "app/service_check.h"
#include "app/window_headless.h"
#include "host/backup_host_window.h"
#include "host/exchange_observer.h"
#include "host/host_config.h"
#include "host/network_probe.h"
#include "space_data/cloud_space_view_model.h"
#include "toolkit/window/native_surface.h"
#include "window/load_sequence.h"
#include "window/space_mgm_wnd.h"

using namespace DuiLib;

namespace app {

namespace {

int Refuse(const std::string& problem)
{
    std::fprintf(stderr, "spacemgm: %s\n", problem.c_str());
    return kWindowExitBadInput;
}

// The configuration, the language, the scale and the folder of Res/, as
// the host sets them before it creates the window. An error line on bad
// input.
std::optional<std::string> PrepareProcess(const WindowOptions& options, host::HostConfig& config)
{
    try {
        const auto path = host::ResolveHostConfigPath(options.configPath);
        config = path ? host::LoadHostConfigFile(*path) : host::DefaultHostConfig();
    } catch (const host::ConfigError& error) {
        return std::string(error.what());
    }
    if (auto problem = NoServiceProblem(config))
        return problem;
    host::SetCurrentHostConfig(config);
    const std::string language = options.language.empty() ? config.language : options.language;
    if (auto problem = CheckLanguageChoice(options.resourceRoot, language))
        return (options.language.empty() ? "the configuration's \"language\": " : "--lang: ") + *problem;
    CPaintManagerUI::SetInstancePath(attr::Widen(options.resourceRoot).c_str());
    CResourceManager::GetInstance()->SetLanguage(attr::Widen(language).c_str());
    CDPI::SetProcessDPI(static_cast<int>(std::lround(96.0 * options.scale)));
    return std::nullopt;
}

int RunInWindow(SpaceMgmWnd& window, const WindowOptions& options)
{
    if (!options.dump.empty())
        window.GetPaintManager().SetControlDumpPath(attr::Widen(options.dump).c_str());
    const UINT code = window.ShowModal();
    if (code == 0)
        std::printf("exit 0 jump %d %lld\n", static_cast<int>(window.m_jumpMessage),
                    static_cast<long long>(window.m_jumpParam));
    else
        std::printf("exit %u\n", code);
    return kWindowExitDone;
}

// Shows the window, with the host's objects around it, and returns the exit
// code. A load thread still waiting for a reply holds the view model and
// the quota singleton, and would be running while the process tears down
// its statics; the program ends at once instead, as a closed window should.
int ShowWindow(const WindowOptions& options, const host::HostConfig& config)
{
    ExchangeLog log;
    const host::ScopedExchangeObserver watch(log);
    host::ScopedNetworkProbe networkProbe(config);
    host::BackupHostWindow backupHost(DeleteDeviceBackup);
    auto viewModel = std::make_shared<CloudSpaceManagementViewModel>();
    viewModel->SetCloudbackupTipParam(backupHost.Window(), host::kBackupVersionMessage,
                                      host::kBackupDeviceListMessage, host::kBackupDeleteMessage);
    SpaceMgmWnd window(nullptr, viewModel);
    if (window.Create(nullptr, L"SpaceMgmWnd", 0, 0, 0, 0, 0, 0) == nullptr) {
        const std::string error = window.GetCreateError();
        return Refuse(error.empty() ? "cannot create the window" : error);
    }
    const int code = options.png.empty() ? RunInWindow(window, options) : RunHeadless(window, options);
    // The window shows a load that reached no service as an empty account;
    // the exchanges that failed are named here, as `usage` names them.
    for (const std::string& line : FailureLines(log.Failures()))
        std::fprintf(stderr, "%s\n", line.c_str());
    if (!LoadSequence::Instance().Idle()) {
        std::fflush(stdout);
        std::fflush(stderr);
        std::_Exit(code);
    }
    return code;
}

} // namespace

int RunWindowCommand(const WindowOptions& options)
{
    host::HostConfig config;
    if (auto problem = PrepareProcess(options, config))
        return Refuse(*problem);
    if (!options.png.empty()) {
        SetDefaultSurfaceKind(SurfaceKind::Offscreen);
    } else if (DefaultSurfaceKind() == SurfaceKind::Offscreen) {
        // A modal loop on an invisible surface could never be closed.
        return Refuse(
            "no display to show the window on (DISPLAY and WAYLAND_DISPLAY are unset, or SDL2 video "
            "cannot start); use --png FILE, or run under xvfb-run");
    }
    return ShowWindow(options, config);
}

} // namespace app
