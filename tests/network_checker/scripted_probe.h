#pragma once

// A network probe the test scripts, installed for one test, and the
// checker's loop on a thread of its own.

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "foundation/network_checker.h"
#include "toolkit/win32/network_probe.h"

class ScriptedProbe : public toolkit_win32::NetworkProbe
{
public:
    using Clock = std::chrono::steady_clock;

    bool OnNetwork() const override
    {
        const auto now = Clock::now();
        {
            std::lock_guard<std::mutex> lock(mutex_);
            probeTimes_.push_back(now);
        }
        ++onNetworkCalls;
        if (offlineProbes.load() > 0) {
            --offlineProbes;
            return false;
        }
        return onNetwork && !InDrop(now);
    }

    bool HasInternetRoute() const override
    {
        ++internetCalls;
        return internet && !InDrop(Clock::now());
    }

    // Makes the network drop from `from` to `to` after the next probe.
    void DropAfterNextProbe(Clock::duration from, Clock::duration to)
    {
        std::lock_guard<std::mutex> lock(mutex_);
        dropFrom_ = from;
        dropTo_ = to;
        dropArmed_ = true;
        dropStart_.reset();
    }

    std::vector<Clock::time_point> ProbeTimes() const
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return probeTimes_;
    }

    std::atomic<bool> onNetwork{true};
    std::atomic<bool> internet{true};
    // This many of the next probes read offline, whatever the rest says.
    mutable std::atomic<int> offlineProbes{0};
    mutable std::atomic<int> onNetworkCalls{0};
    mutable std::atomic<int> internetCalls{0};

private:
    // The first probe after DropAfterNextProbe fixes when the drop happens.
    bool InDrop(Clock::time_point now) const
    {
        std::lock_guard<std::mutex> lock(mutex_);
        if (dropArmed_ && !dropStart_) {
            dropStart_ = now;
            return false;
        }
        return dropStart_ && now >= *dropStart_ + dropFrom_ && now < *dropStart_ + dropTo_;
    }

    mutable std::mutex mutex_;
    mutable std::vector<Clock::time_point> probeTimes_;
    bool dropArmed_ = false;
    Clock::duration dropFrom_{}, dropTo_{};
    mutable std::optional<Clock::time_point> dropStart_;
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
    ProbeScope(const ProbeScope&) = delete;
    ProbeScope& operator=(const ProbeScope&) = delete;

private:
    std::shared_ptr<const toolkit_win32::NetworkProbe> previous_;
};

// Runs CheckNetwork on its own thread, as the window's watcher does; stops
// and joins it when destroyed. The constructor returns once the loop has
// probed, so that a stop cannot come before the loop clears stopChecking.
class CheckerThread
{
public:
    CheckerThread(const ScriptedProbe& probe, std::function<void()> onRestored, std::function<void()> onLost)
    {
        const int probesBefore = probe.onNetworkCalls;
        thread_ = std::thread(NetworkChecker::CheckNetwork, std::move(onRestored), std::move(onLost));
        while (probe.onNetworkCalls == probesBefore) {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    }
    ~CheckerThread() { Join(); }
    CheckerThread(const CheckerThread&) = delete;
    CheckerThread& operator=(const CheckerThread&) = delete;

    void Join()
    {
        if (thread_.joinable()) {
            NetworkChecker::stopChecking = true;
            thread_.join();
        }
    }

private:
    std::thread thread_;
};
