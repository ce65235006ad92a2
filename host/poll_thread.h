// A thread that sleeps until a file descriptor has something to read, or
// until a time it asked for, and runs one step each time; it costs nothing
// while nothing happens. Destroying it wakes the thread and joins it.
#pragma once

#include <functional>
#include <thread>

#include "host/file_descriptor.h"

namespace host {

class PollThread
{
public:
    // `step(readable)` runs on the thread when `fd` is readable (true) or the
    // timeout it returned last has passed (false); it returns the next
    // timeout in milliseconds, -1 for none. It must not throw.
    using Step = std::function<int(bool readable)>;

    PollThread(int fd, Step step, int firstTimeoutMs);
    ~PollThread();
    PollThread(const PollThread&) = delete;
    PollThread& operator=(const PollThread&) = delete;

private:
    void Run(int timeoutMs);

    const int fd_;
    Step step_;
    FileDescriptor wake_;
    std::thread thread_;
};

} // namespace host
