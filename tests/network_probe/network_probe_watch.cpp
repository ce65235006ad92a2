// Test helper: answers the network probe in "system" mode and, for each pair
// of arguments (an expected state such as "10", then a shell command, which
// may be empty), runs the command and waits up to two seconds for the probe
// to reach the state. Prints one line per pair: expected state, state
// reached, microseconds it took. Exit 0 when every command ran.

#include <cstdio>
#include <cstdlib>
#include <string>

#include "host/network_probe.h"
#include "tests/network_probe/probe_state.h"

int main(int argc, char** argv)
{
    if (argc < 3 || argc % 2 != 1) {
        std::fprintf(stderr, "usage: network_probe_watch STATE COMMAND [STATE COMMAND]...\n");
        return 2;
    }
    host::HostConfig config = host::DefaultHostConfig();
    config.networkMode = "system";
    try {
        host::ScopedNetworkProbe probe(config);
        int status = 0;
        for (int i = 1; i + 1 < argc; i += 2) {
            const std::string expected = argv[i];
            const std::string command = argv[i + 1];
            if (!command.empty() && std::system(command.c_str()) != 0) {
                std::fprintf(stderr, "network_probe_watch: failed: %s\n", command.c_str());
                status = 1;
            }
            bool reached = false;
            const auto took = WaitForProbeState(expected, std::chrono::milliseconds(2000), &reached);
            std::printf("%s %s %lld\n", expected.c_str(), ProbeState().c_str(),
                        static_cast<long long>(took.count()));
        }
        return status;
    } catch (const host::NetworkWatchError& error) {
        std::fprintf(stderr, "network_probe_watch: %s\n", error.what());
        return 3;
    }
}
