#include "host/poll_thread.h"

#include <poll.h>
#include <sys/eventfd.h>

#include <cerrno>
#include <cstdint>
#include <system_error>

namespace host {

PollThread::PollThread(int fd, Step step, int firstTimeoutMs)
    : fd_(fd), step_(std::move(step)), wake_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{
    if (!wake_) {
        throw std::system_error(errno, std::generic_category(), "eventfd");
    }
    thread_ = std::thread([this, firstTimeoutMs] { Run(firstTimeoutMs); });
}

PollThread::~PollThread()
{
    const std::uint64_t one = 1;
    // An eventfd write of 8 bytes cannot be short; if it failed the join
    // below would hang, and there is no way to report it from here.
    [[maybe_unused]] const ssize_t written = ::write(wake_.Get(), &one, sizeof one);
    thread_.join();
}

void PollThread::Run(int timeoutMs)
{
    for (;;) {
        pollfd fds[2] = {{fd_, POLLIN, 0}, {wake_.Get(), POLLIN, 0}};
        const int ready = ::poll(fds, 2, timeoutMs);
        if (ready < 0 && errno == EINTR) {
            continue;
        }
        if (ready < 0 || (fds[1].revents & POLLIN) != 0) {
            return;
        }
        timeoutMs = step_((fds[0].revents & (POLLIN | POLLERR)) != 0);
    }
}

} // namespace host
