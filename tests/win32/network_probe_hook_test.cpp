#include <gtest/gtest.h>

#include <memory>

#include "platform/win32.h"
#include "toolkit/win32/network_probe.h"

namespace {

class FixedProbe : public toolkit_win32::NetworkProbe
{
public:
    FixedProbe(bool onNetwork, bool internet) : onNetwork_(onNetwork), internet_(internet) {}
    bool OnNetwork() const override { return onNetwork_; }
    bool HasInternetRoute() const override { return internet_; }

private:
    bool onNetwork_;
    bool internet_;
};

// Installs a probe for one test and puts back what was there.
class ProbeScope
{
public:
    explicit ProbeScope(std::shared_ptr<const toolkit_win32::NetworkProbe> probe)
        : previous_(toolkit_win32::SetNetworkProbe(std::move(probe)))
    {
    }
    ~ProbeScope() { toolkit_win32::SetNetworkProbe(previous_); }

private:
    std::shared_ptr<const toolkit_win32::NetworkProbe> previous_;
};

} // namespace

TEST(NetworkProbe, WithoutAProbeBothCallsFail)
{
    ProbeScope none(nullptr);
    DWORD flags = 0xFFFF;
    EXPECT_FALSE(IsNetworkAlive(&flags));
    EXPECT_EQ(flags, 0u);
    EXPECT_FALSE(InternetGetConnectedState(&flags, 0));
    EXPECT_EQ(flags, INTERNET_CONNECTION_OFFLINE);
}

TEST(NetworkProbe, EachCallAsksItsOwnQuestion)
{
    DWORD flags = 0;
    {
        ProbeScope lanOnly(std::make_shared<FixedProbe>(true, false));
        EXPECT_TRUE(IsNetworkAlive(&flags));
        EXPECT_EQ(flags, NETWORK_ALIVE_LAN);
        EXPECT_FALSE(InternetGetConnectedState(&flags, 0));
    }
    {
        ProbeScope internetOnly(std::make_shared<FixedProbe>(false, true));
        EXPECT_FALSE(IsNetworkAlive(&flags));
        EXPECT_TRUE(InternetGetConnectedState(&flags, 0));
        EXPECT_EQ(flags, INTERNET_CONNECTION_LAN | INTERNET_CONNECTION_CONFIGURED);
    }
}

TEST(NetworkProbe, NullFlagsAreAllowed)
{
    ProbeScope online(std::make_shared<FixedProbe>(true, true));
    EXPECT_TRUE(IsNetworkAlive(nullptr));
    EXPECT_TRUE(InternetGetConnectedState(nullptr, 0));
}

TEST(NetworkProbe, SettingAProbeReturnsTheOneItReplaces)
{
    auto first = std::make_shared<FixedProbe>(true, true);
    ProbeScope scope(first);
    auto second = std::make_shared<FixedProbe>(false, false);
    EXPECT_EQ(toolkit_win32::SetNetworkProbe(second), first);
    EXPECT_FALSE(IsNetworkAlive(nullptr));
    EXPECT_EQ(toolkit_win32::SetNetworkProbe(nullptr), second);
}
