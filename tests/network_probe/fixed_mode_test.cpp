#include <gtest/gtest.h>

#include "host/network_probe.h"
#include "tests/network_probe/probe_state.h"

namespace {

host::HostConfig ConfigWithMode(const std::string& mode)
{
    host::HostConfig config = host::DefaultHostConfig();
    config.networkMode = mode;
    return config;
}

} // namespace

TEST(NetworkProbeFixedMode, OnlineAnswersBothCalls)
{
    host::ScopedNetworkProbe probe(ConfigWithMode("online"));
    EXPECT_EQ(ProbeState(), "11");
    DWORD flags = 0;
    IsNetworkAlive(&flags);
    EXPECT_EQ(flags, NETWORK_ALIVE_LAN);
}

TEST(NetworkProbeFixedMode, OfflineFailsBothCalls)
{
    host::ScopedNetworkProbe probe(ConfigWithMode("offline"));
    EXPECT_EQ(ProbeState(), "00");
}

TEST(NetworkProbeFixedMode, EndingTheScopePutsBackTheProbeBefore)
{
    host::ScopedNetworkProbe outer(ConfigWithMode("online"));
    {
        host::ScopedNetworkProbe inner(ConfigWithMode("offline"));
        EXPECT_EQ(ProbeState(), "00");
    }
    EXPECT_EQ(ProbeState(), "11");
}

TEST(NetworkProbeFixedMode, WithoutAHostProbeBothCallsFail)
{
    EXPECT_EQ(ProbeState(), "00");
}
