// What the network checker reports, logs and calls.

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

#include "host/logger_sink.h"
#include "platform/win32.h"
#include "tests/network_checker/scripted_probe.h"

namespace {

using std::chrono::milliseconds;

class NetworkCheckerTest : public ::testing::Test
{
protected:
    NetworkCheckerTest() : scope_(probe) {}

    // Waits up to a second for `count` to reach `expected`.
    static bool WaitFor(const std::atomic<int>& count, int expected)
    {
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(1);
        while (count < expected && std::chrono::steady_clock::now() < deadline) {
            std::this_thread::sleep_for(milliseconds(1));
        }
        return count >= expected;
    }

    std::vector<Logger::Record> CheckerLines() const
    {
        std::vector<Logger::Record> lines;
        for (const auto& record : sink.Records()) {
            if (record.function == "NetworkChecker::CheckNetwork") {
                lines.push_back(record);
            }
        }
        return lines;
    }

    std::shared_ptr<ScriptedProbe> probe = std::make_shared<ScriptedProbe>();
    Logger::ScopedMemorySink sink;
    std::atomic<int> restored{0};
    std::atomic<int> lost{0};

private:
    ProbeScope scope_;
};

} // namespace

TEST_F(NetworkCheckerTest, LossCallsOnLostOnceAndLogsTheErrorLineWithFlush)
{
    NetworkChecker::networkAlive = true;
    probe->onNetwork = false;
    {
        CheckerThread checker(
            *probe, [&] { ++restored; }, [&] { ++lost; });
        ASSERT_TRUE(WaitFor(lost, 1));
        std::this_thread::sleep_for(milliseconds(100));
    }
    EXPECT_EQ(lost.load(), 1);
    EXPECT_EQ(restored.load(), 0);
    EXPECT_FALSE(NetworkChecker::networkAlive.load());
    const auto lines = CheckerLines();
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].module, 7);
    EXPECT_EQ(lines[0].severity, 5);
    EXPECT_EQ(lines[0].message, "Network status occurred an exception.");
    EXPECT_TRUE(lines[0].flush);
}

TEST_F(NetworkCheckerTest, RestoreCallsOnRestoredOnceAndLogsTheDebugLineWithoutFlush)
{
    NetworkChecker::networkAlive = false;
    {
        CheckerThread checker(
            *probe, [&] { ++restored; }, [&] { ++lost; });
        ASSERT_TRUE(WaitFor(restored, 1));
        std::this_thread::sleep_for(milliseconds(100));
    }
    EXPECT_EQ(restored.load(), 1);
    EXPECT_EQ(lost.load(), 0);
    EXPECT_TRUE(NetworkChecker::networkAlive.load());
    const auto lines = CheckerLines();
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].module, 7);
    EXPECT_EQ(lines[0].severity, 1);
    EXPECT_EQ(lines[0].message, "Network status is restored.");
    EXPECT_FALSE(lines[0].flush);
}

TEST_F(NetworkCheckerTest, LoopStartedWithTheRightStateCallsNothing)
{
    NetworkChecker::networkAlive = true;
    {
        CheckerThread checker(
            *probe, [&] { ++restored; }, [&] { ++lost; });
        std::this_thread::sleep_for(milliseconds(100));
    }
    EXPECT_EQ(restored.load() + lost.load(), 0);
    EXPECT_TRUE(CheckerLines().empty());
}

TEST_F(NetworkCheckerTest, IsNetworkAliveFailingWithInternetGetConnectedStateSucceedingReadsAsOffline)
{
    NetworkChecker::networkAlive = true;
    probe->onNetwork = false;
    probe->internet = true;
    {
        CheckerThread checker(
            *probe, [&] { ++restored; }, [&] { ++lost; });
        ASSERT_TRUE(WaitFor(lost, 1));
    }
    EXPECT_FALSE(NetworkChecker::networkAlive.load());
    EXPECT_EQ(probe->internetCalls.load(), 0) << "the second call is not made when the first fails";
}

TEST_F(NetworkCheckerTest, NoInternetRouteReadsAsOffline)
{
    NetworkChecker::networkAlive = true;
    probe->internet = false;
    {
        CheckerThread checker(
            *probe, [&] { ++restored; }, [&] { ++lost; });
        ASSERT_TRUE(WaitFor(lost, 1));
    }
    EXPECT_GT(probe->internetCalls.load(), 0);
}

TEST_F(NetworkCheckerTest, NetworkAliveIsWrittenOnlyAfterTheCallbackReturns)
{
    NetworkChecker::networkAlive = true;
    probe->onNetwork = false;
    std::atomic<int> seenInOnLost{-1};
    std::atomic<int> seenInOnRestored{-1};
    {
        CheckerThread checker(
            *probe,
            [&] {
                seenInOnRestored = NetworkChecker::networkAlive ? 1 : 0;
                ++restored;
            },
            [&] {
                std::this_thread::sleep_for(milliseconds(30)); // a slow callback changes nothing
                seenInOnLost = NetworkChecker::networkAlive ? 1 : 0;
                ++lost;
            });
        ASSERT_TRUE(WaitFor(lost, 1));
        probe->onNetwork = true;
        ASSERT_TRUE(WaitFor(restored, 1));
    }
    EXPECT_EQ(seenInOnLost.load(), 1) << "still the old value while onLost runs";
    EXPECT_EQ(seenInOnRestored.load(), 0);
    EXPECT_TRUE(NetworkChecker::networkAlive.load());
}

TEST_F(NetworkCheckerTest, AnEmptyCallbackRaisesBadFunctionCall)
{
    NetworkChecker::networkAlive = true;
    probe->onNetwork = false;
    EXPECT_THROW(NetworkChecker::CheckNetwork([] {}, nullptr), std::bad_function_call);
    EXPECT_TRUE(NetworkChecker::networkAlive.load()) << "nothing was stored for the failed call";
}

TEST_F(NetworkCheckerTest, CallbacksAreDestroyedWhenTheLoopReturns)
{
    NetworkChecker::networkAlive = true;
    auto token = std::make_shared<int>(0);
    {
        CheckerThread checker(
            *probe, [token] {}, [token] {});
        EXPECT_EQ(token.use_count(), 3);
    }
    EXPECT_EQ(token.use_count(), 1);
}

TEST(NetworkCheckerProbe, AliveOnlyWhenBothCallsSucceed)
{
    auto probe = std::make_shared<ScriptedProbe>();
    ProbeScope scope(probe);
    EXPECT_TRUE(NetworkChecker::ProbeNetwork());
    probe->internet = false;
    EXPECT_FALSE(NetworkChecker::ProbeNetwork());
    probe->internet = true;
    probe->onNetwork = false;
    const int internetCallsBefore = probe->internetCalls;
    EXPECT_FALSE(NetworkChecker::ProbeNetwork());
    EXPECT_EQ(probe->internetCalls.load(), internetCallsBefore);
}

TEST(NetworkCheckerProbe, NoProbeInstalledReadsAsOffline)
{
    ProbeScope none(nullptr);
    EXPECT_FALSE(NetworkChecker::ProbeNetwork());
}

namespace {

struct WatcherStart
{
    std::function<void()> onRestored;
    std::function<void()> onLost;
};

unsigned RunWatcher(void* raw)
{
    std::unique_ptr<WatcherStart> start(static_cast<WatcherStart*>(raw));
    NetworkChecker::CheckNetwork(std::move(start->onRestored), std::move(start->onLost));
    return 0;
}

} // namespace

TEST_F(NetworkCheckerTest, RunsOnAThreadFromBeginThreadExThatEndsWhenStopped)
{
    NetworkChecker::networkAlive = true;
    const int probesBefore = probe->onNetworkCalls;
    auto start = std::make_unique<WatcherStart>(WatcherStart{[&] { ++restored; }, [&] { ++lost; }});
    const auto thread =
        reinterpret_cast<HANDLE>(_beginthreadex(nullptr, 0, RunWatcher, start.get(), 0, nullptr));
    if (thread != nullptr) {
        start.release(); // the thread's own now
    }
    ASSERT_NE(thread, nullptr);
    ASSERT_TRUE(WaitFor(probe->onNetworkCalls, probesBefore + 1));
    probe->onNetwork = false;
    ASSERT_TRUE(WaitFor(lost, 1));
    NetworkChecker::stopChecking = true;
    EXPECT_EQ(WaitForSingleObject(thread, 1000), WAIT_OBJECT_0);
    CloseHandle(thread);
    EXPECT_FALSE(NetworkChecker::networkAlive.load());
}
