// The checker's 10 ms period: what it sees, what it misses, and how it ends.

#include <gtest/gtest.h>

#include "tests/network_checker/scripted_probe.h"

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

bool WaitFor(const std::atomic<int>& count, int expected)
{
    const auto deadline = Clock::now() + std::chrono::seconds(1);
    while (count < expected && Clock::now() < deadline) {
        std::this_thread::sleep_for(milliseconds(1));
    }
    return count >= expected;
}

} // namespace

TEST(NetworkCheckerTiming, ProbesNoMoreOftenThanEvery10ms)
{
    auto probe = std::make_shared<ScriptedProbe>();
    ProbeScope scope(probe);
    NetworkChecker::networkAlive = true;
    {
        CheckerThread checker(
            *probe, [] {}, [] {});
        std::this_thread::sleep_for(milliseconds(200));
    }
    const auto times = probe->ProbeTimes();
    ASSERT_GE(times.size(), 5u) << "the loop kept probing";
    for (size_t i = 1; i < times.size(); ++i) {
        EXPECT_GE(times[i] - times[i - 1], milliseconds(10)) << "probe " << i;
    }
}

TEST(NetworkCheckerTiming, AMachineThatGoesOfflineAndOnlineAgainWithinOneSleepReportsNothing)
{
    auto probe = std::make_shared<ScriptedProbe>();
    ProbeScope scope(probe);
    NetworkChecker::networkAlive = true;
    std::atomic<int> calls{0};
    {
        CheckerThread checker(
            *probe, [&] { ++calls; }, [&] { ++calls; });
        for (int drop = 0; drop < 5; ++drop) {
            // Offline from 1 ms to 8 ms after a probe: over before the next
            // probe, which comes 10 ms or more after it.
            probe->DropAfterNextProbe(milliseconds(1), milliseconds(8));
            std::this_thread::sleep_for(milliseconds(40));
        }
    }
    EXPECT_EQ(calls.load(), 0);
}

TEST(NetworkCheckerTiming, ASingleDifferingProbeIsAChange)
{
    auto probe = std::make_shared<ScriptedProbe>();
    ProbeScope scope(probe);
    NetworkChecker::networkAlive = true;
    std::atomic<int> restored{0};
    std::atomic<int> lost{0};
    {
        CheckerThread checker(
            *probe, [&] { ++restored; }, [&] { ++lost; });
        probe->offlineProbes = 1;
        ASSERT_TRUE(WaitFor(lost, 1));
        ASSERT_TRUE(WaitFor(restored, 1));
        std::this_thread::sleep_for(milliseconds(50));
    }
    EXPECT_EQ(lost.load(), 1);
    EXPECT_EQ(restored.load(), 1);
}

TEST(NetworkCheckerTiming,
     SettingStopCheckingWhileACallbackRunsEndsTheLoopAfterThatCallbackTheSleepAndOneTest)
{
    auto probe = std::make_shared<ScriptedProbe>();
    ProbeScope scope(probe);
    NetworkChecker::networkAlive = true;
    probe->onNetwork = false;
    int probesInCallback = 0;
    Clock::time_point callbackReturned;
    const auto onLost = [&] {
        NetworkChecker::stopChecking = true;
        probesInCallback = probe->onNetworkCalls;
        callbackReturned = Clock::now();
    };
    NetworkChecker::CheckNetwork([] {}, onLost);
    const auto returned = Clock::now();
    EXPECT_EQ(probe->onNetworkCalls.load(), probesInCallback) << "no probe after the callback";
    EXPECT_GE(returned - callbackReturned, milliseconds(10)) << "the sleep came before the test";
    EXPECT_FALSE(NetworkChecker::networkAlive.load()) << "the result was stored before the loop ended";
}
