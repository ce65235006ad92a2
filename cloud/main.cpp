// spacemgm-cloud: serves every cloud service the module calls, on loopback,
// from an account fixture. See README.md.
#include <csignal>
#include <fstream>
#include <iostream>
#include <pthread.h>
#include <sstream>
#include <sys/stat.h>
#include <thread>

#include "emulator.h"
#include "fixture.h"
#include "host_config_writer.h"
#include "wire_text.h"

namespace {

bool FileExists(const std::string& path)
{
    struct stat info;
    return ::stat(path.c_str(), &info) == 0;
}

bool LoadFaultRules(const Json::Value& rules, const std::string& where, cloud::FaultTable& table,
                    std::string& error)
{
    if (!rules.isArray()) {
        error = where + ": must be an array of rules";
        return false;
    }
    for (Json::ArrayIndex i = 0; i < rules.size(); ++i) {
        std::string why;
        auto rule = cloud::ParseFaultRule(rules[i], why);
        if (!rule) {
            error = where + "[" + std::to_string(i) + "]: " + why;
            return false;
        }
        table.Add(*rule);
    }
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        if (std::string(argv[i]) == "--help" || std::string(argv[i]) == "-h") {
            std::cout << cloud::Help();
            return 0;
        }
    }
    cloud::Options options;
    std::string error;
    if (!cloud::ParseOptions(argc, argv, options, error)) {
        std::cerr << "spacemgm-cloud: " << error << "\n" << cloud::Usage();
        return 2;
    }

    // Signals are taken by one thread with sigwait, so the server threads
    // started below inherit the blocked mask and shutdown runs in order.
    sigset_t stopSignals;
    sigemptyset(&stopSignals);
    sigaddset(&stopSignals, SIGINT);
    sigaddset(&stopSignals, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &stopSignals, nullptr);
    std::signal(SIGPIPE, SIG_IGN);

    cloud::FaultTable faults;
    std::unique_ptr<cloud::MemoryAccountStore> store;
    try {
        cloud::AccountData fixture = cloud::LoadAccountFile(options.fixture);
        cloud::AccountData initial = fixture;
        bool fromState = !options.state.empty() && FileExists(options.state);
        if (fromState)
            initial = cloud::LoadAccountFile(options.state);
        if (!LoadFaultRules(fixture.faults, options.fixture + ": faults", faults, error)) {
            std::cerr << "spacemgm-cloud: " << error << "\n";
            return 2;
        }
        store = std::make_unique<cloud::MemoryAccountStore>(fixture, initial, options.state);
        if (!fromState && !store->Persist(error)) {
            std::cerr << "spacemgm-cloud: cannot write the state: " << error << "\n";
            return 2;
        }
    } catch (const cloud::FixtureError& e) {
        std::cerr << "spacemgm-cloud: " << e.what() << "\n";
        return 2;
    }
    if (!options.faults.empty()) {
        try {
            std::ifstream in(options.faults);
            std::stringstream text;
            text << in.rdbuf();
            std::string parseError;
            auto rules = in ? cloud::ParseJson(text.str(), &parseError) : std::nullopt;
            if (!rules) {
                std::cerr << "spacemgm-cloud: " << options.faults << ": cannot be read as JSON\n";
                return 2;
            }
            if (!LoadFaultRules(*rules, options.faults, faults, error)) {
                std::cerr << "spacemgm-cloud: " << error << "\n";
                return 2;
            }
        } catch (const std::exception& e) {
            std::cerr << "spacemgm-cloud: " << options.faults << ": " << e.what() << "\n";
            return 2;
        }
    }

    auto account = store->Snapshot();
    cloud::Emulator emulator(options, std::move(store), faults);
    if (!emulator.Bind(error)) {
        std::cerr << "spacemgm-cloud: " << error << "\n";
        return 1;
    }
    if (!options.writeConfig.empty() &&
        !cloud::WriteHostConfig(options.writeConfig, emulator, *account, error)) {
        std::cerr << "spacemgm-cloud: cannot write the configuration: " << error << "\n";
        return 1;
    }
    for (const auto& profile : cloud::ServiceProfiles())
        std::cout << profile.name << " " << emulator.ServiceUrl(profile.name) << "\n";
    std::cout << "admin " << emulator.BaseUrl() << "/_admin\n";
    if (!emulator.CaFile().empty())
        std::cout << "caFile " << emulator.CaFile() << "\n";
    std::cout << "ready" << std::endl;

    std::thread signalWaiter([&emulator, stopSignals] {
        int signal = 0;
        sigwait(&stopSignals, &signal);
        if (signal != 0)
            emulator.Stop();
    });
    bool served = emulator.Run();
    // The server can also stop on its own (a failed listen); wake the waiter.
    pthread_kill(signalWaiter.native_handle(), SIGTERM);
    signalWaiter.join();
    return served ? 0 : 1;
}
