// spacemgm-cloud: serves every cloud service the module calls, on loopback,
// from an account fixture. See README.md.
#include <csignal>
#include <iostream>
#include <pthread.h>
#include <thread>

#include "emulator.h"
#include "host_config_writer.h"
#include "startup.h"

namespace {

constexpr int kServedAndStopped = 0; // also after --help
constexpr int kFailed = 1;
constexpr int kBadInput = 2; // command line, fixture, state or faults file

int Fail(int status, const std::string& message)
{
    std::cerr << "spacemgm-cloud: " << message << "\n";
    return status;
}

bool AsksForHelp(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i)
        if (std::string(argv[i]) == "--help" || std::string(argv[i]) == "-h")
            return true;
    return false;
}

// Signals are taken by one thread with sigwait, so the server threads
// started later inherit the blocked mask and shutdown runs in order.
sigset_t BlockStopSignals()
{
    sigset_t stopSignals;
    sigemptyset(&stopSignals);
    sigaddset(&stopSignals, SIGINT);
    sigaddset(&stopSignals, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &stopSignals, nullptr);
    std::signal(SIGPIPE, SIG_IGN);
    return stopSignals;
}

// One line per service, the admin URL, the CA file, then "ready".
void Announce(const cloud::Emulator& emulator)
{
    for (const auto& profile : cloud::ServiceProfiles())
        std::cout << profile.name << " " << emulator.ServiceUrl(profile.name) << "\n";
    std::cout << "admin " << emulator.BaseUrl() << "/_admin\n";
    if (!emulator.CaFile().empty())
        std::cout << "caFile " << emulator.CaFile() << "\n";
    std::cout << "ready" << std::endl;
}

// Serves until SIGINT or SIGTERM; false when the server failed on its own.
bool ServeUntilStopped(cloud::Emulator& emulator, const sigset_t& stopSignals)
{
    std::thread signalWaiter([&emulator, stopSignals] {
        int signal = 0;
        sigwait(&stopSignals, &signal);
        if (signal != 0)
            emulator.Stop();
    });
    const bool served = emulator.Run();
    // The server can also stop on its own (a failed listen); wake the waiter.
    pthread_kill(signalWaiter.native_handle(), SIGTERM);
    signalWaiter.join();
    return served;
}

} // namespace

int main(int argc, char** argv)
{
    if (AsksForHelp(argc, argv)) {
        std::cout << cloud::Help();
        return kServedAndStopped;
    }
    cloud::Options options;
    std::string error;
    if (!cloud::ParseOptions(argc, argv, options, error)) {
        std::cerr << "spacemgm-cloud: " << error << "\n" << cloud::Usage();
        return kBadInput;
    }
    const sigset_t stopSignals = BlockStopSignals();

    cloud::FaultTable faults;
    auto store = cloud::LoadAccount(options, faults, error);
    if (!store)
        return Fail(kBadInput, error);
    if (!options.faults.empty() && !cloud::LoadFaultsFile(options.faults, faults, error))
        return Fail(kBadInput, error);

    const auto account = store->Snapshot();
    cloud::Emulator emulator(options, std::move(store), faults);
    if (!emulator.Bind(error))
        return Fail(kBadInput, error);
    if (!options.writeConfig.empty() &&
        !cloud::WriteHostConfig(options.writeConfig, emulator, *account, error))
        return Fail(kFailed, "cannot write the configuration: " + error);
    Announce(emulator);
    return ServeUntilStopped(emulator, stopSignals) ? kServedAndStopped : kFailed;
}
