// The probes behind host/network_probe.h, one per "network.mode".
#pragma once

#include <atomic>
#include <chrono>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>

#include "host/file_descriptor.h"
#include "host/poll_thread.h"
#include "toolkit/win32/network_probe.h"

namespace host {

// The two answers of the probe, kept together so that one store changes both.
enum NetworkStateBits : unsigned
{
    kOffline = 0,
    kOnNetwork = 1,
    kInternetRoute = 2,
    kOnline = kOnNetwork | kInternetRoute,
};

// "online" and "offline".
class FixedNetworkState : public toolkit_win32::NetworkProbe
{
public:
    explicit FixedNetworkState(unsigned state) : state_(state) {}
    bool OnNetwork() const override { return (state_ & kOnNetwork) != 0; }
    bool HasInternetRoute() const override { return (state_ & kInternetRoute) != 0; }

private:
    const unsigned state_;
};

// What a word of the network file means: "" and "online" both answers,
// "lan" only on a network, "wan" only a way to the internet, anything else
// ("offline" included) neither. Leading and trailing white space is ignored.
unsigned NetworkStateOfWord(std::string_view word);

// "file": the word in one file, followed with inotify on its folder. No
// thread: each probe first looks at the inotify queue (one non-blocking
// read, which finds nothing while nothing changed) and reads the file again
// only after a change, so a change is seen by the first probe after it. The
// file counts as changed when a writer closes it (not at each write, so a
// truncate-then-write is one change), when it is renamed into place or
// away, removed, or its attributes change. While the folder is missing, a
// probe tries again to watch it at most every 10 ms.
class FileNetworkState : public toolkit_win32::NetworkProbe
{
public:
    explicit FileNetworkState(const std::string& path);
    bool OnNetwork() const override { return (Current() & kOnNetwork) != 0; }
    bool HasInternetRoute() const override { return (Current() & kInternetRoute) != 0; }

private:
    unsigned Current() const;
    // The rest runs under mutex_.
    void CatchUp() const;
    bool DrainEvents() const; // true when the file or its folder changed
    bool WatchFolder() const;
    void ReadFile() const;

    const std::string path_, folder_, name_;
    const FileDescriptor inotify_;
    // A cache of the file, kept by whichever thread probes.
    mutable std::mutex mutex_;
    mutable int watch_ = -1;
    mutable unsigned state_ = kOffline;
    mutable std::chrono::steady_clock::time_point nextFolderAttempt_;
};

// "system": the kernel's interfaces and routes, read again after each burst
// of rtnetlink notifications (links, addresses, routes).
class SystemNetworkState : public toolkit_win32::NetworkProbe
{
public:
    SystemNetworkState();
    bool OnNetwork() const override { return (state_.load() & kOnNetwork) != 0; }
    bool HasInternetRoute() const override { return (state_.load() & kInternetRoute) != 0; }

private:
    int Step(bool readable);
    // False when the kernel could not be asked; the state is kept then.
    bool ReadState();

    FileDescriptor notifications_;
    std::atomic<unsigned> state_{kOffline};
    std::unique_ptr<PollThread> thread_; // last: stops before the rest goes
};

// The two facts "system" reads, each asked of the kernel afresh; both throw
// std::system_error when the kernel cannot be asked.
bool HasRunningInterfaceWithAddress();
bool HasDefaultRoute();

} // namespace host
