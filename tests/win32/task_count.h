#pragma once

// Counts the calling process's threads the way the kernel sees them, so that
// tests can tell whether a thread really went away.

#include <dirent.h>

#include <chrono>
#include <thread>

inline int CountProcessThreads()
{
    DIR* tasks = opendir("/proc/self/task");
    if (tasks == nullptr) {
        return -1;
    }
    int count = 0;
    while (const dirent* entry = readdir(tasks)) {
        if (entry->d_name[0] != '.') {
            ++count;
        }
    }
    closedir(tasks);
    return count;
}

// Some runtimes start a helper thread of their own with the process's first
// thread (ThreadSanitizer's background thread does); one thread started and
// joined before the first count makes such a helper part of every count.
inline void StartLazyRuntimeThreads()
{
    static const bool started = [] {
        std::thread([] {}).join();
        return true;
    }();
    (void)started;
}

// The count once threads that are on their way out (ended by an earlier
// test, say) have gone: the first of two counts 10 ms apart that agree.
inline int SettledThreadCount()
{
    StartLazyRuntimeThreads();
    int last = CountProcessThreads();
    for (int attempt = 0; attempt < 200; ++attempt) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
        const int now = CountProcessThreads();
        if (now == last) {
            return now;
        }
        last = now;
    }
    return last;
}

// A thread that has ended still shows until the kernel has reaped it, a
// moment after its last instruction; waits up to `limit` for the count to
// come down to `expected` and returns the last count seen.
inline int WaitForThreadCount(int expected, std::chrono::milliseconds limit = std::chrono::seconds(2))
{
    const auto deadline = std::chrono::steady_clock::now() + limit;
    int count = CountProcessThreads();
    while (count > expected && std::chrono::steady_clock::now() < deadline) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        count = CountProcessThreads();
    }
    return count;
}
