#include <gtest/gtest.h>

#include <ifaddrs.h>
#include <net/if.h>
#include <sys/socket.h>

#include <cstdio>
#include <fstream>
#include <sstream>

#include "host/network_probe.h"
#include "tests/network_probe/probe_state.h"
#include "tests/win32/task_count.h"

namespace {

host::HostConfig SystemConfig()
{
    host::HostConfig config = host::DefaultHostConfig();
    config.networkMode = "system";
    return config;
}

// A shell command's output pipe, closed on every way out.
class CommandPipe
{
public:
    explicit CommandPipe(const std::string& command) : pipe_(::popen(command.c_str(), "r")) {}
    ~CommandPipe() { Close(); }
    CommandPipe(const CommandPipe&) = delete;
    CommandPipe& operator=(const CommandPipe&) = delete;

    FILE* Get() const { return pipe_; }
    // The command's wait status; -1 when it never started.
    int Close()
    {
        const int status = pipe_ != nullptr ? ::pclose(pipe_) : -1;
        pipe_ = nullptr;
        return status;
    }

private:
    FILE* pipe_;
};

// What a shell command prints, and whether it ran and exited with 0.
bool RunCommand(const std::string& command, std::string& output)
{
    CommandPipe pipe(command);
    if (pipe.Get() == nullptr) {
        return false;
    }
    char buffer[4096];
    std::size_t length;
    while ((length = std::fread(buffer, 1, sizeof buffer, pipe.Get())) > 0) {
        output.append(buffer, length);
    }
    return pipe.Close() == 0;
}

// The machine's own answer, asked the way a person would: getifaddrs for
// the interfaces, `ip route` for a default route in the main table.
bool MachineIsOnANetwork()
{
    ifaddrs* list = nullptr;
    if (::getifaddrs(&list) != 0) {
        return false;
    }
    bool found = false;
    for (ifaddrs* entry = list; entry != nullptr; entry = entry->ifa_next) {
        const int family = entry->ifa_addr != nullptr ? entry->ifa_addr->sa_family : AF_UNSPEC;
        const unsigned wanted = IFF_UP | IFF_RUNNING;
        found = found || ((family == AF_INET || family == AF_INET6) &&
                          (entry->ifa_flags & IFF_LOOPBACK) == 0 && (entry->ifa_flags & wanted) == wanted);
    }
    ::freeifaddrs(list);
    return found;
}

bool ListsADefaultRoute(const std::string& ipOutput)
{
    std::istringstream lines(ipOutput);
    std::string line;
    while (std::getline(lines, line)) {
        // Other route types ("unreachable default ...") carry a prefix.
        if (line.rfind("default ", 0) == 0) {
            return true;
        }
    }
    return false;
}

} // namespace

TEST(NetworkProbeSystemMode, AgreesWithGetifaddrsAndIpRouteOnThisMachine)
{
    std::string ipv4, ipv6;
    if (!RunCommand("ip -4 route show default 2>/dev/null", ipv4) ||
        !RunCommand("ip -6 route show default 2>/dev/null", ipv6)) {
        GTEST_SKIP() << "the ip tool (iproute2) is not installed";
    }
    const std::string expected =
        std::string(MachineIsOnANetwork() ? "1" : "0") + (ListsADefaultRoute(ipv4 + ipv6) ? "1" : "0");
    host::ScopedNetworkProbe probe(SystemConfig());
    EXPECT_EQ(ProbeState(), expected) << "ip -4: " << ipv4 << "ip -6: " << ipv6;
    RecordProperty("machine_state", expected);
}

TEST(NetworkProbeSystemMode, ItsThreadEndsWithTheProbe)
{
    const int before = SettledThreadCount();
    {
        host::ScopedNetworkProbe probe(SystemConfig());
        EXPECT_EQ(CountProcessThreads(), before + 1);
    }
    EXPECT_EQ(CountProcessThreads(), before);
}

// In a network namespace of its own (unshare -rn: an unprivileged user and
// network namespace), the helper changes interfaces and routes with `ip` and
// reports, for each step, the state it expected, the state the probe came
// to, and how long that took after the command.
TEST(NetworkProbeSystemMode, FollowsInterfacesAndRoutesAsTheKernelChangesThem)
{
    std::string ignored;
    if (!RunCommand("unshare -rn ip link show >/dev/null 2>&1", ignored)) {
        GTEST_SKIP() << "no unprivileged network namespaces here (unshare -rn fails)";
    }
    const std::vector<std::pair<std::string, std::string>> steps = {
        {"00", ""}, // a fresh namespace: loopback only, and down
        {"00", "ip link set lo up"},
        {"10", "ip link add v0 type veth peer name v1 && ip addr add 10.9.9.2/24 dev v0 && "
               "ip link set v1 up && ip link set v0 up"},
        {"11", "ip route add default via 10.9.9.1"},
        {"10", "ip route del default"},
        {"11", "ip -6 route add default via fe80::1 dev v0"},
        {"10", "ip -6 route del default via fe80::1 dev v0"},
        {"00", "ip link set v0 down && ip link set v1 down"},
    };
    std::string command = std::string("unshare -rn ") + NETWORK_PROBE_WATCH;
    for (const auto& [state, step] : steps) {
        command += " '" + state + "' '" + step + "'";
    }
    std::string output;
    ASSERT_TRUE(RunCommand(command + " 2>&1", output)) << output;
    std::istringstream lines(output);
    for (const auto& [state, step] : steps) {
        std::string expected, seen;
        long long micros = -1;
        ASSERT_TRUE(lines >> expected >> seen >> micros) << output;
        EXPECT_EQ(seen, state) << "after: " << step;
        EXPECT_LT(micros, 1000000) << "after: " << step;
    }
}
